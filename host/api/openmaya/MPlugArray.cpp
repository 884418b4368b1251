// MPlugArray: an array of plugs.
#include <maya/MPlugArray.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_ARRAY_MEMBERS(MPlugArray, MPlug, const MPlug&, const MPlug&)
TVX_ARRAY_COPY(MPlugArray)

MPlugArray::MPlugArray(unsigned int initializeSize, const MPlug& initialValue)
    : elements(new std::vector<MPlug>(initializeSize, initialValue)), reserved()
{
}

MPlugArray::MPlugArray(const MPlug src[], unsigned int count)
    : elements(array::copyOf<MPlug>(src, count)), reserved()
{
}

MStatus MPlugArray::get(MPlug dest[]) const
{
    return array::get(elements, dest);
}
