// MVectorArray: an array of vectors.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/MVector.h>
#include <maya/tvxEngine.h>

#include <vector>

/// An array of vectors that owns its elements.
class OPENMAYA_EXPORT MVectorArray
{
public:
    /// An empty array.
    MVectorArray();
    MVectorArray(const MVectorArray& other);
    MVectorArray(const MVector vectors[], unsigned int count);
    MVectorArray(const double vectors[][3], unsigned int count);
    MVectorArray(const float vectors[][3], unsigned int count);

    /// So many elements, all of this value.
    MVectorArray(unsigned int initialSize, const MVector& initialValue = MVector::zero);
    ~MVectorArray();

    MVectorArray& operator=(const MVectorArray& other);

    /// The element at an index, not checked.
    const MVector& operator[](unsigned int index) const;
    MVector& operator[](unsigned int index);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(const MVector& element, unsigned int index);
    MStatus set(double element[3], unsigned int index);
    MStatus set(float element[3], unsigned int index);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(const MVector& element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(const MVector& element);

    /// Becomes a copy of the other array.
    MStatus copy(const MVectorArray& source);

    /// Removes all elements.
    MStatus clear();

    /// Copies all elements to memory of the caller, which must have room.
    MStatus get(double values[][3]) const;
    MStatus get(float values[][3]) const;

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<MVector>* elements; ///< owned; null while the array is empty
    tvxhost::engine::Object*
        lender; ///< counted; owns the elements instead, when they are those of a data object
    void* reserved;
};

/// Writes "[a, b, c]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MVectorArray& array);
