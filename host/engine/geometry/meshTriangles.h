// The triangles of a mesh: each face split into some.
#pragma once

#include "meshData.h"
#include "triangulation.h"

#include <vector>

namespace tvxhost::engine {

/// The triangles of all faces, face by face.
class MeshTriangles
{
public:
    explicit MeshTriangles(const MeshData& mesh);

    std::size_t size() const { return m_triangles.size(); }
    /// By its number among all; its corners are places among those of its face (see triangulate).
    const Triangle& operator[](std::size_t i) const { return m_triangles[i]; }

    /// The number of a face's first triangle among all, and how many it has.
    std::size_t first(std::size_t face) const { return face == 0 ? 0 : m_ends[face - 1]; }
    std::size_t count(std::size_t face) const { return m_ends[face] - first(face); }
    /// The face that a triangle is of.
    std::int32_t faceOf(std::size_t triangle) const;

private:
    std::vector<Triangle> m_triangles;
    std::vector<std::uint32_t> m_ends; ///< by face: past its last triangle
};

/// The vertices at the corners of a triangle of a face.
Triangle triangleVertices(const MeshData& mesh, std::size_t face, const Triangle& triangle);

/// Whether the triangles of a face together are the face (see triangulation.h).
bool hasValidTriangles(const MeshData& mesh, std::size_t face);

} // namespace tvxhost::engine
