// MFnVolumeLight: volume lights.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnPointLight.h>
#include <maya/MObject.h>
#include <maya/MRampAttribute.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MDagPath;

/// Function set for volume lights. An attribute that the attached light does not have fails with
/// kInvalidParameter.
class OPENMAYA_EXPORT MFnVolumeLight : public MFnPointLight
{
public:
    /// The shape of the volume.
    enum MLightShape
    {
        kBoxVolume = 0,
        kSphereVolume = 1,
        kCylinderVolume = 2,
        kConeVolume = 3,
    };

    /// Which way the light travels in the volume.
    enum MLightDirection
    {
        kOutward = 0,
        kInward = 1,
        kDownAxis = 2,
    };

    MFn::Type type() const override;
    ~MFnVolumeLight() override;

    /// Attached to nothing, to a light, or to one instance of it.
    MFnVolumeLight();
    MFnVolumeLight(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnVolumeLight(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnVolumeLight(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);

    /// Makes a light and attaches to it. Without a parent a transform is made above it and is the result;
    /// with one the light comes below it, or with `wantTransform` below a transform of its own, which then is
    /// the result. The host has no windows to show it in.
    MObject create(bool UIvisible = true, MStatus* ReturnStatus = nullptr);
    MObject create(const MObject& parent, bool UIvisible = true, bool wantTransform = false,
                   MStatus* ReturnStatus = nullptr);
    MObject create(const MObject& parent, bool UIvisible = true, MStatus* ReturnStatus = nullptr);

    MLightShape lightShape(MStatus* ReturnStatus = nullptr) const;
    MStatus setLightShape(const MLightShape& light_shape);

    MLightDirection volumeLightDirection(MStatus* ReturnStatus = nullptr) const;
    MStatus setVolumeLightDirection(const MLightDirection& volume_light_direction);

    /// The slice about the y axis that gives light, in degrees: 360 is all of it.
    float arc(MStatus* ReturnStatus = nullptr) const;
    MStatus setArc(const float& arc);

    /// The radius of a cone at its end.
    float coneEndRadius(MStatus* ReturnStatus = nullptr) const;
    MStatus setConeEndRadius(const float& cone_end_radius);

    /// Whether the light comes from all sides.
    bool emitAmbient(MStatus* ReturnStatus = nullptr) const;
    MStatus setEmitAmbient(const bool& emit_ambient);

    /// The colours from the middle to the border, and how the light fades across a cone or cylinder.
    MRampAttribute colorRamp(MStatus* ReturnStatus = nullptr) const;
    MRampAttribute penumbraRamp(MStatus* ReturnStatus = nullptr) const;

    /// The angle of soft shadows.
    float shadowAngle(MStatus* ReturnStatus = nullptr) const;
    MStatus setShadowAngle(const float& shadow_angle);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
