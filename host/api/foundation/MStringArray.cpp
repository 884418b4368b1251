// MStringArray: an array of texts.
#include <maya/MStringArray.h>

#include "support/arrayMembers.h"

#include <cstring>

namespace array = tvxhost::api::array;

TVX_LENDABLE_ARRAY_MEMBERS(MStringArray, MString, const MString&, MString)
TVX_ARRAY_STREAM(MStringArray)

MStringArray::MStringArray(const MString strings[], unsigned int count)
    : elements(array::copyOf<MString>(strings, count)), lender(nullptr), reserved(nullptr)
{
}

MStringArray::MStringArray(const char* strings[], unsigned int count)
    : elements(array::copyOf<MString>(strings, count)), lender(nullptr), reserved(nullptr)
{
}

MStringArray::MStringArray(unsigned int initialSize, const MString& initialValue)
    : elements(new std::vector<MString>(initialSize, initialValue)), lender(nullptr), reserved(nullptr)
{
}

MStatus MStringArray::set(char* element, unsigned int index)
{
    return set(MString(element), index);
}

MStatus MStringArray::get(MString target[]) const
{
    return array::get(elements, target);
}

MStatus MStringArray::get(char* target[]) const
{
    for (unsigned int i = 0; i < length(); ++i)
        std::strcpy(target[i], (*elements)[i].asChar());
    return MS::kSuccess;
}
