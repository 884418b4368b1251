// Measures of faces: see meshMeasures.h.
#include "meshMeasures.h"

#include "meshTopology.h"

#include <algorithm>
#include <cmath>

namespace tvxhost::engine {

namespace {

Vec3d pointOf(const MeshData& mesh, std::int32_t corner)
{
    return Vec3d(mesh.points[static_cast<std::size_t>(mesh.startOf(corner))]);
}

/// Twice the area that a loop goes around.
Vec3d doubledArea(const MeshData& mesh, IndexSpan loop, const Matrix& matrix)
{
    Vec3d sum(0.0);
    if (loop.empty())
        return sum;
    const Vec3d origin = pointOf(mesh, loop[0]) * matrix;
    for (std::size_t i = 1; i < loop.size(); ++i) {
        const Vec3d from = pointOf(mesh, loop[i]) * matrix - origin;
        const Vec3d to = pointOf(mesh, loop[(i + 1) % loop.size()]) * matrix - origin;
        sum += from.cross(to);
    }
    return sum;
}

/// The size of a body that holds these points, as a measure for what is small.
double extentOf(const std::vector<Vec3d>& points)
{
    double extent = 0;
    for (const Vec3d& point : points)
        extent = std::max(extent, (point - points.front()).length());
    return extent;
}

constexpr double kFlat = 1e-6;

} // namespace

std::vector<Vec3d> cornerPoints(const MeshData& mesh, std::size_t face, const Matrix& matrix)
{
    std::vector<Vec3d> points;
    for (const std::int32_t corner : mesh.faces.corners(face))
        points.push_back(pointOf(mesh, corner) * matrix);
    return points;
}

std::vector<std::int32_t> cornerVertices(const MeshData& mesh, std::size_t face)
{
    std::vector<std::int32_t> vertices;
    for (const std::int32_t corner : mesh.faces.corners(face))
        vertices.push_back(mesh.startOf(corner));
    return vertices;
}

Vec3d centerOf(const MeshData& mesh, std::size_t face, const Matrix& matrix)
{
    Vec3d sum(0.0);
    const std::vector<Vec3d> points = cornerPoints(mesh, face, matrix);
    for (const Vec3d& point : points)
        sum += point;
    return points.empty() ? sum : sum / static_cast<double>(points.size());
}

Vec3d areaVector(const MeshData& mesh, std::size_t face, const Matrix& matrix)
{
    Vec3d sum(0.0);
    for (std::size_t i = 0; i < mesh.faces.loopCount(face); ++i)
        sum += doubledArea(mesh, mesh.faces.loop(face, i), matrix);
    return sum / 2.0;
}

Vec3d faceNormal(const MeshData& mesh, std::size_t face)
{
    return areaVector(mesh, face).normalized();
}

bool isConvex(const MeshData& mesh, std::size_t face)
{
    if (mesh.faces.loopCount(face) != 1)
        return false;
    const std::vector<Vec3d> points = cornerPoints(mesh, face);
    const Vec3d normal = faceNormal(mesh, face);
    const double extent = extentOf(points);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Vec3d& before = points[i];
        const Vec3d& at = points[(i + 1) % points.size()];
        const Vec3d& after = points[(i + 2) % points.size()];
        if ((at - before).cross(after - at).dot(normal) < -kFlat * extent * extent)
            return false;
    }
    return true;
}

bool isStarlike(const MeshData& mesh, std::size_t face)
{
    if (mesh.faces.loopCount(face) != 1)
        return false;
    const std::vector<Vec3d> points = cornerPoints(mesh, face);
    const Vec3d normal = faceNormal(mesh, face), center = centerOf(mesh, face);
    const double slack = kFlat * extentOf(points) * extentOf(points);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Vec3d& to = points[(i + 1) % points.size()];
        if ((to - points[i]).cross(center - points[i]).dot(normal) < -slack)
            return false;
    }
    return true;
}

bool isPlanar(const MeshData& mesh, std::size_t face)
{
    const std::vector<Vec3d> points = cornerPoints(mesh, face);
    if (points.empty())
        return true;
    const Vec3d center = centerOf(mesh, face);
    const Vec3d normal = faceNormal(mesh, face);
    const double slack = kFlat * extentOf(points);
    return std::all_of(points.begin(), points.end(),
                       [&](const Vec3d& point) { return std::fabs((point - center).dot(normal)) <= slack; });
}

bool isLamina(const MeshData& mesh, std::size_t face)
{
    const IndexSpan corners = mesh.faces.corners(face);
    if (corners.empty())
        return false;
    const MeshTopology& topology = mesh.topology();
    const auto usesAll = [&](std::int32_t other) {
        return mesh.faces.corners(static_cast<std::size_t>(other)).size() == corners.size() &&
               std::all_of(corners.begin(), corners.end(), [&](std::int32_t corner) {
                   const IndexSpan users = topology.facesOfEdge(edgeOf(corner));
                   return std::find(users.begin(), users.end(), other) != users.end();
               });
    };
    const IndexSpan candidates = topology.facesOfEdge(edgeOf(corners[0]));
    return std::any_of(candidates.begin(), candidates.end(), [&](std::int32_t other) {
        return other != static_cast<std::int32_t>(face) && usesAll(other);
    });
}

} // namespace tvxhost::engine
