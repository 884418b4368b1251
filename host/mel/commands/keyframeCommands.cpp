// Curves: finding keys on them, and what they are outside their keys.
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
    flags.insert(flags.end(),
                 {animationFlag(), valueFlag("w", "which", A::string, "next, previous, first or last"),
                  valueFlag("t", "time", A::time, "seen from this time instead of now"),
                  switchFlag("c", "curve", "the curves instead of a time")});
    return makeCommand("findKeyframe", "Tells the time of a key", std::move(flags), names(), findKeyframe);
}

} // namespace

void registerKeyframeCommands(CommandTable& table)
{
    table.add({setKeyframeCommand(), keyframeCommand(), keyTangentCommand(), copyKeyCommand(),
               cutKeyCommand(), pasteKeyCommand(), setInfinityCommand(), findKeyframeCommand()});
}

} // namespace tvxhost::mel
