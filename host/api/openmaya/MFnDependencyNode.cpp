// MFnDependencyNode: nodes, their names, attributes and plugs. What the host leaves out is in
// MFnDependencyNodeUnsupported.cpp.
#include <maya/MFnDependencyNode.h>
#include <maya/MObjectArray.h>
#include <maya/MPlugArray.h>
#include <maya/MPxNode.h>
#include <maya/MStringArray.h>
#include <maya/MTypeId.h>
#include <maya/MUuid.h>

#include "support/attributeLists.h"
#include "support/nodeSet.h"
#include "support/notImplemented.h"
#include "support/plugCall.h"

#include <algorithm>

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::Node;
using tvxhost::engine::NodeType;
using tvxhost::engine::Plug;
using tvxhost::engine::Scene;

namespace {

MObject create(MFnDependencyNode& set, NodeType* type, const std::string& name, MStatus* returnStatus)
{
    TVX_API_CALL_OR("MFnDependencyNode::create", returnStatus, MObject());
    const auto made = createNode(type, name, nullptr);
    give(returnStatus, type ? toStatus(made.outcome) : failure(StatusText::itemNotFound));
    if (!made)
        return MObject();
    tvxAccess::attach(set, made.value);
    return tvxAccess::handle(made.value);
}

MObject attributeAt(const MFnDependencyNode& set, const char* name, unsigned int index, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, MObject());
    const Node* node = nodeOf(set);
    if (!requireAttached(node, returnStatus))
        return MObject();
    const auto all = allAttributes(*node);
    give(returnStatus, index < all.size() ? MStatus() : failure(StatusText::noElementAtIndex));
    return index < all.size() ? tvxAccess::handle(all[index]) : MObject();
}

/// The plug of a name: an alias, or an attribute by its long or short name. No paths.
Plug plugNamed(Node& node, const std::string& name)
{
    for (const auto& [alias, path] : node.aliases())
        if (alias == name)
            return node.findPlug(path).value;
    Attribute* attribute = node.findAttribute(name);
    return attribute ? Plug(node, *attribute) : Plug();
}

/// Empty when the plug has none.
std::string aliasOf(const MFnDependencyNode& set, const MPlug& plug, MStatus* returnStatus)
{
    const Node* node = nodeOf(set);
    if (!requireAttached(node, returnStatus) || !requirePlug(tvxAccess::plug(plug), returnStatus))
        return {};
    return node->aliasOf(tvxAccess::plug(plug));
}

/// The attribute of a handle when the node has it; else what is wrong.
const Attribute* ownAttribute(const Node& node, const MObject& handle, MStatus* returnStatus)
{
    const Attribute* attribute = attributeOf(handle);
    const bool isOwn = attribute && node.hasAttribute(*attribute);
    give(returnStatus, isOwn             ? MStatus()
                       : handle.isNull() ? failure(StatusText::nullArgument)
                                         : failure(StatusText::itemNotFound));
    return isOwn ? attribute : nullptr;
}

/// The attributes from which an output is computed.
std::vector<Attribute*> inputsBehind(const Node& node, const Attribute& output)
{
    std::vector<Attribute*> inputs;
    for (const NodeType* type = &node.type(); type; type = type->parent)
        for (const auto& [input, affected] : type->affects())
            if (output.isAtOrBelow(*affected))
                inputs.push_back(input);
    return inputs;
}

/// Fills `found` with what `list` gives for an attribute of the attached node.
template <class List>
MStatus listFor(const MFnDependencyNode& set, const char* name, const MObject& attr, MObjectArray& found,
                List list)
{
    TVX_API_CALL(name);
    const Node* node = nodeOf(set);
    if (!node)
        return notAttached();
    MStatus status;
    const Attribute* attribute = ownAttribute(*node, attr, &status);
    if (!attribute)
        return status;
    found.clear();
    for (const Attribute* each : list(*node, *attribute))
        tvxAccess::elements(found).push_back(tvxAccess::handle(each));
    return status;
}

template <class Change>
MStatus changeAttribute(MFnDependencyNode& set, const char* name, const MObject& attr, Change change)
{
    TVX_API_CALL(name);
    Node* node = nodeOf(set);
    if (!node)
        return notAttached();
    Attribute* attribute = attributeOf(attr);
    if (!attribute)
        return failure(attr.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    return plugStatus(change(*node, *attribute));
}

} // namespace

TVX_FUNCTION_SET(MFnDependencyNode, MFn::kDependencyNode)

// Making nodes

MObject MFnDependencyNode::create(const MTypeId& typeId, MStatus* ReturnStatus)
{
    return ::create(*this, typeOf(typeId), {}, ReturnStatus);
}

MObject MFnDependencyNode::create(const MTypeId& typeId, const MString& name, MStatus* ReturnStatus)
{
    return ::create(*this, typeOf(typeId), tvxAccess::text(name), ReturnStatus);
}

MObject MFnDependencyNode::create(const MString& type, MStatus* ReturnStatus)
{
    return ::create(*this, typeOf(type), {}, ReturnStatus);
}

MObject MFnDependencyNode::create(const MString& type, const MString& name, MStatus* ReturnStatus)
{
    return ::create(*this, typeOf(type), tvxAccess::text(name), ReturnStatus);
}

// Type and name

MTypeId MFnDependencyNode::typeId(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::typeId", ReturnStatus, MTypeId());
    const Node* node = nodeOf(*this);
    return requireAttached(node, ReturnStatus) ? MTypeId(node->type().id) : MTypeId();
}

MString MFnDependencyNode::typeName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::typeName", ReturnStatus, MString());
    const Node* node = nodeOf(*this);
    return requireAttached(node, ReturnStatus) ? tvxAccess::string(node->type().name) : MString();
}

MString MFnDependencyNode::name(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::name", ReturnStatus, MString());
    const Node* node = nodeOf(*this);
    return requireAttached(node, ReturnStatus) ? tvxAccess::string(node->name()) : MString();
}

MString MFnDependencyNode::pluginName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::pluginName", ReturnStatus, MString());
    const Node* node = nodeOf(*this);
    return requireAttached(node, ReturnStatus) ? tvxAccess::string(node->type().plugin) : MString();
}

MString MFnDependencyNode::setName(const MString& name, bool createNamespace, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnDependencyNode::setName", ReturnStatus, MString());
    Node* node = nodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return MString();
    const auto renamed = node->scene().rename(*node, tvxAccess::text(name), createNamespace);
    give(ReturnStatus, toStatus(renamed.outcome));
    return renamed ? tvxAccess::string(renamed.value) : MString();
}

MString MFnDependencyNode::setName(const MString& name, MStatus* ReturnStatus)
{
    return setName(name, false, ReturnStatus);
}

bool MFnDependencyNode::hasUniqueName(MStatus* ReturnStatus) const
{
    return askNode(*this, "MFnDependencyNode::hasUniqueName", ReturnStatus, [](const Node& node) {
        return node.scene().shortestName(node).find('|') == std::string::npos;
    });
}

MString MFnDependencyNode::parentNamespace(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::parentNamespace", ReturnStatus, MString());
    const Node* node = nodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return MString();
    const auto colon = node->name().rfind(':');
    return colon == std::string::npos ? MString() : tvxAccess::string(node->name().substr(0, colon));
}

MUuid MFnDependencyNode::uuid(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::uuid", ReturnStatus, MUuid());
    const Node* node = nodeOf(*this);
    return requireAttached(node, ReturnStatus) ? MUuid(tvxAccess::string(node->uuid())) : MUuid();
}

void MFnDependencyNode::setUuid(const MUuid& uuid, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnDependencyNode::setUuid", ReturnStatus, );
    Node* node = nodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return;
    if (node->isLockedNode || node->isReferenced)
        give(ReturnStatus, failure(StatusText::unexpectedFailure));
    else
        node->setUuid(tvxAccess::text(uuid.asString()));
}

MString MFnDependencyNode::classification(const MString& nodeTypeName)
{
    const NodeType* type = typeOf(nodeTypeName);
    return type ? tvxAccess::string(type->classification) : MString();
}

// Attributes

unsigned int MFnDependencyNode::attributeCount(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::attributeCount", ReturnStatus, 0);
    const Node* node = nodeOf(*this);
    return requireAttached(node, ReturnStatus) ? static_cast<unsigned int>(allAttributes(*node).size()) : 0;
}

MObject MFnDependencyNode::attribute(unsigned int index, MStatus* ReturnStatus) const
{
    return attributeAt(*this, "MFnDependencyNode::attribute", index, ReturnStatus);
}

// The order above is one in which parents come before their children already.
MObject MFnDependencyNode::reorderedAttribute(unsigned int index, MStatus* ReturnStatus) const
{
    return attributeAt(*this, "MFnDependencyNode::reorderedAttribute", index, ReturnStatus);
}

MObject MFnDependencyNode::attribute(const MString& attrName, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::attribute", ReturnStatus, MObject());
    const Node* node = nodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return MObject();
    const Attribute* attribute = node->findAttribute(tvxAccess::text(attrName));
    give(ReturnStatus, attribute ? MStatus() : failure(StatusText::itemNotFound));
    return tvxAccess::handle(attribute);
}

bool MFnDependencyNode::hasAttribute(const MString& name, MStatus* ReturnStatus) const
{
    return askNode(*this, "MFnDependencyNode::hasAttribute", ReturnStatus,
                   [&](const Node& node) { return node.findAttribute(tvxAccess::text(name)) != nullptr; });
}

MFnDependencyNode::MAttrClass MFnDependencyNode::attributeClass(const MObject& attr,
                                                                MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::attributeClass", ReturnStatus, kInvalidAttr);
    const Node* node = nodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return kInvalidAttr;
    const Attribute* attribute = ownAttribute(*node, attr, ReturnStatus);
    if (!attribute)
        return kInvalidAttr;
    return attribute->topLevel()->flags.dynamic ? kLocalDynamicAttr : kNormalAttr;
}

bool MFnDependencyNode::isNewAttribute(const MObject& attr, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::isNewAttribute", ReturnStatus, false);
    const Node* node = nodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return false;
    const Attribute* attribute = ownAttribute(*node, attr, ReturnStatus);
    return attribute && attribute->topLevel()->flags.dynamic;
}

MStatus MFnDependencyNode::getAffectedAttributes(const MObject& attr, MObjectArray& affectedAttributes) const
{
    return listFor(
        *this, "MFnDependencyNode::getAffectedAttributes", attr, affectedAttributes,
        [](const Node& node, const Attribute& attribute) { return node.type().affectedBy(attribute); });
}

MStatus MFnDependencyNode::getAffectedByAttributes(const MObject& attr,
                                                   MObjectArray& affectedByAttributes) const
{
    return listFor(*this, "MFnDependencyNode::getAffectedByAttributes", attr, affectedByAttributes,
                   inputsBehind);
}

MStatus MFnDependencyNode::addAttribute(const MObject& attr)
{
    return changeAttribute(
        *this, "MFnDependencyNode::addAttribute", attr,
        [](Node& node, Attribute& attribute) { return node.addDynamicAttribute(&attribute); });
}

MStatus MFnDependencyNode::removeAttribute(const MObject& attr)
{
    return changeAttribute(
        *this, "MFnDependencyNode::removeAttribute", attr,
        [](Node& node, Attribute& attribute) { return node.removeDynamicAttribute(attribute); });
}

MStatus MFnDependencyNode::addAttribute(const MObject& attr, MAttrClass type)
{
    return type == kLocalDynamicAttr ? addAttribute(attr)
                                     : notImplemented("MFnDependencyNode::addAttribute(MAttrClass)");
}

MStatus MFnDependencyNode::removeAttribute(const MObject& attr, MAttrClass type)
{
    return type == kLocalDynamicAttr ? removeAttribute(attr)
                                     : notImplemented("MFnDependencyNode::removeAttribute(MAttrClass)");
}

// Plugs. All are alike: the host makes no difference between networked plugs and others.

MPlug MFnDependencyNode::findPlug(const MObject& attr, bool, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::findPlug", ReturnStatus, MPlug());
    Node* node = nodeOf(*this);
    if (!requireAttached(node, ReturnStatus) || !ownAttribute(*node, attr, ReturnStatus))
        return MPlug();
    return tvxAccess::plug(Plug(*node, *attributeOf(attr)));
}

MPlug MFnDependencyNode::findPlug(const MString& attrName, bool, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::findPlug", ReturnStatus, MPlug());
    Node* node = nodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return MPlug();
    return plugOr(plugNamed(*node, tvxAccess::text(attrName)), StatusText::itemNotFound, ReturnStatus);
}

MPlug MFnDependencyNode::findPlug(const MObject& attr, MStatus* ReturnStatus) const
{
    return findPlug(attr, true, ReturnStatus);
}

MPlug MFnDependencyNode::findPlug(const MString& attrName, MStatus* ReturnStatus) const
{
    return findPlug(attrName, true, ReturnStatus);
}

MStatus MFnDependencyNode::getConnections(MPlugArray& array) const
{
    TVX_API_CALL("MFnDependencyNode::getConnections");
    const Node* node = nodeOf(*this);
    if (!node)
        return notAttached();
    array.clear();
    for (const Plug& plug : tvxhost::engine::connectedPlugs(*node))
        tvxAccess::elements(array).push_back(tvxAccess::plug(plug));
    return MS::kSuccess;
}

// Aliases

bool MFnDependencyNode::setAlias(const MString& alias, const MString&, const MPlug& plug, bool add,
                                 MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnDependencyNode::setAlias", ReturnStatus, false);
    Node* node = nodeOf(*this);
    const Plug& p = tvxAccess::plug(plug);
    if (!requireAttached(node, ReturnStatus) || !requirePlug(p, ReturnStatus))
        return false;
    const MStatus status = p.node() == node
                               ? plugStatus(node->setAlias(p, add ? tvxAccess::text(alias) : std::string()))
                               : failure(StatusText::objectIsIncompatible);
    give(ReturnStatus, status);
    return status;
}

bool MFnDependencyNode::findAlias(const MString& alias, MObject& attrObj, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::findAlias", ReturnStatus, false);
    Node* node = nodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return false;
    for (const auto& [name, path] : node->aliases()) {
        if (name != tvxAccess::text(alias))
            continue;
        tvxAccess::setObject(attrObj, node->findPlug(path).value.attribute());
        return true;
    }
    return false;
}

bool MFnDependencyNode::getAliasList(MStringArray& strArray, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnDependencyNode::getAliasList", ReturnStatus, false);
    const Node* node = nodeOf(*this);
    if (!requireAttached(node, ReturnStatus))
        return false;
    strArray.clear();
    for (const auto& [alias, path] : node->aliases()) {
        strArray.append(tvxAccess::string(alias));
        strArray.append(tvxAccess::string(path));
    }
    return !node->aliases().empty();
}

MString MFnDependencyNode::plugsAlias(const MPlug& plug, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnDependencyNode::plugsAlias", ReturnStatus, MString());
    return tvxAccess::string(aliasOf(*this, plug, ReturnStatus));
}

bool MFnDependencyNode::getPlugsAlias(const MPlug& plug, MString& aliasName, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnDependencyNode::getPlugsAlias", ReturnStatus, false);
    const std::string alias = aliasOf(*this, plug, ReturnStatus);
    aliasName = tvxAccess::string(alias);
    return !alias.empty();
}

// State

MPxNode* MFnDependencyNode::userNode(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDependencyNode::userNode", ReturnStatus, nullptr);
    const Node* node = nodeOf(*this);
    if (!requireAttached(node, ReturnStatus) || !node->behaviour())
        return nullptr;
    return static_cast<MPxNode*>(node->behaviour()->apiObject());
}

bool MFnDependencyNode::isFromReferencedFile(MStatus* ReturnStatus) const
{
    return askNode(*this, "MFnDependencyNode::isFromReferencedFile", ReturnStatus,
                   [](const Node& node) { return node.isReferenced; });
}

bool MFnDependencyNode::isShared(MStatus* ReturnStatus) const
{
    return askNode(*this, "MFnDependencyNode::isShared", ReturnStatus,
                   [](const Node& node) { return node.isShared; });
}

bool MFnDependencyNode::isDefaultNode(MStatus* ReturnStatus) const
{
    return askNode(*this, "MFnDependencyNode::isDefaultNode", ReturnStatus,
                   [](const Node& node) { return node.isDefaultNode; });
}

bool MFnDependencyNode::isLocked(MStatus* ReturnStatus) const
{
    return askNode(*this, "MFnDependencyNode::isLocked", ReturnStatus,
                   [](const Node& node) { return node.isLockedNode; });
}

bool MFnDependencyNode::canBeWritten(MStatus* ReturnStatus) const
{
    return askNode(*this, "MFnDependencyNode::canBeWritten", ReturnStatus,
                   [](const Node& node) { return !node.doNotWrite; });
}

// Only assemblies track edits, and there are none.
bool MFnDependencyNode::isTrackingEdits(MStatus* ReturnStatus) const
{
    return askNode(*this, "MFnDependencyNode::isTrackingEdits", ReturnStatus,
                   [](const Node&) { return false; });
}

MStatus MFnDependencyNode::setLocked(bool locked)
{
    TVX_API_CALL("MFnDependencyNode::setLocked");
    Node* node = nodeOf(*this);
    if (!node)
        return notAttached();
    node->isLockedNode = locked;
    return MS::kSuccess;
}

MStatus MFnDependencyNode::setDoNotWrite(bool flag)
{
    TVX_API_CALL("MFnDependencyNode::setDoNotWrite");
    Node* node = nodeOf(*this);
    if (!node)
        return notAttached();
    node->doNotWrite = flag;
    return MS::kSuccess;
}
