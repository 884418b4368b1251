// The polygon that the farthest points of a set span.
#pragma once

#include "HalfPlane.h"
#include "Points.h"

#include <array>

namespace tarvox::core {

/// An octagon between points of a set, as large as a small sample of the set makes it. No point of the set
/// that is inside can be a corner of the hull.
class Octagon
{
public:
    /// Infinite and NaN points are left out. Without finite points that span an area, it has no inside.
    explicit Octagon(const Points& points);

    /// Whether `p` is inside by more than rounding reaches. Never for a point that is infinite or NaN.
    bool surelyHolds(Point p) const
    {
        // No short cuts: without branches a compiler tests several points at once.
        bool inside = isWithin(p, m_largest);
        for (const HalfPlane& edge : m_edges)
            inside &= edge.holds(p);
        return inside;
    }

private:
    std::array<HalfPlane, 8> m_edges;
    float m_largest = 0;
};

} // namespace tarvox::core
