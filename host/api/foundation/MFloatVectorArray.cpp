// MFloatVectorArray: an array of vectors of floats.
#include <maya/MFloatVectorArray.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_LENDABLE_ARRAY_MEMBERS(MFloatVectorArray, MFloatVector, const MFloatVector&, const MFloatVector&)
TVX_ARRAY_COPY(MFloatVectorArray)
TVX_ARRAY_STREAM(MFloatVectorArray)

MFloatVectorArray::MFloatVectorArray(const MFloatVector vectors[], unsigned int count)
    : elements(array::copyOf<MFloatVector>(vectors, count)), lender(nullptr), reserved(nullptr)
{
}

MFloatVectorArray::MFloatVectorArray(const double vectors[][3], unsigned int count)
    : elements(array::fromRows<MFloatVector>(vectors, count)), lender(nullptr), reserved(nullptr)
{
}

MFloatVectorArray::MFloatVectorArray(const float vectors[][3], unsigned int count)
    : elements(array::fromRows<MFloatVector>(vectors, count)), lender(nullptr), reserved(nullptr)
{
}

MFloatVectorArray::MFloatVectorArray(unsigned int initialSize, const MFloatVector& initialValue)
    : elements(new std::vector<MFloatVector>(initialSize, initialValue)), lender(nullptr), reserved(nullptr)
{
}

MStatus MFloatVectorArray::set(double element[3], unsigned int index)
{
    return set(MFloatVector(element), index);
}

MStatus MFloatVectorArray::set(float element[3], unsigned int index)
{
    return set(MFloatVector(element), index);
}

MStatus MFloatVectorArray::get(double target[][3]) const
{
    return array::toRows(elements, target);
}

MStatus MFloatVectorArray::get(float target[][3]) const
{
    return array::toRows(elements, target);
}
