// MMatrixArray: an array of matrices.
#include <maya/MMatrixArray.h>

#include "support/arrayMembers.h"

TVX_ARRAY_MEMBERS(MMatrixArray, MMatrix, const MMatrix&, const MMatrix&)
TVX_ARRAY_COPY(MMatrixArray)
TVX_ARRAY_STREAM(MMatrixArray)

MMatrixArray::MMatrixArray(unsigned int initialSize)
    : elements(new std::vector<MMatrix>(initialSize)), reserved(nullptr)
{
}
