// MItDependencyGraph: follows connections.
#pragma once

#include <maya/MFn.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MIteratorType;
class MObjectArray;
class MPlugArray;

/// Follows connections from a node or plug, downstream or upstream. At the level of nodes each node is
/// visited once; at that of plugs each plug by which a node is reached, and from there on only those plugs
/// are followed that it affects (or by which it is affected). The root comes first. Items that a filter
/// leaves out are gone through all the same, unless the iteration prunes on its filter.
class OPENMAYA_EXPORT MItDependencyGraph
{
public:
    enum Direction
    {
        kDownstream = 0,
        kUpstream = 1,
    };

    enum Traversal
    {
        kDepthFirst = 0,
        kBreadthFirst = 1,
    };

    enum Level
    {
        kNodeLevel = 0,
        kPlugLevel = 1,
    };

    /// At the root, or the first item that fits the filter; kInvalid asks for all. kInvalidParameter, and no
    /// items, for a root that is no living node or plug.
    MItDependencyGraph(MObject& rootNode, MFn::Type filter = MFn::kInvalid, Direction direction = kDownstream,
                       Traversal traversal = kDepthFirst, Level level = kNodeLevel,
                       MStatus* ReturnStatus = nullptr);
    MItDependencyGraph(MPlug& rootPlug, MFn::Type filter = MFn::kInvalid, Direction direction = kDownstream,
                       Traversal traversal = kDepthFirst, Level level = kPlugLevel,
                       MStatus* ReturnStatus = nullptr);

    /// The same from the root that the information object says, with its filter.
    MItDependencyGraph(MObject& rootNode, MPlug& rootPlug, MIteratorType& infoObject,
                       Direction direction = kDownstream, Traversal traversal = kDepthFirst,
                       Level level = kNodeLevel, MStatus* ReturnStatus = nullptr);

    ~MItDependencyGraph();

    /// Back to the root, or to another one.
    MStatus reset();
    MStatus resetTo(MObject& rootNode, MFn::Type filter = MFn::kInvalid, Direction direction = kDownstream,
                    Traversal traversal = kDepthFirst, Level level = kNodeLevel);
    MStatus resetTo(MPlug& rootPlug, MFn::Type filter = MFn::kInvalid, Direction direction = kDownstream,
                    Traversal traversal = kDepthFirst, Level level = kPlugLevel);
    MStatus resetTo(MObject* rootNode, MPlug* rootPlug, MIteratorType& infoObject,
                    Direction direction = kDownstream, Traversal traversal = kDepthFirst,
                    Level level = kPlugLevel);

    /// The root. The plug is null and the status kFailure when the root is a node.
    MObject rootNode(MStatus* ReturnStatus = nullptr);
    MPlug rootPlug(MStatus* ReturnStatus = nullptr);

    /// What is visited; a change counts from the next item on.
    MFn::Type currentFilter(MStatus* ReturnStatus = nullptr);
    MStatus setCurrentFilter(MFn::Type filter = MFn::kInvalid);
    MStatus resetFilter();

    /// Whether what lies behind an item that the filter leaves out is left out too.
    bool isPruningOnFilter(MStatus* ReturnStatus = nullptr);
    MStatus enablePruningOnFilter();
    MStatus disablePruningOnFilter();

    /// Direction, order and level; to toggle one goes back to the root.
    bool isDirectionDownStream(MStatus* ReturnStatus = nullptr);
    Direction currentDirection(MStatus* ReturnStatus = nullptr);
    MStatus toggleDirection();
    bool isTraversalDepthFirst(MStatus* ReturnStatus = nullptr);
    Traversal currentTraversal(MStatus* ReturnStatus = nullptr);
    MStatus toggleTraversal();
    bool atNodeLevel(MStatus* ReturnStatus = nullptr);
    Level currentLevel(MStatus* ReturnStatus = nullptr);

    /// Whether nodes below a transform count as its dependents downstream. They do not, by default.
    MStatus setTraversalOverWorldSpaceDependents(bool val);
    bool isTraversingOverWorldSpaceDependents(MStatus* ReturnStatus = nullptr);

    MStatus toggleLevel();

    /// Goes to the next item; kFailure at the end.
    MStatus next();

    /// Whether there are no more items.
    bool isDone(MStatus* ReturnStatus = nullptr);

    /// Leaves out what lies behind the present item.
    MStatus prune();

    /// The present node; a null object and kFailure at the end.
    MObject thisNode(MStatus* ReturnStatus = nullptr);
    MObject currentItem(MStatus* ReturnStatus = nullptr);

    /// Whether nobody knows the type of the present node.
    bool thisNodeHasUnknownType(MStatus* ReturnStatus = nullptr);

    /// The plug by which the present node was reached, and the plug of the node before it that is connected
    /// to it. A null plug and kFailure at a root that is a node, and at the end.
    MPlug thisPlug(MStatus* ReturnStatus = nullptr);
    MPlug previousPlug(MStatus* ReturnStatus = nullptr);

    /// Everything visited so far, the present item included.
    MStatus getNodesVisited(MObjectArray& nodesVisted) const;
    MStatus getPlugsVisited(MPlugArray& plugsVisted) const;

    /// The way from the root to the present item, both included.
    MStatus getNodePath(MObjectArray& path) const;
    MStatus getPlugPath(MPlugArray& path) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    MItDependencyGraph(const MItDependencyGraph&) = delete;
    MItDependencyGraph& operator=(const MItDependencyGraph&) = delete;

    tvxhost::api::GraphIteration* iteration; ///< owned
    void* reserved[5];
};
