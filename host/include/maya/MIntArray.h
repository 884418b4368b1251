// MIntArray: an array of integers.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

#include <vector>

/// An array of integers that owns its elements.
class OPENMAYA_EXPORT MIntArray
{
public:
    /// An empty array.
    MIntArray();
    MIntArray(const MIntArray& other);
    MIntArray(const int src[], unsigned int count);

    /// So many elements, all of this value.
    MIntArray(unsigned int initialSize, int initialValue = 0);
    ~MIntArray();

    MIntArray& operator=(const MIntArray& other);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(int element, unsigned int index);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(int element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(int element);

    /// Becomes a copy of the other array.
    MStatus copy(const MIntArray& source);

    /// Removes all elements.
    MStatus clear();

    /// Copies all elements to memory of the caller, which must have room.
    MStatus get(int values[]) const;

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// The element at an index, not checked.
    int& operator[](unsigned int index);
    int operator[](unsigned int index) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<int>* elements; ///< owned; null while the array is empty
    tvxhost::engine::Object*
        lender; ///< counted; owns the elements instead, when they are those of a data object
    void* reserved;
};

/// Writes "[a, b, c]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MIntArray& array);
