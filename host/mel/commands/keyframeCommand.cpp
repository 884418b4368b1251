// keyframe: moves and changes keys, and tells about them.
#include "keyframeCommands.h"
#include "keysets.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::AnimCurveKeys;
using engine::AnimKey;
using engine::Node;

namespace {

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

/// What becomes of the other keys when keys are moved.
enum class Passing
{
    over,   ///< they stay; one that is met goes
    insert, ///< those in the way are moved by as much
    move    ///< none of them may be passed
};

Passing passingOf(const CommandContext& context, const ParsedCommand& call)
{
    const std::string option = call.string("option", "over");
    if (option == "over")
        return Passing::over;
    if (option == "insert")
        return Passing::insert;
    if (option == "move")
        return Passing::move;
    context.fail("keyframe: -option is over, insert or move here, not '" + option + "'");
}

/// Makes room in the direction in which the chosen keys go.
void makeRoom(AnimCurveKeys& keys, const std::vector<std::size_t>& chosen, const Change& input)
{
    const double first = keys.keys[chosen.front()].at;
    const double last = keys.keys[chosen.back()].at;
    const double ahead = input.of(last) - last;
    const double back = input.of(first) - first;
    for (std::size_t i = 0; i < keys.keys.size(); ++i)
        if (ahead > 0.0 && i > chosen.back())
            keys.keys[i].at += ahead;
        else if (back < 0.0 && i < chosen.front())
            keys.keys[i].at += back;
}

bool passesAnother(const AnimCurveKeys& keys, const std::vector<std::size_t>& chosen, const Change& input)
{
    for (const std::size_t index : chosen)
        for (std::size_t i = 0; i < keys.keys.size(); ++i) {
            const double from = keys.keys[index].at;
            const double other = keys.keys[i].at;
            if (std::find(chosen.begin(), chosen.end(), i) == chosen.end() &&
                (other - from) * (other - input.of(from)) <= 0.0)
                return true;
        }
    return false;
}

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

    const Passing passing = passingOf(context, call);
    const KeyChoice choice(context, call);
    int count = 0;
    for (Node* curve : curvesOf(context, call)) {
        AnimCurveKeys keys = engine::readCurve(*curve);
        const std::vector<std::size_t> chosen = choice.of(*curve, keys);
        if (chosen.empty())
            continue;
        const Change& input = engine::isTimed(*curve) ? time : number;
        if (input.amount && passing == Passing::move && passesAnother(keys, chosen, input))
            context.fail("keyframe: a key of '" + curve->name() + "' would pass another one");
        if (input.amount && passing == Passing::insert)
            makeRoom(keys, chosen, input);
        changeKeys(*curve, keys, chosen, input, value, isBreakdown);
        require(context, engine::writeCurve(*curve, keys));
        ++count;
    }
    return Value(count);
}

} // namespace

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
         valueFlag("o", "option", A::string, "how moved keys pass others: over, insert or move", kCreateEdit),
         refusedFlag("sl", "selected", "keys cannot be selected here"),
         refusedFlag("lsl", "lastSelected", "keys cannot be selected here"),
         refusedFlag("abd", "adjustBreakdown", "breakdowns stay where they are"),
         refusedFlag("ct", "clipTime", "there are no clips"),
         refusedFlag("tds", "tickDrawSpecial", "there is no time line to draw"),
         switchFlag("kc", "keyframeCount", "how many keys there are", kQuery),
         switchFlag("iv", "indexValue", "the indices of the keys", kQuery),
         switchFlag("n", "name", "the curves", kQuery),
         switchFlag("ev", "eval", "the values of the curves at the times and numbers given", kQuery)});
    return makeCommand("keyframe", "Moves keys or tells about them", std::move(flags), names(), keyframe,
                       kAllModes);
}

} // namespace tvxhost::mel
