// MFnSpotLight: spot lights.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnNonExtendedLight.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MDagPath;

/// Function set for spot lights. An attribute that the attached light does not have fails with
/// kInvalidParameter.
class OPENMAYA_EXPORT MFnSpotLight : public MFnNonExtendedLight
{
public:
    /// The doors.
    enum MBarnDoor
    {
        kLeft = 0,
        kRight = 1,
        kTop = 2,
        kBottom = 3,
    };

    /// The regions of distance.
    enum MDecayRegion
    {
        kFirst = 0,
        kSecond = 1,
        kThird = 2,
    };

    MFn::Type type() const override;
    ~MFnSpotLight() override;

    /// Attached to nothing, to a light, or to one instance of it.
    MFnSpotLight();
    MFnSpotLight(MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnSpotLight(const MDagPath& object, MStatus* ret TVX_OPTIONAL_STATUS);
    MFnSpotLight(const MObject& object, MStatus* ret TVX_OPTIONAL_STATUS);

    /// Makes a light and attaches to it. Without a parent a transform is made above it and is the result;
    /// with one the light comes below it, or with `wantTransform` below a transform of its own, which then is
    /// the result. The host has no windows to show it in.
    MObject create(bool UIvisible = true, MStatus* ReturnStatus = nullptr);
    MObject create(const MObject& parent, bool UIvisible = true, bool wantTransform = false,
                   MStatus* ReturnStatus = nullptr);
    MObject create(const MObject& parent, bool UIvisible = true, MStatus* ReturnStatus = nullptr);

    /// The cone, in radians, and how it gets darker to its edge.
    double coneAngle(MStatus* ReturnStatus = nullptr) const;
    MStatus setConeAngle(const double& coneAngle);
    double penumbraAngle(MStatus* ReturnStatus = nullptr) const;
    MStatus setPenumbraAngle(const double& penumbraAngle);
    double dropOff(MStatus* ReturnStatus = nullptr) const;
    MStatus setDropOff(const double& dropOff);

    /// The doors that cut the cone, and their angles in radians.
    bool barnDoors(MStatus* ReturnStatus = nullptr) const;
    MStatus setBarnDoors(const bool& barnDoors);
    double barnDoorAngle(MBarnDoor which_door, MStatus* ReturnStatus = nullptr) const;
    MStatus setBarnDoorAngle(MBarnDoor which_door, const double& barn_door_angle);

    /// The regions of distance that are lit.
    bool useDecayRegions(MStatus* ReturnStatus = nullptr) const;
    MStatus setUseDecayRegions(const bool& use_decay_regions);
    float startDistance(MDecayRegion which_region, MStatus* ReturnStatus = nullptr) const;
    MStatus setStartDistance(MDecayRegion which_region, const float& start_distance);
    float endDistance(MDecayRegion which_region, MStatus* ReturnStatus = nullptr) const;
    MStatus setEndDistance(MDecayRegion which_region, const float& end_distance);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
