// MFnMessageAttribute: connections without a value.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnAttribute.h>
#include <maya/MObject.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

class MStatus;

/// Function set for attributes that hold nothing and serve to connect nodes.
class OPENMAYA_EXPORT MFnMessageAttribute : public MFnAttribute
{
public:
    /// Attached to nothing.
    MFnMessageAttribute() {}

    /// Attached to a message attribute.
    MFnMessageAttribute(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnMessageAttribute(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnMessageAttribute() override;

    MFn::Type type() const override;

    /// Makes an attribute and attaches to it.
    MObject create(const MString& fullName, const MString& briefName, MStatus* ReturnStatus = nullptr);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
