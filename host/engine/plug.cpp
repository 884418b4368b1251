// Plug: its place among the attributes, and its name.
#include "plug.h"

#include "node.h"
#include "scene.h"

#include <algorithm>

namespace tvxhost::engine {

Plug::Plug(Node& node, Attribute& attribute)
    : m_node(&node), m_attribute(&attribute),
      m_indexCount(std::max(0, std::min(kMaxDepth, attribute.arrayDepth()) - (attribute.isArray() ? 1 : 0)))
{
    m_indices.fill(kNoIndex);
}

bool Plug::isValid() const
{
    return m_attribute && m_node && m_node->isAlive() && m_node->hasAttribute(*m_attribute);
}

bool Plug::isArray() const
{
    return m_attribute && m_attribute->isArray() && m_indexCount < m_attribute->arrayDepth();
}

bool Plug::isElement() const
{
    return m_attribute && m_attribute->isArray() && m_indexCount == m_attribute->arrayDepth();
}

bool Plug::isCompound() const
{
    return m_attribute && m_attribute->isCompound();
}

bool Plug::isChild() const
{
    return m_attribute && m_attribute->parent;
}

bool Plug::isDynamic() const
{
    return m_attribute && m_attribute->flags.dynamic;
}

Plug Plug::child(std::size_t i) const
{
    return i < childCount() ? child(*m_attribute->children[i]) : Plug();
}

Plug Plug::child(const Attribute& attribute) const
{
    if (!m_attribute || attribute.parent != m_attribute.get())
        return {};
    Plug result(*m_node, const_cast<Attribute&>(attribute));
    std::copy_n(m_indices.begin(), std::min(m_indexCount, result.m_indexCount), result.m_indices.begin());
    return result;
}

std::size_t Plug::childCount() const
{
    return m_attribute ? m_attribute->children.size() : 0;
}

Plug Plug::parent() const
{
    if (!isChild())
        return {};
    Plug result(*m_node, *m_attribute->parent);
    result.m_indexCount = m_attribute->parent->arrayDepth();
    std::copy_n(m_indices.begin(), result.m_indexCount, result.m_indices.begin());
    return result;
}

Plug Plug::array() const
{
    if (!isElement())
        return {};
    Plug result = *this;
    --result.m_indexCount;
    result.m_indices[static_cast<std::size_t>(result.m_indexCount)] = kNoIndex;
    return result;
}

Plug Plug::element(int logicalIndex) const
{
    if (!isArray() || logicalIndex < 0)
        return {};
    Plug result = *this;
    result.m_indices[static_cast<std::size_t>(result.m_indexCount++)] = logicalIndex;
    return result;
}

int Plug::logicalIndex() const
{
    return m_indexCount > 0 ? m_indices[static_cast<std::size_t>(m_indexCount - 1)] : kNoIndex;
}

void Plug::selectIndex(const Attribute& array, int logicalIndex)
{
    if (!m_attribute || !array.isArray() || !m_attribute->isAtOrBelow(array))
        return;
    const int level = array.arrayDepth();
    m_indices[static_cast<std::size_t>(level - 1)] = logicalIndex;
    m_indexCount = std::max(m_indexCount, level);
}

bool Plug::isAtOrBelow(const Plug& other) const
{
    return m_attribute && other.m_attribute && m_node == other.m_node &&
           m_attribute->isAtOrBelow(*other.m_attribute) && m_indexCount >= other.m_indexCount &&
           std::equal(m_indices.begin(), m_indices.begin() + other.m_indexCount, other.m_indices.begin());
}

bool operator==(const Plug& a, const Plug& b)
{
    return a.m_node == b.m_node && a.m_attribute == b.m_attribute && a.m_indexCount == b.m_indexCount &&
           std::equal(a.m_indices.begin(), a.m_indices.begin() + a.m_indexCount, b.m_indices.begin());
}

namespace {

std::string nodeName(Node& node, bool longPath)
{
    DagNode* dag = node.asDag();
    if (dag && longPath)
        return DagPath::firstTo(*dag).fullName();
    return node.isAlive() ? node.scene().shortestName(node) : node.name();
}

/// From `name` down to the plug: the attribute's name and, of what stands above, what is needed to tell
/// which plug is meant.
std::string attributePath(const Plug& plug, const PlugNameStyle& style)
{
    std::string path;
    int level = plug.indexCount();
    bool isArrayItself = plug.isArray();
    for (const Attribute* attribute = plug.attribute(); attribute; attribute = attribute->parent) {
        const bool hasIndex = attribute->isArray() && !isArrayItself;
        isArrayItself = false;
        const bool isNeeded = path.empty() || hasIndex || style.fullPath;
        std::string step = isNeeded ? (style.longNames ? attribute->longName : attribute->shortName) : "";
        if (hasIndex)
            step += "[" + std::to_string(plug.indices()[static_cast<std::size_t>(--level)]) + "]";
        if (isNeeded)
            path = path.empty() ? step : step + "." + path;
    }
    return path;
}

} // namespace

std::string Plug::name(const PlugNameStyle& style) const
{
    if (isNull())
        return {};
    std::string path;
    if (style.useAlias)
        path = m_node->aliasOf(*this);
    if (path.empty())
        path = attributePath(*this, style);
    return style.withNode ? nodeName(*m_node, style.longNodePath) + "." + path : path;
}

} // namespace tvxhost::engine
