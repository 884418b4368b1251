// MItDependencyNodes: goes through all nodes.
#pragma once

#include <maya/MFn.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/tvxEngine.h>

class MIteratorType;

/// Goes through all nodes of the graph, or through those to which a function set of one type can be attached.
class OPENMAYA_EXPORT MItDependencyNodes
{
public:
    /// At the first node; kInvalid asks for all nodes.
    MItDependencyNodes(MFn::Type filter = MFn::kInvalid, MStatus* ReturnStatus = nullptr);

    /// At the first node that the information object asks for.
    MItDependencyNodes(MIteratorType& infoObject, MStatus* ReturnStatus = nullptr);

    virtual ~MItDependencyNodes();

    /// Back to the first node.
    MStatus reset(MFn::Type filter = MFn::kInvalid);
    MStatus reset(MIteratorType& infoObject);

    /// The present node; a null object and kFailure at the end.
    MObject thisNode(MStatus* ReturnStatus = nullptr) const;

    /// Goes to the next node; kFailure at the end.
    MStatus next();

    /// Whether there are no more nodes.
    bool isDone(MStatus* ReturnStatus = nullptr) const;

    /// Obsolete: as thisNode.
    MObject item(MStatus* ReturnStatus = nullptr) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    MItDependencyNodes(const MItDependencyNodes&) = delete;
    MItDependencyNodes& operator=(const MItDependencyNodes&) = delete;

    tvxhost::api::NodeIteration* iteration; ///< owned
    void* reserved[5];
};
