// Scene: nodes that leave it, are kept so that they can come back, and end.
#include "scene.h"

#include "cell.h"
#include "deletion.h"
#include "dirtySpread.h"
#include "nameTable.h"
#include "observers.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <vector>

namespace tvxhost::engine {

namespace {

/// What a node computes may hang on things that changed while it was away.
void outdateComputed(Node& node)
{
    DirtySpread spread;
    for (const std::unique_ptr<Cell>& root : node.cells().roots())
        if (node.isOutput(root->attribute()))
            spread.outdated(*root);
    spread.run();
}

} // namespace

/// That a node left the scene. It can come back for as long as one of these lives.
class Scene::Departure final : public Edit
{
public:
    Departure(Node& node, Ref<Node> next) : m_node(&node), m_next(std::move(next)) { ++m_node->m_departures; }
    ~Departure() override
    {
        if (--m_node->m_departures == 0 && m_node->m_isWaiting)
            m_node->scene().dispose(*m_node);
    }
    void undo() override
    {
        if (m_node->m_isWaiting)
            m_node->scene().comeBack(*m_node, m_next);
    }
    void redo() override
    {
        if (!m_node->isAlive())
            return;
        m_node->scene().observers().tell({Happening::nodeRemoved, m_node.get()});
        m_next = m_node->scene().leave(*m_node);
        m_node->scene().wait(*m_node);
    }

private:
    Ref<Node> m_node;
    Ref<Node> m_next;
};

void Scene::retireNode(Node& node)
{
    const Ref<Node> next = leave(node);
    if (!m_journal.isRecording() && node.m_departures == 0) {
        dispose(node);
        return;
    }
    wait(node);
    if (m_journal.isRecording())
        m_journal.record(std::make_unique<Departure>(node, next));
}

/// Takes a node out with all that it holds; gives the one that follows it.
Ref<Node> Scene::leave(Node& node)
{
    m_names->remove(node);
    return takeOut(node);
}

/// The same for a node whose name has been forgotten.
Ref<Node> Scene::takeOut(Node& node)
{
    const auto next = m_nodes.erase(node.m_place);
    --node.type().liveNodes;
    node.setAlive(false);
    return next == m_nodes.end() ? Ref<Node>() : Ref<Node>(*next);
}

/// Keeps a node that left, so that it can come back.
void Scene::wait(Node& node)
{
    ++node.type().waitingNodes;
    node.m_isWaiting = true;
    m_waiting.insert(&node);
}

void Scene::comeBack(Node& node, const Ref<Node>& next)
{
    // Nodes made without being recorded may have taken the name.
    const bool isTaken =
        node.asDag() ? m_names->isTakenByDependencyNode(node.name()) : m_names->isTaken(node.name());
    if (isTaken)
        node.m_name = m_names->nextFree(node.name());
    m_names->add(node);
    auto place = next && next->isAlive() ? next->m_place : m_nodes.end();
    while (!next && place != m_nodes.begin() && (*std::prev(place))->m_serial > node.m_serial)
        --place;
    node.m_place = m_nodes.insert(place, &node);
    ++node.type().liveNodes;
    --node.type().waitingNodes;
    node.m_isWaiting = false;
    m_waiting.erase(&node);
    node.setAlive(true);
    outdateComputed(node);
    m_observers->tell({Happening::nodeAdded, &node});
}

/// Ends a node that cannot come back any more.
void Scene::dispose(Node& node)
{
    if (node.m_isWaiting) {
        m_waiting.erase(&node);
        node.m_isWaiting = false;
        --node.type().waitingNodes;
    }
    m_observers->tell({Happening::nodeDestroyed, &node});
    m_observers->forget(node);
    node.m_behaviour.reset();
    node.m_cells->clear();
    node.release();
}

Outcome Scene::deleteNode(Node& node)
{
    if (!node.isAlive())
        return {Reason::doesNotExist, "the node was deleted"};
    if (Outcome allowed = checkDeletion(node); !allowed)
        return allowed;

    const Ref<Node> keptAlive(&node);
    m_observers->tell({Happening::nodeAboutToBeDeleted, &node});
    if (node.isAlive())
        erase(node);
    return {};
}

void Scene::erase(Node& node)
{
    // What hangs below goes too unless it hangs elsewhere as well: listed first, parents before children.
    std::vector<Ref<Node>> doomed = {Ref<Node>(&node)};
    for (std::size_t i = 0; i < doomed.size(); ++i) {
        DagNode* dag = doomed[i]->asDag();
        if (!dag)
            continue;
        if (i == 0)
            while (!dag->m_parents.empty())
                unlink(*dag->m_parents.front(), *dag);
        while (!dag->m_children.empty()) {
            DagNode& child = *dag->m_children.back();
            unlink(*dag, child);
            if (child.m_parents.empty())
                doomed.emplace_back(&child);
        }
    }
    for (const Ref<Node>& each : doomed) {
        m_observers->tell({Happening::nodeLeaving, each.get()});
        disconnectAll(*each);
    }
    for (const Ref<Node>& each : doomed) {
        deselect(m_selection, *each);
        deselect(m_hilite, *each);
        m_observers->tell({Happening::nodeRemoved, each.get()});
        retireNode(*each);
    }
    isModified = true;
}

void Scene::deselect(SelectionList& list, const Node& node)
{
    const std::vector<SelectionList::Placed> items = list.removeNode(node);
    if (items.empty())
        return;
    m_journal.record(
        [&list, items] { list.putBack(items); },
        [&list, removed = Ref<Node>(items.front().second.node)] { (void)list.removeNode(*removed); });
    if (&list == &m_selection)
        m_observers->tell({Happening::selectionChanged});
}

void Scene::emptyScene()
{
    m_journal.flush();
    const Journal::Into nothing(m_journal, nullptr);
    setSelection({});
    m_hilite.clear();
    std::vector<Node*> all(m_nodes.begin(), m_nodes.end());
    for (Node* node : all)
        if (node != m_world)
            m_observers->tell({Happening::nodeLeaving, node});
    for (Node* node : all)
        if (node != m_world)
            m_observers->tell({Happening::nodeRemoved, node});
    m_names->clear();
    for (Node* node : all) {
        if (DagNode* dag = node->asDag()) {
            dag->m_parents.clear();
            dag->m_children.clear();
        }
        node->m_cells->clear();
    }
    for (Node* node : all)
        if (node != m_world) {
            takeOut(*node);
            dispose(*node);
        }
    disposeWaiting();
}

/// In the order in which they were made, so that observers hear the same each time.
void Scene::disposeWaiting()
{
    std::vector<Ref<Node>> nodes(m_waiting.begin(), m_waiting.end());
    std::sort(nodes.begin(), nodes.end(),
              [](const Ref<Node>& a, const Ref<Node>& b) { return a->m_serial < b->m_serial; });
    for (const Ref<Node>& node : nodes)
        if (node->m_isWaiting)
            dispose(*node);
}

} // namespace tvxhost::engine
