// How the shading nodes answer for their output.
#include "rendering/tvxShadingOutput.h"

#include <maya/MDataHandle.h>
#include <maya/MFloatVector.h>

namespace tarvox::crowd {

MColor outputColor()
{
    return MColor(1.0f, 0.45f, 0.0f);
}

bool asksFor(const MPlug& plug, const MObject& output)
{
    return plug == output || plug.parent() == output;
}

MStatus passColorThrough(const MPlug& plug, MDataBlock& dataBlock, const MObject& input,
                         const MObject& output)
{
    if (!asksFor(plug, output))
        return MStatus::kUnknownParameter;
    MDataHandle outputHandle = dataBlock.outputValue(output);
    MDataHandle inputHandle = dataBlock.inputValue(input);
    MFloatVector& result = outputHandle.asFloatVector();
    const MFloatVector& color = inputHandle.asFloatVector();
    result.x = color.x;
    result.y = color.y;
    result.z = color.z;
    outputHandle.setClean();
    return MStatus::kSuccess;
}

} // namespace tarvox::crowd
