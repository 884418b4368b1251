// SelectionList: nodes, DAG paths, plugs and components in the order in which they were added.
#pragma once

#include "dagPath.h"
#include "plug.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tvxhost::engine {

/// One item. A DAG item has a path and its node; a plug item has a plug and the plug's node.
struct SelectionItem
{
    Ref<Node> node;
    DagPath path;           ///< valid for DAG items
    Plug plug;              ///< not null for plug items
    std::string components; ///< "vtx[0:3]" and alike, as written; empty for whole objects

    bool isDag() const { return path.isValid(); }
    /// The shortest unique name, with plug or components.
    std::string name(bool fullPath = false) const;
    friend bool operator==(const SelectionItem& a, const SelectionItem& b);
};

class SelectionList
{
public:
    const std::vector<SelectionItem>& items() const { return m_items; }
    bool empty() const { return m_items.empty(); }
    bool contains(const SelectionItem& item) const;
    /// Adds at the end unless it is there already (then nothing moves).
    void add(const SelectionItem& item);
    void remove(const SelectionItem& item);
    void removeAt(std::size_t i);
    /// An item and its place.
    using Placed = std::pair<std::size_t, SelectionItem>;
    /// Takes out every item of a node; gives them with the places they had, in ascending order.
    std::vector<Placed> removeNode(const Node& node);
    /// Puts back what removeNode took out.
    void putBack(const std::vector<Placed>& items);
    friend bool operator==(const SelectionList& a, const SelectionList& b) { return a.m_items == b.m_items; }
    void clear();

private:
    void count(const SelectionItem& item, bool more);

    std::vector<SelectionItem> m_items;
    std::unordered_map<const Node*, std::size_t> m_itemsOf; ///< how many, so that most look-ups end here
};

} // namespace tvxhost::engine
