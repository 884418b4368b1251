// MAnimControl: the current time and playing.
#include <maya/MAnimControl.h>

#include "engine/scene.h"
#include "engine/settingsChange.h"
#include "support/apiCall.h"
#include "support/curveSet.h"
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

/// One end of a range.
using End = void (Playback::*)(double);

MStatus set(const char* name, End end, const MTime& time)
{
    TVX_API_CALL(name);
    const engine::SettingsChange settings(engine::Scene::current());
    (playback().*end)(time.as(MTime::kSeconds));
    return MS::kSuccess;
}

MStatus setRange(const char* name, End begin, const MTime& first, End end, const MTime& last)
{
    TVX_API_CALL(name);
    if (last < first)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    const engine::SettingsChange settings(engine::Scene::current());
    (playback().*begin)(first.as(MTime::kSeconds));
    (playback().*end)(last.as(MTime::kSeconds));
    return MS::kSuccess;
}

MStatus refuse(const char* name)
{
    TVX_API_CALL(name);
    return notImplemented(name);
}

using Tangent = MFnAnimCurve::TangentType;

Tangent globalTangent(const char* name, Tangent api::GlobalTangents::*side, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, MFnAnimCurve::kTangentGlobal);
    api::giveSuccess(returnStatus);
    return api::globalTangents().*side;
}

MStatus setGlobalTangent(const char* name, Tangent api::GlobalTangents::*side, Tangent type)
{
    TVX_API_CALL(name);
    if (!api::tangentKind(type))
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    api::globalTangents().*side = type;
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
    return set("MAnimControl::setMinTime", &Playback::setMinimum, newMinTime);
}

MStatus MAnimControl::setMaxTime(MTime newMaxTime)
{
    return set("MAnimControl::setMaxTime", &Playback::setMaximum, newMaxTime);
}

MStatus MAnimControl::setMinMaxTime(MTime min, MTime max)
{
    return setRange("MAnimControl::setMinMaxTime", &Playback::setMinimum, min, &Playback::setMaximum, max);
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
    return set("MAnimControl::setAnimationStartTime", &Playback::setAnimationStart, newStartTime);
}

MStatus MAnimControl::setAnimationEndTime(MTime newEndTime)
{
    return set("MAnimControl::setAnimationEndTime", &Playback::setAnimationEnd, newEndTime);
}

MStatus MAnimControl::setAnimationStartEndTime(MTime newStartTime, MTime newEndTime)
{
    return setRange("MAnimControl::setAnimationStartEndTime", &Playback::setAnimationStart, newStartTime,
                    &Playback::setAnimationEnd, newEndTime);
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
    return refuse("MAnimControl::playForward");
}

MStatus MAnimControl::playBackward()
{
    return refuse("MAnimControl::playBackward");
}

MStatus MAnimControl::setAutoKeyMode(bool)
{
    return refuse("MAnimControl::setAutoKeyMode");
}

MStatus MAnimControl::setWeightedTangents(bool)
{
    return refuse("MAnimControl::setWeightedTangents");
}

MFnAnimCurve::TangentType MAnimControl::globalInTangentType(MStatus* ReturnStatus)
{
    return globalTangent("MAnimControl::globalInTangentType", &api::GlobalTangents::in, ReturnStatus);
}

MStatus MAnimControl::setGlobalInTangentType(const MFnAnimCurve::TangentType& tangentType)
{
    return setGlobalTangent("MAnimControl::setGlobalInTangentType", &api::GlobalTangents::in, tangentType);
}

MFnAnimCurve::TangentType MAnimControl::globalOutTangentType(MStatus* ReturnStatus)
{
    return globalTangent("MAnimControl::globalOutTangentType", &api::GlobalTangents::out, ReturnStatus);
}

MStatus MAnimControl::setGlobalOutTangentType(const MFnAnimCurve::TangentType& tangentType)
{
    return setGlobalTangent("MAnimControl::setGlobalOutTangentType", &api::GlobalTangents::out, tangentType);
}
