// MFnTypedAttribute: text, arrays, geometry and plug-ins' own data.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnAttribute.h>
#include <maya/MFnData.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

class MTypeId;

/// Function set for attributes that hold a piece of data as an object.
class OPENMAYA_EXPORT MFnTypedAttribute : public MFnAttribute
{
public:
    /// Attached to nothing.
    MFnTypedAttribute() {}

    /// Attached to a typed attribute.
    MFnTypedAttribute(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnTypedAttribute(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnTypedAttribute() override;

    MFn::Type type() const override;

    /// Makes an attribute of a built-in data type or of a plug-in's and attaches to it. Without default data
    /// a plug holds none until it is set.
    MObject create(const MString& fullName, const MString& briefName, const MTypeId& id,
                   MObject defaultData = MObject::kNullObj, MStatus* ReturnStatus = nullptr);
    MObject create(const MString& fullName, const MString& briefName, MFnData::Type type,
                   MObject defaultData = MObject::kNullObj, MStatus* ReturnStatus = nullptr);
    MObject create(const MString& fullName, const MString& briefName, MFnData::Type type,
                   MStatus* ReturnStatus);

    /// The type of data.
    MFnData::Type attrType(MStatus* ReturnStatus = nullptr) const;

    /// The default data; a null object when there is none.
    MStatus getDefault(MObject& defaultCustomData);

    /// Sets the default data; kFailure when they are of another type.
    MStatus setDefault(const MObject& defaultCustomData);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
