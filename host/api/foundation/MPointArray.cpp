// MPointArray: an array of points.
#include <maya/MPointArray.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_LENDABLE_ARRAY_MEMBERS(MPointArray, MPoint, const MPoint&, const MPoint&)
TVX_ARRAY_COPY(MPointArray)
TVX_ARRAY_STREAM(MPointArray)

MPointArray::MPointArray(const MPoint points[], unsigned int count)
    : elements(array::copyOf<MPoint>(points, count)), lender(nullptr), reserved(nullptr)
{
}

MPointArray::MPointArray(const double points[][4], unsigned int count)
    : elements(array::fromRows<MPoint>(points, count)), lender(nullptr), reserved(nullptr)
{
}

MPointArray::MPointArray(const float points[][4], unsigned int count)
    : elements(array::fromRows<MPoint>(points, count)), lender(nullptr), reserved(nullptr)
{
}

MPointArray::MPointArray(unsigned int initialSize, const MPoint& initialValue)
    : elements(new std::vector<MPoint>(initialSize, initialValue)), lender(nullptr), reserved(nullptr)
{
}

MStatus MPointArray::set(double element[4], unsigned int index)
{
    return set(MPoint(element), index);
}

MStatus MPointArray::set(float element[4], unsigned int index)
{
    return set(MPoint(element), index);
}

MStatus MPointArray::set(unsigned int index, double x, double y, double z, double w)
{
    return set(MPoint(x, y, z, w), index);
}

MStatus MPointArray::append(double x, double y, double z, double w)
{
    return append(MPoint(x, y, z, w));
}

MStatus MPointArray::get(double target[][4]) const
{
    return array::toRows(elements, target);
}

MStatus MPointArray::get(float target[][4]) const
{
    return array::toRows(elements, target);
}
