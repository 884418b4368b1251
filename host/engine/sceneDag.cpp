// Scene: parents and children.
#include "scene.h"

#include "builtinTypes.h"
#include "dirtySpread.h"
#include "nameTable.h"
#include "observers.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

/// A parent and a child for as long as an edit remembers them.
struct LinkedPair
{
    Ref<DagNode> parent;
    Ref<DagNode> child;
};

} // namespace

void Scene::link(DagNode& parent, DagNode& child)
{
    linkAt(parent, child, {});
    if (!m_journal.isRecording())
        return;
    const LinkedPair pair{&parent, &child};
    m_journal.record([this, pair] { cutLink(*pair.parent, *pair.child); },
                     [this, pair] { relink(*pair.parent, *pair.child, {}); });
}

void Scene::unlink(DagNode& parent, DagNode& child)
{
    const LinkPlace place = cutLink(parent, child);
    if (!m_journal.isRecording())
        return;
    const LinkedPair pair{&parent, &child};
    m_journal.record([this, pair, place] { relink(*pair.parent, *pair.child, place); },
                     [this, pair] { cutLink(*pair.parent, *pair.child); });
}

void Scene::linkAt(DagNode& parent, DagNode& child, const LinkPlace& place)
{
    const auto put = [](Node::Links& all, std::size_t at, DagNode* node) {
        all.insert(all.begin() + static_cast<std::ptrdiff_t>(std::min(at, all.size())), node);
    };
    put(parent.m_children, place.inParent, &child);
    put(child.m_parents, place.inChild, &parent);
    m_names->addChild(parent, child);
    dirtyWorldSpace(child);
    m_observers->tell({Happening::parentAdded, &child, &parent});
}

/// Links again, as far as what was edited without being recorded lets it.
void Scene::relink(DagNode& parent, DagNode& child, const LinkPlace& place)
{
    const auto& parents = child.m_parents;
    const bool isThere = std::find(parents.begin(), parents.end(), &parent) != parents.end();
    if (isThere || !parent.isAlive() || !child.isAlive())
        return;
    if (!isNameFree(child.name(), &child, &parent))
        putName(child, m_names->nextFree(child.name()));
    linkAt(parent, child, place);
}

/// Does nothing when they are not linked.
Scene::LinkPlace Scene::cutLink(DagNode& parent, DagNode& child)
{
    const auto inChild = std::find(child.m_parents.begin(), child.m_parents.end(), &parent);
    if (inChild == child.m_parents.end())
        return {};
    // New things are at the end, and what is deleted whole goes from the end.
    const auto found = std::find(parent.m_children.rbegin(), parent.m_children.rend(), &child);
    const auto inParent = std::next(found).base();
    const LinkPlace place{static_cast<std::size_t>(inParent - parent.m_children.begin()),
                          static_cast<std::size_t>(inChild - child.m_parents.begin())};
    parent.m_children.erase(inParent);
    child.m_parents.erase(inChild);
    m_names->removeChild(parent, child);
    dirtyWorldSpace(child);
    m_observers->tell({Happening::parentRemoved, &child, &parent});
    return place;
}

Outcome Scene::checkParenting(const DagNode& child, const DagNode& parent) const
{
    if (!child.isAlive() || !parent.isAlive())
        return {Reason::doesNotExist, "the node was deleted"};
    if (child.isWorld())
        return {Reason::wrongKind, "the world has no parent"};
    if (parent.isShape())
        return {Reason::wrongKind, "'" + parent.name() + "' is a shape and cannot have children"};
    if (child.isShape() && parent.isWorld())
        return {Reason::wrongKind, "the shape '" + child.name() + "' needs a transform above it"};
    std::vector<const DagNode*> above = {&parent};
    while (!above.empty()) {
        const DagNode* node = above.back();
        above.pop_back();
        if (node == &child)
            return {Reason::cycle, "'" + child.name() + "' cannot stand below itself"};
        above.insert(above.end(), node->parents().begin(), node->parents().end());
    }
    return {};
}

Outcome Scene::addParent(DagNode& child, DagNode& parent)
{
    if (Outcome outcome = checkParenting(child, parent); !outcome)
        return outcome;
    const auto& parents = child.parents();
    if (std::find(parents.begin(), parents.end(), &parent) != parents.end())
        return {Reason::nameTaken, "'" + parent.name() + "' is a parent of '" + child.name() + "' already"};
    if (!isNameFree(child.name(), &child, &parent))
        setName(child, m_names->nextFree(child.name()));
    link(parent, child);
    isModified = true;
    return {};
}

Outcome Scene::removeParent(DagNode& child, DagNode& parent)
{
    const auto& parents = child.parents();
    if (std::find(parents.begin(), parents.end(), &parent) == parents.end())
        return {Reason::notFound, "'" + parent.name() + "' is no parent of '" + child.name() + "'"};
    if (parents.size() == 1)
        return {Reason::readOnly, "'" + child.name() + "' needs a parent"};
    unlink(parent, child);
    isModified = true;
    return {};
}

Outcome Scene::reparent(DagNode& child, DagNode* from, DagNode* to)
{
    DagNode& source = from ? *from : *m_world;
    DagNode& target = to ? *to : *m_world;
    if (Outcome outcome = checkParenting(child, target); !outcome)
        return outcome;
    const auto& parents = child.parents();
    if (std::find(parents.begin(), parents.end(), &source) == parents.end())
        return {Reason::notFound, "'" + source.name() + "' is no parent of '" + child.name() + "'"};
    if (&source == &target)
        return {};
    if (std::find(parents.begin(), parents.end(), &target) != parents.end())
        return {Reason::nameTaken, "'" + target.name() + "' is a parent of '" + child.name() + "' already"};

    unlink(source, child);
    if (!isNameFree(child.name(), &child, &target))
        setName(child, m_names->nextFree(child.name()));
    link(target, child);
    isModified = true;
    return {};
}

Outcome Scene::reorder(DagNode& child, DagNode& parent, std::size_t place)
{
    const auto& children = parent.children();
    const auto found = std::find(children.begin(), children.end(), &child);
    if (found == children.end())
        return {Reason::notFound, "'" + parent.name() + "' is no parent of '" + child.name() + "'"};
    const auto before = static_cast<std::size_t>(found - children.begin());
    const LinkedPair pair{&parent, &child};
    const auto put = [this, pair](std::size_t at) {
        Node::Links& all = pair.parent->m_children;
        const auto now = std::find(all.begin(), all.end(), pair.child.get());
        if (now == all.end())
            return;
        all.erase(now);
        all.insert(all.begin() + static_cast<std::ptrdiff_t>(std::min(at, all.size())), pair.child.get());
        isModified = true;
    };
    put(place);
    if (m_journal.isRecording())
        m_journal.record([put, before] { put(before); }, [put, place] { put(place); });
    return {};
}

} // namespace tvxhost::engine
