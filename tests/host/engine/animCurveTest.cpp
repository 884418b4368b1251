// Animation curves: tangents of each kind, values between and outside the keys, editing, and the nodes.
#include "fixtures.h"

#include "engine/animCurve.h"

#include <gmock/gmock.h>

#include <cmath>

namespace tvxhost::engine {
namespace {

constexpr double kPi = 3.14159265358979323846;

struct Place
{
    double at;
    double value;
};

AnimCurveKeys curveOf(std::initializer_list<Place> places, TangentKind kind)
{
    AnimCurveKeys curve;
    for (const Place& place : places) {
        AnimKey key;
        key.at = place.at;
        key.value = place.value;
        key.in.kind = key.out.kind = kind;
        curve.put(key);
    }
    return curve;
}

double slopeOf(const AnimCurveKeys& curve, std::size_t index, KeySide side)
{
    return curve.tangent(index, side).slope();
}

// Kinds of tangents

TEST(AnimCurveKeysTest, HasNoValueWithoutKeysAndTheOneOfASingleKey)
{
    EXPECT_EQ(AnimCurveKeys().valueAt(3.0), 0.0);
    const AnimCurveKeys one = curveOf({{2.0, 7.0}}, TangentKind::automatic);
    for (const double at : {1.0, 2.0, 3.0})
        EXPECT_EQ(one.valueAt(at), 7.0);
}

TEST(AnimCurveKeysTest, LinearTangentsMakeStraightLines)
{
    const AnimCurveKeys curve = curveOf({{0.0, 0.0}, {1.0, 10.0}, {3.0, 0.0}}, TangentKind::linear);
    EXPECT_DOUBLE_EQ(curve.valueAt(0.25), 2.5);
    EXPECT_EQ(curve.valueAt(1.0), 10.0);
    EXPECT_DOUBLE_EQ(curve.valueAt(2.5), 2.5);
}

TEST(AnimCurveKeysTest, StepsHoldTheValueOfTheKeyBeforeOrBehind)
{
    AnimCurveKeys curve = curveOf({{0.0, 1.0}, {1.0, 2.0}, {2.0, 5.0}}, TangentKind::step);
    EXPECT_EQ(curve.valueAt(0.999), 1.0);
    EXPECT_EQ(curve.valueAt(1.0), 2.0);
    curve.keys[1].out.kind = TangentKind::stepNext;
    EXPECT_EQ(curve.valueAt(1.0), 2.0) << "a key has its own value";
    EXPECT_EQ(curve.valueAt(1.001), 5.0);
}

TEST(AnimCurveKeysTest, FlatTangentsEaseInAndOut)
{
    const AnimCurveKeys curve = curveOf({{0.0, 0.0}, {1.0, 8.0}}, TangentKind::flat);
    // 3 t^2 - 2 t^3
    EXPECT_DOUBLE_EQ(curve.valueAt(0.75), 8.0 * (3 * 0.5625 - 2 * 0.421875));
}

TEST(AnimCurveKeysTest, SplinesRunParallelToTheLineBetweenTheNeighbours)
{
    const AnimCurveKeys curve = curveOf({{0.0, 0.0}, {1.0, 3.0}, {4.0, 6.0}}, TangentKind::spline);
    EXPECT_DOUBLE_EQ(slopeOf(curve, 0, KeySide::out), 3.0);
    EXPECT_DOUBLE_EQ(slopeOf(curve, 1, KeySide::in), 1.5);
    EXPECT_DOUBLE_EQ(slopeOf(curve, 1, KeySide::out), 1.5);
    EXPECT_DOUBLE_EQ(slopeOf(curve, 2, KeySide::in), 1.0);
    // Hermite's polynomials at one half: 1/2, 1/8, 1/2, -1/8.
    EXPECT_DOUBLE_EQ(curve.valueAt(0.5), 0.125 * 3.0 + 0.5 * 3.0 - 0.125 * 1.5);
}

TEST(AnimCurveKeysTest, ClampedTangentsAreFlatBesideNearlyEqualValues)
{
    const AnimCurveKeys curve = curveOf({{0.0, 0.0}, {1.0, 0.01}, {2.0, 5.01}}, TangentKind::clamped);
    EXPECT_EQ(slopeOf(curve, 0, KeySide::out), 0.0);
    EXPECT_EQ(slopeOf(curve, 1, KeySide::in), 0.0);
    EXPECT_EQ(slopeOf(curve, 1, KeySide::out), 0.0);
    EXPECT_DOUBLE_EQ(slopeOf(curve, 2, KeySide::in), 5.0);
}

TEST(AnimCurveKeysTest, PlateausAreFlatWhereTheSplineWouldPassTheNeighbours)
{
    const AnimCurveKeys steep = curveOf({{0.0, 0.0}, {1.0, 1.0}, {2.0, 10.0}}, TangentKind::plateau);
    EXPECT_EQ(slopeOf(steep, 1, KeySide::in), 0.0);
    EXPECT_DOUBLE_EQ(steep.valueAt(0.5), 0.5);
    const AnimCurveKeys even = curveOf({{0.0, 0.0}, {1.0, 1.0}, {2.0, 2.5}}, TangentKind::plateau);
    EXPECT_DOUBLE_EQ(slopeOf(even, 1, KeySide::in), 1.25);
    EXPECT_EQ(slopeOf(even, 0, KeySide::out), 0.0) << "ends are flat";
}

TEST(AnimCurveKeysTest, AutomaticTangentsAreAsSteepAsTheNeighboursAllow)
{
    const AnimCurveKeys steep = curveOf({{0.0, 0.0}, {1.0, 1.0}, {2.0, 10.0}}, TangentKind::automatic);
    // The Bézier point, a third of the way, lies at the neighbour's value.
    EXPECT_DOUBLE_EQ(slopeOf(steep, 1, KeySide::in), 3.0);
    EXPECT_DOUBLE_EQ(slopeOf(steep, 1, KeySide::out), 3.0);
    EXPECT_DOUBLE_EQ(steep.valueAt(0.5), 0.5 - 0.125 * 3.0);
    const AnimCurveKeys peak = curveOf({{0.0, 0.0}, {1.0, 5.0}, {2.0, 0.0}}, TangentKind::automatic);
    EXPECT_EQ(slopeOf(peak, 1, KeySide::out), 0.0);
}

TEST(AnimCurveKeysTest, FixedTangentsKeepTheirDirection)
{
    AnimCurveKeys curve = curveOf({{0.0, 0.0}, {1.0, 0.0}}, TangentKind::flat);
    curve.setTangent(0, KeySide::out, {3.0, 4.0});
    EXPECT_DOUBLE_EQ(curve.tangent(0, KeySide::out).x, 0.6) << "of length 1 without weights";
    EXPECT_DOUBLE_EQ(curve.tangent(0, KeySide::out).y, 0.8);
    EXPECT_DOUBLE_EQ(curve.valueAt(0.5), 0.125 * 4.0 / 3.0);
    EXPECT_DOUBLE_EQ(slopeOf(curve, 0, KeySide::in), 4.0 / 3.0) << "locked tangents turn together";
    curve.keys[1].tangentsLocked = false;
    curve.setTangent(1, KeySide::in, {1.0, 1.0});
    EXPECT_EQ(curve.keys[1].out.kind, TangentKind::flat);
}

// Weights

TEST(AnimCurveKeysTest, WeightedTangentsAreBezierHandles)
{
    AnimCurveKeys curve = curveOf({{0.0, 0.0}, {1.0, 1.0}}, TangentKind::fixed);
    curve.isWeighted = true;
    curve.keys[0].out.direction = {1.5, 0.0};
    curve.keys[1].in.direction = {1.5, 0.0};
    // The points are (0,0) (1/2,0) (1/2,1) (1,1); this is where the parameter is one quarter.
    EXPECT_NEAR(curve.valueAt(0.296875), 0.15625, 1e-12);
    EXPECT_NEAR(curve.valueAt(0.5), 0.5, 1e-12);
}

TEST(AnimCurveKeysTest, WeightsOfAThirdChangeNothing)
{
    AnimCurveKeys curve = curveOf({{0.0, 0.0}, {1.0, 3.0}, {4.0, 6.0}}, TangentKind::spline);
    AnimCurveKeys weighted = curve;
    weighted.setWeighted(true);
    for (double at = 0.0; at <= 4.0; at += 0.125)
        EXPECT_NEAR(weighted.valueAt(at), curve.valueAt(at), 1e-12) << at;
}

TEST(AnimCurveKeysTest, HandlesThatPassEachOtherAreShortened)
{
    AnimCurveKeys curve = curveOf({{0.0, 0.0}, {1.0, 1.0}}, TangentKind::fixed);
    curve.isWeighted = true;
    curve.keys[0].out.direction = {30.0, 0.0};
    curve.keys[1].in.direction = {30.0, 0.0};
    double last = 0.0;
    for (double at = 0.0; at <= 1.0; at += 1.0 / 64) {
        const double value = curve.valueAt(at);
        EXPECT_GE(value, last - 1e-9) << "at " << at;
        last = value;
    }
    EXPECT_EQ(curve.valueAt(1.0), 1.0);
}

TEST(AnimCurveKeysTest, BecomingWeightedAndBackKeepsTheShape)
{
    AnimCurveKeys curve = curveOf({{0.0, 0.0}, {2.0, 1.0}}, TangentKind::flat);
    curve.setTangent(0, KeySide::out, {1.0, 2.0});
    const double before = curve.valueAt(0.7);
    curve.setWeighted(true);
    EXPECT_DOUBLE_EQ(curve.tangent(0, KeySide::out).x, 2.0);
    EXPECT_DOUBLE_EQ(curve.tangent(0, KeySide::out).y, 4.0);
    EXPECT_NEAR(curve.valueAt(0.7), before, 1e-12);
    curve.setWeighted(false);
    EXPECT_NEAR(curve.valueAt(0.7), before, 1e-12);
}

// Infinities

class InfinityTest : public testing::Test
{
protected:
    double outside(CurveInfinity infinity, double at)
    {
        AnimCurveKeys curve = curveOf({{1.0, 0.0}, {3.0, 4.0}}, TangentKind::spline);
        curve.before = curve.after = infinity;
        return curve.valueAt(at);
    }
};

TEST_F(InfinityTest, ConstantHoldsTheOuterValue)
{
    EXPECT_EQ(outside(CurveInfinity::constant, -5.0), 0.0);
    EXPECT_EQ(outside(CurveInfinity::constant, 5.0), 4.0);
}

TEST_F(InfinityTest, LinearGoesOnAlongTheTangent)
{
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::linear, 0.0), -2.0);
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::linear, 5.0), 8.0);
}

TEST_F(InfinityTest, CyclesRepeat)
{
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::cycle, 3.5), 1.0);
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::cycle, 10.0), 2.0);
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::cycle, 0.5), 3.0);
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::cycle, 5.0), 0.0) << "a round behind begins at the first key";
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::cycle, -1.0), 4.0) << "one before ends at the last";
}

TEST_F(InfinityTest, RelativeCyclesGoOnFromWhereTheLastEnded)
{
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::cycleRelative, 4.0), 6.0);
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::cycleRelative, 7.5), 13.0);
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::cycleRelative, 0.0), -2.0);
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::cycleRelative, -1.0), -4.0);
}

TEST_F(InfinityTest, OscillatingRunsBackwardsEveryOtherTime)
{
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::oscillate, 3.5), 3.0);
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::oscillate, 5.5), 1.0);
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::oscillate, 0.5), 1.0);
    EXPECT_DOUBLE_EQ(outside(CurveInfinity::oscillate, -1.5), 3.0);
}

// Editing

TEST(AnimCurveKeysTest, KeysStayInOrderAndNoTwoAtOnePlace)
{
    AnimCurveKeys curve = curveOf({{2.0, 20.0}, {1.0, 10.0}, {3.0, 30.0}}, TangentKind::linear);
    ASSERT_EQ(curve.keys.size(), 3u);
    EXPECT_EQ(curve.find(2.0), 1u);
    EXPECT_EQ(curve.find(2.5), std::nullopt);
    EXPECT_EQ(curve.closest(2.4), 1u);
    EXPECT_EQ(curve.closest(9.0), 2u);
    AnimKey key = curve.keys[1];
    key.value = 25.0;
    EXPECT_EQ(curve.put(key), 1u);
    EXPECT_EQ(curve.keys.size(), 3u);
    EXPECT_EQ(curve.move(0, 2.0), std::nullopt) << "another key is there";
    EXPECT_EQ(curve.move(0, 4.0), 2u);
    EXPECT_EQ(curve.keys[2].value, 10.0);
}

TEST(AnimCurveKeysTest, InsertingAKeyKeepsTheShape)
{
    for (const bool weighted : {false, true})
        for (const TangentKind kind : {TangentKind::spline, TangentKind::flat, TangentKind::step}) {
            AnimCurveKeys curve = curveOf({{0.0, 0.0}, {1.0, 3.0}, {4.0, 6.0}}, kind);
            curve.setWeighted(weighted);
            const AnimCurveKeys before = curve;
            EXPECT_EQ(curve.insertOnCurve(2.25), 2u);
            for (double at = 0.0; at <= 4.0; at += 0.125)
                EXPECT_NEAR(curve.valueAt(at), before.valueAt(at), 1e-9) << at;
        }
}

TEST(AnimCurveKeysTest, IsStaticWhenNothingLeavesTheOneValue)
{
    AnimCurveKeys curve = curveOf({{0.0, 2.0}, {1.0, 2.0}}, TangentKind::automatic);
    EXPECT_TRUE(curve.isStatic());
    curve.setTangent(0, KeySide::out, {1.0, 1.0});
    EXPECT_FALSE(curve.isStatic());
}

// Nodes

class AnimCurveTest : public SceneTest
{
protected:
    std::vector<int> elements(const std::string& name) { return existingElements(plug(name)); }
};

TEST_F(AnimCurveTest, ANodeHoldsWhatFilesHold)
{
    Node& node = make("animCurveTL", "curve");
    AnimCurveKeys curve = curveOf({{0.0, 0.0}, {1.0, 3.0}, {2.0, 3.0}, {3.0, 1.0}}, TangentKind::automatic);
    curve.setTangent(2, KeySide::out, {1.0, 0.0});
    curve.keys[1].isBreakdown = true;
    curve.after = CurveInfinity::cycleRelative;
    ASSERT_TRUE(writeCurve(node, curve));
    EXPECT_EQ(number("curve.tan"), 18.0);
    EXPECT_EQ(number("curve.wgt"), 0.0);
    EXPECT_EQ(number("curve.pst"), 4.0);
    EXPECT_THAT(elements("curve.ktv"), testing::ElementsAre(0, 1, 2, 3));
    EXPECT_THAT(elements("curve.kit"), testing::ElementsAre(2, 3)) << "from the first that is not common";
    EXPECT_THAT(elements("curve.kix"), testing::ElementsAre(2, 3)) << "from the first that is fixed";
    EXPECT_THAT(elements("curve.kbd"), testing::ElementsAre(1, 2, 3));
    EXPECT_THAT(elements("curve.ktl"), testing::IsEmpty());
    const AnimCurveKeys read = readCurve(node);
    ASSERT_EQ(read.keys.size(), 4u);
    EXPECT_EQ(read.keys[2].out.kind, TangentKind::fixed);
    EXPECT_EQ(read.keys[3].in.kind, TangentKind::automatic);
    EXPECT_TRUE(read.keys[1].isBreakdown);
    EXPECT_EQ(read.after, CurveInfinity::cycleRelative);

    curve.keys.resize(1);
    ASSERT_TRUE(writeCurve(node, curve));
    EXPECT_THAT(elements("curve.ktv"), testing::ElementsAre(0));
    EXPECT_THAT(elements("curve.kit"), testing::IsEmpty());
}

TEST_F(AnimCurveTest, TheCommonKindIsTheMostFrequentAndOfSeveralTheFirst)
{
    Node& node = make("animCurveTU", "curve");
    AnimCurveKeys curve = curveOf({{0.0, 0.0}, {1.0, 1.0}}, TangentKind::spline);
    curve.keys[0].out.kind = curve.keys[1].out.kind = TangentKind::step;
    ASSERT_TRUE(writeCurve(node, curve));
    EXPECT_EQ(number("curve.tan"), 9.0);
    EXPECT_THAT(elements("curve.kit"), testing::IsEmpty());
    EXPECT_THAT(elements("curve.kot"), testing::ElementsAre(0, 1));
}

TEST_F(AnimCurveTest, AnglesAreRadiansInsideAndInTheOutput)
{
    make("animCurveUA", "curve");
    set("curve.ktv[0].kt", 0.0);
    set("curve.ktv[1].kt", 1.0);
    set("curve.ktv[1].kv", kPi);
    set("curve.i", 0.5);
    EXPECT_DOUBLE_EQ(number("curve.o"), kPi / 2.0);
}

TEST_F(AnimCurveTest, ChangesOfInfinityAndWeightsAreSeen)
{
    make("animCurveUU", "curve");
    ASSERT_TRUE(writeNumbers(plug("curve.ktv[0]"), {0.0, 0.0}));
    ASSERT_TRUE(writeNumbers(plug("curve.ktv[1]"), {1.0, 8.0}));
    set("curve.i", 1.25);
    EXPECT_EQ(number("curve.o"), 8.0);
    set("curve.pst", 3);
    EXPECT_DOUBLE_EQ(number("curve.o"), 2.0);
}

TEST_F(AnimCurveTest, ACurveIsMadeForAPlugAndNamedAfterIt)
{
    makeTransform("ball");
    const struct
    {
        const char* plug;
        const char* type;
        const char* name;
    } rows[] = {{"ball.tx", "animCurveTL", "ball_translateX"},
                {"ball.ry", "animCurveTA", "ball_rotateY"},
                {"ball.v", "animCurveTU", "ball_visibility"}};
    for (const auto& row : rows) {
        const Expected<Node*> made = makeCurveFor(plug(row.plug));
        ASSERT_TRUE(made) << made.outcome.text;
        EXPECT_EQ(made.value->type().name, row.type);
        EXPECT_EQ(made.value->name(), row.name);
        EXPECT_EQ(curveFeeding(plug(row.plug)), made.value);
    }
    EXPECT_FALSE(makeCurveFor(plug("ball.tx"))) << "something feeds it already";
    EXPECT_FALSE(makeCurveFor(plug("ball.t"))) << "no single number";
    const Expected<Node*> driven = makeCurveFor(plug("ball.tz"), false);
    ASSERT_TRUE(driven);
    EXPECT_EQ(driven.value->type().name, "animCurveUL");
}

TEST_F(AnimCurveTest, EditsOfKeysAreTakenBackAndDoneAgain)
{
    makeTransform("ball");
    scene.journal().setOn(true);
    scene.journal().openChunk("curve");
    Node& node = *makeCurveFor(plug("ball.tx")).value;
    ASSERT_TRUE(writeCurve(node, curveOf({{0.0, 0.0}, {1.0, 4.0}}, TangentKind::linear)));
    scene.journal().closeChunk();
    scene.setTime(0.5);
    EXPECT_DOUBLE_EQ(number("ball.tx"), 2.0);
    scene.journal().openChunk("keys");
    AnimCurveKeys more = curveOf({{0.0, 0.0}, {0.5, 9.0}, {1.0, 4.0}}, TangentKind::spline);
    more.setTangent(1, KeySide::out, {1.0, 0.0});
    ASSERT_TRUE(writeCurve(node, more));
    scene.journal().closeChunk();
    EXPECT_DOUBLE_EQ(number("ball.tx"), 9.0);
    ASSERT_TRUE(scene.journal().undo());
    EXPECT_DOUBLE_EQ(number("ball.tx"), 2.0);
    EXPECT_EQ(readCurve(node).keys.size(), 2u);
    EXPECT_THAT(elements("ball_translateX.kix"), testing::IsEmpty());
    ASSERT_TRUE(scene.journal().redo());
    EXPECT_DOUBLE_EQ(number("ball.tx"), 9.0);
    ASSERT_TRUE(scene.journal().undo());
    ASSERT_TRUE(scene.journal().undo());
    EXPECT_EQ(curveFeeding(plug("ball.tx")), nullptr);
}

} // namespace
} // namespace tvxhost::engine
