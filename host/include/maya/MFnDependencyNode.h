// MFnDependencyNode: nodes of the dependency graph.
#pragma once

#include <maya/MFn.h>
#include <maya/MFnBase.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>
#include <maya/MTypes.h>
#include <maya/MUuid.h>

class MCallbackIdArray;
class MDoubleArray;
class MExternalContentInfoTable;
class MExternalContentLocationTable;
class MObjectArray;
class MPlugArray;
class MPxNode;
class MStringArray;

namespace adsk {
namespace Data {
class Associations;
}
} // namespace adsk

/// Function set for nodes: name, type, attributes, plugs and connections. Names are given without DAG path.
/// What is done here cannot be undone.
class OPENMAYA_EXPORT MFnDependencyNode : public MFnBase
{
public:
    /// Whether an attribute belongs to the type, to one node, or to all nodes of a type by extension.
    enum MAttrClass
    {
        kLocalDynamicAttr = 1,
        kNormalAttr = 2,
        kExtensionAttr = 3,
        kInvalidAttr = 4,
    };

    /// Measuring of the graph's time.
    enum MdgTimerState
    {
        kTimerOff = 0,
        kTimerOn = 1,
        kTimerUninitialized = 2,
        kTimerInvalidState = 3,
    };

    enum MdgTimerMetric
    {
        kTimerMetric_callback = 0,
        kTimerMetric_compute = 1,
        kTimerMetric_dirty = 2,
        kTimerMetric_draw = 3,
        kTimerMetric_fetch = 4,
        kTimerMetric_callbackViaAPI = 5,
        kTimerMetric_callbackNotViaAPI = 6,
        kTimerMetric_computeDuringCallback = 7,
        kTimerMetric_computeNotDuringCallback = 8,
        kTimerMetrics = 9,
    };

    enum MdgTimerType
    {
        kTimerType_self = 0,
        kTimerType_inclusive = 1,
        kTimerType_count = 2,
        kTimerTypes = 3,
    };

    /// Attached to nothing.
    MFnDependencyNode() {}

    /// Attached to a node.
    MFnDependencyNode(MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);

    MFnDependencyNode(const MObject& object, MStatus* ReturnStatus TVX_OPTIONAL_STATUS);
    ~MFnDependencyNode() override;

    MFn::Type type() const override;

    /// Makes a node and attaches to it. For a DAG type a transform is made too.
    MObject create(const MTypeId& typeId, MStatus* ReturnStatus = nullptr);
    MObject create(const MTypeId& typeId, const MString& name, MStatus* ReturnStatus = nullptr);
    MObject create(const MString& type, MStatus* ReturnStatus = nullptr);
    MObject create(const MString& type, const MString& name, MStatus* ReturnStatus = nullptr);

    /// The number and the name of the node's type, as registered.
    MTypeId typeId(MStatus* ReturnStatus = nullptr) const;
    MString typeName(MStatus* ReturnStatus = nullptr) const;

    /// The node's name with its namespace, without DAG path.
    MString name(MStatus* ReturnStatus = nullptr) const;

    /// The plug-in that defines the type; empty for built-in types.
    MString pluginName(MStatus* ReturnStatus = nullptr) const;

    /// Renames the node and returns the new name. A name that is taken gets a number; a trailing # stands for
    /// the next free number; characters that are not allowed become underscores.
    MString setName(const MString& name, bool createNamespace = false, MStatus* ReturnStatus = nullptr);

    MString setName(const MString& name, MStatus* ReturnStatus);

    /// The node's identity.
    MUuid uuid(MStatus* ReturnStatus = nullptr) const;
    void setUuid(const MUuid& uuid, MStatus* ReturnStatus = nullptr);

    /// The plugs of this node that have connections, in either direction.
    MStatus getConnections(MPlugArray& array) const;

    /// Number of attributes.
    unsigned int attributeCount(MStatus* ReturnStatus = nullptr) const;

    /// An attribute by its position or by its long or short name; a null object and kInvalidParameter when
    /// there is none.
    MObject attribute(unsigned int index, MStatus* ReturnStatus = nullptr) const;
    MObject attribute(const MString& attrName, MStatus* ReturnStatus = nullptr) const;

    /// An attribute by its position in the order of the attribute editor.
    MObject reorderedAttribute(unsigned int index, MStatus* ReturnStatus = nullptr) const;

    /// How the attribute came to the node.
    MAttrClass attributeClass(const MObject& attr, MStatus* ReturnStatus = nullptr) const;

    /// The attributes that this one makes dirty, or that make it dirty.
    MStatus getAffectedAttributes(const MObject& attr, MObjectArray& affectedAttributes) const;
    MStatus getAffectedByAttributes(const MObject& attr, MObjectArray& affectedByAttributes) const;

    /// The plug of an attribute, by object or by long or short name: with wantNetworkedPlug the one that the
    /// graph holds, if there is one. A null plug and kInvalidParameter when the node has no such attribute.
    /// The forms without the flag are obsolete.
    MPlug findPlug(const MObject& attr, bool wantNetworkedPlug, MStatus* ReturnStatus = nullptr) const;
    MPlug findPlug(const MString& attrName, bool wantNetworkedPlug, MStatus* ReturnStatus = nullptr) const;
    MPlug findPlug(const MObject& attr, MStatus* ReturnStatus = nullptr) const;
    MPlug findPlug(const MString& attrName, MStatus* ReturnStatus = nullptr) const;

    /// Adds an attribute to this node, or removes one that was added.
    MStatus addAttribute(const MObject& attr);
    MStatus addAttribute(const MObject& attr, MAttrClass type);
    MStatus removeAttribute(const MObject& attr);
    MStatus removeAttribute(const MObject& attr, MAttrClass type);

    /// The plug-in's object of the node; null for built-in types.
    MPxNode* userNode(MStatus* ReturnStatus = nullptr) const;

    /// Where the node comes from and what may be done with it.
    bool isFromReferencedFile(MStatus* ReturnStatus = nullptr) const;
    bool isShared(MStatus* ReturnStatus = nullptr) const;
    bool isTrackingEdits(MStatus* ReturnStatus = nullptr) const;
    bool hasUniqueName(MStatus* ReturnStatus = nullptr) const;

    /// The namespace of the node; empty for the root.
    MString parentNamespace(MStatus* ReturnStatus = nullptr) const;

    /// Whether the node is protected from renaming, deleting and changes of its attributes.
    bool isLocked(MStatus* ReturnStatus = nullptr) const;
    MStatus setLocked(bool locked);

    /// The classification of a node type, as registered.
    static MString classification(const MString& nodeTypeName);

    /// Whether the attribute was added to this node in this scene rather than in a referenced file.
    bool isNewAttribute(const MObject& attr, MStatus* ReturnStatus = nullptr) const;

    /// Flags of a plug-in on nodes, kept for the session.
    static unsigned int allocateFlag(const MString pluginName, MStatus* ReturnStatus = nullptr);
    static MStatus deallocateFlag(const MString pluginName, unsigned int flag);
    static MStatus deallocateAllFlags(const MString pluginName);
    MStatus setFlag(unsigned int flag, bool state);
    bool isFlagSet(unsigned int flag, MStatus* ReturnStatus = nullptr) const;

    /// Whether Maya made the node by itself.
    bool isDefaultNode(MStatus* ReturnStatus = nullptr) const;

    /// Whether the node is left out of saved scenes.
    MStatus setDoNotWrite(bool flag);
    bool canBeWritten(MStatus* ReturnStatus = nullptr) const;

    /// Whether there is an attribute of this long or short name.
    bool hasAttribute(const MString& name, MStatus* ReturnStatus = nullptr) const;

    /// Other names for plugs of this node.
    MObject getAliasAttr(bool force, MStatus* ReturnStatus = nullptr);
    bool setAlias(const MString& alias, const MString& name, const MPlug& plug, bool add = true,
                  MStatus* ReturnStatus = nullptr);
    bool findAlias(const MString& alias, MObject& attrObj, MStatus* ReturnStatus = nullptr) const;
    bool getAliasList(MStringArray& strArray, MStatus* ReturnStatus = nullptr);
    MString plugsAlias(const MPlug& plug, MStatus* ReturnStatus = nullptr);

    /// The picture that the user interface shows for the node.
    MStatus setIcon(const MString& filename);
    MString icon(MStatus* ReturnStatus = nullptr) const;

    /// The other name of a plug; false when there is none.
    bool getPlugsAlias(const MPlug& plug, MString& aliasName, MStatus* ReturnStatus = nullptr);

    /// Metadata, which this host does not keep: null, kNotImplemented.
    virtual const adsk::Data::Associations* metadata(MStatus* ReturnStatus = nullptr) const;
    virtual MStatus setMetadata(const adsk::Data::Associations& value);
    virtual MStatus deleteMetadata();
    virtual MStatus validateMetadata(MString& errors) const;

    /// Measuring of time spent in this node.
    static void enableDGTiming(bool enable);
    MStatus dgTimerOn();
    MStatus dgTimerOff();
    MdgTimerState dgTimerQueryState(MStatus* ReturnStatus = nullptr);
    MStatus dgTimerReset();
    double dgTimer(const MdgTimerMetric timerMetric, const MdgTimerType timerType,
                   MStatus* ReturnStatus = nullptr) const;
    MStatus dgCallbacks(const MdgTimerType type, MStringArray& callbackName, MDoubleArray& value);
    MStatus dgCallbackIds(const MdgTimerType type, const MString& callbackName, MCallbackIdArray& callbackId,
                          MDoubleArray& value);

    /// The files that the node needs, as its type tells them; of a type that tells none the paths in the
    /// attributes that are used as file names, each under the attribute's long name.
    MStatus getExternalContent(MExternalContentInfoTable& table) const;

    /// Adds the path in one attribute; kInvalidParameter for an attribute that the node has not, that is no
    /// text, or that is there already.
    MStatus addExternalContentForFileAttr(MExternalContentInfoTable& table, const MObject& attr) const;

    /// Has the node take its files from elsewhere, or the one in an attribute: kInvalidParameter when it is
    /// not in the table.
    MStatus setExternalContentForFileAttr(const MObject& attr, const MExternalContentLocationTable& table);
    MStatus setExternalContent(const MExternalContentLocationTable& table);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;
};
