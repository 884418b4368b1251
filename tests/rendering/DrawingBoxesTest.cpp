// The GL calls of boxes.
#include "rendering/tvxDrawing.h"

#include "DrawingCalls.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarvox::crowd {
namespace {

using namespace test;

TEST(WireBox, SpansItsSizesInTheOrderXZY)
{
    // x from -1 to 1, y from -3 to 3, z from -2 to 2
    const std::vector<Point> edges = {
        {1, 3, 2},    {-1, 3, 2},   //
        {-1, 3, 2},   {-1, -3, 2},  //
        {-1, -3, 2},  {1, -3, 2},   //
        {1, -3, 2},   {1, 3, 2},    // the rectangle at z = 2
        {1, 3, -2},   {-1, 3, -2},  //
        {-1, 3, -2},  {-1, -3, -2}, //
        {-1, -3, -2}, {1, -3, -2},  //
        {1, -3, -2},  {1, 3, -2},   // the rectangle at z = -2
        {1, 3, 2},    {1, 3, -2},   //
        {-1, 3, 2},   {-1, 3, -2},  //
        {-1, -3, 2},  {-1, -3, -2}, //
        {1, -3, 2},   {1, -3, -2},  // from one to the other
    };
    EXPECT_EQ(callsOf([] { drawWireBox(2, 4, 6); }), vertices("GL_LINES", edges));
}

TEST(WireBox, IsComputedInSinglePrecision)
{
    EXPECT_EQ(callsOf([] { drawWireBox(0.2f, 0.3f, 0.7f); })[1],
              "glVertex3f(0.100000001, 0.349999994, 0.150000006)");
}

TEST(WireBox, OfNoSizeIsStillDrawn)
{
    EXPECT_EQ(callsOf([] { drawWireBox(0, 0, 0); }).size(), 26u);
}

TEST(WireBox, OfNegativeSizesIsTurnedInsideOut)
{
    const Calls calls = callsOf([] { drawWireBox(-2, -4, -6); });
    ASSERT_EQ(calls.size(), 26u);
    EXPECT_EQ(calls[1], "glVertex3f(-1, -3, -2)");
    EXPECT_EQ(calls[24], "glVertex3f(-1, 3, 2)");
}

TEST(SolidBox, StandsOnTheGround)
{
    // x from -1 to 1, y from 0 to 5, z from -2 to 2
    const std::vector<Point> faces = {
        {1, 5, -2}, {-1, 5, -2}, {-1, 5, 2},  {1, 5, 2},  // top
        {1, 0, 2},  {-1, 0, 2},  {-1, 0, -2}, {1, 0, -2}, // bottom
        {1, 5, 2},  {-1, 5, 2},  {-1, 0, 2},  {1, 0, 2},  // front
        {1, 0, -2}, {-1, 0, -2}, {-1, 5, -2}, {1, 5, -2}, // back
        {-1, 5, 2}, {-1, 5, -2}, {-1, 0, -2}, {-1, 0, 2}, // left
        {1, 5, -2}, {1, 5, 2},   {1, 0, 2},   {1, 0, -2}, // right
    };
    EXPECT_EQ(callsOf([] { drawSolidBox(2, 5, 4); }), vertices("GL_QUADS", faces));
}

TEST(SolidBox, IsComputedInSinglePrecision)
{
    EXPECT_EQ(callsOf([] { drawSolidBox(0.2f, 0.7f, 0.3f); })[1],
              "glVertex3f(0.100000001, 0.699999988, -0.150000006)");
}

TEST(SolidBox, OfNoSizeIsStillDrawn)
{
    EXPECT_EQ(callsOf([] { drawSolidBox(0, 0, 0); }).size(), 26u);
}

TEST(SolidBox, OfNegativeHeightHangsBelowTheGround)
{
    EXPECT_EQ(callsOf([] { drawSolidBox(2, -5, 4); })[1], "glVertex3f(1, -5, -2)");
}

} // namespace
} // namespace tarvox::crowd
