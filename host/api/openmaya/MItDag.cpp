// MItDag: goes through the hierarchy.
#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MItDag.h>

#include "engine/scene.h"
#include "support/apiCall.h"
#include "support/handles.h"
#include "support/typeFilter.h"

#include <algorithm>
#include <deque>

using namespace tvxhost;
using api::failure;
using api::StatusText;
using engine::DagPath;

/// Paths that are still to be visited, the present one first.
struct tvxhost::api::DagIteration
{
    DagPath root;
    MItDag::TraversalType order = MItDag::kDepthFirst;
    TypeFilter filter;
    bool underWorld = false;
    bool pruned = false;
    std::deque<DagPath> open;

    void start(const DagPath& from, MItDag::TraversalType traversal, TypeFilter types)
    {
        root = from;
        order = traversal;
        filter = std::move(types);
        restart();
    }

    void restart()
    {
        pruned = false;
        open.assign(1, root);
        goToNextWanted();
    }

    bool isWanted(const DagPath& path) const { return filter.accepts(path.node()); }

    /// Leaves the present path, and has its children visited unless they were pruned.
    void advance()
    {
        const DagPath present = open.front();
        open.pop_front();
        std::vector<DagPath> below;
        if (!pruned && present.isValid())
            for (engine::DagNode* child : present.node()->children()) {
                DagPath path = present;
                if (path.push(*child))
                    below.push_back(std::move(path));
            }
        pruned = false;
        const auto where = order == MItDag::kBreadthFirst ? open.end() : open.begin();
        open.insert(where, below.begin(), below.end());
    }

    void goToNextWanted()
    {
        while (!open.empty() && (!open.front().isValid() || !isWanted(open.front())))
            advance();
    }

    const DagPath* present() const { return open.empty() ? nullptr : &open.front(); }
};

namespace {

/// The present path; null, and why, at the end.
const DagPath* presentOf(const api::DagIteration& iteration, MStatus* status)
{
    const DagPath* path = iteration.present();
    api::give(status, path ? MStatus() : failure(StatusText::objectDoesNotExist));
    return path;
}

MObject presentNode(const api::DagIteration& iteration, MStatus* status)
{
    const DagPath* path = presentOf(iteration, status);
    return path ? tvxAccess::handle(path->node()) : MObject();
}

/// How many paths lead to the present node, or how many parents it has.
unsigned int instances(const api::DagIteration& iteration, bool total, MStatus* status)
{
    const DagPath* path = presentOf(iteration, status);
    if (!path)
        return 0;
    const std::size_t count = total ? DagPath::allTo(*path->node()).size()
                                    : std::max<std::size_t>(path->node()->parents().size(), 1);
    return static_cast<unsigned int>(count);
}

bool isOrder(MItDag::TraversalType type)
{
    return type == MItDag::kDepthFirst || type == MItDag::kBreadthFirst;
}

MStatus start(api::DagIteration& iteration, const DagPath& root, MItDag::TraversalType order,
              const api::TypeFilter& filter)
{
    if (!isOrder(order))
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    iteration.start(root, order, filter);
    return MS::kSuccess;
}

MStatus startAt(api::DagIteration& iteration, const MObject& object, MItDag::TraversalType order,
                const api::TypeFilter& filter)
{
    engine::DagNode* node = api::dagNodeOf(object);
    if (!node)
        return failure(object.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    return start(iteration, DagPath::firstTo(*node), order, filter);
}

MStatus startAt(api::DagIteration& iteration, const MDagPath& path, MItDag::TraversalType order,
                const api::TypeFilter& filter)
{
    const DagPath* root = tvxAccess::dagPath(path);
    if (!root || !root->isValid())
        return failure(MS::kInvalidParameter, StatusText::objectDoesNotExist);
    return start(iteration, *root, order, filter);
}

} // namespace

MItDag::MItDag(TraversalType order, MFn::Type type, MStatus* ReturnStatus)
    : iteration(new api::DagIteration), reserved()
{
    TVX_API_CONSTRUCTION("MItDag::MItDag", ReturnStatus);
    api::give(ReturnStatus, start(*iteration, DagPath::world(engine::Scene::current()), order, type));
}

MItDag::MItDag(MIteratorType& dagInfoObject, TraversalType order, MStatus* ReturnStatus)
    : iteration(new api::DagIteration), reserved()
{
    TVX_API_CONSTRUCTION("MItDag::MItDag", ReturnStatus);
    api::give(ReturnStatus, start(*iteration, DagPath::world(engine::Scene::current()), order,
                                  api::TypeFilter(dagInfoObject)));
}

MItDag::~MItDag()
{
    delete iteration;
}

MStatus MItDag::reset()
{
    TVX_API_CALL("MItDag::reset");
    return start(*iteration, DagPath::world(engine::Scene::current()), iteration->order, iteration->filter);
}

MStatus MItDag::reset(const MObject& object, TraversalType order, MFn::Type type)
{
    TVX_API_CALL("MItDag::reset");
    return startAt(*iteration, object, order, type);
}

MStatus MItDag::reset(const MDagPath& path, TraversalType order, MFn::Type type)
{
    TVX_API_CALL("MItDag::reset");
    return startAt(*iteration, path, order, type);
}

MStatus MItDag::reset(MIteratorType& dagInfoObject, const MObject* object, const MDagPath* path,
                      TraversalType order)
{
    TVX_API_CALL("MItDag::reset");
    const api::TypeFilter filter(dagInfoObject);
    if (dagInfoObject.getObjectType() == MIteratorType::kMDagPathObject)
        return startAt(*iteration, path ? *path : MDagPath(), order, filter);
    return startAt(*iteration, object ? *object : MObject(), order, filter);
}

MObject MItDag::item(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItDag::item", ReturnStatus, MObject());
    return presentNode(*iteration, ReturnStatus);
}

MObject MItDag::currentItem(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItDag::currentItem", ReturnStatus, MObject());
    return presentNode(*iteration, ReturnStatus);
}

MStatus MItDag::next()
{
    TVX_API_CALL("MItDag::next");
    if (!iteration->present())
        return failure(StatusText::unexpectedFailure);
    iteration->advance();
    iteration->goToNextWanted();
    return MS::kSuccess;
}

MStatus MItDag::prune()
{
    TVX_API_CALL("MItDag::prune");
    if (!iteration->present())
        return failure(StatusText::unexpectedFailure);
    iteration->pruned = true;
    return MS::kSuccess;
}

bool MItDag::isDone(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItDag::isDone", ReturnStatus, true);
    api::giveSuccess(ReturnStatus);
    return !iteration->present();
}

MObject MItDag::root(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItDag::root", ReturnStatus, MObject());
    const bool isValid = iteration->root.isValid();
    api::give(ReturnStatus, isValid ? MStatus() : failure(StatusText::objectDoesNotExist));
    return isValid ? tvxAccess::handle(iteration->root.node()) : MObject();
}

unsigned int MItDag::depth(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItDag::depth", ReturnStatus, 0);
    const DagPath* path = presentOf(*iteration, ReturnStatus);
    return path ? static_cast<unsigned int>(path->length() - iteration->root.length()) : 0;
}

MItDag::TraversalType MItDag::getType(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItDag::getType", ReturnStatus, kInvalidType);
    api::giveSuccess(ReturnStatus);
    return iteration->order;
}

MStatus MItDag::getPath(MDagPath& path) const
{
    TVX_API_CALL("MItDag::getPath");
    MStatus status;
    if (const DagPath* present = presentOf(*iteration, &status))
        tvxAccess::setDagPath(path, *present);
    return status;
}

MStatus MItDag::getAllPaths(MDagPathArray& paths) const
{
    TVX_API_CALL("MItDag::getAllPaths");
    MStatus status;
    if (const DagPath* present = presentOf(*iteration, &status)) {
        paths.clear();
        for (const DagPath& path : DagPath::allTo(*present->node()))
            paths.append(tvxAccess::dagPath(path));
    }
    return status;
}

MString MItDag::fullPathName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItDag::fullPathName", ReturnStatus, MString());
    const DagPath* path = presentOf(*iteration, ReturnStatus);
    return path ? tvxAccess::string(path->fullName()) : MString();
}

MString MItDag::partialPathName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItDag::partialPathName", ReturnStatus, MString());
    const DagPath* path = presentOf(*iteration, ReturnStatus);
    return path ? tvxAccess::string(path->partialName()) : MString();
}

bool MItDag::isInstanced(bool indirect, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItDag::isInstanced", ReturnStatus, false);
    return instances(*iteration, indirect, ReturnStatus) > 1;
}

unsigned int MItDag::instanceCount(bool total, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItDag::instanceCount", ReturnStatus, 0);
    return instances(*iteration, total, ReturnStatus);
}

// No shape of the host has a space of its own for other nodes: the flag is kept and changes nothing.
MStatus MItDag::traverseUnderWorld(bool flag)
{
    TVX_API_CALL("MItDag::traverseUnderWorld");
    iteration->underWorld = flag;
    return MS::kSuccess;
}

bool MItDag::willTraverseUnderWorld(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItDag::willTraverseUnderWorld", ReturnStatus, false);
    api::giveSuccess(ReturnStatus);
    return iteration->underWorld;
}

const char* MItDag::className()
{
    return "MItDag";
}
