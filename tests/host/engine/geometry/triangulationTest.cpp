// Polygons split into triangles.
#include "engine/geometry/triangulation.h"

#include "engine/geometry/meshTriangles.h"
#include "engine/geometry/primitives.h"

#include <gmock/gmock.h>

#include <cmath>
#include <random>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Loop = std::vector<Vec3d>;

/// A loop on the floor, seen from above: x to the right, -z up.
Loop floorLoop(const std::vector<std::pair<double, double>>& places)
{
    Loop loop;
    for (const auto& [x, y] : places)
        loop.emplace_back(x, 0, -y);
    return loop;
}

/// A loop around a point at the angles given and at random distances, or in a circle.
Loop star(std::mt19937& random, Vec3d center, double least, double most, int corners)
{
    std::uniform_real_distribution<double> distance(least, most);
    Loop loop;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * M_PI * i / corners, radius = distance(random);
        // Single precision, as the points of meshes are.
        loop.emplace_back(
            Vec3f(Vec3d(center.x + radius * std::cos(angle), 0, center.z - radius * std::sin(angle))));
    }
    return loop;
}

Vec3d areaOf(const Loop& loop)
{
    Vec3d sum(0.0);
    for (std::size_t i = 0; i < loop.size(); ++i)
        sum += loop[i].cross(loop[(i + 1) % loop.size()]);
    return sum / 2.0;
}

Vec3d areaOf(const PolygonLoops& loops, const Triangle& triangle)
{
    Loop all;
    for (const Loop& loop : loops)
        all.insert(all.end(), loop.begin(), loop.end());
    const auto at = [&](std::size_t i) { return all[static_cast<std::size_t>(triangle[i])]; };
    return areaOf({at(0), at(1), at(2)});
}

/// The outline's area less that of the holes, whichever way they run.
double openArea(const PolygonLoops& loops)
{
    double area = 2 * areaOf(loops[0]).y;
    for (const Loop& loop : loops)
        area -= std::fabs(areaOf(loop).y);
    return area;
}

std::size_t cornersOf(const PolygonLoops& loops)
{
    std::size_t count = 0;
    for (const Loop& loop : loops)
        count += loop.size();
    return count;
}

/// Triangles that all look up and whose areas add up to the polygon's cover each place in it once.
void expectCovered(const PolygonLoops& loops)
{
    const std::vector<Triangle> triangles = triangulate(loops);
    EXPECT_EQ(triangles.size(), cornersOf(loops) + 2 * (loops.size() - 1) - 2);
    double sum = 0;
    for (const Triangle& triangle : triangles) {
        EXPECT_GT(areaOf(loops, triangle).y, 0) << triangle[0] << ' ' << triangle[1] << ' ' << triangle[2];
        sum += areaOf(loops, triangle).y;
    }
    EXPECT_NEAR(sum, openArea(loops), 1e-9 * std::fabs(sum));
    EXPECT_TRUE(hasValidTriangles(loops));
}

} // namespace

TEST(TriangulationTest, AConvexPolygonIsAFanAroundItsFirstCorner)
{
    EXPECT_THAT(triangulate({floorLoop({{0, 0}, {1, 0}, {0, 1}})}), ElementsAre(Triangle{0, 1, 2}));
    const Loop square = floorLoop({{0, 0}, {1, 0}, {1, 1}, {0, 1}});
    EXPECT_THAT(triangulate({square}), ElementsAre(Triangle{0, 1, 2}, Triangle{0, 2, 3}));
    const Loop backwards(square.rbegin(), square.rend());
    EXPECT_THAT(triangulate({backwards}), ElementsAre(Triangle{0, 1, 2}, Triangle{0, 2, 3}));
    EXPECT_THAT(triangulate({floorLoop({{0, 0}, {2, 0}, {3, 1}, {1, 3}, {-1, 1}})}),
                ElementsAre(Triangle{0, 1, 2}, Triangle{0, 2, 3}, Triangle{0, 3, 4}));
}

TEST(TriangulationTest, AConvexQuadThatIsNotFlatIsSplitTheSameWay)
{
    EXPECT_THAT(triangulate({{{0, 0, 0}, {1, 0, 0}, {1, 1, 0.5}, {0, 1, 0}}}),
                ElementsAre(Triangle{0, 1, 2}, Triangle{0, 2, 3}));
}

TEST(TriangulationTest, AQuadIsSplitThroughTheCornerThatBendsInwards)
{
    const std::vector<std::pair<double, double>> dart{{0, 0}, {4, 4}, {0, 1}, {-4, 4}};
    for (std::size_t first = 0; first < 4; ++first) {
        std::vector<std::pair<double, double>> turned(dart);
        std::rotate(turned.begin(), turned.begin() + static_cast<std::ptrdiff_t>(first), turned.end());
        const std::vector<Triangle> triangles = triangulate({floorLoop(turned)});
        const auto inwards = static_cast<std::int32_t>((6 - first) % 4);
        for (const Triangle& triangle : triangles)
            EXPECT_THAT(triangle, testing::Contains(inwards)) << "turned by " << first;
        expectCovered({floorLoop(turned)});
    }
}

TEST(TriangulationTest, CornersOnAStraightSideAreKept)
{
    expectCovered({floorLoop({{0, 0}, {1, 0}, {2, 0}, {2, 2}, {0, 2}})});
    expectCovered({floorLoop({{0, 0}, {1, 0}, {2, 0}, {3, 0}, {0, 3}})});
    expectCovered({floorLoop({{0, 0}, {2, 0}, {2, 2}, {1, 1}})});
}

TEST(TriangulationTest, AHoleStaysOpen)
{
    expectCovered({floorLoop({{0, 0}, {9, 0}, {9, 9}, {0, 9}}), floorLoop({{2, 2}, {4, 2}, {4, 4}, {2, 4}})});
    expectCovered({floorLoop({{0, 0}, {9, 0}, {9, 9}, {0, 9}}), floorLoop({{2, 2}, {2, 4}, {4, 4}, {4, 2}})});
    expectCovered({floorLoop({{0, 0}, {9, 0}, {9, 9}, {0, 9}}), floorLoop({{1, 1}, {2, 1}, {1, 2}}),
                   floorLoop({{5, 1}, {6, 1}, {5, 2}}), floorLoop({{5, 5}, {8, 5}, {5, 8}}),
                   floorLoop({{1, 5}, {2, 5}, {1, 6}})});
}

TEST(TriangulationTest, AHoleThatTheNearestSideHidesFromItsEndIsReached)
{
    // A comb: what is right of the hole is a tooth that starts further left.
    expectCovered({floorLoop({{0, 0}, {10, 0}, {10, 4}, {3, 4}, {3, 5}, {10, 5}, {10, 9}, {0, 9}}),
                   floorLoop({{1, 6}, {2, 6}, {1, 7}}), floorLoop({{1, 1}, {2, 1}, {1, 2}})});
}

TEST(TriangulationTest, TrianglesOfRandomStarsAddUpToThem)
{
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round)
        expectCovered({star(random, Vec3d(0.0), 1, 10, 3 + round % 60)});
}

TEST(TriangulationTest, TrianglesOfRandomStarsWithHolesAddUpToThem)
{
    std::mt19937 random(12);
    for (int round = 0; round < 300; ++round) {
        PolygonLoops loops{star(random, Vec3d(0.0), 9, 20, 5 + round % 40)};
        // Apart from each other and from the outline, whose sides may come as near as 9 cos(36 degrees)
        // = 7.2.
        for (int i = 0; i < round % 5; ++i) {
            const double angle = 1.2566 * i + 0.3;
            const Vec3d center(4.5 * std::cos(angle), 0, 4.5 * std::sin(angle));
            loops.push_back(star(random, center, 0.5, 2, 3 + (round + i) % 9));
            if ((round + i) % 2 == 0)
                std::reverse(loops.back().begin(), loops.back().end());
        }
        expectCovered(loops);
    }
}

TEST(TriangulationTest, ThousandsOfCornersAreSplitInASecond)
{
    std::mt19937 random(13);
    expectCovered({star(random, Vec3d(0.0), 5, 10, 2000)});
}

TEST(TriangulationTest, WhatIsNoPolygonHasNoTriangles)
{
    EXPECT_THAT(triangulate({}), IsEmpty());
    EXPECT_THAT(triangulate({{}}), IsEmpty());
    EXPECT_THAT(triangulate({floorLoop({{0, 0}, {1, 0}})}), IsEmpty());
    EXPECT_FALSE(hasValidTriangles({}));
    EXPECT_FALSE(hasValidTriangles({floorLoop({{0, 0}, {1, 0}})}));
}

TEST(TriangulationTest, ABadPolygonHasAsManyTrianglesAndIsToldToBeBad)
{
    const Loop point(5, Vec3d(1, 2, 3));
    const Loop line = floorLoop({{0, 0}, {1, 0}, {2, 0}, {3, 0}});
    const Loop bow = floorLoop({{0, 0}, {2, 2}, {2, 0}, {0, 3}});
    const Loop fiveStar = floorLoop({{0, 10}, {6, -8}, {-10, 3}, {10, 3}, {-6, -8}});
    for (const Loop& bad : {point, line, bow, fiveStar}) {
        EXPECT_EQ(triangulate({bad}).size(), bad.size() - 2);
        EXPECT_FALSE(hasValidTriangles({bad}));
    }
}

TEST(MeshTrianglesTest, TheTrianglesOfAMeshAreThoseOfItsFaces)
{
    const Ref<MeshData> cube = makeCube({});
    cube->faces.add({{0, 1}, {}});
    const MeshTriangles& triangles = cube->triangles();
    EXPECT_EQ(triangles.size(), 12u);
    EXPECT_EQ(triangles.first(3), 6u);
    EXPECT_EQ(triangles.count(3), 2u);
    EXPECT_EQ(triangles.count(6), 0u);
    // The cube's second face has the vertices 2 3 5 4.
    EXPECT_EQ(triangleVertices(*cube, 1, triangles[2]), (Triangle{2, 3, 5}));
    EXPECT_EQ(triangleVertices(*cube, 1, triangles[3]), (Triangle{2, 5, 4}));
    EXPECT_TRUE(hasValidTriangles(*cube, 1));
    EXPECT_FALSE(hasValidTriangles(*cube, 6));
}

TEST(MeshTrianglesTest, MovedPointsSplitAFaceAnew)
{
    const Ref<MeshData> plane = makePlane({2, 2, 1, 1});
    // Vertices (-1, 1) (1, 1) (-1, -1) (1, -1) in x and z; the face is 0 1 3 2.
    EXPECT_EQ(plane->triangles()[0], (Triangle{0, 1, 2}));
    plane->points[1] = Vec3f(-0.5F, 0, -0.5F);
    plane->forgetDerived();
    EXPECT_EQ(plane->triangles()[0], (Triangle{0, 1, 3})) << "the second corner bends inwards now";
    EXPECT_EQ(plane->triangles()[1], (Triangle{1, 2, 3}));
}

} // namespace tvxhost::engine
