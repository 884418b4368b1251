// Items of selection lists, from what the API names them by.
#pragma once

#include "component.h"
#include "engine/scene.h"
#include "handles.h"

#include <algorithm>

namespace tvxhost::api {

/// A node as an item: a DAG node by its first path.
inline engine::SelectionItem itemOf(engine::Node& node)
{
    engine::SelectionItem item;
    item.node = &node;
    if (engine::DagNode* dagNode = node.asDag())
        item.path = engine::DagPath::firstTo(*dagNode);
    return item;
}

inline engine::SelectionItem itemOf(const engine::DagPath& path, const std::string& components = {})
{
    engine::SelectionItem item;
    item.node = static_cast<engine::Node*>(path.node());
    item.path = path;
    item.components = components;
    return item;
}

inline engine::SelectionItem itemOf(const engine::Plug& plug)
{
    engine::SelectionItem item;
    item.node = plug.node();
    item.plug = plug;
    return item;
}

/// Whether two items stand for the same thing, components aside.
inline bool isSameObject(const engine::SelectionItem& a, const engine::SelectionItem& b)
{
    return a.node == b.node && a.path == b.path && a.plug == b.plug;
}

/// All items of the scene that a name, in which wildcards may stand, means. doesNotExist when there is none.
inline engine::Expected<std::vector<engine::SelectionItem>> itemsNamed(engine::Scene& scene,
                                                                       const std::string& name)
{
    std::vector<engine::SelectionItem> items = scene.findItems(name);
    if (items.empty()) {
        auto one = scene.findItem(name);
        if (!one)
            return engine::Outcome(engine::Reason::doesNotExist);
        items.push_back(std::move(one.value));
    }
    return items;
}

/// The one node of the scene with that identity; null when there is none.
inline engine::Node* nodeWithUuid(engine::Scene& scene, const std::string& uuid)
{
    const auto& nodes = scene.nodes();
    const auto found = std::find_if(nodes.begin(), nodes.end(),
                                    [&uuid](const engine::Node* node) { return node->uuid() == uuid; });
    return found == nodes.end() ? nullptr : *found;
}

} // namespace tvxhost::api
