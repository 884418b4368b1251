// duplicate: copies of DAG objects.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "engine/duplicate.h"

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
    for (const SelectionItem& item : items) {
        engine::DagPath place = originalOf(context, item);
        DagNode& original = *place.node();
        require(context, place.pop());
        DagNode& copy = *valueOf(context, engine::duplicate(original, *place.node(), options));
        require(context, place.push(copy));
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
        makeCommand("duplicate", "Makes copies of DAG objects with what is below them",
                    {valueFlag("n", "name", A::string, "the copy's name"),
                     switchFlag("rr", "returnRootsOnly", "tells the copies only, not what is below them"),
                     switchFlag("ilf", "instanceLeaf", "shapes become instances"),
                     switchFlag("po", "parentOnly", "nothing below the objects")},
                    names(), duplicate),
    });
}

} // namespace tvxhost::mel
