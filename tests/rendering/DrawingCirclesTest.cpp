// The GL calls of circles and discs.
#include "rendering/tvxDrawing.h"

#include "DrawingCalls.h"

#include <gtest/gtest.h>

namespace tarvox::crowd {
namespace {

using namespace test;

/// Counts about those of which the points are kept, and above.
class Circles : public testing::TestWithParam<unsigned int>
{
};
INSTANTIATE_TEST_SUITE_P(Segments, Circles, testing::Values(0, 1, 2, 3, 4, 12, 64, 360, 512, 513, 2000));

TEST_P(Circles, AreLineLoopsThroughTheirPoints)
{
    for (const float radius : {1.0f, 0.0f, -2.5f, 21.0f, 0.1f})
        EXPECT_EQ(callsOf([&] { drawCircle(radius, GetParam()); }),
                  circle("GL_LINE_LOOP", radius, GetParam()))
            << radius;
}

TEST_P(Circles, AreFilledAsPolygonsOfTheSamePoints)
{
    for (const float radius : {1.0f, 0.0f, -2.5f, 21.0f, 0.1f})
        EXPECT_EQ(callsOf([&] { drawDisc(radius, GetParam()); }), circle("GL_POLYGON", radius, GetParam()))
            << radius;
}

TEST_P(Circles, AreTheSameWhenDrawnAgain)
{
    const Calls first = callsOf([this] { drawCircle(3, GetParam()); });
    callsOf([this] { drawDisc(7, GetParam()); });
    EXPECT_EQ(callsOf([this] { drawCircle(3, GetParam()); }), first);
}

TEST(Circle, OfNoSegmentsIsAnEmptyPair)
{
    EXPECT_EQ(callsOf([] { drawCircle(1, 0); }), (Calls{"glBegin(GL_LINE_LOOP)", "glEnd()"}));
}

TEST(Disc, OfNoSegmentsIsAnEmptyPair)
{
    EXPECT_EQ(callsOf([] { drawDisc(1, 0); }), (Calls{"glBegin(GL_POLYGON)", "glEnd()"}));
}

TEST(Circle, StartsOnTheXAxisAndGoesTowardsZ)
{
    EXPECT_EQ(callsOf([] { drawCircle(2, 4); }),
              (Calls{"glBegin(GL_LINE_LOOP)", "glVertex3f(2, 0, 0)", "glVertex3f(-8.74227766e-08, 0, 2)",
                     "glVertex3f(-2, 0, -1.74845553e-07)", "glVertex3f(2.38497613e-08, 0, -2)", "glEnd()"}));
}

TEST(Circle, OfThreeSegmentsHasItsCornersAThirdOfATurnApart)
{
    EXPECT_EQ(
        callsOf([] { drawCircle(1, 3); }),
        (Calls{"glBegin(GL_LINE_LOOP)", "glVertex3f(1, 0, 0)", "glVertex3f(-0.50000006, 0, 0.866025388)",
               "glVertex3f(-0.499999911, 0, -0.866025448)", "glEnd()"}));
}

} // namespace
} // namespace tarvox::crowd
