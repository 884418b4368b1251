// setKeyframe: keys on plugs, with the curves that hold them.
#include "keyframeCommands.h"
#include "keysets.h"

#include "scene/uiUnits.h"

namespace tvxhost::mel {

using engine::AnimKey;
using engine::Node;
using engine::Plug;
using engine::TangentKind;

namespace {

/// What each key is to be.
struct NewKeys
{
    std::vector<double> times;   ///< seconds
    std::vector<double> numbers; ///< for curves over plain numbers
    std::optional<double> value; ///< in UI units
    std::optional<TangentKind> in;
    std::optional<TangentKind> out;
    std::optional<bool> isBreakdown;
    bool inserts = false;
    bool onlyAnimated = false;
};

NewKeys newKeys(const CommandContext& context, const ParsedCommand& call)
{
    NewKeys keys;
    for (const FlagUse* use : call.uses("time"))
        keys.times.push_back(toInternal(context, use->arguments.front(), ArgumentType::time));
    for (const FlagUse* use : call.uses("float"))
        keys.numbers.push_back(use->arguments.front().toNumber());
    if (keys.times.empty())
        keys.times.push_back(sceneOf(context).time());
    if (call.has("value"))
        keys.value = call.number("value");
    if (call.has("inTangentType"))
        keys.in = tangentNamed(context, call.string("inTangentType"));
    if (call.has("outTangentType"))
        keys.out = tangentNamed(context, call.string("outTangentType"));
    if (call.has("breakdown"))
        keys.isBreakdown = call.boolean("breakdown");
    keys.inserts = call.has("insert");
    keys.onlyAnimated = call.boolean("animated") || keys.inserts;
    return keys;
}

/// What switches does not glide: it holds each value up to the next key.
bool switches(const Plug& plug)
{
    const engine::Attribute& attribute = *plug.attribute();
    return attribute.kind == engine::AttributeKind::enumeration ||
           attribute.number == engine::NumberKind::boolean;
}

AnimKey freshKey(const Plug& plug)
{
    AnimKey key;
    if (switches(plug)) {
        key.in.kind = TangentKind::spline;
        key.out.kind = TangentKind::step;
    }
    return key;
}

/// The curve that is to hold a plug's keys; null when there can be none.
Node* curveToKey(const CommandContext& context, const Plug& plug, bool onlyAnimated)
{
    if (Node* curve = engine::curveFeeding(plug))
        return curve;
    if (onlyAnimated || engine::isLocked(plug) || engine::isFedAnywhere(plug))
        return nullptr;
    return valueOf(context, engine::makeCurveFor(plug));
}

int setKeys(const CommandContext& context, const Plug& plug, const NewKeys& wanted)
{
    const double current = engine::readNumber(plug).value.asReal();
    Node* curve = curveToKey(context, plug, wanted.onlyAnimated);
    if (!curve)
        return 0;
    engine::AnimCurveKeys keys = engine::readCurve(*curve);
    if (keys.keys.empty())
        keys.isWeighted = false;
    const double value =
        wanted.value ? *wanted.value * scene::internalPerUi(*plug.attribute(), sceneOf(context).units())
                     : current;
    const std::vector<double>& places = engine::isTimed(*curve) ? wanted.times : wanted.numbers;
    for (const double at : places) {
        std::size_t index = 0;
        if (wanted.inserts) {
            index = keys.insertOnCurve(at);
        } else {
            const auto there = keys.find(at);
            AnimKey key = there ? keys.keys[*there] : freshKey(plug);
            if (!there)
                key.at = at;
            key.value = value;
            index = keys.put(key);
        }
        if (wanted.in)
            keys.setKind(index, engine::KeySide::in, *wanted.in);
        if (wanted.out)
            keys.setKind(index, engine::KeySide::out, *wanted.out);
        if (wanted.isBreakdown)
            keys.keys[index].isBreakdown = *wanted.isBreakdown;
    }
    require(context, engine::writeCurve(*curve, keys));
    return static_cast<int>(places.size());
}

Value setKeyframe(CommandContext& context, const ParsedCommand& call)
{
    const NewKeys wanted = newKeys(context, call);
    int count = 0;
    const bool onlyKeyable = call.boolean("respectKeyable");
    for (const Plug& plug : plugsToKey(context, call))
        if (!onlyKeyable || isKeyable(plug))
            count += setKeys(context, plug, wanted);
    return Value(count);
}

} // namespace

CommandSpec setKeyframeCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = plugFlags();
    flags.insert(
        flags.end(),
        {valueFlag("t", "time", A::time, "when; now unless it is said", kCreate | kMultiUse),
         valueFlag("f", "float", A::number, "where, on curves over plain numbers", kCreate | kMultiUse),
         valueFlag("v", "value", A::number, "the value; the attribute's unless it is said"),
         valueFlag("itt", "inTangentType", A::string, "how the curve enters the key"),
         valueFlag("ott", "outTangentType", A::string, "how the curve leaves the key"),
         valueFlag("bd", "breakdown", A::boolean, "whether the key is a breakdown"),
         valueFlag("an", "animated", A::boolean, "only attributes that have keys already"),
         switchFlag("i", "insert", "on the curve, whose shape stays"),
         valueFlag("rk", "respectKeyable", A::boolean, "with -attribute: only those that are keyable"),
         refusedFlag("al", "animLayer", "there are no layers of animation"),
         refusedFlag("id", "identity", "there are no layers of animation"),
         refusedFlag("nr", "noResolve", "there are no layers of animation"),
         refusedFlag("c", "clip", "there are no clips"),
         refusedFlag("ib", "insertBlend", "what something else drives gets no keys"),
         refusedFlag("mr", "minimizeRotation", "angles are independent"),
         refusedFlag("pcs", "preserveCurveShape", "say -insert"),
         refusedFlag("dd", "dirtyDG", "what hangs on a curve is always told"),
         refusedFlag("ucl", "useCurrentLockedWeights", "a key that is replaced keeps its locks")});
    return makeCommand("setKeyframe", "Sets keys on attributes", std::move(flags), names(), setKeyframe);
}

} // namespace tvxhost::mel
