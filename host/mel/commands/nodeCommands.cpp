// Commands that make, name, delete and tell nodes.
#include "commandSupport.h"
#include "sceneCommands.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::DagNode;
using engine::Node;
using engine::SelectionItem;

namespace {

void selectNode(engine::Scene& scene, Node& node)
{
    engine::SelectionList list;
    if (const auto item = scene.findItem(scene.shortestName(node)))
        list.add(item.value);
    scene.setSelection(std::move(list));
}

Value createNode(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const std::string type = call.names().front();
    const std::string name = call.string("name");
    if (call.has("shared") && !name.empty())
        if (const auto existing = scene.findNode(name))
            return Value("");
    if (!scene.types().find(type))
        context.fail("Unknown object type: " + type);
    DagNode* parent = call.has("parent") ? &dagNodeNamed(context, call.string("parent")) : nullptr;
    Node& node = *valueOf(context, scene.createNode(type, name, parent));
    node.isShared = call.has("shared");
    if (!call.has("skipSelect"))
        selectNode(scene, node);
    return Value(scene.shortestName(node));
}

Value renameNode(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    std::vector<std::string> names = call.names();
    if (call.has("uuid")) {
        for (const SelectionItem& item : itemsOrSelection(context, names))
            item.node->setUuid(call.string("uuid"));
        return Value(call.string("uuid"));
    }
    if (names.empty())
        context.fail("'rename' needs a new name");
    const std::string wish = names.back();
    names.pop_back();
    const std::vector<SelectionItem> items = itemsOrSelection(context, names);
    if (items.size() != 1)
        context.fail("'rename' needs exactly one object");
    Node& node = *items.front().node;
    const std::string before = node.name();
    valueOf(context, scene.rename(node, wish));
    DagNode* dag = node.asDag();
    if (dag && dag->isTransform() && !call.has("ignoreShape"))
        for (DagNode* child : dag->children())
            if (child->isShape() && child->name().compare(0, before.size(), before) == 0)
                valueOf(context, scene.rename(*child, node.name() + child->name().substr(before.size())));
    return Value(scene.shortestName(node));
}

Value deleteNodes(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    if (call.has("constructionHistory") || call.has("channels") || call.has("expressions")) {
        context.editor().notImplemented("delete of construction history, channels or expressions");
        context.fail("'delete' deletes whole objects and attributes' nodes only");
    }
    std::vector<engine::Ref<Node>> doomed;
    if (call.has("all")) {
        for (Node* node : scene.nodes())
            if (!node->isDefaultNode && !node->isShared && !node->isLockedNode)
                doomed.emplace_back(node);
    } else {
        const std::vector<SelectionItem> items = itemsOrSelection(context, call.names());
        if (items.empty())
            context.fail("Nothing is selected to delete");
        for (const SelectionItem& item : items)
            doomed.push_back(item.node);
    }
    for (const engine::Ref<Node>& node : doomed)
        if (node->isAlive())
            require(context, scene.deleteNode(*node));
    return {};
}

Value objExists(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const std::string name = call.names().front();
    if (hasWildcard(name))
        return Value(!scene.findItems(name).empty());
    const auto found = scene.findItem(name);
    return Value(found || found.outcome.reason == engine::Reason::ambiguous);
}

Value nodeType(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const std::string name = call.names().front();
    engine::NodeType* type = nullptr;
    if (call.has("isTypeName")) {
        type = scene.types().find(name);
        if (!type)
            context.fail("Unknown object type: " + name);
    } else {
        type = &itemNamed(context, name).node->type();
    }
    if (call.has("derived")) {
        Value::Strings derived;
        for (const engine::NodeType* candidate : scene.types().all())
            if (candidate != type && candidate->isA(*type))
                derived.push_back(candidate->name);
        return Value(std::move(derived));
    }
    if (!call.has("inherited"))
        return Value(type->name);
    Value::Strings chain;
    for (const engine::NodeType* step = type; step && step->parent; step = step->parent)
        chain.insert(chain.begin(), step->name);
    return Value(std::move(chain));
}

Value lockNode(CommandContext& context, const ParsedCommand& call)
{
    Value::Integers states;
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (!call.queries())
            item.node->isLockedNode = call.boolean("lock", true);
        states.push_back(item.node->isLockedNode ? 1 : 0);
    }
    return call.queries() ? Value(std::move(states)) : Value();
}

} // namespace

void registerNodeCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand("createNode", "Makes a node of a type",
                    {valueFlag("n", "name", A::string, "its name; made unique when taken"),
                     valueFlag("p", "parent", A::name, "the DAG node to put it under"),
                     switchFlag("s", "shared", "only when there is no node of that name"),
                     switchFlag("ss", "skipSelect", "leaves the selection as it is")},
                    names(1, 1), createNode),
        makeCommand("rename", "Gives a node another name",
                    {valueFlag("uid", "uuid", A::string, "sets the unique identifier instead"),
                     switchFlag("is", "ignoreShape", "shapes below keep their names")},
                    names(0, 2), renameNode),
        makeCommand("delete", "Deletes nodes",
                    {switchFlag("all", "all", "everything that can be deleted"),
                     switchFlag("hi", "hierarchy", "with everything below (always so)"),
                     switchFlag("ch", "constructionHistory", "history only"),
                     switchFlag("c", "channels", "animation only"),
                     switchFlag("e", "expressions", "expressions only")},
                    names(), deleteNodes),
        makeCommand("objExists", "Tells whether a node, path or attribute exists", {}, names(1, 1),
                    objExists),
        makeCommand("nodeType", "Tells a node's type",
                    {switchFlag("i", "inherited", "the types it derives from, the first one first"),
                     switchFlag("d", "derived", "the types that derive from it"),
                     switchFlag("itn", "isTypeName", "the name is that of a type")},
                    names(1, 1), nodeType),
        makeCommand("lockNode", "Protects nodes from being deleted or renamed",
                    {valueFlag("l", "lock", A::boolean, "locks or unlocks", kAllModes)}, names(), lockNode,
                    kAllModes),
    });
}

} // namespace tvxhost::mel
