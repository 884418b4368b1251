// SelectionList: see selection.h.
#include "selection.h"

#include "scene.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

/// Components are spoken of by the transform when the shape is the only one that it can mean.
std::string componentHolder(const DagPath& path, bool fullPath)
{
    DagPath above = path;
    if (path.length() > 1 && above.pop() && above.shapeBelow() == path.node())
        return fullPath ? above.fullName() : above.partialName();
    return fullPath ? path.fullName() : path.partialName();
}

} // namespace

std::string SelectionItem::name(bool fullPath) const
{
    if (!components.empty())
        return componentHolder(path, fullPath) + "." + components;
    std::string result = !isDag()   ? (node ? node->name() : std::string())
                         : fullPath ? path.fullName()
                                    : path.partialName();
    if (!plug.isNull()) {
        PlugNameStyle style;
        style.withNode = false;
        result += "." + plug.name(style);
    }
    return result;
}

bool operator==(const SelectionItem& a, const SelectionItem& b)
{
    return a.node == b.node && a.path == b.path && a.plug == b.plug && a.components == b.components;
}

bool SelectionList::contains(const SelectionItem& item) const
{
    return m_itemsOf.count(item.node.get()) &&
           std::find(m_items.begin(), m_items.end(), item) != m_items.end();
}

void SelectionList::add(const SelectionItem& item)
{
    if (contains(item))
        return;
    m_items.push_back(item);
    count(item, true);
}

void SelectionList::remove(const SelectionItem& item)
{
    const auto found = std::find(m_items.begin(), m_items.end(), item);
    if (found != m_items.end())
        removeAt(static_cast<std::size_t>(found - m_items.begin()));
}

void SelectionList::removeAt(std::size_t i)
{
    count(m_items[i], false);
    m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(i));
}

std::vector<SelectionList::Placed> SelectionList::removeNode(const Node& node)
{
    std::vector<Placed> removed;
    if (!m_itemsOf.erase(&node))
        return removed;
    const auto isOf = [&](const SelectionItem& item) { return item.node.get() == &node; };
    for (std::size_t i = 0; i < m_items.size(); ++i)
        if (isOf(m_items[i]))
            removed.emplace_back(i, m_items[i]);
    m_items.erase(std::remove_if(m_items.begin(), m_items.end(), isOf), m_items.end());
    return removed;
}

void SelectionList::putBack(const std::vector<Placed>& items)
{
    for (const auto& [place, item] : items) {
        m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(std::min(place, m_items.size())), item);
        count(item, true);
    }
}

void SelectionList::clear()
{
    m_items.clear();
    m_itemsOf.clear();
}

void SelectionList::count(const SelectionItem& item, bool more)
{
    const Node* node = item.node.get();
    if (more)
        ++m_itemsOf[node];
    else if (--m_itemsOf[node] == 0)
        m_itemsOf.erase(node);
}

} // namespace tvxhost::engine
