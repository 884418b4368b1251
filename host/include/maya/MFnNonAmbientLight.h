// MFnNonAmbientLight: lights that come from somewhere.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnLight.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MDagPath;

/// Function set for lights that come from somewhere. An attribute that the attached light does not have fails
/// with kInvalidParameter.
class OPENMAYA_EXPORT MFnNonAmbientLight : public MFnLight
{
public:
    MFn::Type type() const override;
    ~MFnNonAmbientLight() override;

    /// Attached to nothing, to a light, or to one instance of it.
    MFnNonAmbientLight();
    MFnNonAmbientLight(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnNonAmbientLight(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnNonAmbientLight(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);

    /// How the light decays with distance: 0 not, 1 linear, 2 quadratic, 3 cubic.
    short decayRate(MStatus* ReturnStatus = nullptr) const;
    MStatus setDecayRate(const short& decay_rate);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
