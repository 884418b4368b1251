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

void tellFormerName(const Callback<void(MObject&, const MString&, void*)>& function, const Event& event)
{
    MObject node = tvxAccess::handle(event.node);
    function(node, tvxAccess::string(event.text));
}

void tellFormerUuid(const Callback<void(MObject&, const MUuid&, void*)>& function, const Event& event)
{
    MObject node = tvxAccess::handle(event.node);
    function(node, MUuid(tvxAccess::string(event.text)));
}

// What is put into the modifier is done before the node goes.
void askNodeAndModifier(const Callback<void(MObject&, MDGModifier&, void*)>& function, const Event& event)
{
    MObject node = tvxAccess::handle(event.node);
    MDGModifier modifier;
    function(node, modifier);
    modifier.doIt();
}

void askModifier(const Callback<void(MDGModifier&, void*)>& function, const Event&)
{
    MDGModifier modifier;
    function(modifier);
    modifier.doIt();
}

/// Registers for one node, or for all with the null object.
template <class Function, class Translate>
MCallbackId addForOneOrAll(const MObject& node, Happenings what, Function* function, void* clientData,
                           Translate translate, MStatus* returnStatus)
{
    return node.isNull() ? addCallback(what, function, clientData, translate, returnStatus)
                         : addNodeCallback(node, what, function, clientData, translate, returnStatus);
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

/// Members that add a callback for one kind of event of a node. `add`: for that node only, or for all with
/// the null object; `translate` calls the function.
#define TVX_NODE_CALLBACK(member, Function, add, what, translate)                                            \
    MCallbackId MNodeMessage::member(MObject& node, Function func, void* clientData, MStatus* ReturnStatus)  \
    {                                                                                                        \
        TVX_API_CALL_OR("MNodeMessage::" #member, ReturnStatus, 0);                                          \
        return add(node, {Happening::what}, func, clientData, translate, ReturnStatus);                      \
    }

TVX_NODE_CALLBACK(addNodeDirtyCallback, MNodeFunction, addNodeCallback, plugOutdated, tellNode)
TVX_NODE_CALLBACK(addNodeDirtyCallback, MBasicFunction, addNodeCallback, plugOutdated, tellNothing)
TVX_NODE_CALLBACK(addNodeDirtyCallback, MNodePlugFunction, addNodeCallback, plugOutdated, tellNodeAndPlug)
TVX_NODE_CALLBACK(addNodeDirtyPlugCallback, MNodePlugFunction, addNodeCallback, plugOutdated, tellNodeAndPlug)
TVX_NODE_CALLBACK(addNameChangedCallback, MNodeStringFunction, addForOneOrAll, nodeRenamed, tellFormerName)
TVX_NODE_CALLBACK(addNameChangedCallback, MNodeFunction, addForOneOrAll, nodeRenamed, tellNode)
TVX_NODE_CALLBACK(addUuidChangedCallback, MNodeUuidFunction, addForOneOrAll, uuidChanged, tellFormerUuid)
TVX_NODE_CALLBACK(addNodeAboutToDeleteCallback, MNodeModifierFunction, addNodeCallback, nodeAboutToBeDeleted,
                  askNodeAndModifier)
TVX_NODE_CALLBACK(addNodeAboutToDeleteCallback, MModifierFunction, addNodeCallback, nodeAboutToBeDeleted,
                  askModifier)
TVX_NODE_CALLBACK(addNodePreRemovalCallback, MNodeFunction, addNodeCallback, nodeLeaving, tellNode)
TVX_NODE_CALLBACK(addNodeDestroyedCallback, MBasicFunction, addNodeCallback, nodeDestroyed, tellNothing)

#undef TVX_NODE_CALLBACK

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
