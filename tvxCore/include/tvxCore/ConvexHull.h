// The convex hull of points of the plane.
#pragma once

#include <tvxCore/Export.h>
#include <tvxCore/Vector2.h>

#include <vector>

namespace tarvox::core {

/// The corners of the smallest convex polygon that holds all `points`, counter-clockwise (x to the right, y
/// up), beginning with the leftmost corner and of two leftmost ones the lower.
///
/// The result is exact for finite points of any magnitude and in any position: every corner is one of the
/// points, no two are equal, no three lie on one line, and their order does not depend on the order of the
/// points. A zero component is +0 in the result.
///   - Points with a component that is infinite or NaN are ignored.
///   - No points left: no corners. All points equal: one corner. All points on one line: the line's two ends.
///
/// Takes time linear in the number of points, and memory for those of them that are near the hull. Throws
/// std::bad_alloc.
TVX_CORE_API std::vector<Vector2<float>> convexHull(const std::vector<Vector2<float>>& points);

} // namespace tarvox::core
