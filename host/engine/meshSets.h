// Sets of texture coordinates and colours in the attributes of a mesh shape: `uvst` and `clst`.
#pragma once

#include "geometry/meshData.h"
#include "node.h"

namespace tvxhost::engine {

/// Gives a mesh the sets of a shape with their values; which of them its faces use comes with the faces.
void readSets(DagNode& shape, MeshData& mesh);

/// Writes the sets of a mesh in whose place the shape has those of another one: what is the same stays
/// untouched.
Outcome writeSets(DagNode& shape, const MeshData& before, const MeshData& after);

} // namespace tvxhost::engine
