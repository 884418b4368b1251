// MInt64Array: an array of 64-bit integers.
#include <maya/MInt64Array.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_LENDABLE_ARRAY_MEMBERS(MInt64Array, MInt64, MInt64, MInt64)
TVX_ARRAY_COPY(MInt64Array)
TVX_ARRAY_STREAM(MInt64Array)

MInt64Array::MInt64Array(const MInt64 src[], unsigned int count)
    : elements(array::copyOf<MInt64>(src, count)), lender(nullptr), reserved(nullptr)
{
}

MInt64Array::MInt64Array(unsigned int initialSize, MInt64 initialValue)
    : elements(new std::vector<MInt64>(initialSize, initialValue)), lender(nullptr), reserved(nullptr)
{
}

MStatus MInt64Array::get(MInt64 target[]) const
{
    return array::get(elements, target);
}
