// MStringArray: an array of texts.
#pragma once

#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

#include <vector>

/// An array of texts that owns its elements.
class OPENMAYA_EXPORT MStringArray
{
public:
    /// An empty array.
    MStringArray();
    MStringArray(const MStringArray& other);
    MStringArray(const MString strings[], unsigned int count);
    MStringArray(const char* strings[], unsigned int count);

    /// So many elements, all of this value.
    MStringArray(unsigned int initialSize, const MString& initialValue);
    ~MStringArray();

    MStringArray& operator=(const MStringArray& other);

    /// The element at an index, not checked.
    MString operator[](unsigned int index) const;
    MString& operator[](unsigned int index);

    /// Replaces the element at an index; kInvalidParameter when there is no such element.
    MStatus set(const MString& element, unsigned int index);
    MStatus set(char* element, unsigned int index);

    /// Shortens the array, or lengthens it by default elements.
    MStatus setLength(unsigned int length);

    /// Number of elements.
    unsigned int length() const;

    /// Removes the element at an index; those behind it move up. kInvalidParameter when there is no such
    /// element.
    MStatus remove(unsigned int index);

    /// Inserts before the element at an index; an index equal to the length appends. kInvalidParameter beyond
    /// that.
    MStatus insert(const MString& element, unsigned int index);

    /// Adds an element at the end.
    MStatus append(const MString& element);

    /// Removes all elements.
    MStatus clear();

    /// Copies all elements to memory of the caller, which must have room.
    MStatus get(MString array[]) const;
    MStatus get(char* array[]) const;

    /// How many elements to make room for when the array grows. A hint.
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    std::vector<MString>* elements; ///< owned; null while the array is empty
    tvxhost::engine::Object*
        lender; ///< counted; owns the elements instead, when they are those of a data object
    void* reserved;
};

/// Writes "[a, b, c]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MStringArray& array);
