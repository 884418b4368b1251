// Rays that meet meshes, and nearest points.
#include "engine/geometry/triangleTree.h"

#include "engine/geometry/meshTriangles.h"
#include "engine/geometry/primitives.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <random>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kEver = std::numeric_limits<double>::infinity();

/// Both ways along a ray.
RayQuery line(const Vec3d& from, const Vec3d& direction)
{
    return {{from, direction}, -kEver, kEver, 1e-9, {}};
}

RayQuery forwards(const Vec3d& from, const Vec3d& direction)
{
    return {{from, direction}, 0, kEver, 1e-9, {}};
}

std::vector<int> facesOf(const std::vector<RayHit>& hits)
{
    std::vector<int> faces;
    for (const RayHit& hit : hits)
        faces.push_back(hit.face);
    return faces;
}

Vec3d randomPoint(std::mt19937& random, double reach)
{
    std::uniform_real_distribution<double> coordinate(-reach, reach);
    const double x = coordinate(random), y = coordinate(random);
    return {x, y, coordinate(random)};
}

TrianglePoints pointsOf(const MeshData& mesh, std::size_t face, std::size_t triangle)
{
    const MeshTriangles& all = mesh.triangles();
    TrianglePoints points;
    const Triangle vertices = triangleVertices(mesh, face, all[all.first(face) + triangle]);
    for (std::size_t i = 0; i < 3; ++i)
        points[i] = Vec3d(mesh.points[static_cast<std::size_t>(vertices[i])]);
    return points;
}

/// The volume of a tetrahedron, six times: more than 0 when d sees a, b, c run clockwise.
double volume(const Vec3d& a, const Vec3d& b, const Vec3d& c, const Vec3d& d)
{
    return (b - a).cross(c - a).dot(d - a);
}

/// Whether a line goes through a triangle: it passes all three sides on the same hand.
bool passes(const TrianglePoints& triangle, const Vec3d& from, const Vec3d& to)
{
    const double one = volume(from, to, triangle[0], triangle[1]),
                 two = volume(from, to, triangle[1], triangle[2]),
                 three = volume(from, to, triangle[2], triangle[0]);
    return (one > 0 && two > 0 && three > 0) || (one < 0 && two < 0 && three < 0);
}

/// The faces that a line goes through, found triangle by triangle.
std::vector<int> facesPassed(const MeshData& mesh, const Vec3d& from, const Vec3d& to)
{
    std::vector<int> faces;
    for (std::size_t face = 0; face < mesh.faces.size(); ++face)
        for (std::size_t i = 0; i < mesh.triangles().count(face); ++i)
            if (passes(pointsOf(mesh, face, i), from, to))
                faces.push_back(static_cast<int>(face));
    return faces;
}

/// How far a point is from a triangle, by trying ever finer grids of weights.
double distanceByTrial(const TrianglePoints& triangle, const Vec3d& point)
{
    double u = 0, v = 0, best = kEver;
    for (double step = 0.125; step > 1e-8; step /= 2) {
        const double middleU = u, middleV = v;
        for (int i = -8; i <= 8; ++i)
            for (int j = -8; j <= 8; ++j) {
                const double tryU = std::clamp(middleU + step * i, 0.0, 1.0);
                const double tryV = std::clamp(middleV + step * j, 0.0, 1.0 - tryU);
                const double distance = (weighed(triangle, {1 - tryU - tryV, tryU, tryV}) - point).length();
                if (distance < best) {
                    best = distance;
                    u = tryU;
                    v = tryV;
                }
            }
    }
    return best;
}

} // namespace

TEST(TriangleQueriesTest, ARayMeetsATriangleWhereItsWeightsSay)
{
    const TrianglePoints triangle{Vec3d(0, 0, 0), Vec3d(4, 0, 0), Vec3d(0, 4, 0)};
    const auto hit = meet({{1, 2, 6}, {0, 0, -2}}, triangle, 0);
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->t, 3);
    EXPECT_EQ(hit->weights, Vec3d(0.25, 0.25, 0.5));
    EXPECT_TRUE(meet({{1, 2, 6}, {0, 0, 2}}, triangle, 0)) << "behind";
    EXPECT_FALSE(meet({{3, 2, 6}, {0, 0, -2}}, triangle, 0)) << "beside";
    EXPECT_FALSE(meet({{1, 2, 6}, {1, 0, 0}}, triangle, 0)) << "parallel";
    EXPECT_FALSE(meet({{-0.004, 2, 6}, {0, 0, -2}}, triangle, 0));
    EXPECT_TRUE(meet({{-0.004, 2, 6}, {0, 0, -2}}, triangle, 0.001)) << "a weight of -0.001";
    EXPECT_FALSE(meet({{0, 0, 1}, {0, 0, 1}}, {Vec3d(0, 0, 0), Vec3d(1, 1, 0), Vec3d(2, 2, 0)}, 0))
        << "no area";
}

TEST(TriangleQueriesTest, TheNearestPointIsInsideOnASideOrACorner)
{
    const TrianglePoints triangle{Vec3d(0, 0, 0), Vec3d(4, 0, 0), Vec3d(0, 4, 0)};
    EXPECT_EQ(nearestWeights(triangle, {1, 1, 5}), Vec3d(0.5, 0.25, 0.25));
    EXPECT_EQ(nearestWeights(triangle, {1, -3, 2}), Vec3d(0.75, 0.25, 0));
    EXPECT_EQ(nearestWeights(triangle, {3, 3, -1}), Vec3d(0, 0.5, 0.5));
    EXPECT_EQ(nearestWeights(triangle, {-1, -1, 0}), Vec3d(1, 0, 0));
    EXPECT_EQ(nearestWeights(triangle, {9, -1, 0}), Vec3d(0, 1, 0));
    const TrianglePoints flat{Vec3d(0, 0, 0), Vec3d(1, 0, 0), Vec3d(4, 0, 0)};
    EXPECT_EQ(weighed(flat, nearestWeights(flat, {3, 7, 0})), Vec3d(3, 0, 0));
}

TEST(TriangleQueriesTest, NearestPointsOfRandomTrianglesAreAsNearAsTrialFinds)
{
    std::mt19937 random(3);
    for (int round = 0; round < 50; ++round) {
        const TrianglePoints triangle{randomPoint(random, 2), randomPoint(random, 2), randomPoint(random, 2)};
        const Vec3d point = randomPoint(random, 4);
        const double found = (weighed(triangle, nearestWeights(triangle, point)) - point).length();
        const double tried = distanceByTrial(triangle, point);
        EXPECT_LE(found, tried + 1e-12);
        EXPECT_NEAR(found, tried, 1e-3);
    }
}

TEST(TriangleTreeTest, RaysMeetTheSameFacesAsWhenEachTriangleIsTried)
{
    const Ref<MeshData> sphere = makeSphere({});
    std::mt19937 random(5);
    int met = 0;
    for (int round = 0; round < 500; ++round) {
        const Vec3d from = randomPoint(random, 2), to = randomPoint(random, 2);
        const std::vector<int> expected = facesPassed(*sphere, from, to);
        EXPECT_EQ(facesOf(sphere->tree().hits(line(from, to - from))), expected);
        met += static_cast<int>(expected.size());
    }
    EXPECT_GT(met, 200);
}

TEST(TriangleTreeTest, HitsOnASphereAreWhereTheyAreByCalculation)
{
    const Ref<MeshData> sphere = makeSphere({3, 200, 200});
    std::mt19937 random(6);
    for (int round = 0; round < 200; ++round) {
        const Vec3d from = randomPoint(random, 20).normalized() * 10.0;
        const Vec3d aim = randomPoint(random, 1.2);
        const Vec3d direction = (aim - from) * 0.25;
        // |from + t direction| = 3, the smaller solution.
        const double a = direction.length2(), b = from.dot(direction), c = from.length2() - 9;
        const double t = (-b - std::sqrt(b * b - a * c)) / a;
        const auto hit = sphere->tree().nearestHit(forwards(from, direction));
        ASSERT_TRUE(hit);
        EXPECT_NEAR(hit->t, t, 1e-3);
        EXPECT_NEAR((hit->point - (from + direction * hit->t)).length(), 0, 1e-9);
        EXPECT_EQ(sphere->tree().hits(forwards(from, direction)).size(), 2u) << "in and out";
    }
}

TEST(TriangleTreeTest, OnlyHitsWithinReachCount)
{
    const Ref<MeshData> cube = makeCube({});
    RayQuery query = forwards({0.1, 0.2, 2}, {0, 0, -1});
    EXPECT_THAT(facesOf(cube->tree().hits(query)), ElementsAre(0, 2));
    query.to = 2;
    EXPECT_THAT(facesOf(cube->tree().hits(query)), ElementsAre(0));
    query.to = 1;
    EXPECT_THAT(facesOf(cube->tree().hits(query)), IsEmpty());
    EXPECT_FALSE(cube->tree().nearestHit(query));
    EXPECT_THAT(facesOf(cube->tree().hits(forwards({0.1, 0.2, 2}, {0, 0, 1}))), IsEmpty());
    const auto behind = cube->tree().nearestHit(line({0.1, 0.2, 2}, {0, 0, 1}));
    ASSERT_TRUE(behind);
    EXPECT_NEAR(behind->t, -1.5, 1e-12);
}

TEST(TriangleTreeTest, OnlyAcceptedTrianglesCount)
{
    const Ref<MeshData> cube = makeCube({});
    RayQuery query = forwards({0.1, 0.2, 2}, {0, 0, -1});
    query.accepts = [](std::int32_t face, std::int32_t) { return face == 2; };
    EXPECT_EQ(cube->tree().nearestHit(query)->face, 2);
    query.accepts = [](std::int32_t, std::int32_t triangle) { return triangle == 5; };
    EXPECT_FALSE(cube->tree().nearestHit(query));
}

TEST(TriangleTreeTest, ARayThroughADiagonalMeetsAFaceOnceAndThroughAnEdgeBothFaces)
{
    const Ref<MeshData> plane = makePlane({2, 1, 2, 1});
    // Two squares side by side, from x = -1 to 0 and to 1; z from 0.5 to -0.5.
    EXPECT_THAT(facesOf(plane->tree().hits(forwards({-0.5, 1, 0}, {0, -1, 0}))), ElementsAre(0));
    EXPECT_THAT(facesOf(plane->tree().hits(forwards({0, 1, 0.25}, {0, -1, 0}))), ElementsAre(0, 1));
    EXPECT_EQ(plane->tree().nearestHit(forwards({0, 1, 0.25}, {0, -1, 0}))->face, 0);
}

TEST(TriangleTreeTest, NearestPointsAreTheNearestOfAllTriangles)
{
    const Ref<MeshData> torus = makeTorus({});
    std::mt19937 random(8);
    for (int round = 0; round < 200; ++round) {
        const Vec3d point = randomPoint(random, 3);
        double least = kEver;
        for (std::size_t face = 0; face < torus->faces.size(); ++face)
            for (std::size_t i = 0; i < torus->triangles().count(face); ++i) {
                const TrianglePoints triangle = pointsOf(*torus, face, i);
                least =
                    std::min(least, (weighed(triangle, nearestWeights(triangle, point)) - point).length());
            }
        const auto found = torus->tree().nearestTo(point);
        ASSERT_TRUE(found);
        EXPECT_DOUBLE_EQ((found->point - point).length(), least);
    }
}

TEST(TriangleTreeTest, ATreeIsOfThePointsAsAMatrixMovesThem)
{
    const Ref<MeshData> cube = makeCube({});
    Matrix matrix;
    matrix.scale(Vec3d(10, 1, 1));
    const auto distance = [](const TriangleTree& tree, const Vec3d& from, const Vec3d& to) {
        return (tree.nearestTo(from)->point - to).length();
    };
    // Nearer to the top at y = 0.5 than to the side at x = 5.
    EXPECT_NEAR(distance(cube->tree(matrix), {4, 1, 0}, {4, 0.5, 0}), 0, 1e-12);
    EXPECT_NEAR(distance(cube->tree(), {4, 1, 0}, {0.5, 0.5, 0}), 0, 1e-12);
    EXPECT_THAT(cube->keptTrees(), ElementsAre(&cube->tree(), &cube->tree(matrix)));
    matrix.scale(Vec3d(2, 2, 2));
    EXPECT_NEAR(distance(cube->tree(matrix), {4, 2, 0}, {4, 1, 0}), 0, 1e-12);
    EXPECT_EQ(cube->keptTrees().size(), 2u);
}

TEST(TriangleTreeTest, WithoutTrianglesNothingIsFound)
{
    const Ref<MeshData> points(new MeshData);
    points->points.resize(3);
    EXPECT_FALSE(points->tree().nearestTo(Vec3d(0.0)));
    EXPECT_FALSE(points->tree().nearestHit(line(Vec3d(0.0), {1, 0, 0})));
    EXPECT_THAT(points->tree().hits(line(Vec3d(0.0), {1, 0, 0})), IsEmpty());
}

TEST(TriangleTreeTest, PointsThatAreNoNumbersDoNotHideTheOthers)
{
    const Ref<MeshData> plane = makePlane({20, 20, 20, 20});
    std::mt19937 random(4);
    for (int i = 0; i < 100; ++i)
        plane->points[random() % plane->points.size()].x = std::numeric_limits<float>::quiet_NaN();
    plane->forgetDerived();
    const MeshTriangles& triangles = plane->triangles();
    std::size_t whole = 0;
    for (std::size_t face = 0; face < plane->faces.size(); ++face)
        for (std::size_t i = 0; i < triangles.count(face); ++i) {
            const TrianglePoints corners = pointsOf(*plane, face, i);
            const Vec3d middle = (corners[0] + corners[1] + corners[2]) / 3;
            if (std::isnan(middle.x))
                continue;
            ++whole;
            const auto hit = plane->tree().nearestHit(forwards(middle + Vec3d(0, 1, 0), {0, -1, 0}));
            ASSERT_TRUE(hit);
            EXPECT_EQ(hit->face, static_cast<int>(face));
        }
    EXPECT_GT(whole, 100u);
}

TEST(TriangleTreeTest, MovedPointsAreMetWhereTheyAre)
{
    const Ref<MeshData> plane = makePlane({2, 2, 1, 1});
    EXPECT_THAT(plane->keptTrees(), IsEmpty());
    EXPECT_EQ(plane->tree().nearestTo({0, 5, 0})->point, Vec3d(0, 0, 0));
    EXPECT_THAT(plane->keptTrees(), ElementsAre(&plane->tree()));
    for (Vec3f& point : plane->points)
        point.y = 2;
    plane->forgetDerived();
    EXPECT_EQ(plane->tree().nearestTo({0, 5, 0})->point, Vec3d(0, 2, 0));
}

TEST(TriangleTreeTest, TreesAreCounted)
{
    TriangleTree::forgetTotals();
    const TriangleTree::Totals before = TriangleTree::totals();
    EXPECT_EQ(before.made, 0u);
    const Ref<MeshData> cube = makeCube({});
    const std::size_t bytes = cube->tree().bytes();
    EXPECT_GT(bytes, 12 * sizeof(int) * 5);
    EXPECT_EQ(TriangleTree::totals().made, 1u);
    EXPECT_EQ(TriangleTree::totals().present, before.present + 1);
    EXPECT_EQ(TriangleTree::totals().bytes, before.bytes + bytes);
    cube->forgetTrees();
    EXPECT_EQ(TriangleTree::totals().present, before.present);
    EXPECT_EQ(TriangleTree::totals().bytes, before.bytes);
    EXPECT_EQ(TriangleTree::totals().mostBytes, before.bytes + bytes);
    EXPECT_EQ(TriangleTree::totals().made, 1u);
}

} // namespace tvxhost::engine
