// MDGMessage: callbacks for what happens to the graph as a whole.
#include <maya/MDGMessage.h>
#include <maya/MTime.h>

#include "support/callbacks.h"
#include "support/notImplemented.h"

using namespace tvxhost::api;
using tvxhost::engine::Event;
using tvxhost::engine::Happening;
using tvxhost::engine::NodeType;
using tvxhost::engine::Scene;

namespace {

MCallbackId addTimeCallback(const char* name, MMessage::MTimeFunction function, void* clientData,
                            MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, 0);
    const auto translate = [](const auto& callback, const Event&) {
        const MTime::Unit unit = MTime::uiUnit();
        MTime now(MTime(Scene::current().time(), MTime::kSeconds).as(unit), unit);
        callback(now);
    };
    return addCallback({Happening::timeChanged}, function, clientData, translate, returnStatus);
}

bool isOfType(const NodeType& type, const std::string& name)
{
    for (const NodeType* each = &type; each; each = each->parent)
        if (each->name == name)
            return true;
    return false;
}

MCallbackId addTypedCallback(const char* name, Happening what, MMessage::MNodeFunction function,
                             const MString& nodeType, void* clientData, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, 0);
    const std::string type = tvxAccess::text(nodeType);
    const bool isAll = type == kDefaultNodeType;
    if (!isAll && !Scene::current().types().find(type)) {
        give(returnStatus, failure(MS::kInvalidParameter, StatusText::itemNotFound));
        return 0;
    }
    const auto translate = [type, isAll](const auto& callback, const Event& event) {
        if (!isAll && !isOfType(event.node->type(), type))
            return;
        MObject node = tvxAccess::handle(event.node);
        callback(node);
    };
    return addCallback({what}, function, clientData, translate, returnStatus);
}

MCallbackId addPlugCallback(const char* name, Happening made, Happening broken,
                            MMessage::MPlugFunction function, void* clientData, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, 0);
    const auto translate = [made](const auto& callback, const Event& event) {
        MPlug source = plugOf(event.otherPlug);
        MPlug destination = plugOf(event.plug);
        callback(source, destination, event.what == made);
    };
    return addCallback({made, broken}, function, clientData, translate, returnStatus);
}

} // namespace

MCallbackId MDGMessage::addTimeChangeCallback(MTimeFunction func, void* clientData, MStatus* ReturnStatus)
{
    return addTimeCallback("MDGMessage::addTimeChangeCallback", func, clientData, ReturnStatus);
}

MCallbackId MDGMessage::addDelayedTimeChangeCallback(MTimeFunction func, void* clientData,
                                                     MStatus* ReturnStatus)
{
    return addTimeCallback("MDGMessage::addDelayedTimeChangeCallback", func, clientData, ReturnStatus);
}

MCallbackId MDGMessage::addDelayedTimeChangeRunupCallback(MTimeFunction func, void* clientData,
                                                          MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MDGMessage::addDelayedTimeChangeRunupCallback", ReturnStatus, 0);
    return addCallback(
        {}, func, clientData, [](const auto&, const Event&) {}, ReturnStatus);
}

MCallbackId MDGMessage::addForceUpdateCallback(MTimeFunction func, void* clientData, MStatus* ReturnStatus)
{
    return addTimeCallback("MDGMessage::addForceUpdateCallback", func, clientData, ReturnStatus);
}

MCallbackId MDGMessage::addNodeAddedCallback(MNodeFunction func, const MString& nodeType, void* clientData,
                                             MStatus* ReturnStatus)
{
    return addTypedCallback("MDGMessage::addNodeAddedCallback", Happening::nodeAdded, func, nodeType,
                            clientData, ReturnStatus);
}

MCallbackId MDGMessage::addNodeRemovedCallback(MNodeFunction func, const MString& nodeType, void* clientData,
                                               MStatus* ReturnStatus)
{
    return addTypedCallback("MDGMessage::addNodeRemovedCallback", Happening::nodeRemoved, func, nodeType,
                            clientData, ReturnStatus);
}

MCallbackId MDGMessage::addConnectionCallback(MPlugFunction func, void* clientData, MStatus* ReturnStatus)
{
    return addPlugCallback("MDGMessage::addConnectionCallback", Happening::connectionMade,
                           Happening::connectionBroken, func, clientData, ReturnStatus);
}

MCallbackId MDGMessage::addPreConnectionCallback(MPlugFunction func, void* clientData, MStatus* ReturnStatus)
{
    return addPlugCallback("MDGMessage::addPreConnectionCallback", Happening::connectionBegun,
                           Happening::connectionEnding, func, clientData, ReturnStatus);
}

MCallbackId MDGMessage::addNodeChangeUuidCheckCallback(MCheckNodeUuidFunction, void*, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MDGMessage::addNodeChangeUuidCheckCallback", ReturnStatus, 0);
    notImplemented("MDGMessage::addNodeChangeUuidCheckCallback", ReturnStatus);
    return 0;
}
