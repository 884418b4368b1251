// Measures of faces: areas, middles, normals, shapes.
#pragma once

#include "meshData.h"

namespace tvxhost::engine {

// Faces are given by number, which must exist. Holes count with the corners of their face.

/// The points of a face's corners, moved by a matrix.
std::vector<Vec3d> cornerPoints(const MeshData& mesh, std::size_t face, const Matrix& matrix = Matrix());
/// The numbers of the vertices at a face's corners.
std::vector<std::int32_t> cornerVertices(const MeshData& mesh, std::size_t face);

/// The mean of the corners; the origin for a face without any.
Vec3d centerOf(const MeshData& mesh, std::size_t face, const Matrix& matrix = Matrix());
/// Along the normal, as long as the face's area is large; holes take away from it.
Vec3d areaVector(const MeshData& mesh, std::size_t face, const Matrix& matrix = Matrix());
/// Of length one; zero for a face without area.
Vec3d faceNormal(const MeshData& mesh, std::size_t face);

/// Whether the outline bends one way only, seen along the normal, and there are no holes.
bool isConvex(const MeshData& mesh, std::size_t face);
/// Whether the middle of the corners sees the whole outline, seen along the normal, and there are no holes.
bool isStarlike(const MeshData& mesh, std::size_t face);
/// Whether no corner is further from the plane through the middle than a millionth of the face's size.
bool isPlanar(const MeshData& mesh, std::size_t face);
/// Whether another face has the same edges.
bool isLamina(const MeshData& mesh, std::size_t face);

} // namespace tvxhost::engine
