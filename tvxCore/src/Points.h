// What the steps of the hull share: sets of points, and their bounds.
#pragma once

#include <tvxCore/Vector2.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace tarvox::core {

using Point = Vector2<float>;
using Points = std::vector<Point>;

// Without a short cut, which would be a branch.
inline bool isWithin(Point p, float largest)
{
    return int{std::fabs(p.x) <= largest} & int{std::fabs(p.y) <= largest};
}

inline bool isFinite(Point p)
{
    return isWithin(p, std::numeric_limits<float>::max());
}

inline bool isLeftOf(Point a, Point b)
{
    return a.x < b.x;
}

inline float largestCoordinate(Point p)
{
    return std::max(std::fabs(p.x), std::fabs(p.y));
}

} // namespace tarvox::core
