// MFnAttribute: what all attributes have.
#include <maya/MFnAttribute.h>
#include <maya/MStringArray.h>
#include <maya/MTypeId.h>

#include "engine/pluginData.h"
#include "support/addAttrCommand.h"
#include "support/attributeSets.h"
#include "support/notImplemented.h"
#include "support/valueTypes.h"

#include <algorithm>

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::AttributeFlags;
using tvxhost::engine::AttributeKind;

namespace {

using Flag = bool AttributeFlags::*;

bool flagOf(const MFnAttribute& set, const char* name, Flag flag, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, false);
    const Attribute* attribute = attributeOf(set);
    if (!requireAttached(attribute, returnStatus))
        return false;
    return attribute->flags.*flag;
}

void setOnGroup(Attribute& attribute, Flag flag, bool state)
{
    attribute.flags.*flag = state;
    if (attribute.isNumberGroup())
        for (const auto& child : attribute.children)
            child->flags.*flag = state;
}

/// A flag that a number group hands down to its children.
MStatus setFlag(MFnAttribute& set, const char* name, Flag flag, bool state)
{
    TVX_API_CALL(name);
    Attribute* attribute = attributeOf(set);
    if (!attribute)
        return notAttached();
    setOnGroup(*attribute, flag, state);
    return MS::kSuccess;
}

/// A flag that belongs to the attribute as a whole.
MStatus setOwnFlag(MFnAttribute& set, const char* name, Flag flag, bool state)
{
    TVX_API_CALL(name);
    Attribute* attribute = attributeOf(set);
    if (!attribute)
        return notAttached();
    attribute->flags.*flag = state;
    return MS::kSuccess;
}

} // namespace

MFnAttribute::~MFnAttribute() = default;

MFnAttribute::MFnAttribute(MObject& object, MStatus* ReturnStatus) : ca()
{
    TVX_CONSTRUCT_ON(MFnAttribute, object, ReturnStatus);
}

MFnAttribute::MFnAttribute(const MObject& object, MStatus* ReturnStatus) : ca()
{
    TVX_CONSTRUCT_ON(MFnAttribute, object, ReturnStatus);
}

MFn::Type MFnAttribute::type() const
{
    return MFn::kAttribute;
}

const char* MFnAttribute::className()
{
    return "MFnAttribute";
}

void MFnAttribute::setPtr(MPtrBase* pointer)
{
    MFnBase::setPtr(pointer);
}

bool MFnAttribute::objectChanged(MFn::Type objectType, MStatus* ReturnStatus)
{
    return MFnBase::objectChanged(objectType, ReturnStatus);
}

#define TVX_FLAG_GETTER(function, flag)                                                                      \
    bool MFnAttribute::function(MStatus* ReturnStatus) const                                                 \
    {                                                                                                        \
        return flagOf(*this, "MFnAttribute::" #function, &AttributeFlags::flag, ReturnStatus);               \
    }

TVX_FLAG_GETTER(isReadable, readable)
TVX_FLAG_GETTER(isWritable, writable)
TVX_FLAG_GETTER(isConnectable, connectable)
TVX_FLAG_GETTER(isStorable, storable)
TVX_FLAG_GETTER(isCached, cached)
TVX_FLAG_GETTER(isArray, array)
TVX_FLAG_GETTER(indexMatters, indexMatters)
TVX_FLAG_GETTER(isKeyable, keyable)
TVX_FLAG_GETTER(isChannelBoxFlagSet, channelBox)
TVX_FLAG_GETTER(isHidden, hidden)
TVX_FLAG_GETTER(isUsedAsColor, usedAsColor)
TVX_FLAG_GETTER(isRenderSource, renderSource)
TVX_FLAG_GETTER(isDynamic, dynamic)
TVX_FLAG_GETTER(isWorldSpace, worldSpace)
TVX_FLAG_GETTER(isAffectsWorldSpace, affectsWorldSpace)
TVX_FLAG_GETTER(isUsedAsFilename, usedAsFilename)
TVX_FLAG_GETTER(affectsAppearance, affectsAppearance)
TVX_FLAG_GETTER(usesArrayDataBuilder, arrayBuilder)
TVX_FLAG_GETTER(internal, internal)

#undef TVX_FLAG_GETTER

#define TVX_FLAG_SETTER(function, flag, setter)                                                              \
    MStatus MFnAttribute::function(bool state)                                                               \
    {                                                                                                        \
        return setter(*this, "MFnAttribute::" #function, &AttributeFlags::flag, state);                      \
    }

TVX_FLAG_SETTER(setReadable, readable, setFlag)
TVX_FLAG_SETTER(setWritable, writable, setFlag)
TVX_FLAG_SETTER(setConnectable, connectable, setFlag)
TVX_FLAG_SETTER(setStorable, storable, setFlag)
TVX_FLAG_SETTER(setCached, cached, setFlag)
TVX_FLAG_SETTER(setKeyable, keyable, setFlag)
TVX_FLAG_SETTER(setChannelBox, channelBox, setFlag)
TVX_FLAG_SETTER(setHidden, hidden, setFlag)
TVX_FLAG_SETTER(setRenderSource, renderSource, setFlag)
TVX_FLAG_SETTER(setWorldSpace, worldSpace, setFlag)
TVX_FLAG_SETTER(setAffectsWorldSpace, affectsWorldSpace, setFlag)
TVX_FLAG_SETTER(setAffectsAppearance, affectsAppearance, setFlag)
TVX_FLAG_SETTER(setInternal, internal, setFlag)
TVX_FLAG_SETTER(setIndexMatters, indexMatters, setOwnFlag)
TVX_FLAG_SETTER(setUsedAsColor, usedAsColor, setOwnFlag)
TVX_FLAG_SETTER(setUsedAsFilename, usedAsFilename, setOwnFlag)
TVX_FLAG_SETTER(setUsesArrayDataBuilder, arrayBuilder, setOwnFlag)

#undef TVX_FLAG_SETTER

MStatus MFnAttribute::setArray(bool state)
{
    TVX_API_CALL("MFnAttribute::setArray");
    Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    if (!isFree(*attribute))
        return failure(StatusText::unexpectedFailure);
    attribute->flags.array = state;
    return MS::kSuccess;
}

bool MFnAttribute::isIndeterminant(MStatus* ReturnStatus) const
{
    notImplemented("MFnAttribute::isIndeterminant", ReturnStatus);
    return false;
}

MStatus MFnAttribute::setIndeterminant(bool)
{
    return notImplemented("MFnAttribute::setIndeterminant");
}

// Attributes that extend a type from outside cannot be made here, so none is one.
bool MFnAttribute::isExtension(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAttribute::isExtension", ReturnStatus, false);
    requireAttached(attributeOf(*this), ReturnStatus);
    return false;
}

MFnAttribute::DisconnectBehavior MFnAttribute::disconnectBehavior(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAttribute::disconnectBehavior", ReturnStatus, kNothing);
    const Attribute* attribute = attributeOf(*this);
    if (!requireAttached(attribute, ReturnStatus))
        return kNothing;
    return static_cast<DisconnectBehavior>(attribute->disconnectBehaviour);
}

MStatus MFnAttribute::setDisconnectBehavior(DisconnectBehavior behavior)
{
    TVX_API_CALL("MFnAttribute::setDisconnectBehavior");
    Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    attribute->disconnectBehaviour = behavior;
    return MS::kSuccess;
}

MStatus MFnAttribute::setNiceNameOverride(const MString& localizedName)
{
    TVX_API_CALL("MFnAttribute::setNiceNameOverride");
    Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    attribute->niceName = tvxAccess::text(localizedName);
    return MS::kSuccess;
}

bool MFnAttribute::accepts(MFnData::Type dataType, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAttribute::accepts", ReturnStatus, false);
    const Attribute* attribute = attributeOf(*this);
    if (!requireAttached(attribute, ReturnStatus))
        return false;
    const auto wanted = dataTypeOf(dataType);
    if (wanted == tvxhost::engine::DataType::none)
        return false;
    const auto& accepted = attribute->acceptedData;
    return attribute->dataType == wanted ||
           std::find(accepted.begin(), accepted.end(), wanted) != accepted.end();
}

bool MFnAttribute::accepts(const MTypeId& id, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAttribute::accepts", ReturnStatus, false);
    const Attribute* attribute = attributeOf(*this);
    if (!requireAttached(attribute, ReturnStatus))
        return false;
    const auto type = tvxhost::engine::Scene::current().dataTypes().find(id.id());
    if (!type)
        return false;
    if (attribute->kind != AttributeKind::generic)
        return tvxhost::engine::takesPluginData(*attribute, type->name);
    const auto& accepted = attribute->acceptedPluginData;
    return std::find(accepted.begin(), accepted.end(), type->name) != accepted.end();
}

MObject MFnAttribute::parent(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAttribute::parent", ReturnStatus, MObject());
    const Attribute* attribute = attributeOf(*this);
    if (!requireAttached(attribute, ReturnStatus))
        return MObject();
    if (!attribute->parent)
        give(ReturnStatus, MStatus(MS::kNotFound));
    return tvxAccess::handle(attribute->parent);
}

MString MFnAttribute::name(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAttribute::name", ReturnStatus, MString());
    const Attribute* attribute = attributeOf(*this);
    return requireAttached(attribute, ReturnStatus) ? tvxAccess::string(attribute->longName) : MString();
}

MString MFnAttribute::shortName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnAttribute::shortName", ReturnStatus, MString());
    const Attribute* attribute = attributeOf(*this);
    return requireAttached(attribute, ReturnStatus) ? tvxAccess::string(attribute->shortName) : MString();
}

MString MFnAttribute::getAddAttrCmd(bool useLongName, MStatus* status) const
{
    TVX_API_CALL_OR("MFnAttribute::getAddAttrCmd", status, MString());
    const Attribute* attribute = attributeOf(*this);
    if (!requireAttached(attribute, status))
        return MString();
    return tvxAccess::string(addAttrCommand(*attribute, useLongName));
}

MStatus MFnAttribute::addToCategory(const MString& category)
{
    TVX_API_CALL("MFnAttribute::addToCategory");
    Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    if (!hasCategory(category))
        attribute->categories.push_back(tvxAccess::text(category));
    return MS::kSuccess;
}

MStatus MFnAttribute::removeFromCategory(const MString& category)
{
    TVX_API_CALL("MFnAttribute::removeFromCategory");
    Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    auto& categories = attribute->categories;
    const auto place = std::find(categories.begin(), categories.end(), tvxAccess::text(category));
    if (place == categories.end())
        return failure(StatusText::itemNotFound);
    categories.erase(place);
    return MS::kSuccess;
}

bool MFnAttribute::hasCategory(const MString& category) const
{
    const Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return false;
    const auto& categories = attribute->categories;
    return std::find(categories.begin(), categories.end(), tvxAccess::text(category)) != categories.end();
}

MStatus MFnAttribute::getCategories(MStringArray& categories) const
{
    TVX_API_CALL("MFnAttribute::getCategories");
    const Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    categories.clear();
    for (const std::string& category : attribute->categories)
        categories.append(tvxAccess::string(category));
    return MS::kSuccess;
}
