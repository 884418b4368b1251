// MItDependencyGraph: follows connections.
#include <maya/MItDependencyGraph.h>
#include <maya/MIteratorType.h>
#include <maya/MObjectArray.h>
#include <maya/MPlugArray.h>

#include "support/apiCall.h"
#include "support/graphIteration.h"
#include "support/handles.h"

using namespace tvxhost::api;
using tvxhost::engine::Plug;

namespace {

using Item = GraphIteration::Item;

/// Where an iteration begins; false, and the status, for what is no living node or plug.
bool setRoot(GraphIteration& iteration, const MObject& node, MStatus& status)
{
    iteration.rootNode = tvxhost::engine::Ref<tvxhost::engine::Node>(nodeOf(node));
    iteration.rootPlug = Plug();
    if (!iteration.rootNode)
        status = failure(node.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    return static_cast<bool>(status);
}

bool setRoot(GraphIteration& iteration, const MPlug& plug, MStatus& status)
{
    const Plug& root = tvxAccess::plug(plug);
    const bool isUsable = !root.isNull() && root.isValid();
    iteration.rootPlug = isUsable ? root : Plug();
    iteration.rootNode = tvxhost::engine::Ref<tvxhost::engine::Node>(isUsable ? root.node() : nullptr);
    if (!isUsable)
        status = failure(root.isNull() ? StatusText::nullArgument : StatusText::objectIsInvalid);
    return isUsable;
}

template <class Root>
MStatus start(GraphIteration& iteration, const Root& root, TypeFilter filter,
              MItDependencyGraph::Direction direction, MItDependencyGraph::Traversal traversal,
              MItDependencyGraph::Level level)
{
    MStatus status;
    (void)setRoot(iteration, root, status);
    iteration.filter = std::move(filter);
    iteration.direction = direction;
    iteration.traversal = traversal;
    iteration.level = level;
    iteration.start();
    return status;
}

/// From the root that the information object says.
MStatus startBy(GraphIteration& iteration, MIteratorType& info, const MObject* node, const MPlug* plug,
                MItDependencyGraph::Direction direction, MItDependencyGraph::Traversal traversal,
                MItDependencyGraph::Level level)
{
    const bool isPlug = info.getObjectType() == MIteratorType::kMPlugObject;
    if (isPlug)
        return start(iteration, plug ? *plug : MPlug(), TypeFilter(info), direction, traversal, level);
    return start(iteration, node ? *node : MObject(), TypeFilter(info), direction, traversal, level);
}

/// The present item; null, and why, at the end.
const Item* presentOf(const GraphIteration& iteration, MStatus* status)
{
    const Item* item = iteration.present();
    give(status, item ? MStatus() : failure(StatusText::objectDoesNotExist));
    return item;
}

MPlug plugOr(const Plug& plug, MStatus* status)
{
    give(status, plug.isNull() ? failure(StatusText::objectDoesNotExist) : MStatus());
    return tvxAccess::plug(plug);
}

void collect(const std::vector<const Item*>& items, MObjectArray& nodes)
{
    nodes.clear();
    for (const Item* item : items)
        nodes.append(tvxAccess::handle(item->node.get()));
}

void collect(const std::vector<const Item*>& items, MPlugArray& plugs)
{
    plugs.clear();
    for (const Item* item : items)
        if (!item->plug.isNull())
            plugs.append(tvxAccess::plug(item->plug));
}

} // namespace

MItDependencyGraph::MItDependencyGraph(MObject& rootNode, MFn::Type filter, Direction direction,
                                       Traversal traversal, Level level, MStatus* ReturnStatus)
    : iteration(new GraphIteration), reserved()
{
    TVX_API_CONSTRUCTION("MItDependencyGraph::MItDependencyGraph", ReturnStatus);
    give(ReturnStatus, start(*iteration, rootNode, filter, direction, traversal, level));
}

MItDependencyGraph::MItDependencyGraph(MPlug& rootPlug, MFn::Type filter, Direction direction,
                                       Traversal traversal, Level level, MStatus* ReturnStatus)
    : iteration(new GraphIteration), reserved()
{
    TVX_API_CONSTRUCTION("MItDependencyGraph::MItDependencyGraph", ReturnStatus);
    give(ReturnStatus, start(*iteration, rootPlug, filter, direction, traversal, level));
}

MItDependencyGraph::MItDependencyGraph(MObject& rootNode, MPlug& rootPlug, MIteratorType& infoObject,
                                       Direction direction, Traversal traversal, Level level,
                                       MStatus* ReturnStatus)
    : iteration(new GraphIteration), reserved()
{
    TVX_API_CONSTRUCTION("MItDependencyGraph::MItDependencyGraph", ReturnStatus);
    give(ReturnStatus, startBy(*iteration, infoObject, &rootNode, &rootPlug, direction, traversal, level));
}

MItDependencyGraph::~MItDependencyGraph()
{
    delete iteration;
}

const char* MItDependencyGraph::className()
{
    return "MItDependencyGraph";
}

MStatus MItDependencyGraph::reset()
{
    TVX_API_CALL("MItDependencyGraph::reset");
    iteration->start();
    return iteration->rootNode ? MStatus() : failure(StatusText::objectDoesNotExist);
}

MStatus MItDependencyGraph::resetTo(MObject& rootNode, MFn::Type filter, Direction direction,
                                    Traversal traversal, Level level)
{
    TVX_API_CALL("MItDependencyGraph::resetTo");
    return start(*iteration, rootNode, filter, direction, traversal, level);
}

MStatus MItDependencyGraph::resetTo(MPlug& rootPlug, MFn::Type filter, Direction direction,
                                    Traversal traversal, Level level)
{
    TVX_API_CALL("MItDependencyGraph::resetTo");
    return start(*iteration, rootPlug, filter, direction, traversal, level);
}

MStatus MItDependencyGraph::resetTo(MObject* rootNode, MPlug* rootPlug, MIteratorType& infoObject,
                                    Direction direction, Traversal traversal, Level level)
{
    TVX_API_CALL("MItDependencyGraph::resetTo");
    return startBy(*iteration, infoObject, rootNode, rootPlug, direction, traversal, level);
}

MObject MItDependencyGraph::rootNode(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItDependencyGraph::rootNode", ReturnStatus, MObject());
    give(ReturnStatus, iteration->rootNode ? MStatus() : failure(StatusText::objectDoesNotExist));
    return tvxAccess::handle(iteration->rootNode.get());
}

MPlug MItDependencyGraph::rootPlug(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItDependencyGraph::rootPlug", ReturnStatus, MPlug());
    return plugOr(iteration->rootPlug, ReturnStatus);
}

/// A member that tells how the iteration goes.
#define TVX_GRAPH_QUESTION(Type, function, neutral, answer)                                                  \
    Type MItDependencyGraph::function(MStatus* ReturnStatus)                                                 \
    {                                                                                                        \
        TVX_API_CALL_OR("MItDependencyGraph::" #function, ReturnStatus, neutral);                            \
        giveSuccess(ReturnStatus);                                                                           \
        return answer;                                                                                       \
    }

TVX_GRAPH_QUESTION(MFn::Type, currentFilter, MFn::kInvalid, iteration->filter.first())
TVX_GRAPH_QUESTION(bool, isPruningOnFilter, false, iteration->isPruningOnFilter)
TVX_GRAPH_QUESTION(bool, isDirectionDownStream, false, iteration->direction == kDownstream)
TVX_GRAPH_QUESTION(MItDependencyGraph::Direction, currentDirection, kDownstream, iteration->direction)
TVX_GRAPH_QUESTION(bool, isTraversalDepthFirst, false, iteration->traversal == kDepthFirst)
TVX_GRAPH_QUESTION(MItDependencyGraph::Traversal, currentTraversal, kDepthFirst, iteration->traversal)
TVX_GRAPH_QUESTION(bool, atNodeLevel, false, iteration->level == kNodeLevel)
TVX_GRAPH_QUESTION(MItDependencyGraph::Level, currentLevel, kNodeLevel, iteration->level)
TVX_GRAPH_QUESTION(bool, isTraversingOverWorldSpaceDependents, false, iteration->overWorldSpace)
TVX_GRAPH_QUESTION(bool, isDone, true, !iteration->present())

#undef TVX_GRAPH_QUESTION

MStatus MItDependencyGraph::setCurrentFilter(MFn::Type filter)
{
    TVX_API_CALL("MItDependencyGraph::setCurrentFilter");
    iteration->filter = TypeFilter(filter);
    return MS::kSuccess;
}

MStatus MItDependencyGraph::resetFilter()
{
    TVX_API_CALL("MItDependencyGraph::resetFilter");
    iteration->filter = TypeFilter();
    return MS::kSuccess;
}

MStatus MItDependencyGraph::enablePruningOnFilter()
{
    TVX_API_CALL("MItDependencyGraph::enablePruningOnFilter");
    iteration->isPruningOnFilter = true;
    return MS::kSuccess;
}

MStatus MItDependencyGraph::disablePruningOnFilter()
{
    TVX_API_CALL("MItDependencyGraph::disablePruningOnFilter");
    iteration->isPruningOnFilter = false;
    return MS::kSuccess;
}

MStatus MItDependencyGraph::toggleDirection()
{
    TVX_API_CALL("MItDependencyGraph::toggleDirection");
    iteration->direction = iteration->direction == kDownstream ? kUpstream : kDownstream;
    return reset();
}

MStatus MItDependencyGraph::toggleTraversal()
{
    TVX_API_CALL("MItDependencyGraph::toggleTraversal");
    iteration->traversal = iteration->traversal == kDepthFirst ? kBreadthFirst : kDepthFirst;
    return reset();
}

MStatus MItDependencyGraph::toggleLevel()
{
    TVX_API_CALL("MItDependencyGraph::toggleLevel");
    iteration->level = iteration->level == kNodeLevel ? kPlugLevel : kNodeLevel;
    return reset();
}

MStatus MItDependencyGraph::setTraversalOverWorldSpaceDependents(bool val)
{
    TVX_API_CALL("MItDependencyGraph::setTraversalOverWorldSpaceDependents");
    iteration->overWorldSpace = val;
    return MS::kSuccess;
}

MStatus MItDependencyGraph::next()
{
    TVX_API_CALL("MItDependencyGraph::next");
    if (!iteration->present())
        return failure(StatusText::unexpectedFailure);
    iteration->next();
    return MS::kSuccess;
}

MStatus MItDependencyGraph::prune()
{
    TVX_API_CALL("MItDependencyGraph::prune");
    if (!iteration->present())
        return failure(StatusText::unexpectedFailure);
    iteration->prune();
    return MS::kSuccess;
}

MObject MItDependencyGraph::thisNode(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItDependencyGraph::thisNode", ReturnStatus, MObject());
    const Item* item = presentOf(*iteration, ReturnStatus);
    return item ? tvxAccess::handle(item->node.get()) : MObject();
}

MObject MItDependencyGraph::currentItem(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItDependencyGraph::currentItem", ReturnStatus, MObject());
    return thisNode(ReturnStatus);
}

bool MItDependencyGraph::thisNodeHasUnknownType(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItDependencyGraph::thisNodeHasUnknownType", ReturnStatus, false);
    const Item* item = presentOf(*iteration, ReturnStatus);
    return item && !item->node->unknownType.empty();
}

MPlug MItDependencyGraph::thisPlug(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItDependencyGraph::thisPlug", ReturnStatus, MPlug());
    const Item* item = iteration->present();
    return plugOr(item ? item->plug : Plug(), ReturnStatus);
}

MPlug MItDependencyGraph::previousPlug(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItDependencyGraph::previousPlug", ReturnStatus, MPlug());
    const Item* item = iteration->present();
    return plugOr(item ? item->previous : Plug(), ReturnStatus);
}

MStatus MItDependencyGraph::getNodesVisited(MObjectArray& nodesVisted) const
{
    TVX_API_CALL("MItDependencyGraph::getNodesVisited");
    collect(iteration->visited(), nodesVisted);
    return MS::kSuccess;
}

MStatus MItDependencyGraph::getPlugsVisited(MPlugArray& plugsVisted) const
{
    TVX_API_CALL("MItDependencyGraph::getPlugsVisited");
    collect(iteration->visited(), plugsVisted);
    return MS::kSuccess;
}

MStatus MItDependencyGraph::getNodePath(MObjectArray& path) const
{
    TVX_API_CALL("MItDependencyGraph::getNodePath");
    collect(iteration->path(), path);
    return iteration->present() ? MStatus() : failure(StatusText::objectDoesNotExist);
}

MStatus MItDependencyGraph::getPlugPath(MPlugArray& path) const
{
    TVX_API_CALL("MItDependencyGraph::getPlugPath");
    collect(iteration->path(), path);
    return iteration->present() ? MStatus() : failure(StatusText::objectDoesNotExist);
}
