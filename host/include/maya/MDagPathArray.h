// MDagPathArray: an array of DAG paths.
#pragma once

#include <maya/MDagPath.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <vector>

/// An array of DAG paths that owns its elements.
class OPENMAYA_EXPORT MDagPathArray
{
public:
    /// An empty array.
    MDagPathArray();
    MDagPathArray(const MDagPathArray& other);

    /// So many elements, all of this value.
    MDagPathArray(unsigned int initializeSize, const MDagPath& initialValue);
    ~MDagPathArray();

    MDagPathArray& operator=(const MDagPathArray& other);

    /// The element at an index, not checked.
    const MDagPath& operator[](unsigned int index) const;
    MDagPath& operator[](unsigned int index);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(const MDagPath& element, unsigned int index);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(const MDagPath& element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(const MDagPath& element);

    /// Becomes a copy of the other array.
    MStatus copy(const MDagPathArray& source);

    /// Removes all elements.
    MStatus clear();

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<MDagPath>* elements; ///< owned; null while the array is empty
    void* reserved;
};

/// Writes "[a, b, c]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MDagPathArray& array);
