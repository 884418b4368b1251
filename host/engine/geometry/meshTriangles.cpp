// The triangles of a mesh: see meshTriangles.h.
#include "meshTriangles.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

PolygonLoops loopsOf(const MeshData& mesh, std::size_t face)
{
    PolygonLoops loops(mesh.faces.loopCount(face));
    for (std::size_t i = 0; i < loops.size(); ++i)
        for (const std::int32_t corner : mesh.faces.loop(face, i))
            loops[i].emplace_back(mesh.points[static_cast<std::size_t>(mesh.startOf(corner))]);
    return loops;
}

} // namespace

MeshTriangles::MeshTriangles(const MeshData& mesh)
{
    m_ends.reserve(mesh.faces.size());
    for (std::size_t face = 0; face < mesh.faces.size(); ++face) {
        const std::vector<Triangle> split = triangulate(loopsOf(mesh, face));
        m_triangles.insert(m_triangles.end(), split.begin(), split.end());
        m_ends.push_back(static_cast<std::uint32_t>(m_triangles.size()));
    }
}

std::int32_t MeshTriangles::faceOf(std::size_t triangle) const
{
    const auto found = std::upper_bound(m_ends.begin(), m_ends.end(), triangle);
    return static_cast<std::int32_t>(found - m_ends.begin());
}

Triangle triangleVertices(const MeshData& mesh, std::size_t face, const Triangle& triangle)
{
    const IndexSpan corners = mesh.faces.corners(face);
    Triangle vertices{};
    std::transform(triangle.begin(), triangle.end(), vertices.begin(), [&](std::int32_t place) {
        return mesh.startOf(corners[static_cast<std::size_t>(place)]);
    });
    return vertices;
}

bool hasValidTriangles(const MeshData& mesh, std::size_t face)
{
    return hasValidTriangles(loopsOf(mesh, face));
}

} // namespace tvxhost::engine
