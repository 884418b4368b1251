// MeshTopology: see meshTopology.h.
#include "meshTopology.h"

#include "meshData.h"

namespace tvxhost::engine {

namespace {

/// Calls `use(face, corner)` for each corner of each face.
template <class Use>
void forEachCorner(const MeshData& mesh, const Use& use)
{
    for (std::size_t face = 0; face < mesh.faces.size(); ++face)
        for (const std::int32_t corner : mesh.faces.corners(face))
            use(static_cast<std::int32_t>(face), corner);
}

Incidence facesByEdge(const MeshData& mesh)
{
    return Incidence(mesh.edges.size(), [&](const auto& use) {
        forEachCorner(mesh, [&](std::int32_t face, std::int32_t corner) { use(edgeOf(corner), face); });
    });
}

Incidence edgesByVertex(const MeshData& mesh)
{
    return Incidence(mesh.points.size(), [&](const auto& use) {
        for (std::size_t i = 0; i < mesh.edges.size(); ++i) {
            const MeshData::Edge& edge = mesh.edges[i];
            use(edge.from, static_cast<std::int32_t>(i));
            if (edge.to != edge.from)
                use(edge.to, static_cast<std::int32_t>(i));
        }
    });
}

Incidence facesByVertex(const MeshData& mesh)
{
    return Incidence(mesh.points.size(), [&](const auto& use) {
        forEachCorner(mesh, [&](std::int32_t face, std::int32_t corner) { use(mesh.startOf(corner), face); });
    });
}

} // namespace

MeshTopology::MeshTopology(const MeshData& mesh)
    : m_mesh(mesh), m_facesOfEdge(facesByEdge(mesh)), m_edgesOfVertex(edgesByVertex(mesh))
{
}

IndexSpan MeshTopology::facesOfVertex(std::int32_t vertex) const
{
    if (!m_facesOfVertex)
        m_facesOfVertex = facesByVertex(m_mesh);
    return (*m_facesOfVertex)[vertex];
}

std::size_t MeshTopology::borderCount() const
{
    std::size_t count = 0;
    for (std::size_t i = 0; i < m_facesOfEdge.keys(); ++i)
        count += isBorder(static_cast<std::int32_t>(i)) ? 1 : 0;
    return count;
}

} // namespace tvxhost::engine
