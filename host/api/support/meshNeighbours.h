// What is next to a face, and which normal a corner has: shared by the iterators and MFnMesh.
#pragma once

#include "engine/geometry/meshNormals.h"

#include <vector>

namespace tvxhost::api {

/// The numbers of a row in ascending order, each once.
std::vector<std::int32_t> unique(engine::IndexSpan span);

/// The faces that share an edge with a face.
std::vector<std::int32_t> facesBeside(const engine::MeshData& mesh, std::int32_t face);
/// The edges that share a vertex with a face and are not its own.
std::vector<std::int32_t> edgesBeside(const engine::MeshData& mesh, std::int32_t face);
/// The vertices at the other ends of these.
std::vector<std::int32_t> verticesBeside(const engine::MeshData& mesh, std::int32_t face);
/// Whether an edge of the face is a border.
bool isOnBorder(const engine::MeshData& mesh, std::int32_t face);

/// The number of the normal that a face has at one of its vertices; -1 when it is not one of them.
std::int32_t normalAt(const engine::MeshData& mesh, std::int32_t face, std::int32_t vertex);
/// The numbers of the normals at the corners of a face.
std::vector<std::int32_t> normalsOfFace(const engine::MeshData& mesh, std::int32_t face);
/// A normal by its number.
engine::Vec3d normalNumbered(const engine::MeshData& mesh, std::int32_t number);

} // namespace tvxhost::api
