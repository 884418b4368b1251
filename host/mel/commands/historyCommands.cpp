// listHistory: the nodes that an object was made by, or that are made from it.
#include "commandSupport.h"
#include "history.h"
#include "sceneCommands.h"

#include "engine/relatedAttributes.h"

#include <algorithm>
#include <deque>
#include <unordered_set>

namespace tvxhost::mel {

using engine::Attribute;
using engine::DataType;
using engine::Node;
using engine::Plug;

namespace {

/// A node on the way, the plug by which it was reached (null for the first), and how far it is.
struct Step
{
    Node* node = nullptr;
    Plug arrived;
    int level = 0;
};

/// Nodes that pass any geometry on do so through generic attributes.
bool isGeometry(const Attribute& attribute)
{
    if (attribute.kind == engine::AttributeKind::generic)
        return true;
    switch (attribute.dataType) {
    case DataType::mesh:
    case DataType::lattice:
    case DataType::nurbsCurve:
    case DataType::nurbsSurface:
        return true;
    default:
        return false;
    }
}

bool affects(const Node& node, const Attribute& input, const Attribute& output)
{
    const std::vector<Attribute*>& affected = node.type().affectedBy(input);
    return std::any_of(affected.begin(), affected.end(),
                       [&](const Attribute* candidate) { return areRelated(*candidate, output); });
}

/// Whether the way goes on from where it came into a node to another plug of it.
bool leadsOn(const Step& step, const Plug& plug, const ParsedCommand& call)
{
    const bool isUpwards = !call.has("future");
    engine::DagNode* dag = step.node->asDag();
    if (isUpwards && dag && dag->isShape())
        return isGeometry(*plug.attribute());
    if (step.arrived.isNull() || call.has("allConnections"))
        return true;
    const Attribute& came = *step.arrived.attribute();
    const Attribute& goes = *plug.attribute();
    const bool isComputed = step.node->isOutput(isUpwards ? came : goes);
    // A node that computes nothing hands on all that it holds.
    return !isComputed || (isUpwards ? affects(*step.node, goes, came) : affects(*step.node, came, goes));
}

std::vector<Step> stepsFrom(const Step& step, const ParsedCommand& call)
{
    std::vector<Step> next;
    for (const Plug& plug : engine::connectedPlugs(*step.node)) {
        if (!leadsOn(step, plug, call))
            continue;
        if (!call.has("future")) {
            if (const Plug source = engine::sourceOf(plug); !source.isNull())
                next.push_back({source.node(), source, step.level + 1});
            continue;
        }
        for (const Plug& destination : engine::destinationsOf(plug))
            next.push_back({destination.node(), destination, step.level + 1});
    }
    return next;
}

bool isInteresting(Node& node, int least)
{
    const auto plug = node.findPlug("isHistoricallyInteresting");
    if (!plug)
        return true;
    const auto number = engine::readNumber(plug.value);
    return !number || number.value.asWhole() >= least;
}

/// All nodes on the ways from one node, the nearest first or each way to its end.
void walk(Node& start, const ParsedCommand& call, std::unordered_set<Node*>& seen, Value::Strings& names)
{
    const bool isBreadthFirst = call.has("breadthFirst") || call.has("groupLevels");
    const int levels = call.integer("levels");
    std::deque<Step> open = {{&start, {}, 0}};
    while (!open.empty()) {
        const Step step = isBreadthFirst ? open.front() : open.back();
        isBreadthFirst ? open.pop_front() : open.pop_back();
        const bool isPruned = step.level > 0 && call.has("pruneDagObjects") && step.node->asDag();
        if (isPruned || !seen.insert(step.node).second)
            continue;
        if (isInteresting(*step.node, call.integer("interestLevel")))
            names.push_back(start.scene().shortestName(*step.node));
        if (levels > 0 && step.level >= levels)
            continue;
        std::vector<Step> next = stepsFrom(step, call);
        if (!isBreadthFirst)
            std::reverse(next.begin(), next.end());
        open.insert(open.end(), next.begin(), next.end());
    }
}

/// A transform stands for the shapes below it, unless -leaf is off.
std::vector<Node*> startsOf(const engine::SelectionItem& item, const ParsedCommand& call)
{
    engine::DagNode* dag = item.node->asDag();
    std::vector<Node*> starts;
    if (dag && dag->isTransform() && call.boolean("leaf", true))
        for (engine::DagNode* child : dag->children())
            if (child->isShape() && !child->isIntermediate())
                starts.push_back(child);
    if (starts.empty())
        starts.push_back(item.node.get());
    return starts;
}

/// The plugs through which a node's history comes, instead of the nodes.
void addHistoryPlugs(Node& node, const ParsedCommand& call, Value::Strings& names)
{
    for (const Plug& plug : engine::connectedPlugs(node))
        if (leadsOn({&node, {}, 0}, plug, call) && !engine::sourceOf(plug).isNull())
            names.push_back(plug.name());
}

/// Through which attributes the shapes of a type take and give their geometry.
struct GeometryAttributes
{
    const char* type;
    const char* history;
    const char* local;
    const char* world;
};

constexpr GeometryAttributes kGeometryAttributes[] = {
    {"mesh", "inMesh", "outMesh", "worldMesh"},
    {"nurbsCurve", "create", "local", "worldSpace"},
    {"nurbsSurface", "create", "local", "worldSpace"},
};

/// A flag of query mode that asks for one of them.
struct AttributeQuestion
{
    const char* shortName;
    const char* longName;
    const char* help;
    const char* GeometryAttributes::*attribute;
};

constexpr AttributeQuestion kAttributeQuestions[] = {
    {"ha", "historyAttr", "the attributes through which history comes in", &GeometryAttributes::history},
    {"fl", "futureLocalAttr", "the attributes that give the shapes as they are", &GeometryAttributes::local},
    {"fw", "futureWorldAttr", "the attributes that give the shapes in the world", &GeometryAttributes::world},
};

/// Nothing for what is no geometry.
void addAttributesAsked(Node& node, const ParsedCommand& call, Value::Strings& names)
{
    for (const GeometryAttributes& row : kGeometryAttributes)
        for (const AttributeQuestion& question : kAttributeQuestions)
            if (node.type().isA(row.type) && call.has(question.longName))
                if (const auto plug = node.findPlug(row.*question.attribute))
                    names.push_back(plug.value.name());
}

Value listHistory(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<engine::SelectionItem> items = itemsOrSelection(context, call.names());
    if (items.empty())
        context.fail("listHistory: nothing was named and nothing is selected");
    Value::Strings names;
    std::unordered_set<Node*> seen;
    for (const engine::SelectionItem& item : items)
        for (Node* start : startsOf(item, call))
            if (call.queries())
                addAttributesAsked(*start, call, names);
            else if (call.has("historyAttr"))
                addHistoryPlugs(*start, call, names);
            else
                walk(*start, call, seen, names);
    return Value(std::move(names));
}

} // namespace

std::vector<Node*> geometryHistory(Node& shape)
{
    std::vector<Node*> nodes = {&shape};
    for (std::size_t next = 0; next < nodes.size(); ++next)
        for (const Plug& plug : engine::connectedPlugs(*nodes[next])) {
            const Plug source = engine::sourceOf(plug);
            if (source.isNull() || !isGeometry(*plug.attribute()) || source.node()->asDag())
                continue;
            if (std::find(nodes.begin(), nodes.end(), source.node()) == nodes.end())
                nodes.push_back(source.node());
        }
    nodes.erase(nodes.begin());
    return nodes;
}

void registerHistoryCommands(CommandTable& table)
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        switchFlag("f", "future", "what is made from them instead"),
        switchFlag("af", "allFuture", "of all futures (always so)"),
        switchFlag("ac", "allConnections", "also ways that do not depend on one another"),
        switchFlag("ag", "allGraphs", "obsolete: no difference"),
        switchFlag("bf", "breadthFirst", "the nearest first; each way to its end otherwise"),
        switchFlag("gl", "groupLevels", "those of one distance together"),
        valueFlag("il", "interestLevel", A::integer, "those of which isHistoricallyInteresting is no less"),
        valueFlag("lf", "leaf", A::boolean, "a transform stands for its shapes (on by default)"),
        valueFlag("lv", "levels", A::integer, "how many connections to follow; 0: all"),
        switchFlag("pdo", "pruneDagObjects", "stops at DAG objects"),
    };
    for (const AttributeQuestion& question : kAttributeQuestions)
        flags.push_back(
            switchFlag(question.shortName, question.longName, question.help,
                       question.attribute == &GeometryAttributes::history ? kCreateQuery : kQuery));
    table.add({makeCommand("listHistory", "Lists the nodes that objects were made by", std::move(flags),
                           names(), listHistory, kQuery)});
}

} // namespace tvxhost::mel
