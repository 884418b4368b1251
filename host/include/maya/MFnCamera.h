// MFnCamera: cameras.
#pragma once

#include <maya/MFloatMatrix.h>
#include <maya/MFn.h>
#include <maya/MFnDagNode.h>
#include <maya/MObject.h>
#include <maya/MPoint.h>
#include <maya/MSpace.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/MVector.h>

class MDGContext;
class MDagPath;
class MPointArray;

/// Function set for cameras. Lengths are centimetres, angles radians, film apertures and offsets inches, the
/// focal length millimetres. kWorld needs a set that was built on a path, or takes the first one. What the
/// host does not do answers kNotImplemented.
class OPENMAYA_EXPORT MFnCamera : public MFnDagNode
{
public:
    /// How the film and the picture fit each other.
    enum FilmFit
    {
        kFillFilmFit = 0,
        kHorizontalFilmFit = 1,
        kVerticalFilmFit = 2,
        kOverscanFilmFit = 3,
        kInvalid = 4,
    };

    /// Whether the film is turned before or after it is moved.
    enum RollOrder
    {
        kRotateTranslate = 0,
        kTranslateRotate = 1,
    };

    MFn::Type type() const override;
    ~MFnCamera() override;

    /// Attached to nothing, to a camera, or to one instance of it.
    MFnCamera();
    MFnCamera(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnCamera(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnCamera(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);

    /// Makes a camera and attaches to it; below a new transform, the result, or below the parent.
    MObject create(MStatus* ReturnStatus = nullptr);
    MObject create(MObject& parent, MStatus* ReturnStatus = nullptr);

    /// Where the camera is and what it looks along: its negative z axis, its y axis, its x axis.
    MPoint eyePoint(MSpace::Space space = MSpace::kObject, MStatus* ReturnStatus = nullptr) const;
    MVector viewDirection(MSpace::Space space = MSpace::kObject, MStatus* ReturnStatus = nullptr) const;
    MVector upDirection(MSpace::Space space = MSpace::kObject, MStatus* ReturnStatus = nullptr) const;
    MVector rightDirection(MSpace::Space space = MSpace::kObject, MStatus* ReturnStatus = nullptr) const;

    /// The point that the camera turns about, and its distance from the eye.
    MPoint centerOfInterestPoint(MSpace::Space space = MSpace::kObject,
                                 MStatus* ReturnStatus = nullptr) const;
    double centerOfInterest(MStatus* ReturnStatus = nullptr) const;
    MStatus setCenterOfInterest(double dist);

    /// Placing the camera by points: kNotImplemented.
    MStatus set(const MPoint& wsEyeLocation, const MVector& wsViewDirection, const MVector& wsUpDirection,
                double horizFieldOfView, double aspectRatio);
    MStatus setEyePoint(const MPoint& eyeLocation, MSpace::Space space = MSpace::kObject);
    MStatus setCenterOfInterestPoint(const MPoint& centerOfInterest, MSpace::Space space = MSpace::kObject);

    /// Whether another camera has the same lens; takes over its lens and place (kNotImplemented).
    bool hasSamePerspective(const MDagPath& otherCamera, MStatus* ReturnStatus = nullptr);
    MStatus copyViewFrom(const MDagPath& otherCamera);

    /// Volumes and matrices of what is seen: kNotImplemented.
    MStatus getFilmFrustum(double distance, MPointArray clipPlanes, bool applyPanZoom = false) const;
    MStatus getFilmFrustum(double distance, double& hSize, double& vSize, double& hOffset, double& vOffset,
                           bool applyPanZoom = false) const;
    MStatus getFilmFrustum(double distance, MPoint clipPlane[4], bool applyPanZoom = false) const;
    MStatus getPortFieldOfView(int width, int height, double& horizontalFOV, double& verticalFOV) const;
    MStatus getViewParameters(double windowAspect, double& apertureX, double& apertureY, double& offsetX,
                              double& offsetY, bool applyOverscan = false, bool applySqueeze = false,
                              bool applyPanZoom = false) const;
    MStatus getViewingFrustum(double windowAspect, double& left, double& right, double& bottom, double& top,
                              bool applyOverscan = false, bool applySqueeze = false,
                              bool applyPanZoom = false) const;
    MStatus getRenderingFrustum(double windowAspect, double& left, double& right, double& bottom,
                                double& top) const;
    MFloatMatrix projectionMatrix(MStatus* ReturnStatus = nullptr) const;
    MFloatMatrix projectionMatrix(MDGContext& context, MStatus* ReturnStatus = nullptr) const;
    MFloatMatrix postProjectionMatrix(MStatus* ReturnStatus = nullptr) const;
    MFloatMatrix postProjectionMatrix(MDGContext& context, MStatus* ReturnStatus = nullptr) const;

    /// The film; the aspect ratio is its width by its height, and setting it changes the width.
    double horizontalFilmAperture(MStatus* ReturnStatus = nullptr) const;
    MStatus setHorizontalFilmAperture(double hFilmAperture);
    double verticalFilmAperture(MStatus* ReturnStatus = nullptr) const;
    MStatus setVerticalFilmAperture(double vFilmAperture);
    double aspectRatio(MStatus* ReturnStatus = nullptr) const;
    MStatus setAspectRatio(double aspectRatio);

    /// Limits of the film and the lens, and the lock of the ratio: kNotImplemented.
    MStatus getFilmApertureLimits(double& min, double& max) const;
    MStatus getAspectRatioLimits(double& min, double& max) const;
    MStatus getFocalLengthLimits(double& min, double& max) const;
    MStatus setVerticalLock(bool lockFlag);
    bool isVerticalLock(MStatus* ReturnStatus = nullptr) const;

    /// The place of the film.
    double horizontalFilmOffset(MStatus* ReturnStatus = nullptr) const;
    MStatus setHorizontalFilmOffset(double hOffset);
    double verticalFilmOffset(MStatus* ReturnStatus = nullptr) const;
    MStatus setVerticalFilmOffset(double vOffset);

    /// Shaking.
    bool shakeEnabled(MStatus* ReturnStatus = nullptr) const;
    MStatus setShakeEnabled(bool enabled);
    double horizontalShake(MStatus* ReturnStatus = nullptr) const;
    MStatus setHorizontalShake(double hOffset);
    double verticalShake(MStatus* ReturnStatus = nullptr) const;
    MStatus setVerticalShake(double vOffset);
    bool shakeOverscanEnabled(MStatus* ReturnStatus = nullptr) const;
    MStatus setShakeOverscanEnabled(bool enabled);
    double shakeOverscan(MStatus* ReturnStatus = nullptr) const;
    MStatus setShakeOverscan(double vOffset);

    /// Panning and zooming in two dimensions.
    bool panZoomEnabled(MStatus* ReturnStatus = nullptr) const;
    MStatus setPanZoomEnabled(bool enabled);
    bool renderPanZoom(MStatus* ReturnStatus = nullptr) const;
    MStatus setRenderPanZoom(bool render);
    double horizontalPan(MStatus* ReturnStatus = nullptr) const;
    MStatus setHorizontalPan(double hPan);
    double verticalPan(MStatus* ReturnStatus = nullptr) const;
    MStatus setVerticalPan(double vPan);
    double zoom(MStatus* ReturnStatus = nullptr) const;
    MStatus setZoom(double zoom);

    /// Stereo: kNotImplemented.
    bool stereoHITEnabled(MStatus* ReturnStatus = nullptr) const;
    MStatus setStereoHITEnabled(bool enabled);
    double stereoHIT(MStatus* ReturnStatus = nullptr) const;
    MStatus setStereoHIT(double vOffset);
    MStatus setStereo(bool stereo);
    bool isStereo(MStatus* ReturnStatus = nullptr) const;
    MStatus setParallelView(bool parallelView);
    bool isParallelView(MStatus* ReturnStatus = nullptr) const;
    MStatus setEyeOffset(double eyeOffset);
    double eyeOffset(MStatus* ReturnStatus = nullptr) const;

    /// How film and picture fit.
    FilmFit filmFit(MStatus* ReturnStatus = nullptr) const;
    MStatus setFilmFit(FilmFit filmFit);
    double filmFitOffset(MStatus* ReturnStatus = nullptr) const;
    MStatus setFilmFitOffset(double filmFitOffset);
    double overscan(MStatus* ReturnStatus = nullptr) const;
    MStatus setOverscan(double overscan);

    /// Turning, moving and scaling the film.
    double horizontalRollPivot(MStatus* ReturnStatus = nullptr) const;
    MStatus setHorizontalRollPivot(double horizontalRollPivot);
    double verticalRollPivot(MStatus* ReturnStatus = nullptr) const;
    MStatus setVerticalRollPivot(double verticalRollPivot);
    double filmRollValue(MStatus* ReturnStatus = nullptr) const;
    MStatus setFilmRollValue(double filmRollValue);
    RollOrder filmRollOrder(MStatus* ReturnStatus = nullptr) const;
    MStatus setFilmRollOrder(RollOrder filmRollOrder);
    double preScale(MStatus* ReturnStatus = nullptr) const;
    MStatus setPreScale(double sf);
    double postScale(MStatus* ReturnStatus = nullptr) const;
    MStatus setPostScale(double sf);
    double filmTranslateH(MStatus* ReturnStatus = nullptr) const;
    MStatus setFilmTranslateH(double translate);
    double filmTranslateV(MStatus* ReturnStatus = nullptr) const;
    MStatus setFilmTranslateV(double translate);

    /// What views show of the film.
    bool isDisplayGateMask(MStatus* ReturnStatus = nullptr) const;
    MStatus setDisplayGateMask(bool displayGateMask);
    bool isDisplayFilmGate(MStatus* ReturnStatus = nullptr) const;
    MStatus setDisplayFilmGate(bool displayFilmGate);

    /// The lens. Setting a field of view changes the focal length.
    double horizontalFieldOfView(MStatus* ReturnStatus = nullptr) const;
    MStatus setHorizontalFieldOfView(double fov);
    double verticalFieldOfView(MStatus* ReturnStatus = nullptr) const;
    MStatus setVerticalFieldOfView(double fov);
    double focalLength(MStatus* ReturnStatus = nullptr) const;
    MStatus setFocalLength(double focalLength);
    double lensSqueezeRatio(MStatus* ReturnStatus = nullptr) const;
    MStatus setLensSqueezeRatio(double lensSqueezeRatio);
    double cameraScale(MStatus* ReturnStatus = nullptr) const;
    MStatus setCameraScale(double scale);

    /// The clipping planes; `clippingPlanes` says whether they are the user's.
    bool isClippingPlanes(MStatus* ReturnStatus = nullptr) const;
    MStatus setClippingPlanes(bool ClippingPlanes);
    double nearClippingPlane(MStatus* ReturnStatus = nullptr) const;
    MStatus setNearClippingPlane(double dNear);
    double farClippingPlane(MStatus* ReturnStatus = nullptr) const;
    MStatus setFarClippingPlane(double dFar);
    MStatus setNearFarClippingPlanes(double dNear, double dFar);

    /// Depth of field.
    bool isDepthOfField(MStatus* ReturnStatus = nullptr) const;
    MStatus setDepthOfField(bool depthOfField);
    double fStop(MStatus* ReturnStatus = nullptr) const;
    MStatus setFStop(double fStop);
    double focusDistance(MStatus* ReturnStatus = nullptr) const;
    MStatus setFocusDistance(double distance);

    /// The range that is in focus: kNotImplemented.
    double nearFocusDistance(MStatus* ReturnStatus = nullptr) const;
    MStatus setNearFocusDistance(double nearFocusDistance);
    double farFocusDistance(MStatus* ReturnStatus = nullptr) const;
    MStatus setFarFocusDistance(double farFocusDistance);
    MStatus computeDepthOfField();
    MStatus computeDepthOfField(double nearLimit);

    /// Motion blur.
    bool isMotionBlur(MStatus* ReturnStatus = nullptr) const;
    MStatus setMotionBlur(bool motionBlur);
    double shutterAngle(MStatus* ReturnStatus = nullptr) const;
    MStatus setShutterAngle(double shutterAngle);

    /// Orthographic views; `useDist` makes what is in that distance keep its size.
    bool isOrtho(MStatus* ReturnStatus = nullptr) const;
    MStatus setIsOrtho(bool orthoState);
    MStatus setIsOrtho(bool orthoState, double useDist);
    double orthoWidth(MStatus* ReturnStatus = nullptr) const;
    MStatus setOrthoWidth(double orthoWidth);

    /// The point that tumbling turns about.
    MPoint tumblePivot(MStatus* ReturnStatus = nullptr) const;
    MStatus setTumblePivot(const MPoint& point);
    bool usePivotAsLocalSpace(MStatus* ReturnStatus = nullptr) const;
    MStatus setUsePivotAsLocalSpace(const bool how);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
