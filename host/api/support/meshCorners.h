// The corners of faces by their places among all corners of a mesh.
#pragma once

#include "engine/geometry/meshData.h"

#include <optional>
#include <vector>

namespace tvxhost::api {

/// A corner of a face.
struct FaceCorner
{
    std::int32_t face = 0;
    std::size_t corner = 0; ///< among all corners (see FaceTable::firstCorner)
};

/// The corner of a face that has a number there; none for a face or a corner that does not exist.
std::optional<std::size_t> localCorner(const engine::MeshData& mesh, std::int64_t face, std::int64_t corner);
/// The corner that a face has at a vertex.
std::optional<std::size_t> cornerAtVertex(const engine::MeshData& mesh, std::int64_t face,
                                          std::int64_t vertex);
/// The places of all corners of a face, which must exist.
std::vector<std::size_t> cornersOfFace(const engine::MeshData& mesh, std::int32_t face);
/// One corner for each face at a vertex, by ascending face.
std::vector<FaceCorner> cornersOfVertex(const engine::MeshData& mesh, std::int32_t vertex);
/// Their places alone.
std::vector<std::size_t> placesAtVertex(const engine::MeshData& mesh, std::int32_t vertex);

} // namespace tvxhost::api
