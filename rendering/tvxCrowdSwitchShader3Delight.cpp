// The 3Delight shader switch node.
#include "rendering/tvxCrowdSwitchShader3Delight.h"

#include "rendering/tvxNodeAttributes.h"

namespace tarvox::crowd {

const MTypeId CrowdSwitchShader3Delight::id(0x1168E9);
const MString CrowdSwitchShader3Delight::classification("utility/general");

MStatus CrowdSwitchShader3Delight::initialize()
{
    const NodeAttributes make("tarvox::crowd::CrowdSwitchShader3Delight::initialize");
    TVX_REQUIRE(make.string(shadingParameters, "shadingParameters", "sp", kInput));
    TVX_REQUIRE(make.string(shadingCode, "shadingCode", "sc", kInput));
    return MStatus::kSuccess;
}

} // namespace tarvox::crowd
