// MFnSpotLight: spot lights.
#include <maya/MFnSpotLight.h>

#include "support/attributeMembers.h"
#include "support/shapeSet.h"

#include <array>

namespace {

using namespace tvxhost::api;

constexpr std::array<const char*, 4> kDoors = {"leftBarnDoor", "rightBarnDoor", "topBarnDoor",
                                               "bottomBarnDoor"};
constexpr std::array<const char*, 3> kStarts = {"startDistance1", "startDistance2", "startDistance3"};
constexpr std::array<const char*, 3> kEnds = {"endDistance1", "endDistance2", "endDistance3"};

/// Empty for an enumerator that is none; then no attribute has that name.
template <std::size_t kCount>
const char* nameAt(const std::array<const char*, kCount>& names, int index)
{
    return index >= 0 && static_cast<std::size_t>(index) < kCount ? names[static_cast<std::size_t>(index)]
                                                                  : "";
}

} // namespace

TVX_SHAPE_SET(MFnSpotLight, MFn::kSpotLight)
TVX_LIGHT_CREATION(MFnSpotLight, "spotLight")

TVX_NUMBER_MEMBER(MFnSpotLight, double, coneAngle, setConeAngle, const double&, "coneAngle")
TVX_NUMBER_MEMBER(MFnSpotLight, double, penumbraAngle, setPenumbraAngle, const double&, "penumbraAngle")
TVX_NUMBER_MEMBER(MFnSpotLight, double, dropOff, setDropOff, const double&, "dropoff")
TVX_NUMBER_MEMBER(MFnSpotLight, bool, barnDoors, setBarnDoors, const bool&, "barnDoors")
TVX_NUMBER_MEMBER(MFnSpotLight, bool, useDecayRegions, setUseDecayRegions, const bool&, "useDecayRegions")

double MFnSpotLight::barnDoorAngle(MBarnDoor which_door, MStatus* ReturnStatus) const
{
    return readMember(*this, "MFnSpotLight::barnDoorAngle", nameAt(kDoors, which_door), ReturnStatus);
}

MStatus MFnSpotLight::setBarnDoorAngle(MBarnDoor which_door, const double& barn_door_angle)
{
    return writeMember(*this, "MFnSpotLight::setBarnDoorAngle", nameAt(kDoors, which_door), barn_door_angle);
}

float MFnSpotLight::startDistance(MDecayRegion which_region, MStatus* ReturnStatus) const
{
    return static_cast<float>(
        readMember(*this, "MFnSpotLight::startDistance", nameAt(kStarts, which_region), ReturnStatus));
}

MStatus MFnSpotLight::setStartDistance(MDecayRegion which_region, const float& start_distance)
{
    return writeMember(*this, "MFnSpotLight::setStartDistance", nameAt(kStarts, which_region),
                       static_cast<double>(start_distance));
}

float MFnSpotLight::endDistance(MDecayRegion which_region, MStatus* ReturnStatus) const
{
    return static_cast<float>(
        readMember(*this, "MFnSpotLight::endDistance", nameAt(kEnds, which_region), ReturnStatus));
}

MStatus MFnSpotLight::setEndDistance(MDecayRegion which_region, const float& end_distance)
{
    return writeMember(*this, "MFnSpotLight::setEndDistance", nameAt(kEnds, which_region),
                       static_cast<double>(end_distance));
}
