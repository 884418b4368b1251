// MTimeArray: an array of times.
#include <maya/MTimeArray.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_ARRAY_ELEMENT_MEMBERS(MTimeArray, MTime, const MTime&, const MTime&)
TVX_ARRAY_COPY(MTimeArray)

MTimeArray::MTimeArray() : elements(nullptr) {}

MTimeArray::MTimeArray(const MTimeArray& other) : elements(array::copyOf(other.elements)) {}

MTimeArray::MTimeArray(const MTime src[], unsigned int count) : elements(array::copyOf<MTime>(src, count)) {}

MTimeArray::MTimeArray(unsigned int initialSize, const MTime& initialValue)
    : elements(new std::vector<MTime>(initialSize, initialValue))
{
}

MTimeArray::~MTimeArray()
{
    delete elements;
}

MStatus MTimeArray::get(MTime target[]) const
{
    return array::get(elements, target);
}

// There is no word to keep a hint in; the room is made at once instead.
void MTimeArray::setSizeIncrement(unsigned int newIncrement)
{
    array::edit(elements).reserve(array::size(elements) + newIncrement);
}

unsigned int MTimeArray::sizeIncrement() const
{
    return 1;
}
