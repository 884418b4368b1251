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

struct NormalTable
{
    std::vector<Vec3f> normals;     ///< of length one, in the order in which corners first use them
    std::vector<std::int32_t> used; ///< by corner (see FaceTable::firstCorner): which of them it has
    std::vector<bool> locked;       ///< by normal: whether it was set
};
/// One normal for each group of faces that smooth edges join at a vertex: the mean of theirs. None is locked.
NormalTable computedNormals(const MeshData& mesh);
/// The same, but with the normals that were set at the corners that have some: one for all corners of a group
/// with the same.
NormalTable normalsOf(const MeshData& mesh);

/// What stands in lists of normals for one that is not set.
inline constexpr float kNoNormal = 1e20F;
inline bool isSetNormal(const Vec3f& normal)
{
    return normal.x < kNoNormal;
}
/// Turns the normals that were set as a matrix moves the points.
void turnLockedNormals(MeshData& mesh, const Matrix& matrix);
/// Whether the normal of a corner was set.
inline bool isLocked(const MeshData& mesh, std::size_t corner)
{
    return corner < mesh.lockedNormals.size() && isSetNormal(mesh.lockedNormals[corner]);
}

} // namespace tvxhost::engine
