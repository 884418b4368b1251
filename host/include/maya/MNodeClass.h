// MNodeClass: a type of node.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypeId.h>
#include <maya/MTypes.h>

class MObject;
class MObjectArray;
class MString;

/// A type of node, without any node of it.
class OPENMAYA_EXPORT MNodeClass
{
public:
    /// By name or number. Of a type that nobody knows all members fail and the names are empty.
    MNodeClass(const MString& nodeClassName);
    MNodeClass(const MTypeId& nodeTypeId);

    /// Number and name.
    MTypeId typeId() const;
    MString typeName() const;

    /// Where the type belongs: a list, separated by colons.
    MString classification() const;

    /// Adds to that list, or removes from it. kFailure when there is nothing to remove.
    MStatus addToClassification(const MString& str);
    MStatus removeFromClassification(const MString& str);

    /// The plug-in that registered the type; empty for built-in types.
    MString pluginName(MStatus* ReturnStatus = nullptr) const;

    /// Adds an attribute to all nodes of the type, or removes it. The host has none such: kNotImplemented.
    MStatus addExtensionAttribute(const MObject& attr) const;
    MStatus removeExtensionAttribute(const MObject& attr) const;
    MStatus removeExtensionAttributeIfUnset(const MObject& attr) const;

    /// All attributes, those inherited and those inside compounds included, in the order in which they were
    /// added.
    MStatus getAttributes(MObjectArray& attr) const;
    unsigned int attributeCount(MStatus* ReturnStatus = nullptr) const;

    /// One of them, by index or by long or short name; a null object and kInvalidParameter when there is
    /// none.
    MObject attribute(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MObject attribute(const MString& attrName, MStatus* ReturnStatus = nullptr) const;
    bool hasAttribute(const MString& attrName, MStatus* ReturnStatus = nullptr) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    MTypeId id;
};
