// MMessage: what all kinds of callback have in common.
#include <maya/MIntArray.h>
#include <maya/MMessage.h>

#include "support/callbacks.h"
#include "support/notImplemented.h"

using namespace tvxhost::api;
using tvxhost::engine::Node;

namespace {

bool isScriptRegistering = false;

/// Removes all callbacks of an array; the status of the first that is not there.
template <class Ids>
MStatus removeAll(const Ids& ids)
{
    MStatus status;
    for (unsigned int i = 0; i < ids.length(); ++i)
        if (!sceneObservers().remove(static_cast<MCallbackId>(ids[i])))
            status = failure(MS::kInvalidParameter, StatusText::itemNotFound);
    return status;
}

template <class Id, class Ids>
MStatus listOf(const MObject& object, Ids& ids)
{
    const Node* node = nodeOf(object);
    if (!node)
        return failure(object.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    ids.clear();
    for (const auto id : sceneObservers().idsOf(*node))
        ids.append(static_cast<Id>(id));
    return MS::kSuccess;
}

} // namespace

MStatus MMessage::removeCallback(MCallbackId id)
{
    TVX_API_CALL("MMessage::removeCallback");
    return sceneObservers().remove(id) ? MStatus() : failure(MS::kInvalidParameter, StatusText::itemNotFound);
}

MStatus MMessage::removeCallbacks(MCallbackIdArray& ids)
{
    TVX_API_CALL("MMessage::removeCallbacks");
    return removeAll(ids);
}

MStatus MMessage::removeCallbacks(MIntArray& ids)
{
    TVX_API_CALL("MMessage::removeCallbacks");
    return removeAll(ids);
}

MCallbackId MMessage::currentCallbackId(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MMessage::currentCallbackId", ReturnStatus, 0);
    const MCallbackId id = sceneObservers().currentId();
    give(ReturnStatus, id ? MStatus() : failure(StatusText::unexpectedFailure));
    return id;
}

MStatus MMessage::nodeCallbacks(MObject& node, MCallbackIdArray& ids)
{
    TVX_API_CALL("MMessage::nodeCallbacks");
    return listOf<MCallbackId>(node, ids);
}

MStatus MMessage::nodeCallbacks(MObject& node, MIntArray& ids)
{
    TVX_API_CALL("MMessage::nodeCallbacks");
    return listOf<int>(node, ids);
}

void MMessage::setRegisteringCallableScript()
{
    isScriptRegistering = true;
}

bool MMessage::registeringCallableScript()
{
    return isScriptRegistering;
}

const char* MMessage::className()
{
    return "MMessage";
}

void MMessage::addNode(MMessageNodePtr)
{
    notImplemented("MMessage::addNode");
}

void MMessage::removeNode(MMessageNodePtr)
{
    notImplemented("MMessage::removeNode");
}

void MMessage::addQtUICallback(QObject*)
{
    notImplemented("MMessage::addQtUICallback");
}
