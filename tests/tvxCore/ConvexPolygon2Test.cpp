// The convex polygon and what its hull promises.
#include "ExactHull.h"
#include "PointSets.h"

#include <tvxCore/ConvexPolygon2.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <string>

namespace tarvox::core {
namespace {

using Points = std::vector<Vector2<float>>;

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kHuge = std::numeric_limits<float>::max();
constexpr float kTiny = std::numeric_limits<float>::denorm_min();

Points hullOf(const Points& points)
{
    ConvexPolygon2<float> polygon;
    polygon.computeConvexHull(points);
    return polygon.getVertices();
}

TEST(ConvexPolygon2, IsEmptyUntilAHullIsComputed)
{
    EXPECT_EQ(ConvexPolygon2<float>().getVertices(), Points{});
}

TEST(ConvexPolygon2, ForgetsItsFormerHull)
{
    ConvexPolygon2<float> polygon;
    polygon.computeConvexHull({{0, 0}, {1, 0}, {0, 1}});
    polygon.computeConvexHull({{5, 5}, {6, 5}, {5, 6}});
    EXPECT_EQ(polygon.getVertices(), (Points{{5, 5}, {6, 5}, {5, 6}}));
    polygon.computeConvexHull({});
    EXPECT_EQ(polygon.getVertices(), Points{});
}

TEST(ConvexHull, OfNoPointsIsEmpty)
{
    EXPECT_EQ(hullOf({}), Points{});
}

TEST(ConvexHull, OfOnePointIsThePoint)
{
    EXPECT_EQ(hullOf({{3, -4}}), (Points{{3, -4}}));
}

TEST(ConvexHull, OfEqualPointsIsOnePoint)
{
    EXPECT_EQ(hullOf({{3, -4}, {3, -4}, {3, -4}}), (Points{{3, -4}}));
}

TEST(ConvexHull, OfTwoPointsGoesFromLeftToRight)
{
    EXPECT_EQ(hullOf({{3, -4}, {1, 7}}), (Points{{1, 7}, {3, -4}}));
}

TEST(ConvexHull, OfPointsOnOneLineIsItsTwoEnds)
{
    EXPECT_EQ(hullOf({{1, 1}, {4, 4}, {-2, -2}, {3, 3}, {0, 0}}), (Points{{-2, -2}, {4, 4}}));
    EXPECT_EQ(hullOf({{2, 5}, {-7, 5}, {0, 5}}), (Points{{-7, 5}, {2, 5}}));
}

TEST(ConvexHull, OfAVerticalLineGoesFromTheLowerEndToTheUpper)
{
    EXPECT_EQ(hullOf({{2, 5}, {2, 9}, {2, -1}, {2, 0}}), (Points{{2, -1}, {2, 9}}));
}

TEST(ConvexHull, GoesCounterClockwiseFromTheLeftmost)
{
    EXPECT_EQ(hullOf({{0, 3}, {2, -1}, {-1, 0}}), (Points{{-1, 0}, {2, -1}, {0, 3}}));
    EXPECT_EQ(hullOf({{-1, 0}, {0, 3}, {2, -1}}), (Points{{-1, 0}, {2, -1}, {0, 3}}));
}

TEST(ConvexHull, BeginsWithTheLowerOfTwoLeftmost)
{
    EXPECT_EQ(hullOf({{0, 1}, {1, 1}, {1, 0}, {0, 0}}), (Points{{0, 0}, {1, 0}, {1, 1}, {0, 1}}));
}

TEST(ConvexHull, HasNoPointsThatAreInsideOrOnItsEdges)
{
    EXPECT_EQ(hullOf({{0, 0}, {1, 0}, {2, 0}, {2, 1}, {2, 2}, {1, 2}, {0, 2}, {0, 1}, {1, 1}}),
              (Points{{0, 0}, {2, 0}, {2, 2}, {0, 2}}));
}

TEST(ConvexHull, HasNoPointTwice)
{
    EXPECT_EQ(hullOf({{0, 0}, {2, 0}, {1, 2}, {2, 0}, {1, 2}, {0, 0}, {1, 2}}),
              (Points{{0, 0}, {2, 0}, {1, 2}}));
}

TEST(ConvexHull, IgnoresPointsThatAreInfiniteOrNotANumber)
{
    EXPECT_EQ(hullOf({{kInfinity, 0},
                      {0, 0},
                      {0, -kInfinity},
                      {2, 0},
                      {kNaN, 9},
                      {1, 2},
                      {9, kNaN},
                      {-kInfinity, kInfinity},
                      {kNaN, kNaN}}),
              (Points{{0, 0}, {2, 0}, {1, 2}}));
}

TEST(ConvexHull, OfNothingButInfiniteAndNotANumberIsEmpty)
{
    EXPECT_EQ(hullOf({{kInfinity, 0}, {0, kNaN}, {-kInfinity, -kInfinity}}), Points{});
}

TEST(ConvexHull, TakesZerosOfBothSignsForOnePoint)
{
    EXPECT_EQ(hullOf({{-0.0f, 0.0f}, {0.0f, -0.0f}, {-0.0f, -0.0f}}).size(), 1U);
}

TEST(ConvexHull, HasPositiveZerosOnly)
{
    for (const Vector2<float> corner :
         hullOf({{-0.0f, 1}, {-0.0f, -0.0f}, {1, -0.0f}, {-1, -0.0f}, {1, 1}})) {
        EXPECT_FALSE(corner.x == 0 && std::signbit(corner.x));
        EXPECT_FALSE(corner.y == 0 && std::signbit(corner.y));
    }
}

TEST(ConvexHull, KeepsACornerThatSticksOutByTheLastBit)
{
    const float belowOne = std::nextafter(1.0f, 0.0f);
    EXPECT_EQ(hullOf({{0, 0}, {1, belowOne}, {2, 2}, {0, 2}}),
              (Points{{0, 0}, {1, belowOne}, {2, 2}, {0, 2}}));
}

TEST(ConvexHull, LeavesOutAPointThatIsInsideByTheLastBit)
{
    const float aboveOne = std::nextafter(1.0f, 2.0f);
    EXPECT_EQ(hullOf({{0, 0}, {1, aboveOne}, {2, 2}, {0, 2}}), (Points{{0, 0}, {2, 2}, {0, 2}}));
}

TEST(ConvexHull, SeesTheSmallestFloatBesideTheLargest)
{
    EXPECT_EQ(hullOf({{-kHuge, -kHuge}, {kHuge, kHuge}, {kTiny, 0}}),
              (Points{{-kHuge, -kHuge}, {kTiny, 0}, {kHuge, kHuge}}));
    EXPECT_EQ(hullOf({{-kHuge, -kHuge}, {kHuge, kHuge}, {kTiny, kTiny}}),
              (Points{{-kHuge, -kHuge}, {kHuge, kHuge}}));
}

TEST(ConvexHull, WorksWithTheSmallestFloats)
{
    EXPECT_EQ(hullOf({{0, 0}, {2 * kTiny, 0}, {kTiny, kTiny}, {2 * kTiny, 2 * kTiny}, {0, 2 * kTiny}}),
              (Points{{0, 0}, {2 * kTiny, 0}, {2 * kTiny, 2 * kTiny}, {0, 2 * kTiny}}));
}

TEST(ConvexHull, WorksWithTheLargestFloats)
{
    EXPECT_EQ(
        hullOf({{kHuge, kHuge}, {-kHuge, kHuge}, {0, 0}, {-kHuge, -kHuge}, {kHuge, -kHuge}, {kHuge, 1}}),
        (Points{{-kHuge, -kHuge}, {kHuge, -kHuge}, {kHuge, kHuge}, {-kHuge, kHuge}}));
}

TEST(ConvexHull, DoesNotDependOnTheOrderOfThePoints)
{
    std::mt19937 random(7);
    for (const PointSetFamily& family : pointSetFamilies()) {
        Points points = family.make(random, 700);
        const Points hull = hullOf(points);
        std::shuffle(points.begin(), points.end(), random);
        EXPECT_EQ(hullOf(points), hull) << family.name;
        std::reverse(points.begin(), points.end());
        EXPECT_EQ(hullOf(points), hull) << family.name;
    }
}

/// Families whose hulls have few corners: wrapping takes time for each.
TEST(ConvexHull, OfManyPointsIsExact)
{
    const std::set<std::string> fewCorners{"Disc", "SquareEdges", "AlmostCollinear", "OnPolygon", "AnyBits"};
    std::mt19937 random(11);
    std::size_t compared = 0;
    for (const PointSetFamily& family : pointSetFamilies())
        if (fewCorners.count(family.name)) {
            const Points points = family.make(random, 30'000);
            EXPECT_EQ(hullOf(points), exactHull(points)) << family.name;
            ++compared;
        }
    EXPECT_EQ(compared, fewCorners.size());
}

/// Rows of a mesh: a sample that steps by whole rows would see one column only.
TEST(ConvexHull, OfARegularMeshIsItsFourCorners)
{
    Points points;
    for (int row = 0; row < 300; ++row)
        for (int column = 0; column < 1000; ++column)
            points.push_back({static_cast<float>(column) * 0.1f, static_cast<float>(row) * 0.1f});
    EXPECT_EQ(hullOf(points), (Points{{0, 0}, {999 * 0.1f, 0}, {999 * 0.1f, 299 * 0.1f}, {0, 299 * 0.1f}}));
}

} // namespace
} // namespace tarvox::core
