// MTrimBoundaryArray: the boundaries by which a surface is trimmed.
#pragma once

#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <vector>

class MObjectArray;

/// Boundaries, each a list of curves. Indices are not checked where an element is returned.
class OPENMAYA_EXPORT MTrimBoundaryArray
{
public:
    MTrimBoundaryArray();
    MTrimBoundaryArray(const MTrimBoundaryArray& other);
    ~MTrimBoundaryArray();

    /// Makes room for so many.
    MStatus reserve(unsigned int length);

    /// How many there are.
    unsigned int length() const;
    unsigned int size() const;

    const MObjectArray& operator[](unsigned int index) const;
    const MObjectArray& get(unsigned int index) const;

    /// Replaces, inserts before, adds, removes; kInvalidParameter for an index that is out of range.
    MStatus set(const MObjectArray& boundary, unsigned int index);
    MStatus insert(const MObjectArray& boundary, unsigned int index);
    MStatus append(const MObjectArray& boundary);
    MStatus remove(unsigned int index);
    MStatus clear();

    /// One boundary as one curve, which the host does not make: kNotImplemented.
    MObject getMergedBoundary(unsigned int index, MStatus* status = nullptr) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    MTrimBoundaryArray& operator=(const MTrimBoundaryArray&) = delete;

    std::vector<MObjectArray>* boundaries; ///< owned
    void* reserved;
};
