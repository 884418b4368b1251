// Commands about places in the DAG: relatives, parents, groups, instances.
#include "commandSupport.h"
#include "sceneCommands.h"
#include "transformParts.h"

#include "api/support/transformNode.h"
#include "engine/builtinTypes.h"

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

/// The parent as the engine takes it: null for the world.
DagNode* parentAt(const DagPath& path)
{
    return path.length() > 0 ? path.node() : nullptr;
}

/// Puts a transform below the end of a path and keeps it where it stands in the world.
engine::Outcome reparentInPlace(engine::Scene& scene, const SelectionItem& item, const DagPath& to)
{
    const engine::Matrix world = item.path.inclusiveMatrix();
    DagNode& node = *item.path.node();
    const engine::Outcome moved = scene.reparent(node, parentInPath(item), parentAt(to));
    if (!moved || !engine::inheritsTransform(node))
        return moved;
    return setLocalMatrix(node, world * to.inclusiveMatrix().inverse());
}

/// The path below which a shape can stand: that of the wished parent, or of a transform made below it where
/// there is need of one, below the world and where the shape would leave its place.
DagPath placeForShape(CommandContext& context, const SelectionItem& item, const DagPath& to, bool isRelative)
{
    const engine::Matrix before = item.path.exclusiveMatrix();
    const engine::Matrix after = to.inclusiveMatrix();
    if (parentAt(to) && (isRelative || before.equalWithAbsError(after, 1e-9)))
        return to;
    DagNode& made =
        *valueOf(context, sceneOf(context).createNode("transform", "transform1", parentAt(to)))->asDag();
    if (!isRelative)
        require(context, setLocalMatrix(made, before * after.inverse()));
    DagPath place = to;
    require(context, place.push(made));
    return place;
}

/// Puts an item below the end of a path; where it stands then.
DagPath putBelow(CommandContext& context, const SelectionItem& item, const DagPath& to, bool isRelative)
{
    engine::Scene& scene = sceneOf(context);
    DagNode& node = *item.path.node();
    DagPath place = node.isShape() ? placeForShape(context, item, to, isRelative) : to;
    if (node.isShape() || isRelative)
        require(context, scene.reparent(node, parentInPath(item), parentAt(place)));
    else
        require(context, reparentInPlace(scene, item, place));
    require(context, place.push(node));
    return place;
}

/// Makes an item stand below the end of a path as well; where that is.
DagPath addBelow(CommandContext& context, const SelectionItem& item, DagPath to)
{
    require(context, sceneOf(context).addParent(*item.path.node(), *to.node()));
    require(context, to.push(*item.path.node()));
    return to;
}

void checkTransform(CommandContext& context, const SelectionItem& item, const ParsedCommand& call)
{
    if (!item.isDag())
        context.fail("'" + item.name() + "' is not a DAG node");
    if (item.path.node()->isShape() && !call.has("shape"))
        context.fail(
            "'parent' command only operates on transform nodes. To parent shapes, use the -s/shape flag.");
}

Value removeInstances(CommandContext& context, const std::vector<SelectionItem>& items,
                      const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    Value::Strings names;
    for (const SelectionItem& item : items) {
        checkTransform(context, item, call);
        DagNode* above = parentInPath(item);
        require(context, scene.removeParent(*item.path.node(), above ? *above : scene.world()));
        names.push_back(scene.shortestName(*item.path.node()));
    }
    return Value(std::move(names));
}

/// The path of the parent that a call names last, which is then no item any more.
DagPath takeParent(CommandContext& context, std::vector<SelectionItem>& items)
{
    if (items.size() < 2)
        context.fail("'parent' needs objects and the parent they go under");
    const SelectionItem last = items.back();
    items.pop_back();
    if (!last.isDag() || !last.path.node()->isTransform())
        context.fail("'" + last.name() + "' cannot be a parent");
    return last.path;
}

Value parent(CommandContext& context, const ParsedCommand& call)
{
    std::vector<SelectionItem> items = itemsOrSelection(context, call.names());
    if (items.empty())
        context.fail("Nothing is selected to parent.");
    if (call.has("removeObject"))
        return removeInstances(context, items, call);
    const DagPath to = call.has("world") ? DagPath::world(sceneOf(context)) : takeParent(context, items);
    Value::Strings names;
    for (const SelectionItem& item : items) {
        checkTransform(context, item, call);
        const DagPath place = call.has("addObject") ? addBelow(context, item, to)
                                                    : putBelow(context, item, to, call.has("relative"));
        names.push_back(place.partialName());
    }
    return Value(std::move(names));
}

/// A transform that can be used as a group: nothing is above or below it.
engine::Node& emptyTransform(const CommandContext& context, const std::string& name)
{
    DagNode& node = dagNodeNamed(context, name);
    if (!node.isTransform() || !node.children().empty() || !node.parents().front()->isWorld())
        context.fail("'" + name + "' cannot be used as a group: it is no transform by itself");
    return node;
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
        call.has("useAsGroup")
            ? emptyTransform(context, call.string("useAsGroup"))
            : *valueOf(context, scene.createNode("transform", call.string("name", "group1"), above));
    const DagPath place = DagPath::firstTo(*made.asDag());
    for (const SelectionItem& item : items) {
        if (!item.isDag())
            context.fail("'" + item.name() + "' is not a DAG node");
        putBelow(context, item, place, call.has("relative") || item.path.node()->isShape());
    }
    selectOnly(scene, made);
    return Value(scene.shortestName(made));
}

/// What stands below a transform, by the path of that.
std::vector<SelectionItem> childrenOf(const DagPath& path)
{
    std::vector<SelectionItem> items;
    for (DagNode* child : engine::Node::Links(path.node()->children())) {
        SelectionItem item;
        item.node = child;
        item.path = path;
        if (item.path.push(*child))
            items.push_back(item);
    }
    return items;
}

/// Puts what is in a group where the group stands, or elsewhere, and deletes the group.
void dissolveGroup(CommandContext& context, const ParsedCommand& call, const SelectionItem& group)
{
    engine::Scene& scene = sceneOf(context);
    if (!group.isDag() || !group.path.node()->isTransform() || group.path.node()->children().empty() ||
        group.path.shapeBelow())
        context.fail("'" + group.name() + "' is not a group");
    DagPath to = DagPath::world(scene);
    if (call.has("parent"))
        to = DagPath::firstTo(dagNodeNamed(context, call.string("parent")));
    else if (DagNode* above = call.has("world") ? nullptr : parentInPath(group))
        to = DagPath::firstTo(*above);
    for (const SelectionItem& item : childrenOf(group.path))
        putBelow(context, item, to, call.has("relative"));
    require(context, scene.deleteNode(*group.node));
}

Value ungroup(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<SelectionItem> items = itemsOrSelection(context, call.names());
    if (items.empty())
        context.fail("Nothing is selected to ungroup.");
    for (const SelectionItem& item : items)
        dissolveGroup(context, call, item);
    return {};
}

/// A transform with the numbers of another one.
DagNode& transformLike(CommandContext& context, DagNode& original, const std::string& name, DagNode* above)
{
    engine::Scene& scene = sceneOf(context);
    DagNode& copy = *valueOf(context, scene.createNode("transform", name, above))->asDag();
    const auto parts = api::readTransformation(original);
    require(context, parts.outcome);
    require(context, api::writeTransformation(copy, parts.value));
    return copy;
}

/// What hangs below a transform as instances below another; with `onlyLeaves` transforms are made anew.
void addInstances(CommandContext& context, DagNode& original, DagNode& copy, bool onlyLeaves)
{
    for (DagNode* child : engine::Node::Links(original.children())) {
        if (onlyLeaves && child->isTransform())
            addInstances(context, *child, transformLike(context, *child, child->name(), &copy), true);
        else
            require(context, sceneOf(context).addParent(*child, copy));
    }
}

/// A new transform above what hangs below another one.
Value instance(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    Value::Strings made;
    engine::SelectionList list;
    for (SelectionItem item : itemsOrSelection(context, call.names())) {
        if (item.isDag() && item.path.node()->isShape() && item.path.pop())
            item.node = engine::Ref<engine::Node>(item.path.node());
        if (!item.isDag() || item.path.length() == 0)
            context.fail("'" + item.name() + "' is not a DAG node");
        DagNode& original = *item.path.node();
        const std::string name = call.string("name", original.name());
        DagNode& copy = transformLike(context, original, name, parentInPath(item));
        addInstances(context, original, copy, call.has("leaf"));
        made.push_back(scene.shortestName(copy));
        list.add(itemNamed(context, made.back()));
    }
    if (made.empty())
        context.fail("Nothing is selected to instance.");
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
                     switchFlag("a", "absolute", "keeps their place in the world (the default)"),
                     valueFlag("uag", "useAsGroup", A::name, "this transform instead of a new one")},
                    names(), group),
        makeCommand("ungroup", "Takes objects out of groups, which are deleted",
                    {switchFlag("a", "absolute", "keeps their place in the world (the default)"),
                     switchFlag("r", "relative", "keeps the numbers of their transforms"),
                     valueFlag("p", "parent", A::name, "what they stand under afterwards"),
                     switchFlag("w", "world", "they stand under the world afterwards")},
                    names(), ungroup),
        makeCommand("instance", "Makes instances of transforms",
                    {valueFlag("n", "name", A::string, "the new transform's name"),
                     switchFlag("lf", "leaf", "of shapes only; the transforms above them are copied"),
                     refusedFlag("st", "smartTransform", "there is no last transformation to repeat")},
                    names(), instance),
    });
}

} // namespace tvxhost::mel
