// Scene: parents and children.
#include "scene.h"

#include "builtinTypes.h"
#include "dirtySpread.h"
#include "nameTable.h"

#include <algorithm>

namespace tvxhost::engine {

void Scene::link(DagNode& parent, DagNode& child)
{
    parent.m_children.push_back(&child);
    child.m_parents.push_back(&parent);
    m_names->addChild(parent, child);
    dirtyWorldSpace(child);
}

void Scene::unlink(DagNode& parent, DagNode& child)
{
    // New things are at the end, and what is deleted whole goes from the end.
    const auto inParent = std::find(parent.m_children.rbegin(), parent.m_children.rend(), &child);
    parent.m_children.erase(std::next(inParent).base());
    child.m_parents.erase(std::find(child.m_parents.begin(), child.m_parents.end(), &parent));
    m_names->removeChild(parent, child);
    dirtyWorldSpace(child);
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

} // namespace tvxhost::engine
