// The GL calls of the heading marker.
#include "rendering/tvxDrawing.h"

#include "DrawingCalls.h"

#include <gtest/gtest.h>

#include <math.h>

#include <utility>

namespace tarvox::crowd {
namespace {

using namespace test;

/// A vertex on the back, given as doubles but computed in single precision.
std::string backVertex(float radius, float angle)
{
    const float x = -radius * cosf(angle);
    const float z = radius * sinf(angle);
    return glCall("glVertex3d", double(x), 0, double(z));
}

/// The outline: both ends of the back about the tip, then the back in as many steps.
Calls arrowHead(float radius, int steps)
{
    const float quarter = 0.7853982f, half = 1.5707964f;
    Calls calls = {"glBegin(GL_LINE_LOOP)", backVertex(radius, -quarter),
                   glCall("glVertex3d", double(radius), 0, 0), backVertex(radius, quarter)};
    for (int i = 0; i < steps; ++i) {
        float back = static_cast<float>(i) * half;
        back /= static_cast<float>(steps);
        calls.push_back(backVertex(radius, quarter - back));
    }
    calls.push_back("glEnd()");
    return calls;
}

/// The marker takes the caller's matrix level off, and gives blending and depth writes fixed values.
Calls marker(const Calls& outline, const Calls& disc)
{
    return outline +
           Calls{"glEnable(GL_BLEND)", "glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA)",
                 "glDepthMask(GL_FALSE)"} +
           disc + Calls{"glPopMatrix()", "glDisable(GL_BLEND)", "glDepthMask(GL_TRUE)"};
}

/// The number of segments, and of a quarter of them.
class HeadingMarkers : public testing::TestWithParam<std::pair<int, int>>
{
};
INSTANTIATE_TEST_SUITE_P(SegmentsAndSteps, HeadingMarkers,
                         testing::Values(std::pair(0, 0), std::pair(1, 0), std::pair(3, 0), std::pair(4, 1),
                                         std::pair(7, 1), std::pair(12, 3), std::pair(44, 11),
                                         std::pair(64, 16)));

TEST_P(HeadingMarkers, AreAnArrowHeadAndABlendedDisc)
{
    const auto [segments, steps] = GetParam();
    EXPECT_EQ(
        callsOf([n = segments] { drawHeadingMarker(2.5f, n); }),
        marker(arrowHead(2.5f, steps), circle("GL_POLYGON", 2.5f, static_cast<unsigned int>(segments))));
}

TEST(HeadingMarker, OfThreeSegmentsHasThreeVerticesInItsOutline)
{
    const Calls calls = callsOf([] { drawHeadingMarker(1, 3); });
    EXPECT_EQ(Calls(calls.begin(), calls.begin() + 5),
              (Calls{"glBegin(GL_LINE_LOOP)", "glVertex3d(-0.70710676908493042, 0, -0.70710676908493042)",
                     "glVertex3d(1, 0, 0)", "glVertex3d(-0.70710676908493042, 0, 0.70710676908493042)",
                     "glEnd()"}));
}

TEST(HeadingMarker, OfNegativeSegmentsIsDrawnAsOfNone)
{
    const Calls none = marker(arrowHead(2.5f, 0), {"glBegin(GL_POLYGON)", "glEnd()"});
    for (const int segments : {-1, -3, -4, -64})
        EXPECT_EQ(callsOf([=] { drawHeadingMarker(2.5f, segments); }), none) << segments;
}

TEST(HeadingMarker, IsTheSameWhenDrawnAgain)
{
    const auto draw = [] { drawHeadingMarker(1, 16); };
    const Calls first = callsOf(draw);
    EXPECT_EQ(callsOf(draw), first);
}

} // namespace
} // namespace tarvox::crowd
