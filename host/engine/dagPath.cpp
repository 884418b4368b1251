// DagPath: see dagPath.h.
#include "dagPath.h"

#include "builtinTypes.h"
#include "scene.h"

#include <algorithm>

namespace tvxhost::engine {

DagPath::DagPath(const DagPath& other)
    : m_world(other.m_world), m_nodes(other.m_nodes), m_validAt(other.m_validAt)
{
    for (const DagNode* node : m_nodes)
        node->retain();
}

DagPath::~DagPath()
{
    for (const DagNode* node : m_nodes)
        node->release();
}

DagPath& DagPath::operator=(DagPath other) noexcept
{
    std::swap(m_world, other.m_world);
    std::swap(m_nodes, other.m_nodes);
    std::swap(m_validAt, other.m_validAt);
    return *this;
}

void DagPath::append(DagNode& node)
{
    m_nodes.push_back(&node);
    node.retain();
}

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
    PointerList<DagNode, 4> upwards;
    for (DagNode* step = &node; !step->isWorld(); step = step->parents().front()) {
        upwards.push_back(step);
        // A node that is just being made hangs nowhere yet.
        if (step->parents().empty())
            break;
    }
    DagPath path = world(node.scene());
    std::for_each(upwards.rbegin(), upwards.rend(), [&](DagNode* step) { path.append(*step); });
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
            path.append(node);
            all.push_back(std::move(path));
        }
    return all;
}

std::size_t DagPath::countTo(const DagNode& node)
{
    const DagNode* fork = &node;
    while (fork->parents().size() == 1)
        fork = fork->parents().front();
    if (fork->parents().empty())
        return 1;
    std::size_t count = 0;
    for (const DagNode* parent : fork->parents())
        count += countTo(*parent);
    return count;
}

bool DagPath::isEachAlive() const
{
    const bool isEach =
        m_world->isAlive() &&
        std::all_of(m_nodes.begin(), m_nodes.end(), [](const DagNode* node) { return node->isAlive(); });
    if (isEach)
        m_validAt = Object::lifeChanges() + 1;
    return isEach;
}

DagNode* DagPath::transform() const
{
    for (auto step = m_nodes.rbegin(); step != m_nodes.rend(); ++step)
        if ((*step)->isTransform())
            return *step;
    return nullptr;
}

Outcome DagPath::pop(std::size_t n)
{
    if (n > m_nodes.size())
        return {Reason::badIndex, "the path has no more than " + std::to_string(m_nodes.size()) + " nodes"};
    std::for_each(m_nodes.end() - n, m_nodes.end(), [](const DagNode* node) { node->release(); });
    m_nodes.dropLast(n);
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
    append(child);
    return {};
}

int DagPath::instanceNumber() const
{
    // The paths before this one: at each step down, all those through the parents before the one taken.
    std::size_t number = 0;
    for (std::size_t i = m_nodes.size(); i-- > 0;) {
        const DagNode* parent = i == 0 ? m_world->asDag() : m_nodes[i - 1];
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
    for (const DagNode* step : m_nodes)
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
        ending.insert(ending.begin(), *step);
        name = name.empty() ? (*step)->name() : (*step)->name() + "|" + name;
        if (scene.countPathsEndingIn(ending) <= 1)
            return name;
    }
    return fullName();
}

Matrix DagPath::inclusiveMatrix() const
{
    Matrix matrix;
    for (DagNode* step : m_nodes)
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
    return std::all_of(m_nodes.begin(), m_nodes.end(), [](DagNode* step) { return isShownByItself(*step); });
}

bool DagPath::isTemplated() const
{
    return std::any_of(m_nodes.begin(), m_nodes.end(),
                       [](DagNode* step) { return isTemplatedByItself(*step); });
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
