// On which side of a line a point lies, exactly.
#pragma once

#include "Points.h"

namespace tarvox::core {

/// Half of the distance between 1 and the next double: the relative error of one rounding.
constexpr double kRounding = 0x1p-53;

/// Above 0 when a, b, c turn left, below 0 when they turn right, 0 when they lie on one line. Exact.
int exactOrientation(Point a, Point b, Point c);

/// Whether a, b, c turn left. Exact, and quick unless the three are nearly on one line.
inline bool turnsLeft(Point a, Point b, Point c)
{
    const double ax = a.x, ay = a.y;
    const double left = (b.x - ax) * (c.y - ay);
    const double right = (b.y - ay) * (c.x - ax);
    const double area = left - right;
    // Each product carries three roundings, their difference a fourth; products of floats are far from the
    // ends of double's range, so that there is nothing else to bound.
    const double bound = 4 * kRounding * ((left < 0 ? -left : left) + (right < 0 ? -right : right));
    if (area > bound)
        return true;
    if (area < -bound || bound == 0)
        return false;
    return exactOrientation(a, b, c) > 0;
}

} // namespace tarvox::core
