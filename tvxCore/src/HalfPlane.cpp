// The line's coefficients, and how far rounding reaches.
#include "HalfPlane.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarvox::core {

HalfPlane::HalfPlane(Point from, Point to, float largest)
{
    if (from == to)
        return;
    const double x = double{from.y} - to.y;
    const double y = double{to.x} - from.x;
    // Coefficients of at most a quarter keep the sum of the products within the range of float.
    const double scale = 0.25 / std::max(std::fabs(x), std::fabs(y));
    m_x = static_cast<float>(x * scale);
    m_y = static_cast<float>(y * scale);

    // In units of 2^-24 of the largest coordinate, rounding takes at most 1 for the coefficients and 0.5 each
    // for the products, their sum and the threshold: 2.5. Where they are subnormal, each product and the
    // threshold lose half of the smallest float besides.
    const double margin = 4 * 0x1p-24 * largest + 4 * double{std::numeric_limits<float>::denorm_min()};
    m_threshold = static_cast<float>(double{m_x} * from.x + double{m_y} * from.y + margin);
}

} // namespace tarvox::core
