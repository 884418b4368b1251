// pasteKey: what is on the clipboard, put onto other objects, attributes and curves.
#include "keyframeCommands.h"
#include "keysets.h"

#include "engine/number.h"

#include <algorithm>
#include <cmath>

namespace tvxhost::mel {

using engine::AnimCurveKeys;
using engine::DagNode;
using engine::Node;
using engine::Plug;
using engine::SelectionItem;

namespace {

struct PasteOption
{
    const char* name;
    PasteRoom room;
    PasteFitting fitting;
};

constexpr PasteOption kPasteOptions[] = {
    {"insert", PasteRoom::insert, PasteFitting::none},
    {"replace", PasteRoom::replace, PasteFitting::none},
    {"replaceCompletely", PasteRoom::replaceCompletely, PasteFitting::none},
    {"merge", PasteRoom::merge, PasteFitting::none},
    {"scaleInsert", PasteRoom::insert, PasteFitting::scale},
    {"scaleReplace", PasteRoom::replace, PasteFitting::scale},
    {"scaleMerge", PasteRoom::merge, PasteFitting::scale},
    {"fitInsert", PasteRoom::insert, PasteFitting::fit},
    {"fitReplace", PasteRoom::replace, PasteFitting::fit},
    {"fitMerge", PasteRoom::merge, PasteFitting::fit},
};

const PasteOption& pasteOptionOf(const CommandContext& context, const ParsedCommand& call)
{
    const std::string name = call.string("option", "insert");
    for (const PasteOption& option : kPasteOptions)
        if (name == option.name)
            return option;
    context.fail("pasteKey: '" + name + "' is no value of -option");
}

/// What the flags say about every paste of a call.
struct PasteCall
{
    const CommandContext& context;
    KeyChoice choice;
    const PasteOption& option;
    int copies = 1;
    bool connects = false;
    double timeOffset = 0.0;   ///< seconds
    double numberOffset = 0.0; ///< on curves over plain numbers
    double valueOffset = 0.0;  ///< UI units
};

PasteCall pasteCallOf(const CommandContext& context, const ParsedCommand& call)
{
    PasteCall paste = {context, KeyChoice(context, call), pasteOptionOf(context, call)};
    paste.copies = call.integer("copies", 1);
    if (paste.copies < 1)
        context.fail("pasteKey: -copies must be 1 or more");
    if (paste.copies > 1 && paste.option.fitting != PasteFitting::none)
        context.fail(std::string("pasteKey: -copies of '") + paste.option.name +
                     "' is not implemented: there is one range");
    paste.connects = call.boolean("connect");
    if (const FlagUse* use = call.use("timeOffset"))
        paste.timeOffset = toInternal(context, use->arguments.front(), ArgumentType::time);
    paste.numberOffset = call.number("floatOffset");
    paste.valueOffset = call.number("valueOffset");
    return paste;
}

/// Where a piece goes: where -time (-float) says, or where it was copied from.
KeySpan rangeOf(const PasteCall& call, const CopiedCurve& piece)
{
    const double start = piece.start();
    const std::optional<KeySpan> named = call.choice.span(piece.isTimed);
    if (call.option.fitting != PasteFitting::none && (!named || !named->isFinite() || named->length() <= 0.0))
        call.context.fail(std::string("pasteKey: -option ") + call.option.name +
                          " needs a range of times, as -time \"3:10\"");
    if (!named)
        return {start, start + piece.length()};
    const double low = std::isfinite(named->low) ? named->low : start;
    return {low, std::isfinite(named->high) ? named->high : low + piece.length()};
}

// Pasting onto one curve

/// The curve that is to take a piece; null when the plug can have none, or has one of another sort.
Node* curveFor(const PasteCall& call, const Plug& plug, const CopiedCurve& piece)
{
    if (Node* curve = engine::curveFeeding(plug))
        return engine::isTimed(*curve) == piece.isTimed ? curve : nullptr;
    if (engine::isLocked(plug) || engine::isFedAnywhere(plug))
        return nullptr;
    return valueOf(call.context, engine::makeCurveFor(plug, piece.isTimed));
}

/// `former` is what the attribute was before it had a curve.
void pasteOnto(const PasteCall& call, Node& curve, const CopiedCurve& piece, const KeySpan& range,
               double former)
{
    AnimCurveKeys target = engine::readCurve(curve);
    AnimCurveKeys keys = piece.keys;
    if (target.keys.empty())
        target.isWeighted = keys.isWeighted;
    keys.setWeighted(target.isWeighted);
    const double valuePerUi = engine::valuePerUi(curve);
    scaleValues(keys, valuePerUi / piece.valuePerUi);
    Paste paste;
    paste.room = call.option.room;
    paste.fitting = call.option.fitting;
    paste.start = range.low;
    paste.end = range.high;
    paste.includesEnd = call.choice.includesUpper();
    paste.inputOffset = piece.isTimed ? call.timeOffset : call.numberOffset;
    for (int copy = 0; copy < call.copies; ++copy) {
        paste.valueOffset = call.valueOffset * valuePerUi;
        if (call.connects) {
            const double there = target.keys.empty() ? former : target.valueAt(paste.start);
            paste.valueOffset += there - keys.keys.front().value;
        }
        paste.start += pasteKeys(target, keys, paste);
        // The other copies follow the first.
        if (paste.room != PasteRoom::insert)
            paste.room = PasteRoom::merge;
    }
    require(call.context, engine::writeCurve(curve, target));
}

int pasteOnPlug(const PasteCall& call, const Plug& plug, const CopiedCurve& piece)
{
    // Where there is no range to paste into, no curve is made.
    const KeySpan range = rangeOf(call, piece);
    const double former = engine::readNumber(plug).value.asReal();
    Node* curve = curveFor(call, plug, piece);
    if (!curve)
        return 0;
    pasteOnto(call, *curve, piece, range, former);
    return 1;
}

// Finding what goes where

Node* follow(Node& from, const std::vector<int>& way)
{
    Node* node = &from;
    for (const int step : way) {
        const DagNode* dag = node->asDag();
        if (!dag)
            return nullptr;
        const auto& next = step == CopiedCurve::kUp ? dag->parents() : dag->children();
        const std::size_t place = step == CopiedCurve::kUp ? 0 : static_cast<std::size_t>(step);
        if (place >= next.size())
            return nullptr;
        node = next[place];
    }
    return node;
}

bool takesKeys(const engine::Expected<Plug>& found)
{
    return found && !found.value.isArray() && !found.value.isCompound() &&
           engine::isNumberLeaf(*found.value.attribute());
}

/// Each piece onto the attribute of the same name.
int pasteByName(const PasteCall& call, Node& node, const CopiedObject& object)
{
    int count = 0;
    for (const CopiedCurve& piece : object.curves)
        if (Node* holder = follow(node, piece.way))
            if (const auto found = holder->findPlug(piece.attribute); takesKeys(found))
                count += pasteOnPlug(call, found.value, piece);
    return count;
}

/// The piece of an attribute: the only one there is, or the one of that name.
const CopiedCurve* pieceFor(const CopiedObject& object, const Plug& plug)
{
    if (object.curves.size() == 1)
        return &object.curves.front();
    engine::PlugNameStyle style;
    style.withNode = false;
    const std::string name = plug.name(style);
    const auto found = std::find_if(object.curves.begin(), object.curves.end(),
                                    [&](const CopiedCurve& piece) { return piece.attribute == name; });
    return found == object.curves.end() ? nullptr : &*found;
}

int pasteOnPlugs(const PasteCall& call, const std::vector<Plug>& plugs, const CopiedObject& object)
{
    int count = 0;
    for (const Plug& plug : plugs)
        if (const CopiedCurve* piece = pieceFor(object, plug))
            count += pasteOnPlug(call, plug, *piece);
    return count;
}

int pasteOnCurve(const PasteCall& call, Node& curve, const CopiedObject& object)
{
    const std::vector<Plug> fed = engine::fedBy(curve);
    const CopiedCurve* piece = object.curves.size() == 1 ? &object.curves.front()
                               : fed.empty()             ? nullptr
                                                         : pieceFor(object, fed.front());
    if (!piece || engine::isTimed(curve) != piece->isTimed)
        return 0;
    pasteOnto(call, curve, *piece, rangeOf(call, *piece), 0.0);
    return 1;
}

/// What the clipboard holds for a target: its only object, the one at the same place, or of the same name.
const CopiedObject* objectFor(const KeyClipboard& clipboard, const SelectionItem& item, std::size_t place,
                              bool byName)
{
    if (byName) {
        const auto found = std::find_if(clipboard.begin(), clipboard.end(), [&](const CopiedObject& object) {
            return object.name == item.node->name();
        });
        return found == clipboard.end() ? nullptr : &*found;
    }
    if (clipboard.size() == 1)
        return &clipboard.front();
    return place < clipboard.size() ? &clipboard[place] : nullptr;
}

int pasteOnItem(const PasteCall& call, const ParsedCommand& parsed, const SelectionItem& item,
                const CopiedObject& object)
{
    if (item.plug.isNull() && engine::isAnimCurve(*item.node))
        return pasteOnCurve(call, *item.node, object);
    if (!item.plug.isNull() || parsed.has("attribute"))
        return pasteOnPlugs(call, namedPlugs(item, parsed), object);
    return pasteByName(call, *item.node, object);
}

Value pasteKey(CommandContext& context, const ParsedCommand& call)
{
    requireOwnClipboard(context, call);
    const KeyClipboard& clipboard = sessionOf(context).keyClipboard;
    if (clipboard.empty())
        context.fail("pasteKey: there is nothing on the clipboard");
    const PasteCall paste = pasteCallOf(context, call);
    const bool byName = call.boolean("matchByName");
    int count = 0;
    std::size_t place = 0;
    for (const SelectionItem& item : itemsOrSelection(context, call.names()))
        if (const CopiedObject* object = objectFor(clipboard, item, place++, byName))
            count += pasteOnItem(paste, call, item, *object);
    return Value(count);
}

} // namespace

CommandSpec pasteKeyCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        valueFlag("at", "attribute", A::string, "onto these attributes", kCreate | kMultiUse),
        valueFlag("t", "time", A::any, "from this time on, or into a range a:b", kCreate | kMultiUse),
        valueFlag("f", "float", A::any, "the same on curves over plain numbers", kCreate | kMultiUse),
        valueFlag("iub", "includeUpperBound", A::boolean,
                  "whether a key at the end of the range is replaced"),
        valueFlag("o", "option", A::string,
                  "insert, replace, replaceCompletely, merge; or scale or fit before insert, replace, merge"),
        valueFlag("cp", "copies", A::integer, "how many times, one after the other"),
        valueFlag("c", "connect", A::boolean, "values go on from where the target is"),
        valueFlag("to", "timeOffset", A::time, "added to the times"),
        valueFlag("fo", "floatOffset", A::number, "added to the places on curves over plain numbers"),
        valueFlag("vo", "valueOffset", A::number, "added to the values"),
        valueFlag("mbn", "matchByName", A::boolean, "each object gets what was copied of its namesake"),
        clipboardFlag(),
        animationFlag(),
        refusedFlag("index", "index", "say -time"),
        refusedFlag("al", "animLayer", "there are no layers of animation"),
    };
    return makeCommand("pasteKey", "Puts the keys of the clipboard onto objects, attributes and curves",
                       std::move(flags), names(), pasteKey);
}

} // namespace tvxhost::mel
