// listSets: the sets of a scene, or those that an object is in.
#include "commandSupport.h"
#include "sceneCommands.h"
#include "setMembers.h"

#include <algorithm>
#include <iterator>

namespace tvxhost::mel {

using engine::Node;
using engine::SelectionItem;

namespace {

/// A sort of sets, by the number that stands for it.
struct SetSort
{
    int number;
    bool (*has)(Node& set);
};

constexpr SetSort kSorts[] = {
    {1, [](Node& set) { return set.type().isA("shadingEngine"); }},
    {2,
     [](Node& set) {
         const auto users = set.findPlug("usedBy");
         return users && engine::isFedAnywhere(users.value);
     }},
};

bool isOfSort(const CommandContext& context, const ParsedCommand& call, Node& set)
{
    if (!call.has("type"))
        return true;
    for (const SetSort& sort : kSorts)
        if (sort.number == call.integer("type"))
            return sort.has(set);
    context.fail("listSets: a type is 1 for rendering sets or 2 for deformer sets");
}

/// The object, and the shapes directly below it when they are asked for.
std::vector<SelectionItem> placesOf(const ParsedCommand& call, const SelectionItem& item)
{
    std::vector<SelectionItem> items = {item};
    const bool isTransform = item.isDag() && item.components.empty() && item.path.node()->isTransform();
    if (!call.has("extendToShape") || !isTransform)
        return items;
    for (engine::DagNode* child : item.path.node()->children()) {
        SelectionItem shape;
        shape.node = child;
        shape.path = item.path;
        if (child->isShape() && shape.path.push(*child))
            items.push_back(shape);
    }
    return items;
}

Value listSets(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<std::string> names = call.names();
    std::vector<SelectionItem> items;
    if (call.has("object") || !names.empty())
        items = placesOf(call, itemNamed(context, call.string("object", names.empty() ? "" : names.front())));
    else if (!call.has("allSets") && !call.has("type"))
        context.fail("listSets: say of which object, or -allSets");
    Value::Strings found;
    for (Node* node : sceneOf(context).nodes()) {
        if (!engine::isSet(*node) || !isOfSort(context, call, *node))
            continue;
        const bool isListed =
            items.empty() || std::any_of(items.begin(), items.end(), [&](const SelectionItem& item) {
                return membershipOf(*node, item) != Membership::none;
            });
        if (isListed)
            found.push_back(node->name());
    }
    return Value(std::move(found));
}

} // namespace

void registerListSetsCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({makeCommand("listSets", "Lists sets",
                           {switchFlag("as", "allSets", "all sets of the scene"),
                            switchFlag("ets", "extendToShape", "also those of the shapes below a transform"),
                            valueFlag("o", "object", A::name, "those that this object is in"),
                            valueFlag("t", "type", A::integer, "1: rendering sets, 2: deformer sets")},
                           names(0, 1), listSets)});
}

} // namespace tvxhost::mel
