// Triangulation: one polygon, with or without holes, as triangles.
#pragma once

#include "../data.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tvxhost::engine {

/// A polygon: its outline and then its holes, whichever way they run.
using PolygonLoops = std::vector<std::vector<Vec3d>>;

/// Three corners by their places among those of all loops, one loop after the other; the first one comes
/// first there, too. They run the way the outline does, except in a polygon that has no valid triangles.
using Triangle = std::array<std::int32_t, 3>;

/// Splits a polygon, seen along its normal, into as many triangles as it has corners, and two more for each
/// hole, less two; an outline of fewer than three corners into none. A convex one is a fan around its first
/// corner (0 1 2, 0 2 3, …); ears are cut off any other, beginning with the first corner that is one. Holes
/// have to lie within the outline and apart from each other; those of fewer than three corners are left out.
/// Takes time in proportion to the corners of a convex one, to their square for others at worst.
std::vector<Triangle> triangulate(const PolygonLoops& loops);

/// Whether its triangles together are the polygon: not when it has no area in places or crosses itself.
bool hasValidTriangles(const PolygonLoops& loops);

} // namespace tvxhost::engine
