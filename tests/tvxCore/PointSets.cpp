// One function per family of point sets.
#include "PointSets.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace tarvox::core {
namespace {

using Point = Vector2<float>;
using Points = std::vector<Point>;
using Random = std::mt19937;

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kHuge = std::numeric_limits<float>::max();
constexpr float kTiny = std::numeric_limits<float>::denorm_min();

float between(Random& random, double low, double high)
{
    return static_cast<float>(std::uniform_real_distribution<double>(low, high)(random));
}

int wholeBetween(Random& random, int low, int high)
{
    return std::uniform_int_distribution<int>(low, high)(random);
}

/// The value or one of its neighbours.
float shaken(Random& random, float value)
{
    const int direction = wholeBetween(random, -1, 1);
    return direction == 0 ? value : std::nextafter(value, direction < 0 ? -kHuge : kHuge);
}

template <class MakePoint>
Points repeated(std::size_t count, MakePoint makePoint)
{
    Points points;
    while (points.size() < count)
        points.push_back(makePoint());
    return points;
}

Points square(Random& random, std::size_t count)
{
    return repeated(count, [&] { return Point{between(random, -1, 1), between(random, -1, 1)}; });
}

Points disc(Random& random, std::size_t count)
{
    return repeated(count, [&] {
        const double radius = std::sqrt(between(random, 0, 1));
        const double angle = between(random, -3.2, 3.2);
        return Point{static_cast<float>(radius * std::cos(angle)),
                     static_cast<float>(radius * std::sin(angle))};
    });
}

Points circle(Random& random, std::size_t count)
{
    const int steps = wholeBetween(random, 3, 2000);
    return repeated(count, [&] {
        const double angle = wholeBetween(random, 1, steps) * 6.283185307179586 / steps;
        return Point{static_cast<float>(100 * std::cos(angle)), static_cast<float>(100 * std::sin(angle))};
    });
}

Points grid(Random& random, std::size_t count)
{
    const int side = wholeBetween(random, 1, 8);
    return repeated(count, [&] {
        return Point{static_cast<float>(wholeBetween(random, -side, side)),
                     static_cast<float>(wholeBetween(random, -side, side))};
    });
}

Points fewPlaces(Random& random, std::size_t count)
{
    const Points places = square(random, 4);
    return repeated(count, [&] { return places[static_cast<std::size_t>(wholeBetween(random, 0, 3))]; });
}

Points squareEdges(Random& random, std::size_t count)
{
    return repeated(count, [&] {
        const float along = between(random, 0, 1);
        const float side = static_cast<float>(wholeBetween(random, 0, 1));
        return wholeBetween(random, 0, 1) ? Point{along, side} : Point{side, along};
    });
}

/// Exactly on one line: small whole multiples of a whole step.
Points collinear(Random& random, std::size_t count)
{
    const int stepX = wholeBetween(random, -100, 100), stepY = wholeBetween(random, -100, 100);
    const float scale = std::ldexp(1.0f, wholeBetween(random, -140, 100));
    return repeated(count, [&] {
        const int steps = wholeBetween(random, -1000, 1000);
        return Point{static_cast<float>(steps * stepX) * scale, static_cast<float>(steps * stepY) * scale};
    });
}

/// On one line but for the last bit.
Points almostCollinear(Random& random, std::size_t count)
{
    const double slope = between(random, -2, 2), offset = between(random, -1, 1);
    return repeated(count, [&] {
        const float x = between(random, -10, 10);
        return Point{x, shaken(random, static_cast<float>(slope * x + offset))};
    });
}

/// The same, and a few that lie very far out on the line: a sample is likely to miss them.
Points almostCollinearWithFarEnds(Random& random, std::size_t count)
{
    Points points = almostCollinear(random, count);
    for (std::size_t i = 0; i < points.size(); i += 200) {
        const float scale = std::ldexp(1.0f, wholeBetween(random, 1, 40));
        points[i] = {points[i].x * scale, shaken(random, points[i].y * scale)};
    }
    return points;
}

/// Corners of a polygon, and points on its edges but for the last bit.
Points onPolygon(Random& random, std::size_t count)
{
    const Points corners = circle(random, static_cast<std::size_t>(wholeBetween(random, 3, 9)));
    return repeated(count, [&] {
        const auto i =
            static_cast<std::size_t>(wholeBetween(random, 0, static_cast<int>(corners.size()) - 1));
        const Point from = corners[i], to = corners[(i + 1) % corners.size()];
        const double part = wholeBetween(random, 0, 8) / 8.0;
        return Point{shaken(random, static_cast<float>(from.x + part * (double{to.x} - from.x))),
                     shaken(random, static_cast<float>(from.y + part * (double{to.y} - from.y)))};
    });
}

Points farFromTheOrigin(Random& random, std::size_t count)
{
    return repeated(count, [&] {
        return Point{1e6f + static_cast<float>(wholeBetween(random, -9, 9)) * 0.0625f,
                     -3e6f + static_cast<float>(wholeBetween(random, -9, 9)) * 0.25f};
    });
}

Points hugeSquare(Random& random, std::size_t count)
{
    const double half = kHuge;
    return repeated(count, [&] { return Point{between(random, -half, half), between(random, -half, half)}; });
}

Points subnormal(Random& random, std::size_t count)
{
    return repeated(count, [&] {
        return Point{static_cast<float>(wholeBetween(random, -9, 9)) * kTiny,
                     static_cast<float>(wholeBetween(random, -9, 9)) * kTiny};
    });
}

/// The ends of what a float can be, next to each other.
Points hugeAndTiny(Random& random, std::size_t count)
{
    const std::array<float, 15> values{-kHuge, -1e30f, -1,    -1e-30f, -kTiny, -0.0f, 0,    kTiny,
                                       1e-38f, 1e-7f,  1e-3f, 1,       3,      1e30f, kHuge};
    const auto value = [&] { return values[static_cast<std::size_t>(wholeBetween(random, 0, 14))]; };
    return repeated(count, [&] { return Point{value(), value()}; });
}

/// Near a diagonal through all magnitudes.
Points diagonalOfAllMagnitudes(Random& random, std::size_t count)
{
    return repeated(count, [&] {
        const float sign = wholeBetween(random, 0, 1) ? 1.0f : -1.0f;
        const float x = sign * std::ldexp(between(random, 1, 1.99), wholeBetween(random, -149, 126));
        return Point{shaken(random, x), shaken(random, x)};
    });
}

/// Any pattern of bits: all magnitudes, infinite values and NaN.
Points anyBits(Random& random, std::size_t count)
{
    const auto value = [&] {
        const auto bits = static_cast<std::uint32_t>(random());
        float result = 0;
        std::memcpy(&result, &bits, sizeof result);
        return result;
    };
    return repeated(count, [&] { return Point{value(), value()}; });
}

Points withNonFinite(Random& random, std::size_t count)
{
    const std::array<float, 3> values{kInfinity, -kInfinity, kNaN};
    Points points = wholeBetween(random, 0, 1) ? disc(random, count) : grid(random, count);
    for (Point& p : points)
        if (wholeBetween(random, 0, 3) == 0)
            (wholeBetween(random, 0, 1) ? p.x : p.y) =
                values[static_cast<std::size_t>(wholeBetween(random, 0, 2))];
    return points;
}

} // namespace

const std::vector<PointSetFamily>& pointSetFamilies()
{
    static const std::vector<PointSetFamily> families{
        {"Square", square},
        {"Disc", disc},
        {"Circle", circle},
        {"Grid", grid},
        {"FewPlaces", fewPlaces},
        {"SquareEdges", squareEdges},
        {"Collinear", collinear},
        {"AlmostCollinear", almostCollinear},
        {"AlmostCollinearWithFarEnds", almostCollinearWithFarEnds},
        {"OnPolygon", onPolygon},
        {"FarFromTheOrigin", farFromTheOrigin},
        {"HugeSquare", hugeSquare},
        {"Subnormal", subnormal},
        {"HugeAndTiny", hugeAndTiny},
        {"DiagonalOfAllMagnitudes", diagonalOfAllMagnitudes},
        {"AnyBits", anyBits},
        {"WithNonFinite", withNonFinite},
    };
    return families;
}

} // namespace tarvox::core
