// Meshes from polygons that are given by their vertices.
#pragma once

#include "../outcome.h"
#include "meshData.h"

#include <vector>

namespace tvxhost::engine {

/// A mesh of these points and polygons: `counts` holds the number of corners of each, `vertices` the corners
/// one after the other. Edges are numbered as polygons first use them, run as they do there, and are smooth.
/// badIndex for a polygon with less than three corners, for a vertex that is not there, and for lists that do
/// not fit each other. With `refuseRepeats` also for a polygon with the same vertex twice in a row.
Expected<Ref<MeshData>> buildMesh(std::vector<Vec3f> points, const std::vector<int>& counts,
                                  const std::vector<int>& vertices, bool refuseRepeats);

} // namespace tvxhost::engine
