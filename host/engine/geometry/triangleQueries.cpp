// Rays and points against one triangle: see triangleQueries.h.
#include "triangleQueries.h"

#include <algorithm>
#include <cmath>

namespace tvxhost::engine {

namespace {

/// Below this sine of the angle between them a ray counts as parallel to a plane.
constexpr double kParallel = 1e-12;

/// Where the point of a segment is that is nearest to a point: 0 at its start, 1 at its end.
double nearestOnSegment(const Vec3d& from, const Vec3d& to, const Vec3d& point)
{
    const Vec3d along = to - from;
    const double length2 = along.length2();
    return length2 > 0 ? std::clamp((point - from).dot(along) / length2, 0.0, 1.0) : 0.0;
}

/// The weights for the nearest point on the border of a triangle.
Vec3d nearestOnBorder(const TrianglePoints& triangle, const Vec3d& point)
{
    Vec3d best(1, 0, 0);
    double bestDistance2 = (point - triangle[0]).length2();
    for (int i = 0; i < 3; ++i) {
        const int next = (i + 1) % 3;
        Vec3d weights(0.0);
        weights[next] = nearestOnSegment(triangle[static_cast<std::size_t>(i)],
                                         triangle[static_cast<std::size_t>(next)], point);
        weights[i] = 1 - weights[next];
        const double distance2 = (point - weighed(triangle, weights)).length2();
        if (distance2 < bestDistance2) {
            best = weights;
            bestDistance2 = distance2;
        }
    }
    return best;
}

} // namespace

std::optional<PlaneHit> meet(const Ray& ray, const TrianglePoints& triangle, double tolerance)
{
    const Vec3d one = triangle[1] - triangle[0], other = triangle[2] - triangle[0];
    const Vec3d normal = one.cross(other);
    const double slope = ray.direction.dot(normal);
    if (!(std::fabs(slope) > kParallel * normal.length() * ray.direction.length()))
        return std::nullopt;
    const Vec3d away = triangle[0] - ray.from;
    const Vec3d across = ray.direction.cross(away);
    const double second = -across.dot(other) / slope, third = across.dot(one) / slope;
    const PlaneHit hit{away.dot(normal) / slope, {1 - second - third, second, third}};
    if (!(std::min({hit.weights.x, hit.weights.y, hit.weights.z}) >= -tolerance))
        return std::nullopt;
    return hit;
}

Vec3d nearestWeights(const TrianglePoints& triangle, const Vec3d& point)
{
    const Vec3d one = triangle[1] - triangle[0], other = triangle[2] - triangle[0];
    const Vec3d normal = one.cross(other);
    const double area2 = normal.length2();
    if (area2 > 0) {
        const Vec3d offset = point - triangle[0];
        const double second = offset.cross(other).dot(normal) / area2;
        const double third = one.cross(offset).dot(normal) / area2;
        if (second >= 0 && third >= 0 && second + third <= 1)
            return {1 - second - third, second, third};
    }
    return nearestOnBorder(triangle, point);
}

} // namespace tvxhost::engine
