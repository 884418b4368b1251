// MDoubleArray: an array of doubles.
#include <maya/MDoubleArray.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_LENDABLE_ARRAY_MEMBERS(MDoubleArray, double, double, double)
TVX_ARRAY_COPY(MDoubleArray)
TVX_ARRAY_STREAM(MDoubleArray)

MDoubleArray::MDoubleArray(const double src[], unsigned int count)
    : elements(array::copyOf<double>(src, count)), lender(nullptr), reserved(nullptr)
{
}

MDoubleArray::MDoubleArray(const float src[], unsigned int count)
    : elements(array::copyOf<double>(src, count)), lender(nullptr), reserved(nullptr)
{
}

MDoubleArray::MDoubleArray(unsigned int initialSize, double initialValue)
    : elements(new std::vector<double>(initialSize, initialValue)), lender(nullptr), reserved(nullptr)
{
}

MStatus MDoubleArray::set(float element, unsigned int index)
{
    return set(static_cast<double>(element), index);
}

MStatus MDoubleArray::get(double target[]) const
{
    return array::get(elements, target);
}

MStatus MDoubleArray::get(float target[]) const
{
    return array::get(elements, target);
}
