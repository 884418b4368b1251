// MItDag: goes through the hierarchy.
#pragma once

#include <maya/MFn.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MDagPath;
class MDagPathArray;
class MIteratorType;

/// Goes through the DAG from a root downwards, each instance on its own path, or through those nodes to which
/// a function set of one type can be attached. The world comes first.
class OPENMAYA_EXPORT MItDag
{
public:
    /// Children before siblings, or siblings first.
    enum TraversalType
    {
        kInvalidType = 0,
        kDepthFirst = 1,
        kBreadthFirst = 2,
    };

    /// At the world; kInvalid asks for all nodes.
    MItDag(TraversalType = kDepthFirst, MFn::Type type = MFn::kInvalid, MStatus* ReturnStatus = nullptr);

    /// At the world, over what the information object asks for.
    MItDag(MIteratorType& dagInfoObject, TraversalType = kDepthFirst, MStatus* ReturnStatus = nullptr);

    virtual ~MItDag();

    /// Back to the root, or to another one.
    MStatus reset();
    MStatus reset(const MObject& object, TraversalType = kDepthFirst, MFn::Type type = MFn::kInvalid);
    MStatus reset(const MDagPath& path, TraversalType = kDepthFirst, MFn::Type type = MFn::kInvalid);

    /// To the root that the information object says, over what it asks for.
    MStatus reset(MIteratorType& dagInfoObject, const MObject* object, const MDagPath* path,
                  TraversalType = kDepthFirst);

    /// Obsolete: as currentItem.
    MObject item(MStatus* ReturnStatus = nullptr);

    /// The present node; a null object and kFailure at the end.
    MObject currentItem(MStatus* ReturnStatus = nullptr);

    /// Goes to the next node.
    MStatus next();

    /// Leaves out what is below the present node.
    MStatus prune();

    /// Whether there are no more nodes.
    bool isDone(MStatus* ReturnStatus = nullptr) const;

    /// Where the iteration began.
    MObject root(MStatus* ReturnStatus = nullptr);

    /// How far below the root the present node is; 0 for the root.
    unsigned int depth(MStatus* ReturnStatus = nullptr) const;

    /// The order of the iteration.
    TraversalType getType(MStatus* ReturnStatus = nullptr) const;

    /// The path to the present node, or all paths to it.
    MStatus getPath(MDagPath& path) const;
    MStatus getAllPaths(MDagPathArray& paths) const;

    /// The path as text: from the root of the scene, or as short as is unique.
    MString fullPathName(MStatus* ReturnStatus = nullptr) const;
    MString partialPathName(MStatus* ReturnStatus = nullptr) const;

    /// Whether there are several paths to the present node, and how many.
    bool isInstanced(bool indirect = true, MStatus* ReturnStatus = nullptr) const;
    unsigned int instanceCount(bool total, MStatus* ReturnStatus = nullptr) const;

    /// Whether the spaces of surfaces are entered. They are not, by default.
    MStatus traverseUnderWorld(bool flag);
    bool willTraverseUnderWorld(MStatus* ReturnStatus = nullptr) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    MItDag(const MItDag&) = delete;
    MItDag& operator=(const MItDag&) = delete;

    tvxhost::api::DagIteration* iteration; ///< owned
    void* reserved[5];
};
