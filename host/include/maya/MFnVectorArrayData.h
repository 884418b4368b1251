// MFnVectorArrayData: an array of vectors as an object.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnData.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/MVectorArray.h>

class MVector;

/// Function set for data objects that hold an array of vectors.
class OPENMAYA_EXPORT MFnVectorArrayData : public MFnData
{
public:
    /// Attached to nothing.
    MFnVectorArrayData() {}

    /// Attached to such data.
    MFnVectorArrayData(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnVectorArrayData(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnVectorArrayData() override;

    MFn::Type type() const override;

    /// Number of elements.
    unsigned int length(MStatus* ReturnStatus = nullptr) const;

    /// Replaces an element (kInvalidParameter beyond the last) or the whole array.
    MStatus set(MVector& element, unsigned int index);
    MStatus set(const MVectorArray& newArray);

    /// Replaces the contents of the other array.
    MStatus copyTo(MVectorArray& array) const;

    /// The elements inside the object, lent: changes of them change the object, a copy is independent.
    MVectorArray array(MStatus* ReturnStatus = nullptr);

    /// Makes an object, empty or with these elements, and attaches to it.
    MObject create(MStatus* ReturnStatus = nullptr);
    MObject create(const MVectorArray& in, MStatus* ReturnStatus = nullptr);

    /// The element at an index, not checked; a neutral value when the set is attached to nothing.
    const MVector& operator[](unsigned int index) const;
    MVector& operator[](unsigned int index);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
