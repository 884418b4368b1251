// MIntArray: an array of integers.
#include <maya/MIntArray.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_LENDABLE_ARRAY_MEMBERS(MIntArray, int, int, int)
TVX_ARRAY_COPY(MIntArray)
TVX_ARRAY_STREAM(MIntArray)

MIntArray::MIntArray(const int src[], unsigned int count)
    : elements(array::copyOf<int>(src, count)), lender(nullptr), reserved(nullptr)
{
}

MIntArray::MIntArray(unsigned int initialSize, int initialValue)
    : elements(new std::vector<int>(initialSize, initialValue)), lender(nullptr), reserved(nullptr)
{
}

MStatus MIntArray::get(int target[]) const
{
    return array::get(elements, target);
}
