// The convex hull by gift wrapping in whole numbers: slow, short and exact.
#pragma once

#include <tvxCore/Vector2.h>

#include <iosfwd>
#include <vector>

namespace tarvox::core {

/// What convexHull() is to give, found another way: points as multiples of the smallest float, sides and
/// distances in whole numbers of any length, corners one after the other with a look at all points for each.
std::vector<Vector2<float>> exactHull(const std::vector<Vector2<float>>& points);

/// Every digit, for messages of failing tests.
void PrintTo(Vector2<float> point, std::ostream* out);

} // namespace tarvox::core
