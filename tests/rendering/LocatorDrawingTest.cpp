// What the locators draw: every call of OpenGL and of the view, in order.
#include "DrawingCalls.h"
#include "rendering/tvxCrowdProxyRendermanStudio.h"
#include "rendering/tvxCrowdProxyVRay.h"
#include "rendering/tvxCrowdRenderManagerNode.h"
#include "rendering/tvxLocatorDrawing.h"

#include <maya/M3dView.h>
#include <maya/MDagPath.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tarvox::crowd {
namespace {

using test::Calls;
using test::glCall;
using test::operator+;
using testing::IsEmpty;

// The outline of the emblem on the ground.
constexpr const char* kOutline[] = {
    "4, 0, 3",    "13, 0, 30",  "20, 0, 66",  "25, 0, 86", "28, 0, 112", "31, 0, 147", "32, 0, 187",
    "43, 0, 187", "44, 0, 147", "46, 0, 120", "50, 0, 86", "53, 0, 74",  "57, 0, 61",  "62, 0, 51",
    "68, 0, 46",  "79, 0, 46",  "84, 0, 47",  "90, 0, 52", "95, 0, 56",  "98, 0, 50",  "101, 0, 46",
    "107, 0, 41", "112, 0, 38", "104, 0, 30", "95, 0, 24", "84, 0, 18",  "71, 0, 18",  "62, 0, 22",
    "56, 0, 28",  "52, 0, 34",  "49, 0, 40",  "46, 0, 47", "41, 0, 59",  "39, 0, 71",  "36, 0, 86",
    "33, 0, 72",  "31, 0, 65",  "28, 0, 57",  "24, 0, 45", "20, 0, 34",  "15, 0, 24",  "11, 0, 15"};

// A cube of side 2, edge by edge.
const std::vector<test::Point> kCube = {
    {1, 1, 1},    {-1, 1, 1},   //
    {-1, 1, 1},   {-1, -1, 1},  //
    {-1, -1, 1},  {1, -1, 1},   //
    {1, -1, 1},   {1, 1, 1},    // the rectangle at z = 1
    {1, 1, -1},   {-1, 1, -1},  //
    {-1, 1, -1},  {-1, -1, -1}, //
    {-1, -1, -1}, {1, -1, -1},  //
    {1, -1, -1},  {1, 1, -1},   // the rectangle at z = -1
    {1, 1, 1},    {1, 1, -1},   //
    {-1, 1, 1},   {-1, 1, -1},  //
    {-1, -1, 1},  {-1, -1, -1}, //
    {1, -1, 1},   {1, -1, -1},  // from one to the other
};

// A locator is drawn outside a scene: its draw looks at nothing but the status.
template <class Locator>
Calls drawingOf(M3dView::DisplayStatus status)
{
    const std::unique_ptr<Locator> locator(static_cast<Locator*>(Locator::creator()));
    M3dView view;
    const MDagPath path;
    return test::callsOf([&] { locator->draw(view, path, M3dView::kWireFrame, status); });
}

Calls emblemIn(const char* color)
{
    Calls calls = {"M3dView::beginGL",
                   "glPushMatrix()",
                   "glPushAttrib(GL_ALL_ATTRIB_BITS)",
                   glCall("glScalef", 0.012f, 0.012f, 0.012f),
                   "glRotatef(180, 0, 1, 0)",
                   "glBegin(GL_LINE_LOOP)",
                   std::string("glColor4f(") + color + ")"};
    for (const char* point : kOutline)
        calls.push_back(std::string("glVertex3d(") + point + ")");
    return std::move(calls) + Calls{"glEnd()", "glTranslatef(120, 0, 63)", "glPushMatrix()"} +
           test::circle("GL_LINE_LOOP", 21, 64) +
           Calls{"glPopMatrix()", "glPopAttrib()", "glPopMatrix()", "M3dView::endGL"};
}

Calls cubeIn(const char* color)
{
    return Calls{"M3dView::beginGL", "glPushMatrix()", "glPushAttrib(GL_ALL_ATTRIB_BITS)",
                 std::string("glColor4f(") + color + ")"} +
           test::vertices("GL_LINES", kCube) + Calls{"glPopAttrib()", "glPopMatrix()", "M3dView::endGL"};
}

constexpr M3dView::DisplayStatus kSelected[] = {M3dView::kLead, M3dView::kActive};
constexpr M3dView::DisplayStatus kNotSelected[] = {M3dView::kLive,
                                                   M3dView::kDormant,
                                                   M3dView::kInvisible,
                                                   M3dView::kHilite,
                                                   M3dView::kTemplate,
                                                   M3dView::kActiveTemplate,
                                                   M3dView::kActiveComponent,
                                                   M3dView::kIntermediateObject,
                                                   M3dView::kActiveAffected,
                                                   M3dView::kNoStatus};

TEST(ProxyColors, AreOrangeAndBrown)
{
    EXPECT_TRUE(activeProxyColor() == MColor(1.0f, 0.45f, 0.0f, 1.0f));
    EXPECT_TRUE(dormantProxyColor() == MColor(0.65f, 0.3f, 0.1f, 1.0f));
}

TEST(ProxyRendermanStudioDrawing, IsAnOrangeEmblemWhenSelected)
{
    for (const auto status : kSelected)
        EXPECT_EQ(drawingOf<CrowdProxyRendermanStudio>(status), emblemIn("1, 0.449999988, 0, 1")) << status;
}

TEST(ProxyRendermanStudioDrawing, IsABrownEmblemInEveryOtherState)
{
    for (const auto status : kNotSelected)
        EXPECT_EQ(drawingOf<CrowdProxyRendermanStudio>(status),
                  emblemIn("0.649999976, 0.300000012, 0.100000001, 1"))
            << status;
}

TEST(ProxyVRayDrawing, IsAnOrangeCubeWhenSelected)
{
    for (const auto status : kSelected)
        EXPECT_EQ(drawingOf<CrowdProxyVRay>(status), cubeIn("1, 0.449999988, 0, 1")) << status;
}

TEST(ProxyVRayDrawing, IsABrownCubeInEveryOtherState)
{
    for (const auto status : kNotSelected)
        EXPECT_EQ(drawingOf<CrowdProxyVRay>(status), cubeIn("0.649999976, 0.300000012, 0.100000001, 1"))
            << status;
}

TEST(RenderManagerDrawing, IsNothingInAnyState)
{
    for (const auto status : kSelected)
        EXPECT_THAT(drawingOf<CrowdRenderManagerNode>(status), IsEmpty()) << status;
    for (const auto status : kNotSelected)
        EXPECT_THAT(drawingOf<CrowdRenderManagerNode>(status), IsEmpty()) << status;
}

} // namespace
} // namespace tarvox::crowd
