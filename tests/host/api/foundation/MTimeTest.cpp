// MTime: a time with its unit, in whole ticks.
#include <maya/MTime.h>

#include "engine/scene.h"

#include <gtest/gtest.h>

namespace {

using tvxhost::engine::Scene;

class MTimeTest : public testing::Test
{
protected:
    MTimeTest() { Scene::makeCurrent(&m_scene); }
    ~MTimeTest() override { Scene::makeCurrent(nullptr); }

private:
    Scene m_scene;
};

TEST_F(MTimeTest, IsZeroInTheUnitOfTheUserInterface)
{
    EXPECT_EQ(MTime().value(), 0.0);
    EXPECT_EQ(MTime().unit(), MTime::kFilm);
    EXPECT_EQ(MTime::setUIUnit(MTime::kPALFrame), MS::kSuccess);
    EXPECT_EQ(MTime().unit(), MTime::kPALFrame);
    EXPECT_EQ(MTime::setUIUnit(MTime::kInvalid), MS::kInvalidParameter);
    EXPECT_EQ(MTime::uiUnit(), MTime::kPALFrame);
}

TEST_F(MTimeTest, ConvertsBetweenUnits)
{
    const MTime second(24, MTime::kFilm);
    EXPECT_EQ(second.as(MTime::kSeconds), 1.0);
    EXPECT_EQ(second.as(MTime::kMilliseconds), 1000.0);
    EXPECT_EQ(second.as(MTime::kNTSCFrame), 30.0);
    EXPECT_EQ(second.as(MTime::kGames), 15.0);
    EXPECT_EQ(second.asUnits(MTime::k2FPS), 2.0);
    EXPECT_EQ(MTime(1, MTime::kHours).as(MTime::kMinutes), 60.0);
}

TEST_F(MTimeTest, HoldsWholeTicksOfWhichASecondHas6000)
{
    // 0.0001 s are 0.6 ticks, which is one: 1/6000 s.
    EXPECT_DOUBLE_EQ(MTime(0.0001, MTime::kSeconds).value(), 1.0 / 6000.0);
    EXPECT_EQ(MTime(0.00008, MTime::kSeconds).value(), 0.0);
    EXPECT_EQ(MTime(1, MTime::k6000FPS).as(MTime::kSeconds), 1.0 / 6000.0);
    EXPECT_EQ(MTime(1.5, MTime::kFilm).value(), 1.5);
}

TEST_F(MTimeTest, ChangesTheLabelAndNotTheNumber)
{
    MTime time(24, MTime::kFilm);
    EXPECT_EQ(time.setUnit(MTime::kSeconds), MS::kSuccess);
    EXPECT_EQ(time.value(), 24.0);
    EXPECT_EQ(time.as(MTime::kFilm), 576.0);
    EXPECT_EQ(time.setUnit(MTime::kInvalid), MS::kInvalidParameter);
    EXPECT_EQ(time.unit(), MTime::kSeconds);
}

TEST_F(MTimeTest, ComparesAcrossUnits)
{
    EXPECT_EQ(MTime(1, MTime::kSeconds), MTime(24, MTime::kFilm));
    EXPECT_NE(MTime(1, MTime::kSeconds), MTime(25, MTime::kFilm));
    EXPECT_LT(MTime(23, MTime::kFilm), MTime(1, MTime::kSeconds));
    EXPECT_LE(MTime(24, MTime::kFilm), MTime(1, MTime::kSeconds));
    EXPECT_GT(MTime(2, MTime::kSeconds), MTime(24, MTime::kFilm));
    EXPECT_GE(MTime(2, MTime::kSeconds), MTime(48, MTime::kFilm));
}

TEST_F(MTimeTest, CalculatesInTheUnitOfTheLeftSide)
{
    MTime time(12, MTime::kFilm);
    EXPECT_EQ((time + MTime(1, MTime::kSeconds)).value(), 36.0);
    EXPECT_EQ((time - MTime(0.5, MTime::kSeconds)).value(), 0.0);
    EXPECT_EQ((time + 3.0).value(), 15.0);
    EXPECT_EQ((time * 2.0).value(), 24.0);
    EXPECT_EQ((time / 2.0).value(), 6.0);
    ++time;
    EXPECT_EQ(time.value(), 13.0);
    EXPECT_EQ((time--).value(), 12.0) << "both forms give the new time";
    time -= MTime(6, MTime::kFilm);
    EXPECT_EQ(time.value(), 6.0);
}

TEST_F(MTimeTest, GivesTheLengthOfAFrameInSeconds)
{
    EXPECT_DOUBLE_EQ(MTime(1, MTime::uiUnit()).as(MTime::k2FPS) * 0.5, 1.0 / 24.0);
}

} // namespace
