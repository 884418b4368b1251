// MUint64Array: an array of unsigned 64-bit integers.
#include <maya/MUint64Array.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_LENDABLE_ARRAY_MEMBERS(MUint64Array, MUint64, MUint64, MUint64)
TVX_ARRAY_COPY(MUint64Array)
TVX_ARRAY_STREAM(MUint64Array)

MUint64Array::MUint64Array(const MUint64 src[], unsigned int count)
    : elements(array::copyOf<MUint64>(src, count)), lender(nullptr), reserved(nullptr)
{
}

MUint64Array::MUint64Array(unsigned int initialSize, MUint64 initialValue)
    : elements(new std::vector<MUint64>(initialSize, initialValue)), lender(nullptr), reserved(nullptr)
{
}

MStatus MUint64Array::get(MUint64 target[]) const
{
    return array::get(elements, target);
}
