// MDagPathArray: an array of DAG paths.
#include <maya/MDagPathArray.h>

#include "support/arrayMembers.h"

TVX_ARRAY_MEMBERS(MDagPathArray, MDagPath, const MDagPath&, const MDagPath&)
TVX_ARRAY_COPY(MDagPathArray)

MDagPathArray::MDagPathArray(unsigned int initializeSize, const MDagPath& initialValue)
    : elements(new std::vector<MDagPath>(initializeSize, initialValue)), reserved(nullptr)
{
}

std::ostream& operator<<(std::ostream& out, const MDagPathArray& array)
{
    out << '[';
    for (unsigned int i = 0; i < array.length(); ++i)
        out << (i == 0 ? "" : ", ") << array[i].fullPathName().asChar();
    return out << ']';
}
