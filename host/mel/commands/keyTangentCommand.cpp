// keyTangent: the tangents of keys.
#include "keyframeCommands.h"
#include "keysets.h"

#include <string_view>

namespace tvxhost::mel {

using engine::AnimCurveKeys;
using engine::AnimKey;
using engine::KeySide;
using engine::Node;
using engine::TangentHandle;
using engine::TangentVector;

namespace {

struct KindFlag
{
    const char* shortName;
    const char* longName;
    KeySide side;
};

constexpr KindFlag kKindFlags[] = {{"itt", "inTangentType", KeySide::in},
                                   {"ott", "outTangentType", KeySide::out}};

/// A number of a handle (angle, length) or of a direction (x, y).
struct NumberFlag
{
    const char* shortName;
    const char* longName;
    KeySide side;
    double TangentHandle::*handle;
    double TangentVector::*direction;
    ArgumentType type;
};

constexpr NumberFlag kNumberFlags[] = {
    {"ia", "inAngle", KeySide::in, &TangentHandle::angle, nullptr, ArgumentType::angle},
    {"oa", "outAngle", KeySide::out, &TangentHandle::angle, nullptr, ArgumentType::angle},
    {"iw", "inWeight", KeySide::in, &TangentHandle::weight, nullptr, ArgumentType::number},
    {"ow", "outWeight", KeySide::out, &TangentHandle::weight, nullptr, ArgumentType::number},
    {"ix", "ix", KeySide::in, nullptr, &TangentVector::x, ArgumentType::number},
    {"iy", "iy", KeySide::in, nullptr, &TangentVector::y, ArgumentType::number},
    {"ox", "ox", KeySide::out, nullptr, &TangentVector::x, ArgumentType::number},
    {"oy", "oy", KeySide::out, nullptr, &TangentVector::y, ArgumentType::number},
};

struct LockFlag
{
    const char* shortName;
    const char* longName;
    bool AnimKey::*lock;
    const char* help;
};

constexpr LockFlag kLockFlags[] = {
    {"l", "lock", &AnimKey::tangentsLocked, "whether both tangents turn together"},
    {"wl", "weightLock", &AnimKey::weightsLocked, "whether both have one length"},
};

double uiPerInternal(const CommandContext& context, ArgumentType type)
{
    return type == ArgumentType::angle ? 1.0 / engine::radiansPer(sceneOf(context).units().angle) : 1.0;
}

double numberOf(const Node& curve, const AnimCurveKeys& keys, std::size_t index, const NumberFlag& flag)
{
    if (flag.handle)
        return engine::handleOf(curve, keys, index, flag.side).*flag.handle;
    return keys.tangent(index, flag.side).*flag.direction;
}

void setNumber(const Node& curve, AnimCurveKeys& keys, std::size_t index, const NumberFlag& flag,
               double number)
{
    if (flag.handle) {
        TangentHandle handle = engine::handleOf(curve, keys, index, flag.side);
        handle.*flag.handle = number;
        keys.setTangent(index, flag.side, engine::directionOf(curve, handle, keys.isWeighted));
        return;
    }
    TangentVector direction = keys.tangent(index, flag.side);
    direction.*flag.direction = number;
    keys.setTangent(index, flag.side, direction);
}

// Asking

/// Gathers one answer for each chosen key and each of the rows whose flag was given.
template <class Rows, class Answers, class Ask>
bool gather(const CommandContext& context, const ParsedCommand& call, const Rows& rows, Answers& answers,
            Ask ask)
{
    bool isAsked = false;
    for (const auto& row : rows)
        isAsked = isAsked || call.has(row.longName);
    if (!isAsked)
        return false;
    const KeyChoice choice(context, call);
    for (Node* curve : curvesOf(context, call)) {
        const AnimCurveKeys keys = engine::readCurve(*curve);
        for (const std::size_t index : choice.of(*curve, keys))
            for (const auto& row : rows)
                if (call.has(row.longName))
                    answers.push_back(ask(*curve, keys, index, row));
    }
    return true;
}

Value query(const CommandContext& context, const ParsedCommand& call)
{
    Value::Strings kinds;
    if (gather(context, call, kKindFlags, kinds,
               [](const Node&, const AnimCurveKeys& keys, std::size_t index, const KindFlag& flag) {
                   return nameOf(keys.keys[index].side(flag.side).kind);
               }))
        return Value(std::move(kinds));
    Value::Numbers numbers;
    if (gather(context, call, kNumberFlags, numbers,
               [&](const Node& curve, const AnimCurveKeys& keys, std::size_t index, const NumberFlag& flag) {
                   return numberOf(curve, keys, index, flag) * uiPerInternal(context, flag.type);
               }))
        return Value(std::move(numbers));
    Value::Integers locks;
    if (gather(context, call, kLockFlags, locks,
               [](const Node&, const AnimCurveKeys& keys, std::size_t index, const LockFlag& flag) {
                   return keys.keys[index].*flag.lock ? 1 : 0;
               }))
        return Value(std::move(locks));
    if (!call.has("weightedTangents"))
        context.fail("keyTangent: nothing was asked");
    for (Node* curve : curvesOf(context, call))
        locks.push_back(engine::readCurve(*curve).isWeighted ? 1 : 0);
    return Value(std::move(locks));
}

// Changing

/// Locks first, so that they hold for what is turned.
void changeKey(const CommandContext& context, const ParsedCommand& call, const Node& curve,
               AnimCurveKeys& keys, std::size_t index)
{
    for (const LockFlag& flag : kLockFlags)
        if (call.has(flag.longName))
            keys.keys[index].*flag.lock = call.boolean(flag.longName);
    for (const KindFlag& flag : kKindFlags)
        if (call.has(flag.longName))
            keys.setKind(index, flag.side, tangentNamed(context, call.string(flag.longName)));
    for (const NumberFlag& flag : kNumberFlags)
        if (const FlagUse* use = call.use(flag.longName)) {
            const double given = flag.type == ArgumentType::angle
                                     ? toInternal(context, use->arguments.front(), flag.type)
                                     : use->arguments.front().toNumber();
            const double old = call.has("relative") ? numberOf(curve, keys, index, flag) : 0.0;
            setNumber(curve, keys, index, flag, old + given);
        }
}

Value keyTangent(CommandContext& context, const ParsedCommand& call)
{
    if (call.queries())
        return query(context, call);
    const KeyChoice choice(context, call);
    int count = 0;
    for (Node* curve : curvesOf(context, call)) {
        AnimCurveKeys keys = engine::readCurve(*curve);
        if (call.has("weightedTangents"))
            keys.setWeighted(call.boolean("weightedTangents"));
        const std::vector<std::size_t> chosen = choice.of(*curve, keys);
        for (const std::size_t index : chosen)
            changeKey(context, call, *curve, keys, index);
        require(context, engine::writeCurve(*curve, keys));
        count += chosen.empty() ? 0 : 1;
    }
    return Value(count);
}

} // namespace

CommandSpec keyTangentCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = keysetFlags();
    for (const KindFlag& flag : kKindFlags)
        flags.push_back(valueFlag(flag.shortName, flag.longName, A::string,
                                  "spline linear flat step stepnext clamped plateau auto fixed slow fast",
                                  kAllModes));
    for (const NumberFlag& flag : kNumberFlags)
        flags.push_back(valueFlag(flag.shortName, flag.longName, flag.type,
                                  flag.direction ? "the direction in internal units"
                                                 : "the angle or the length of the handle",
                                  kAllModes));
    for (const LockFlag& flag : kLockFlags)
        flags.push_back(valueFlag(flag.shortName, flag.longName, A::boolean, flag.help, kAllModes));
    flags.insert(flags.end(),
                 {valueFlag("wt", "weightedTangents", A::boolean, "whether handles have lengths", kAllModes),
                  switchFlag("a", "absolute", "numbers are the new ones", kCreateEdit),
                  switchFlag("r", "relative", "numbers are added", kCreateEdit)});
    return makeCommand("keyTangent", "Sets or tells the tangents of keys", std::move(flags), names(),
                       keyTangent, kAllModes);
}

} // namespace tvxhost::mel
