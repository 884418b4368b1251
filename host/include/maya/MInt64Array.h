// MInt64Array: an array of 64-bit integers.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

#include <vector>

/// An array of 64-bit integers that owns its elements.
class OPENMAYA_EXPORT MInt64Array
{
public:
    /// An empty array.
    MInt64Array();
    MInt64Array(const MInt64Array& other);
    MInt64Array(const MInt64 src[], unsigned int count);

    /// So many elements, all of this value.
    MInt64Array(unsigned int initialSize, MInt64 initialValue = 0);
    ~MInt64Array();

    MInt64Array& operator=(const MInt64Array& other);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(MInt64 element, unsigned int index);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(MInt64 element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(MInt64 element);

    /// Becomes a copy of the other array.
    MStatus copy(const MInt64Array& source);

    /// Removes all elements.
    MStatus clear();

    /// Copies all elements to memory of the caller, which must have room.
    MStatus get(MInt64 values[]) const;

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// The element at an index, not checked.
    MInt64& operator[](unsigned int index);
    MInt64 operator[](unsigned int index) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<MInt64>* elements; ///< owned; null while the array is empty
    tvxhost::engine::Object*
        lender; ///< counted; owns the elements instead, when they are those of a data object
    void* reserved;
};

/// Writes "[a, b, c]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MInt64Array& array);
