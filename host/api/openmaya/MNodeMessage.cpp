// MNodeMessage: callbacks for what happens to one node.
#include <maya/MDGModifier.h>
#include <maya/MNodeMessage.h>
#include <maya/MUuid.h>

#include "support/callbacks.h"

using namespace tvxhost::api;
using tvxhost::engine::Event;
using tvxhost::engine::Happening;
using tvxhost::engine::Node;

namespace {

/// The kind of event and its bits; the direction is added for those that are about values.
struct AttributeChange
{
    Happening what;
    unsigned int bits;
};

constexpr AttributeChange kChanges[] = {
    {Happening::valueSet, MNodeMessage::kAttributeSet | MNodeMessage::kIncomingDirection},
    {Happening::plugEvaluated, MNodeMessage::kAttributeEval | MNodeMessage::kIncomingDirection},
    {Happening::plugLocked, MNodeMessage::kAttributeLocked | MNodeMessage::kIncomingDirection},
    {Happening::plugUnlocked, MNodeMessage::kAttributeUnlocked | MNodeMessage::kIncomingDirection},
    {Happening::plugMadeKeyable, MNodeMessage::kAttributeKeyable | MNodeMessage::kIncomingDirection},
    {Happening::plugMadeUnkeyable, MNodeMessage::kAttributeUnkeyable | MNodeMessage::kIncomingDirection},
    {Happening::elementAdded, MNodeMessage::kAttributeArrayAdded | MNodeMessage::kIncomingDirection},
    {Happening::elementRemoved, MNodeMessage::kAttributeArrayRemoved | MNodeMessage::kIncomingDirection},
    {Happening::connectionMade, MNodeMessage::kConnectionMade | MNodeMessage::kOtherPlugSet},
    {Happening::connectionBroken, MNodeMessage::kConnectionBroken | MNodeMessage::kOtherPlugSet},
    {Happening::attributeAdded, MNodeMessage::kAttributeAdded},
    {Happening::attributeRemoved, MNodeMessage::kAttributeRemoved},
    {Happening::attributeRenamed, MNodeMessage::kAttributeRenamed},
};

unsigned int bitsOf(Happening what)
{
    for (const AttributeChange& change : kChanges)
        if (change.what == what)
            return change.bits;
    return 0;
}

MNodeMessage::AttributeMessage messageOf(unsigned int bits)
{
    return static_cast<MNodeMessage::AttributeMessage>(bits);
}

/// Calls for the node's own end of a connection, once for each that it has.
template <class Function>
void tellConnection(const Function& function, const Event& event, const Node* node)
{
    MPlug source = plugOf(event.otherPlug);
    MPlug destination = plugOf(event.plug);
    if (event.other == node)
        function(messageOf(bitsOf(event.what)), source, destination);
    if (event.node == node)
        function(messageOf(bitsOf(event.what) | MNodeMessage::kIncomingDirection), destination, source);
}

void tellNode(const Callback<void(MObject&, void*)>& function, const Event& event)
{
    MObject node = tvxAccess::handle(event.node);
    function(node);
}

void tellNothing(const Callback<void(void*)>& function, const Event&)
{
    function();
}

void tellNodeAndPlug(const Callback<void(MObject&, MPlug&, void*)>& function, const Event& event)
{
    MObject node = tvxAccess::handle(event.node);
    MPlug plug = plugOf(event.plug);
    function(node, plug);
}

/// Registers for one node, or for all with the null object.
template <class Function, class Translate>
MCallbackId addForOneOrAll(const MObject& node, Happening what, Function* function, void* clientData,
                           Translate translate, MStatus* returnStatus)
{
    return node.isNull() ? addCallback({what}, function, clientData, translate, returnStatus)
                         : addNodeCallback(node, {what}, function, clientData, translate, returnStatus);
}

} // namespace

const char* MNodeMessage::className()
{
    return "MNodeMessage";
}

MCallbackId MNodeMessage::addAttributeChangedCallback(MObject& node, MAttr2PlugFunction func,
                                                      void* clientData, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNodeMessage::addAttributeChangedCallback", ReturnStatus, 0);
    const Node* own = nodeOf(node);
    const auto translate = [own](const auto& function, const Event& event) {
        if (event.otherPlug)
            return tellConnection(function, event, own);
        MPlug plug = plugOf(event.plug);
        MPlug none;
        function(messageOf(bitsOf(event.what)), plug, none);
    };
    return addNodeCallback(node,
                           {Happening::valueSet, Happening::plugEvaluated, Happening::plugLocked,
                            Happening::plugUnlocked, Happening::plugMadeKeyable, Happening::plugMadeUnkeyable,
                            Happening::elementAdded, Happening::elementRemoved, Happening::connectionMade,
                            Happening::connectionBroken, Happening::attributeRenamed},
                           func, clientData, translate, ReturnStatus);
}

MCallbackId MNodeMessage::addAttributeAddedOrRemovedCallback(MObject& node, MAttrPlugFunction func,
                                                             void* clientData, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNodeMessage::addAttributeAddedOrRemovedCallback", ReturnStatus, 0);
    const auto translate = [](const auto& function, const Event& event) {
        MPlug plug = plugOf(event.plug);
        function(messageOf(bitsOf(event.what)), plug);
    };
    return addNodeCallback(
        node, {Happening::attributeAdded, Happening::attributeRemoved, Happening::attributeRenamed}, func,
        clientData, translate, ReturnStatus);
}

MCallbackId MNodeMessage::addNodeDirtyCallback(MObject& node, MNodeFunction func, void* clientData,
                                               MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNodeMessage::addNodeDirtyCallback", ReturnStatus, 0);
    return addNodeCallback(node, {Happening::plugOutdated}, func, clientData, tellNode, ReturnStatus);
}

MCallbackId MNodeMessage::addNodeDirtyCallback(MObject& node, MBasicFunction func, void* clientData,
                                               MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNodeMessage::addNodeDirtyCallback", ReturnStatus, 0);
    return addNodeCallback(node, {Happening::plugOutdated}, func, clientData, tellNothing, ReturnStatus);
}

MCallbackId MNodeMessage::addNodeDirtyCallback(MObject& node, MNodePlugFunction func, void* clientData,
                                               MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNodeMessage::addNodeDirtyCallback", ReturnStatus, 0);
    return addNodeCallback(node, {Happening::plugOutdated}, func, clientData, tellNodeAndPlug, ReturnStatus);
}

MCallbackId MNodeMessage::addNodeDirtyPlugCallback(MObject& node, MNodePlugFunction func, void* clientData,
                                                   MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNodeMessage::addNodeDirtyPlugCallback", ReturnStatus, 0);
    return addNodeCallback(node, {Happening::plugOutdated}, func, clientData, tellNodeAndPlug, ReturnStatus);
}

MCallbackId MNodeMessage::addNameChangedCallback(MObject& node, MNodeStringFunction func, void* clientData,
                                                 MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNodeMessage::addNameChangedCallback", ReturnStatus, 0);
    const auto translate = [](const auto& function, const Event& event) {
        MObject renamed = tvxAccess::handle(event.node);
        function(renamed, tvxAccess::string(event.text));
    };
    return addForOneOrAll(node, Happening::nodeRenamed, func, clientData, translate, ReturnStatus);
}

MCallbackId MNodeMessage::addNameChangedCallback(MObject& node, MNodeFunction func, void* clientData,
                                                 MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNodeMessage::addNameChangedCallback", ReturnStatus, 0);
    return addForOneOrAll(node, Happening::nodeRenamed, func, clientData, tellNode, ReturnStatus);
}

MCallbackId MNodeMessage::addUuidChangedCallback(MObject& node, MNodeUuidFunction func, void* clientData,
                                                 MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNodeMessage::addUuidChangedCallback", ReturnStatus, 0);
    const auto translate = [](const auto& function, const Event& event) {
        MObject changed = tvxAccess::handle(event.node);
        function(changed, MUuid(tvxAccess::string(event.text)));
    };
    return addForOneOrAll(node, Happening::uuidChanged, func, clientData, translate, ReturnStatus);
}

MCallbackId MNodeMessage::addNodeAboutToDeleteCallback(MObject& node, MNodeModifierFunction func,
                                                       void* clientData, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNodeMessage::addNodeAboutToDeleteCallback", ReturnStatus, 0);
    const auto translate = [](const auto& function, const Event& event) {
        MObject doomed = tvxAccess::handle(event.node);
        MDGModifier modifier;
        function(doomed, modifier);
        modifier.doIt();
    };
    return addNodeCallback(node, {Happening::nodeAboutToBeDeleted}, func, clientData, translate,
                           ReturnStatus);
}

MCallbackId MNodeMessage::addNodeAboutToDeleteCallback(MObject& node, MModifierFunction func,
                                                       void* clientData, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNodeMessage::addNodeAboutToDeleteCallback", ReturnStatus, 0);
    const auto translate = [](const auto& function, const Event&) {
        MDGModifier modifier;
        function(modifier);
        modifier.doIt();
    };
    return addNodeCallback(node, {Happening::nodeAboutToBeDeleted}, func, clientData, translate,
                           ReturnStatus);
}

MCallbackId MNodeMessage::addNodePreRemovalCallback(MObject& node, MNodeFunction func, void* clientData,
                                                    MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNodeMessage::addNodePreRemovalCallback", ReturnStatus, 0);
    return addNodeCallback(node, {Happening::nodeLeaving}, func, clientData, tellNode, ReturnStatus);
}

MCallbackId MNodeMessage::addNodeDestroyedCallback(MObject& node, MBasicFunction func, void* clientData,
                                                   MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MNodeMessage::addNodeDestroyedCallback", ReturnStatus, 0);
    return addNodeCallback(node, {Happening::nodeDestroyed}, func, clientData, tellNothing, ReturnStatus);
}

MCallbackId MNodeMessage::addKeyableChangeOverride(MPlug& plug, MKeyableFunction func, void* clientData,
                                                   MStatus* status)
{
    TVX_API_CALL_OR("MNodeMessage::addKeyableChangeOverride", status, 0);
    const tvxhost::engine::Plug asked = tvxAccess::plug(plug);
    if (!func || !asked.isValid()) {
        give(status, failure(StatusText::nullArgument));
        return 0;
    }
    giveSuccess(status);
    return sceneObservers().add(
        {Happening::keyableChecked, Happening::unkeyableChecked},
        [asked, func, clientData](const Event& event) {
            if (!event.plug || *event.plug != asked)
                return;
            MPlug changing = plugOf(event.plug);
            func(changing, clientData,
                 event.what == Happening::keyableChecked ? kMakeKeyable : kMakeUnkeyable, *event.isAllowed);
        },
        asked.node());
}
