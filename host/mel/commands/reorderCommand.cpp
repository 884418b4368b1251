// reorder: the place of objects among those below the same parent.
#include "commandSupport.h"
#include "sceneCommands.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::DagNode;
using engine::SelectionItem;

namespace {

/// An object and the parent that it is below where it was named.
struct Child
{
    DagNode* node;
    DagNode* parent;
};

DagNode* nodeAbove(engine::DagPath path)
{
    return path.pop() ? path.node() : nullptr;
}

/// A shape without siblings stands for the transform above it.
Child childMeant(const CommandContext& context, const SelectionItem& item)
{
    if (!item.isDag() || item.path.length() == 0)
        context.fail("reorder: '" + item.name() + "' is not a DAG object");
    engine::DagPath path = item.path;
    if (path.node()->isShape() && nodeAbove(path)->children().size() == 1)
        require(context, path.pop());
    return {path.node(), nodeAbove(path)};
}

/// Where so many steps lead from a place, round and round.
std::size_t stepped(std::size_t place, int steps, std::size_t count)
{
    const auto size = static_cast<long long>(count);
    const long long target = (static_cast<long long>(place) + steps) % size;
    return static_cast<std::size_t>(target < 0 ? target + size : target);
}

std::size_t newPlace(const ParsedCommand& call, const Child& child)
{
    const auto& siblings = child.parent->children();
    if (call.has("front"))
        return 0;
    if (call.has("back"))
        return siblings.size() - 1;
    const auto place = std::find(siblings.begin(), siblings.end(), child.node) - siblings.begin();
    return stepped(static_cast<std::size_t>(place), call.integer("relative"), siblings.size());
}

Value reorder(CommandContext& context, const ParsedCommand& call)
{
    if (call.has("front") + call.has("back") + call.has("relative") != 1)
        context.fail("reorder: one of -front, -back and -relative is needed");
    std::vector<SelectionItem> items = itemsOrSelection(context, call.names());
    if (items.empty())
        context.fail("Nothing is selected to reorder.");
    // What moves to the front or towards the end goes in this order, so that several stay as they are named.
    if (call.has("front") || call.integer("relative") > 0)
        std::reverse(items.begin(), items.end());
    for (const SelectionItem& item : items) {
        const Child child = childMeant(context, item);
        require(context, sceneOf(context).reorder(*child.node, *child.parent, newPlace(call, child)));
    }
    return {};
}

} // namespace

void registerReorderCommands(CommandTable& table)
{
    table.add(
        {makeCommand("reorder", "Moves objects among those below the same parent",
                     {switchFlag("f", "front", "to the beginning"), switchFlag("b", "back", "to the end"),
                      valueFlag("r", "relative", ArgumentType::integer,
                                "by so many places, from the end on at the beginning and back")},
                     names(), reorder)});
}

} // namespace tvxhost::mel
