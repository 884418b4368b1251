// GraphIteration: following connections, what MItDependencyGraph holds.
#pragma once

#include "engine/node.h"
#include "engine/plug.h"
#include "typeFilter.h"

#include <maya/MItDependencyGraph.h>

#include <deque>
#include <unordered_map>
#include <vector>

namespace tvxhost::api {

struct GraphIteration
{
    static constexpr std::size_t kNoItem = static_cast<std::size_t>(-1);

    /// One place that was reached.
    struct Item
    {
        engine::Ref<engine::Node> node;
        engine::Plug plug;     ///< by which the node was reached; null at a root that is a node
        engine::Plug previous; ///< of the node before, connected to `plug`
        std::size_t before;    ///< the item from which it was reached; kNoItem for the root
    };

    engine::Ref<engine::Node> rootNode;
    engine::Plug rootPlug; ///< null when the root is a node
    TypeFilter filter;
    MItDependencyGraph::Direction direction = MItDependencyGraph::kDownstream;
    MItDependencyGraph::Traversal traversal = MItDependencyGraph::kDepthFirst;
    MItDependencyGraph::Level level = MItDependencyGraph::kNodeLevel;
    bool isPruningOnFilter = false;
    bool overWorldSpace = false;

    /// Back to the root, at the first item that is wanted.
    OPENMAYA_EXPORT void start();
    /// Null at the end.
    const Item* present() const { return m_open.empty() ? nullptr : &m_items[m_open.front()]; }
    /// Goes on from the present item.
    OPENMAYA_EXPORT void next();
    void prune() { m_isPruned = true; }

    /// The items that were visited, the present one included, and those on the way to it.
    OPENMAYA_EXPORT std::vector<const Item*> visited() const;
    OPENMAYA_EXPORT std::vector<const Item*> path() const;

private:
    void advance();
    void goToNextWanted();
    bool isNew(const Item& item);
    std::vector<Item> reachedFrom(std::size_t from) const;
    bool leadsOn(const Item& item, const engine::Plug& plug) const;

    std::vector<Item> m_items;
    std::vector<std::size_t> m_visited;
    std::deque<std::size_t> m_open; ///< the present one first
    std::unordered_map<const engine::Node*, std::vector<engine::Plug>> m_seen;
    bool m_isPruned = false;
};

} // namespace tvxhost::api
