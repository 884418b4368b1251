// FlatPolygon: a polygon as it is seen along its normal.
#pragma once

#include "triangulation.h"

#include <cstddef>
#include <vector>

namespace tvxhost::engine {

/// A point of the plane.
struct Vec2
{
    double x = 0;
    double y = 0;
};

inline bool operator==(Vec2 a, Vec2 b)
{
    return a.x == b.x && a.y == b.y;
}

/// Twice the area of a triangle: more than 0 when it runs counterclockwise. Coordinates that are single
/// precision numbers lose nothing in the differences, so that the sign is right but for sums that cancel to
/// the last of fifty bits.
inline double turn(Vec2 a, Vec2 b, Vec2 c)
{
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

/// The corners of a polygon in the plane of the two axes in which it is largest, so that coordinates stay as
/// they are; mirrored where it is needed for the outline to run counterclockwise.
struct FlatPolygon
{
    explicit FlatPolygon(const PolygonLoops& loops);

    std::vector<Vec2> points; ///< of all loops
    /// By loop, the places of its corners: the outline counterclockwise as it is, holes clockwise.
    std::vector<std::vector<std::int32_t>> loops;

    Vec2 at(std::int32_t corner) const { return points[static_cast<std::size_t>(corner)]; }
};

} // namespace tvxhost::engine
