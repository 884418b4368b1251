// MFnGenericAttribute: attributes that take any of several kinds of data.
#include <maya/MFnGenericAttribute.h>
#include <maya/MTypeId.h>

#include "engine/pluginData.h"
#include "support/attributeSets.h"
#include "support/valueTypes.h"

#include <algorithm>

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::AttributeKind;
using tvxhost::engine::DataType;

namespace {

/// The list in an attribute that holds such things.
std::vector<DataType>& acceptedIn(Attribute& attribute, const DataType&)
{
    return attribute.acceptedData;
}
std::vector<std::string>& acceptedIn(Attribute& attribute, const std::string&)
{
    return attribute.acceptedPluginData;
}

/// `type`: a kind of data, or the name of a plug-in's own; the neutral value is no type.
template <class Type>
MStatus accept(MFnBase& set, const char* name, const Type& type)
{
    TVX_API_CALL(name);
    Attribute* attribute = attributeOf(set);
    if (!attribute)
        return notAttached();
    if (type == Type())
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    auto& accepted = acceptedIn(*attribute, type);
    if (std::find(accepted.begin(), accepted.end(), type) == accepted.end())
        accepted.push_back(type);
    return MS::kSuccess;
}

template <class Type>
MStatus refuse(MFnBase& set, const char* name, const Type& type)
{
    TVX_API_CALL(name);
    Attribute* attribute = attributeOf(set);
    if (!attribute)
        return notAttached();
    auto& accepted = acceptedIn(*attribute, type);
    const auto place = std::find(accepted.begin(), accepted.end(), type);
    if (place == accepted.end())
        return failure(StatusText::itemNotFound);
    accepted.erase(place);
    return MS::kSuccess;
}

/// The name of a plug-in's type of data; empty when no plug-in registered it.
std::string dataTypeName(const MTypeId& id)
{
    const auto type = tvxhost::engine::Scene::current().dataTypes().find(id.id());
    return type ? type->name : std::string();
}

/// Numbers are accepted as a whole: each kind converts to every other.
DataType numericDataOf(MFnNumericData::Type type)
{
    return numberShapeOf(type).count == 0 ? DataType::none : DataType::numeric;
}

} // namespace

TVX_FUNCTION_SET(MFnGenericAttribute, MFn::kGenericAttribute)

MObject MFnGenericAttribute::create(const MString& full, const MString& brief, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnGenericAttribute::create", ReturnStatus, MObject());
    return adoptAttribute(
        *this, new Attribute(AttributeKind::generic, tvxAccess::text(full), tvxAccess::text(brief)),
        ReturnStatus);
}

MStatus MFnGenericAttribute::addDataAccept(MFnData::Type newType)
{
    return accept(*this, "MFnGenericAttribute::addDataAccept", dataTypeOf(newType));
}

MStatus MFnGenericAttribute::addNumericDataAccept(MFnNumericData::Type newType)
{
    return accept(*this, "MFnGenericAttribute::addNumericDataAccept", numericDataOf(newType));
}

MStatus MFnGenericAttribute::addAccept(MFnData::Type newType)
{
    return accept(*this, "MFnGenericAttribute::addAccept", dataTypeOf(newType));
}

MStatus MFnGenericAttribute::addAccept(MFnNumericData::Type newType)
{
    return accept(*this, "MFnGenericAttribute::addAccept", numericDataOf(newType));
}

MStatus MFnGenericAttribute::addAccept(const MTypeId& newType)
{
    return accept(*this, "MFnGenericAttribute::addAccept", dataTypeName(newType));
}

MStatus MFnGenericAttribute::removeDataAccept(MFnData::Type oldType)
{
    return refuse(*this, "MFnGenericAttribute::removeDataAccept", dataTypeOf(oldType));
}

MStatus MFnGenericAttribute::removeNumericDataAccept(MFnNumericData::Type oldType)
{
    return refuse(*this, "MFnGenericAttribute::removeNumericDataAccept", numericDataOf(oldType));
}

MStatus MFnGenericAttribute::removeAccept(MFnData::Type oldType)
{
    return refuse(*this, "MFnGenericAttribute::removeAccept", dataTypeOf(oldType));
}

MStatus MFnGenericAttribute::removeAccept(MFnNumericData::Type oldType)
{
    return refuse(*this, "MFnGenericAttribute::removeAccept", numericDataOf(oldType));
}

MStatus MFnGenericAttribute::removeAccept(const MTypeId& oldType)
{
    return refuse(*this, "MFnGenericAttribute::removeAccept", dataTypeName(oldType));
}
