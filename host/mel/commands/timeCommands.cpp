// Time, units and what is played.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "engine/animCurve.h"
#include "engine/settingsChange.h"

#include <array>

namespace tvxhost::mel {

namespace {

Value currentTime(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    if (!call.queries()) {
        if (call.positional.empty())
            context.fail("'currentTime' needs a time");
        scene.setTime(toInternal(context, call.positional.front(), ArgumentType::time));
    }
    return Value(scene.time() / engine::secondsPer(scene.units().time));
}

Value unitName(const engine::Units& units, const ParsedCommand& call)
{
    const bool isFull = call.has("fullName");
    if (call.has("angle"))
        return Value(engine::nameOf(units.angle, isFull));
    if (call.has("time"))
        return Value(engine::timeUnitName(units.time));
    return Value(engine::nameOf(units.linear, isFull));
}

template <class Unit, class Named>
void change(CommandContext& context, const ParsedCommand& call, const char* flag, Unit& unit,
            const Named& named)
{
    if (!call.has(flag))
        return;
    const auto found = named(call.string(flag));
    if (!found)
        context.fail("Invalid unit '" + call.string(flag) + "'");
    unit = *found;
}

/// Keys stay at their frames instead of their times.
void keepFrames(const CommandContext& context, double secondsBefore, double secondsNow)
{
    const double ratio = secondsNow / secondsBefore;
    for (engine::Node* node : sceneOf(context).nodes()) {
        if (!engine::isAnimCurve(*node) || !engine::isTimed(*node))
            continue;
        engine::AnimCurveKeys keys = engine::readCurve(*node);
        for (engine::AnimKey& key : keys.keys) {
            key.at *= ratio;
            for (engine::KeyTangent* side : {&key.in, &key.out})
                side->direction.x *= ratio;
        }
        require(context, engine::writeCurve(*node, keys));
    }
}

/// Gives the name of the unit that was set; of several that of time, or else of angles.
Value currentUnit(CommandContext& context, const ParsedCommand& call)
{
    engine::Units& units = sceneOf(context).units();
    if (call.queries())
        return unitName(units, call);
    const engine::SettingsChange settings(sceneOf(context));
    change(context, call, "linear", units.linear, engine::linearUnitNamed);
    change(context, call, "angle", units.angle, engine::angularUnitNamed);
    const double secondsBefore = engine::secondsPer(units.time);
    change(context, call, "time", units.time, engine::timeUnitNamed);
    if (!call.boolean("updateAnimation", true))
        keepFrames(context, secondsBefore, engine::secondsPer(units.time));
    if (call.has("time"))
        return Value(engine::timeUnitName(units.time));
    return unitName(units, call);
}

// playbackOptions

using engine::Playback;

struct RangeEnd
{
    const char* shortName;
    const char* longName;
    const char* help;
    double (Playback::*get)() const;
    void (Playback::*set)(double);
};

constexpr RangeEnd kRangeEnds[] = {
    {"ast", "animationStartTime", "where the animation begins", &Playback::animationStart,
     &Playback::setAnimationStart},
    {"aet", "animationEndTime", "where the animation ends", &Playback::animationEnd,
     &Playback::setAnimationEnd},
    {"min", "minTime", "where playing begins", &Playback::minimum, &Playback::setMinimum},
    {"max", "maxTime", "where playing ends", &Playback::maximum, &Playback::setMaximum},
};

struct PlayNumber
{
    const char* shortName;
    const char* longName;
    const char* help;
    double Playback::*number;
};

constexpr PlayNumber kPlayNumbers[] = {
    {"by", "by", "frames from one that is shown to the next", &Playback::by},
    {"ps", "playbackSpeed", "1 is real time, 0 shows every frame", &Playback::speed},
};

constexpr std::array<const char*, 3> kLoops = {"once", "continuous", "oscillate"};
constexpr std::array<const char*, 2> kViews = {"all", "active"};

template <class Enum, std::size_t kSize>
void choose(CommandContext& context, const ParsedCommand& call, const char* flag,
            const std::array<const char*, kSize>& words, Enum& value)
{
    if (!call.has(flag))
        return;
    const std::string word = call.string(flag);
    for (std::size_t i = 0; i < kSize; ++i)
        if (word == words[i]) {
            value = static_cast<Enum>(i);
            return;
        }
    context.fail("playbackOptions: \"" + word + "\" is no value of -" + flag);
}

Value queryPlayback(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const Playback& playback = scene.playback();
    const double frame = engine::secondsPer(scene.units().time);
    for (const RangeEnd& end : kRangeEnds)
        if (call.has(end.longName))
            return Value((playback.*end.get)() / frame);
    for (const PlayNumber& number : kPlayNumbers)
        if (call.has(number.longName))
            return Value(playback.*number.number);
    if (call.has("framesPerSecond"))
        return Value(1.0 / frame);
    if (call.has("loop"))
        return Value(kLoops[static_cast<std::size_t>(playback.mode)]);
    if (call.has("view"))
        return Value(kViews[static_cast<std::size_t>(playback.views)]);
    context.fail("playbackOptions: nothing was asked");
}

Value playbackOptions(CommandContext& context, const ParsedCommand& call)
{
    if (call.queries())
        return queryPlayback(context, call);
    Playback& playback = sceneOf(context).playback();
    const engine::SettingsChange settings(sceneOf(context));
    for (const RangeEnd& end : kRangeEnds)
        if (const FlagUse* use = call.use(end.longName))
            (playback.*end.set)(toInternal(context, use->arguments.front(), ArgumentType::time));
    for (const PlayNumber& number : kPlayNumbers)
        playback.*number.number = call.number(number.longName, playback.*number.number);
    choose(context, call, "loop", kLoops, playback.mode);
    choose(context, call, "view", kViews, playback.views);
    return {};
}

CommandSpec playbackCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        valueFlag("l", "loop", A::string, "once, continuous or oscillate", kAllModes),
        valueFlag("v", "view", A::string, "which views play: all or active", kAllModes),
        switchFlag("fps", "framesPerSecond", "frames of the current unit in a second", kQuery),
        refusedFlag("mps", "maxPlaybackSpeed", "the host plays nothing"),
        refusedFlag("ba", "blockingAnim", "the host plays nothing"),
    };
    for (const RangeEnd& end : kRangeEnds)
        flags.push_back(valueFlag(end.shortName, end.longName, A::time, end.help, kAllModes));
    for (const PlayNumber& number : kPlayNumbers)
        flags.push_back(valueFlag(number.shortName, number.longName, A::number, number.help, kAllModes));
    return makeCommand("playbackOptions", "Sets or tells what is played", std::move(flags), noArguments(),
                       playbackOptions, kAllModes);
}

} // namespace

void registerTimeCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand("currentTime", "Sets or tells the current time",
                    {valueFlag("u", "update", A::boolean, "whether views show it", kCreateEdit)},
                    {A::time, 0, 1}, currentTime, kAllModes),
        makeCommand("currentUnit", "Sets or tells the units that the user sees",
                    {valueFlag("l", "linear", A::string, "mm cm m km in ft yd mi", kAllModes),
                     valueFlag("a", "angle", A::string, "deg rad", kAllModes),
                     valueFlag("t", "time", A::string,
                               "film pal ntsc game show palf ntscf hour min sec millisec", kAllModes),
                     switchFlag("f", "fullName", "long names", kQuery),
                     valueFlag("ua", "updateAnimation", A::boolean, "whether keys keep their time", kCreate)},
                    noArguments(), currentUnit, kAllModes),
        playbackCommand(),
    });
}

} // namespace tvxhost::mel
