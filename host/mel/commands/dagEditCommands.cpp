// duplicate: copies of nodes.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "api/support/pxBehaviour.h"
#include "engine/duplicate.h"

#include <algorithm>
#include <iterator>

namespace tvxhost::mel {

using engine::DagNode;
using engine::SelectionItem;

namespace {

void addTransformsBelow(engine::DagPath path, Value::Strings& list)
{
    for (DagNode* child : path.node()->children()) {
        engine::DagPath below = path;
        if (!child->isTransform() || !below.push(*child))
            continue;
        list.push_back(below.partialName());
        addTransformsBelow(below, list);
    }
}

/// The copy and everything below it get names that nothing else has.
void renameBelow(const CommandContext& context, DagNode& node)
{
    engine::Scene& scene = sceneOf(context);
    for (DagNode* child : node.children()) {
        valueOf(context, scene.rename(*child, scene.uniqueName(child->name(), child)));
        renameBelow(context, *child);
    }
}

/// What feeds the original, and what is below it, feeds the copy too.
void connectInputs(const CommandContext& context, engine::Node& original, engine::Node& copy)
{
    engine::PlugNameStyle style;
    style.withNode = false;
    style.fullPath = true;
    for (const engine::Plug& plug : engine::connectedPlugs(original)) {
        const engine::Plug source = engine::sourceOf(plug);
        const auto twin = copy.findPlug(plug.name(style));
        if (!source.isNull() && twin && engine::sourceOf(twin.value).isNull())
            require(context, sceneOf(context).connect(source, twin.value));
    }
    DagNode* from = original.asDag();
    DagNode* to = copy.asDag();
    if (!from || !to)
        return;
    std::vector<DagNode*> originals;
    // Intermediate shapes are not copied.
    std::copy_if(from->children().begin(), from->children().end(), std::back_inserter(originals),
                 [](DagNode* child) { return !child->isIntermediate(); });
    for (std::size_t i = 0; i < originals.size() && i < to->children().size(); ++i)
        if (originals[i] != to->children()[i])
            connectInputs(context, *originals[i], *to->children()[i]);
}

/// The transform that an item means: a shape stands for the one above it.
engine::DagPath originalOf(const CommandContext& context, const SelectionItem& item)
{
    engine::DagPath path = item.path;
    const bool isBelow = path.isValid() && path.length() > 1 && path.node()->isShape();
    if (isBelow)
        require(context, path.pop());
    if (!path.isValid() || path.length() == 0)
        context.fail("'" + item.name() + "' is not a DAG node");
    return path;
}

Value duplicate(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const std::vector<SelectionItem> items = itemsOrSelection(context, call.names());
    if (items.empty())
        context.fail("Nothing is selected to duplicate.");
    engine::DuplicateOptions options;
    options.name = call.string("name");
    options.sharesLeaves = call.has("instanceLeaf");
    options.onlyParent = call.has("parentOnly");
    Value::Strings made;
    engine::SelectionList list;
    options.onCopy = api::copyInternalData;
    for (const SelectionItem& item : items) {
        if (item.node && !item.path.isValid() && !item.node->asDag()) {
            engine::Node& copy = *valueOf(context, engine::duplicateNode(*item.node, options));
            if (call.has("inputConnections"))
                connectInputs(context, *item.node, copy);
            made.push_back(copy.name());
            list.add(itemNamed(context, made.back()));
            continue;
        }
        engine::DagPath place = originalOf(context, item);
        DagNode& original = *place.node();
        require(context, place.pop());
        DagNode& copy = *valueOf(context, engine::duplicate(original, *place.node(), options));
        require(context, place.push(copy));
        if (call.has("renameChildren"))
            renameBelow(context, copy);
        if (call.has("inputConnections"))
            connectInputs(context, original, copy);
        made.push_back(place.partialName());
        list.add(itemNamed(context, made.back()));
        if (!call.has("returnRootsOnly"))
            addTransformsBelow(place, made);
    }
    scene.setSelection(std::move(list));
    return Value(std::move(made));
}

} // namespace

void registerDagEditCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand(
            "duplicate", "Makes copies of nodes, of DAG objects with what is below them",
            {valueFlag("n", "name", A::string, "the copy's name"),
             switchFlag("rr", "returnRootsOnly", "tells the copies only, not what is below them"),
             switchFlag("ilf", "instanceLeaf", "shapes become instances"),
             switchFlag("po", "parentOnly", "nothing below the objects"),
             switchFlag("rc", "renameChildren", "what is below gets names of its own"),
             switchFlag("ic", "inputConnections", "what feeds the objects feeds the copies"),
             refusedFlag("un", "upstreamNodes", "duplicate the nodes that feed the objects themselves"),
             refusedFlag("st", "smartTransform", "there is no last transformation to repeat")},
            names(), duplicate),
    });
}

} // namespace tvxhost::mel
