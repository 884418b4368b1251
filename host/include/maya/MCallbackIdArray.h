// MCallbackIdArray: an array of the ids of callbacks.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

#include <vector>

/// What a callback is removed by. No two of a session have the same; 0 is none.
typedef MUintPtrSz MCallbackId;

/// An array of the ids of callbacks that owns its elements.
class OPENMAYA_EXPORT MCallbackIdArray
{
public:
    /// An empty array.
    MCallbackIdArray();
    MCallbackIdArray(const MCallbackIdArray& other);
    MCallbackIdArray(const MCallbackId src[], unsigned int count);

    /// So many elements, all of this value.
    MCallbackIdArray(unsigned int initialSize, MCallbackId initialValue = 0);
    ~MCallbackIdArray();

    MCallbackIdArray& operator=(const MCallbackIdArray& other);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(MCallbackId element, unsigned int index);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(MCallbackId element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(MCallbackId element);

    /// Becomes a copy of the other array.
    MStatus copy(const MCallbackIdArray& source);

    /// Removes all elements.
    MStatus clear();

    /// Copies all elements to memory of the caller, which must have room.
    MStatus get(MCallbackId values[]) const;

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// The element at an index, not checked.
    MCallbackId operator[](unsigned int index) const;
    MCallbackId& operator[](unsigned int index);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<MCallbackId>* elements; ///< owned; null while the array is empty
    void* reserved;
};
