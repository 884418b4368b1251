// Keysets; see keysets.h.
#include "keysets.h"

#include "engine/number.h"

#include <algorithm>
#include <cmath>
#include <limits>

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

/// The node, and the shapes below it unless they are not wanted.
std::vector<Node*> withShapes(Node& node, const ParsedCommand& call)
{
    std::vector<Node*> nodes = {&node};
    if (const DagNode* dag = node.asDag(); dag && dag->isTransform() && call.boolean("shape", true))
        for (DagNode* child : dag->children())
            if (child->isShape())
                nodes.push_back(child);
    return nodes;
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

bool isKeyable(const Plug& leaf)
{
    return engine::stateOf(leaf).keyable.value_or(leaf.attribute()->flags.keyable);
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

void addOnce(std::vector<Node*>& curves, Node* curve)
{
    if (curve && std::find(curves.begin(), curves.end(), curve) == curves.end())
        curves.push_back(curve);
}

std::vector<Plug> animatedPlugs(Node& node)
{
    std::vector<Plug> plugs;
    for (const Plug& plug : engine::connectedPlugs(node))
        if (engine::curveFeeding(plug))
            plugs.push_back(plug);
    return plugs;
}

} // namespace

std::vector<FlagSpec> plugFlags()
{
    using A = ArgumentType;
    return {valueFlag("at", "attribute", A::string, "only these attributes", kChooses | kMultiUse),
            valueFlag("s", "shape", A::boolean, "whether shapes below transforms count", kChooses)};
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
        const std::vector<Node*> nodes = withShapes(*item.node, call);
        const std::vector<Plug> found =
            attributes.empty() ? keyablePlugs(nodes) : plugsNamed(nodes, attributes);
        plugs.insert(plugs.end(), found.begin(), found.end());
    }
    return plugs;
}

std::vector<Node*> curvesOf(const CommandContext& context, const ParsedCommand& call)
{
    const std::vector<std::string> attributes = attributeNames(call);
    std::vector<Node*> curves;
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (item.plug.isNull() && engine::isAnimCurve(*item.node)) {
            addOnce(curves, item.node.get());
            continue;
        }
        std::vector<Plug> plugs;
        if (!item.plug.isNull())
            addLeaves(item.plug, plugs);
        else if (!attributes.empty())
            plugs = plugsNamed(withShapes(*item.node, call), attributes);
        else
            for (Node* node : withShapes(*item.node, call))
                for (const Plug& plug : animatedPlugs(*node))
                    plugs.push_back(plug);
        for (const Plug& plug : plugs)
            addOnce(curves, engine::curveFeeding(plug));
    }
    return curves;
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
