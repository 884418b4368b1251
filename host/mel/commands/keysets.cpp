// Keysets; see keysets.h.
#include "keysets.h"

#include "engine/number.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <string_view>

namespace tvxhost::mel {

using engine::AnimCurveKeys;
using engine::Attribute;
using engine::DagNode;
using engine::Node;
using engine::Plug;
using engine::SelectionItem;
using engine::TangentKind;

namespace {

constexpr unsigned kChooses = kAllModes | kQueryWithArguments;

struct NamedKind
{
    TangentKind kind;
    const char* name;
};

constexpr NamedKind kKinds[] = {
    {TangentKind::fixed, "fixed"},       {TangentKind::linear, "linear"},   {TangentKind::flat, "flat"},
    {TangentKind::step, "step"},         {TangentKind::slow, "slow"},       {TangentKind::fast, "fast"},
    {TangentKind::spline, "spline"},     {TangentKind::clamped, "clamped"}, {TangentKind::plateau, "plateau"},
    {TangentKind::stepNext, "stepnext"}, {TangentKind::automatic, "auto"},
};

void addOnce(std::vector<Node*>& nodes, Node* node)
{
    if (node && std::find(nodes.begin(), nodes.end(), node) == nodes.end())
        nodes.push_back(node);
}

void addBelow(std::vector<Node*>& nodes, const DagNode& node, bool withShapes)
{
    for (DagNode* child : node.children()) {
        if (withShapes || !child->isShape())
            addOnce(nodes, child);
        addBelow(nodes, *child, withShapes);
    }
}

/// What -hierarchy reaches from a node on: the nodes above it, below it, both or none.
std::vector<Node*> reached(const CommandContext& context, Node& node, const ParsedCommand& call)
{
    constexpr std::string_view kReaches[] = {"none", "above", "below", "both"};
    const std::string reach = call.string("hierarchy", "none");
    if (std::find(std::begin(kReaches), std::end(kReaches), reach) == std::end(kReaches))
        context.fail("Invalid value '" + reach + "' of -hierarchy");
    std::vector<Node*> nodes = {&node};
    const DagNode* dag = node.asDag();
    if (dag && (reach == "below" || reach == "both"))
        addBelow(nodes, *dag, call.boolean("shape", true));
    if (reach == "above" || reach == "both")
        while (dag && !dag->parents().empty() && !dag->parents().front()->isWorld()) {
            addOnce(nodes, dag->parents().front());
            dag = dag->parents().front();
        }
    return nodes;
}

/// The nodes that a node stands for: what -hierarchy reaches, and shapes unless they are not wanted.
std::vector<Node*> nodesFor(const CommandContext& context, Node& node, const ParsedCommand& call)
{
    std::vector<Node*> nodes;
    for (Node* each : reached(context, node, call)) {
        addOnce(nodes, each);
        if (const DagNode* dag = each->asDag(); dag && dag->isTransform() && call.boolean("shape", true))
            for (DagNode* child : dag->children())
                if (child->isShape())
                    addOnce(nodes, child);
    }
    return nodes;
}

bool isControlPoint(const Plug& plug)
{
    const std::string& name = plug.attribute()->topLevel()->longName;
    return name == "controlPoints" || name == "pnts";
}

void addLeaves(const Plug& plug, std::vector<Plug>& plugs)
{
    if (plug.isArray())
        return;
    if (!plug.isCompound()) {
        if (engine::isNumberLeaf(*plug.attribute()))
            plugs.push_back(plug);
        return;
    }
    for (std::size_t i = 0; i < plug.childCount(); ++i)
        addLeaves(plug.child(i), plugs);
}

std::vector<std::string> attributeNames(const ParsedCommand& call)
{
    std::vector<std::string> names;
    for (const FlagUse* use : call.uses("attribute"))
        names.push_back(use->arguments.front().toString());
    return names;
}

/// The leaves of the attributes of these names that the nodes have.
std::vector<Plug> plugsNamed(const std::vector<Node*>& nodes, const std::vector<std::string>& names)
{
    std::vector<Plug> plugs;
    for (Node* node : nodes)
        for (const std::string& name : names)
            if (const auto found = node->findPlug(name))
                addLeaves(found.value, plugs);
    return plugs;
}

std::vector<Plug> keyablePlugs(const std::vector<Node*>& nodes)
{
    std::vector<Plug> plugs;
    for (Node* node : nodes)
        for (Attribute* attribute : node->attributes()) {
            std::vector<Plug> leaves;
            addLeaves(Plug(*node, *attribute), leaves);
            std::copy_if(leaves.begin(), leaves.end(), std::back_inserter(plugs), isKeyable);
        }
    return plugs;
}

/// The plugs of a node that curves drive; control points only where they are asked for.
std::vector<Plug> animatedPlugs(Node& node, bool withControlPoints)
{
    std::vector<Plug> plugs;
    for (const Plug& plug : engine::connectedPlugs(node))
        if (engine::curveFeeding(plug) && (withControlPoints || !isControlPoint(plug)))
            plugs.push_back(plug);
    return plugs;
}

} // namespace

bool isKeyable(const Plug& leaf)
{
    return engine::stateOf(leaf).keyable.value_or(leaf.attribute()->flags.keyable);
}

bool KeySpan::isFinite() const
{
    return std::isfinite(low) && std::isfinite(high);
}

std::vector<FlagSpec> plugFlags()
{
    using A = ArgumentType;
    return {valueFlag("at", "attribute", A::string, "only these attributes", kChooses | kMultiUse),
            valueFlag("s", "shape", A::boolean, "whether shapes below transforms count", kChooses),
            valueFlag("hi", "hierarchy", A::string, "also what is above, below, both or none", kChooses),
            valueFlag("cp", "controlPoints", A::boolean, "whether points of shapes count", kChooses)};
}

std::vector<FlagSpec> keysetFlags()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = plugFlags();
    flags.push_back(valueFlag("t", "time", A::any, "the keys at a time or in a range a:b of times",
                              kChooses | kMultiUse));
    flags.push_back(valueFlag("f", "float", A::any, "the keys at a number or in a range a:b of numbers",
                              kChooses | kMultiUse));
    flags.push_back(valueFlag("index", "index", A::any, "the keys of an index or a range a:b of indices",
                              kChooses | kMultiUse));
    flags.push_back(animationFlag());
    flags.push_back(
        valueFlag("iub", "includeUpperBound", A::boolean, "whether the end of a range counts", kChooses));
    return flags;
}

std::vector<Plug> plugsToKey(const CommandContext& context, const ParsedCommand& call)
{
    const std::vector<std::string> attributes = attributeNames(call);
    std::vector<Plug> plugs;
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (!item.plug.isNull()) {
            addLeaves(item.plug, plugs);
            continue;
        }
        const std::vector<Node*> nodes = nodesFor(context, *item.node, call);
        const std::vector<Plug> found =
            attributes.empty() ? keyablePlugs(nodes) : plugsNamed(nodes, attributes);
        plugs.insert(plugs.end(), found.begin(), found.end());
    }
    return plugs;
}

std::vector<Plug> namedPlugs(const SelectionItem& item, const ParsedCommand& call)
{
    if (item.plug.isNull())
        return plugsNamed({item.node.get()}, attributeNames(call));
    std::vector<Plug> plugs;
    addLeaves(item.plug, plugs);
    return plugs;
}

FlagSpec animationFlag()
{
    return valueFlag("an", "animation", ArgumentType::string,
                     "objects or keysOrObjects: keys cannot be selected here", kChooses);
}

FlagSpec clipboardFlag()
{
    return valueFlag("cb", "clipboard", ArgumentType::string, "anim, the one there is here", kCreate);
}

void requireOwnClipboard(const CommandContext& context, const ParsedCommand& call)
{
    if (const std::string name = call.string("clipboard", "anim"); name != "anim")
        context.fail(context.command() + ": there is no clipboard '" + name + "' here, only 'anim'");
}

std::vector<Node*> curvesOf(const CommandContext& context, const ParsedCommand& call,
                            const SelectionItem& item)
{
    std::vector<Node*> curves;
    if (item.plug.isNull() && engine::isAnimCurve(*item.node)) {
        addOnce(curves, item.node.get());
        return curves;
    }
    const std::vector<std::string> attributes = attributeNames(call);
    std::vector<Plug> plugs;
    if (!item.plug.isNull())
        addLeaves(item.plug, plugs);
    else if (!attributes.empty())
        plugs = plugsNamed(nodesFor(context, *item.node, call), attributes);
    else
        for (Node* node : nodesFor(context, *item.node, call))
            for (const Plug& plug : animatedPlugs(*node, call.boolean("controlPoints")))
                plugs.push_back(plug);
    for (const Plug& plug : plugs)
        addOnce(curves, engine::curveFeeding(plug));
    return curves;
}

std::vector<Node*> curvesOf(const CommandContext& context, const ParsedCommand& call)
{
    if (call.string("animation") == "keys")
        context.fail("-animation keys: no keys are selected");
    std::vector<Node*> curves;
    for (const SelectionItem& item : itemsOrSelection(context, call.names()))
        for (Node* curve : curvesOf(context, call, item))
            addOnce(curves, curve);
    return curves;
}

std::vector<std::string> namesOf(const CommandContext& context, const std::vector<Node*>& curves)
{
    std::vector<std::string> found;
    for (const Node* curve : curves)
        found.push_back(sceneOf(context).shortestName(*curve));
    return found;
}

KeyChoice::KeyChoice(const CommandContext& context, const ParsedCommand& call)
    : m_includesUpper(call.boolean("includeUpperBound", true))
{
    const struct
    {
        const char* flag;
        ArgumentType type;
        std::vector<Range>* ranges;
    } rows[] = {{"time", ArgumentType::time, &m_times},
                {"float", ArgumentType::number, &m_numbers},
                {"index", ArgumentType::number, &m_indices}};
    for (const auto& row : rows)
        for (const FlagUse* use : call.uses(row.flag))
            row.ranges->push_back(rangeOf(context, use->arguments.front(), row.type));
}

KeyChoice::Range KeyChoice::rangeOf(const CommandContext& context, const Value& value, ArgumentType type)
{
    const auto internal = [&](const Value& end) {
        return type == ArgumentType::time ? toInternal(context, end, type) : end.toNumber();
    };
    const std::string text = value.type() == Type::string ? value.string() : std::string();
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos) {
        const double point = internal(value);
        return {point, point, true};
    }
    constexpr double kInfinite = std::numeric_limits<double>::infinity();
    const std::string low = text.substr(0, colon);
    const std::string high = text.substr(colon + 1);
    return {low.empty() ? -kInfinite : internal(Value(low)), high.empty() ? kInfinite : internal(Value(high)),
            false};
}

bool KeyChoice::holds(const std::vector<Range>& ranges, double at) const
{
    constexpr double kSame = AnimCurveKeys::kSameInput;
    return std::any_of(ranges.begin(), ranges.end(), [&](const Range& range) {
        const bool isBelow =
            range.isPoint || m_includesUpper ? at <= range.high + kSame : at < range.high - kSame;
        return isBelow && at >= range.low - kSame;
    });
}

std::vector<std::size_t> KeyChoice::of(const Node& curve, const AnimCurveKeys& keys) const
{
    const bool choosesAll = m_times.empty() && m_numbers.empty() && m_indices.empty();
    const std::vector<Range>& ranges = engine::isTimed(curve) ? m_times : m_numbers;
    std::vector<std::size_t> indices;
    for (std::size_t i = 0; i < keys.keys.size(); ++i)
        if (choosesAll || holds(ranges, keys.keys[i].at) || holds(m_indices, static_cast<double>(i)))
            indices.push_back(i);
    return indices;
}

std::vector<double> KeyChoice::places(const Node& curve) const
{
    std::vector<double> places;
    for (const Range& range : engine::isTimed(curve) ? m_times : m_numbers)
        if (range.isPoint)
            places.push_back(range.low);
    return places;
}

std::optional<KeySpan> KeyChoice::span(bool isTimed) const
{
    const std::vector<Range>& ranges = isTimed ? m_times : m_numbers;
    if (ranges.empty())
        return std::nullopt;
    KeySpan whole = {ranges.front().low, ranges.front().high};
    for (const Range& range : ranges)
        whole = {std::min(whole.low, range.low), std::max(whole.high, range.high)};
    return whole;
}

TangentKind tangentNamed(const CommandContext& context, const std::string& name)
{
    for (const NamedKind& row : kKinds)
        if (name == row.name)
            return row.kind;
    context.fail("Invalid tangent type '" + name + "'");
}

std::string nameOf(TangentKind kind)
{
    for (const NamedKind& row : kKinds)
        if (kind == row.kind)
            return row.name;
    return "auto";
}

double inputToUi(const Node& curve, double internal)
{
    return internal / engine::inputPerUi(curve);
}

double valueToUi(const Node& curve, double internal)
{
    return internal / engine::valuePerUi(curve);
}

} // namespace tvxhost::mel
