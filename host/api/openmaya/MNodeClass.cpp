// MNodeClass: a type of node.
#include <maya/MNodeClass.h>
#include <maya/MObject.h>
#include <maya/MObjectArray.h>
#include <maya/MString.h>

#include "support/apiCall.h"
#include "support/attributeLists.h"
#include "support/functionSet.h"
#include "support/nodeSet.h"
#include "support/notImplemented.h"

using namespace tvxhost::api;
using tvxhost::engine::NodeType;

namespace {

/// The words of a list that colons separate, each with colons around it, so that whole words are found.
std::string withColons(const std::string& list)
{
    return ":" + list + ":";
}

} // namespace

MNodeClass::MNodeClass(const MString& nodeClassName)
{
    if (const NodeType* type = typeOf(nodeClassName))
        id = MTypeId(type->id);
}

MNodeClass::MNodeClass(const MTypeId& nodeTypeId) : id(nodeTypeId) {}

MTypeId MNodeClass::typeId() const
{
    return id;
}

MString MNodeClass::typeName() const
{
    const NodeType* type = typeOf(id);
    return type ? tvxAccess::string(type->name) : MString();
}

MString MNodeClass::classification() const
{
    const NodeType* type = typeOf(id);
    return type ? tvxAccess::string(type->classification) : MString();
}

MStatus MNodeClass::addToClassification(const MString& str)
{
    TVX_API_CALL("MNodeClass::addToClassification");
    NodeType* type = typeOf(id);
    if (!type)
        return notAttached();
    type->classification += (type->classification.empty() ? "" : ":") + tvxAccess::text(str);
    return MS::kSuccess;
}

MStatus MNodeClass::removeFromClassification(const MString& str)
{
    TVX_API_CALL("MNodeClass::removeFromClassification");
    NodeType* type = typeOf(id);
    if (!type)
        return notAttached();
    std::string list = withColons(type->classification);
    const std::string removed = withColons(tvxAccess::text(str));
    const std::size_t place = list.find(removed);
    if (place == std::string::npos || removed == "::")
        return failure(StatusText::unexpectedFailure);
    list.replace(place, removed.size(), ":");
    type->classification = list.size() > 2 ? list.substr(1, list.size() - 2) : std::string();
    return MS::kSuccess;
}

MString MNodeClass::pluginName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MNodeClass::pluginName", ReturnStatus, MString());
    const NodeType* type = typeOf(id);
    return requireAttached(type, ReturnStatus) ? tvxAccess::string(type->plugin) : MString();
}

MStatus MNodeClass::addExtensionAttribute(const MObject&) const
{
    return notImplemented("MNodeClass::addExtensionAttribute");
}

MStatus MNodeClass::removeExtensionAttribute(const MObject&) const
{
    return notImplemented("MNodeClass::removeExtensionAttribute");
}

MStatus MNodeClass::removeExtensionAttributeIfUnset(const MObject&) const
{
    return notImplemented("MNodeClass::removeExtensionAttributeIfUnset");
}

MStatus MNodeClass::getAttributes(MObjectArray& attr) const
{
    TVX_API_CALL("MNodeClass::getAttributes");
    const NodeType* type = typeOf(id);
    if (!type)
        return notAttached();
    attr.clear();
    for (const auto* each : allAttributes(*type))
        attr.append(tvxAccess::handle(each));
    return MS::kSuccess;
}

unsigned int MNodeClass::attributeCount(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MNodeClass::attributeCount", ReturnStatus, 0);
    const NodeType* type = typeOf(id);
    return requireAttached(type, ReturnStatus) ? static_cast<unsigned int>(allAttributes(*type).size()) : 0;
}

MObject MNodeClass::attribute(unsigned int index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MNodeClass::attribute", ReturnStatus, MObject());
    const NodeType* type = typeOf(id);
    if (!requireAttached(type, ReturnStatus))
        return MObject();
    const auto all = allAttributes(*type);
    give(ReturnStatus, index < all.size() ? MStatus() : failure(StatusText::noElementAtIndex));
    return index < all.size() ? tvxAccess::handle(all[index]) : MObject();
}

MObject MNodeClass::attribute(const MString& attrName, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MNodeClass::attribute", ReturnStatus, MObject());
    const NodeType* type = typeOf(id);
    if (!requireAttached(type, ReturnStatus))
        return MObject();
    const auto* found = type->find(tvxAccess::text(attrName));
    give(ReturnStatus, found ? MStatus() : failure(StatusText::itemNotFound));
    return tvxAccess::handle(found);
}

bool MNodeClass::hasAttribute(const MString& attrName, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MNodeClass::hasAttribute", ReturnStatus, false);
    const NodeType* type = typeOf(id);
    return requireAttached(type, ReturnStatus) && type->find(tvxAccess::text(attrName));
}

const char* MNodeClass::className()
{
    return "MNodeClass";
}
