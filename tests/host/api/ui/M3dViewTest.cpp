// M3dView: a viewport, over one that a test makes up.
#include "../sceneFixture.h"

#include "api/ui/viewBridge.h"

#include <maya/M3dView.h>

namespace tvxhost::api::test {
namespace {

/// 200 by 100 pixels, looking along −z from (0, 0, 5) at a slab of ±2 by ±1, near 1, far 9, without
/// perspective.
class FakeView final : public ViewBridge
{
public:
    explicit FakeView(engine::DagPath camera) : m_camera(std::move(camera)) {}

    bool makeCurrent() override
    {
        ++madeCurrent;
        return canBeCurrent;
    }
    int width() const override { return 200; }
    int height() const override { return 100; }
    engine::DagPath cameraPath() const override { return m_camera; }
    engine::Matrix modelView() const override
    {
        engine::Matrix matrix;
        matrix[3][2] = -5.0;
        return matrix;
    }
    engine::Matrix projection() const override
    {
        engine::Matrix matrix;
        matrix[0][0] = 0.5;
        matrix[2][2] = -2.0 / 8.0;
        matrix[3][2] = -10.0 / 8.0;
        return matrix;
    }
    M3dView::DisplayStyle displayStyle() const override { return M3dView::kGouraudShaded; }

    int madeCurrent = 0;
    bool canBeCurrent = true;

private:
    engine::DagPath m_camera;
};

class M3dViewTest : public SceneFixture
{
protected:
    M3dViewTest() : fake(scene.findItem("perspShape").value.path) {}

    FakeView fake;
};

TEST_F(M3dViewTest, WithoutAViewportEveryCallFails)
{
    MStatus status;
    M3dView view = M3dView::active3dView(&status);
    EXPECT_EQ(status, MS::kFailure);
    EXPECT_EQ(M3dView::numberOf3dViews(), 0u);
    EXPECT_EQ(view.portWidth(&status), 0);
    EXPECT_EQ(status, MS::kFailure);
    EXPECT_EQ(view.beginGL(), MS::kFailure);
    EXPECT_EQ(view.endGL(), MS::kFailure);
    MDagPath camera;
    EXPECT_EQ(view.getCamera(camera), MS::kFailure);
    EXPECT_EQ(M3dView::get3dView(0, view), MS::kInvalidParameter);
}

TEST_F(M3dViewTest, ShowsTheViewportThatDraws)
{
    const CurrentView current(fake);
    MStatus status = MS::kFailure;
    M3dView view = M3dView::active3dView(&status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(M3dView::numberOf3dViews(), 1u);
    EXPECT_EQ(view.portWidth(), 200);
    EXPECT_EQ(view.portHeight(), 100);
    EXPECT_EQ(view.displayStyle(), M3dView::kGouraudShaded);
    MDagPath camera;
    EXPECT_EQ(view.getCamera(camera), MS::kSuccess);
    EXPECT_EQ(text(camera.fullPathName()), "|persp|perspShape");
    unsigned int x = 1, y = 1, width = 0, height = 0;
    EXPECT_EQ(view.viewport(x, y, width, height), MS::kSuccess);
    EXPECT_EQ(x + y, 0u);
    EXPECT_EQ(width, 200u);
    EXPECT_EQ(height, 100u);
}

TEST_F(M3dViewTest, MakesItsContextCurrent)
{
    const CurrentView current(fake);
    M3dView view = M3dView::active3dView();
    EXPECT_EQ(view.beginGL(), MS::kSuccess);
    EXPECT_EQ(fake.madeCurrent, 1);
    EXPECT_EQ(view.endGL(), MS::kSuccess);
    fake.canBeCurrent = false;
    EXPECT_EQ(view.beginGL(), MS::kFailure);
}

TEST_F(M3dViewTest, IsGoneWithItsViewport)
{
    M3dView view;
    {
        const CurrentView current(fake);
        view = M3dView::active3dView();
        EXPECT_EQ(view.portWidth(), 200);
    }
    EXPECT_EQ(view.portWidth(), 0);
    EXPECT_EQ(view.beginGL(), MS::kFailure);
}

TEST_F(M3dViewTest, TheViewBeforeIsCurrentAgainAfterwards)
{
    FakeView other(scene.findItem("topShape").value.path);
    const CurrentView outer(fake);
    {
        const CurrentView inner(other);
        EXPECT_EQ(currentView(), &other);
    }
    EXPECT_EQ(currentView(), &fake);
}

TEST_F(M3dViewTest, GoesFromPixelsToTheWorldAndBack)
{
    const CurrentView current(fake);
    const M3dView view = M3dView::active3dView();
    MPoint near, far;
    EXPECT_EQ(view.viewToWorld(150, 50, near, far), MS::kSuccess);
    // Three quarters of the width of ±2; the near plane is 1 in front of z = 5.
    EXPECT_TRUE(near.isEquivalent(MPoint(1, 0, 4))) << near;
    EXPECT_TRUE(far.isEquivalent(MPoint(1, 0, -4))) << far;
    MVector direction;
    EXPECT_EQ(view.viewToWorld(150, 50, near, direction), MS::kSuccess);
    EXPECT_TRUE(direction.isEquivalent(MVector(0, 0, -1)));
    short x = 0, y = 0;
    EXPECT_TRUE(view.worldToView(MPoint(1, 0, 0), x, y));
    EXPECT_EQ(x, 150);
    EXPECT_EQ(y, 50);
    EXPECT_FALSE(view.worldToView(MPoint(3, 0, 0), x, y)) << "clipped";
    EXPECT_FALSE(view.worldToView(MPoint(0, 0, 4.5), x, y)) << "before the near plane";
}

TEST_F(M3dViewTest, SaysWhatItCannotDo)
{
    const CurrentView current(fake);
    M3dView view = M3dView::active3dView();
    EXPECT_EQ(view.drawText("crowd", MPoint()), MS::kNotImplemented);
    EXPECT_EQ(view.drawText("crowd", MPoint()), MS::kNotImplemented);
    EXPECT_EQ(messages(engine::MessageKind::error), (Texts{"Not implemented: M3dView::drawText"}));
}

TEST_F(M3dViewTest, RefusesACameraThatIsNone)
{
    const CurrentView current(fake);
    M3dView view = M3dView::active3dView();
    make("transform", "group");
    MDagPath group = path("group");
    EXPECT_EQ(view.setCamera(group), MS::kInvalidParameter);
}

} // namespace
} // namespace tvxhost::api::test
