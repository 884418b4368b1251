// MFnLightDataAttribute: what a light says of itself to shaders.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnAttribute.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

/// Function set for attributes that carry the data of a light: direction, intensity, whether it is ambient,
/// diffuse, specular, the shadow's part, the intensity before it, and a pointer of the light's own.
class OPENMAYA_EXPORT MFnLightDataAttribute : public MFnAttribute
{
public:
    MFn::Type type() const override;
    ~MFnLightDataAttribute() override;

    /// Attached to nothing, or to a light data attribute.
    MFnLightDataAttribute() {}
    MFnLightDataAttribute(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    MFnLightDataAttribute(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    /// Makes an attribute of these children (numbers: three, three, one each) and attaches to it;
    /// kInvalidParameter when one of them is no attribute or belongs to something already.
    MObject create(const MString& fullName, const MString& briefName, const MObject& direction,
                   const MObject& intensity, const MObject& ambient, const MObject& diffuse,
                   const MObject& specular, const MObject& shadowFraciton, const MObject& preShadowIntensity,
                   const MObject& blindData, MStatus* ReturnStatus = nullptr);

    /// The defaults of the children.
    MStatus getDefault(float& defDirectionX, float& defDirectionY, float& defDirectionZ, float& defIntensityR,
                       float& defIntensityG, float& defIntensityB, bool& defAmbient, bool& defDiffuse,
                       bool& defSpecular, float& defShadowFraction, float& defPreShadowIntensity,
                       void*& defBlindData);
    MStatus setDefault(float defDirectionX, float defDirectionY, float defDirectionZ, float defIntensityR,
                       float defIntensityG, float defIntensityB, bool defAmbient, bool defDiffuse,
                       bool defSpecular, float defShadowFraction, float defPreShadowIntensity,
                       void* defBlindData);

    /// A child, 0 to 7 in the order above.
    MObject child(unsigned int index, MStatus* returnStatus);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
