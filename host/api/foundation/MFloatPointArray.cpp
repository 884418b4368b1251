// MFloatPointArray: an array of points of floats.
#include <maya/MFloatPointArray.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_LENDABLE_ARRAY_MEMBERS(MFloatPointArray, MFloatPoint, const MFloatPoint&, const MFloatPoint&)
TVX_ARRAY_COPY(MFloatPointArray)
TVX_ARRAY_STREAM(MFloatPointArray)

MFloatPointArray::MFloatPointArray(const MFloatPoint points[], unsigned int count)
    : elements(array::copyOf<MFloatPoint>(points, count)), lender(nullptr), reserved(nullptr)
{
}

MFloatPointArray::MFloatPointArray(const double points[][4], unsigned int count)
    : elements(array::fromRows<MFloatPoint>(points, count)), lender(nullptr), reserved(nullptr)
{
}

MFloatPointArray::MFloatPointArray(const float points[][4], unsigned int count)
    : elements(array::fromRows<MFloatPoint>(points, count)), lender(nullptr), reserved(nullptr)
{
}

MFloatPointArray::MFloatPointArray(unsigned int initialSize, const MFloatPoint& initialValue)
    : elements(new std::vector<MFloatPoint>(initialSize, initialValue)), lender(nullptr), reserved(nullptr)
{
}

MStatus MFloatPointArray::set(double element[4], unsigned int index)
{
    return set(MFloatPoint(element), index);
}

MStatus MFloatPointArray::set(float element[4], unsigned int index)
{
    return set(MFloatPoint(element), index);
}

MStatus MFloatPointArray::set(unsigned int index, float x, float y, float z, float w)
{
    return set(MFloatPoint(x, y, z, w), index);
}

MStatus MFloatPointArray::append(float x, float y, float z, float w)
{
    return append(MFloatPoint(x, y, z, w));
}

MStatus MFloatPointArray::get(double target[][4]) const
{
    return array::toRows(elements, target);
}

MStatus MFloatPointArray::get(float target[][4]) const
{
    return array::toRows(elements, target);
}
