// Normals of vertices, and of corners where edges are hard.
#pragma once

#include "meshData.h"

#include <vector>

namespace tvxhost::engine {

/// The mean of the normals of the faces with corners at a vertex, by the angle of each corner or all alike;
/// zero for a vertex without faces.
Vec3d vertexNormal(const MeshData& mesh, std::int32_t vertex, bool angleWeighted);
/// The same of all vertices at once.
std::vector<Vec3d> vertexNormals(const MeshData& mesh, bool angleWeighted);

/// One normal for each group of faces that smooth edges join at a vertex: the mean of theirs.
struct NormalTable
{
    std::vector<Vec3f> normals;     ///< of length one, in the order in which corners first use them
    std::vector<std::int32_t> used; ///< by corner (see FaceTable::firstCorner): which of them it has
};
NormalTable normalsOf(const MeshData& mesh);

} // namespace tvxhost::engine
