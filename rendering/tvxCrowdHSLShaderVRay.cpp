// The V-Ray HSL shader node.
#include "rendering/tvxCrowdHSLShaderVRay.h"

#include "rendering/tvxNodeAttributes.h"
#include "rendering/tvxShadingOutput.h"

#include <new>

namespace tarvox::crowd {

const MTypeId CrowdHSLShaderVRay::id(0x1168E2);
const MString CrowdHSLShaderVRay::classification("utility/general:swatch/VRayMtlSwatchGen");

MObject CrowdHSLShaderVRay::output;
MObject CrowdHSLShaderVRay::h;
MObject CrowdHSLShaderVRay::s;
MObject CrowdHSLShaderVRay::l;
MObject CrowdHSLShaderVRay::input;

void* CrowdHSLShaderVRay::creator()
{
    return new (std::nothrow) CrowdHSLShaderVRay;
}

MStatus CrowdHSLShaderVRay::initialize()
{
    const MColor grey(0.5f, 0.5f, 0.5f);
    const Range offsets{-1.0, 1.0};
    const NodeAttributes make("tarvox::crowd::CrowdHSLShaderVRay::initialize");
    TVX_REQUIRE(make.color(output, "output", "op", outputColor(), kOutput));
    TVX_REQUIRE(make.number(h, "h", "h", 0.0, kInput, offsets));
    TVX_REQUIRE(make.number(s, "s", "s", 0.0, kInput, offsets));
    TVX_REQUIRE(make.number(l, "l", "l", 0.0, kInput, offsets));
    TVX_REQUIRE(make.color(input, "input", "in", grey, kKeyableInput));
    for (const MObject* attribute : {&input, &h, &s, &l})
        TVX_CHECK_AFFECTS(*attribute, output);
    return MStatus::kSuccess;
}

MStatus CrowdHSLShaderVRay::compute(const MPlug& plug, MDataBlock& dataBlock)
{
    return passColorThrough(plug, dataBlock, input, output);
}

} // namespace tarvox::crowd
