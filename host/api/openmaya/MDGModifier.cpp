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

#include <memory>

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

MStatus cannotTakeBack(const char* function)
{
    return notImplemented((std::string("Undoing ") + function).c_str());
}

Plug plugOf(const MObject& node, const MObject& attribute)
{
    Node* n = nodeOf(node);
    Attribute* a = attributeOf(attribute);
    return n && a ? Plug(*n, *a) : Plug();
}

/// Connects, unless just these two are connected already: then nothing is done, and nothing to take back.
Modifier::Operation connectOperation(const Plug& source, const Plug& destination)
{
    const auto made = std::make_shared<bool>(false);
    return {[=] {
                const auto connected = Scene::current().connect(source, destination);
                *made = connected.reason == Reason::none;
                return connected.reason == Reason::sameConnection ? MStatus() : plugStatus(connected);
            },
            [=] { return *made ? plugStatus(Scene::current().disconnect(source, destination)) : MStatus(); }};
}

Modifier::Operation disconnectOperation(const Plug& source, const Plug& destination)
{
    const auto swapped = std::make_shared<bool>(false);
    return {[=] {
                auto disconnected = Scene::current().disconnect(source, destination);
                *swapped = !disconnected && !isDisconnectStrict();
                if (*swapped)
                    disconnected = Scene::current().disconnect(destination, source);
                return plugStatus(disconnected);
            },
            [=] {
                return plugStatus(*swapped ? Scene::current().connect(destination, source)
                                           : Scene::current().connect(source, destination));
            }};
}

MStatus queuePair(Modifier& modifier, const Plug& first, const Plug& second,
                  Modifier::Operation (*make)(const Plug&, const Plug&))
{
    if (first.isNull() || second.isNull())
        return nullArgument();
    modifier.queue.push_back(make(first, second));
    return MS::kSuccess;
}

Modifier::Operation addOperation(const Ref<Node>& node, const Ref<Attribute>& attribute)
{
    return {[=] { return plugStatus(node->addDynamicAttribute(attribute)); },
            [=] { return plugStatus(node->removeDynamicAttribute(*attribute)); }};
}

Modifier::Operation removeOperation(const Ref<Node>& node, const Ref<Attribute>& attribute)
{
    return {[=] { return plugStatus(node->removeDynamicAttribute(*attribute)); },
            [] { return cannotTakeBack("MDGModifier::removeAttribute"); }};
}

MStatus queueChangeOf(Modifier& modifier, const MObject& node, const MObject& attribute,
                      Modifier::Operation (*make)(const Ref<Node>&, const Ref<Attribute>&))
{
    const Ref<Node> target(nodeOf(node));
    const Ref<Attribute> changed(attributeOf(attribute));
    if (!target || !changed)
        return wrongKind(target ? attribute : node);
    modifier.queue.push_back(make(target, changed));
    return MS::kSuccess;
}

/// Queues the writing of a number, in the units in which it is stored.
MStatus queueNumber(Modifier& modifier, const char* name, const MPlug& plug, const Number& stored)
{
    TVX_API_CALL(name);
    const Plug p = tvxAccess::plug(plug);
    if (p.isNull())
        return nullArgument();
    const auto before = std::make_shared<Number>();
    modifier.queue.push_back({[=] {
                                  *before = tvxhost::engine::readNumber(p).value;
                                  return plugStatus(tvxhost::engine::writeNumber(p, stored));
                              },
                              [=] { return plugStatus(tvxhost::engine::writeNumber(p, *before)); }});
    return MS::kSuccess;
}

template <class T>
MStatus queueCallersNumber(Modifier& modifier, const char* name, const MPlug& plug, T value)
{
    return queueNumber(modifier, name, plug, toStored(tvxAccess::plug(plug), numberFrom(value)));
}

MStatus setLocked(const Ref<Node>& node, bool locked)
{
    if (!node->isAlive())
        return failure(StatusText::objectDoesNotExist);
    node->isLockedNode = locked;
    return MS::kSuccess;
}

MStatus renameTo(const Ref<Node>& node, const std::string& name)
{
    return plugStatus(Scene::current().rename(*node, name).outcome);
}

} // namespace

namespace tvxhost::api {

MObject queueNewNode(Modifier& modifier, engine::NodeType& type, engine::DagNode* parent,
                     MStatus* returnStatus)
{
    const engine::Ref<engine::Node> parentNode(parent);
    const auto made = std::make_shared<engine::Ref<engine::Node>>();
    const auto create = [&type, parentNode, made] {
        const auto created = createNode(&type, {}, parentNode ? parentNode->asDag() : nullptr);
        *made = engine::Ref<engine::Node>(created.value);
        return toStatus(created.outcome);
    };
    // The caller is owed a node now, so it is there before doIt is, and goes when doIt never comes.
    const MStatus status = create();
    give(returnStatus, status);
    if (!status)
        return MObject();
    const auto remove = [made] { return toStatus(engine::Scene::current().deleteNode(**made)); };
    modifier.queue.push_back({[made, create] { return (*made)->isAlive() ? MStatus() : create(); }, remove,
                              [made, remove] {
                                  if ((*made)->isAlive())
                                      remove();
                              }});
    return tvxAccess::handle(made->get());
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
    const Ref<Node> target(nodeOf(node));
    if (!target)
        return wrongKind(node);
    modifier->queue.push_back({[=] { return plugStatus(Scene::current().deleteNode(*target)); },
                               [] { return cannotTakeBack("MDGModifier::deleteNode"); }});
    return MS::kSuccess;
}

MStatus MDGModifier::renameNode(const MObject& node, const MString& newName)
{
    TVX_API_CALL("MDGModifier::renameNode");
    const Ref<Node> target(nodeOf(node));
    if (!target)
        return wrongKind(node);
    const auto before = std::make_shared<std::string>();
    const std::string name = tvxAccess::text(newName);
    modifier->queue.push_back({[=] {
                                   *before = target->name();
                                   return renameTo(target, name);
                               },
                               [=] { return renameTo(target, *before); }});
    return MS::kSuccess;
}

MStatus MDGModifier::setNodeLockState(const MObject& node, bool newState)
{
    TVX_API_CALL("MDGModifier::setNodeLockState");
    const Ref<Node> target(nodeOf(node));
    if (!target)
        return wrongKind(node);
    const auto before = std::make_shared<bool>();
    modifier->queue.push_back({[=] {
                                   *before = target->isLockedNode;
                                   return setLocked(target, newState);
                               },
                               [=] { return setLocked(target, *before); }});
    return MS::kSuccess;
}

// Connections

MStatus MDGModifier::connect(const MPlug& source, const MPlug& dest)
{
    TVX_API_CALL("MDGModifier::connect");
    return queuePair(*modifier, tvxAccess::plug(source), tvxAccess::plug(dest), connectOperation);
}

MStatus MDGModifier::connect(const MObject& sourceNode, const MObject& sourceAttr, const MObject& destNode,
                             const MObject& destAttr)
{
    TVX_API_CALL("MDGModifier::connect");
    return queuePair(*modifier, plugOf(sourceNode, sourceAttr), plugOf(destNode, destAttr), connectOperation);
}

MStatus MDGModifier::disconnect(const MPlug& source, const MPlug& dest)
{
    TVX_API_CALL("MDGModifier::disconnect");
    return queuePair(*modifier, tvxAccess::plug(source), tvxAccess::plug(dest), disconnectOperation);
}

MStatus MDGModifier::disconnect(const MObject& sourceNode, const MObject& sourceAttr, const MObject& destNode,
                                const MObject& destAttr)
{
    TVX_API_CALL("MDGModifier::disconnect");
    return queuePair(*modifier, plugOf(sourceNode, sourceAttr), plugOf(destNode, destAttr),
                     disconnectOperation);
}

// Attributes

MStatus MDGModifier::addAttribute(const MObject& node, const MObject& attribute)
{
    TVX_API_CALL("MDGModifier::addAttribute");
    return queueChangeOf(*modifier, node, attribute, addOperation);
}

MStatus MDGModifier::removeAttribute(const MObject& node, const MObject& attribute)
{
    TVX_API_CALL("MDGModifier::removeAttribute");
    return queueChangeOf(*modifier, node, attribute, removeOperation);
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

// Commands

MStatus MDGModifier::commandToExecute(const MString& command)
{
    TVX_API_CALL("MDGModifier::commandToExecute");
    const std::string script = tvxAccess::text(command);
    modifier->queue.push_back({[=] {
                                   auto* runner = Scene::current().scriptRunner;
                                   tvxhost::engine::ScriptRunner::Result result;
                                   const bool ran = runner && runner->run(script, false, true, result);
                                   return ran ? MStatus() : failure(StatusText::unexpectedFailure);
                               },
                               [] { return cannotTakeBack("MDGModifier::commandToExecute"); }});
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
    const auto before = std::make_shared<Ref<Data>>();
    modifier->queue.push_back(
        {[=] {
             const Ref<Data> old = tvxhost::engine::readData(p).value;
             *before = old ? old->clone() : old;
             return plugStatus(tvxhost::engine::writeData(p, *value));
         },
         [=] {
             return *before ? plugStatus(tvxhost::engine::writeData(p, **before))
                            : cannotTakeBack("MDGModifier::newPlugValue on a plug that held no data");
         }});
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
    const std::string text = tvxAccess::text(plugValue);
    const auto before = std::make_shared<std::string>();
    modifier->queue.push_back({[=] {
                                   *before = tvxhost::engine::readString(p).value;
                                   return plugStatus(tvxhost::engine::writeString(p, text));
                               },
                               [=] { return plugStatus(tvxhost::engine::writeString(p, *before)); }});
    return MS::kSuccess;
}

MStatus MDGModifier::removeMultiInstance(const MPlug& plug, bool breakConnections)
{
    TVX_API_CALL("MDGModifier::removeMultiInstance");
    const Plug element = tvxAccess::plug(plug);
    if (element.isNull() || !element.isElement())
        return element.isNull() ? nullArgument() : failure(StatusText::objectIsIncompatible);
    modifier->queue.push_back(
        {[=] {
             if (!breakConnections && tvxhost::engine::isConnected(element))
                 return failure(StatusText::unexpectedFailure);
             return plugStatus(tvxhost::engine::removeElement(element.array(), element.logicalIndex()));
         },
         [] { return cannotTakeBack("MDGModifier::removeMultiInstance"); }});
    return MS::kSuccess;
}
