// A ramp among the attributes of a node.
#pragma once

#include "rampEvaluation.h"

#include <maya/MArrayDataHandle.h>
#include <maya/MDataBlock.h>
#include <maya/MDataHandle.h>
#include <maya/MFloatVector.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>

#include <vector>

namespace gradientShader {

/// An array of compounds. For a ramp NAME (brief BRIEF) they are NAME (BRIEF) with the children
/// NAME_Position (BRIEFp), NAME_Color or NAME_FloatValue (BRIEFv), and NAME_Interp (BRIEFi).
struct RampAttribute
{
    MObject entries;
    MObject position;
    MObject value;
    MObject interpolation;

    MStatus createColor(const MString& name, const MString& brief);
    MStatus createFloat(const MString& name, const MString& brief);

    /// Adds the ramp to the node type that is being initialized, and has it affect an output.
    MStatus addTo(const MObject& output) const;

private:
    MStatus createEntries(const MString& name, const MString& brief);
};

inline void read(const MDataHandle& handle, float& value)
{
    value = handle.asFloat();
}
inline void read(const MDataHandle& handle, MFloatVector& value)
{
    value = handle.asFloatVector();
}

/// The entries of a ramp as a data block has them.
template <class Value>
MStatus readEntries(MDataBlock& block, const RampAttribute& ramp, std::vector<Entry<Value>>& entries)
{
    MStatus status;
    MArrayDataHandle array = block.inputArrayValue(ramp.entries, &status);
    const unsigned int count = status ? array.elementCount(&status) : 0;
    for (unsigned int i = 0; status && i < count; ++i) {
        status = array.jumpToArrayElement(i);
        if (!status)
            break;
        MDataHandle element = array.inputValue(&status);
        if (!status)
            break;
        Entry<Value> entry{};
        entry.position = element.child(ramp.position).asFloat();
        read(element.child(ramp.value), entry.value);
        entry.interpolation = static_cast<Interpolation>(element.child(ramp.interpolation).asShort());
        entries.push_back(entry);
    }
    return status;
}

} // namespace gradientShader
