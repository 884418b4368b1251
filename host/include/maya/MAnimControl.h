// MAnimControl: the current time and playing.
#pragma once

#include <maya/MFnAnimCurve.h>
#include <maya/MStatus.h>
#include <maya/MTime.h>
#include <maya/MTypes.h>

/// The current time, the ranges of the time line, and playing. All state is the application's; every member
/// is static.
class OPENMAYAANIM_EXPORT MAnimControl
{
public:
    /// What happens at the end of the range.
    enum PlaybackMode
    {
        kPlaybackOnce = 0,
        kPlaybackLoop = 1,
        kPlaybackOscillate = 2,
    };

    /// Which views are drawn while playing.
    enum PlaybackViewMode
    {
        kPlaybackViewAll = 0,
        kPlaybackViewActive = 1,
    };

    MAnimControl();
    virtual ~MAnimControl();

    /// What happens at the end of the range.
    static PlaybackMode playbackMode();
    static MStatus setPlaybackMode(PlaybackMode newMode);

    /// Which views are drawn while playing.
    static PlaybackViewMode viewMode();
    static MStatus setViewMode(PlaybackViewMode newMode);

    /// The step of playing, in frames.
    static double playbackBy();
    static MStatus setPlaybackBy(const double& newTime);

    /// The range that is played.
    static MTime minTime();
    static MTime maxTime();
    static MStatus setMinTime(MTime newMinTime);
    static MStatus setMaxTime(MTime newMaxTime);
    static MStatus setMinMaxTime(MTime min, MTime max);

    /// The range of the whole animation.
    static MTime animationStartTime();
    static MTime animationEndTime();
    static MStatus setAnimationStartTime(MTime newStartTime);
    static MStatus setAnimationEndTime(MTime newEndTime);
    static MStatus setAnimationStartEndTime(MTime newStartTime, MTime newEndTime);

    /// The current time; changing it evaluates the scene.
    static MTime currentTime();
    static MStatus setCurrentTime(const MTime& newTime);

    /// The speed: 1 is real time, 0 plays every frame.
    static double playbackSpeed();
    static MStatus setPlaybackSpeed(double newSpeed);

    /// Starts to play.
    static MStatus playForward();
    static MStatus playBackward();

    /// Whether it plays, and whether the user drags the time.
    static bool isPlaying();
    static bool isScrubbing();

    /// Stops playing.
    static MStatus stop();

    /// Whether changes set keys by themselves.
    static bool autoKeyMode();
    static MStatus setAutoKeyMode(bool mode);

    /// Whether new curves have weighted tangents.
    static bool weightedTangents(MStatus* ReturnStatus = nullptr);
    static MStatus setWeightedTangents(bool weightState);

    /// The kinds of tangents of keys that are added with kTangentGlobal; at first kTangentAuto.
    /// kInvalidParameter for kTangentGlobal itself and for what is no kind.
    static MFnAnimCurve::TangentType globalInTangentType(MStatus* ReturnStatus = nullptr);
    static MStatus setGlobalInTangentType(const MFnAnimCurve::TangentType& tangentType);
    static MFnAnimCurve::TangentType globalOutTangentType(MStatus* ReturnStatus = nullptr);
    static MStatus setGlobalOutTangentType(const MFnAnimCurve::TangentType& tangentType);

private:
    friend class tvxAccess;
};
