// Families of random point sets, most of them degenerate in one way or another.
#pragma once

#include <tvxCore/Vector2.h>

#include <random>
#include <vector>

namespace tarvox::core {

struct PointSetFamily
{
    const char* name;
    /// A set of `count` points; the same for the same state of `random`.
    std::vector<Vector2<float>> (*make)(std::mt19937& random, std::size_t count);
};

const std::vector<PointSetFamily>& pointSetFamilies();

} // namespace tarvox::core
