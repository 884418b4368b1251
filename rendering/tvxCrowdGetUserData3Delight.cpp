// The 3Delight user-data node.
#include "rendering/tvxCrowdGetUserData3Delight.h"

#include "rendering/tvxNodeAttributes.h"

namespace tarvox::crowd {

const MTypeId CrowdGetUserData3Delight::id(0x1168E8);
const MString CrowdGetUserData3Delight::classification("utility/general");

MStatus CrowdGetUserData3Delight::initialize()
{
    const NodeAttributes make("tarvox::crowd::CrowdGetUserData3Delight::initialize");
    TVX_REQUIRE(make.string(shadingParameters, "shadingParameters", "sp", kInput));
    TVX_REQUIRE(make.string(shadingCode, "shadingCode", "sc", kInput));
    return MStatus::kSuccess;
}

} // namespace tarvox::crowd
