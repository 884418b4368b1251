// MDoubleArray: an array of doubles.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

#include <vector>

/// An array of doubles that owns its elements.
class OPENMAYA_EXPORT MDoubleArray
{
public:
    /// An empty array.
    MDoubleArray();
    MDoubleArray(const MDoubleArray& other);
    MDoubleArray(const double src[], unsigned int count);
    MDoubleArray(const float src[], unsigned int count);

    /// So many elements, all of this value.
    MDoubleArray(unsigned int initialSize, double initialValue = 0);
    ~MDoubleArray();

    MDoubleArray& operator=(const MDoubleArray& other);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(double element, unsigned int index);
    MStatus set(float element, unsigned int index);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(double element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(double element);

    /// Becomes a copy of the other array.
    MStatus copy(const MDoubleArray& source);

    /// Removes all elements.
    MStatus clear();

    /// Copies all elements to memory of the caller, which must have room.
    MStatus get(double values[]) const;
    MStatus get(float values[]) const;

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// The element at an index, not checked.
    double& operator[](unsigned int index);
    double operator[](unsigned int index) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<double>* elements; ///< owned; null while the array is empty
    tvxhost::engine::Object*
        lender; ///< counted; owns the elements instead, when they are those of a data object
    void* reserved;
};

/// Writes "[a, b, c]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MDoubleArray& array);
