// MFnPointArrayData: an array of points as an object.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnData.h>
#include <maya/MObject.h>
#include <maya/MPointArray.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MPoint;

/// Function set for data objects that hold an array of points.
class OPENMAYA_EXPORT MFnPointArrayData : public MFnData
{
public:
    /// Attached to nothing.
    MFnPointArrayData() {}

    /// Attached to such data.
    MFnPointArrayData(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnPointArrayData(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnPointArrayData() override;

    MFn::Type type() const override;

    /// Number of elements.
    unsigned int length(MStatus* ReturnStatus = nullptr) const;

    /// Replaces an element (kInvalidParameter beyond the last) or the whole array.
    MStatus set(MPoint& element, unsigned int index);
    MStatus set(const MPointArray& newArray);

    /// Replaces the contents of the other array.
    MStatus copyTo(MPointArray& array) const;

    /// The elements inside the object, lent: changes of them change the object, a copy is independent.
    MPointArray array(MStatus* ReturnStatus = nullptr);

    /// Makes an object, empty or with these elements, and attaches to it.
    MObject create(MStatus* ReturnStatus = nullptr);
    MObject create(const MPointArray& in, MStatus* ReturnStatus = nullptr);

    /// The element at an index, not checked; a neutral value when the set is attached to nothing.
    MPoint& operator[](unsigned int index);
    const MPoint& operator[](unsigned int index) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
