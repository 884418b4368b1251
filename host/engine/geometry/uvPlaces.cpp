// Places and texture coordinates: see uvPlaces.h.
#include "uvPlaces.h"

#include "meshTriangles.h"

#include <limits>

namespace tvxhost::engine {

namespace {

/// What sums of weights may be off by, in the texture.
constexpr double kSlack = 1e-6;

Vec3d pointOf(const MeshData& mesh, std::int32_t vertex, const Matrix& matrix)
{
    return Vec3d(mesh.points[static_cast<std::size_t>(vertex)]) * matrix;
}

TrianglePoints pointsOf(const MeshData& mesh, std::size_t face, const Triangle& triangle,
                        const Matrix& matrix)
{
    const Triangle vertices = triangleVertices(mesh, face, triangle);
    return {pointOf(mesh, vertices[0], matrix), pointOf(mesh, vertices[1], matrix),
            pointOf(mesh, vertices[2], matrix)};
}

/// A triangle in the texture, where z is 0.
std::optional<TrianglePoints> uvsOf(const MeshData& mesh, const UvSet& set, std::size_t face,
                                    const Triangle& triangle)
{
    TrianglePoints points;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const std::int32_t number =
            set.at(mesh.faces.firstCorner(face) + static_cast<std::size_t>(triangle[i]));
        if (number == kUnmapped)
            return std::nullopt;
        const Vec2f& uv = set.values[static_cast<std::size_t>(number)];
        points[i] = Vec3d(uv.x, uv.y, 0);
    }
    return points;
}

/// The nearest place in a triangle.
struct Nearest
{
    Vec3d weights; ///< of the triangle's corners
    double distance;
};

Nearest nearestTo(const Vec3d& point, const TrianglePoints& triangle)
{
    const Vec3d weights = nearestWeights(triangle, point);
    return {weights, (weighed(triangle, weights) - point).length()};
}

/// The place on a face that is nearest, and no further away than that; `nearest` gives that of a triangle, if
/// it has one.
template <class NearestOf>
std::optional<SurfacePoint> nearestPlace(const MeshData& mesh, std::int32_t face, double furthest,
                                         const Matrix& matrix, const NearestOf& nearest)
{
    const auto number = static_cast<std::size_t>(face);
    const MeshTriangles& triangles = mesh.triangles();
    std::optional<SurfacePoint> found;
    for (std::size_t i = 0; i < triangles.count(number); ++i) {
        const Triangle& triangle = triangles[triangles.first(number) + i];
        const std::optional<Nearest> here = nearest(triangle);
        if (!here || !(here->distance <= furthest) || (found && here->distance == furthest))
            continue;
        furthest = here->distance;
        found = SurfacePoint{face, static_cast<std::int32_t>(i), here->weights,
                             weighed(pointsOf(mesh, number, triangle, matrix), here->weights)};
    }
    return found;
}

} // namespace

std::optional<Vec2f> uvAt(const MeshData& mesh, const UvSet& set, const SurfacePoint& place)
{
    const auto face = static_cast<std::size_t>(place.face);
    const MeshTriangles& triangles = mesh.triangles();
    const auto uvs =
        uvsOf(mesh, set, face, triangles[triangles.first(face) + static_cast<std::size_t>(place.triangle)]);
    if (!uvs)
        return std::nullopt;
    const Vec3d uv = weighed(*uvs, place.weights);
    return Vec2f(static_cast<float>(uv.x), static_cast<float>(uv.y));
}

std::optional<SurfacePoint> nearestOnFace(const MeshData& mesh, std::int32_t face, const Vec3d& point,
                                          const Matrix& matrix)
{
    return nearestPlace(mesh, face, std::numeric_limits<double>::max(), matrix,
                        [&](const Triangle& triangle) -> std::optional<Nearest> {
                            return nearestTo(
                                point, pointsOf(mesh, static_cast<std::size_t>(face), triangle, matrix));
                        });
}

std::optional<SurfacePoint> placeAt(const MeshData& mesh, const UvSet& set, std::int32_t face,
                                    const Vec2f& uv, double tolerance, const Matrix& matrix)
{
    const Vec3d wanted(uv.x, uv.y, 0);
    return nearestPlace(mesh, face, tolerance + kSlack, matrix,
                        [&](const Triangle& triangle) -> std::optional<Nearest> {
                            const auto uvs = uvsOf(mesh, set, static_cast<std::size_t>(face), triangle);
                            if (!uvs)
                                return std::nullopt;
                            return nearestTo(wanted, *uvs);
                        });
}

} // namespace tvxhost::engine
