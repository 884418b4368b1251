// MPlugArray: an array of plugs.
#pragma once

#include <maya/MPlug.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <vector>

/// An array of plugs that owns its elements.
class OPENMAYA_EXPORT MPlugArray
{
public:
    /// An empty array.
    MPlugArray();
    MPlugArray(const MPlugArray& other);

    /// So many elements, all of this value.
    MPlugArray(unsigned int initializeSize, const MPlug& initialValue);
    MPlugArray(const MPlug src[], unsigned int count);
    ~MPlugArray();

    MPlugArray& operator=(const MPlugArray& other);

    /// The element at an index, not checked.
    const MPlug& operator[](unsigned int index) const;
    MPlug& operator[](unsigned int index);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(const MPlug& element, unsigned int index);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(const MPlug& element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(const MPlug& element);

    /// Becomes a copy of the other array.
    MStatus copy(const MPlugArray& source);

    /// Removes all elements.
    MStatus clear();

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// Copies all elements to memory of the caller, which must have room.
    MStatus get(MPlug dest[]) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<MPlug>* elements; ///< owned; null while the array is empty
    void* reserved;
};
