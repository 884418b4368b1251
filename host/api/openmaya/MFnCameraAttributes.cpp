// MFnCamera: the members that are one attribute each.
#include <maya/MFnCamera.h>

#include "support/attributeMembers.h"

// Members that are called as their attributes.
#define TVX_CAMERA_NUMBER(getter, setter)                                                                    \
    TVX_NUMBER_MEMBER(MFnCamera, double, getter, setter, double, #getter)
#define TVX_CAMERA_SWITCH(getter, setter) TVX_NUMBER_MEMBER(MFnCamera, bool, getter, setter, bool, #getter)

TVX_CAMERA_NUMBER(horizontalFilmAperture, setHorizontalFilmAperture)
TVX_CAMERA_NUMBER(verticalFilmAperture, setVerticalFilmAperture)
TVX_CAMERA_NUMBER(horizontalFilmOffset, setHorizontalFilmOffset)
TVX_CAMERA_NUMBER(verticalFilmOffset, setVerticalFilmOffset)
TVX_CAMERA_SWITCH(shakeEnabled, setShakeEnabled)
TVX_CAMERA_NUMBER(horizontalShake, setHorizontalShake)
TVX_CAMERA_NUMBER(verticalShake, setVerticalShake)
TVX_CAMERA_SWITCH(shakeOverscanEnabled, setShakeOverscanEnabled)
TVX_CAMERA_NUMBER(shakeOverscan, setShakeOverscan)
TVX_CAMERA_SWITCH(panZoomEnabled, setPanZoomEnabled)
TVX_CAMERA_SWITCH(renderPanZoom, setRenderPanZoom)
TVX_CAMERA_NUMBER(horizontalPan, setHorizontalPan)
TVX_CAMERA_NUMBER(verticalPan, setVerticalPan)
TVX_CAMERA_NUMBER(zoom, setZoom)
TVX_CAMERA_NUMBER(filmFitOffset, setFilmFitOffset)
TVX_CAMERA_NUMBER(overscan, setOverscan)
TVX_CAMERA_NUMBER(horizontalRollPivot, setHorizontalRollPivot)
TVX_CAMERA_NUMBER(verticalRollPivot, setVerticalRollPivot)
TVX_CAMERA_NUMBER(filmRollValue, setFilmRollValue)
TVX_CAMERA_NUMBER(preScale, setPreScale)
TVX_CAMERA_NUMBER(postScale, setPostScale)
TVX_CAMERA_NUMBER(filmTranslateH, setFilmTranslateH)
TVX_CAMERA_NUMBER(filmTranslateV, setFilmTranslateV)
TVX_CAMERA_NUMBER(focalLength, setFocalLength)
TVX_CAMERA_NUMBER(lensSqueezeRatio, setLensSqueezeRatio)
TVX_CAMERA_NUMBER(cameraScale, setCameraScale)
TVX_CAMERA_NUMBER(fStop, setFStop)
TVX_CAMERA_NUMBER(focusDistance, setFocusDistance)
TVX_CAMERA_NUMBER(shutterAngle, setShutterAngle)
TVX_CAMERA_NUMBER(centerOfInterest, setCenterOfInterest)

#undef TVX_CAMERA_SWITCH
#undef TVX_CAMERA_NUMBER

TVX_NUMBER_MEMBER(MFnCamera, bool, isDisplayGateMask, setDisplayGateMask, bool, "displayGateMask")
TVX_NUMBER_MEMBER(MFnCamera, bool, isDisplayFilmGate, setDisplayFilmGate, bool, "displayFilmGate")
TVX_NUMBER_MEMBER(MFnCamera, double, nearClippingPlane, setNearClippingPlane, double, "nearClipPlane")
TVX_NUMBER_MEMBER(MFnCamera, double, farClippingPlane, setFarClippingPlane, double, "farClipPlane")
TVX_NUMBER_MEMBER(MFnCamera, bool, isDepthOfField, setDepthOfField, bool, "depthOfField")
TVX_NUMBER_MEMBER(MFnCamera, double, orthoWidth, setOrthoWidth, double, "orthographicWidth")
TVX_NUMBER_MEMBER(MFnCamera, bool, usePivotAsLocalSpace, setUsePivotAsLocalSpace, const bool,
                  "usePivotAsLocalSpace")
TVX_ENUM_MEMBER(MFnCamera, MFnCamera::FilmFit, filmFit, setFilmFit, FilmFit, "filmFit")
TVX_ENUM_MEMBER(MFnCamera, MFnCamera::RollOrder, filmRollOrder, setFilmRollOrder, RollOrder, "filmRollOrder")

bool MFnCamera::isOrtho(MStatus* ReturnStatus) const
{
    return tvxhost::api::readMember(*this, "MFnCamera::isOrtho", "orthographic", ReturnStatus) != 0.0;
}
