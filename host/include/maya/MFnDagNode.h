// MFnDagNode: nodes of the hierarchy.
#pragma once

#include <maya/MBoundingBox.h>
#include <maya/MColor.h>
#include <maya/MDagPath.h>
#include <maya/MFn.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MMatrix.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>

class MDagPathArray;
class MObjectArray;
class MStringArray;
class MTypeId;

/// Function set for nodes of the DAG. Built on an object that has several instances it cannot say which one
/// is meant; what concerns one instance or world space needs a set that was built on a path.
class OPENMAYA_EXPORT MFnDagNode : public MFnDependencyNode
{
public:
    enum
    {
        kNextPos = 255,
    };

    /// Where the wireframe's colour comes from.
    enum MObjectColorType
    {
        kUseDefaultColor = 0,
        kUseIndexColor = 1,
        kUseRGBColor = 2,
    };

    /// Attached to nothing.
    MFnDagNode();

    /// Attached to a node, or to one instance of it.
    MFnDagNode(MObject& object, MStatus* ret = nullptr);
    MFnDagNode(const MDagPath& object, MStatus* ret = nullptr);

    MFnDagNode(const MObject& object, MStatus* ret = nullptr);
    ~MFnDagNode() override;

    MFn::Type type() const override;

    /// Makes a node below the parent (the world by default) and attaches to it. A shape without a parent gets
    /// a transform, which is returned.
    MObject create(const MTypeId& typeId, MObject& parent = MObject::kNullObj,
                   MStatus* ReturnStatus = nullptr);
    MObject create(const MTypeId& typeId, const MString& name, MObject& parent = MObject::kNullObj,
                   MStatus* ReturnStatus = nullptr);
    MObject create(const MString& type, MObject& parent = MObject::kNullObj, MStatus* ReturnStatus = nullptr);
    MObject create(const MString& type, const MString& name, MObject& parent = MObject::kNullObj,
                   MStatus* ReturnStatus = nullptr);

    /// Number of direct parents: the number of instances made by direct parenting.
    unsigned int parentCount(MStatus* ReturnStatus = nullptr) const;

    /// A direct parent; the world for a node at the top. A null object and kInvalidParameter beyond the last.
    MObject parent(unsigned int i, MStatus* ReturnStatus = nullptr) const;

    /// Puts a node below this one. Unless existing parents are kept, it is taken away from them.
    MStatus addChild(MObject& child, unsigned int index = kNextPos, bool keepExistingParents = false);

    /// Takes a node away from below this one, to the world when it has no other parent.
    MStatus removeChild(MObject& child);
    MStatus removeChildAt(unsigned int index);

    /// Number of children, shapes and transforms.
    unsigned int childCount(MStatus* ReturnStatus = nullptr) const;

    /// A child, in the order of parenting; a null object and kInvalidParameter beyond the last.
    MObject child(unsigned int i, MStatus* ReturnStatus = nullptr) const;

    /// The world.
    MObject dagRoot(MStatus* ReturnStatus = nullptr);

    /// Whether the node is a direct parent, or a direct child, of this one.
    bool hasParent(const MObject& node, MStatus* ReturnStatus = nullptr) const;
    bool hasChild(const MObject& node, MStatus* ReturnStatus = nullptr) const;

    /// Whether the node is somewhere above, or below, this one.
    bool isChildOf(const MObject& node, MStatus* ReturnStatus = nullptr) const;
    bool isParentOf(const MObject& node, MStatus* ReturnStatus = nullptr) const;

    /// What kind of place the node is at.
    bool inUnderWorld(MStatus* ReturnStatus = nullptr) const;
    bool inModel(MStatus* ReturnStatus = nullptr) const;

    /// Whether the node may have several parents.
    bool isInstanceable(MStatus* ReturnStatus = nullptr) const;
    MStatus setInstanceable(const bool how);

    /// Whether there are several paths to the node; without `indirect` only its own parents count.
    bool isInstanced(bool indirect = true, MStatus* ReturnStatus = nullptr) const;

    /// Whether the attribute has an element for each instance.
    bool isInstancedAttribute(const MObject& attr, MStatus* ReturnStatus = nullptr) const;

    /// Number of instances; with `total` those made further up count too.
    unsigned int instanceCount(bool total, MStatus* ReturnStatus = nullptr) const;

    /// A copy of the node and all below it, or another instance.
    MObject duplicate(bool instance = false, bool instanceLeaf = false,
                      MStatus* ReturnStatus = nullptr) const;

    /// The path that the set was built on; when it was built on an object, the first path to it.
    MStatus getPath(MDagPath& path) const;

    /// All paths to the node, in order of instance numbers.
    MStatus getAllPaths(MDagPathArray& paths) const;

    /// The path as text: from the root, or as short as is unique.
    MString fullPathName(MStatus* ReturnStatus = nullptr) const;
    MString partialPathName(MStatus* ReturnStatus = nullptr) const;

    /// The node's own matrix; the identity when it is no transform.
    MMatrix transformationMatrix(MStatus* ReturnStatus = nullptr) const;

    /// Whether it only serves to make another shape, and is not drawn.
    bool isIntermediateObject(MStatus* ReturnStatus = nullptr) const;
    MStatus setIntermediateObject(bool isIntermediate);

    /// The colour of the wireframe.
    int objectColor(MStatus* ReturnStatus = nullptr) const;
    MStatus setObjectColor(int color);
    MStatus setObjectColor(const MColor& color);
    bool usingObjectColor(MStatus* ReturnStatus = nullptr) const;
    MStatus setUseObjectColor(bool useObjectColor);
    MObjectColorType objectColorType(MStatus* ReturnStatus = nullptr) const;
    MStatus setObjectColorType(MObjectColorType type);
    MColor objectColorRGB(MStatus* ReturnStatus = nullptr) const;
    int objectColorIndex(MStatus* ReturnStatus = nullptr) const;
    MColor hiliteColor(MStatus* ReturnStatus = nullptr) const;
    bool usingHiliteColor(MStatus* ReturnStatus = nullptr) const;
    MColor dormantColor(MStatus* ReturnStatus = nullptr) const;
    MColor activeColor(MStatus* ReturnStatus = nullptr) const;

    /// How drawing is overridden by display attributes.
    bool drawOverrideEnabled(MStatus* ReturnStatus = nullptr) const;
    bool drawOverrideIsReference(MStatus* ReturnStatus = nullptr) const;
    bool drawOverrideIsTemplate(MStatus* ReturnStatus = nullptr) const;
    bool drawOverrideColor(MColor& color, MStatus* ReturnStatus = nullptr) const;

    /// The sets that an instance belongs to, with the components that do.
    MStatus getConnectedSetsAndMembers(unsigned int instanceNumber, MObjectArray& sets, MObjectArray& comps,
                                       bool renderableSetsOnly) const;

    /// The box around the node in its own space.
    MBoundingBox boundingBox(MStatus* ReturnStatus = nullptr) const;

    /// The path that the set was built on; kFailure when it was built on an object.
    MDagPath dagPath(MStatus* ReturnStatus = nullptr) const;

    /// Attaches to another node, or to one instance of it.
    virtual MStatus setObject(const MDagPath& path);
    MStatus setObject(MObject& object) override;
    MStatus setObject(const MObject& object) override;

    /// The world.
    MObject model(MStatus* ReturnStatus = nullptr) const;

    /// The components of a group, as text.
    MStatus objectGroupComponent(unsigned int groupId, MStringArray&);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    MDagPath path; ///< the path that the set was built on; not valid when it was built on an object
    void* reservedWords[2];
};
