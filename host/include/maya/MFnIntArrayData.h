// MFnIntArrayData: an array of integers as an object.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnData.h>
#include <maya/MIntArray.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

/// Function set for data objects that hold an array of integers.
class OPENMAYA_EXPORT MFnIntArrayData : public MFnData
{
public:
    /// Attached to nothing.
    MFnIntArrayData() {}

    /// Attached to such data.
    MFnIntArrayData(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnIntArrayData(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnIntArrayData() override;

    MFn::Type type() const override;

    /// Number of elements.
    unsigned int length(MStatus* ReturnStatus = nullptr) const;

    /// The element at an index, not checked; a neutral value when the set is attached to nothing.
    int operator[](unsigned int index) const;
    int& operator[](unsigned int index);

    /// Replaces an element (kInvalidParameter beyond the last) or the whole array.
    MStatus set(int element, unsigned int index);
    MStatus set(const MIntArray& newArray);

    /// Replaces the contents of the other array.
    MStatus copyTo(MIntArray& array) const;

    /// The elements inside the object, lent: changes of them change the object, a copy is independent.
    MIntArray array(MStatus* ReturnStatus = nullptr);

    /// Makes an object, empty or with these elements, and attaches to it.
    MObject create(MStatus* ReturnStatus = nullptr);
    MObject create(const MIntArray& in, MStatus* ReturnStatus = nullptr);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
