// Keys and curves: asking for them, moving, cutting and finding them.
#include "keyframeCommands.h"

#include "keysets.h"
#include "sceneCommands.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace tvxhost::mel {

using engine::AnimCurveKeys;
using engine::AnimKey;
using engine::CurveInfinity;
using engine::Node;

namespace {

std::vector<std::string> namesOf(const CommandContext& context, const std::vector<Node*>& curves)
{
    std::vector<std::string> found;
    for (const Node* curve : curves)
        found.push_back(sceneOf(context).shortestName(*curve));
    return found;
}

// keyframe

/// Calls `use(curve, keys, index)` for each chosen key.
template <class Use>
void forChosenKeys(const CommandContext& context, const ParsedCommand& call, Use use)
{
    const KeyChoice choice(context, call);
    for (Node* curve : curvesOf(context, call)) {
        const AnimCurveKeys keys = engine::readCurve(*curve);
        for (const std::size_t index : choice.of(*curve, keys))
            use(*curve, keys, index);
    }
}

/// What the curves are without regard to their inputs, at the times and numbers that were named.
Value evaluated(const CommandContext& context, const ParsedCommand& call)
{
    const KeyChoice choice(context, call);
    Value::Numbers values;
    for (Node* curve : curvesOf(context, call)) {
        std::vector<double> places = choice.places(*curve);
        if (places.empty() && engine::isTimed(*curve))
            places.push_back(sceneOf(context).time());
        const AnimCurveKeys keys = engine::readCurve(*curve);
        for (const double at : places)
            values.push_back(valueToUi(*curve, keys.valueAt(at)));
    }
    return Value(std::move(values));
}

Value queryKeyframe(const CommandContext& context, const ParsedCommand& call)
{
    if (call.has("name"))
        return Value(namesOf(context, curvesOf(context, call)));
    if (call.has("eval"))
        return evaluated(context, call);
    Value::Numbers numbers;
    Value::Integers indices;
    forChosenKeys(context, call, [&](const Node& curve, const AnimCurveKeys& keys, std::size_t index) {
        const AnimKey& key = keys.keys[index];
        if (call.has("breakdown") && !key.isBreakdown)
            return;
        numbers.push_back(call.has("valueChange") ? valueToUi(curve, key.value) : inputToUi(curve, key.at));
        indices.push_back(static_cast<int>(index));
    });
    if (call.has("keyframeCount"))
        return Value(static_cast<int>(indices.size()));
    if (call.has("indexValue"))
        return Value(std::move(indices));
    return Value(std::move(numbers));
}

/// A change of keys: of one number to another, or by an amount.
struct Change
{
    std::optional<double> amount;
    bool isRelative = false;

    double of(double number) const { return isRelative ? number + *amount : *amount; }
};

/// Moves and changes the chosen keys of a curve; one that meets another key takes its place.
void changeKeys(const Node& curve, AnimCurveKeys& keys, const std::vector<std::size_t>& chosen,
                const Change& input, const Change& value, const std::optional<bool>& isBreakdown)
{
    std::vector<AnimKey> changed;
    for (auto index = chosen.rbegin(); index != chosen.rend(); ++index) {
        AnimKey key = keys.keys[*index];
        if (input.amount)
            key.at = input.of(key.at);
        if (value.amount)
            key.value = Change{*value.amount * engine::valuePerUi(curve), value.isRelative}.of(key.value);
        key.isBreakdown = isBreakdown.value_or(key.isBreakdown);
        changed.push_back(key);
        keys.keys.erase(keys.keys.begin() + static_cast<std::ptrdiff_t>(*index));
    }
    for (const AnimKey& key : changed)
        keys.put(key);
}

Value keyframe(CommandContext& context, const ParsedCommand& call)
{
    if (call.queries())
        return queryKeyframe(context, call);
    const bool isRelative = call.has("relative");
    Change time{std::nullopt, isRelative};
    Change number{std::nullopt, isRelative};
    Change value{std::nullopt, isRelative};
    if (const FlagUse* use = call.use("timeChange"))
        time.amount = toInternal(context, use->arguments.front(), ArgumentType::time);
    if (call.has("floatChange"))
        number.amount = call.number("floatChange");
    if (call.has("valueChange"))
        value.amount = call.number("valueChange");
    std::optional<bool> isBreakdown;
    if (call.has("breakdown"))
        isBreakdown = call.boolean("breakdown");

    const KeyChoice choice(context, call);
    int count = 0;
    for (Node* curve : curvesOf(context, call)) {
        AnimCurveKeys keys = engine::readCurve(*curve);
        const std::vector<std::size_t> chosen = choice.of(*curve, keys);
        if (chosen.empty())
            continue;
        changeKeys(*curve, keys, chosen, engine::isTimed(*curve) ? time : number, value, isBreakdown);
        require(context, engine::writeCurve(*curve, keys));
        ++count;
    }
    return Value(count);
}

CommandSpec keyframeCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = keysetFlags();
    flags.insert(
        flags.end(),
        {switchFlag("a", "absolute", "changes give the new number", kCreateEdit),
         switchFlag("r", "relative", "changes are added", kCreateEdit),
         valueFlag("tc", "timeChange", A::time, "when the keys are", kAllModes),
         valueFlag("fc", "floatChange", A::number, "where the keys are, on curves over plain numbers",
                   kAllModes),
         valueFlag("vc", "valueChange", A::number, "the values of the keys", kAllModes),
         valueFlag("bd", "breakdown", A::boolean, "whether keys are breakdowns; those that are", kAllModes),
         switchFlag("kc", "keyframeCount", "how many keys there are", kQuery),
         switchFlag("iv", "indexValue", "the indices of the keys", kQuery),
         switchFlag("n", "name", "the curves", kQuery),
         switchFlag("ev", "eval", "the values of the curves at the times and numbers given", kQuery)});
    return makeCommand("keyframe", "Moves keys or tells about them", std::move(flags), names(), keyframe,
                       kAllModes);
}

// cutKey

Value cutKey(CommandContext& context, const ParsedCommand& call)
{
    const bool cutsCurves = call.string("option", "keys") == "curve";
    const KeyChoice choice(context, call);
    int count = 0;
    for (Node* curve : curvesOf(context, call)) {
        AnimCurveKeys keys = engine::readCurve(*curve);
        const std::vector<std::size_t> chosen = choice.of(*curve, keys);
        if (chosen.empty())
            continue;
        ++count;
        for (auto index = chosen.rbegin(); index != chosen.rend(); ++index)
            keys.keys.erase(keys.keys.begin() + static_cast<std::ptrdiff_t>(*index));
        // A curve without keys has nothing to feed.
        require(context, keys.keys.empty() || cutsCurves ? sceneOf(context).deleteNode(*curve)
                                                         : engine::writeCurve(*curve, keys));
    }
    return Value(count);
}

CommandSpec cutKeyCommand()
{
    std::vector<FlagSpec> flags = keysetFlags();
    flags.insert(flags.end(), {switchFlag("cl", "clear", "the keys are not kept for pasting"),
                               valueFlag("o", "option", ArgumentType::string, "keys or curve")});
    return makeCommand("cutKey", "Removes keys, and curves that have none left", std::move(flags), names(),
                       cutKey);
}

// setInfinity

constexpr std::array<std::pair<std::string_view, CurveInfinity>, 5> kInfinities = {
    {{"constant", CurveInfinity::constant},
     {"linear", CurveInfinity::linear},
     {"cycle", CurveInfinity::cycle},
     {"cycleRelative", CurveInfinity::cycleRelative},
     {"oscillate", CurveInfinity::oscillate}}};

CurveInfinity infinityNamed(const CommandContext& context, const std::string& name)
{
    for (const auto& [known, infinity] : kInfinities)
        if (name == known)
            return infinity;
    context.fail("Invalid infinity type '" + name + "'");
}

std::string nameOf(CurveInfinity infinity)
{
    for (const auto& [name, known] : kInfinities)
        if (infinity == known)
            return std::string(name);
    return "constant";
}

struct InfinityEnd
{
    const char* flag;
    CurveInfinity AnimCurveKeys::*end;
};

constexpr InfinityEnd kEnds[] = {{"preInfinite", &AnimCurveKeys::before},
                                 {"postInfinite", &AnimCurveKeys::after}};

Value setInfinity(CommandContext& context, const ParsedCommand& call)
{
    Value::Strings found;
    int count = 0;
    for (Node* curve : curvesOf(context, call)) {
        AnimCurveKeys keys = engine::readCurve(*curve);
        for (const InfinityEnd& end : kEnds) {
            if (!call.has(end.flag))
                continue;
            if (call.queries())
                found.push_back(nameOf(keys.*end.end));
            else
                keys.*end.end = infinityNamed(context, call.string(end.flag));
        }
        if (!call.queries())
            require(context, engine::writeCurve(*curve, keys));
        ++count;
    }
    return call.queries() ? Value(std::move(found)) : Value(count);
}

CommandSpec setInfinityCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = plugFlags();
    flags.insert(
        flags.end(),
        {valueFlag("pri", "preInfinite", A::string,
                   "before the keys: constant, linear, cycle, cycleRelative or oscillate", kAllModes),
         valueFlag("poi", "postInfinite", A::string, "the same behind them", kAllModes)});
    return makeCommand("setInfinity", "Sets or tells what curves are outside their keys", std::move(flags),
                       names(), setInfinity, kAllModes);
}

// findKeyframe

/// The time of the key that `which` means, seen from a time; past the last one follows the first.
std::optional<double> keyTime(const std::vector<double>& sorted, const std::string& which, double from)
{
    if (sorted.empty())
        return std::nullopt;
    constexpr double kSame = AnimCurveKeys::kSameInput;
    if (which == "first")
        return sorted.front();
    if (which == "last")
        return sorted.back();
    if (which == "previous") {
        const auto found =
            std::find_if(sorted.rbegin(), sorted.rend(), [&](double time) { return time < from - kSame; });
        return found == sorted.rend() ? sorted.back() : *found;
    }
    const auto found =
        std::find_if(sorted.begin(), sorted.end(), [&](double time) { return time > from + kSame; });
    return found == sorted.end() ? sorted.front() : *found;
}

Value findKeyframe(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<Node*> curves = curvesOf(context, call);
    if (call.has("curve"))
        return Value(namesOf(context, curves));
    const std::string which = call.string("which", "next");
    const std::array<std::string_view, 4> known = {"next", "previous", "first", "last"};
    if (std::find(known.begin(), known.end(), which) == known.end())
        context.fail("Invalid value '" + which + "' of -which");
    std::vector<double> times;
    for (Node* curve : curves)
        if (engine::isTimed(*curve))
            for (const AnimKey& key : engine::readCurve(*curve).keys)
                times.push_back(key.at);
    std::sort(times.begin(), times.end());
    const engine::Scene& scene = sceneOf(context);
    double from = scene.time();
    if (const FlagUse* use = call.use("time"))
        from = toInternal(context, use->arguments.front(), ArgumentType::time);
    return Value(keyTime(times, which, from).value_or(scene.time()) /
                 engine::secondsPer(sceneOf(context).units().time));
}

CommandSpec findKeyframeCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = plugFlags();
    flags.insert(flags.end(), {valueFlag("w", "which", A::string, "next, previous, first or last"),
                               valueFlag("t", "time", A::time, "seen from this time instead of now"),
                               switchFlag("c", "curve", "the curves instead of a time")});
    return makeCommand("findKeyframe", "Tells the time of a key", std::move(flags), names(), findKeyframe);
}

} // namespace

void registerKeyframeCommands(CommandTable& table)
{
    table.add({setKeyframeCommand(), keyframeCommand(), keyTangentCommand(), cutKeyCommand(),
               setInfinityCommand(), findKeyframeCommand()});
}

} // namespace tvxhost::mel
