// MFnGenericAttribute: data of several types.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnAttribute.h>
#include <maya/MFnData.h>
#include <maya/MFnNumericData.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

class MTypeId;

/// Function set for attributes that take data of any of several types.
class OPENMAYA_EXPORT MFnGenericAttribute : public MFnAttribute
{
public:
    /// Attached to nothing.
    MFnGenericAttribute() {}

    /// Attached to a generic attribute.
    MFnGenericAttribute(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnGenericAttribute(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnGenericAttribute() override;

    MFn::Type type() const override;

    /// Makes an attribute that takes nothing yet and attaches to it.
    MObject create(const MString& full, const MString& brief, MStatus* ReturnStatus = nullptr);

    /// Adds a type of data that plugs of this attribute take.
    MStatus addDataAccept(MFnData::Type newType);
    MStatus addNumericDataAccept(MFnNumericData::Type newType);

    /// A plug-in's type of data; the other forms are obsolete.
    MStatus addAccept(const MTypeId& id);
    MStatus addAccept(MFnData::Type newType);
    MStatus addAccept(MFnNumericData::Type newType);

    /// Takes a type out again.
    MStatus removeDataAccept(MFnData::Type oldType);
    MStatus removeNumericDataAccept(MFnNumericData::Type oldType);
    MStatus removeAccept(const MTypeId& id);
    MStatus removeAccept(MFnData::Type oldType);
    MStatus removeAccept(MFnNumericData::Type oldType);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
