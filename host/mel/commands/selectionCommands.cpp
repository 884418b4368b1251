// select, hilite: what is active.
#include "commandSupport.h"
#include "memberLists.h"
#include "sceneCommands.h"
#include "setMembers.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::DagNode;
using engine::SelectionItem;
using engine::SelectionList;

namespace {

void addBelow(DagNode& node, std::vector<SelectionItem>& items)
{
    for (DagNode* child : node.children()) {
        SelectionItem item;
        item.node = child;
        item.path = engine::DagPath::firstTo(*child);
        items.push_back(item);
        addBelow(*child, items);
    }
}

SelectionItem itemOfNode(engine::Node& node)
{
    SelectionItem item;
    item.node = &node;
    if (DagNode* dag = node.asDag())
        item.path = engine::DagPath::firstTo(*dag);
    return item;
}

std::vector<SelectionItem> allNodes(engine::Scene& scene, bool dag, bool depend)
{
    std::vector<SelectionItem> items;
    for (engine::Node* node : scene.nodes()) {
        const DagNode* dagNode = node->asDag();
        const bool isTop = dagNode && !dagNode->isWorld() && dagNode->parents().front()->isWorld();
        if ((dag && isTop) || (depend && !node->doNotWrite && (!dag || !dagNode)))
            items.push_back(itemOfNode(*node));
    }
    return items;
}

/// The items a call names, sets replaced by their members unless -noExpand.
std::vector<SelectionItem> wanted(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    if (call.has("all") || call.has("allDagObjects") || call.has("allDependencyNodes"))
        return allNodes(scene, !call.has("allDependencyNodes"), !call.has("allDagObjects"));
    std::vector<SelectionItem> items;
    const auto names = call.names();
    for (const SelectionItem& item : names.empty() && !call.has("hierarchy")
                                         ? std::vector<SelectionItem>()
                                         : itemsOrSelection(context, names)) {
        const bool isSet = item.plug.isNull() && item.node->type().isA("objectSet");
        if (isSet && !call.has("noExpand")) {
            const std::vector<SelectionItem> members = setMembers(*item.node);
            items.insert(items.end(), members.begin(), members.end());
            continue;
        }
        items.push_back(item);
        if (call.has("hierarchy") && item.node->asDag())
            addBelow(*item.node->asDag(), items);
    }
    return items;
}

bool hasComponents(const std::vector<SelectionItem>& items)
{
    return std::any_of(items.begin(), items.end(),
                       [](const SelectionItem& item) { return !item.components.empty(); });
}

/// Components of one object are together, in runs.
SelectionList listOf(const std::vector<SelectionItem>& items)
{
    SelectionList list;
    for (const SelectionItem& item : hasComponents(items) ? merged(items) : items)
        list.add(item);
    return list;
}

bool isSelected(const SelectionList& list, const SelectionItem& item)
{
    return item.components.empty() ? list.contains(item) : !common({item}, list.items()).empty();
}

void deselect(SelectionList& list, const SelectionItem& item)
{
    if (item.components.empty())
        list.remove(item);
    else
        list = listOf(without(list.items(), {item}));
}

/// One list after the other.
std::vector<SelectionItem> joined(std::vector<SelectionItem> first, const std::vector<SelectionItem>& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// What is selected once the items are added to it or taken out.
SelectionList changed(SelectionList list, const std::vector<SelectionItem>& items, const ParsedCommand& call)
{
    std::vector<SelectionItem> added;
    for (const SelectionItem& item : items)
        if (call.has("deselect") || (call.has("toggle") && isSelected(list, item)))
            deselect(list, item);
        else
            added.push_back(item);
    return listOf(joined(list.items(), added));
}

Value select(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    if (call.has("clear")) {
        scene.setSelection({});
        return {};
    }
    std::vector<SelectionItem> items = wanted(context, call);
    if (call.has("visible"))
        items.erase(
            std::remove_if(items.begin(), items.end(),
                           [](const SelectionItem& item) { return !item.isDag() || !item.path.isVisible(); }),
            items.end());
    const SelectionList& before = scene.selection();
    if (call.has("addFirst"))
        scene.setSelection(listOf(joined(items, before.items())));
    else if (call.has("add") || call.has("deselect") || call.has("toggle"))
        scene.setSelection(changed(before, items, call));
    else
        scene.setSelection(listOf(items));
    return {};
}

/// The objects whose components can be picked. Only whole DAG objects can be hilited.
Value hilite(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    SelectionList list;
    if (!call.has("replace"))
        list = scene.hilite();
    for (const SelectionItem& item : itemsOrSelection(context, call.names())) {
        if (!item.isDag() || !item.plug.isNull() || !item.components.empty())
            continue;
        if (call.has("unHilite") || (call.has("toggle") && list.contains(item)))
            list.remove(item);
        else
            list.add(item);
    }
    scene.setHilite(std::move(list));
    return {};
}

} // namespace

void registerSelectionCommands(CommandTable& table)
{
    table.add(
        {makeCommand("select", "Changes the selection",
                     {switchFlag("r", "replace", "the objects become the selection (the default)"),
                      switchFlag("add", "add", "adds them at the end"),
                      switchFlag("af", "addFirst", "adds them at the beginning"),
                      switchFlag("d", "deselect", "takes them out"),
                      switchFlag("tgl", "toggle", "adds those that are not selected, takes out the others"),
                      switchFlag("cl", "clear", "nothing is selected"),
                      switchFlag("all", "all", "every top-level object and every node"),
                      switchFlag("ado", "allDagObjects", "every top-level object"),
                      switchFlag("adn", "allDependencyNodes", "every node"),
                      switchFlag("hi", "hierarchy", "with everything below"),
                      switchFlag("ne", "noExpand", "sets themselves, not their members"),
                      switchFlag("vis", "visible", "visible objects only"),
                      refusedFlag("cc", "containerCentric", "containers are nodes like others"),
                      refusedFlag("sym", "symmetry", "there is no symmetric picking"),
                      refusedFlag("sys", "symmetrySide", "there is no symmetric picking")},
                     names(), select),
         makeCommand("hilite", "Hilites objects, or the selected ones, for the selection of components",
                     {switchFlag("r", "replace", "the objects alone are hilited"),
                      switchFlag("tgl", "toggle", "hilites those that are not, and the others no more"),
                      switchFlag("u", "unHilite", "they are hilited no more")},
                     names(), hilite)});
}

} // namespace tvxhost::mel
