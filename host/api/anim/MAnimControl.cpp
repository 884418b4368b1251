// MAnimControl: the current time and playing.
#include <maya/MAnimControl.h>

#include "engine/scene.h"
#include "support/apiCall.h"
#include "support/notImplemented.h"

using namespace tvxhost;
using api::failure;
using api::notImplemented;
using api::StatusText;
using engine::Playback;

namespace {

Playback& playback()
{
    return engine::Scene::current().playback();
}

MTime timeOf(double seconds)
{
    return MTime(MTime(seconds, MTime::kSeconds).as(MTime::uiUnit()), MTime::uiUnit());
}

MStatus set(void (Playback::*member)(double), const MTime& time)
{
    (playback().*member)(time.as(MTime::kSeconds));
    return MS::kSuccess;
}

} // namespace

MAnimControl::MAnimControl() {}

MAnimControl::~MAnimControl() {}

MTime MAnimControl::currentTime()
{
    return timeOf(engine::Scene::current().time());
}

MStatus MAnimControl::setCurrentTime(const MTime& newTime)
{
    TVX_API_CALL("MAnimControl::setCurrentTime");
    engine::Scene::current().setTime(newTime.as(MTime::kSeconds));
    return MS::kSuccess;
}

// Nothing plays and no key is set by itself in this host.
bool MAnimControl::isPlaying()
{
    return false;
}

bool MAnimControl::isScrubbing()
{
    return false;
}

MStatus MAnimControl::stop()
{
    TVX_API_CALL("MAnimControl::stop");
    return MS::kSuccess;
}

bool MAnimControl::autoKeyMode()
{
    return false;
}

bool MAnimControl::weightedTangents(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MAnimControl::weightedTangents", ReturnStatus, false);
    api::giveSuccess(ReturnStatus);
    return false;
}

MAnimControl::PlaybackMode MAnimControl::playbackMode()
{
    return static_cast<PlaybackMode>(playback().mode);
}

MStatus MAnimControl::setPlaybackMode(PlaybackMode newMode)
{
    TVX_API_CALL("MAnimControl::setPlaybackMode");
    if (newMode < kPlaybackOnce || newMode > kPlaybackOscillate)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    playback().mode = static_cast<Playback::Mode>(newMode);
    return MS::kSuccess;
}

MAnimControl::PlaybackViewMode MAnimControl::viewMode()
{
    return static_cast<PlaybackViewMode>(playback().views);
}

MStatus MAnimControl::setViewMode(PlaybackViewMode newMode)
{
    TVX_API_CALL("MAnimControl::setViewMode");
    if (newMode < kPlaybackViewAll || newMode > kPlaybackViewActive)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    playback().views = static_cast<Playback::Views>(newMode);
    return MS::kSuccess;
}

double MAnimControl::playbackBy()
{
    return playback().by;
}

MStatus MAnimControl::setPlaybackBy(const double& newTime)
{
    TVX_API_CALL("MAnimControl::setPlaybackBy");
    playback().by = newTime;
    return MS::kSuccess;
}

MTime MAnimControl::minTime()
{
    return timeOf(playback().minimum());
}

MTime MAnimControl::maxTime()
{
    return timeOf(playback().maximum());
}

MStatus MAnimControl::setMinTime(MTime newMinTime)
{
    TVX_API_CALL("MAnimControl::setMinTime");
    return set(&Playback::setMinimum, newMinTime);
}

MStatus MAnimControl::setMaxTime(MTime newMaxTime)
{
    TVX_API_CALL("MAnimControl::setMaxTime");
    return set(&Playback::setMaximum, newMaxTime);
}

MStatus MAnimControl::setMinMaxTime(MTime min, MTime max)
{
    TVX_API_CALL("MAnimControl::setMinMaxTime");
    if (max < min)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    set(&Playback::setMinimum, min);
    return set(&Playback::setMaximum, max);
}

MTime MAnimControl::animationStartTime()
{
    return timeOf(playback().animationStart());
}

MTime MAnimControl::animationEndTime()
{
    return timeOf(playback().animationEnd());
}

MStatus MAnimControl::setAnimationStartTime(MTime newStartTime)
{
    TVX_API_CALL("MAnimControl::setAnimationStartTime");
    return set(&Playback::setAnimationStart, newStartTime);
}

MStatus MAnimControl::setAnimationEndTime(MTime newEndTime)
{
    TVX_API_CALL("MAnimControl::setAnimationEndTime");
    return set(&Playback::setAnimationEnd, newEndTime);
}

MStatus MAnimControl::setAnimationStartEndTime(MTime newStartTime, MTime newEndTime)
{
    TVX_API_CALL("MAnimControl::setAnimationStartEndTime");
    if (newEndTime < newStartTime)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    set(&Playback::setAnimationStart, newStartTime);
    return set(&Playback::setAnimationEnd, newEndTime);
}

double MAnimControl::playbackSpeed()
{
    return playback().speed;
}

MStatus MAnimControl::setPlaybackSpeed(double newSpeed)
{
    TVX_API_CALL("MAnimControl::setPlaybackSpeed");
    playback().speed = newSpeed;
    return MS::kSuccess;
}

MStatus MAnimControl::playForward()
{
    TVX_API_CALL("MAnimControl::playForward");
    return notImplemented("MAnimControl::playForward");
}

MStatus MAnimControl::playBackward()
{
    TVX_API_CALL("MAnimControl::playBackward");
    return notImplemented("MAnimControl::playBackward");
}

MStatus MAnimControl::setAutoKeyMode(bool)
{
    TVX_API_CALL("MAnimControl::setAutoKeyMode");
    return notImplemented("MAnimControl::setAutoKeyMode");
}

MStatus MAnimControl::setWeightedTangents(bool)
{
    TVX_API_CALL("MAnimControl::setWeightedTangents");
    return notImplemented("MAnimControl::setWeightedTangents");
}
