// MArrayDataHandle: the elements of an array in a data block.
#pragma once

#include <maya/MDataHandle.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <cstring>

class MArrayDataBuilder;

/// Access to the elements of an array, one at a time, in ascending order of index. Valid as long as the data
/// block.
class OPENMAYA_EXPORT MArrayDataHandle
{
public:
    /// On the array that the handle holds.
    MArrayDataHandle(const MDataHandle& in, MStatus* ReturnStatus = nullptr);
    MArrayDataHandle(const MArrayDataHandle& other) { std::memcpy(storage, other.storage, sizeof(storage)); }

    MArrayDataHandle& operator=(const MArrayDataHandle& other)
    {
        std::memcpy(storage, other.storage, sizeof(storage));
        return *this;
    }

    /// The present element, for reading (evaluated) or for writing.
    MDataHandle inputValue(MStatus* ReturnStatus = nullptr);
    MDataHandle outputValue(MStatus* ReturnStatus = nullptr);

    /// The present element when it is an array itself.
    MArrayDataHandle inputArrayValue(MStatus* ReturnStatus = nullptr);
    MArrayDataHandle outputArrayValue(MStatus* ReturnStatus = nullptr);

    /// Goes to the next element; a failure at the end.
    MStatus next();

    /// How many elements there are.
    unsigned int elementCount(MStatus* ReturnStatus = nullptr);

    /// The index of the present element.
    unsigned int elementIndex(MStatus* ReturnStatus = nullptr);

    /// Goes to the element with an index; a failure when there is none.
    MStatus jumpToElement(unsigned int index);

    /// Goes to the n-th element; a failure beyond the last.
    MStatus jumpToArrayElement(unsigned int position);

    /// Marks the present element as computed, or all of them.
    MStatus setClean();
    MStatus setAllClean();

    /// A builder that holds the present elements; include MArrayDataBuilder.h to use it.
    MArrayDataBuilder builder(MStatus* ReturnStatus = nullptr);

    /// Takes over the elements of a builder.
    MStatus set(MArrayDataBuilder& builder);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    /// Plain words: handles are copied bit by bit and have no destructor, so nothing here is owned.
    char storage[41];
};
