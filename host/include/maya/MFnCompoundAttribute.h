// MFnCompoundAttribute: attributes with children.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnAttribute.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

class MStringArray;

/// Function set for attributes that are made of other attributes.
class OPENMAYA_EXPORT MFnCompoundAttribute : public MFnAttribute
{
public:
    /// Attached to nothing.
    MFnCompoundAttribute() {}

    /// Attached to a compound attribute.
    MFnCompoundAttribute(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnCompoundAttribute(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnCompoundAttribute() override;

    MFn::Type type() const override;

    /// Makes a compound without children and attaches to it.
    MObject create(const MString& full, const MString& brief, MStatus* ReturnStatus = nullptr);

    /// Adds a child at the end, or takes one out. Children are added before the compound is added to a node.
    MStatus addChild(const MObject& child);
    MStatus removeChild(const MObject& child);

    /// Number of children.
    unsigned int numChildren(MStatus* ReturnStatus = nullptr) const;

    /// The child at an index; kInvalidParameter beyond the last.
    MObject child(unsigned int index, MStatus* ReturnStatus = nullptr) const;

    /// The `addAttr` commands that make the compound and its children, in order.
    MStatus getAddAttrCmds(MStringArray& cmds, bool useLongNames = false) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
