// MAnimControl: the current time and playing.
#include <maya/MAnimControl.h>

#include "engine/scene.h"
#include "support/apiCall.h"
#include "support/notImplemented.h"

using namespace tvxhost;
using api::notImplemented;

MAnimControl::MAnimControl() {}

MAnimControl::~MAnimControl() {}

MTime MAnimControl::currentTime()
{
    MTime now(engine::Scene::current().time(), MTime::kSeconds);
    return MTime(now.as(MTime::uiUnit()), MTime::uiUnit());
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
    notImplemented("MAnimControl::playbackMode");
    return kPlaybackOnce;
}

MStatus MAnimControl::setPlaybackMode(PlaybackMode)
{
    TVX_API_CALL("MAnimControl::setPlaybackMode");
    return notImplemented("MAnimControl::setPlaybackMode");
}

MAnimControl::PlaybackViewMode MAnimControl::viewMode()
{
    notImplemented("MAnimControl::viewMode");
    return kPlaybackViewAll;
}

MStatus MAnimControl::setViewMode(PlaybackViewMode)
{
    TVX_API_CALL("MAnimControl::setViewMode");
    return notImplemented("MAnimControl::setViewMode");
}

double MAnimControl::playbackBy()
{
    notImplemented("MAnimControl::playbackBy");
    return 1.0;
}

MStatus MAnimControl::setPlaybackBy(const double&)
{
    TVX_API_CALL("MAnimControl::setPlaybackBy");
    return notImplemented("MAnimControl::setPlaybackBy");
}

MTime MAnimControl::minTime()
{
    notImplemented("MAnimControl::minTime");
    return MTime();
}

MTime MAnimControl::maxTime()
{
    notImplemented("MAnimControl::maxTime");
    return MTime();
}

MStatus MAnimControl::setMinTime(MTime)
{
    TVX_API_CALL("MAnimControl::setMinTime");
    return notImplemented("MAnimControl::setMinTime");
}

MStatus MAnimControl::setMaxTime(MTime)
{
    TVX_API_CALL("MAnimControl::setMaxTime");
    return notImplemented("MAnimControl::setMaxTime");
}

MStatus MAnimControl::setMinMaxTime(MTime, MTime)
{
    TVX_API_CALL("MAnimControl::setMinMaxTime");
    return notImplemented("MAnimControl::setMinMaxTime");
}

MTime MAnimControl::animationStartTime()
{
    notImplemented("MAnimControl::animationStartTime");
    return MTime();
}

MTime MAnimControl::animationEndTime()
{
    notImplemented("MAnimControl::animationEndTime");
    return MTime();
}

MStatus MAnimControl::setAnimationStartTime(MTime)
{
    TVX_API_CALL("MAnimControl::setAnimationStartTime");
    return notImplemented("MAnimControl::setAnimationStartTime");
}

MStatus MAnimControl::setAnimationEndTime(MTime)
{
    TVX_API_CALL("MAnimControl::setAnimationEndTime");
    return notImplemented("MAnimControl::setAnimationEndTime");
}

MStatus MAnimControl::setAnimationStartEndTime(MTime, MTime)
{
    TVX_API_CALL("MAnimControl::setAnimationStartEndTime");
    return notImplemented("MAnimControl::setAnimationStartEndTime");
}

double MAnimControl::playbackSpeed()
{
    notImplemented("MAnimControl::playbackSpeed");
    return 0.0;
}

MStatus MAnimControl::setPlaybackSpeed(double)
{
    TVX_API_CALL("MAnimControl::setPlaybackSpeed");
    return notImplemented("MAnimControl::setPlaybackSpeed");
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
