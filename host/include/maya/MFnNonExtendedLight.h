// MFnNonExtendedLight: lights without an extent.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnNonAmbientLight.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MDagPath;

/// Function set for lights without an extent. An attribute that the attached light does not have fails with
/// kInvalidParameter.
class OPENMAYA_EXPORT MFnNonExtendedLight : public MFnNonAmbientLight
{
public:
    MFn::Type type() const override;
    ~MFnNonExtendedLight() override;

    /// Attached to nothing, to a light, or to one instance of it.
    MFnNonExtendedLight();
    MFnNonExtendedLight(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnNonExtendedLight(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnNonExtendedLight(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);

    /// The radius that soft shadows come from.
    float shadowRadius(MStatus* ReturnStatus = nullptr) const;
    MStatus setShadowRadius(const float& shadow_radius);

    /// Whether traced shadows are soft.
    bool castSoftShadows(MStatus* ReturnStatus = nullptr) const;
    MStatus setCastSoftShadows(const bool& cast_soft_shadows);

    /// Shadows by depth maps.
    bool useDepthMapShadows(MStatus* ReturnStatus = nullptr) const;
    MStatus setUseDepthMapShadows(const bool& use_depth_map);
    short depthMapFilterSize(MStatus* ReturnStatus) const;
    MStatus setDepthMapFilterSize(const short& depth_map_filter_size);
    short depthMapResolution(MStatus* ReturnStatus) const;
    MStatus setDepthMapResolution(const short& depth_map_resolution);
    float depthMapBias(MStatus* ReturnStatus) const;
    MStatus setDepthMapBias(const float& depth_map_bias);
    bool useDepthMapAutoFocus(MStatus* ReturnStatus = nullptr) const;
    MStatus setUseDepthMapAutoFocus(const bool use_depth_map_auto_focus);
    float depthMapWidthFocus(MStatus* ReturnStatus) const;
    MStatus setDepthMapWidthFocus(const float depth_map_width_focus);
    float depthMapFocus(MStatus* ReturnStatus) const;
    MStatus setDepthMapFocus(const float depth_map_focus);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
