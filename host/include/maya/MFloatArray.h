// MFloatArray: an array of floats.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

#include <vector>

/// An array of floats that owns its elements.
class OPENMAYA_EXPORT MFloatArray
{
public:
    /// An empty array.
    MFloatArray();
    MFloatArray(const MFloatArray& other);
    MFloatArray(const float src[], unsigned int count);
    MFloatArray(const double src[], unsigned int count);

    /// So many elements, all of this value.
    MFloatArray(unsigned int initialSize, float initialValue = 0);
    ~MFloatArray();

    MFloatArray& operator=(const MFloatArray& other);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(float element, unsigned int index);
    MStatus set(double element, unsigned int index);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(float element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(float element);

    /// Becomes a copy of the other array.
    MStatus copy(const MFloatArray& source);

    /// Removes all elements.
    MStatus clear();

    /// Copies all elements to memory of the caller, which must have room.
    MStatus get(float values[]) const;
    MStatus get(double values[]) const;

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// The element at an index, not checked.
    float operator[](unsigned int index) const;
    float& operator[](unsigned int index);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<float>* elements; ///< owned; null while the array is empty
    tvxhost::engine::Object*
        lender; ///< counted; owns the elements instead, when they are those of a data object
    void* reserved;
};

/// Writes "[a, b, c]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MFloatArray& array);
