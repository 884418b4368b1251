// The shading node gradientShader.
#include "gradientShaderNode.h"

#include <maya/MFnNumericAttribute.h>
#include <maya/MPlug.h>

namespace gradientShader {

const MString GradientShaderNode::typeName("gradientShader");
// One of the numbers that Maya leaves to plug-ins used within one house.
const MTypeId GradientShaderNode::id(0x7f010);
// A utility; the second part names the swatch to draw it with, where somebody has registered one.
const MString GradientShaderNode::classification("utility/color:swatch/gradientShaderSwatch");

MObject GradientShaderNode::coordinate;
RampAttribute GradientShaderNode::colorRamp;
RampAttribute GradientShaderNode::alphaRamp;
MObject GradientShaderNode::outColor;
MObject GradientShaderNode::outAlpha;

namespace {

MStatus createCoordinate(MObject& coordinate)
{
    MStatus status;
    MFnNumericAttribute number;
    coordinate = number.create("coordinate", "co", MFnNumericData::kFloat, 0.0, &status);
    number.setSoftMin(0.0);
    number.setSoftMax(1.0);
    number.setKeyable(true);
    return status;
}

/// What the node computes can be neither set nor saved.
void makeOutput(MFnNumericAttribute& attribute)
{
    attribute.setWritable(false);
    attribute.setStorable(false);
}

MStatus createOutputs(MObject& color, MObject& alpha)
{
    MStatus status;
    MFnNumericAttribute number;
    color = number.createColor("outColor", "oc", &status);
    if (!status)
        return status;
    makeOutput(number);
    alpha = number.create("outAlpha", "oa", MFnNumericData::kFloat, 1.0, &status);
    if (status)
        makeOutput(number);
    return status;
}

template <class Value>
MStatus computeRamp(MDataBlock& block, const RampAttribute& ramp, const MObject& output,
                    const Value& otherwise)
{
    MStatus status;
    const float at = block.inputValue(GradientShaderNode::coordinate, &status).asFloat();
    std::vector<Entry<Value>> entries;
    if (status)
        status = readEntries(block, ramp, entries);
    if (!status)
        return status;
    MDataHandle handle = block.outputValue(output, &status);
    if (status) {
        handle.set(valueAt(entries, at, otherwise));
        handle.setClean();
    }
    return status;
}

} // namespace

void* GradientShaderNode::creator()
{
    return new GradientShaderNode;
}

MStatus GradientShaderNode::initialize()
{
    MStatus status = createCoordinate(coordinate);
    if (status)
        status = colorRamp.createColor("colorRamp", "cr");
    if (status)
        status = alphaRamp.createFloat("alphaRamp", "ar");
    if (status)
        status = createOutputs(outColor, outAlpha);
    for (const MObject& attribute : {coordinate, outColor, outAlpha})
        if (status)
            status = addAttribute(attribute);
    if (status)
        status = colorRamp.addTo(outColor);
    if (status)
        status = alphaRamp.addTo(outAlpha);
    for (const MObject& output : {outColor, outAlpha})
        if (status)
            status = attributeAffects(coordinate, output);
    return status;
}

MStatus GradientShaderNode::compute(const MPlug& plug, MDataBlock& block)
{
    if (plug == outColor || (plug.isChild() && plug.parent() == outColor))
        return computeRamp(block, colorRamp, outColor, MFloatVector(0.0f, 0.0f, 0.0f));
    if (plug == outAlpha)
        return computeRamp(block, alphaRamp, outAlpha, 1.0f);
    return MStatus::kUnknownParameter;
}

} // namespace gradientShader
