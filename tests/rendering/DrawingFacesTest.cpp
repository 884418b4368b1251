// The GL calls of pyramids and rectangles.
#include "rendering/tvxDrawing.h"

#include "DrawingCalls.h"

#include <gtest/gtest.h>

namespace tarvox::crowd {
namespace {

using namespace test;

Calls withPolygonMode(const char* mode, const Calls& shape)
{
    return Calls{"glPushAttrib(GL_POLYGON_BIT)",
                 std::string("glPolygonMode(GL_FRONT_AND_BACK, ") + mode + ")"} +
           shape + Calls{"glPopAttrib()"};
}

const Calls kPyramid = vertices(
    "GL_TRIANGLE_FAN",
    {{0, 0, 3}, {1.5f, 1.5f, 0}, {1.5f, -1.5f, 0}, {-1.5f, -1.5f, 0}, {-1.5f, 1.5f, 0}, {1.5f, 1.5f, 0}});

TEST(Pyramid, StandsAlongZ)
{
    EXPECT_EQ(callsOf([] { drawPyramid(1.5f, 3, true); }), withPolygonMode("GL_FILL", kPyramid));
}

TEST(Pyramid, IsDrawnAsWires)
{
    EXPECT_EQ(callsOf([] { drawPyramid(1.5f, 3, false); }), withPolygonMode("GL_LINE", kPyramid));
}

const Calls kRectangle = vertices("GL_QUADS", {{-2, 7, -0.5f}, {-2, 7, 0.5f}, {2, 7, 0.5f}, {2, 7, -0.5f}});

TEST(Rectangle, LiesAtItsHeightAndTakesHalfSizes)
{
    EXPECT_EQ(callsOf([] { drawRectangle(2, 7, 0.5f, true); }), withPolygonMode("GL_FILL", kRectangle));
}

TEST(Rectangle, IsDrawnAsWires)
{
    EXPECT_EQ(callsOf([] { drawRectangle(2, 7, 0.5f, false); }), withPolygonMode("GL_LINE", kRectangle));
}

} // namespace
} // namespace tarvox::crowd
