// The time and lengths in the user's units.
#include "UtilsFixture.h"

#include <maya/MAnimControl.h>
#include <maya/MDistance.h>
#include <maya/MTime.h>

namespace tarvox::crowd::test {
namespace {

class UserUnits : public UtilsFixture
{
};

TEST_F(UserUnits, TheCurrentTimeIsToldInFramesAndSeconds)
{
    MTime::setUIUnit(MTime::kFilm);
    MAnimControl::setCurrentTime(MTime(36.0, MTime::kFilm));
    EXPECT_EQ(MayaUtils::getCurrentFrame(), 36.0f);
    EXPECT_DOUBLE_EQ(MayaUtils::getCurrentTimeInSeconds(), 1.5);
    MTime::setUIUnit(MTime::kPALFrame);
    EXPECT_EQ(MayaUtils::getCurrentFrame(), 37.5f);
    EXPECT_DOUBLE_EQ(MayaUtils::getCurrentTimeInSeconds(), 1.5);
}

TEST_F(UserUnits, AFrameLastsAsLongAsItsUnitSays)
{
    MTime::setUIUnit(MTime::kFilm);
    EXPECT_DOUBLE_EQ(MayaUtils::getFrameDuration(), 1.0 / 24.0);
    MTime::setUIUnit(MTime::kPALFrame);
    EXPECT_DOUBLE_EQ(MayaUtils::getFrameDuration(), 1.0 / 25.0);
    MTime::setUIUnit(MTime::kNTSCFrame);
    EXPECT_DOUBLE_EQ(MayaUtils::getFrameDuration(), 1.0 / 30.0);
    MTime::setUIUnit(MTime::kSeconds);
    EXPECT_DOUBLE_EQ(MayaUtils::getFrameDuration(), 1.0);
}

TEST_F(UserUnits, CentimetresAreLeftAsTheyAre)
{
    const MVector lengths(0.1, -2.0, 1e300);
    EXPECT_EQ(MayaUtils::getUIUnitScale(), 1.0f);
    EXPECT_EQ(MayaUtils::internalToUIUnits(lengths), lengths);
    EXPECT_EQ(MayaUtils::uiToInternalUnits(lengths), lengths);
}

TEST_F(UserUnits, OtherUnitsAreConverted)
{
    const struct
    {
        MDistance::Unit unit;
        double centimetres; ///< in one of the unit
    } rows[] = {
        {MDistance::kMillimeters, 0.1}, {MDistance::kMeters, 100.0},     {MDistance::kKilometers, 100000.0},
        {MDistance::kInches, 2.54},     {MDistance::kFeet, 2.54 * 12.0}, {MDistance::kYards, 2.54 * 36.0},
        {MDistance::kMiles, 160934.4},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.unit);
        MDistance::setUIUnit(row.unit);
        EXPECT_FLOAT_EQ(MayaUtils::getUIUnitScale(), static_cast<float>(1.0 / row.centimetres));
        const MVector inUnit = MayaUtils::internalToUIUnits(MVector(1.0, -2.0, 0.5));
        EXPECT_DOUBLE_EQ(inUnit.x, 1.0 / row.centimetres);
        EXPECT_DOUBLE_EQ(inUnit.y, -2.0 / row.centimetres);
        EXPECT_DOUBLE_EQ(inUnit.z, 0.5 / row.centimetres);
        const MVector inCentimetres = MayaUtils::uiToInternalUnits(MVector(1.0, -2.0, 0.5));
        EXPECT_DOUBLE_EQ(inCentimetres.x, row.centimetres);
        EXPECT_DOUBLE_EQ(inCentimetres.y, -2.0 * row.centimetres);
        EXPECT_DOUBLE_EQ(inCentimetres.z, 0.5 * row.centimetres);
    }
}

} // namespace
} // namespace tarvox::crowd::test
