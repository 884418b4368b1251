// MAngle: an angle with its unit.
#include <maya/MAngle.h>

#include "engine/scene.h"

#include <gtest/gtest.h>

namespace {

using tvxhost::engine::Scene;

const double kHalfTurn = 3.14159265358979323846;

class MAngleTest : public testing::Test
{
protected:
    MAngleTest() { Scene::makeCurrent(&m_scene); }
    ~MAngleTest() override { Scene::makeCurrent(nullptr); }

    Scene m_scene;
};

TEST_F(MAngleTest, ConvertsBetweenUnits)
{
    const MAngle straight(180.0, MAngle::kDegrees);
    EXPECT_DOUBLE_EQ(straight.asRadians(), kHalfTurn);
    EXPECT_DOUBLE_EQ(straight.asAngMinutes(), 180.0 * 60.0);
    EXPECT_DOUBLE_EQ(straight.asAngSeconds(), 180.0 * 3600.0);
    EXPECT_DOUBLE_EQ(MAngle(kHalfTurn).asDegrees(), 180.0);
}

TEST_F(MAngleTest, HasNoNumberInAUnitThatDoesNotExist)
{
    MStatus status;
    EXPECT_EQ(MAngle(1.0).as(MAngle::kInvalid, &status), 0.0);
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_EQ(MAngle(1.0).as(MAngle::kRadians, &status), 1.0);
    EXPECT_EQ(status, MS::kSuccess);
}

TEST_F(MAngleTest, CountsInRadiansAndShowsDegrees)
{
    EXPECT_EQ(MAngle().unit(), MAngle::kRadians);
    EXPECT_EQ(MAngle::internalUnit(), MAngle::kRadians);
    EXPECT_EQ(MAngle::uiUnit(), MAngle::kDegrees);
    EXPECT_DOUBLE_EQ(MAngle::internalToUI(kHalfTurn), 180.0);
    EXPECT_DOUBLE_EQ(MAngle::uiToInternal(90.0), kHalfTurn / 2.0);
    EXPECT_EQ(MAngle::setUIUnit(MAngle::kRadians), MS::kSuccess);
    EXPECT_EQ(MAngle::internalToUI(2.0), 2.0);
    EXPECT_EQ(MAngle::setUIUnit(MAngle::kLast), MS::kInvalidParameter);
}

TEST_F(MAngleTest, ChangesTheLabelAndNotTheNumber)
{
    MAngle angle(2.0);
    EXPECT_EQ(angle.setUnit(MAngle::kDegrees), MS::kSuccess);
    EXPECT_EQ(angle.value(), 2.0);
    EXPECT_EQ(angle.setUnit(MAngle::kInvalid), MS::kInvalidParameter);
    EXPECT_EQ(angle.setValue(5.0), MS::kSuccess);
    EXPECT_EQ(angle.asDegrees(), 5.0);
}

TEST_F(MAngleTest, SaysThatTheInternalUnitCannotBeChanged)
{
    EXPECT_EQ(MAngle::setInternalUnit(MAngle::kDegrees), MS::kNotImplemented);
    EXPECT_EQ(MAngle::setInternalUnit(MAngle::kDegrees), MS::kNotImplemented);
    ASSERT_EQ(m_scene.scriptEditor().history().size(), 1u) << "once";
    EXPECT_EQ(m_scene.scriptEditor().history()[0].text, "Not implemented: MAngle::setInternalUnit");
}

} // namespace
