// select, hilite: what is active.
#include "commandSupport.h"
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

void addAll(SelectionList& list, const std::vector<SelectionItem>& items)
{
    for (const SelectionItem& item : items)
        list.add(item);
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
    SelectionList list;
    if (call.has("addFirst")) {
        addAll(list, items);
        addAll(list, scene.selection().items());
    } else if (call.has("add") || call.has("deselect") || call.has("toggle")) {
        list = scene.selection();
        for (const SelectionItem& item : items) {
            if (call.has("deselect") || (call.has("toggle") && list.contains(item)))
                list.remove(item);
            else
                list.add(item);
        }
    } else {
        addAll(list, items);
    }
    scene.setSelection(std::move(list));
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
