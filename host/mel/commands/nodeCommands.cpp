// Commands that make, name, delete and tell nodes.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "api/support/apiTypeNames.h"
#include "api/support/apiTypes.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::DagNode;
using engine::Node;
using engine::SelectionItem;

namespace {

engine::NodeType& typeNamed(const CommandContext& context, const std::string& name)
{
    engine::NodeType* type = sceneOf(context).types().find(name);
    if (!type)
        context.fail("Unknown object type: " + name);
    return *type;
}

Value createNode(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const std::string name = call.string("name");
    if (call.has("shared") && !name.empty())
        if (const auto existing = scene.findNode(name))
            return Value("");
    engine::NodeType& nodeType = typeNamed(context, call.names().front());
    DagNode* parent = call.has("parent") ? &dagNodeNamed(context, call.string("parent")) : nullptr;
    Node& node = *valueOf(context, scene.createNode(nodeType, name, parent));
    node.isShared = call.has("shared");
    if (!call.has("skipSelect"))
        selectOnly(scene, node);
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
    if (call.has("isTypeName"))
        type = &typeNamed(context, name);
    else
        type = &itemNamed(context, name).node->type();
    if (call.has("apiType"))
        return Value(api::apiTypeName(static_cast<int>(api::apiTypeOf(*type))));
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

Value objectType(CommandContext& context, const ParsedCommand& call)
{
    if (call.has("tagFromType"))
        return Value(static_cast<int>(typeNamed(context, call.string("tagFromType")).id));
    if (call.has("typeFromTag")) {
        const auto id = static_cast<std::uint32_t>(call.integer("typeFromTag"));
        const engine::NodeType* type = sceneOf(context).types().find(id);
        if (!type)
            context.fail("objectType: there is no type " + std::to_string(id));
        return Value(type->name);
    }
    if (call.names().empty())
        context.fail("objectType: no object was named");
    const engine::NodeType& type = itemNamed(context, call.names().front()).node->type();
    if (call.has("isAType"))
        return Value(type.isA(typeNamed(context, call.string("isAType"))));
    if (call.has("isType"))
        return Value(type.name == call.string("isType"));
    return call.has("typeTag") ? Value(static_cast<int>(type.id)) : Value(type.name);
}

Value lockNode(CommandContext& context, const ParsedCommand& call)
{
    Value::Integers states;
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (!call.queries())
            item.node->setLocked(call.boolean("lock", true));
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
        makeCommand("objExists", "Tells whether a node, path or attribute exists", {}, names(1, 1),
                    objExists),
        makeCommand("nodeType", "Tells a node's type",
                    {switchFlag("i", "inherited", "the types it derives from, the first one first"),
                     switchFlag("d", "derived", "the types that derive from it"),
                     switchFlag("itn", "isTypeName", "the name is that of a type"),
                     switchFlag("api", "apiType", "the type in the programming interface")},
                    names(1, 1), nodeType),
        makeCommand(
            "objectType", "Tells an object's type, or whether it is of one",
            {valueFlag("isa", "isAType", A::string, "whether it is of this type or one derived from it"),
             valueFlag("i", "isType", A::string, "whether it is of exactly this type"),
             switchFlag("tt", "typeTag", "the number of the type"),
             valueFlag("tgt", "tagFromType", A::string, "the number of a type by name"),
             valueFlag("tpt", "typeFromTag", A::integer, "the name of a type by number"),
             refusedFlag("ctg", "convertTag", "there are no four letters of such numbers here")},
            names(0, 1), objectType),
        makeCommand("lockNode", "Protects nodes from being deleted or renamed",
                    {valueFlag("l", "lock", A::boolean, "locks or unlocks", kAllModes)}, names(), lockNode,
                    kAllModes),
    });
}

} // namespace tvxhost::mel
