// What the nodes of curves compute.
#include "../fixtures.h"

#include "engine/geometry/curveNode.h"

#include <cmath>

namespace tvxhost::engine {
namespace {

/// A quarter of a circle of radius 2 about the origin, from the x to the y axis.
NurbsCurve quarterCircle()
{
    NurbsCurve curve;
    curve.degree = 2;
    curve.isRational = true;
    curve.knots = {0, 0, 1, 1};
    curve.points = {{{2, 0, 0}, 1.0}, {{2, 2, 0}, std::sqrt(0.5)}, {{0, 2, 0}, 1.0}};
    return curve;
}

NurbsCurve polyline()
{
    NurbsCurve curve;
    curve.degree = 1;
    curve.knots = {0, 1, 2};
    curve.points = {{{0, 0, 0}, 1.0}, {{3, 4, 0}, 1.0}, {{3, 4, 2}, 1.0}};
    return curve;
}

class CurveNodes : public SceneTest
{
protected:
    CurveNodes()
    {
        DagNode& transform = makeTransform("t");
        m_shape = &make("nurbsCurve", "shape", &transform);
        make("curveInfo", "info");
        make("pointOnCurveInfo", "point");
    }

    void give(const NurbsCurve& curve, const std::string& output)
    {
        const Outcome stored = storeCurve(*m_shape, curve);
        EXPECT_TRUE(stored) << stored.text;
        for (const std::string reader : {"info", "point"}) {
            const Outcome connected = connect("shape." + output, reader + ".inputCurve");
            EXPECT_TRUE(connected) << connected.text;
        }
    }
    void expectVector(const std::string& name, const Vec3d& expected)
    {
        const std::vector<double> numbers = readNumbers(plug(name)).value;
        ASSERT_EQ(numbers.size(), 3U);
        EXPECT_LT((Vec3d(numbers[0], numbers[1], numbers[2]) - expected).length(), 1e-9) << name;
    }

private:
    Node* m_shape = nullptr;
};

TEST_F(CurveNodes, CurveInfoMeasuresTheLength)
{
    give(polyline(), "local");
    EXPECT_NEAR(number("info.arcLength"), 7.0, 1e-9);
}

TEST_F(CurveNodes, TheCurveInTheWorldIsMoved)
{
    give(polyline(), "worldSpace[0]");
    EXPECT_NEAR(number("info.arcLength"), 7.0, 1e-9);
    set("t.scaleZ", 10);
    set("t.translateX", 100);
    EXPECT_NEAR(number("info.arcLength"), 25.0, 1e-9);
    set("point.parameter", 2);
    expectVector("point.position", {103, 4, 20});
}

TEST_F(CurveNodes, APointOnACurveHasADirection)
{
    give(polyline(), "local");
    set("point.parameter", 0.5);
    expectVector("point.position", {1.5, 2, 0});
    expectVector("point.tangent", {3, 4, 0});
    expectVector("point.normalizedTangent", {0.6, 0.8, 0});
    EXPECT_EQ(number("point.curvatureRadius"), 0.0) << "a line does not bend";
    set("point.turnOnPercentage", 1);
    expectVector("point.position", {3, 4, 0});
}

TEST_F(CurveNodes, APointOnACircleKnowsItsCenter)
{
    give(quarterCircle(), "local");
    set("point.parameter", 0.5);
    const double half = std::sqrt(0.5);
    expectVector("point.position", {2 * half, 2 * half, 0});
    expectVector("point.normalizedTangent", {-half, half, 0});
    expectVector("point.normalizedNormal", {-half, -half, 0});
    expectVector("point.curvatureCenter", {0, 0, 0});
    EXPECT_NEAR(number("point.curvatureRadius"), 2.0, 1e-9);
}

TEST_F(CurveNodes, FollowTheCurve)
{
    give(polyline(), "worldSpace[0]");
    EXPECT_NEAR(number("info.arcLength"), 7.0, 1e-9);
    NurbsCurve shorter = polyline();
    shorter.points[2].place.z = 1;
    ASSERT_TRUE(storeCurve(*scene.findNode("shape").value, shorter));
    EXPECT_NEAR(number("info.arcLength"), 6.0, 1e-9);
}

} // namespace
} // namespace tvxhost::engine
