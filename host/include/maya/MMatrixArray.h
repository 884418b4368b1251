// MMatrixArray: an array of matrices.
#pragma once

#include <maya/MMatrix.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <vector>

/// An array of matrices that owns its elements.
class OPENMAYA_EXPORT MMatrixArray
{
public:
    /// An empty array.
    MMatrixArray();
    MMatrixArray(const MMatrixArray& other);

    /// So many elements.
    MMatrixArray(unsigned int initialSize);
    ~MMatrixArray();

    MMatrixArray& operator=(const MMatrixArray& other);

    /// The element at an index, not checked.
    const MMatrix& operator[](unsigned int index) const;
    MMatrix& operator[](unsigned int index);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(const MMatrix& element, unsigned int index);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(const MMatrix& element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(const MMatrix& element);

    /// Becomes a copy of the other array.
    MStatus copy(const MMatrixArray& source);

    /// Removes all elements.
    MStatus clear();

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<MMatrix>* elements; ///< owned; null while the array is empty
    void* reserved;
};

/// Writes "[a, b, c]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MMatrixArray& array);
