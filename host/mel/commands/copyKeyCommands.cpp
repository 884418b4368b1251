// copyKey and cutKey: pieces of curves for the clipboard, and keys that go.
#include "keyframeCommands.h"
#include "keysets.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace tvxhost::mel {

using engine::AnimCurveKeys;
using engine::AnimKey;
using engine::DagNode;
using engine::Node;
using engine::Plug;
using engine::SelectionItem;

namespace {

constexpr double kSame = AnimCurveKeys::kSameInput;

// What is copied

/// The way down from a node to one below it; none when it is not.
std::optional<std::vector<int>> wayDown(const DagNode& from, const DagNode& to)
{
    std::vector<int> way;
    const DagNode* node = &to;
    while (node != &from) {
        if (node->parents().empty())
            return std::nullopt;
        const DagNode* parent = node->parents().front();
        const auto& children = parent->children();
        way.push_back(static_cast<int>(std::find(children.begin(), children.end(), node) - children.begin()));
        node = parent;
    }
    std::reverse(way.begin(), way.end());
    return way;
}

std::vector<int> wayTo(const Node& from, const Node& to)
{
    const DagNode* base = from.asDag();
    const DagNode* goal = to.asDag();
    std::vector<int> way;
    while (base && goal) {
        if (const auto down = wayDown(*base, *goal)) {
            way.insert(way.end(), down->begin(), down->end());
            return way;
        }
        base = base->parents().empty() ? nullptr : base->parents().front();
        way.push_back(CopiedCurve::kUp);
    }
    return {};
}

/// What a curve animates: an attribute of the named object rather than one of others.
Plug animatedBy(Node& curve, const Node& object)
{
    const std::vector<Plug> fed = engine::fedBy(curve);
    const auto own =
        std::find_if(fed.begin(), fed.end(), [&](const Plug& plug) { return plug.node() == &object; });
    return own != fed.end() ? *own : fed.empty() ? Plug() : fed.front();
}

KeySpan spanOf(const std::vector<std::size_t>& chosen, const AnimCurveKeys& keys)
{
    return {keys.keys[chosen.front()].at, keys.keys[chosen.back()].at};
}

/// The part of a curve that the flags name, or that the chosen keys cover.
std::optional<KeySpan> spanOf(const KeyChoice& choice, const Node& curve, const AnimCurveKeys& keys)
{
    std::optional<KeySpan> span = choice.span(engine::isTimed(curve));
    if (!span) {
        const std::vector<std::size_t> chosen = choice.of(curve, keys);
        return chosen.empty() ? span : spanOf(chosen, keys);
    }
    if (!std::isfinite(span->low))
        span->low = keys.keys.front().at;
    if (!std::isfinite(span->high))
        span->high = keys.keys.back().at;
    return span;
}

/// The keys of a span with a new one at each of its ends.
AnimCurveKeys shapeIn(const KeySpan& span, AnimCurveKeys keys)
{
    keys.insertOnCurve(span.low);
    keys.insertOnCurve(span.high);
    const auto isOutside = [&](const AnimKey& key) {
        return key.at < span.low - kSame || key.at > span.high + kSame;
    };
    keys.keys.erase(std::remove_if(keys.keys.begin(), keys.keys.end(), isOutside), keys.keys.end());
    return keys;
}

AnimCurveKeys onlyChosen(const KeyChoice& choice, const Node& curve, const AnimCurveKeys& keys)
{
    AnimCurveKeys kept = keys;
    kept.keys.clear();
    for (const std::size_t index : choice.of(curve, keys))
        kept.keys.push_back(keys.keys[index]);
    return kept;
}

/// What goes on the clipboard of a curve; perhaps nothing.
AnimCurveKeys pieceOf(const KeyChoice& choice, const Node& curve, const AnimCurveKeys& keys, bool withShape)
{
    if (!withShape || keys.keys.empty())
        return onlyChosen(choice, curve, keys);
    const std::optional<KeySpan> span = spanOf(choice, curve, keys);
    return span ? shapeIn(*span, keys) : onlyChosen(choice, curve, keys);
}

CopiedCurve copyOf(const KeyChoice& choice, Node& curve, const Node& object, bool withShape)
{
    CopiedCurve copied;
    copied.isTimed = engine::isTimed(curve);
    copied.valuePerUi = engine::valuePerUi(curve);
    if (const Plug plug = animatedBy(curve, object); !plug.isNull()) {
        engine::PlugNameStyle style;
        style.withNode = false;
        copied.attribute = plug.name(style);
        copied.way = wayTo(object, *plug.node());
    }
    copied.keys = pieceOf(choice, curve, engine::readCurve(curve), withShape);
    return copied;
}

KeyClipboard copiedKeys(const CommandContext& context, const ParsedCommand& call, bool withShape)
{
    const KeyChoice choice(context, call);
    KeyClipboard copied;
    const Node* last = nullptr;
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        CopiedObject object;
        Node& node = item.plug.isNull() ? *item.node : *item.plug.node();
        object.name = node.name();
        for (Node* curve : curvesOf(context, call, item))
            if (CopiedCurve piece = copyOf(choice, *curve, node, withShape); !piece.keys.keys.empty())
                object.curves.push_back(std::move(piece));
        if (object.curves.empty())
            continue;
        // Several attributes of one node that are named one by one are one object.
        if (std::exchange(last, &node) == &node)
            std::move(object.curves.begin(), object.curves.end(), std::back_inserter(copied.back().curves));
        else
            copied.push_back(std::move(object));
    }
    return copied;
}

int curveCount(const KeyClipboard& clipboard)
{
    std::size_t count = 0;
    for (const CopiedObject& object : clipboard)
        count += object.curves.size();
    return static_cast<int>(count);
}

/// What was copied replaces what is there, unless it is nothing.
void keepOnClipboard(const CommandContext& context, KeyClipboard copied)
{
    KeyClipboard& clipboard = sessionOf(context).keyClipboard;
    if (copied.empty())
        return;
    sceneOf(context).journal().keep(clipboard);
    clipboard = std::move(copied);
}

Value copyKey(CommandContext& context, const ParsedCommand& call)
{
    requireOwnClipboard(context, call);
    const std::string option = call.string("option", "keys");
    if (option != "keys" && option != "curve")
        context.fail("copyKey: -option is keys or curve, not '" + option + "'");
    KeyClipboard copied = copiedKeys(context, call, option == "curve");
    const int count = curveCount(copied);
    keepOnClipboard(context, std::move(copied));
    return Value(count);
}

// What is cut

/// What remains of a curve.
struct CutOption
{
    const char* name;
    bool withShape; ///< the piece reaches to the ends of the range, not only to its keys
    bool keepsEnds; ///< the curve gets keys at these ends
    bool closesUp;  ///< what is behind, the end included, moves to where the piece began
};

constexpr CutOption kCutOptions[] = {
    {"keys", false, false, false},      {"keysCollapse", false, false, true}, {"curve", true, true, false},
    {"curveConnect", true, true, true}, {"areaCollapse", true, false, true},
};

const CutOption& cutOptionOf(const CommandContext& context, const ParsedCommand& call)
{
    const std::string name = call.string("option", "keys");
    for (const CutOption& option : kCutOptions)
        if (name == option.name)
            return option;
    context.fail("cutKey: -option is keys, keysCollapse, curve, curveConnect or areaCollapse here, not '" +
                 name + "'");
}

void removeKeys(AnimCurveKeys& keys, const std::vector<std::size_t>& chosen)
{
    for (auto index = chosen.rbegin(); index != chosen.rend(); ++index)
        keys.keys.erase(keys.keys.begin() + static_cast<std::ptrdiff_t>(*index));
}

/// Moves what is behind a span to where it begins.
void closeUp(AnimCurveKeys& keys, const KeySpan& span)
{
    std::vector<AnimKey> behind;
    const auto isBehind = [&](const AnimKey& key) { return key.at >= span.high - kSame; };
    std::copy_if(keys.keys.begin(), keys.keys.end(), std::back_inserter(behind), isBehind);
    keys.keys.erase(std::remove_if(keys.keys.begin(), keys.keys.end(), isBehind), keys.keys.end());
    for (AnimKey& key : behind) {
        key.at -= span.length();
        keys.put(key);
    }
}

/// False when the flags choose nothing of the curve.
bool cutFrom(const KeyChoice& choice, const Node& curve, AnimCurveKeys& keys, const CutOption& option)
{
    const std::vector<std::size_t> chosen = choice.of(curve, keys);
    if (keys.keys.empty() || (chosen.empty() && !option.keepsEnds))
        return false;
    const std::optional<KeySpan> span = option.withShape ? spanOf(choice, curve, keys) : spanOf(chosen, keys);
    if (!span)
        return false;
    const AnimCurveKeys ends = shapeIn(*span, keys);
    removeKeys(keys, chosen);
    if (option.keepsEnds) {
        keys.put(ends.keys.front());
        keys.put(ends.keys.back());
    }
    if (option.closesUp)
        closeUp(keys, *span);
    return true;
}

Value cutKey(CommandContext& context, const ParsedCommand& call)
{
    const CutOption& option = cutOptionOf(context, call);
    const KeyChoice choice(context, call);
    const std::vector<Node*> curves = curvesOf(context, call);
    if (!call.has("clear"))
        keepOnClipboard(context, copiedKeys(context, call, option.withShape));
    int count = 0;
    for (Node* curve : curves) {
        AnimCurveKeys keys = engine::readCurve(*curve);
        if (!cutFrom(choice, *curve, keys, option))
            continue;
        // A curve without keys has nothing to feed.
        require(context,
                keys.keys.empty() ? sceneOf(context).deleteNode(*curve) : engine::writeCurve(*curve, keys));
        ++count;
    }
    return Value(count);
}

} // namespace

CommandSpec copyKeyCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = keysetFlags();
    flags.insert(
        flags.end(),
        {valueFlag("o", "option", A::string, "keys, or curve: with the shape up to the range's ends"),
         clipboardFlag(), refusedFlag("al", "animLayer", "there are no layers of animation"),
         refusedFlag("fea", "forceIndependentEulerAngles", "angles are independent")});
    return makeCommand("copyKey", "Puts keys on the clipboard", std::move(flags), names(), copyKey);
}

CommandSpec cutKeyCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = keysetFlags();
    flags.insert(flags.end(), {switchFlag("cl", "clear", "the keys are not put on the clipboard"),
                               valueFlag("o", "option", A::string,
                                         "keys, keysCollapse, curve, curveConnect or areaCollapse"),
                               refusedFlag("sl", "selectKey", "keys cannot be selected here")});
    return makeCommand("cutKey",
                       "Puts keys on the clipboard and removes them, and curves that have none left",
                       std::move(flags), names(), cutKey);
}

} // namespace tvxhost::mel
