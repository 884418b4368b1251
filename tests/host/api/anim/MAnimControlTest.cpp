// MAnimControl: the current time and playing.
#include "../sceneFixture.h"

#include <maya/MAnimControl.h>
#include <maya/MFnAnimCurve.h>
#include <maya/MTime.h>

namespace tvxhost::api::test {
namespace {

class MAnimControlTest : public SceneFixture
{
};

TEST_F(MAnimControlTest, TheCurrentTimeIsTheScenes)
{
    EXPECT_EQ(MAnimControl::setCurrentTime(MTime(48, MTime::kFilm)), MS::kSuccess);
    EXPECT_DOUBLE_EQ(scene.time(), 2.0);
    EXPECT_EQ(MAnimControl::currentTime(), MTime(2, MTime::kSeconds));
    MTime::setUIUnit(MTime::kPALFrame);
    EXPECT_EQ(MAnimControl::currentTime().value(), 50.0);
    EXPECT_EQ(MAnimControl::currentTime().unit(), MTime::kPALFrame);
}

TEST_F(MAnimControlTest, TellsAndSetsTheRanges)
{
    EXPECT_EQ(MAnimControl::minTime(), MTime(1, MTime::kFilm));
    EXPECT_EQ(MAnimControl::maxTime(), MTime(24, MTime::kFilm));
    EXPECT_EQ(MAnimControl::animationStartTime(), MTime(1, MTime::kFilm));
    EXPECT_EQ(MAnimControl::animationEndTime(), MTime(48, MTime::kFilm));
    EXPECT_EQ(MAnimControl::setAnimationStartEndTime(MTime(0, MTime::kFilm), MTime(200, MTime::kFilm)),
              MS::kSuccess);
    EXPECT_EQ(MAnimControl::setMinMaxTime(MTime(10, MTime::kFilm), MTime(120, MTime::kFilm)), MS::kSuccess);
    EXPECT_EQ(MAnimControl::minTime().value(), 10.0);
    EXPECT_EQ(MAnimControl::maxTime().value(), 120.0);
    EXPECT_EQ(MAnimControl::animationEndTime().value(), 200.0);
    MTime::setUIUnit(MTime::kSeconds);
    EXPECT_EQ(MAnimControl::maxTime().value(), 5.0);
    EXPECT_EQ(MAnimControl::setMinMaxTime(MTime(2, MTime::kSeconds), MTime(1, MTime::kSeconds)),
              MS::kInvalidParameter);
}

TEST_F(MAnimControlTest, AnEndOfARangeMovesThoseThatItPasses)
{
    EXPECT_EQ(MAnimControl::setMaxTime(MTime(60, MTime::kFilm)), MS::kSuccess);
    EXPECT_EQ(MAnimControl::animationEndTime(), MTime(60, MTime::kFilm));
    EXPECT_EQ(MAnimControl::setAnimationStartTime(MTime(30, MTime::kFilm)), MS::kSuccess);
    EXPECT_EQ(MAnimControl::minTime(), MTime(30, MTime::kFilm));
    EXPECT_EQ(MAnimControl::setAnimationEndTime(MTime(20, MTime::kFilm)), MS::kSuccess);
    EXPECT_EQ(MAnimControl::animationStartTime(), MTime(20, MTime::kFilm));
    EXPECT_EQ(MAnimControl::minTime(), MTime(20, MTime::kFilm));
    EXPECT_EQ(MAnimControl::maxTime(), MTime(20, MTime::kFilm));
    EXPECT_EQ(MAnimControl::setMinTime(MTime(40, MTime::kFilm)), MS::kSuccess);
    EXPECT_EQ(MAnimControl::maxTime(), MTime(40, MTime::kFilm));
}

TEST_F(MAnimControlTest, TellsHowItWouldPlay)
{
    EXPECT_EQ(MAnimControl::playbackMode(), MAnimControl::kPlaybackLoop);
    EXPECT_EQ(MAnimControl::setPlaybackMode(MAnimControl::kPlaybackOscillate), MS::kSuccess);
    EXPECT_EQ(MAnimControl::playbackMode(), MAnimControl::kPlaybackOscillate);
    EXPECT_EQ(MAnimControl::setViewMode(MAnimControl::kPlaybackViewAll), MS::kSuccess);
    EXPECT_EQ(MAnimControl::viewMode(), MAnimControl::kPlaybackViewAll);
    EXPECT_EQ(MAnimControl::setPlaybackBy(2.0), MS::kSuccess);
    EXPECT_EQ(MAnimControl::playbackBy(), 2.0);
    EXPECT_EQ(MAnimControl::setPlaybackSpeed(1.0), MS::kSuccess);
    EXPECT_EQ(MAnimControl::playbackSpeed(), 1.0);
}

TEST_F(MAnimControlTest, KeysTakeTheGlobalTangentsOfTheSession)
{
    EXPECT_EQ(MAnimControl::globalInTangentType(), MFnAnimCurve::kTangentAuto);
    EXPECT_EQ(MAnimControl::setGlobalInTangentType(MFnAnimCurve::kTangentLinear), MS::kSuccess);
    EXPECT_EQ(MAnimControl::setGlobalOutTangentType(MFnAnimCurve::kTangentStep), MS::kSuccess);
    EXPECT_EQ(MAnimControl::setGlobalOutTangentType(MFnAnimCurve::kTangentGlobal), MS::kInvalidParameter);
    MFnAnimCurve curve;
    curve.create(MFnAnimCurve::kAnimCurveTU);
    curve.addKeyframe(MTime(1, MTime::kFilm), 1.0);
    curve.addKeyframe(MTime(2, MTime::kFilm), 2.0, MFnAnimCurve::kTangentFlat, MFnAnimCurve::kTangentGlobal);
    EXPECT_EQ(curve.inTangentType(0), MFnAnimCurve::kTangentLinear);
    EXPECT_EQ(curve.outTangentType(0), MFnAnimCurve::kTangentStep);
    EXPECT_EQ(curve.inTangentType(1), MFnAnimCurve::kTangentFlat);
    EXPECT_EQ(curve.outTangentType(1), MFnAnimCurve::kTangentStep);
    EXPECT_EQ(MAnimControl::setGlobalInTangentType(MFnAnimCurve::kTangentAuto), MS::kSuccess);
    EXPECT_EQ(MAnimControl::setGlobalOutTangentType(MFnAnimCurve::kTangentAuto), MS::kSuccess);
    EXPECT_EQ(MAnimControl::globalOutTangentType(), MFnAnimCurve::kTangentAuto);
}

TEST_F(MAnimControlTest, NothingPlays)
{
    EXPECT_FALSE(MAnimControl::isPlaying());
    EXPECT_EQ(MAnimControl::stop(), MS::kSuccess);
    EXPECT_EQ(MAnimControl::playForward(), MS::kNotImplemented);
    EXPECT_EQ(messages(engine::MessageKind::error), (Texts{"Not implemented: MAnimControl::playForward"}));
}

} // namespace
} // namespace tvxhost::api::test
