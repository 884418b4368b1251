// What the V-Ray proxy draws: every call of OpenGL and of the view, in order.
#include "DrawingCalls.h"
#include "rendering/tvxCrowdProxyVRay.h"
#include "rendering/tvxLocatorDrawing.h"

#include <maya/M3dView.h>
#include <maya/MDagPath.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tarvox::crowd {
namespace {

using namespace test;

// A cube of side 2, edge by edge.
const std::vector<Point> kCube = {
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

TEST(ProxyColors, AreOrangeAndBrown)
{
    EXPECT_TRUE(activeProxyColor() == MColor(1.0f, 0.45f, 0.0f, 1.0f));
    EXPECT_TRUE(dormantProxyColor() == MColor(0.65f, 0.3f, 0.1f, 1.0f));
}

// A proxy is drawn outside a scene: its draw looks at nothing but the status.
Calls drawProxy(M3dView::DisplayStatus status)
{
    const std::unique_ptr<CrowdProxyVRay> proxy(static_cast<CrowdProxyVRay*>(CrowdProxyVRay::creator()));
    M3dView view;
    const MDagPath path;
    return callsOf([&] { proxy->draw(view, path, M3dView::kWireFrame, status); });
}

Calls proxyInColor(const char* color)
{
    return Calls{"M3dView::beginGL", "glPushMatrix()", "glPushAttrib(GL_ALL_ATTRIB_BITS)",
                 std::string("glColor4f(") + color + ")"} +
           vertices("GL_LINES", kCube) + Calls{"glPopAttrib()", "glPopMatrix()", "M3dView::endGL"};
}

TEST(ProxyVRayDrawing, IsAnOrangeCubeWhenSelected)
{
    const Calls active = proxyInColor("1, 0.449999988, 0, 1");
    EXPECT_EQ(drawProxy(M3dView::kLead), active);
    EXPECT_EQ(drawProxy(M3dView::kActive), active);
}

TEST(ProxyVRayDrawing, IsABrownCubeInEveryOtherState)
{
    const Calls dormant = proxyInColor("0.649999976, 0.300000012, 0.100000001, 1");
    for (const auto status : {M3dView::kLive, M3dView::kDormant, M3dView::kInvisible, M3dView::kHilite,
                              M3dView::kTemplate, M3dView::kActiveTemplate, M3dView::kActiveComponent,
                              M3dView::kIntermediateObject, M3dView::kActiveAffected, M3dView::kNoStatus})
        EXPECT_EQ(drawProxy(status), dormant) << status;
}

TEST(ProxyVRayDrawing, IsUnbounded)
{
    const std::unique_ptr<CrowdProxyVRay> proxy(static_cast<CrowdProxyVRay*>(CrowdProxyVRay::creator()));
    EXPECT_FALSE(proxy->isBounded());
}

} // namespace
} // namespace tarvox::crowd
