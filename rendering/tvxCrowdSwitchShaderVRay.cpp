// The V-Ray shader switch node.
#include "rendering/tvxCrowdSwitchShaderVRay.h"

#include "rendering/tvxNodeAttributes.h"
#include "rendering/tvxShadingOutput.h"

#include <new>
#include <string>

namespace tarvox::crowd {

const MTypeId CrowdSwitchShaderVRay::id(0x1168E1);
const MString CrowdSwitchShaderVRay::classification("utility/general:swatch/VRayMtlSwatchGen");

MObject CrowdSwitchShaderVRay::output;
MObject CrowdSwitchShaderVRay::selector;
MObject CrowdSwitchShaderVRay::startOffset;
MObject CrowdSwitchShaderVRay::defaultShader;
MObject CrowdSwitchShaderVRay::shaders[kShaderCount];

void* CrowdSwitchShaderVRay::creator()
{
    return new (std::nothrow) CrowdSwitchShaderVRay;
}

MStatus CrowdSwitchShaderVRay::initialize()
{
    const MColor orange = outputColor();
    const NodeAttributes make("tarvox::crowd::CrowdSwitchShaderVRay::initialize");
    TVX_REQUIRE(make.color(output, "output", "op", orange, kOutput));
    TVX_REQUIRE(make.integer(selector, "selector", "sel", 0, kKeyableInput));
    TVX_REQUIRE(make.integer(startOffset, "startOffset", "sto", 0, kKeyableInput));
    TVX_REQUIRE(make.color(defaultShader, "default", "def", orange, kKeyableInput));
    for (int i = 0; i < kShaderCount; ++i) {
        const std::string number = std::to_string(i);
        const std::string longName = "shader" + number;
        const std::string shortName = "sh" + number;
        TVX_REQUIRE(make.color(shaders[i], longName.c_str(), shortName.c_str(), orange, kKeyableInput));
    }
    for (const MObject* input : {&selector, &startOffset, &defaultShader})
        TVX_CHECK_AFFECTS(*input, output);
    for (const MObject& shader : shaders)
        TVX_CHECK_AFFECTS(shader, output);
    return MStatus::kSuccess;
}

MStatus CrowdSwitchShaderVRay::compute(const MPlug& plug, MDataBlock& dataBlock)
{
    return passColorThrough(plug, dataBlock, shaders[0], output);
}

} // namespace tarvox::crowd
