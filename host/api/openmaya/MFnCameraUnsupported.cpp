// MFnCamera: what the host does not do: kNotImplemented, said once.
#include <maya/MFnCamera.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

#include <maya/MDGContext.h>
#include <maya/MDagPath.h>
#include <maya/MPointArray.h>

using tvxhost::api::notImplemented;

MStatus MFnCamera::set(const MPoint&, const MVector&, const MVector&, double, double)
{
    TVX_API_CALL("MFnCamera::set");
    return notImplemented("MFnCamera::set");
}

MStatus MFnCamera::setEyePoint(const MPoint&, MSpace::Space)
{
    TVX_API_CALL("MFnCamera::setEyePoint");
    return notImplemented("MFnCamera::setEyePoint");
}

MStatus MFnCamera::setCenterOfInterestPoint(const MPoint&, MSpace::Space)
{
    TVX_API_CALL("MFnCamera::setCenterOfInterestPoint");
    return notImplemented("MFnCamera::setCenterOfInterestPoint");
}

MStatus MFnCamera::copyViewFrom(const MDagPath&)
{
    TVX_API_CALL("MFnCamera::copyViewFrom");
    return notImplemented("MFnCamera::copyViewFrom");
}

MStatus MFnCamera::getFilmFrustum(double, MPointArray, bool) const
{
    TVX_API_CALL("MFnCamera::getFilmFrustum");
    return notImplemented("MFnCamera::getFilmFrustum");
}

MStatus MFnCamera::getFilmFrustum(double, double&, double&, double&, double&, bool) const
{
    TVX_API_CALL("MFnCamera::getFilmFrustum");
    return notImplemented("MFnCamera::getFilmFrustum");
}

MStatus MFnCamera::getFilmFrustum(double, MPoint[4], bool) const
{
    TVX_API_CALL("MFnCamera::getFilmFrustum");
    return notImplemented("MFnCamera::getFilmFrustum");
}

MStatus MFnCamera::getPortFieldOfView(int, int, double&, double&) const
{
    TVX_API_CALL("MFnCamera::getPortFieldOfView");
    return notImplemented("MFnCamera::getPortFieldOfView");
}

MStatus MFnCamera::getViewParameters(double, double&, double&, double&, double&, bool, bool, bool) const
{
    TVX_API_CALL("MFnCamera::getViewParameters");
    return notImplemented("MFnCamera::getViewParameters");
}

MStatus MFnCamera::getViewingFrustum(double, double&, double&, double&, double&, bool, bool, bool) const
{
    TVX_API_CALL("MFnCamera::getViewingFrustum");
    return notImplemented("MFnCamera::getViewingFrustum");
}

MStatus MFnCamera::getRenderingFrustum(double, double&, double&, double&, double&) const
{
    TVX_API_CALL("MFnCamera::getRenderingFrustum");
    return notImplemented("MFnCamera::getRenderingFrustum");
}

MFloatMatrix MFnCamera::projectionMatrix(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::projectionMatrix", ReturnStatus, MFloatMatrix());
    notImplemented("MFnCamera::projectionMatrix", ReturnStatus);
    return MFloatMatrix();
}

MFloatMatrix MFnCamera::projectionMatrix(MDGContext&, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::projectionMatrix", ReturnStatus, MFloatMatrix());
    notImplemented("MFnCamera::projectionMatrix", ReturnStatus);
    return MFloatMatrix();
}

MFloatMatrix MFnCamera::postProjectionMatrix(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::postProjectionMatrix", ReturnStatus, MFloatMatrix());
    notImplemented("MFnCamera::postProjectionMatrix", ReturnStatus);
    return MFloatMatrix();
}

MFloatMatrix MFnCamera::postProjectionMatrix(MDGContext&, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::postProjectionMatrix", ReturnStatus, MFloatMatrix());
    notImplemented("MFnCamera::postProjectionMatrix", ReturnStatus);
    return MFloatMatrix();
}

MStatus MFnCamera::getFilmApertureLimits(double&, double&) const
{
    TVX_API_CALL("MFnCamera::getFilmApertureLimits");
    return notImplemented("MFnCamera::getFilmApertureLimits");
}

MStatus MFnCamera::getAspectRatioLimits(double&, double&) const
{
    TVX_API_CALL("MFnCamera::getAspectRatioLimits");
    return notImplemented("MFnCamera::getAspectRatioLimits");
}

MStatus MFnCamera::getFocalLengthLimits(double&, double&) const
{
    TVX_API_CALL("MFnCamera::getFocalLengthLimits");
    return notImplemented("MFnCamera::getFocalLengthLimits");
}

MStatus MFnCamera::setVerticalLock(bool)
{
    TVX_API_CALL("MFnCamera::setVerticalLock");
    return notImplemented("MFnCamera::setVerticalLock");
}

bool MFnCamera::isVerticalLock(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::isVerticalLock", ReturnStatus, false);
    notImplemented("MFnCamera::isVerticalLock", ReturnStatus);
    return false;
}

bool MFnCamera::stereoHITEnabled(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::stereoHITEnabled", ReturnStatus, false);
    notImplemented("MFnCamera::stereoHITEnabled", ReturnStatus);
    return false;
}

MStatus MFnCamera::setStereoHITEnabled(bool)
{
    TVX_API_CALL("MFnCamera::setStereoHITEnabled");
    return notImplemented("MFnCamera::setStereoHITEnabled");
}

double MFnCamera::stereoHIT(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::stereoHIT", ReturnStatus, 0.0);
    notImplemented("MFnCamera::stereoHIT", ReturnStatus);
    return 0.0;
}

MStatus MFnCamera::setStereoHIT(double)
{
    TVX_API_CALL("MFnCamera::setStereoHIT");
    return notImplemented("MFnCamera::setStereoHIT");
}

MStatus MFnCamera::setStereo(bool)
{
    TVX_API_CALL("MFnCamera::setStereo");
    return notImplemented("MFnCamera::setStereo");
}

bool MFnCamera::isStereo(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::isStereo", ReturnStatus, false);
    notImplemented("MFnCamera::isStereo", ReturnStatus);
    return false;
}

MStatus MFnCamera::setParallelView(bool)
{
    TVX_API_CALL("MFnCamera::setParallelView");
    return notImplemented("MFnCamera::setParallelView");
}

bool MFnCamera::isParallelView(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::isParallelView", ReturnStatus, false);
    notImplemented("MFnCamera::isParallelView", ReturnStatus);
    return false;
}

MStatus MFnCamera::setEyeOffset(double)
{
    TVX_API_CALL("MFnCamera::setEyeOffset");
    return notImplemented("MFnCamera::setEyeOffset");
}

double MFnCamera::eyeOffset(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::eyeOffset", ReturnStatus, 0.0);
    notImplemented("MFnCamera::eyeOffset", ReturnStatus);
    return 0.0;
}

double MFnCamera::nearFocusDistance(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::nearFocusDistance", ReturnStatus, 0.0);
    notImplemented("MFnCamera::nearFocusDistance", ReturnStatus);
    return 0.0;
}

MStatus MFnCamera::setNearFocusDistance(double)
{
    TVX_API_CALL("MFnCamera::setNearFocusDistance");
    return notImplemented("MFnCamera::setNearFocusDistance");
}

double MFnCamera::farFocusDistance(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::farFocusDistance", ReturnStatus, 0.0);
    notImplemented("MFnCamera::farFocusDistance", ReturnStatus);
    return 0.0;
}

MStatus MFnCamera::setFarFocusDistance(double)
{
    TVX_API_CALL("MFnCamera::setFarFocusDistance");
    return notImplemented("MFnCamera::setFarFocusDistance");
}

MStatus MFnCamera::computeDepthOfField()
{
    TVX_API_CALL("MFnCamera::computeDepthOfField");
    return notImplemented("MFnCamera::computeDepthOfField");
}

MStatus MFnCamera::computeDepthOfField(double)
{
    TVX_API_CALL("MFnCamera::computeDepthOfField");
    return notImplemented("MFnCamera::computeDepthOfField");
}

bool MFnCamera::isMotionBlur(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnCamera::isMotionBlur", ReturnStatus, false);
    notImplemented("MFnCamera::isMotionBlur", ReturnStatus);
    return false;
}

MStatus MFnCamera::setMotionBlur(bool)
{
    TVX_API_CALL("MFnCamera::setMotionBlur");
    return notImplemented("MFnCamera::setMotionBlur");
}
