// Deletion: see deletion.h.
#include "deletion.h"

#include "scene.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace tvxhost::engine {

namespace {

bool isCamera(const Node& node)
{
    return node.type().isA("camera");
}

void setShared(Node& node, bool on)
{
    node.scene().journal().keep(node.isShared, Ref<Node>(&node));
    node.isShared = on;
}

/// A node and what is below it and nowhere else, parents before children.
std::vector<const Node*> withWhatGoesAlong(const Node& top)
{
    std::vector<const Node*> leaving = {&top};
    std::unordered_map<const DagNode*, std::size_t> lostParents;
    for (std::size_t i = 0; i < leaving.size(); ++i) {
        const DagNode* dag = leaving[i]->asDag();
        if (!dag)
            continue;
        for (const DagNode* child : dag->children())
            if (const std::size_t parents = child->parents().size();
                parents == 1 || ++lostParents[child] == parents)
                leaving.push_back(child);
    }
    return leaving;
}

} // namespace

bool isStartupCamera(const Node& node)
{
    const DagNode* dag = node.asDag();
    if (!dag || !node.isShared)
        return false;
    const auto& below = dag->children();
    return isCamera(node) || std::any_of(below.begin(), below.end(), [](const DagNode* child) {
               return child->isShared && isCamera(*child);
           });
}

void setStartupCamera(DagNode& node, bool on)
{
    DagNode& transform = isCamera(node) ? *node.parents().front() : node;
    setShared(transform, on);
    for (DagNode* child : transform.children())
        if (isCamera(*child))
            setShared(*child, on);
}

bool isUndeletable(const Node& node)
{
    return node.isDefaultNode || isStartupCamera(node);
}

Outcome checkDeletion(const Node& node)
{
    if (node.isReferenced)
        return {Reason::readOnly, "'" + node.name() + "' is referenced and cannot be deleted"};
    for (const Node* leaving : withWhatGoesAlong(node)) {
        if (leaving->isLockedNode)
            return {Reason::readOnly,
                    "Cannot delete locked node '" + node.scene().shortestName(*leaving) + "'"};
        if (isUndeletable(*leaving))
            return {Reason::readOnly, "Non-deletable object '" + node.scene().shortestName(node) +
                                          "' (or its descendents) cannot be deleted"};
    }
    return {};
}

} // namespace tvxhost::engine
