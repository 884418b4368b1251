// MFloatArray: an array of floats.
#include <maya/MFloatArray.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_LENDABLE_ARRAY_MEMBERS(MFloatArray, float, float, float)
TVX_ARRAY_COPY(MFloatArray)
TVX_ARRAY_STREAM(MFloatArray)

MFloatArray::MFloatArray(const float src[], unsigned int count)
    : elements(array::copyOf<float>(src, count)), lender(nullptr), reserved(nullptr)
{
}

MFloatArray::MFloatArray(const double src[], unsigned int count)
    : elements(new std::vector<float>(count)), lender(nullptr), reserved(nullptr)
{
    std::transform(src, src + count, elements->begin(),
                   [](double number) { return static_cast<float>(number); });
}

MFloatArray::MFloatArray(unsigned int initialSize, float initialValue)
    : elements(new std::vector<float>(initialSize, initialValue)), lender(nullptr), reserved(nullptr)
{
}

MStatus MFloatArray::set(double element, unsigned int index)
{
    return set(static_cast<float>(element), index);
}

MStatus MFloatArray::get(float target[]) const
{
    return array::get(elements, target);
}

MStatus MFloatArray::get(double target[]) const
{
    return array::get(elements, target);
}
