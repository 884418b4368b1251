// MDGModifier: changes of the graph that can be taken back.
#include <maya/MAngle.h>
#include <maya/MDGModifier.h>
#include <maya/MDistance.h>
#include <maya/MTime.h>
#include <maya/MTypeId.h>

#include "support/handleValues.h"
#include "support/handles.h"
#include "support/modifier.h"
#include "support/modifierOperations.h"
#include "support/notImplemented.h"
#include "support/plugCall.h"
#include "support/plugUnits.h"

#include <string>

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::Data;
using tvxhost::engine::Node;
using tvxhost::engine::Number;
using tvxhost::engine::Plug;
using tvxhost::engine::Reason;
using tvxhost::engine::Ref;
using tvxhost::engine::Scene;

namespace {

MStatus nullArgument()
{
    return failure(StatusText::nullArgument);
}

MStatus wrongKind(const MObject& object)
{
    return object.isNull() ? nullArgument() : failure(StatusText::objectIsIncompatible);
}

Plug plugOf(const MObject& node, const MObject& attribute)
{
    Node* n = nodeOf(node);
    Attribute* a = attributeOf(attribute);
    return n && a ? Plug(*n, *a) : Plug();
}

/// Connects, unless just these two are connected already.
MStatus connectPair(const Plug& source, const Plug& destination)
{
    const auto connected = Scene::current().connect(source, destination);
    return connected.reason == Reason::sameConnection ? MStatus() : plugStatus(connected);
}

MStatus disconnectPair(const Plug& source, const Plug& destination)
{
    const auto disconnected = Scene::current().disconnect(source, destination);
    return plugStatus(disconnected || isDisconnectStrict()
                          ? disconnected
                          : Scene::current().disconnect(destination, source));
}

MStatus queuePair(Modifier& modifier, const Plug& first, const Plug& second,
                  MStatus (*change)(const Plug&, const Plug&))
{
    if (first.isNull() || second.isNull())
        return nullArgument();
    modifier.queue([=] { return change(first, second); });
    return MS::kSuccess;
}

MStatus queueChangeOf(Modifier& modifier, const MObject& node, const MObject& attribute,
                      MStatus (*change)(Node&, const Ref<Attribute>&))
{
    const Ref<Node> target(nodeOf(node));
    const Ref<Attribute> changed(attributeOf(attribute));
    if (!target || !changed)
        return wrongKind(target ? attribute : node);
    modifier.queue([=] { return change(*target, changed); });
    return MS::kSuccess;
}

/// Queues the writing of a number, in the units in which it is stored.
MStatus queueNumber(Modifier& modifier, const char* name, const MPlug& plug, const Number& stored)
{
    TVX_API_CALL(name);
    const Plug p = tvxAccess::plug(plug);
    if (p.isNull())
        return nullArgument();
    modifier.queue([=] { return plugStatus(tvxhost::engine::writeNumber(p, stored)); });
    return MS::kSuccess;
}

template <class T>
MStatus queueCallersNumber(Modifier& modifier, const char* name, const MPlug& plug, T value)
{
    return queueNumber(modifier, name, plug, toStored(tvxAccess::plug(plug), numberFrom(value)));
}

/// Queues a change of a node, which is to be alive when it is done.
template <class Change>
MStatus queueNodeChange(Modifier& modifier, const MObject& node, Change change)
{
    const Ref<Node> target(nodeOf(node));
    if (!target)
        return wrongKind(node);
    modifier.queue([target, change] {
        return target->isAlive() ? change(*target) : failure(StatusText::objectDoesNotExist);
    });
    return MS::kSuccess;
}

} // namespace

namespace tvxhost::api {

MObject queueNewNode(Modifier& modifier, engine::NodeType& type, engine::DagNode* parent,
                     MStatus* returnStatus)
{
    // The caller is owed a node now, so it is there before doIt is, and goes when doIt never comes.
    MObject made;
    give(returnStatus, modifier.queueMade([&] {
        const auto created = createNode(&type, {}, parent);
        made = created ? tvxAccess::handle(created.value) : MObject();
        return toStatus(created.outcome);
    }));
    return made;
}

} // namespace tvxhost::api

MDGModifier::MDGModifier() : modifier(new Modifier), reserved(nullptr) {}

MDGModifier::MDGModifier(void*) : modifier(new Modifier), reserved(nullptr) {}

MDGModifier::MDGModifier(const MDGModifier& other)
    : modifier(new Modifier(*other.modifier)), reserved(nullptr)
{
}

MDGModifier& MDGModifier::operator=(const MDGModifier& rhs)
{
    *modifier = *rhs.modifier;
    return *this;
}

MDGModifier::~MDGModifier()
{
    delete modifier;
}

const char* MDGModifier::className()
{
    return "MDGModifier";
}

MStatus MDGModifier::doIt()
{
    TVX_API_CALL("MDGModifier::doIt");
    return modifier->doIt();
}

MStatus MDGModifier::undoIt()
{
    TVX_API_CALL("MDGModifier::undoIt");
    return modifier->undoIt();
}

// Nodes

MObject MDGModifier::createNode(const MTypeId& typeId, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MDGModifier::createNode", ReturnStatus, MObject());
    return queueNewNode(*modifier, typeOf(typeId), ReturnStatus);
}

MObject MDGModifier::createNode(const MString& type, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MDGModifier::createNode", ReturnStatus, MObject());
    return queueNewNode(*modifier, typeOf(type), ReturnStatus);
}

MStatus MDGModifier::deleteNode(const MObject& node)
{
    TVX_API_CALL("MDGModifier::deleteNode");
    return queueNodeChange(*modifier, node,
                           [](Node& target) { return plugStatus(Scene::current().deleteNode(target)); });
}

MStatus MDGModifier::renameNode(const MObject& node, const MString& newName)
{
    TVX_API_CALL("MDGModifier::renameNode");
    return queueNodeChange(*modifier, node, [name = tvxAccess::text(newName)](Node& target) {
        return plugStatus(Scene::current().rename(target, name).outcome);
    });
}

MStatus MDGModifier::setNodeLockState(const MObject& node, bool newState)
{
    TVX_API_CALL("MDGModifier::setNodeLockState");
    return queueNodeChange(*modifier, node, [newState](Node& target) {
        target.setLocked(newState);
        return MStatus();
    });
}

// Connections

MStatus MDGModifier::connect(const MPlug& source, const MPlug& dest)
{
    TVX_API_CALL("MDGModifier::connect");
    return queuePair(*modifier, tvxAccess::plug(source), tvxAccess::plug(dest), connectPair);
}

MStatus MDGModifier::connect(const MObject& sourceNode, const MObject& sourceAttr, const MObject& destNode,
                             const MObject& destAttr)
{
    TVX_API_CALL("MDGModifier::connect");
    return queuePair(*modifier, plugOf(sourceNode, sourceAttr), plugOf(destNode, destAttr), connectPair);
}

MStatus MDGModifier::disconnect(const MPlug& source, const MPlug& dest)
{
    TVX_API_CALL("MDGModifier::disconnect");
    return queuePair(*modifier, tvxAccess::plug(source), tvxAccess::plug(dest), disconnectPair);
}

MStatus MDGModifier::disconnect(const MObject& sourceNode, const MObject& sourceAttr, const MObject& destNode,
                                const MObject& destAttr)
{
    TVX_API_CALL("MDGModifier::disconnect");
    return queuePair(*modifier, plugOf(sourceNode, sourceAttr), plugOf(destNode, destAttr), disconnectPair);
}

// Attributes

MStatus MDGModifier::addAttribute(const MObject& node, const MObject& attribute)
{
    TVX_API_CALL("MDGModifier::addAttribute");
    return queueChangeOf(*modifier, node, attribute, [](Node& target, const Ref<Attribute>& added) {
        return plugStatus(target.addDynamicAttribute(added));
    });
}

MStatus MDGModifier::removeAttribute(const MObject& node, const MObject& attribute)
{
    TVX_API_CALL("MDGModifier::removeAttribute");
    return queueChangeOf(*modifier, node, attribute, [](Node& target, const Ref<Attribute>& removed) {
        return plugStatus(target.removeDynamicAttribute(*removed));
    });
}

MStatus MDGModifier::addAttribute(const MObject& node, const MObject& attribute,
                                  MFnDependencyNode::MAttrClass type)
{
    return type == MFnDependencyNode::kLocalDynamicAttr
               ? addAttribute(node, attribute)
               : notImplemented("MDGModifier::addAttribute(MAttrClass)");
}

MStatus MDGModifier::removeAttribute(const MObject& node, const MObject& attribute,
                                     MFnDependencyNode::MAttrClass type)
{
    return type == MFnDependencyNode::kLocalDynamicAttr
               ? removeAttribute(node, attribute)
               : notImplemented("MDGModifier::removeAttribute(MAttrClass)");
}

MStatus MDGModifier::linkExtensionAttributeToPlugin(const MObject&, const MObject&)
{
    return notImplemented("MDGModifier::linkExtensionAttributeToPlugin");
}

MStatus MDGModifier::unlinkExtensionAttributeFromPlugin(const MObject&, const MObject&)
{
    return notImplemented("MDGModifier::unlinkExtensionAttributeFromPlugin");
}

MStatus MDGModifier::addExtensionAttribute(const MNodeClass&, const MObject&)
{
    return notImplemented("MDGModifier::addExtensionAttribute");
}

MStatus MDGModifier::removeExtensionAttribute(const MNodeClass&, const MObject&)
{
    return notImplemented("MDGModifier::removeExtensionAttribute");
}

MStatus MDGModifier::removeExtensionAttributeIfUnset(const MNodeClass&, const MObject&)
{
    return notImplemented("MDGModifier::removeExtensionAttributeIfUnset");
}

bool MDGModifier::checkCompoundAttrs(const TattributeList&, const Tstring&, const Tstring&)
{
    notImplemented("MDGModifier::checkCompoundAttrs");
    return false;
}

bool MDGModifier::attrExistsAtNode(TdependNode*, Tattribute*)
{
    notImplemented("MDGModifier::attrExistsAtNode");
    return false;
}

// Metadata

MStatus MDGModifier::setMetadata(const MObject&, const adsk::Data::Associations&)
{
    return notImplemented("MDGModifier::setMetadata");
}

MStatus MDGModifier::deleteMetadata(const MObject&)
{
    return notImplemented("MDGModifier::deleteMetadata");
}

// Commands

MStatus MDGModifier::commandToExecute(const MString& command)
{
    TVX_API_CALL("MDGModifier::commandToExecute");
    modifier->queue([script = tvxAccess::text(command)] {
        auto* runner = Scene::current().scriptRunner;
        tvxhost::engine::ScriptRunner::Result result;
        const bool ran = runner && runner->run(script, false, true, result);
        return ran ? MStatus() : failure(StatusText::unexpectedFailure);
    });
    return MS::kSuccess;
}

MStatus MDGModifier::pythonCommandToExecute(const MString&)
{
    return notImplemented("MDGModifier::pythonCommandToExecute");
}

// Values

MStatus MDGModifier::newPlugValue(const MPlug& plug, MObject& plugValue)
{
    TVX_API_CALL("MDGModifier::newPlugValue");
    const Plug p = tvxAccess::plug(plug);
    const Ref<Data> value(dataOf(plugValue));
    if (p.isNull() || !value)
        return p.isNull() ? nullArgument() : wrongKind(plugValue);
    modifier->queue([=] { return plugStatus(tvxhost::engine::writeData(p, *value)); });
    return MS::kSuccess;
}

#define TVX_NEW_VALUE(function, Type)                                                                        \
    MStatus MDGModifier::function(const MPlug& plug, Type plugValue)                                         \
    {                                                                                                        \
        return queueCallersNumber(*modifier, "MDGModifier::" #function, plug, plugValue);                    \
    }

TVX_NEW_VALUE(newPlugValueBool, bool)
TVX_NEW_VALUE(newPlugValueChar, char)
TVX_NEW_VALUE(newPlugValueDouble, double)
TVX_NEW_VALUE(newPlugValueFloat, float)
TVX_NEW_VALUE(newPlugValueInt, int)
TVX_NEW_VALUE(newPlugValueInt64, MInt64)
TVX_NEW_VALUE(newPlugValueShort, short)

#undef TVX_NEW_VALUE

MStatus MDGModifier::newPlugValueMAngle(const MPlug& plug, const MAngle& plugValue)
{
    return queueNumber(*modifier, "MDGModifier::newPlugValueMAngle", plug, Number(internalValue(plugValue)));
}

MStatus MDGModifier::newPlugValueMDistance(const MPlug& plug, const MDistance& plugValue)
{
    return queueNumber(*modifier, "MDGModifier::newPlugValueMDistance", plug,
                       Number(internalValue(plugValue)));
}

MStatus MDGModifier::newPlugValueMTime(const MPlug& plug, const MTime& plugValue)
{
    return queueNumber(*modifier, "MDGModifier::newPlugValueMTime", plug,
                       toStored(tvxAccess::plug(plug), plugValue));
}

MStatus MDGModifier::newPlugValueString(const MPlug& plug, const MString& plugValue)
{
    TVX_API_CALL("MDGModifier::newPlugValueString");
    const Plug p = tvxAccess::plug(plug);
    if (p.isNull())
        return nullArgument();
    modifier->queue(
        [p, text = tvxAccess::text(plugValue)] { return plugStatus(tvxhost::engine::writeString(p, text)); });
    return MS::kSuccess;
}

MStatus MDGModifier::removeMultiInstance(const MPlug& plug, bool breakConnections)
{
    TVX_API_CALL("MDGModifier::removeMultiInstance");
    const Plug element = tvxAccess::plug(plug);
    if (element.isNull() || !element.isElement())
        return element.isNull() ? nullArgument() : failure(StatusText::objectIsIncompatible);
    modifier->queue([=] {
        if (!breakConnections && tvxhost::engine::isConnected(element))
            return failure(StatusText::unexpectedFailure);
        return plugStatus(tvxhost::engine::removeElement(element.array(), element.logicalIndex()));
    });
    return MS::kSuccess;
}
