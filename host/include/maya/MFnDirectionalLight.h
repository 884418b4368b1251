// MFnDirectionalLight: directional lights.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnNonExtendedLight.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MDagPath;

/// Function set for directional lights. An attribute that the attached light does not have fails with
/// kInvalidParameter.
class OPENMAYA_EXPORT MFnDirectionalLight : public MFnNonExtendedLight
{
public:
    MFn::Type type() const override;
    ~MFnDirectionalLight() override;

    /// Attached to nothing, to a light, or to one instance of it.
    MFnDirectionalLight();
    MFnDirectionalLight(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnDirectionalLight(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnDirectionalLight(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);

    /// Makes a light and attaches to it. Without a parent a transform is made above it and is the result;
    /// with one the light comes below it, or with `wantTransform` below a transform of its own, which then is
    /// the result. The host has no windows to show it in.
    MObject create(bool UIvisible = true, MStatus* ReturnStatus = nullptr);
    MObject create(const MObject& parent, bool UIvisible = true, bool wantTransform = false,
                   MStatus* ReturnStatus = nullptr);
    MObject create(const MObject& parent, bool UIvisible = true, MStatus* ReturnStatus = nullptr);

    /// The angle over which shadows get soft, in degrees.
    float shadowAngle(MStatus* ReturnStatus = nullptr) const;
    MStatus setShadowAngle(const float& shadow_angle);

    /// Whether what stands behind the light is dark.
    bool useLightPosition(MStatus* ReturnStatus = nullptr) const;
    MStatus setUseLightPosition(const bool use_light_position);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
