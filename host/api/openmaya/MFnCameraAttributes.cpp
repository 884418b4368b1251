// MFnCamera: the members that are one attribute each.
#include <maya/MFnCamera.h>

#include "support/attributeMembers.h"

TVX_NUMBER_MEMBER(MFnCamera, double, horizontalFilmAperture, setHorizontalFilmAperture, double,
                  "horizontalFilmAperture")
TVX_NUMBER_MEMBER(MFnCamera, double, verticalFilmAperture, setVerticalFilmAperture, double,
                  "verticalFilmAperture")
TVX_NUMBER_MEMBER(MFnCamera, double, horizontalFilmOffset, setHorizontalFilmOffset, double,
                  "horizontalFilmOffset")
TVX_NUMBER_MEMBER(MFnCamera, double, verticalFilmOffset, setVerticalFilmOffset, double, "verticalFilmOffset")
TVX_NUMBER_MEMBER(MFnCamera, bool, shakeEnabled, setShakeEnabled, bool, "shakeEnabled")
TVX_NUMBER_MEMBER(MFnCamera, double, horizontalShake, setHorizontalShake, double, "horizontalShake")
TVX_NUMBER_MEMBER(MFnCamera, double, verticalShake, setVerticalShake, double, "verticalShake")
TVX_NUMBER_MEMBER(MFnCamera, bool, shakeOverscanEnabled, setShakeOverscanEnabled, bool,
                  "shakeOverscanEnabled")
TVX_NUMBER_MEMBER(MFnCamera, double, shakeOverscan, setShakeOverscan, double, "shakeOverscan")
TVX_NUMBER_MEMBER(MFnCamera, bool, panZoomEnabled, setPanZoomEnabled, bool, "panZoomEnabled")
TVX_NUMBER_MEMBER(MFnCamera, bool, renderPanZoom, setRenderPanZoom, bool, "renderPanZoom")
TVX_NUMBER_MEMBER(MFnCamera, double, horizontalPan, setHorizontalPan, double, "horizontalPan")
TVX_NUMBER_MEMBER(MFnCamera, double, verticalPan, setVerticalPan, double, "verticalPan")
TVX_NUMBER_MEMBER(MFnCamera, double, zoom, setZoom, double, "zoom")
TVX_NUMBER_MEMBER(MFnCamera, double, filmFitOffset, setFilmFitOffset, double, "filmFitOffset")
TVX_NUMBER_MEMBER(MFnCamera, double, overscan, setOverscan, double, "overscan")
TVX_NUMBER_MEMBER(MFnCamera, double, horizontalRollPivot, setHorizontalRollPivot, double,
                  "horizontalRollPivot")
TVX_NUMBER_MEMBER(MFnCamera, double, verticalRollPivot, setVerticalRollPivot, double, "verticalRollPivot")
TVX_NUMBER_MEMBER(MFnCamera, double, filmRollValue, setFilmRollValue, double, "filmRollValue")
TVX_NUMBER_MEMBER(MFnCamera, double, preScale, setPreScale, double, "preScale")
TVX_NUMBER_MEMBER(MFnCamera, double, postScale, setPostScale, double, "postScale")
TVX_NUMBER_MEMBER(MFnCamera, double, filmTranslateH, setFilmTranslateH, double, "filmTranslateH")
TVX_NUMBER_MEMBER(MFnCamera, double, filmTranslateV, setFilmTranslateV, double, "filmTranslateV")
TVX_NUMBER_MEMBER(MFnCamera, bool, isDisplayGateMask, setDisplayGateMask, bool, "displayGateMask")
TVX_NUMBER_MEMBER(MFnCamera, bool, isDisplayFilmGate, setDisplayFilmGate, bool, "displayFilmGate")
TVX_NUMBER_MEMBER(MFnCamera, double, focalLength, setFocalLength, double, "focalLength")
TVX_NUMBER_MEMBER(MFnCamera, double, lensSqueezeRatio, setLensSqueezeRatio, double, "lensSqueezeRatio")
TVX_NUMBER_MEMBER(MFnCamera, double, cameraScale, setCameraScale, double, "cameraScale")
TVX_NUMBER_MEMBER(MFnCamera, double, nearClippingPlane, setNearClippingPlane, double, "nearClipPlane")
TVX_NUMBER_MEMBER(MFnCamera, double, farClippingPlane, setFarClippingPlane, double, "farClipPlane")
TVX_NUMBER_MEMBER(MFnCamera, bool, isDepthOfField, setDepthOfField, bool, "depthOfField")
TVX_NUMBER_MEMBER(MFnCamera, double, fStop, setFStop, double, "fStop")
TVX_NUMBER_MEMBER(MFnCamera, double, focusDistance, setFocusDistance, double, "focusDistance")
TVX_NUMBER_MEMBER(MFnCamera, double, shutterAngle, setShutterAngle, double, "shutterAngle")
TVX_NUMBER_MEMBER(MFnCamera, double, centerOfInterest, setCenterOfInterest, double, "centerOfInterest")
TVX_NUMBER_MEMBER(MFnCamera, double, orthoWidth, setOrthoWidth, double, "orthographicWidth")
TVX_NUMBER_MEMBER(MFnCamera, bool, usePivotAsLocalSpace, setUsePivotAsLocalSpace, const bool,
                  "usePivotAsLocalSpace")
TVX_ENUM_MEMBER(MFnCamera, MFnCamera::FilmFit, filmFit, setFilmFit, "filmFit")
TVX_ENUM_MEMBER(MFnCamera, MFnCamera::RollOrder, filmRollOrder, setFilmRollOrder, "filmRollOrder")

bool MFnCamera::isOrtho(MStatus* ReturnStatus) const
{
    return tvxhost::api::readMember(*this, "MFnCamera::isOrtho", "orthographic", ReturnStatus) != 0.0;
}
