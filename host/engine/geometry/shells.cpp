// Shells: see shells.h.
#include "shells.h"

#include <numeric>

namespace tvxhost::engine {

Shells::Shells(std::size_t items) : m_above(items), m_count(items)
{
    std::iota(m_above.begin(), m_above.end(), 0);
}

std::int32_t Shells::rootOf(std::int32_t item)
{
    while (m_above[static_cast<std::size_t>(item)] != item) {
        std::int32_t& next = m_above[static_cast<std::size_t>(item)];
        next = m_above[static_cast<std::size_t>(next)];
        item = next;
    }
    return item;
}

void Shells::join(std::int32_t a, std::int32_t b)
{
    const std::int32_t rootA = rootOf(a), rootB = rootOf(b);
    if (rootA == rootB)
        return;
    m_above[static_cast<std::size_t>(rootA)] = rootB;
    --m_count;
}

std::vector<std::int32_t> Shells::numbers()
{
    std::vector<std::int32_t> byRoot(m_above.size(), -1), numbers;
    std::int32_t next = 0;
    for (std::size_t item = 0; item < m_above.size(); ++item) {
        std::int32_t& number = byRoot[static_cast<std::size_t>(rootOf(static_cast<std::int32_t>(item)))];
        if (number < 0)
            number = next++;
        numbers.push_back(number);
    }
    return numbers;
}

Shells vertexShells(const MeshData& mesh)
{
    Shells shells(mesh.points.size());
    for (const MeshData::Edge& edge : mesh.edges)
        shells.join(edge.from, edge.to);
    return shells;
}

Shells uvShells(const MeshData& mesh, const UvSet& set)
{
    Shells shells(set.values.size());
    for (std::size_t face = 0; face < mesh.faces.size(); ++face) {
        std::int32_t first = kUnmapped;
        for (std::size_t i = 0; i < mesh.faces.corners(face).size(); ++i) {
            const std::int32_t uv = set.at(mesh.faces.firstCorner(face) + i);
            if (uv != kUnmapped && first != kUnmapped)
                shells.join(first, uv);
            if (first == kUnmapped)
                first = uv;
        }
    }
    return shells;
}

} // namespace tvxhost::engine
