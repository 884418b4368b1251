// The GL calls of capsules.
#include "rendering/tvxDrawing.h"

#include "DrawingCalls.h"

#include <gtest/gtest.h>

#include <utility>

namespace tarvox::crowd {
namespace {

using namespace test;

constexpr float kTwoPi = 6.2831855f;

/// A capsule of radius 1.5 and height 4 from its three surfaces.
Calls capsule(const Calls& halfSphere, const Calls& side)
{
    return Calls{"glPushMatrix()", "glPushMatrix()", "glRotatef(-90, 1, 0, 0)"} + halfSphere +
           Calls{"glPopMatrix()"} + side +
           Calls{"glTranslatef(0, 4, 0)", "glPushMatrix()", "glRotatef(90, 1, 0, 0)"} + halfSphere +
           Calls{"glPopMatrix()", "glPopMatrix()"};
}

/// The number of segments, and of bands in half a sphere of as many stacks.
class Capsules : public testing::TestWithParam<std::pair<int, int>>
{
};
INSTANTIATE_TEST_SUITE_P(SegmentsAndBands, Capsules,
                         testing::Values(std::pair(0, 0), std::pair(1, 0), std::pair(3, 1), std::pair(4, 2),
                                         std::pair(5, 2), std::pair(64, 32)));

TEST_P(Capsules, AreCylindersBetweenHalfSpheres)
{
    const auto [n, bands] = GetParam();
    EXPECT_EQ(callsOf([n = n] { drawCapsule(1.5f, 4, static_cast<unsigned int>(n)); }),
              capsule(sphereBands(1.5f, n, n, bands, n + 1),
                      cylinderSide(1.5f, 4, n + 1, kTwoPi / static_cast<float>(n))));
}

TEST(Capsule, OfACountThatIsNegativeWhenReadAsSignedIsAnEmptySide)
{
    EXPECT_EQ(callsOf([] { drawCapsule(1.5f, 4, 0xFFFFFFF0u); }),
              capsule({}, {"glBegin(GL_QUAD_STRIP)", "glEnd()"}));
}

} // namespace
} // namespace tarvox::crowd
