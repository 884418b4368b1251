// FlatPolygon: see flatPolygon.h.
#include "flatPolygon.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tvxhost::engine {

namespace {

using Axes = std::array<int, 2>;

Vec3d doubledArea(const std::vector<Vec3d>& loop)
{
    Vec3d sum(0.0);
    for (std::size_t i = 1; i + 1 < loop.size(); ++i)
        sum += (loop[i] - loop[0]).cross(loop[i + 1] - loop[0]);
    return sum;
}

/// The two axes across the longest part of a normal, in the order that makes what it is the normal of run
/// counterclockwise.
Axes axesAcross(const Vec3d& normal)
{
    int along = 0;
    for (const int axis : {1, 2})
        if (std::fabs(normal[axis]) > std::fabs(normal[along]))
            along = axis;
    const Axes axes{(along + 1) % 3, (along + 2) % 3};
    return normal[along] < 0 ? Axes{axes[1], axes[0]} : axes;
}

double doubledArea(const std::vector<Vec2>& points, const std::vector<std::int32_t>& loop)
{
    double sum = 0;
    for (std::size_t i = 1; i + 1 < loop.size(); ++i)
        sum += turn(points[static_cast<std::size_t>(loop[0])], points[static_cast<std::size_t>(loop[i])],
                    points[static_cast<std::size_t>(loop[i + 1])]);
    return sum;
}

} // namespace

FlatPolygon::FlatPolygon(const PolygonLoops& polygon)
{
    const Axes axes = axesAcross(polygon.empty() ? Vec3d(0.0) : doubledArea(polygon.front()));
    for (const std::vector<Vec3d>& loop : polygon) {
        std::vector<std::int32_t> places(loop.size());
        std::iota(places.begin(), places.end(), static_cast<std::int32_t>(points.size()));
        for (const Vec3d& point : loop)
            points.push_back({point[axes[0]], point[axes[1]]});
        if (!loops.empty() && doubledArea(points, places) > 0)
            std::reverse(places.begin(), places.end());
        loops.push_back(std::move(places));
    }
}

} // namespace tvxhost::engine
