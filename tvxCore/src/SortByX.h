// Sorts points from left to right.
#pragma once

#include "Points.h"

namespace tarvox::core {

/// Orders finite points by x, none of them -0; points of the same x in any order. `spare` is room to work in:
/// it may hold anything before and does after.
void sortByX(Points& points, Points& spare);

} // namespace tarvox::core
