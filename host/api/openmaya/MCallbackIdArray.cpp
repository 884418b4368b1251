// MCallbackIdArray: an array of the ids of callbacks.
#include <maya/MCallbackIdArray.h>

#include "support/arrayMembers.h"

namespace array = tvxhost::api::array;

TVX_ARRAY_MEMBERS(MCallbackIdArray, MCallbackId, MCallbackId, MCallbackId)
TVX_ARRAY_COPY(MCallbackIdArray)

MCallbackIdArray::MCallbackIdArray(const MCallbackId src[], unsigned int count)
    : elements(array::copyOf<MCallbackId>(src, count)), reserved(nullptr)
{
}

MCallbackIdArray::MCallbackIdArray(unsigned int initialSize, MCallbackId initialValue)
    : elements(new std::vector<MCallbackId>(initialSize, initialValue)), reserved(nullptr)
{
}

MStatus MCallbackIdArray::get(MCallbackId target[]) const
{
    return array::get(elements, target);
}
