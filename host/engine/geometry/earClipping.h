// Ear clipping: triangles of polygons that are not convex or have holes.
#pragma once

#include "flatPolygon.h"

namespace tvxhost::engine {

struct ClippedEars
{
    std::vector<Triangle> triangles;
    bool isValid = true; ///< whether all have an area and none had to be cut off where it was no ear
};

/// Bridges lead from the outline to the holes; then corners are cut off, one after the other, whose triangle
/// has an area and no other corner in it. Where there is no such corner a flat one goes, or else any.
ClippedEars clipEars(const FlatPolygon& polygon);

} // namespace tvxhost::engine
