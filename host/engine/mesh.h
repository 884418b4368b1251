// Meshes: geometry put together from a shape's attributes.
#pragma once

#include "data.h"
#include "node.h"

#include <string_view>

namespace tvxhost::engine {

/// The geometry of a mesh shape: `vt` plus `pnts` (the tweaks) as points, `ed` as edges, `fc` as faces. Null
/// for what is no mesh and for a mesh without geometry of its own (one that its history would have to make).
/// A connected `inMesh` that yields a mesh counts before the attributes. Valid until the shape's attributes
/// change or the shape goes; kept until then, so asking again costs nothing.
///
/// The elements of `fc` are data of the type "polyFaces": one face each, as the words of a scene file
/// ("f 4 0 5 -2 -5 mu 0 4 0 1 3 2"), kept as KeptData.
const MeshData* meshOf(DagNode& shape);

/// Reads one face from its words; what is not about edges and holes is skipped. False when the words are not
/// those of a face.
bool readFace(std::string_view words, MeshData::Face& face);

} // namespace tvxhost::engine
