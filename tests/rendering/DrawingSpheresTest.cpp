// The GL calls of spheres.
#include "rendering/tvxDrawing.h"

#include "DrawingCalls.h"

#include <gtest/gtest.h>

namespace tarvox::crowd {
namespace {

using namespace test;

class WireSpheres : public testing::TestWithParam<unsigned int>
{
};
INSTANTIATE_TEST_SUITE_P(Segments, WireSpheres, testing::Values(0, 1, 3, 64));

TEST_P(WireSpheres, AreThreeCirclesWithTurnsBetweenThem)
{
    const Calls ring = circle("GL_LINE_LOOP", 2.5f, GetParam());
    const Calls expected = Calls{"glPushMatrix()"} + ring + Calls{"glRotatef(90, 1, 0, 0)"} + ring +
                           Calls{"glRotatef(90, 1, 0, 0)", "glRotatef(90, 0, 0, 1)"} + ring +
                           Calls{"glPopMatrix()"};
    EXPECT_EQ(callsOf([this] { drawWireSphere(2.5f, GetParam()); }), expected);
}

TEST(Sphere, OfOneStackAndSliceIsOneBandFromPoleToPole)
{
    EXPECT_EQ(callsOf([] { drawSphere(1, 1, 1, 1); }),
              (Calls{"glBegin(GL_QUAD_STRIP)", //
                     "glNormal3f(-4.37113883e-08, 7.64274186e-15, -1)",
                     "glVertex3f(-4.37113883e-08, 7.64274186e-15, -1)",
                     "glNormal3f(-4.37113883e-08, 7.64274186e-15, 1)",
                     "glVertex3f(-4.37113883e-08, 7.64274186e-15, 1)", //
                     "glNormal3f(-4.37113883e-08, -0, -1)", "glVertex3f(-4.37113883e-08, -0, -1)",
                     "glNormal3f(-4.37113883e-08, -0, 1)", "glVertex3f(-4.37113883e-08, -0, 1)", "glEnd()"}));
}

/// Stacks and slices alike.
class Spheres : public testing::TestWithParam<int>
{
};
INSTANTIATE_TEST_SUITE_P(Segments, Spheres, testing::Values(0, 1, 2, 3, 11, 64));

TEST_P(Spheres, AreBandsFromTheSouthPoleUpwards)
{
    const int n = GetParam();
    EXPECT_EQ(callsOf([=] { drawSphere(2.5f, n, n, 1); }), sphereBands(2.5f, n, n, n, n + 1));
}

TEST(Sphere, HasItsOwnNumbersOfStacksAndSlices)
{
    EXPECT_EQ(callsOf([] { drawSphere(3, 5, 8, 1); }), sphereBands(3, 5, 8, 5, 9));
    EXPECT_EQ(callsOf([] { drawSphere(3, 8, 5, 1); }), sphereBands(3, 8, 5, 8, 6));
}

TEST(Sphere, OfFiveStacksHasTwoBandsBelowItsMiddle)
{
    EXPECT_EQ(callsOf([] { drawSphere(1, 5, 8, 0.5f); }), sphereBands(1, 5, 8, 2, 9));
}

TEST(Sphere, OfFiveStacksHasThreeBandsInAFractionJustAboveAHalf)
{
    EXPECT_EQ(callsOf([] { drawSphere(1, 5, 8, 0.52f); }), sphereBands(1, 5, 8, 3, 9));
}

TEST(Sphere, OfAFractionBelowOrAtNothingIsNotDrawn)
{
    for (const float fraction : {0.0f, -0.5f, -1.0f})
        EXPECT_EQ(callsOf([=] { drawSphere(1, 5, 8, fraction); }), Calls()) << fraction;
}

TEST(Sphere, OfNoStacksIsNotDrawn)
{
    EXPECT_EQ(callsOf([] { drawSphere(1, 0, 8, 1); }), Calls());
}

TEST(Sphere, OfNegativeStacksIsNotDrawn)
{
    EXPECT_EQ(callsOf([] { drawSphere(1, -4, 8, 1); }), Calls());
}

TEST(Sphere, OfNegativeSlicesHasEmptyBands)
{
    EXPECT_EQ(callsOf([] { drawSphere(1, 2, -1, 1); }),
              (Calls{"glBegin(GL_QUAD_STRIP)", "glEnd()", "glBegin(GL_QUAD_STRIP)", "glEnd()"}));
}

TEST(Sphere, OfNoSlicesHasOnePairInEachBandWithoutALongitude)
{
    const Calls calls = callsOf([] { drawSphere(1, 1, 0, 1); });
    EXPECT_EQ(calls, (Calls{"glBegin(GL_QUAD_STRIP)", "glNormal3f(nan, nan, -1)", "glVertex3f(nan, nan, -1)",
                            "glNormal3f(nan, nan, 1)", "glVertex3f(nan, nan, 1)", "glEnd()"}));
}

TEST(Sphere, MayBeMoreThanWhole)
{
    EXPECT_EQ(callsOf([] { drawSphere(1, 4, 3, 1.5f); }), sphereBands(1, 4, 3, 6, 4));
}

} // namespace
} // namespace tarvox::crowd
