// The GL calls of the cross and of the axes.
#include "rendering/tvxDrawing.h"

#include "DrawingCalls.h"

#include <gtest/gtest.h>

namespace tarvox::crowd {
namespace {

using namespace test;

TEST(Cross, SpansItsSizesInTheOrderXZY)
{
    EXPECT_EQ(callsOf([] { drawCross(2, 4, 6); }),
              vertices("GL_LINES", {{-1, 0, 0}, {1, 0, 0}, {0, 0, 2}, {0, 0, -2}, {0, 3, 0}, {0, -3, 0}}));
}

TEST(Cross, IsComputedInSinglePrecision)
{
    const float x = 0.1f, y = 0.35f, z = 0.15f; // halves of the sizes
    EXPECT_EQ(callsOf([] { drawCross(0.2f, 0.3f, 0.7f); }),
              vertices("GL_LINES", {{-x, 0, 0}, {x, 0, 0}, {0, 0, z}, {0, 0, -z}, {0, y, 0}, {0, -y, 0}}));
}

TEST(Axes, AreRedGreenAndBlueAndGiveTheColorBack)
{
    EXPECT_EQ(callsOf([] { drawAxes(2.5f); }),
              (Calls{"glPushAttrib(GL_CURRENT_BIT)", "glBegin(GL_LINES)",                             //
                     "glColor3f(1, 0, 0)", "glVertex3f(0, 0, 0)", "glVertex3f(2.5, 0, 0)",            //
                     "glColor3f(0, 1, 0)", "glVertex3f(0, 0, 0)", "glVertex3f(0, 2.5, 0)",            //
                     "glColor3f(0, 0, 1)", "glVertex3f(0, 0, 0)", "glVertex3f(0, 0, 2.5)", "glEnd()", //
                     "glPopAttrib()"}));
}

} // namespace
} // namespace tarvox::crowd
