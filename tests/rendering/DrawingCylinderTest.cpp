// The GL calls of cylinders.
#include "rendering/tvxDrawing.h"

#include "DrawingCalls.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tarvox::crowd {
namespace {

using namespace test;

constexpr float kTwoPi = 6.2831855f;

/// A bottom and a top, each inside a level of its own of the matrix stack.
Calls caps(float radius, const char* height, unsigned int segments)
{
    const Calls disc = circle("GL_POLYGON", radius, segments);
    return Calls{"glPushMatrix()", "glPushMatrix()"} + disc +
           Calls{"glPopMatrix()", "glPushMatrix()", std::string("glTranslatef(0, ") + height + ", 0)"} +
           disc + Calls{"glPopMatrix()", "glPopMatrix()"};
}

class Cylinders : public testing::TestWithParam<int>
{
protected:
    unsigned int segments() const { return static_cast<unsigned int>(GetParam()); }
    Calls side() const
    {
        return cylinderSide(1.5f, 4, GetParam() + 1, kTwoPi / static_cast<float>(GetParam()));
    }
};
INSTANTIATE_TEST_SUITE_P(Segments, Cylinders, testing::Values(0, 1, 3, 64, 360));

TEST_P(Cylinders, HaveASideOfOnePairMoreThanSegments)
{
    EXPECT_EQ(callsOf([this] { drawCylinder(1.5f, 4, segments(), false); }), side());
}

TEST_P(Cylinders, AreCappedByDiscs)
{
    EXPECT_EQ(callsOf([this] { drawCylinder(1.5f, 4, segments(), true); }),
              side() + caps(1.5f, "4", segments()));
}

TEST(Cylinder, OfThreeSegmentsClosesUpToFloatErrorByAccumulatedAngles)
{
    EXPECT_EQ(callsOf([] { drawCylinder(1, 2, 3, false); }),
              (Calls{"glBegin(GL_QUAD_STRIP)",                                                             //
                     "glVertex3f(1, 0, 0)", "glVertex3f(1, 2, 0)",                                         //
                     "glVertex3f(-0.50000006, 0, 0.866025388)", "glVertex3f(-0.50000006, 2, 0.866025388)", //
                     "glVertex3f(-0.499999911, 0, -0.866025448)",
                     "glVertex3f(-0.499999911, 2, -0.866025448)", //
                     "glVertex3f(1, 0, 1.74845553e-07)", "glVertex3f(1, 2, 1.74845553e-07)", "glEnd()"}));
}

TEST(Cylinder, AddsTheStepInsteadOfMultiplyingIt)
{
    // After 63 steps the sum in single precision has left the product.
    const Calls sums = callsOf([] { drawCylinder(1, 1, 63, false); });
    const float step = kTwoPi / 63;
    EXPECT_EQ(sums, cylinderSide(1, 1, 64, step));
    EXPECT_NE(sums[sums.size() - 2], glCall("glVertex3f", std::cos(63 * step), 1.0f, std::sin(63 * step)));
}

TEST(Cylinder, OfNoSegmentsIsOneEdge)
{
    EXPECT_EQ(callsOf([] { drawCylinder(2, 3, 0, false); }),
              vertices("GL_QUAD_STRIP", {{2, 0, 0}, {2, 3, 0}}));
}

TEST(Cylinder, OfACountThatIsNegativeWhenReadAsSignedHasAnEmptySide)
{
    for (const int segments : {-1, -64, std::numeric_limits<int>::min()})
        EXPECT_EQ(callsOf([=] { drawCylinder(2, 3, static_cast<unsigned int>(segments), false); }),
                  (Calls{"glBegin(GL_QUAD_STRIP)", "glEnd()"}));
}

} // namespace
} // namespace tarvox::crowd
