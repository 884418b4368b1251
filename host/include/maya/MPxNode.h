// MPxNode: base class of a plug-in's nodes.
#pragma once

#include <maya/MDGContext.h>
#include <maya/MDataBlock.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>
#include <maya/MTypeId.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MDataHandle;
class MEvaluationNode;
class MExternalContentInfoTable;
class MExternalContentLocationTable;
class MPlugArray;

/// Base class of a node type that a plug-in defines. Maya makes an instance through the creator for every
/// node of the type, attaches it to the node after its constructor has run, then calls postConstructor(), and
/// deletes it together with the node.
///
/// Attributes are static members, made and added in the type's initialise function.
class OPENMAYA_EXPORT MPxNode
{
public:
    /// What a node type is built upon.
    enum Type
    {
        kDependNode = 0,
        kLocatorNode = 1,
        kDeformerNode = 2,
        kManipContainer = 3,
        kSurfaceShape = 4,
        kFieldNode = 5,
        kEmitterNode = 6,
        kSpringNode = 7,
        kIkSolverNode = 8,
        kHardwareShader = 9,
        kHwShaderNode = 10,
        kTransformNode = 11,
        kObjectSet = 12,
        kFluidEmitterNode = 13,
        kImagePlaneNode = 14,
        kParticleAttributeMapperNode = 15,
        kCameraSetNode = 16,
        kConstraintNode = 17,
        kManipulatorNode = 18,
        kMotionPathNode = 19,
        kClientDeviceNode = 20,
        kThreadedDeviceNode = 21,
        kAssembly = 22,
        kSkinCluster = 23,
        kGeometryFilter = 24,
        kBlendShape = 25,
        kLast = 26,
    };

    /// How a node was brought up to date.
    enum PostEvaluationEnum
    {
        kEvaluatedIndirectly = 0,
        kEvaluatedDirectly = 1,
        kLeaveDirty = 2,
        kPostEvaluationTypeLast = 3,
    };

    /// Which nodes may be evaluated at the same time as this one.
    enum SchedulingType
    {
        kParallel = 0,
        kSerialize = 1,
        kGloballySerialize = 2,
        kUntrusted = 3,
        kDefaultScheduling = 4,
    };

    typedef unsigned int PostEvaluationType;

    /// The node is not there yet: only members of the class itself can be used.
    MPxNode();

    virtual ~MPxNode();

    /// Called once when the node is there and has its attributes.
    virtual void postConstructor();

    /// Computes the plug from the values in the block and marks it clean. kUnknownParameter for a plug that
    /// is not computed here; Maya then looks further.
    virtual MStatus compute(const MPlug& plug, MDataBlock& dataBlock);

    // The stand-in host keeps the values of internal attributes as all others and calls none of the
    // following; it warns of such attributes when their type is registered.
    /// For attributes with the internal flag: hands out a value that the class keeps. True when it did.
    virtual bool getInternalValueInContext(const MPlug& plug, MDataHandle& dataHandle, MDGContext& ctx);

    /// For attributes with the internal flag: takes over a value. True when it did; then Maya stores nothing.
    virtual bool setInternalValueInContext(const MPlug& plug, const MDataHandle& dataHandle, MDGContext& ctx);

    /// Obsolete: as above without the context.
    virtual bool getInternalValue(const MPlug& plug, MDataHandle& dataHandle);
    virtual bool setInternalValue(const MPlug& plug, const MDataHandle& dataHandle);

    /// For internal arrays: how many elements there are, -1 when Maya is to count.
    virtual int internalArrayCount(const MPlug& plug, const MDGContext& ctx) const;

    /// Called on a duplicate with the node that it was made from.
    virtual void copyInternalData(MPxNode* other);

    /// Whether a connection of this node's plug may be made, or broken. kUnknownParameter leaves it to Maya.
    virtual MStatus legalConnection(const MPlug& plug, const MPlug& otherPlug, bool asSrc,
                                    bool& isLegal) const;
    virtual MStatus legalDisconnection(const MPlug& plug, const MPlug& otherPlug, bool asSrc,
                                       bool& isLegal) const;

    /// Adds to the array plugs that become dirty together with `plug`.
    virtual MStatus setDependentsDirty(const MPlug& plug, MPlugArray& plugArray);

    /// Called before, and after, the node is brought up to date by the evaluation manager.
    virtual MStatus preEvaluation(const MDGContext& context, const MEvaluationNode& evaluationNode);
    virtual MStatus postEvaluation(const MDGContext& context, const MEvaluationNode& evaluationNode,
                                   PostEvaluationType evalType);

    /// kDefaultScheduling leaves it to Maya.
    virtual SchedulingType schedulingType() const;

    /// Called when a connection of this node has been made, or broken. kUnknownParameter leaves it to Maya.
    virtual MStatus connectionMade(const MPlug& plug, const MPlug& otherPlug, bool asSrc);
    virtual MStatus connectionBroken(const MPlug& plug, const MPlug& otherPlug, bool asSrc);

    /// Whether the plug can be set although the node computes it.
    virtual bool isPassiveOutput(const MPlug& plug) const;

    /// Whether the value is written to the scene. kUnknownParameter leaves it to Maya.
    virtual MStatus shouldSave(const MPlug& plug, bool& isSaving);

    /// The output to which an input is handed on when the node has no effect.
    virtual MPlug passThroughToOne(const MPlug& plug) const;
    virtual bool passThroughToMany(const MPlug& plug, MPlugArray& plugArray) const;

    /// What the node type is built upon.
    virtual Type type() const;

    /// Whether no nodes of this type can be made.
    virtual bool isAbstractClass() const;

    /// In the initialise function: adds an attribute to the type. kFailure when a name is taken.
    static MStatus addAttribute(const MObject& attr);

    /// In the initialise function: takes over the attributes of another plug-in type.
    static MStatus inheritAttributesFrom(const MString& parentClassName);

    /// In the initialise function: a change of the first attribute makes the second dirty. kFailure when one
    /// is not on the type, or the second is keyable.
    static MStatus attributeAffects(const MObject& whenChanges, const MObject& isAffected);

    /// The files that belong to this node.
    virtual MStringArray getFilesToArchive(bool shortName = false, bool unresolvedName = false,
                                           bool markCouldBeImageSequence = false) const;

    /// Tables of files that belong to this node.
    virtual void getExternalContent(MExternalContentInfoTable& table) const;
    virtual void setExternalContent(const MExternalContentLocationTable& table);

    /// For those two: the path in one attribute of this node, under the attribute's long name. False for an
    /// attribute that holds none, or a key that is there already, or is not.
    bool addExternalContentForFileAttr(MExternalContentInfoTable& table, const MObject& attr) const;
    bool setExternalContentForFileAttr(const MObject& attr, const MExternalContentLocationTable& table);

    /// For Maya's own use of the protected members below.
    MDataBlock _forceCache(MDGContext& ctx = MDGContext::fsNormal) { return forceCache(ctx); }
    void _setMPSafe(bool flag) { setMPSafe(flag); }
    void _setDoNotWrite(bool flag) { setDoNotWrite(flag); }
    bool _doNotWrite() { return doNotWrite(); }

    /// The type's number and name, and the node's name.
    virtual MTypeId typeId() const;
    virtual MString typeName() const;
    virtual MString name() const;

    /// The node; a null object in the constructor.
    virtual MObject thisMObject() const;

    /// Whether the node is deleted together with its last incoming, or outgoing, connection.
    virtual MStatus setExistWithoutInConnections(bool flag);
    virtual bool existWithoutInConnections(MStatus* ReturnStatus = nullptr) const;
    virtual MStatus setExistWithoutOutConnections(bool flag);
    virtual bool existWithoutOutConnections(MStatus* ReturnStatus = nullptr) const;

    /// The name of this class.
    static const char* className();

    static MObject message; ///< attributes that every node has
    static MObject isHistoricallyInteresting;
    static MObject caching;
    static MObject state;
    static MObject frozen;

protected:
    /// The values of this node in a context.
    virtual MDataBlock forceCache(MDGContext& ctx = MDGContext::fsNormal);

    /// Obsolete: whether shading may call the node from several threads.
    virtual void setMPSafe(bool flag);

    /// Whether the node is left out of saved scenes.
    virtual MStatus setDoNotWrite(bool flag);
    virtual bool doNotWrite(MStatus* ReturnStatus = nullptr) const;

private:
    friend class tvxAccess;

    tvxhost::engine::Node* node; ///< not owned: the node owns this object; null in the constructor
    void* reserved;
};
