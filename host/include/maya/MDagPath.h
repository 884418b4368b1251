// MDagPath: one place of a node in the hierarchy.
#pragma once

#include <maya/MFn.h>
#include <maya/MMatrix.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MDagPathArray;

/// A path from the world to a node: says which instance of the node is meant. Calls on a path that is not
/// valid fail.
class OPENMAYA_EXPORT MDagPath
{
public:
    /// A path that is not valid.
    MDagPath();
    MDagPath(const MDagPath& src);

    virtual ~MDagPath();

    MDagPath& operator=(const MDagPath& src);

    /// All paths to a node, by instance number.
    static MStatus getAllPathsTo(const MObject& node, MDagPathArray& pathArray);

    /// The first path to a node; kInvalidParameter when it is no node of the DAG.
    static MStatus getAPathTo(const MObject& node, MDagPath& path);
    static MDagPath getAPathTo(const MObject& node, MStatus* ReturnStatus = nullptr);

    /// Whether a function set of this type can be attached: that of the node at the end or, when it is a
    /// transform, that of the shape directly below it.
    bool hasFn(MFn::Type type, MStatus* ReturnStatus = nullptr) const;

    /// The type of the node at the end; kInvalid when the path is not valid.
    MFn::Type apiType(MStatus* ReturnStatus = nullptr) const;

    /// Whether the path leads to a node.
    bool isValid(MStatus* ReturnStatus = nullptr) const;

    /// The node at the end.
    MObject node(MStatus* ReturnStatus = nullptr) const;

    /// The last transform of the path.
    MObject transform(MStatus* ReturnStatus = nullptr) const;

    /// Number of nodes, without the world.
    unsigned int length(MStatus* ReturnStatus = nullptr) const;

    /// Goes on to the shape directly below; a path that ends at a shape stays. kFailure, and no change, when
    /// there is none.
    MStatus extendToShape();

    /// Goes on to the n-th shape directly below; kInvalidParameter beyond the last.
    MStatus extendToShapeDirectlyBelow(unsigned int);

    /// How many shapes there are directly below.
    MStatus numberOfShapesDirectlyBelow(unsigned int&) const;

    /// Goes on to a child; kInvalidParameter when the node is none.
    MStatus push(const MObject& child);

    /// Goes back by so many nodes; kFailure when there are not so many.
    MStatus pop(unsigned int num = 1);

    /// Number of children of the last node.
    unsigned int childCount(MStatus* ReturnStatus = nullptr) const;

    /// A child of the last node.
    MObject child(unsigned int i, MStatus* ReturnStatus = nullptr) const;

    /// The matrix from the last node's space to the world; without the last node itself in the exclusive
    /// form.
    MMatrix inclusiveMatrix(MStatus* ReturnStatus = nullptr) const;
    MMatrix exclusiveMatrix(MStatus* ReturnStatus = nullptr) const;
    MMatrix inclusiveMatrixInverse(MStatus* ReturnStatus = nullptr) const;
    MMatrix exclusiveMatrixInverse(MStatus* ReturnStatus = nullptr) const;

    /// Whether both lead to the same instance of the same node.
    bool operator==(const MDagPath& src) const;

    /// As the assignment.
    MStatus set(const MDagPath& src);

    /// Number of sub-paths: 1, unless the path enters the space of a surface.
    unsigned int pathCount(MStatus* ReturnStatus = nullptr) const;

    /// A sub-path.
    MStatus getPath(MDagPath& path, unsigned int i = 0) const;

    /// The names of all nodes, each after a vertical bar, or the shortest end of it that is unique.
    MString fullPathName(MStatus* ReturnStatus = nullptr) const;
    MString partialPathName(MStatus* ReturnStatus = nullptr) const;

    /// Whether the node has several paths, and the number of this one, from 0.
    bool isInstanced(MStatus* ReturnStatus = nullptr) const;
    unsigned int instanceNumber(MStatus* ReturnStatus = nullptr) const;

    /// Whether all nodes of the path are visible, and whether one of them is a template.
    bool isVisible(MStatus* ReturnStatus = nullptr) const;
    bool isTemplated(MStatus* ReturnStatus = nullptr) const;

    /// How the last node is shown, as M3dView::DisplayStatus.
    unsigned int getDisplayStatus() const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    tvxhost::engine::DagPath* path; ///< owned; null when not valid
};
