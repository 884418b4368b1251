// Pictures of scenes: what is seen, where, and in which colour.
#define GL_GLEXT_PROTOTYPES
#include "viewport/viewport.h"

#include "sceneFixture.h"

#include "engine/boundingBox.h"
#include "viewport/camera.h"

#include <maya/M3dView.h>
#include <maya/MDagPath.h>
#include <maya/MPxLocatorNode.h>

#include <GL/gl.h>
#include <GL/glext.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace tvxhost;
using engine::DagNode;
using viewport::Picture;
using viewport::Rgb;

constexpr Rgb kBackground{92, 92, 92};
constexpr Rgb kGrid{128, 128, 128};
constexpr Rgb kGridAxis{0, 0, 0};
constexpr Rgb kDormantWire{0, 4, 96};
constexpr Rgb kLeadWire{67, 255, 163};

/// A plug-in's locator whose drawing a test gives.
class TestLocator : public MPxLocatorNode
{
public:
    using Draw = std::function<void(M3dView&, const MDagPath&, M3dView::DisplayStatus)>;
    static Draw draws;

    void draw(M3dView& view, const MDagPath& path, M3dView::DisplayStyle,
              M3dView::DisplayStatus status) override
    {
        draws(view, path, status);
    }

    static bool bounded;
    bool isBounded() const override { return bounded; }
    MBoundingBox boundingBox() const override { return {MPoint(3, 2, 1), MPoint(-1, 0, -5)}; }
};
TestLocator::Draw TestLocator::draws;
bool TestLocator::bounded = false;

class TestBehaviour final : public engine::NodeBehaviour
{
public:
    engine::Computed compute(const engine::Plug&) override { return engine::Computed::unknown; }
    void* apiObject() override { return static_cast<MPxNode*>(&m_locator); }

private:
    TestLocator m_locator;
};

class ViewportTest : public viewport::test::SceneFixture
{
protected:
    ViewportTest()
    {
        auto type = m_scene.types().add("testLocator", 0x7f001, *m_scene.types().find("THlocatorShape"));
        EXPECT_TRUE(type) << type.outcome.text;
        type.value->behaviour = [](engine::Node&) { return std::make_unique<TestBehaviour>(); };
        TestLocator::draws = [](M3dView&, const MDagPath&, M3dView::DisplayStatus) {};
    }
    /// A front camera that sees x and y from -2 to 2, without the grid.
    void lookFromFront()
    {
        DagNode& camera = *viewport::findCamera(m_scene, "front").value.node();
        set(camera, "orthographicWidth", 4);
        // The grid lies edge-on at y = 0; the picture's middle row is left to it.
    }
    Picture draw(int width, int height, const std::string& camera = "front")
    {
        auto picture = viewport::drawPicture(m_scene, {width, height, camera});
        EXPECT_TRUE(picture) << picture.outcome.text;
        return std::move(picture.value);
    }
    static int count(const Picture& picture, const Rgb& color)
    {
        int pixels = 0;
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x)
                pixels += picture.at(x, y) == color;
        }
        return pixels;
    }
};

TEST_F(ViewportTest, APluginsLocatorHasTheBoundingBoxThatItTells)
{
    DagNode& transform = create("transform", "stand");
    DagNode& locator = create("testLocator", "pin", &transform);
    set(transform, "translateY", 10);
    set(locator, "localScaleX", 7);
    TestLocator::bounded = true;
    EXPECT_EQ(engine::boundingBoxOf(transform),
              Imath::Box3d(engine::Vec3d(-1, 10, -5), engine::Vec3d(3, 12, 1)));
    // One that tells nothing has that of the cross.
    TestLocator::bounded = false;
    EXPECT_EQ(engine::boundingBoxOf(transform),
              Imath::Box3d(engine::Vec3d(-7, 9, -1), engine::Vec3d(7, 11, 1)));
}

TEST_F(ViewportTest, AnEmptySceneShowsTheGridOnTheBackground)
{
    const Picture picture = draw(320, 180, "");
    EXPECT_GT(count(picture, kGrid), 500);
    EXPECT_GT(count(picture, kBackground), 10000);
    EXPECT_EQ(count(picture, kDormantWire), 0);
}

TEST_F(ViewportTest, TheGridHasALineEachUnitUpToTwelveAndDarkAxes)
{
    // Ten pixels a unit; the origin is the pixel 150, 150.
    set(*viewport::findCamera(m_scene, "top").value.node(), "orthographicWidth", 30.1);
    const Picture picture = draw(301, 301, "top");
    for (int x = 0; x < 301; ++x) {
        const bool isLine = x % 10 == 0 && x >= 30 && x <= 270;
        EXPECT_EQ(picture.at(x, 155), x == 150 ? kGridAxis : isLine ? kGrid : kBackground) << x;
        EXPECT_EQ(picture.at(155, x), x == 150 ? kGridAxis : isLine ? kGrid : kBackground) << x;
    }
}

TEST_F(ViewportTest, WhatLiesOnTheGridIsDrawnOverIt)
{
    set(*viewport::findCamera(m_scene, "top").value.node(), "orthographicWidth", 30.1);
    create("locator", "markShape", &create("transform", "mark"));
    EXPECT_EQ(draw(301, 301, "top").at(155, 150), kDormantWire);
}

TEST_F(ViewportTest, WhatIsNearerHidesWhatIsBehindIt)
{
    lookFromFront();
    create("testLocator", "wall", &create("transform", "near"));
    create("locator", "markShape", &create("transform", "mark"));
    TestLocator::draws = [](M3dView&, const MDagPath&, M3dView::DisplayStatus) {
        glColor4f(1, 1, 0, 1);
        glRectd(-9, -9, 0, 9);
        glTranslated(0, 0, 1);
        glRectd(-9, 0.25, 9, 9);
    };
    const Picture picture = draw(401, 401);
    // The cross is upright at the pixel 200 of 400, 0.25 is at 175; the wall below there is no nearer.
    EXPECT_EQ(picture.at(200, 160), (Rgb{255, 255, 0}));
    EXPECT_EQ(picture.at(200, 190), kDormantWire);
}

TEST_F(ViewportTest, TheAxesAreInFrontOfEverythingAndFitIntoASmallPicture)
{
    lookFromFront();
    create("testLocator", "wall", &create("transform", "near"));
    TestLocator::draws = [](M3dView&, const MDagPath&, M3dView::DisplayStatus) {
        glTranslated(0, 0, 900);
        glRectd(-9, -9, 9, 9);
    };
    EXPECT_NEAR(count(draw(200, 200), Rgb{255, 0, 0}), 23, 2);
    EXPECT_NEAR(count(draw(12, 200), Rgb{255, 0, 0}), 4, 1);
    EXPECT_NEAR(count(draw(200, 12), Rgb{0, 255, 0}), 4, 1);
}

TEST_F(ViewportTest, APictureOfAnyShapeIsNotDistorted)
{
    lookFromFront();
    DagNode& transform = create("transform", "mark");
    set(transform, "translateY", 0.5);
    DagNode& shape = create("locator", "markShape", &transform);
    set(shape, "localScaleX", 0.4);
    set(shape, "localScaleY", 0.4);
    const Picture picture = draw(401, 201);
    // A hundred pixels a unit either way; the locator is at the pixel 200, 50.
    for (const auto& [x, y] : {std::pair{165, 50}, {235, 50}, {200, 15}, {200, 85}})
        EXPECT_EQ(picture.at(x, y), kDormantWire) << x << "," << y;
    for (const auto& [x, y] : {std::pair{155, 50}, {245, 50}, {200, 5}, {200, 95}})
        EXPECT_EQ(picture.at(x, y), kBackground) << x << "," << y;
}

TEST_F(ViewportTest, ALocatorsCrossIsAtItsLocalPosition)
{
    lookFromFront();
    set(create("locator", "markShape", &create("transform", "mark")), "localPositionX", -1);
    const Picture picture = draw(401, 401);
    EXPECT_EQ(picture.at(100, 160), kDormantWire);
    EXPECT_EQ(picture.at(200, 160), kBackground);
}

TEST_F(ViewportTest, ALocatorIsACrossOfItsScaleAtItsPlace)
{
    lookFromFront();
    DagNode& shape = create("locator", "markShape", &create("transform", "mark"));
    set(*m_scene.findNode("mark").value->asDag(), "translateX", 1);
    set(shape, "localScaleY", 0.5);
    const Picture picture = draw(401, 401);
    // x = 1 is at pixel 300 of 400, y from -0.5 to 0.5 at 150 to 250.
    for (int y : {160, 190, 215, 240})
        EXPECT_EQ(picture.at(300, y), kDormantWire) << y;
    for (int y : {140, 260})
        EXPECT_EQ(picture.at(300, y), kBackground) << y;
}

TEST_F(ViewportTest, AMeshThatHistoryMakesIsAWire)
{
    lookFromFront();
    create("mesh", "boxShape", &create("transform", "box"));
    const auto maker = m_scene.createNode("polyCube", "polyCube1");
    ASSERT_TRUE(maker);
    ASSERT_TRUE(engine::writeNumber(m_scene.findPlug("polyCube1.width").value, engine::Number(2)));
    ASSERT_TRUE(
        m_scene.connect(m_scene.findPlug("polyCube1.out").value, m_scene.findPlug("boxShape.i").value));
    const Picture picture = draw(401, 401);
    // x from -1 to 1 is at the pixels 100 to 300 of 400, y from -0.5 to 0.5 at 150 to 250.
    for (int x : {100, 300}) {
        EXPECT_EQ(picture.at(x, 180), kDormantWire) << x;
        EXPECT_EQ(picture.at(x, 140), kBackground) << x;
    }
    EXPECT_EQ(picture.at(150, 180), kBackground);
}

TEST_F(ViewportTest, TheAxesInTheCornerTurnWithTheView)
{
    const Rgb x{255, 0, 0};
    const Rgb y{0, 255, 0};
    const Rgb z{0, 0, 255};
    // The axis that a view looks along is a point at most; the others are 1 / 2.8 of the corner's 64 pixels.
    const struct
    {
        const char* camera;
        Rgb along, across, upright;
    } views[] = {{"top", y, x, z}, {"front", z, x, y}, {"side", x, z, y}};
    for (const auto& view : views) {
        const Picture picture = draw(200, 200, view.camera);
        EXPECT_LE(count(picture, view.along), 1) << view.camera;
        EXPECT_NEAR(count(picture, view.across), 23, 2) << view.camera;
        EXPECT_NEAR(count(picture, view.upright), 23, 2) << view.camera;
    }
}

TEST_F(ViewportTest, TheSelectedWireHasTheLeadColour)
{
    lookFromFront();
    create("locator", "markShape", &create("transform", "mark"));
    engine::SelectionList selection;
    selection.add(m_scene.findItem("mark").value);
    m_scene.setSelection(selection);
    const Picture picture = draw(200, 200);
    EXPECT_GT(count(picture, kLeadWire), 90);
    EXPECT_EQ(count(picture, kDormantWire), 0);
}

TEST_F(ViewportTest, APluginDrawsInTheSpaceOfEachInstanceWithItsStatus)
{
    lookFromFront();
    DagNode& left = create("transform", "left");
    DagNode& right = create("transform", "right");
    set(left, "translateX", -1);
    set(right, "translateX", 1);
    DagNode& shape = create("testLocator", "shape", &left);
    ASSERT_TRUE(m_scene.addParent(shape, right));
    engine::SelectionList selection;
    selection.add(m_scene.findItem("right").value);
    m_scene.setSelection(selection);

    std::vector<std::string> calls;
    TestLocator::draws = [&](M3dView& view, const MDagPath& path, M3dView::DisplayStatus status) {
        calls.push_back(path.fullPathName().asChar() + std::string(" ") + std::to_string(status));
        view.beginGL();
        glColor4f(status == M3dView::kLead ? 1.0f : 0.0f, 1, 0, 1);
        glBegin(GL_QUADS);
        for (const auto& [x, y] : {std::pair{-0.2, 0.3}, {0.2, 0.3}, {0.2, 0.7}, {-0.2, 0.7}})
            glVertex3d(x, y, 0);
        glEnd();
        view.endGL();
    };
    const Picture picture = draw(400, 400);
    EXPECT_EQ(calls, (std::vector<std::string>{"|left|shape " + std::to_string(M3dView::kDormant),
                                               "|right|shape " + std::to_string(M3dView::kLead)}));
    EXPECT_EQ(picture.at(100, 150), (Rgb{0, 255, 0}));
    EXPECT_EQ(picture.at(300, 150), (Rgb{255, 255, 0}));
    EXPECT_EQ(picture.at(200, 150), kBackground);
}

TEST_F(ViewportTest, ALocatorWithoutABoundingBoxIsDrawnWhereverItsOriginLies)
{
    lookFromFront();
    DagNode& far = create("transform", "far");
    set(far, "translateX", 1000);
    create("testLocator", "shape", &far);
    TestLocator::draws = [](M3dView& view, const MDagPath&, M3dView::DisplayStatus) {
        view.beginGL();
        glColor4f(1, 1, 0, 1);
        glBegin(GL_LINES);
        glVertex3d(-1002, 1, 0);
        glVertex3d(-998, 1, 0);
        glEnd();
        view.endGL();
    };
    // From one side of the picture to the other.
    EXPECT_NEAR(count(draw(400, 400), Rgb{255, 255, 0}), 400, 1);
}

TEST_F(ViewportTest, APluginIsToldOfTemplatesAndHilites)
{
    for (const char* name : {"plain", "template", "picked", "hilited"})
        create("testLocator", (std::string(name) + "Shape").c_str(), &create("transform", name));
    set(*m_scene.findNode("template").value->asDag(), "template", 1);
    set(*m_scene.findNode("picked").value->asDag(), "template", 1);
    engine::SelectionList selection;
    selection.add(m_scene.findItem("picked").value);
    m_scene.setSelection(selection);
    engine::SelectionList hilite;
    hilite.add(m_scene.findItem("hilited").value);
    m_scene.setHilite(hilite);

    std::vector<M3dView::DisplayStatus> statuses;
    TestLocator::draws = [&](M3dView&, const MDagPath&, M3dView::DisplayStatus status) {
        statuses.push_back(status);
    };
    draw(10, 10);
    EXPECT_EQ(statuses, (std::vector<M3dView::DisplayStatus>{M3dView::kDormant, M3dView::kTemplate,
                                                             M3dView::kActiveTemplate, M3dView::kHilite}));
}

TEST_F(ViewportTest, APluginSeesTheViewItDrawsTo)
{
    create("testLocator", "shape", &create("transform", "t"));
    std::vector<int> size;
    std::string camera;
    TestLocator::draws = [&](M3dView& view, const MDagPath&, M3dView::DisplayStatus) {
        size = {view.portWidth(), view.portHeight()};
        MDagPath path;
        view.getCamera(path);
        camera = path.fullPathName().asChar();
    };
    draw(123, 45, "side");
    EXPECT_EQ(size, (std::vector<int>{123, 45}));
    EXPECT_EQ(camera, "|side|sideShape");
}

TEST_F(ViewportTest, DisorderThatAPluginLeavesIsToldOnceAndRepaired)
{
    lookFromFront();
    create("testLocator", "one", &create("transform", "t1"));
    create("testLocator", "two", &create("transform", "t2"));
    create("locator", "markShape", &create("transform", "mark"));
    TestLocator::draws = [](M3dView&, const MDagPath&, M3dView::DisplayStatus) {
        glPushMatrix();
        glDisable(GL_DEPTH_TEST);
        glColor4f(1, 0, 0, 1);
        glScaled(9, 9, 9);
    };
    const Picture picture = draw(401, 401);
    ASSERT_EQ(m_scene.scriptEditor().warnings(), 1);
    EXPECT_EQ(
        m_scene.scriptEditor().history().back().text,
        "The draw function of testLocator (\"one\") left OpenGL in disorder: model-view stack 1 too deep");
    // The locator that comes after is where and as it should be.
    EXPECT_EQ(picture.at(200, 150), kDormantWire);
    EXPECT_EQ(picture.at(200, 90), kBackground);
}

TEST_F(ViewportTest, APluginFindsGlAsItIsByDefault)
{
    create("mesh", "boxShape", &create("transform", "box"));
    ASSERT_TRUE(m_scene.createNode("polyCube", "polyCube1"));
    ASSERT_TRUE(
        m_scene.connect(m_scene.findPlug("polyCube1.out").value, m_scene.findPlug("boxShape.i").value));
    create("testLocator", "shape", &create("transform", "t"));
    std::vector<bool> switches;
    GLint matrixMode = 0;
    TestLocator::draws = [&](M3dView&, const MDagPath&, M3dView::DisplayStatus) {
        for (const GLenum which : {GL_DEPTH_TEST, GL_LIGHTING, GL_VERTEX_ARRAY})
            switches.push_back(glIsEnabled(which) == GL_TRUE);
        glGetIntegerv(GL_MATRIX_MODE, &matrixMode);
    };
    draw(10, 10);
    EXPECT_EQ(switches, (std::vector<bool>{true, false, false}));
    EXPECT_EQ(matrixMode, GL_MODELVIEW);
}

TEST_F(ViewportTest, APluginsViewIsThePictureWhateverWasBoundBefore)
{
    lookFromFront();
    create("testLocator", "shape", &create("transform", "t"));
    TestLocator::draws = [](M3dView& view, const MDagPath&, M3dView::DisplayStatus) {
        glBindFramebuffer(GL_FRAMEBUFFER, 0);
        view.beginGL();
        glColor4f(1, 1, 0, 1);
        glRectd(-9, -9, 9, 9);
        view.endGL();
        glBindFramebuffer(GL_FRAMEBUFFER, 0);
    };
    EXPECT_EQ(draw(40, 40).at(20, 10), (Rgb{255, 255, 0}));
}

TEST_F(ViewportTest, WhatAPluginSwitchesOnForItselfIsNotThereForOthers)
{
    lookFromFront();
    create("testLocator", "first", &create("transform", "t1"));
    create("mesh", "boxShape", &create("transform", "box"));
    ASSERT_TRUE(m_scene.createNode("polyCube", "polyCube1"));
    ASSERT_TRUE(
        m_scene.connect(m_scene.findPlug("polyCube1.out").value, m_scene.findPlug("boxShape.i").value));
    std::vector<float> colors(24, 1.0f);
    TestLocator::draws = [&](M3dView& view, const MDagPath&, M3dView::DisplayStatus) {
        view.beginGL();
        glEnableClientState(GL_COLOR_ARRAY);
        glColorPointer(3, GL_FLOAT, 0, colors.data());
        glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
        glPixelStorei(GL_PACK_ROW_LENGTH, 1000);
        glPixelStorei(GL_PACK_SKIP_ROWS, 100);
        view.endGL();
    };
    const Picture picture = draw(401, 401);
    // The box is in its own colour, and the picture where it belongs: -0.5 to 0.5 is 150 to 250 of 400.
    EXPECT_EQ(picture.at(150, 180), kDormantWire);
    EXPECT_EQ(picture.at(140, 180), kBackground);
    EXPECT_EQ(m_scene.scriptEditor().warnings(), 0);
}

TEST_F(ViewportTest, SaysWhatItCannotDo)
{
    EXPECT_EQ(viewport::drawPicture(m_scene, {10, 10, "time1"}).outcome.text, "\"time1\" is not a camera");
    EXPECT_EQ(viewport::drawPicture(m_scene, {0, 10, ""}).outcome.text, "a picture of 0x10 has no pixels");
    EXPECT_THAT(viewport::drawPicture(m_scene, {1000000, 10, ""}).outcome.text,
                testing::StartsWith("a picture of 1000000x10 is larger than OpenGL can draw here, at most "));
}

TEST_F(ViewportTest, DrawsOnePixel)
{
    EXPECT_EQ(draw(1, 1).bytes.size(), 3u);
}

} // namespace
