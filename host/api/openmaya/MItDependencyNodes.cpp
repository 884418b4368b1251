// MItDependencyNodes: goes through all nodes, in the order of their creation.
#include <maya/MItDependencyNodes.h>

#include "engine/scene.h"
#include "support/apiCall.h"
#include "support/handles.h"
#include "support/typeFilter.h"

#include <list>

using namespace tvxhost;
using api::failure;
using api::StatusText;

/// The nodes that there were when the iteration began, so that changes meanwhile do no harm.
struct tvxhost::api::NodeIteration
{
    std::vector<engine::Ref<engine::Node>> nodes;
    std::size_t place = 0;

    void start(const TypeFilter& filter)
    {
        nodes.clear();
        place = 0;
        for (engine::Node* node : engine::Scene::current().nodes())
            if (filter.accepts(node))
                nodes.emplace_back(node);
    }

    void skipDeleted()
    {
        while (place < nodes.size() && !nodes[place]->isAlive())
            ++place;
    }

    engine::Node* present()
    {
        skipDeleted();
        return place < nodes.size() ? nodes[place].get() : nullptr;
    }
};

namespace {

MObject presentNode(api::NodeIteration& iteration, MStatus* status)
{
    const engine::Node* node = iteration.present();
    api::give(status, node ? MStatus() : failure(StatusText::objectDoesNotExist));
    return tvxAccess::handle(node);
}

} // namespace

MItDependencyNodes::MItDependencyNodes(MFn::Type filter, MStatus* ReturnStatus)
    : iteration(new api::NodeIteration), reserved()
{
    TVX_API_CONSTRUCTION("MItDependencyNodes::MItDependencyNodes", ReturnStatus);
    iteration->start(filter);
    api::giveSuccess(ReturnStatus);
}

MItDependencyNodes::MItDependencyNodes(MIteratorType& infoObject, MStatus* ReturnStatus)
    : iteration(new api::NodeIteration), reserved()
{
    TVX_API_CONSTRUCTION("MItDependencyNodes::MItDependencyNodes", ReturnStatus);
    iteration->start(api::TypeFilter(infoObject));
    api::giveSuccess(ReturnStatus);
}

MItDependencyNodes::~MItDependencyNodes()
{
    delete iteration;
}

MStatus MItDependencyNodes::reset(MFn::Type filter)
{
    TVX_API_CALL("MItDependencyNodes::reset");
    iteration->start(filter);
    return MS::kSuccess;
}

MStatus MItDependencyNodes::reset(MIteratorType& infoObject)
{
    TVX_API_CALL("MItDependencyNodes::reset");
    iteration->start(api::TypeFilter(infoObject));
    return MS::kSuccess;
}

MObject MItDependencyNodes::thisNode(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItDependencyNodes::thisNode", ReturnStatus, MObject());
    return presentNode(*iteration, ReturnStatus);
}

MStatus MItDependencyNodes::next()
{
    TVX_API_CALL("MItDependencyNodes::next");
    if (!iteration->present())
        return failure(StatusText::unexpectedFailure);
    ++iteration->place;
    return MS::kSuccess;
}

bool MItDependencyNodes::isDone(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItDependencyNodes::isDone", ReturnStatus, true);
    api::giveSuccess(ReturnStatus);
    return !iteration->present();
}

MObject MItDependencyNodes::item(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItDependencyNodes::item", ReturnStatus, MObject());
    return presentNode(*iteration, ReturnStatus);
}

const char* MItDependencyNodes::className()
{
    return "MItDependencyNodes";
}
