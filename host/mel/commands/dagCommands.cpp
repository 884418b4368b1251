// Commands about places in the DAG: relatives, parents, groups, instances.
#include "commandSupport.h"
#include "sceneCommands.h"
#include "transformValues.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::DagNode;
using engine::DagPath;
using engine::SelectionItem;

namespace {

std::string nameOf(const DagPath& path, const ParsedCommand& call)
{
    if (call.has("fullPath"))
        return path.fullName();
    return call.has("path") ? path.partialName() : path.node()->name();
}

bool isWanted(DagNode& node, const ParsedCommand& call)
{
    if (call.has("shapes") && !node.isShape())
        return false;
    if (call.has("noIntermediate") && node.isIntermediate())
        return false;
    const auto types = call.uses("type");
    return types.empty() || std::any_of(types.begin(), types.end(), [&](const FlagUse* use) {
               return node.type().isA(use->arguments.front().toString());
           });
}

void addChildren(const DagPath& path, const ParsedCommand& call, Value::Strings& list)
{
    for (DagNode* child : path.node()->children()) {
        DagPath below = path;
        if (!below.push(*child))
            continue;
        // Descendants come deepest first.
        if (call.has("allDescendents"))
            addChildren(below, call, list);
        if (isWanted(*child, call))
            list.push_back(nameOf(below, call));
    }
}

void addParents(const SelectionItem& item, const ParsedCommand& call, Value::Strings& list)
{
    const auto add = [&](DagPath path) {
        if (path.pop() && path.length() > 0)
            list.push_back(nameOf(path, call));
    };
    if (!call.has("allParents")) {
        add(item.path);
        return;
    }
    for (DagNode* parent : item.path.node()->parents())
        if (!parent->isWorld())
            list.push_back(nameOf(DagPath::firstTo(*parent), call));
}

Value listRelatives(CommandContext& context, const ParsedCommand& call)
{
    Value::Strings list;
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (!item.isDag())
            continue;
        if (call.has("parent") || call.has("allParents"))
            addParents(item, call, list);
        else
            addChildren(item.path, call, list);
    }
    return Value(std::move(list));
}

DagNode* parentInPath(const SelectionItem& item)
{
    return item.path.length() > 1 ? item.path.nodeAt(item.path.length() - 2) : nullptr;
}

/// Moves a transform and keeps it where it stands in the world.
engine::Outcome reparentInPlace(engine::Scene& scene, const SelectionItem& item, DagNode* to)
{
    DagNode& node = *item.path.node();
    const engine::Matrix world = item.path.inclusiveMatrix();
    const engine::Outcome moved = scene.reparent(node, parentInPath(item), to);
    if (!moved || !node.isTransform())
        return moved;
    const engine::Matrix local = world * DagPath::firstTo(node).exclusiveMatrix().inverse();
    return setLocalMatrix(node, local);
}

void checkTransform(CommandContext& context, const SelectionItem& item, const ParsedCommand& call)
{
    if (!item.isDag())
        context.fail("'" + item.name() + "' is not a DAG node");
    if (item.path.node()->isShape() && !call.has("shape"))
        context.fail(
            "'parent' command only operates on transform nodes. To parent shapes, use the -s/shape flag.");
}

Value parent(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    std::vector<SelectionItem> items = itemsOrSelection(context, call.names());
    DagNode* under = nullptr;
    if (!call.has("world") && !call.has("removeObject")) {
        if (items.size() < 2)
            context.fail("'parent' needs objects and the parent they go under");
        under = items.back().node->asDag();
        if (!under || !under->isTransform())
            context.fail("'" + items.back().name() + "' cannot be a parent");
        items.pop_back();
    }
    Value::Strings moved;
    for (const SelectionItem& item : items) {
        checkTransform(context, item, call);
        DagNode& node = *item.path.node();
        if (call.has("removeObject")) {
            DagNode* from = parentInPath(item);
            require(context, scene.removeParent(node, from ? *from : scene.world()));
        } else if (call.has("addObject")) {
            require(context, scene.addParent(node, *under));
        } else if (call.has("relative") || node.isShape()) {
            require(context, scene.reparent(node, parentInPath(item), under));
        } else {
            require(context, reparentInPlace(scene, item, under));
        }
        moved.push_back(scene.shortestName(node));
    }
    return Value(std::move(moved));
}

Value group(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const std::vector<SelectionItem> items =
        call.has("empty") ? std::vector<SelectionItem>() : itemsOrSelection(context, call.names());
    if (items.empty() && !call.has("empty"))
        context.fail("Nothing is selected to group; use -empty for an empty group");
    DagNode* above = call.has("parent") ? &dagNodeNamed(context, call.string("parent")) : nullptr;
    if (!call.has("parent") && !call.has("world") && !items.empty() && items.front().isDag())
        above = parentInPath(items.front());
    engine::Node& made =
        *valueOf(context, scene.createNode("transform", call.string("name", "group1"), above));
    for (const SelectionItem& item : items) {
        if (!item.isDag())
            context.fail("'" + item.name() + "' is not a DAG node");
        const bool isRelative = call.has("relative") || item.path.node()->isShape();
        require(context, isRelative ? scene.reparent(*item.path.node(), parentInPath(item), made.asDag())
                                    : reparentInPlace(scene, item, made.asDag()));
    }
    engine::SelectionList list;
    list.add(itemNamed(context, scene.shortestName(made)));
    scene.setSelection(std::move(list));
    return Value(scene.shortestName(made));
}

/// A new transform above what hangs below another one.
Value instance(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    Value::Strings made;
    engine::SelectionList list;
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (!item.isDag() || !item.path.node()->isTransform())
            context.fail("'" + item.name() + "' is not a transform");
        DagNode& original = *item.path.node();
        engine::Node& copy = *valueOf(
            context, scene.createNode("transform", call.string("name", original.name()), parentInPath(item)));
        require(context, setLocalMatrix(*copy.asDag(), original.localMatrix()));
        for (DagNode* child : std::vector<DagNode*>(original.children()))
            require(context, scene.addParent(*child, *copy.asDag()));
        made.push_back(scene.shortestName(copy));
        list.add(itemNamed(context, made.back()));
    }
    scene.setSelection(std::move(list));
    return Value(std::move(made));
}

} // namespace

void registerDagCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand(
            "listRelatives", "Lists parents or children of DAG objects",
            {switchFlag("c", "children", "what is directly below (the default)"),
             switchFlag("ad", "allDescendents", "all below, the deepest first"),
             switchFlag("s", "shapes", "shapes only"), switchFlag("p", "parent", "what is directly above"),
             switchFlag("ap", "allParents", "the parents of all instances"),
             switchFlag("f", "fullPath", "full paths"), switchFlag("pa", "path", "paths as long as needed"),
             switchFlag("ni", "noIntermediate", "no intermediate objects"),
             valueFlag("typ", "type", A::string, "of this type only", kCreate | kMultiUse)},
            names(), listRelatives),
        makeCommand("parent", "Puts objects under another one",
                    {switchFlag("w", "world", "under the world"),
                     switchFlag("r", "relative", "keeps the numbers of their transforms"),
                     switchFlag("a", "absolute", "keeps their place in the world (the default)"),
                     switchFlag("s", "shape", "shapes may be moved"),
                     switchFlag("add", "addObject", "as further instances"),
                     switchFlag("rm", "removeObject", "takes one instance away"),
                     switchFlag("nc", "noConnections", "makes no connections"),
                     switchFlag("nis", "noInvScale", "does not compensate for a joint's scale")},
                    names(), parent),
        makeCommand("group", "Makes a transform above objects",
                    {switchFlag("em", "empty", "a group of nothing"),
                     valueFlag("n", "name", A::string, "its name"),
                     valueFlag("p", "parent", A::name, "what it stands under"),
                     switchFlag("w", "world", "it stands under the world"),
                     switchFlag("r", "relative", "keeps the numbers of the transforms"),
                     switchFlag("a", "absolute", "keeps their place in the world (the default)")},
                    names(), group),
        makeCommand("instance", "Makes instances of transforms",
                    {valueFlag("n", "name", A::string, "the new transform's name")}, names(), instance),
    });
}

} // namespace tvxhost::mel
