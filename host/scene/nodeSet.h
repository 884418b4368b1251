// NodeSet: which nodes of a scene have been met.
#pragma once

#include "engine/node.h"

#include <cstdint>
#include <unordered_set>
#include <vector>

namespace tvxhost::scene {

/// A set of nodes, told apart by their serials. Cheap for nodes that were made after it: one bit each.
class NodeSet
{
public:
    /// @param last the serial of the last node that is there already.
    explicit NodeSet(std::uint64_t last) : m_last(last) {}

    void insert(const engine::Node& node)
    {
        if (node.serial() <= m_last) {
            m_earlier.insert(node.serial());
            return;
        }
        if (bitOf(node) >= m_later.size())
            m_later.resize(bitOf(node) + 1);
        m_later[bitOf(node)] = true;
    }
    bool contains(const engine::Node& node) const
    {
        if (node.serial() <= m_last)
            return m_earlier.count(node.serial()) != 0;
        return bitOf(node) < m_later.size() && m_later[bitOf(node)];
    }

private:
    std::size_t bitOf(const engine::Node& node) const
    {
        return static_cast<std::size_t>(node.serial() - m_last - 1);
    }

    std::uint64_t m_last;
    std::vector<bool> m_later;
    std::unordered_set<std::uint64_t> m_earlier;
};

} // namespace tvxhost::scene
