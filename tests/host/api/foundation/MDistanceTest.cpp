// MDistance: a length with its unit.
#include <maya/MDistance.h>

#include "engine/scene.h"

#include <gtest/gtest.h>

namespace {

using tvxhost::engine::Scene;

class MDistanceTest : public testing::Test
{
protected:
    MDistanceTest() { Scene::makeCurrent(&m_scene); }
    ~MDistanceTest() override { Scene::makeCurrent(nullptr); }

private:
    Scene m_scene;
};

TEST_F(MDistanceTest, ConvertsBetweenUnits)
{
    const MDistance metre(1.0, MDistance::kMeters);
    EXPECT_DOUBLE_EQ(metre.asCentimeters(), 100.0);
    EXPECT_DOUBLE_EQ(metre.asMillimeters(), 1000.0);
    EXPECT_DOUBLE_EQ(metre.asKilometers(), 0.001);
    EXPECT_DOUBLE_EQ(MDistance(1.0, MDistance::kInches).asCentimeters(), 2.54);
    EXPECT_DOUBLE_EQ(MDistance(1.0, MDistance::kYards).asFeet(), 3.0);
    EXPECT_DOUBLE_EQ(MDistance(1.0, MDistance::kFeet).asInches(), 12.0);
    EXPECT_DOUBLE_EQ(MDistance(1.0, MDistance::kMiles).asMeters(), 1609.344);
    EXPECT_DOUBLE_EQ(MDistance(1760.0, MDistance::kYards).asMiles(), 1.0);
    EXPECT_DOUBLE_EQ(MDistance(91.44).asYards(), 1.0);
}

TEST_F(MDistanceTest, CountsInCentimetresAndShowsThemToo)
{
    EXPECT_EQ(MDistance().unit(), MDistance::kCentimeters);
    EXPECT_EQ(MDistance::uiUnit(), MDistance::kCentimeters);
    EXPECT_EQ(MDistance::setUIUnit(MDistance::kMeters), MS::kSuccess);
    EXPECT_DOUBLE_EQ(MDistance::internalToUI(250.0), 2.5);
    EXPECT_DOUBLE_EQ(MDistance::uiToInternal(2.5), 250.0);
    EXPECT_EQ(MDistance::internalUnit(), MDistance::kCentimeters);
}

TEST_F(MDistanceTest, HasNoNumberInAUnitThatDoesNotExist)
{
    MStatus status;
    EXPECT_EQ(MDistance(1.0).asUnits(MDistance::kInvalid, &status), 0.0);
    EXPECT_EQ(status, MS::kInvalidParameter);
    MDistance length(3.0);
    EXPECT_EQ(length.setUnit(MDistance::kInvalid), MS::kInvalidParameter);
    EXPECT_EQ(length.asCentimeters(), 3.0);
}

} // namespace
