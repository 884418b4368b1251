// MObjectArray: an array of object handles.
#pragma once

#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <vector>

/// An array of object handles that owns its elements.
class OPENMAYA_EXPORT MObjectArray
{
public:
    /// An empty array.
    MObjectArray();
    MObjectArray(const MObjectArray& other);

    /// So many elements, all of this value.
    MObjectArray(unsigned int initialSize, const MObject& initialValue = MObject::kNullObj);
    MObjectArray(const MObject src[], unsigned int count);
    ~MObjectArray();

    MObjectArray& operator=(const MObjectArray& other);

    /// The element at an index, not checked.
    const MObject& operator[](unsigned int index) const;
    MObject& operator[](unsigned int index);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(const MObject& element, unsigned int index);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(const MObject& element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(const MObject& element);

    /// Becomes a copy of the other array.
    MStatus copy(const MObjectArray& source);

    /// Removes all elements.
    MStatus clear();

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// Copies all elements to memory of the caller, which must have room.
    MStatus get(MObject array[]) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<MObject>* elements; ///< owned; null while the array is empty
};
