// Normals that were set, in the attribute of a mesh shape: `n`.
#pragma once

#include "geometry/meshData.h"
#include "node.h"
#include "outcome.h"

namespace tvxhost::engine {

/// Gives a mesh that has its edges and faces the normals that a shape's attribute says are set. It has as
/// many elements as the mesh would have normals of its own (see computedNormals), or as there are corners; a
/// list of another length is not used. Elements with kNoNormal are not set.
void readNormals(DagNode& shape, MeshData& mesh);

/// Writes those of a mesh instead: by normal where all corners with a normal have the same one, else by
/// corner; nothing when none are set.
Outcome writeNormals(DagNode& shape, const MeshData& mesh);

} // namespace tvxhost::engine
