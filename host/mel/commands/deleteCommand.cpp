// delete: objects, or only what made them or drives them.
#include "commandSupport.h"
#include "history.h"
#include "sceneCommands.h"

#include "engine/deletion.h"
#include "engine/mesh.h"
#include "engine/objectGroups.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace tvxhost::mel {

using engine::DagNode;
using engine::Node;
using engine::Plug;
using engine::SelectionItem;

namespace {

/// A flag that deletes nodes which drive the attributes of objects, and leaves the objects.
struct DriverFlag
{
    const char* shortName;
    const char* longName;
    const char* type; ///< of the nodes
    const char* help;
};

constexpr DriverFlag kDrivers[] = {
    {"c", "channels", "animCurve", "animation only"},
    {"e", "expressions", "expression", "expressions only"},
    {"cn", "constraints", "constraint", "constraints only"},
    {"mp", "motionPaths", "motionPath", "motion paths only"},
};

using Doomed = std::vector<engine::Ref<Node>>;

bool isAskedAttribute(const Plug& plug, const ParsedCommand& call)
{
    const auto uses = call.uses("attribute");
    return uses.empty() || std::any_of(uses.begin(), uses.end(), [&](const FlagUse* use) {
               const std::string name = use->arguments.front().toString();
               const engine::Attribute& attribute = *plug.attribute();
               return attribute.longName == name || attribute.shortName == name;
           });
}

/// Curves over time are "animCurveTL" and the like, over other values "animCurveUL".
bool isAskedCurve(const Node& node, const ParsedCommand& call)
{
    constexpr std::string_view kCurve = "animCurve";
    const std::string& type = node.type().name;
    const char input = type.size() > kCurve.size() ? type[kCurve.size()] : '\0';
    return input == 'T'   ? call.boolean("timeAnimationCurves", true)
           : input == 'U' ? call.boolean("unitlessAnimationCurves", true)
                          : true;
}

void addDrivers(Node& node, const DriverFlag& row, const ParsedCommand& call, Doomed& doomed)
{
    for (const Plug& plug : engine::connectedPlugs(node)) {
        const Plug source = engine::sourceOf(plug);
        if (source.isNull() || !source.node()->type().isA(row.type))
            continue;
        if (isAskedAttribute(plug, call) && isAskedCurve(*source.node(), call))
            doomed.emplace_back(source.node());
    }
}

/// What -hierarchy reaches beside the objects and their shapes.
struct Reach
{
    bool isAbove = false;
    bool isBelow = false;
    bool hasShapes = true;
};

Reach reachOf(const CommandContext& context, const ParsedCommand& call)
{
    const std::string reach = call.string("hierarchy", "none");
    if (reach != "none" && reach != "above" && reach != "below" && reach != "both")
        context.fail("delete: -hierarchy is above, below, both or none, not '" + reach + "'");
    return {reach == "above" || reach == "both", reach == "below" || reach == "both",
            call.boolean("shape", true)};
}

/// An object with what is below it, as far as the call wants that.
void addWithBelow(Node& node, const Reach& reach, std::vector<Node*>& nodes)
{
    nodes.push_back(&node);
    DagNode* dag = node.asDag();
    if (!dag)
        return;
    for (DagNode* child : dag->children())
        if (child->isShape() ? reach.hasShapes : reach.isBelow)
            addWithBelow(*child, reach, nodes);
}

void addAbove(Node& node, std::vector<Node*>& nodes)
{
    const DagNode* dag = node.asDag();
    while (dag && !dag->parents().empty() && !dag->parents().front()->isWorld()) {
        nodes.push_back(dag->parents().front());
        dag = dag->parents().front();
    }
}

/// The geometry is computed once more, so that it stays when what made it goes.
void addHistory(const CommandContext& context, Node& node, Doomed& doomed)
{
    const std::vector<Node*> history = geometryHistory(node);
    if (history.empty())
        return;
    if (DagNode* dag = node.asDag()) {
        static_cast<void>(engine::meshOf(*dag));
        require(context, engine::settleGroups(*dag));
    }
    doomed.insert(doomed.end(), history.begin(), history.end());
}

/// What makes or drives the objects; the objects stay.
Doomed partsOf(const CommandContext& context, const std::vector<SelectionItem>& items,
               const ParsedCommand& call)
{
    const Reach reach = reachOf(context, call);
    std::vector<Node*> nodes;
    for (const SelectionItem& item : items) {
        addWithBelow(*item.node, reach, nodes);
        if (reach.isAbove)
            addAbove(*item.node, nodes);
    }
    Doomed doomed;
    for (Node* node : nodes) {
        if (call.has("constructionHistory"))
            addHistory(context, *node, doomed);
        for (const DriverFlag& row : kDrivers)
            if (call.has(row.longName))
                addDrivers(*node, row, call, doomed);
    }
    return doomed;
}

std::vector<SelectionItem> everything(engine::Scene& scene)
{
    std::vector<SelectionItem> items;
    for (Node* node : scene.nodes())
        if (!engine::isUndeletable(*node)) {
            SelectionItem item;
            item.node = node;
            items.push_back(item);
        }
    return items;
}

/// A node and what is below it, each once.
std::vector<DagNode*> withBelow(DagNode& top)
{
    std::vector<DagNode*> nodes = {&top};
    std::unordered_set<const DagNode*> known = {&top};
    for (std::size_t i = 0; i < nodes.size(); ++i)
        for (DagNode* child : nodes[i]->children())
            if (known.insert(child).second)
                nodes.push_back(child);
    return nodes;
}

/// What made the shapes at and below a node, the nearest first, and then what tells their groups apart.
void addMakers(DagNode& top, Doomed& makers)
{
    for (DagNode* node : withBelow(top)) {
        const std::vector<Node*> history = node->isShape() ? geometryHistory(*node) : std::vector<Node*>();
        makers.insert(makers.end(), history.begin(), history.end());
        for (const Plug& plug : engine::connectedPlugs(*node))
            if (const Plug source = engine::sourceOf(plug);
                !source.isNull() && source.node()->type().isA("groupId"))
                makers.emplace_back(source.node());
    }
}

/// Whether anything comes of a node; that it is known to others is no use.
bool isUsed(const Node& node)
{
    const std::vector<Plug> connected = engine::connectedPlugs(node);
    return std::any_of(connected.begin(), connected.end(), [](const Plug& plug) {
        return plug.attribute()->kind != engine::AttributeKind::message &&
               !engine::destinationsOf(plug).empty();
    });
}

bool canGo(const Node& node)
{
    return node.isAlive() && engine::checkDeletion(node);
}

/// Deletes those of the objects that can go, and what made them unless it makes something else as well.
/// @return why the first of the others stays
engine::Outcome deleteObjects(const CommandContext& context, const Doomed& objects)
{
    engine::Scene& scene = sceneOf(context);
    engine::Outcome refusal;
    Doomed leaving;
    Doomed makers;
    for (const engine::Ref<Node>& object : objects) {
        if (engine::Outcome allowed = engine::checkDeletion(*object); !allowed) {
            refusal = refusal ? allowed : refusal;
            continue;
        }
        leaving.push_back(object);
        if (DagNode* dag = object->asDag())
            addMakers(*dag, makers);
    }
    for (const engine::Ref<Node>& object : leaving)
        if (object->isAlive())
            require(context, scene.deleteNode(*object));
    for (const engine::Ref<Node>& maker : makers)
        if (canGo(*maker) && !isUsed(*maker))
            require(context, scene.deleteNode(*maker));
    return refusal;
}

Value deleteNodes(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const std::vector<SelectionItem> items =
        call.has("all") ? everything(scene) : itemsOrSelection(context, call.names());
    if (items.empty() && !call.has("all"))
        context.fail("Nothing is selected to delete");
    const bool onlyParts = call.has("constructionHistory") ||
                           std::any_of(std::begin(kDrivers), std::end(kDrivers),
                                       [&](const DriverFlag& row) { return call.has(row.longName); });
    if (onlyParts) {
        for (const engine::Ref<Node>& node : partsOf(context, items, call))
            if (node->isAlive())
                require(context, scene.deleteNode(*node));
        return {};
    }
    Doomed objects;
    for (const SelectionItem& item : items)
        objects.push_back(item.node);
    const engine::Outcome refusal = deleteObjects(context, objects);
    if (!call.has("all") && !refusal)
        context.fail(refusal.text + ".");
    return {};
}

} // namespace

void registerDeleteCommands(CommandTable& table)
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        switchFlag("all", "all", "everything that can be deleted"),
        valueFlag("hi", "hierarchy", A::string,
                  "with -constructionHistory and the like: also of what is above, below, both or none"),
        valueFlag("s", "shape", A::boolean, "with -channels and the like: of shapes too (on by default)"),
        switchFlag("ch", "constructionHistory", "only the nodes that made the objects"),
        valueFlag("at", "attribute", A::string, "with -channels and the like: of this attribute only",
                  kCreate | kMultiUse),
        valueFlag("tac", "timeAnimationCurves", A::boolean,
                  "with -channels: curves over time (on by default)"),
        valueFlag("uac", "unitlessAnimationCurves", A::boolean,
                  "with -channels: curves over other values (on by default)"),
        refusedFlag("sc", "staticChannels", "curves are deleted whether or not their value changes"),
        refusedFlag("cp", "controlPoints", "points cannot be deleted"),
        refusedFlag("icn", "inputConnectionsAndNodes", "delete the nodes themselves"),
    };
    for (const DriverFlag& row : kDrivers)
        flags.push_back(switchFlag(row.shortName, row.longName, row.help));
    table.add({makeCommand("delete", "Deletes nodes, or what makes and drives them", std::move(flags),
                           names(), deleteNodes)});
}

} // namespace tvxhost::mel
