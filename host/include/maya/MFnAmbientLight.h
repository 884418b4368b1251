// MFnAmbientLight: ambient lights.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnLight.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MDagPath;

/// Function set for ambient lights. An attribute that the attached light does not have fails with
/// kInvalidParameter.
class OPENMAYA_EXPORT MFnAmbientLight : public MFnLight
{
public:
    MFn::Type type() const override;
    ~MFnAmbientLight() override;

    /// Attached to nothing, to a light, or to one instance of it.
    MFnAmbientLight();
    MFnAmbientLight(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnAmbientLight(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnAmbientLight(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);

    /// Makes a light and attaches to it. Without a parent a transform is made above it and is the result;
    /// with one the light comes below it, or with `wantTransform` below a transform of its own, which then is
    /// the result. The host has no windows to show it in.
    MObject create(bool UIvisible = true, MStatus* ReturnStatus = nullptr);
    MObject create(const MObject& parent, bool UIvisible = true, bool wantTransform = false,
                   MStatus* ReturnStatus = nullptr);
    MObject create(const MObject& parent, bool UIvisible = true, MStatus* ReturnStatus = nullptr);

    /// How much comes from all sides: 0 all, 1 nothing.
    float ambientShade(MStatus* ReturnStatus = nullptr) const;
    MStatus setAmbientShade(const float& ambient_shade);

    /// Whether traced shadows are soft, and the radius that softens them.
    bool castSoftShadows(MStatus* ReturnStatus = nullptr) const;
    MStatus setCastSoftShadows(const bool& cast_soft_shadows);
    float shadowRadius(MStatus* ReturnStatus = nullptr) const;
    MStatus setShadowRadius(const float& shadow_radius);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
