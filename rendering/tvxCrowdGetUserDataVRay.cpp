// The V-Ray user-data node.
#include "rendering/tvxCrowdGetUserDataVRay.h"

#include "rendering/tvxNodeAttributes.h"
#include "rendering/tvxShadingOutput.h"

#include <maya/MDataHandle.h>

#include <new>

namespace tarvox::crowd {

const MTypeId CrowdGetUserDataVRay::id(0x1168E3);
const MString CrowdGetUserDataVRay::classification("utility/general");

MObject CrowdGetUserDataVRay::output;
MObject CrowdGetUserDataVRay::paramType;
MObject CrowdGetUserDataVRay::defaultValue;

void* CrowdGetUserDataVRay::creator()
{
    return new (std::nothrow) CrowdGetUserDataVRay;
}

MStatus CrowdGetUserDataVRay::initialize()
{
    const NodeAttributes make("tarvox::crowd::CrowdGetUserDataVRay::initialize");
    TVX_REQUIRE(make.number(output, "output", "op", 0.0, kOutput));
    TVX_REQUIRE(make.choice(paramType, "paramType", "pt", {{"mtlIndex", 0}, {"VRay ObjectID", 1}}, kInput));
    TVX_REQUIRE(make.number(defaultValue, "default", "df", 0.0, kInput));
    for (const MObject* input : {&paramType, &defaultValue})
        TVX_CHECK_AFFECTS(*input, output);
    return MStatus::kSuccess;
}

MStatus CrowdGetUserDataVRay::compute(const MPlug& plug, MDataBlock& dataBlock)
{
    if (!asksFor(plug, output))
        return MStatus::kUnknownParameter;
    dataBlock.outputValue(output).setClean();
    return MStatus::kSuccess;
}

} // namespace tarvox::crowd
