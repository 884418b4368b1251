// DagPath: see dagPath.h.
#include "dagPath.h"

#include "builtinTypes.h"
#include "scene.h"

#include <algorithm>

namespace tvxhost::engine {

DagPath DagPath::world(Scene& scene)
{
    DagPath path;
    path.m_world = Ref<Node>(&scene.world());
    return path;
}

DagPath DagPath::firstTo(DagNode& node)
{
    if (!node.isAlive())
        return {};
    DagPath path = world(node.scene());
    for (DagNode* step = &node; !step->isWorld(); step = step->parents().front()) {
        path.m_nodes.emplace_back(step);
        // A node that is just being made hangs nowhere yet.
        if (step->parents().empty())
            break;
    }
    std::reverse(path.m_nodes.begin(), path.m_nodes.end());
    return path;
}

std::vector<DagPath> DagPath::allTo(DagNode& node)
{
    if (!node.isAlive())
        return {};
    if (node.isWorld() || node.parents().empty())
        return {firstTo(node)};
    std::vector<DagPath> all;
    for (DagNode* parent : node.parents())
        for (DagPath& path : allTo(*parent)) {
            path.m_nodes.emplace_back(&node);
            all.push_back(std::move(path));
        }
    return all;
}

std::size_t DagPath::countTo(const DagNode& node)
{
    if (node.isWorld() || node.parents().empty())
        return 1;
    std::size_t count = 0;
    for (const DagNode* parent : node.parents())
        count += countTo(*parent);
    return count;
}

// Every call on a path asks this, so a path is walked again only after some object has died or come back.
bool DagPath::isValid() const
{
    const std::uint64_t now = Object::lifeChanges() + 1;
    if (m_validAt != now && isEachAlive())
        m_validAt = now;
    return m_world && m_validAt == now;
}

bool DagPath::isEachAlive() const
{
    return m_world && m_world->isAlive() &&
           std::all_of(m_nodes.begin(), m_nodes.end(),
                       [](const Ref<DagNode>& node) { return node->isAlive(); });
}

DagNode* DagPath::node() const
{
    if (!m_nodes.empty())
        return m_nodes.back().get();
    return m_world ? m_world->asDag() : nullptr;
}

DagNode* DagPath::transform() const
{
    for (auto step = m_nodes.rbegin(); step != m_nodes.rend(); ++step)
        if ((*step)->isTransform())
            return step->get();
    return nullptr;
}

Outcome DagPath::pop(std::size_t n)
{
    if (n > m_nodes.size())
        return {Reason::badIndex, "the path has no more than " + std::to_string(m_nodes.size()) + " nodes"};
    m_nodes.resize(m_nodes.size() - n);
    return {};
}

Outcome DagPath::push(DagNode& child)
{
    DagNode* end = node();
    if (!end)
        return {Reason::nullArgument, "the path is not valid"};
    const auto& parents = child.parents();
    if (std::find(parents.begin(), parents.end(), end) == parents.end())
        return {Reason::notFound, "'" + child.name() + "' is no child of '" + end->name() + "'"};
    m_nodes.emplace_back(&child);
    return {};
}

int DagPath::instanceNumber() const
{
    // The paths before this one: at each step down, all those through the parents before the one taken.
    std::size_t number = 0;
    for (std::size_t i = m_nodes.size(); i-- > 0;) {
        const DagNode* parent = i == 0 ? m_world->asDag() : m_nodes[i - 1].get();
        for (const DagNode* other : m_nodes[i]->parents()) {
            if (other == parent)
                break;
            number += countTo(*other);
        }
    }
    return static_cast<int>(number);
}

std::string DagPath::fullName() const
{
    std::string name;
    for (const Ref<DagNode>& step : m_nodes)
        name += "|" + step->name();
    return name;
}

std::string DagPath::partialName() const
{
    if (m_nodes.empty())
        return {};
    Scene& scene = m_nodes.back()->scene();
    std::vector<DagNode*> ending;
    std::string name;
    for (auto step = m_nodes.rbegin(); step != m_nodes.rend(); ++step) {
        ending.insert(ending.begin(), step->get());
        name = name.empty() ? (*step)->name() : (*step)->name() + "|" + name;
        if (scene.countPathsEndingIn(ending) <= 1)
            return name;
    }
    return fullName();
}

Matrix DagPath::inclusiveMatrix() const
{
    Matrix matrix;
    for (const Ref<DagNode>& step : m_nodes)
        matrix = inheritsTransform(*step) ? step->localMatrix() * matrix : step->localMatrix();
    return matrix;
}

Matrix DagPath::exclusiveMatrix() const
{
    DagPath above = *this;
    return above.pop() ? above.inclusiveMatrix() : Matrix();
}

bool DagPath::isVisible() const
{
    return std::all_of(m_nodes.begin(), m_nodes.end(),
                       [](const Ref<DagNode>& step) { return isShownByItself(*step); });
}

bool DagPath::isTemplated() const
{
    return std::any_of(m_nodes.begin(), m_nodes.end(),
                       [](const Ref<DagNode>& step) { return isTemplatedByItself(*step); });
}

DagNode* DagPath::shapeBelow() const
{
    const DagNode* end = node();
    if (!end)
        return nullptr;
    for (DagNode* child : end->children())
        if (child->isShape() && !child->isIntermediate())
            return child;
    return nullptr;
}

bool operator==(const DagPath& a, const DagPath& b)
{
    return a.m_world == b.m_world && a.m_nodes == b.m_nodes;
}

} // namespace tvxhost::engine
