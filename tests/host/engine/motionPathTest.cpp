// motionPath: places on a curve and orientations along it.
#include "fixtures.h"

#include "engine/geometry/curveNode.h"

#include <gmock/gmock.h>

#include <cmath>

namespace tvxhost::engine {
namespace {

using testing::DoubleNear;
using testing::Pointwise;

constexpr double kQuarter = 1.57079632679489661923;

class MotionPath : public SceneTest
{
protected:
    /// A line of one and then three units along x, with as long a parameter for each.
    MotionPath()
    {
        NurbsCurve curve;
        curve.degree = 1;
        curve.knots = {0, 1, 2};
        curve.points = {{{0, 0, 0}, 1.0}, {{1, 0, 0}, 1.0}, {{4, 0, 0}, 1.0}};
        give(curve);
    }

    void give(const NurbsCurve& curve)
    {
        if (!m_shape) {
            m_above = &makeTransform("above");
            m_shape = &make("nurbsCurve", "shape", m_above);
            make("motionPath", "path");
            EXPECT_TRUE(connect("shape.worldSpace[0]", "path.geometryPath"));
        }
        const Outcome stored = storeCurve(*m_shape, curve);
        EXPECT_TRUE(stored) << stored.text;
    }
    void expectGroup(const std::string& name, const std::vector<double>& expected)
    {
        EXPECT_THAT(group(name), Pointwise(DoubleNear(1e-6), expected)) << name;
    }

private:
    DagNode* m_above = nullptr;
    Node* m_shape = nullptr;
};

TEST_F(MotionPath, GoesByParameter)
{
    expectGroup("path.allCoordinates", {0, 0, 0});
    set("path.uValue", 1.5);
    expectGroup("path.allCoordinates", {2.5, 0, 0});
    EXPECT_EQ(number("path.xCoordinate"), 2.5);
}

TEST_F(MotionPath, GoesByPartOfTheLengthInFractionMode)
{
    set("path.fractionMode", 1);
    set("path.uValue", 0.5);
    expectGroup("path.allCoordinates", {2, 0, 0});
    set("path.uValue", 0.125);
    expectGroup("path.allCoordinates", {0.5, 0, 0});
    set("path.uValue", 1);
    expectGroup("path.allCoordinates", {4, 0, 0});
    set("path.uValue", 7);
    expectGroup("path.allCoordinates", {4, 0, 0});
}

TEST_F(MotionPath, FollowsItsCurveInTheWorld)
{
    makeTransform("walker");
    EXPECT_TRUE(connect("path.allCoordinates", "walker.translate"));
    set("path.uValue", 1);
    expectGroup("walker.translate", {1, 0, 0});
    setGroup("above.translate", {0, 5, 0});
    expectGroup("walker.translate", {1, 5, 0});
}

TEST_F(MotionPath, DoesNotTurnUnlessItFollows)
{
    expectGroup("path.rotate", {0, 0, 0});
    // Its y goes along x, its z upwards along y: x goes along z.
    set("path.follow", 1);
    expectGroup("path.rotate", {0, -kQuarter, -kQuarter});
}

TEST_F(MotionPath, AxesAndDirectionsCanBeChosen)
{
    set("path.follow", 1);
    set("path.frontAxis", 0);
    set("path.upAxis", 1);
    expectGroup("path.rotate", {0, 0, 0});
    set("path.inverseUp", 1);
    expectGroup("path.rotate", {2 * kQuarter, 0, 0});
    set("path.inverseUp", 0);
    set("path.inverseFront", 1);
    // Half a turn about y.
    expectGroup("path.rotate", {2 * kQuarter, 0, -2 * kQuarter});
    set("path.inverseFront", 0);
    setGroup("path.worldUpVector", {5, 0, 1});
    expectGroup("path.rotate", {kQuarter, 0, 0});
}

TEST_F(MotionPath, UpMayBeTowardsAnObject)
{
    makeTransform("sun");
    EXPECT_TRUE(connect("sun.worldMatrix[0]", "path.worldUpMatrix"));
    setGroup("sun.translate", {1, 0, -9});
    set("path.follow", 1);
    set("path.frontAxis", 0);
    set("path.upAxis", 1);
    set("path.worldUpType", 1);
    set("path.uValue", 1);
    expectGroup("path.rotate", {-kQuarter, 0, 0});
}

TEST_F(MotionPath, UpMayBeWhereTheCurveBends)
{
    // A quarter of a circle of radius 2 about the origin, from the x to the y axis.
    NurbsCurve curve;
    curve.degree = 2;
    curve.isRational = true;
    curve.knots = {0, 0, 1, 1};
    curve.points = {{{2, 0, 0}, 1.0}, {{2, 2, 0}, std::sqrt(0.5)}, {{0, 2, 0}, 1.0}};
    give(curve);
    set("path.follow", 1);
    set("path.frontAxis", 0);
    set("path.upAxis", 1);
    set("path.worldUpType", 4);
    set("path.fractionMode", 1);
    set("path.uValue", 0.5);
    expectGroup("path.allCoordinates", {std::sqrt(2.0), std::sqrt(2.0), 0});
    // Along (-1, 1), up to the center (-1, -1): three eighths of a turn about z.
    expectGroup("path.rotate", {0, 0, 1.5 * kQuarter});
}

} // namespace
} // namespace tvxhost::engine
