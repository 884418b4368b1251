// MFnEnumAttribute: a choice among named fields.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnAttribute.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

/// Function set for attributes that hold one of several named values. The range runs from the smallest to the
/// largest field.
class OPENMAYA_EXPORT MFnEnumAttribute : public MFnAttribute
{
public:
    /// Attached to nothing.
    MFnEnumAttribute() {}

    /// Attached to an enumerated attribute.
    MFnEnumAttribute(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnEnumAttribute(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnEnumAttribute() override;

    MFn::Type type() const override;

    /// Makes an attribute without fields and attaches to it.
    MObject create(const MString& fullName, const MString& briefName, short defaultValue = 0,
                   MStatus* ReturnStatus = nullptr);

    /// Adds a field; the name may hold blanks.
    MStatus addField(const MString& fieldString, short index);

    /// The name of the field with this value; empty text and kInvalidParameter when there is none.
    MString fieldName(short index, MStatus* ReturnStatus = nullptr) const;

    /// The value of the field with this name; kInvalidParameter when there is none.
    short fieldIndex(const MString& fieldString, MStatus* ReturnStatus = nullptr) const;

    /// The smallest and the largest value; kFailure when there are no fields.
    MStatus getMin(short& minValue) const;
    MStatus getMax(short& maxValue) const;

    /// Sets the default by value or by name.
    MStatus setDefault(short index);
    MStatus setDefault(const MString& fieldString);

    /// The default as value or as name.
    MStatus getDefault(short& index) const;
    MStatus getDefault(MString& fieldString) const;

    /// The name of the default's field.
    MString defaultValue(MStatus* ReturnStatus = nullptr) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
