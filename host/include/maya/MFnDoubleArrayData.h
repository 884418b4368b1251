// MFnDoubleArrayData: an array of doubles as an object.
#pragma once

#include <maya/MDoubleArray.h>
#include <maya/MFn.h>
#include <maya/MFnData.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

/// Function set for data objects that hold an array of doubles.
class OPENMAYA_EXPORT MFnDoubleArrayData : public MFnData
{
public:
    /// Attached to nothing.
    MFnDoubleArrayData() {}

    /// Attached to such data.
    MFnDoubleArrayData(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnDoubleArrayData(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnDoubleArrayData() override;

    MFn::Type type() const override;

    /// Number of elements.
    unsigned int length(MStatus* ReturnStatus = nullptr) const;

    /// The element at an index, not checked; a neutral value when the set is attached to nothing.
    double operator[](unsigned int index) const;
    double& operator[](unsigned int index);

    /// Replaces an element (kInvalidParameter beyond the last) or the whole array.
    MStatus set(double element, unsigned int index);
    MStatus set(const MDoubleArray& newArray);

    /// Replaces the contents of the other array.
    MStatus copyTo(MDoubleArray& array) const;

    /// The elements inside the object, lent: changes of them change the object, a copy is independent.
    MDoubleArray array(MStatus* ReturnStatus = nullptr);

    /// Makes an object, empty or with these elements, and attaches to it.
    MObject create(MStatus* ReturnStatus = nullptr);
    MObject create(const MDoubleArray& in, MStatus* ReturnStatus = nullptr);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
