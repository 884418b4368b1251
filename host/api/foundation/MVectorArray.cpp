// MVectorArray: an array of vectors.
#include <maya/MVectorArray.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_LENDABLE_ARRAY_MEMBERS(MVectorArray, MVector, const MVector&, const MVector&)
TVX_ARRAY_COPY(MVectorArray)
TVX_ARRAY_STREAM(MVectorArray)

MVectorArray::MVectorArray(const MVector vectors[], unsigned int count)
    : elements(array::copyOf<MVector>(vectors, count)), lender(nullptr), reserved(nullptr)
{
}

MVectorArray::MVectorArray(const double vectors[][3], unsigned int count)
    : elements(array::fromRows<MVector>(vectors, count)), lender(nullptr), reserved(nullptr)
{
}

MVectorArray::MVectorArray(const float vectors[][3], unsigned int count)
    : elements(array::fromRows<MVector>(vectors, count)), lender(nullptr), reserved(nullptr)
{
}

MVectorArray::MVectorArray(unsigned int initialSize, const MVector& initialValue)
    : elements(new std::vector<MVector>(initialSize, initialValue)), lender(nullptr), reserved(nullptr)
{
}

MStatus MVectorArray::set(double element[3], unsigned int index)
{
    return set(MVector(element), index);
}

MStatus MVectorArray::set(float element[3], unsigned int index)
{
    return set(MVector(element), index);
}

MStatus MVectorArray::get(double target[][3]) const
{
    return array::toRows(elements, target);
}

MStatus MVectorArray::get(float target[][3]) const
{
    return array::toRows(elements, target);
}
