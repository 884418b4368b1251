// GraphIteration: following connections.
#include "graphIteration.h"

#include "engine/relatedAttributes.h"

#include <algorithm>

namespace tvxhost::api {

using engine::Attribute;
using engine::Node;
using engine::Plug;

namespace {

/// Whether one attribute of a node affects another, as its type declares it. Where it declares nothing, an
/// input affects all outputs.
bool affects(const Node& node, const Attribute& input, const Attribute& output)
{
    bool isDeclared = false;
    for (const Attribute* step = &input; step; step = step->parent) {
        const auto& affected = node.type().affectedBy(*step);
        isDeclared = isDeclared || !affected.empty();
        if (std::any_of(affected.begin(), affected.end(),
                        [&output](const Attribute* each) { return areRelated(*each, output); }))
            return true;
    }
    return !isDeclared && input.flags.writable && !output.flags.writable;
}

} // namespace

void GraphIteration::start()
{
    m_items.clear();
    m_visited.clear();
    m_open.clear();
    m_seen.clear();
    m_isPruned = false;
    if (!rootNode || !rootNode->isAlive())
        return;
    m_items.push_back({rootNode, rootPlug, {}, kNoItem});
    (void)isNew(m_items.front());
    m_open.push_back(0);
    goToNextWanted();
}

void GraphIteration::next()
{
    advance();
    goToNextWanted();
}

/// Leaves the present item, and has those behind it visited unless they were pruned.
void GraphIteration::advance()
{
    const std::size_t present = m_open.front();
    m_open.pop_front();
    const bool isEnd = m_isPruned || (isPruningOnFilter && !filter.accepts(m_items[present].node.get()));
    m_isPruned = false;
    if (isEnd || !m_items[present].node->isAlive())
        return;
    std::vector<std::size_t> behind;
    for (Item& item : reachedFrom(present))
        if (isNew(item)) {
            behind.push_back(m_items.size());
            m_items.push_back(std::move(item));
        }
    const auto where = traversal == MItDependencyGraph::kBreadthFirst ? m_open.end() : m_open.begin();
    m_open.insert(where, behind.begin(), behind.end());
}

void GraphIteration::goToNextWanted()
{
    while (!m_open.empty()) {
        const Item& item = m_items[m_open.front()];
        if (item.node->isAlive() && filter.accepts(item.node.get())) {
            m_visited.push_back(m_open.front());
            return;
        }
        advance();
    }
}

/// Whether it was not reached before; remembers it.
bool GraphIteration::isNew(const Item& item)
{
    auto& seen = m_seen[item.node.get()];
    if (level == MItDependencyGraph::kNodeLevel
            ? !seen.empty()
            : std::find(seen.begin(), seen.end(), item.plug) != seen.end())
        return false;
    seen.push_back(item.plug);
    return true;
}

/// Whether the iteration goes on through a plug of the item's node.
bool GraphIteration::leadsOn(const Item& item, const Plug& plug) const
{
    const bool isOnlyPlug = item.before == kNoItem && !item.plug.isNull();
    if (item.plug.isNull() || (level == MItDependencyGraph::kNodeLevel && !isOnlyPlug))
        return true;
    if (plug.isAtOrBelow(item.plug) || item.plug.isAtOrBelow(plug))
        return true;
    return direction == MItDependencyGraph::kDownstream
               ? affects(*item.node, *item.plug.attribute(), *plug.attribute())
               : affects(*item.node, *plug.attribute(), *item.plug.attribute());
}

std::vector<GraphIteration::Item> GraphIteration::reachedFrom(std::size_t from) const
{
    const Item& item = m_items[from];
    const bool isDownstream = direction == MItDependencyGraph::kDownstream;
    std::vector<Item> reached;
    for (const Plug& plug : engine::connectedPlugs(*item.node)) {
        if (!leadsOn(item, plug))
            continue;
        if (isDownstream)
            for (const Plug& destination : engine::destinationsOf(plug))
                reached.push_back({engine::Ref<Node>(destination.node()), destination, plug, from});
        else if (const Plug source = engine::sourceOf(plug); !source.isNull())
            reached.push_back({engine::Ref<Node>(source.node()), source, plug, from});
    }
    const engine::DagNode* dag = isDownstream && overWorldSpace ? item.node->asDag() : nullptr;
    if (dag)
        for (engine::DagNode* child : dag->children())
            reached.push_back({engine::Ref<Node>(child), {}, {}, from});
    return reached;
}

std::vector<const GraphIteration::Item*> GraphIteration::visited() const
{
    std::vector<const Item*> all;
    for (const std::size_t index : m_visited)
        all.push_back(&m_items[index]);
    return all;
}

std::vector<const GraphIteration::Item*> GraphIteration::path() const
{
    std::vector<const Item*> way;
    for (std::size_t index = m_open.empty() ? kNoItem : m_open.front(); index != kNoItem;
         index = m_items[index].before)
        way.insert(way.begin(), &m_items[index]);
    return way;
}

} // namespace tvxhost::api
