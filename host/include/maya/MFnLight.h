// MFnLight: lights.
#pragma once

#include <maya/MColor.h>
#include <maya/MFloatVector.h>
#include <maya/MFn.h>
#include <maya/MFnDagNode.h>
#include <maya/MObject.h>
#include <maya/MSpace.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MDagPath;

/// Function set for lights. An attribute that the attached light does not have fails with kInvalidParameter.
class OPENMAYA_EXPORT MFnLight : public MFnDagNode
{
public:
    MFn::Type type() const override;
    ~MFnLight() override;

    /// Attached to nothing, to a light, or to one instance of it.
    MFnLight();
    MFnLight(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnLight(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnLight(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);

    /// The colour and the brightness; their product.
    MColor color(MStatus* ReturnStatus = nullptr) const;
    MStatus setColor(const MColor& col);
    float intensity(MStatus* ReturnStatus = nullptr) const;
    MStatus setIntensity(const float& intens);
    MColor lightIntensity(MStatus* ReturnStatus = nullptr) const;

    /// Shadows by ray tracing, their colour, samples and depth.
    bool useRayTraceShadows(MStatus* ReturnStatus = nullptr) const;
    MStatus setUseRayTraceShadows(const bool& useRayTraceShadows);
    MColor shadowColor(MStatus* ReturnStatus = nullptr) const;
    MStatus setShadowColor(const MColor& shadow_color);
    short numShadowSamples(MStatus* ReturnStatus = nullptr) const;
    MStatus setNumShadowSamples(const short& num_shadow_samples);
    short rayDepthLimit(MStatus* ReturnStatus = nullptr) const;
    MStatus setRayDepthLimit(const short& rayDepthLimit);

    /// How far from the light its centre of interest is.
    double centerOfIllumination(MStatus* ReturnStatus = nullptr) const;
    MStatus setCenterOfIllumination(const double& dist);

    /// Optical effects: kNotImplemented.
    MColor opticalFXvisibility(MStatus* ReturnStatus = nullptr) const;
    MStatus setOpticalFXvisibility(const MColor& visibility);

    /// Where an instance (or the first) shines to: its negative z axis, of length 1. kWorld and kObject.
    MFloatVector lightDirection(int instance, MSpace::Space space = MSpace::kWorld,
                                MStatus* ReturnStatus = nullptr) const;
    MFloatVector lightDirection(MStatus* ReturnStatus = nullptr) const;

    /// What the light adds to.
    bool lightAmbient(MStatus* ReturnStatus = nullptr) const;
    bool lightDiffuse(MStatus* ReturnStatus = nullptr) const;
    bool lightSpecular(MStatus* ReturnStatus = nullptr) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
