// MFnAnimCurve and MAnimCurveChange: curves by the API.
#include "../sceneFixture.h"

#include "engine/animCurve.h"

#include <maya/MAngle.h>
#include <maya/MAnimCurveChange.h>
#include <maya/MDGModifier.h>
#include <maya/MDoubleArray.h>
#include <maya/MFnAnimCurve.h>
#include <maya/MTimeArray.h>

namespace tvxhost::api::test {
namespace {

constexpr double kPi = 3.14159265358979323846;

MTime frame(double number)
{
    return MTime(number, MTime::kFilm);
}

class MFnAnimCurveTest : public SceneFixture
{
protected:
    MFnAnimCurveTest() { make("transform", "ball"); }

    std::string feeding(const std::string& name)
    {
        engine::Node* curve = engine::curveFeeding(scene.findPlug(name).value);
        return curve ? curve->name() : std::string();
    }
};

TEST_F(MFnAnimCurveTest, MakesTheCurveThatFitsAPlug)
{
    MFnAnimCurve set;
    MStatus status;
    const MObject made = set.create(plug("ball.tx"), nullptr, &status);
    ASSERT_EQ(status, MS::kSuccess);
    EXPECT_EQ(set.object(), made);
    EXPECT_EQ(text(set.name()), "ball_translateX");
    EXPECT_EQ(feeding("ball.tx"), "ball_translateX");
    EXPECT_EQ(set.animCurveType(), MFnAnimCurve::kAnimCurveTL);
    EXPECT_TRUE(set.isTimeInput());
    EXPECT_FALSE(set.isUnitlessInput());
    EXPECT_FALSE(set.isWeighted());

    set.create(object("ball"), plug("ball.ry").attribute(), nullptr, &status);
    EXPECT_EQ(set.animCurveType(), MFnAnimCurve::kAnimCurveTA);
    set.create(plug("ball.sz"), MFnAnimCurve::kAnimCurveUU, nullptr, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_TRUE(set.isUnitlessInput());
    set.create(MFnAnimCurve::kAnimCurveTT, nullptr, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(set.animCurveType(), MFnAnimCurve::kAnimCurveTT);
}

TEST_F(MFnAnimCurveTest, RefusesPlugsThatNoCurveCanFeed)
{
    MFnAnimCurve set;
    MStatus status;
    set.create(plug("ball.tx"), nullptr, &status);
    EXPECT_TRUE(set.create(plug("ball.tx"), nullptr, &status).isNull());
    EXPECT_EQ(status, MS::kFailure) << "it is fed already";
    EXPECT_TRUE(set.create(plug("ball.t"), nullptr, &status).isNull());
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_TRUE(set.create(MFnAnimCurve::kAnimCurveUnknown, nullptr, &status).isNull());
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnAnimCurveTest, AModifierTakesANewCurveAway)
{
    MFnAnimCurve set;
    MDGModifier modifier;
    MStatus status;
    set.create(plug("ball.tx"), &modifier, &status);
    ASSERT_EQ(status, MS::kSuccess) << text(status);
    EXPECT_EQ(feeding("ball.tx"), "ball_translateX");
    EXPECT_EQ(modifier.undoIt(), MS::kSuccess);
    EXPECT_EQ(feeding("ball.tx"), "");
    EXPECT_FALSE(scene.findNode("ball_translateX"));
}

TEST_F(MFnAnimCurveTest, TellsWhichTypeFits)
{
    MFnAnimCurve set;
    MPlug angle = plug("ball.rx");
    MPlug distance = plug("ball.tx");
    MPlug time = plug("time1.outTime");
    MPlug message = plug("ball.message");
    MStatus status;
    EXPECT_EQ(set.timedAnimCurveTypeForPlug(angle), MFnAnimCurve::kAnimCurveTA);
    EXPECT_EQ(set.unitlessAnimCurveTypeForPlug(distance), MFnAnimCurve::kAnimCurveUL);
    EXPECT_EQ(set.timedAnimCurveTypeForPlug(time), MFnAnimCurve::kAnimCurveTT);
    EXPECT_EQ(set.timedAnimCurveTypeForPlug(message, &status), MFnAnimCurve::kAnimCurveUnknown);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnAnimCurveTest, AttachesToACurveAndToWhatFeedsAPlug)
{
    MFnAnimCurve maker;
    const MObject made = maker.create(plug("ball.tx"));
    MStatus status;
    EXPECT_EQ(MFnAnimCurve(plug("ball.tx"), &status).object(), made);
    EXPECT_EQ(status, MS::kSuccess);
    MFnAnimCurve none(plug("ball.ty"), &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_EQ(none.numKeys(&status), 0u);
    EXPECT_EQ(text(status), "(kFailure): Object does not exist");
    MFnAnimCurve wrong(object("ball"), &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnAnimCurveTest, KeysAreFoundByTheirInputs)
{
    MFnAnimCurve set;
    set.create(plug("ball.tx"));
    MStatus status;
    EXPECT_EQ(set.addKey(frame(24), 5.0), 0u);
    EXPECT_EQ(set.addKey(frame(1), 1.0, MFnAnimCurve::kTangentLinear, MFnAnimCurve::kTangentStep), 0u);
    EXPECT_EQ(set.addKeyframe(frame(12), 3.0), MS::kSuccess);
    EXPECT_EQ(set.addKey(frame(12), 4.0), 1u) << "in place of the one that is there";
    EXPECT_EQ(set.numKeys(), 3u);
    EXPECT_EQ(set.numKeyframes(), 3u);
    EXPECT_EQ(set.time(2), frame(24));
    EXPECT_EQ(set.value(1), 4.0);
    EXPECT_EQ(set.inTangentType(0), MFnAnimCurve::kTangentLinear);
    EXPECT_EQ(set.outTangentType(0), MFnAnimCurve::kTangentStep);
    EXPECT_EQ(set.inTangentType(1), MFnAnimCurve::kTangentAuto);
    unsigned int index = 99;
    EXPECT_TRUE(set.find(frame(24), index));
    EXPECT_EQ(index, 2u);
    EXPECT_FALSE(set.find(frame(23), index));
    EXPECT_EQ(set.findClosest(frame(20)), 2u);
    EXPECT_EQ(set.value(3, &status), 0.0);
    EXPECT_EQ(text(status), "(kInvalidParameter): No element at given index");
    EXPECT_EQ(set.setTime(0, frame(12)), MS::kFailure) << "another key is there";
    EXPECT_EQ(set.setTime(0, frame(30)), MS::kSuccess);
    EXPECT_EQ(set.value(2), 1.0);
    EXPECT_EQ(set.setValue(2, 9.0), MS::kSuccess);
    EXPECT_EQ(set.value(2), 9.0);
    EXPECT_EQ(set.remove(0), MS::kSuccess);
    EXPECT_EQ(set.numKeys(), 2u);
    EXPECT_EQ(
        set.addKey(1.0, 2.0, MFnAnimCurve::kTangentGlobal, MFnAnimCurve::kTangentGlobal, nullptr, &status),
        0u);
    EXPECT_EQ(status, MS::kFailure) << "the curve takes times";
}

TEST_F(MFnAnimCurveTest, AddsManyKeysAtOnce)
{
    MFnAnimCurve set;
    set.create(plug("ball.tx"));
    MTimeArray times;
    MDoubleArray values;
    for (int i = 0; i < 10; ++i) {
        times.append(frame(i));
        values.append(i * i);
    }
    EXPECT_EQ(set.addKeys(&times, &values), MS::kSuccess);
    EXPECT_EQ(set.numKeys(), 10u);
    times.clear();
    values.clear();
    times.append(frame(20));
    values.append(1.0);
    EXPECT_EQ(set.addKeys(&times, &values, MFnAnimCurve::kTangentFlat, MFnAnimCurve::kTangentFlat, true),
              MS::kSuccess);
    EXPECT_EQ(set.numKeys(), 11u);
    EXPECT_EQ(set.addKeys(&times, &values), MS::kSuccess);
    EXPECT_EQ(set.numKeys(), 1u) << "all others go unless they are kept";
    values.append(2.0);
    EXPECT_EQ(set.addKeys(&times, &values), MS::kInvalidParameter);
    EXPECT_EQ(set.addKeys(nullptr, &values), MS::kInvalidParameter);
}

TEST_F(MFnAnimCurveTest, EvaluatesWithItsInfinities)
{
    MFnAnimCurve set;
    set.create(plug("ball.tx"));
    set.addKey(frame(0), 0.0, MFnAnimCurve::kTangentLinear, MFnAnimCurve::kTangentLinear);
    set.addKey(frame(10), 20.0, MFnAnimCurve::kTangentLinear, MFnAnimCurve::kTangentLinear);
    EXPECT_DOUBLE_EQ(set.evaluate(frame(5)), 10.0);
    EXPECT_FALSE(set.isStatic());
    EXPECT_EQ(set.setPostInfinityType(MFnAnimCurve::kCycleRelative), MS::kSuccess);
    EXPECT_EQ(set.setPreInfinityType(MFnAnimCurve::kOscillate), MS::kSuccess);
    EXPECT_EQ(set.postInfinityType(), MFnAnimCurve::kCycleRelative);
    EXPECT_EQ(set.preInfinityType(), MFnAnimCurve::kOscillate);
    EXPECT_DOUBLE_EQ(set.evaluate(frame(15)), 30.0);
    EXPECT_DOUBLE_EQ(set.evaluate(frame(-3)), 6.0);
    double value = 0.0;
    EXPECT_EQ(set.evaluate(5.0, value), MS::kFailure);
    EXPECT_EQ(set.setPostInfinityType(static_cast<MFnAnimCurve::InfinityType>(2)), MS::kInvalidParameter);
    MTime time;
    EXPECT_EQ(set.evaluate(frame(5), time), MS::kFailure) << "its values are no times";
}

TEST_F(MFnAnimCurveTest, ValuesAreAnglesInRadiansAndTimesInFrames)
{
    MFnAnimCurve angles;
    angles.create(plug("ball.rx"));
    angles.addKey(frame(0), kPi);
    EXPECT_DOUBLE_EQ(angles.value(0), kPi);
    EXPECT_DOUBLE_EQ(plug("ball_rotateX.ktv[0].kv").asDouble(), kPi);
    MFnAnimCurve times;
    times.create(MFnAnimCurve::kAnimCurveTT);
    times.addKey(frame(10), frame(48));
    EXPECT_DOUBLE_EQ(times.value(0), 48.0);
    MTime time;
    EXPECT_EQ(times.evaluate(frame(10), time), MS::kSuccess);
    EXPECT_EQ(time, frame(48));
    MFnAnimCurve plain;
    plain.create(MFnAnimCurve::kAnimCurveUU);
    EXPECT_EQ(plain.addKey(2.5, 7.0), 0u);
    EXPECT_EQ(plain.unitlessInput(0), 2.5);
    EXPECT_EQ(plain.setUnitlessInput(0, 3.5), MS::kSuccess);
    unsigned int index = 9;
    EXPECT_TRUE(plain.find(3.5, index));
    EXPECT_EQ(plain.findClosest(100.0), 0u);
    MStatus status;
    EXPECT_EQ(plain.time(0, &status), MTime());
    EXPECT_EQ(status, MS::kFailure);
}

TEST_F(MFnAnimCurveTest, TangentsAreDirectionsOrAngles)
{
    MFnAnimCurve set;
    set.create(plug("ball.tx"));
    set.addKey(frame(0), 0.0, MFnAnimCurve::kTangentLinear, MFnAnimCurve::kTangentLinear);
    set.addKey(frame(24), 24.0, MFnAnimCurve::kTangentLinear, MFnAnimCurve::kTangentLinear);
    float x = 0.0F;
    float y = 0.0F;
    ASSERT_EQ(set.getTangent(0, x, y, false), MS::kSuccess);
    EXPECT_NEAR(y / x, 24.0, 1e-4) << "centimetres in a second";
    MAngle angle;
    double weight = 0.0;
    ASSERT_EQ(set.getTangent(0, angle, weight, false), MS::kSuccess);
    EXPECT_NEAR(angle.asDegrees(), 45.0, 1e-9) << "centimetres in a frame";
    EXPECT_EQ(weight, 1.0);

    EXPECT_EQ(set.setAngle(0, MAngle(0.0), false), MS::kSuccess);
    EXPECT_EQ(set.outTangentType(0), MFnAnimCurve::kTangentFixed);
    ASSERT_EQ(set.getTangent(0, angle, weight, false), MS::kSuccess);
    EXPECT_NEAR(angle.asDegrees(), 0.0, 1e-9);
    EXPECT_EQ(set.setTangent(0, 1.0F, 2.0F, false), MS::kSuccess);
    ASSERT_EQ(set.getTangent(0, x, y, false), MS::kSuccess);
    EXPECT_NEAR(y / x, 48.0, 1e-4) << "two centimetres in a frame";
    EXPECT_EQ(set.setTangent(0, 1.0F, 2.0F, false, nullptr, false), MS::kSuccess);
    ASSERT_EQ(set.getTangent(0, x, y, false), MS::kSuccess);
    EXPECT_NEAR(y / x, 2.0, 1e-6) << "two centimetres in a second";
    EXPECT_EQ(set.getTangent(7, x, y, false), MS::kInvalidParameter);
}

TEST_F(MFnAnimCurveTest, WeightsNeedAWeightedCurve)
{
    MFnAnimCurve set;
    set.create(plug("ball.tx"));
    set.addKey(frame(0), 0.0, MFnAnimCurve::kTangentFlat, MFnAnimCurve::kTangentFlat);
    set.addKey(frame(24), 6.0, MFnAnimCurve::kTangentFlat, MFnAnimCurve::kTangentFlat);
    EXPECT_EQ(set.setWeight(0, 4.0, false), MS::kFailure);
    EXPECT_EQ(set.setIsWeighted(true), MS::kSuccess);
    EXPECT_TRUE(set.isWeighted());
    MAngle angle;
    double weight = 0.0;
    ASSERT_EQ(set.getTangent(0, angle, weight, false), MS::kSuccess);
    EXPECT_NEAR(weight, 8.0, 1e-9) << "a third of the way to the next key, in frames";
    EXPECT_EQ(set.setWeight(0, 12.0, false), MS::kSuccess);
    float x = 0.0F;
    float y = 0.0F;
    ASSERT_EQ(set.getTangent(0, x, y, false), MS::kSuccess);
    EXPECT_NEAR(x, 1.5F, 1e-6F) << "three times the handle, in seconds";
    EXPECT_TRUE(set.tangentsLocked(0));
    EXPECT_EQ(set.setTangentsLocked(0, false), MS::kSuccess);
    EXPECT_FALSE(set.tangentsLocked(0));
    EXPECT_TRUE(set.weightsLocked(1));
    EXPECT_EQ(set.setWeightsLocked(1, false), MS::kSuccess);
    EXPECT_FALSE(set.weightsLocked(1));
}

TEST_F(MFnAnimCurveTest, TypesOfTangentsAndBreakdownsAreSetByKey)
{
    MFnAnimCurve set;
    set.create(plug("ball.tx"));
    for (int i = 0; i < 3; ++i)
        set.addKey(frame(i), i);
    EXPECT_EQ(set.setInTangentType(0, MFnAnimCurve::kTangentClamped), MS::kSuccess);
    EXPECT_EQ(set.inTangentType(0), MFnAnimCurve::kTangentClamped);
    EXPECT_EQ(set.outTangentType(0), MFnAnimCurve::kTangentAuto);
    EXPECT_EQ(set.setOutTangentType(0, MFnAnimCurve::kTangentStepNext), MS::kSuccess);
    EXPECT_EQ(set.evaluate(frame(0.5)), 1.0);
    MIntArray indices;
    indices.append(1);
    indices.append(2);
    EXPECT_EQ(set.setTangentTypes(indices, MFnAnimCurve::kTangentPlateau, MFnAnimCurve::kTangentSmooth),
              MS::kSuccess);
    EXPECT_EQ(set.inTangentType(2), MFnAnimCurve::kTangentPlateau);
    EXPECT_EQ(set.outTangentType(2), MFnAnimCurve::kTangentSmooth);
    indices.append(3);
    EXPECT_EQ(set.setTangentTypes(indices, MFnAnimCurve::kTangentFlat, MFnAnimCurve::kTangentFlat),
              MS::kInvalidParameter);
    EXPECT_EQ(set.setInTangentType(0, MFnAnimCurve::kTangentShared1), MS::kInvalidParameter);
    EXPECT_FALSE(set.isBreakdown(1));
    EXPECT_EQ(set.setIsBreakdown(1, true), MS::kSuccess);
    EXPECT_TRUE(set.isBreakdown(1));
}

TEST_F(MFnAnimCurveTest, AChangeTakesEditsBack)
{
    MFnAnimCurve set;
    set.create(plug("ball.tx"));
    MAnimCurveChange change;
    set.addKey(frame(0), 1.0, MFnAnimCurve::kTangentFlat, MFnAnimCurve::kTangentFlat, &change);
    set.addKey(frame(5), 2.0, MFnAnimCurve::kTangentFlat, MFnAnimCurve::kTangentFlat, &change);
    set.setValue(0, 7.0, &change);
    EXPECT_EQ(change.undoIt(), MS::kSuccess);
    EXPECT_EQ(set.numKeys(), 0u);
    EXPECT_EQ(change.redoIt(), MS::kSuccess);
    EXPECT_EQ(set.numKeys(), 2u);
    EXPECT_EQ(set.value(0), 7.0);
    EXPECT_FALSE(change.isInteractive());
    change.setInteractive(true);
    EXPECT_TRUE(change.isInteractive());
    ASSERT_TRUE(scene.deleteNode(node("ball_translateX")));
    EXPECT_EQ(change.undoIt(), MS::kFailure);
}

TEST_F(MFnAnimCurveTest, CallsCanBeMadeToFail)
{
    MFnAnimCurve set;
    set.create(plug("ball.tx"));
    faults::failCall("MFnAnimCurve::addKey", 1, MS::kFailure);
    MStatus status;
    set.addKey(frame(0), 1.0, MFnAnimCurve::kTangentFlat, MFnAnimCurve::kTangentFlat, nullptr, &status);
    EXPECT_EQ(status, MS::kFailure);
    EXPECT_EQ(set.numKeys(), 0u);
}

} // namespace
} // namespace tvxhost::api::test
