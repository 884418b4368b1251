// MDGModifier: changes of the graph that can be taken back.
#pragma once

#include <maya/MFnDependencyNode.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MAngle;
class MDistance;
class MNodeClass;
class MPlug;
class MTime;
class MTypeId;
class Tattribute;
class TattributeList;
class TdependNode;
class Tstring;

/// Queues changes of the graph. doIt() makes them, undoIt() takes them back, and doIt() after that makes them
/// again; a second doIt() makes only those queued since. Queueing fails with kInvalidParameter when an
/// argument is null or cannot be meant; what the graph refuses fails in doIt(), with kFailure. Changes made
/// before the one that failed stay.
class OPENMAYA_EXPORT MDGModifier
{
public:
    /// Nothing queued.
    MDGModifier();

    virtual ~MDGModifier();

    /// Makes a node that is not in the DAG. The object is there at once, the node is in the graph after
    /// doIt().
    MObject createNode(const MTypeId& typeId, MStatus* ReturnStatus = nullptr);
    MObject createNode(const MString& type, MStatus* ReturnStatus = nullptr);

    /// Deletes a node.
    MStatus deleteNode(const MObject& node);

    /// Renames a node, with the rules of MFnDependencyNode::setName().
    MStatus renameNode(const MObject& node, const MString& newName);

    /// Locks or unlocks a node.
    MStatus setNodeLockState(const MObject& node, bool newState);

    /// Connects. A connection that the destination has already is not broken: doIt() fails.
    MStatus connect(const MObject& sourceNode, const MObject& sourceAttr, const MObject& destNode,
                    const MObject& destAttr);
    MStatus connect(const MPlug& source, const MPlug& dest);

    /// Breaks a connection.
    MStatus disconnect(const MObject& sourceNode, const MObject& sourceAttr, const MObject& destNode,
                       const MObject& destAttr);
    MStatus disconnect(const MPlug& source, const MPlug& dest);

    /// Adds an attribute to a node, or removes one.
    MStatus addAttribute(const MObject& node, const MObject& attribute);
    MStatus addAttribute(const MObject& node, const MObject& attribute, MFnDependencyNode::MAttrClass type);
    MStatus removeAttribute(const MObject& node, const MObject& attribute);
    MStatus removeAttribute(const MObject& node, const MObject& attribute,
                            MFnDependencyNode::MAttrClass type);

    /// Ties an extension attribute to a plug-in.
    MStatus linkExtensionAttributeToPlugin(const MObject& plugin, const MObject& attribute);
    MStatus unlinkExtensionAttributeFromPlugin(const MObject& mPlugin, const MObject& mAttribute);

    /// Attributes of all nodes of a type: kNotImplemented.
    MStatus addExtensionAttribute(const MNodeClass& nodeClass, const MObject& attribute);
    MStatus removeExtensionAttribute(const MNodeClass& nodeClass, const MObject& attribute);
    MStatus removeExtensionAttributeIfUnset(const MNodeClass& nodeClass, const MObject& attribute);

    /// Metadata: kNotImplemented.
    MStatus setMetadata(const MObject& node, const adsk::Data::Associations& metadata);
    MStatus deleteMetadata(const MObject& node);

    /// Runs a MEL command.
    MStatus commandToExecute(const MString& command);

    /// The same for Python; kNotImplemented where there is none.
    MStatus pythonCommandToExecute(const MString& command);

    /// Sets a plug.
    MStatus newPlugValue(const MPlug& plug, MObject& plugValue);
    MStatus newPlugValueBool(const MPlug& plug, bool plugValue);
    MStatus newPlugValueChar(const MPlug& plug, char plugValue);
    MStatus newPlugValueDouble(const MPlug& plug, double plugValue);
    MStatus newPlugValueFloat(const MPlug& plug, float plugValue);
    MStatus newPlugValueInt(const MPlug& plug, int plugValue);
    MStatus newPlugValueInt64(const MPlug& plug, MInt64 plugValue);
    MStatus newPlugValueMAngle(const MPlug& plug, const MAngle& plugValue);
    MStatus newPlugValueMDistance(const MPlug& plug, const MDistance& plugValue);
    MStatus newPlugValueMTime(const MPlug& plug, const MTime& plugValue);
    MStatus newPlugValueShort(const MPlug& plug, short plugValue);
    MStatus newPlugValueString(const MPlug& plug, const MString& plugValue);

    /// Removes an element of an array.
    MStatus removeMultiInstance(const MPlug& plug, bool breakConnections);

    /// Makes the queued changes, takes them back.
    MStatus doIt();
    MStatus undoIt();

    /// The name of this class.
    static const char* className();

protected:
    /// For Maya itself.
    MDGModifier(void*);
    MDGModifier(const MDGModifier& other);

    MDGModifier& operator=(const MDGModifier& rhs);

    /// For Maya's own use: kNotImplemented, false.
    bool checkCompoundAttrs(const TattributeList&, const Tstring&, const Tstring&);
    bool attrExistsAtNode(TdependNode*, Tattribute*);

private:
    friend class tvxAccess;

    tvxhost::api::Modifier* modifier; ///< owned
    void* reserved;
};
