// MeshTopology: what of a mesh is next to what.
#pragma once

#include "incidence.h"

#include <optional>

namespace tvxhost::engine {

class MeshData;

/// The neighbours of edges and vertices, each found in constant time. Belongs to the edges and faces of one
/// mesh, which must outlive it and not change.
class MeshTopology
{
public:
    explicit MeshTopology(const MeshData& mesh);

    /// The faces that use an edge, ascending; one that uses it twice (a seam to a hole) stands there twice.
    IndexSpan facesOfEdge(std::int32_t edge) const { return m_facesOfEdge[edge]; }
    /// The edges that end at a vertex, ascending.
    IndexSpan edgesOfVertex(std::int32_t vertex) const { return m_edgesOfVertex[vertex]; }
    /// The faces with a corner at a vertex, ascending; one with several such corners as often. Put together
    /// when it is first asked for.
    IndexSpan facesOfVertex(std::int32_t vertex) const;

    /// An edge that exactly one face uses, once. One without a face is a wire and no border.
    bool isBorder(std::int32_t edge) const { return facesOfEdge(edge).size() == 1; }
    std::size_t borderCount() const;

private:
    const MeshData& m_mesh;
    Incidence m_facesOfEdge;
    Incidence m_edgesOfVertex;
    mutable std::optional<Incidence> m_facesOfVertex;
};

} // namespace tvxhost::engine
