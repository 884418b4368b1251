// A ramp among the attributes of a node.
#include "rampAttribute.h"

#include <maya/MFnCompoundAttribute.h>
#include <maya/MFnEnumAttribute.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MPxNode.h>

namespace gradientShader {

MStatus RampAttribute::createColor(const MString& name, const MString& brief)
{
    MStatus status;
    value = MFnNumericAttribute().createColor(name + "_Color", brief + "v", &status);
    return status ? createEntries(name, brief) : status;
}

MStatus RampAttribute::createFloat(const MString& name, const MString& brief)
{
    MStatus status;
    value =
        MFnNumericAttribute().create(name + "_FloatValue", brief + "v", MFnNumericData::kFloat, 0.0, &status);
    return status ? createEntries(name, brief) : status;
}

MStatus RampAttribute::createEntries(const MString& name, const MString& brief)
{
    MStatus status;
    MFnNumericAttribute number;
    position = number.create(name + "_Position", brief + "p", MFnNumericData::kFloat, 0.0, &status);
    if (!status)
        return status;
    number.setSoftMin(0.0);
    number.setSoftMax(1.0);

    MFnEnumAttribute choice;
    interpolation =
        choice.create(name + "_Interp", brief + "i", static_cast<short>(Interpolation::linear), &status);
    if (!status)
        return status;
    choice.addField("None", static_cast<short>(Interpolation::none));
    choice.addField("Linear", static_cast<short>(Interpolation::linear));
    choice.addField("Smooth", static_cast<short>(Interpolation::smooth));

    MFnCompoundAttribute compound;
    entries = compound.create(name, brief, &status);
    if (!status)
        return status;
    for (const MObject& child : {position, value, interpolation}) {
        status = compound.addChild(child);
        if (!status)
            return status;
    }
    compound.setArray(true);
    compound.setUsesArrayDataBuilder(true);
    return status;
}

MStatus RampAttribute::addTo(const MObject& output) const
{
    MStatus status = MPxNode::addAttribute(entries);
    for (const MObject& input : {entries, position, value, interpolation})
        if (status)
            status = MPxNode::attributeAffects(input, output);
    return status;
}

} // namespace gradientShader
