// MUintArray: an array of unsigned integers.
#include <maya/MUintArray.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_LENDABLE_ARRAY_MEMBERS(MUintArray, unsigned int, unsigned int, unsigned int)
TVX_ARRAY_COPY(MUintArray)
TVX_ARRAY_STREAM(MUintArray)

MUintArray::MUintArray(const unsigned int src[], unsigned int count)
    : elements(array::copyOf<unsigned int>(src, count)), lender(nullptr), reserved(nullptr)
{
}

MUintArray::MUintArray(unsigned int initialSize, unsigned int initialValue)
    : elements(new std::vector<unsigned int>(initialSize, initialValue)), lender(nullptr), reserved(nullptr)
{
}

MStatus MUintArray::get(unsigned int target[]) const
{
    return array::get(elements, target);
}
