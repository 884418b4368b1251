// MFloatPointArray: an array of single-precision points.
#pragma once

#include <maya/MFloatPoint.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

#include <vector>

/// An array of single-precision points that owns its elements.
class OPENMAYA_EXPORT MFloatPointArray
{
public:
    /// An empty array.
    MFloatPointArray();
    MFloatPointArray(const MFloatPointArray& other);
    MFloatPointArray(const MFloatPoint points[], unsigned int count);
    MFloatPointArray(const float points[][4], unsigned int count);
    MFloatPointArray(const double points[][4], unsigned int count);

    /// So many elements, all of this value.
    MFloatPointArray(unsigned int initialSize, const MFloatPoint& initialValue = MFloatPoint::origin);
    ~MFloatPointArray();

    MFloatPointArray& operator=(const MFloatPointArray& other);

    /// The element at an index, not checked.
    const MFloatPoint& operator[](unsigned int index) const;
    MFloatPoint& operator[](unsigned int index);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(const MFloatPoint& element, unsigned int index);
    MStatus set(unsigned int index, float x, float y, float z = 0, float w = 1);
    MStatus set(float element[4], unsigned int index);
    MStatus set(double element[4], unsigned int index);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(const MFloatPoint& element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(const MFloatPoint& element);
    MStatus append(float x, float y, float z = 0, float w = 1);

    /// Becomes a copy of the other array.
    MStatus copy(const MFloatPointArray& source);

    /// Removes all elements.
    MStatus clear();

    /// Copies all elements to memory of the caller, which must have room.
    MStatus get(float values[][4]) const;
    MStatus get(double values[][4]) const;

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<MFloatPoint>* elements; ///< owned; null while the array is empty
    tvxhost::engine::Object*
        lender; ///< counted; owns the elements instead, when they are those of a data object
    void* reserved;
};

/// Writes "[a, b, c]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MFloatPointArray& array);
