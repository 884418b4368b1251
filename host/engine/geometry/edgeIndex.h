// EdgeIndex: finds the edge between two vertices.
#pragma once

#include "meshData.h"

#include <cstdint>
#include <vector>

namespace tvxhost::engine {

/// A hash table over a list of edges that grows: four to eight bytes for each, in constant time.
class EdgeIndex
{
public:
    /// New edges are smooth.
    explicit EdgeIndex(std::vector<MeshData::Edge>& edges) : m_edges(edges) {}

    /// The corner that goes from one vertex to the other (see MeshFace); the edge is made when there is none.
    std::int32_t corner(std::int32_t from, std::int32_t to);

private:
    std::size_t placeOf(std::int32_t from, std::int32_t to) const;
    void grow();

    std::vector<MeshData::Edge>& m_edges;
    std::vector<std::int32_t> m_slots; ///< numbers of edges, -1 for a free one; a power of two of them
};

} // namespace tvxhost::engine
