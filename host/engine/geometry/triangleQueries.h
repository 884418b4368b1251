// Rays and points against one triangle.
#pragma once

#include "../data.h"

#include <array>
#include <optional>

namespace tvxhost::engine {

/// The points `from + t * direction`; the direction is of any length but 0.
struct Ray
{
    Vec3d from;
    Vec3d direction;

    Vec3d at(double t) const { return from + direction * t; }
};

using TrianglePoints = std::array<Vec3d, 3>;

/// Where a ray meets the plane of a triangle.
struct PlaneHit
{
    double t = 0;  ///< of the ray, also less than 0
    Vec3d weights; ///< of the three corners; their sum is 1
};

/// Empty when the ray is parallel to the triangle, or passes it by: a weight is less than -tolerance.
std::optional<PlaneHit> meet(const Ray& ray, const TrianglePoints& triangle, double tolerance);

/// The weights of the corners for the point of a triangle that is nearest to a point.
Vec3d nearestWeights(const TrianglePoints& triangle, const Vec3d& point);

/// The mean of three things by weights.
inline Vec3d weighed(const TrianglePoints& of, const Vec3d& weights)
{
    return of[0] * weights.x + of[1] * weights.y + of[2] * weights.z;
}

} // namespace tvxhost::engine
