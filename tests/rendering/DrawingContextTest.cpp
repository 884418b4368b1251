// The shapes drawn by a real GL: its stacks, its state and where the shapes come to lie.
#include "rendering/tvxDrawing.h"

#include "viewport/frameBuffer.h"
#include "viewport/glBalance.h"
#include "viewport/glContext.h"

#include <GL/gl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tarvox::crowd {
namespace {

using tvxhost::viewport::FrameBuffer;
using tvxhost::viewport::GlBalance;
using tvxhost::viewport::GlContext;
using Point = std::array<float, 3>;

/// A context with an identity model-view matrix, and a projection that sees everything within 10 units.
class DrawingContext : public testing::Test
{
protected:
    void SetUp() override
    {
        auto made = GlContext::create();
        ASSERT_TRUE(made) << made.outcome.text;
        m_context = std::move(made.value);
        m_buffer = std::move(FrameBuffer::create(kSide, kSide, m_context->largestSide()).value);
        ASSERT_TRUE(m_buffer);
        glViewport(0, 0, kSide, kSide);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(-10, 10, -10, 10, -10, 10);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glPushMatrix(); // so that a pop too many stays inside the stack
    }

    /// The vertices as GL transforms and clips them, in units of the scene again.
    std::vector<Point> transformed(const std::function<void()>& draw);

private:
    static constexpr int kSide = 8;
    std::unique_ptr<GlContext> m_context;
    std::unique_ptr<FrameBuffer> m_buffer; ///< GL has nowhere else to draw to
};

/// Takes the vertices out of what GL fed back: a token, for polygons a count, then the vertices.
std::vector<Point> verticesIn(const std::vector<GLfloat>& feedback)
{
    std::vector<Point> points;
    for (std::size_t at = 0; at < feedback.size();) {
        const auto token = static_cast<GLenum>(feedback[at++]);
        const bool isPolygon = token == GL_POLYGON_TOKEN;
        const auto count = isPolygon ? static_cast<std::size_t>(feedback[at++]) : std::size_t{2};
        for (std::size_t i = 0; i < count; ++i, at += 3)
            points.push_back({feedback[at], feedback[at + 1], feedback[at + 2]});
    }
    return points;
}

std::vector<GLfloat> feedbackOf(const std::function<void()>& draw)
{
    std::vector<GLfloat> feedback(100000);
    glFeedbackBuffer(static_cast<GLsizei>(feedback.size()), GL_3D, feedback.data());
    glRenderMode(GL_FEEDBACK);
    draw();
    const GLint used = glRenderMode(GL_RENDER);
    EXPECT_GE(used, 0) << "the feedback buffer is too small";
    feedback.resize(static_cast<std::size_t>(std::max(used, 0)));
    return feedback;
}

std::vector<Point> DrawingContext::transformed(const std::function<void()>& draw)
{
    std::vector<Point> points = verticesIn(feedbackOf(draw));
    for (Point& point : points) {
        point[0] = (point[0] / kSide * 2 - 1) * 10;
        point[1] = (point[1] / kSide * 2 - 1) * 10;
        point[2] = (1 - point[2] * 2) * 10; // the nearest plane is at z = 10
    }
    return points;
}

GLint integer(GLenum what)
{
    GLint value = 0;
    glGetIntegerv(what, &value);
    return value;
}

std::array<GLfloat, 4> currentColor()
{
    std::array<GLfloat, 4> color{};
    glGetFloatv(GL_CURRENT_COLOR, color.data());
    return color;
}

std::array<GLfloat, 16> modelView()
{
    std::array<GLfloat, 16> matrix{};
    glGetFloatv(GL_MODELVIEW_MATRIX, matrix.data());
    return matrix;
}

std::array<GLint, 2> polygonModes()
{
    std::array<GLint, 2> modes{};
    glGetIntegerv(GL_POLYGON_MODE, modes.data());
    return modes;
}

/// A shape, drawn with a number of segments where it has one.
struct Shape
{
    const char* name;
    void (*draw)(int segments);
};

unsigned int counted(int segments)
{
    return static_cast<unsigned int>(segments);
}

const Shape kBalancedShapes[] = {
    {"Circle", [](int n) { drawCircle(2, counted(n)); }},
    {"Disc", [](int n) { drawDisc(2, counted(n)); }},
    {"WireBox", [](int) { drawWireBox(2, 4, 6); }},
    {"Cross", [](int) { drawCross(2, 4, 6); }},
    {"SolidBox", [](int) { drawSolidBox(2, 5, 4); }},
    {"WireSphere", [](int n) { drawWireSphere(2, counted(n)); }},
    {"Axes", [](int) { drawAxes(2); }},
    {"PyramidFilled", [](int) { drawPyramid(2, 3, true); }},
    {"PyramidWire", [](int) { drawPyramid(2, 3, false); }},
    {"RectangleFilled", [](int) { drawRectangle(2, 1, 3, true); }},
    {"RectangleWire", [](int) { drawRectangle(2, 1, 3, false); }},
    {"Cylinder", [](int n) { drawCylinder(2, 5, counted(n), false); }},
    {"CappedCylinder", [](int n) { drawCylinder(2, 5, counted(n), true); }},
    {"Sphere", [](int n) { drawSphere(2, n, n, 1); }},
    {"Capsule", [](int n) { drawCapsule(2, 5, counted(n)); }},
};

class BalancedShapes : public DrawingContext, public testing::WithParamInterface<Shape>
{
};
INSTANTIATE_TEST_SUITE_P(Shapes, BalancedShapes, testing::ValuesIn(kBalancedShapes),
                         [](const auto& instance) { return std::string(instance.param.name); });

TEST_P(BalancedShapes, LeaveTheStacksAndTheErrorFlagAlone)
{
    for (const int segments : {0, 1, 3, 64}) {
        const GLint matrices = integer(GL_MODELVIEW_STACK_DEPTH);
        const GLint attributes = integer(GL_ATTRIB_STACK_DEPTH);
        ASSERT_EQ(glGetError(), GLenum{GL_NO_ERROR});
        GetParam().draw(segments);
        EXPECT_EQ(glGetError(), GLenum{GL_NO_ERROR}) << segments;
        EXPECT_EQ(integer(GL_MODELVIEW_STACK_DEPTH), matrices) << segments;
        EXPECT_EQ(integer(GL_ATTRIB_STACK_DEPTH), attributes) << segments;
    }
}

TEST_P(BalancedShapes, LeaveTheCallersStateAlone)
{
    glTranslatef(1, 2, 3);
    glColor4f(0.25f, 0.5f, 0.75f, 0.125f);
    glPolygonMode(GL_FRONT, GL_POINT);
    glPolygonMode(GL_BACK, GL_LINE);
    const auto matrix = modelView();
    const auto color = currentColor();
    const auto modes = polygonModes();
    GetParam().draw(64);
    EXPECT_EQ(modelView(), matrix);
    EXPECT_EQ(currentColor(), color);
    EXPECT_EQ(polygonModes(), modes);
}

/// The marker takes a matrix off the stack.
class HeadingMarkerInContext : public DrawingContext, public testing::WithParamInterface<int>
{
};
INSTANTIATE_TEST_SUITE_P(Segments, HeadingMarkerInContext, testing::Values(-4, 0, 1, 3, 64));

TEST_P(HeadingMarkerInContext, PopsTheMatrixThatItsCallerPushed)
{
    const auto matrix = modelView();
    const GLint depth = integer(GL_MODELVIEW_STACK_DEPTH);
    glPushMatrix();
    glTranslatef(1, 2, 3);
    drawHeadingMarker(2, GetParam());
    EXPECT_EQ(glGetError(), GLenum{GL_NO_ERROR});
    EXPECT_EQ(integer(GL_MODELVIEW_STACK_DEPTH), depth);
    EXPECT_EQ(modelView(), matrix);
}

TEST_P(HeadingMarkerInContext, TakesALevelOfACallerThatPushedNone)
{
    const GlBalance balance;
    drawHeadingMarker(2, GetParam());
    EXPECT_EQ(balance.checkAndRepair(), "model-view stack 1 too shallow");
}

TEST_P(HeadingMarkerInContext, UnderflowsAnEmptyStack)
{
    glPopMatrix();
    ASSERT_EQ(integer(GL_MODELVIEW_STACK_DEPTH), 1);
    drawHeadingMarker(2, GetParam());
    EXPECT_EQ(glGetError(), GLenum{GL_STACK_UNDERFLOW});
}

TEST_P(HeadingMarkerInContext, LeavesBlendingOffAndDepthWritesOnWhateverTheyWere)
{
    for (const bool before : {false, true}) {
        before ? glEnable(GL_BLEND) : glDisable(GL_BLEND);
        glDepthMask(before ? GL_TRUE : GL_FALSE);
        glPushMatrix();
        drawHeadingMarker(2, GetParam());
        EXPECT_FALSE(glIsEnabled(GL_BLEND));
        EXPECT_EQ(integer(GL_DEPTH_WRITEMASK), GL_TRUE);
        EXPECT_EQ(integer(GL_BLEND_SRC), GL_SRC_ALPHA);
        EXPECT_EQ(integer(GL_BLEND_DST), GL_ONE_MINUS_SRC_ALPHA);
    }
}

/// The least and the greatest coordinates.
struct Bounds
{
    Point least{INFINITY, INFINITY, INFINITY};
    Point greatest{-INFINITY, -INFINITY, -INFINITY};
};

Bounds boundsOf(const std::vector<Point>& points)
{
    Bounds bounds;
    for (const Point& point : points)
        for (std::size_t axis = 0; axis < 3; ++axis) {
            bounds.least[axis] = std::min(bounds.least[axis], point[axis]);
            bounds.greatest[axis] = std::max(bounds.greatest[axis], point[axis]);
        }
    return bounds;
}

void expectNear(const Point& actual, const Point& expected)
{
    for (std::size_t axis = 0; axis < 3; ++axis)
        EXPECT_NEAR(actual[axis], expected[axis], 1e-4) << "axis " << axis;
}

void expectBounds(const std::vector<Point>& points, const Point& least, const Point& greatest)
{
    const Bounds bounds = boundsOf(points);
    expectNear(bounds.least, least);
    expectNear(bounds.greatest, greatest);
}

TEST_F(DrawingContext, AWireSphereHasACircleInThePlaneOfEachPairOfAxes)
{
    const std::vector<Point> points = transformed([] { drawWireSphere(3, 64); });
    ASSERT_EQ(points.size(), 3u * 2 * 64); // both ends of each line
    const std::vector<Point> ground(points.begin(), points.begin() + 128);
    const std::vector<Point> front(points.begin() + 128, points.begin() + 256);
    const std::vector<Point> side(points.begin() + 256, points.end());
    expectBounds(ground, {-3, 0, -3}, {3, 0, 3});
    expectBounds(front, {-3, -3, 0}, {3, 3, 0});
    expectBounds(side, {0, -3, -3}, {0, 3, 3});
}

TEST_F(DrawingContext, ACapsuleBulgesBelowTheGroundAndAboveItsHeight)
{
    expectBounds(transformed([] { drawCapsule(2, 5, 64); }), {-2, -2, -2}, {2, 7, 2});
}

TEST_F(DrawingContext, ACappedCylinderStandsOnTheGround)
{
    expectBounds(transformed([] { drawCylinder(2, 5, 64, true); }), {-2, 0, -2}, {2, 5, 2});
}

TEST_F(DrawingContext, HalfASphereLiesBelowItsMiddle)
{
    expectBounds(transformed([] { drawSphere(2, 64, 64, 0.5f); }), {-2, -2, -2}, {2, 2, 0});
}

TEST_F(DrawingContext, APyramidIsFourFacesOrTheirEdges)
{
    const std::vector<GLfloat> faces = feedbackOf([] { drawPyramid(2, 3, true); });
    const std::vector<GLfloat> edges = feedbackOf([] { drawPyramid(2, 3, false); });
    EXPECT_EQ(std::count(faces.begin(), faces.end(), static_cast<GLfloat>(GL_POLYGON_TOKEN)), 4);
    EXPECT_EQ(std::count(edges.begin(), edges.end(), static_cast<GLfloat>(GL_POLYGON_TOKEN)), 0);
    expectBounds(transformed([] { drawPyramid(2, 3, false); }), {-2, -2, 0}, {2, 2, 3});
}

} // namespace
} // namespace tarvox::crowd
