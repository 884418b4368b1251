// Between places on the surface of a mesh and its texture coordinates.
#pragma once

#include "triangleTree.h"

#include <optional>

namespace tvxhost::engine {

/// The texture coordinate at a place, between those of its triangle's corners; none where one of these has
/// none.
std::optional<Vec2f> uvAt(const MeshData& mesh, const UvSet& set, const SurfacePoint& place);

/// The place of one face that is nearest to a point, the mesh being moved by a matrix; none for a face
/// without triangles.
std::optional<SurfacePoint> nearestOnFace(const MeshData& mesh, std::int32_t face, const Vec3d& point,
                                          const Matrix& matrix);

/// The place of a face that has a texture coordinate, or one no further from it in the texture than the
/// tolerance; none when there is none.
std::optional<SurfacePoint> placeAt(const MeshData& mesh, const UvSet& set, std::int32_t face,
                                    const Vec2f& uv, double tolerance, const Matrix& matrix);

} // namespace tvxhost::engine
