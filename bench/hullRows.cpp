// Convex hulls of many points, beside those of a geometry library with exact predicates.
#include "rows.h"

#include <tvxCore/ConvexPolygon2.h>

#include <CGAL/Exact_predicates_inexact_constructions_kernel.h>
#include <CGAL/convex_hull_2.h>
#include <benchmark/benchmark.h>

#include <cmath>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace tvxbench {
namespace {

using Random = std::mt19937;
using Point = tarvox::core::Vector2<float>;
using PeerPoint = CGAL::Exact_predicates_inexact_constructions_kernel::Point_2;

float fraction(Random& random)
{
    return std::uniform_real_distribution<float>(0, 1)(random);
}

Point inSquare(Random& random, std::size_t)
{
    const float x = fraction(random);
    return {x, fraction(random)};
}

Point inDisc(Random& random, std::size_t)
{
    const double angle = 6.283185307179586 * fraction(random);
    const double radius = std::sqrt(fraction(random));
    return {static_cast<float>(radius * std::cos(angle)), static_cast<float>(radius * std::sin(angle))};
}

/// Whole coordinates, about four points on each place.
Point onGrid(Random& random, std::size_t count)
{
    std::uniform_int_distribution<int> place(0,
                                             static_cast<int>(std::sqrt(static_cast<double>(count)) / 2) - 1);
    const int x = place(random);
    return {static_cast<float>(x), static_cast<float>(place(random))};
}

Point onCircle(Random& random, std::size_t)
{
    const double angle = std::uniform_real_distribution<double>(0, 6.283185307179586)(random);
    return {static_cast<float>(std::cos(angle)), static_cast<float>(std::sin(angle))};
}

Point onSquareEdges(Random& random, std::size_t)
{
    const float along = fraction(random);
    const auto edge = static_cast<unsigned>(random() % 4);
    const auto side = static_cast<float>(edge / 2);
    return edge % 2 == 0 ? Point{along, side} : Point{side, along};
}

struct Shape
{
    const char* name;
    Point (*point)(Random& random, std::size_t count);
    double targetOfThousand;
    double targetOfMore;
};

const Shape kShapes[] = {
    {"disc", inDisc, 0.75, 0.15},
    {"square", inSquare, 0.75, 0.08},
    {"grid with duplicates", onGrid, 0.75, 0.06},
    {"circle", onCircle, 0.95, 0.40},
    {"square's edges", onSquareEdges, 0.95, 0.35},
};

/// The points, in both sides' types.
struct Points
{
    Points(const Shape& shape, std::size_t count)
    {
        Random random(20160229);
        for (std::size_t i = 0; i < count; ++i) {
            ours.push_back(shape.point(random, count));
            peers.emplace_back(ours.back().x, ours.back().y);
        }
    }

    std::vector<Point> ours;
    std::vector<PeerPoint> peers;
};

void hull(benchmark::State& state, const Points& points)
{
    for (auto _ : state) {
        tarvox::core::ConvexPolygon2<float> polygon;
        polygon.computeConvexHull(points.ours);
        benchmark::DoNotOptimize(polygon.getVertices().data());
    }
}

void peerHull(benchmark::State& state, const Points& points)
{
    for (auto _ : state) {
        std::vector<PeerPoint> vertices;
        CGAL::convex_hull_2(points.peers.begin(), points.peers.end(), std::back_inserter(vertices));
        benchmark::DoNotOptimize(vertices.data());
    }
}

/// The points are made when the row first runs, and kept.
class LazyPoints
{
public:
    LazyPoints(const Shape& shape, std::size_t count) : m_shape(shape), m_count(count) {}

    const Points& get()
    {
        if (!m_points)
            m_points = std::make_unique<Points>(m_shape, m_count);
        return *m_points;
    }

private:
    const Shape& m_shape;
    std::size_t m_count;
    std::unique_ptr<Points> m_points;
};

Row hullRow(const Shape& shape, int exponent)
{
    const std::size_t count = static_cast<std::size_t>(std::pow(10, exponent));
    const std::string size = "10^" + std::to_string(exponent);
    const std::string subject = "hull_" + std::string(shape.name) + "_" + std::to_string(count);
    const auto points = std::make_shared<LazyPoints>(shape, count);
    benchmark::RegisterBenchmark(subject.c_str(), [points](benchmark::State& state) {
        hull(state, points->get());
    })->MinTime(0.05);
    benchmark::RegisterBenchmark(("peer_" + subject).c_str(), [points](benchmark::State& state) {
        peerHull(state, points->get());
    })->MinTime(0.05);
    return {"hull of " + size + " points: " + shape.name, "convex_hull_2, exact predicates", subject,
            "peer_" + subject, exponent == 3 ? shape.targetOfThousand : shape.targetOfMore};
}

} // namespace

std::vector<Row> hullRows()
{
    std::vector<Row> rows;
    for (const int exponent : {3, 5, 6})
        for (const Shape& shape : kShapes)
            rows.push_back(hullRow(shape, exponent));
    return rows;
}

} // namespace tvxbench
