// MFnStringArrayData: an array of texts as an object.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnData.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MStringArray.h>
#include <maya/MTypes.h>

class MString;

/// Function set for data objects that hold an array of texts.
class OPENMAYA_EXPORT MFnStringArrayData : public MFnData
{
public:
    /// Attached to nothing.
    MFnStringArrayData() {}

    /// Attached to such data.
    MFnStringArrayData(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnStringArrayData(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnStringArrayData() override;

    MFn::Type type() const override;

    /// Number of elements.
    unsigned int length(MStatus* ReturnStatus = nullptr) const;

    /// Replaces an element (kInvalidParameter beyond the last) or the whole array.
    MStatus set(const MString& element, unsigned int index);
    MStatus set(const MStringArray& newArray);

    /// Replaces the contents of the other array.
    MStatus copyTo(MStringArray& array) const;

    /// The elements inside the object, lent: changes of them change the object, a copy is independent.
    MStringArray array(MStatus* ReturnStatus = nullptr);

    /// Makes an object, empty or with these elements, and attaches to it.
    MObject create(MStatus* ReturnStatus = nullptr);
    MObject create(const MStringArray& in, MStatus* ReturnStatus = nullptr);

    /// The element at an index, not checked; a neutral value when the set is attached to nothing.
    const MString& operator[](unsigned int index) const;
    MString& operator[](unsigned int index);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
