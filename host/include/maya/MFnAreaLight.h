// MFnAreaLight: area lights.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnNonExtendedLight.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MDagPath;

/// Function set for area lights. An attribute that the attached light does not have fails with
/// kInvalidParameter.
class OPENMAYA_EXPORT MFnAreaLight : public MFnNonExtendedLight
{
public:
    MFn::Type type() const override;
    ~MFnAreaLight() override;

    /// Attached to nothing, to a light, or to one instance of it.
    MFnAreaLight();
    MFnAreaLight(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnAreaLight(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnAreaLight(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);

    /// Makes a light and attaches to it. Without a parent a transform is made above it and is the result;
    /// with one the light comes below it, or with `wantTransform` below a transform of its own, which then is
    /// the result. The host has no windows to show it in.
    MObject create(bool UIvisible = true, MStatus* ReturnStatus = nullptr);
    MObject create(const MObject& parent, bool UIvisible = true, bool wantTransform = false,
                   MStatus* ReturnStatus = nullptr);
    MObject create(const MObject& parent, bool UIvisible = true, MStatus* ReturnStatus = nullptr);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
