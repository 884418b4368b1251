// MObjectArray: an array of object handles.
#include <maya/MObjectArray.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_ARRAY_ELEMENT_MEMBERS(MObjectArray, MObject, const MObject&, const MObject&)
TVX_ARRAY_COPY(MObjectArray)

MObjectArray::MObjectArray() : elements(nullptr) {}

MObjectArray::MObjectArray(const MObjectArray& other) : elements(array::copyOf(other.elements)) {}

MObjectArray::MObjectArray(unsigned int initialSize, const MObject& initialValue)
    : elements(new std::vector<MObject>(initialSize, initialValue))
{
}

MObjectArray::MObjectArray(const MObject src[], unsigned int count)
    : elements(array::copyOf<MObject>(src, count))
{
}

MObjectArray::~MObjectArray()
{
    delete elements;
}

MStatus MObjectArray::get(MObject target[]) const
{
    return array::get(elements, target);
}

// There is no word to keep a hint in; the room is made at once instead.
void MObjectArray::setSizeIncrement(unsigned int newIncrement)
{
    array::edit(elements).reserve(array::size(elements) + newIncrement);
}

unsigned int MObjectArray::sizeIncrement() const
{
    return 1;
}
