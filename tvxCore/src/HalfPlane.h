// The points that surely lie on one side of a line.
#pragma once

#include "Points.h"

namespace tarvox::core {

/// The left side of the line from one point to another, less a margin as wide as rounding reaches: what it
/// holds is surely there. In single precision, because it is asked about very many points, and a processor
/// takes four of them at once.
class HalfPlane
{
public:
    /// Holds no point.
    HalfPlane() = default;

    /// Holds no point when `from` equals `to`. `largest` is at least the magnitude of every coordinate, those
    /// of the points asked about included.
    HalfPlane(Point from, Point to, float largest);

    bool holds(Point p) const { return m_x * p.x + m_y * p.y > m_threshold; }

private:
    float m_x = 0, m_y = 0, m_threshold = 0;
};

} // namespace tarvox::core
