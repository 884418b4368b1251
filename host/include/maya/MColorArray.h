// MColorArray: an array of colours.
#pragma once

#include <maya/MColor.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

#include <vector>

/// An array of colours that owns its elements.
class OPENMAYA_EXPORT MColorArray
{
public:
    /// An empty array.
    MColorArray();
    MColorArray(const MColorArray& other);
    MColorArray(const MColor src[], unsigned int count);
    MColorArray(const float src[][4], unsigned int count);
    MColorArray(const double src[][4], unsigned int count);

    /// So many elements, all of this value.
    MColorArray(unsigned int initialSize, const MColor& initialValue = MColor::kOpaqueBlack);
    ~MColorArray();

    MColorArray& operator=(const MColorArray& other);

    /// The element at an index, not checked.
    const MColor& operator[](unsigned int index) const;
    MColor& operator[](unsigned int index);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(const MColor& element, unsigned int index);
    MStatus set(unsigned int index, float r, float g, float b, float a = 1);
    MStatus set(float val[4], unsigned int index);
    MStatus set(float elements[][4], unsigned int size);
    MStatus set(double elements[][4], unsigned int size);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(const MColor& element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(const MColor& element);
    MStatus append(float r, float g, float b, float a = 1);

    /// Becomes a copy of the other array.
    MStatus copy(const MColorArray& source);

    /// Removes all elements.
    MStatus clear();

    /// Copies all elements to memory of the caller, which must have room.
    MStatus get(float dest[][4]) const;

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<MColor>* elements; ///< owned; null while the array is empty
    tvxhost::engine::Object*
        lender; ///< counted; owns the elements instead, when they are those of a data object
    void* reserved;
};

/// Writes "[a, b, c]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MColorArray& array);
