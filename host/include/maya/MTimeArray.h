// MTimeArray: an array of times.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTime.h>
#include <maya/MTypes.h>

#include <vector>

/// An array of times that owns its elements.
class OPENMAYA_EXPORT MTimeArray
{
public:
    /// An empty array.
    MTimeArray();
    MTimeArray(const MTimeArray& other);
    MTimeArray(const MTime src[], unsigned int count);

    /// So many elements, all of this value.
    MTimeArray(unsigned int initialSize, const MTime& initialValue);
    ~MTimeArray();

    MTimeArray& operator=(const MTimeArray& other);

    /// The element at an index, not checked.
    const MTime& operator[](unsigned int index) const;
    MTime& operator[](unsigned int index);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(const MTime& element, unsigned int index);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(const MTime& element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(const MTime& element);

    /// Removes all elements.
    MStatus clear();

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// Copies all elements to memory of the caller, which must have room.
    MStatus get(MTime array[]) const;

    /// Becomes a copy of the other array.
    MStatus copy(const MTimeArray& source);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<MTime>* elements; ///< owned; null while the array is empty
};
