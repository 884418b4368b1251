// MFnTypedAttribute: attributes that hold a data object.
#include <maya/MFnTypedAttribute.h>
#include <maya/MTypeId.h>

#include "support/attributeSets.h"
#include "support/handleValues.h"
#include "support/valueTypes.h"

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::AttributeKind;
using tvxhost::engine::Data;
using tvxhost::engine::DataType;
using tvxhost::engine::Ref;

namespace {

/// Gives an attribute its default: none for a null object; a failure for what is not data of its type.
MStatus giveDefault(Attribute& attribute, const MObject& object)
{
    if (object.isNull()) {
        attribute.defaultData = nullptr;
        return MS::kSuccess;
    }
    const Data* data = dataOf(object);
    if (!data || !fits(attribute, *data))
        return failure(StatusText::objectIsIncompatible);
    attribute.defaultData = data->clone();
    return MS::kSuccess;
}

/// A new attribute of a type, with its default; attaches the set to it.
MObject make(MFnBase& set, const MString& fullName, const MString& briefName, DataType type,
             const std::string& pluginType, const MObject& defaultData, MStatus* returnStatus)
{
    const Ref<Attribute> made(
        new Attribute(AttributeKind::typed, tvxAccess::text(fullName), tvxAccess::text(briefName)));
    made->dataType = type;
    made->pluginDataType = pluginType;
    if (const MStatus given = giveDefault(*made, defaultData); !given) {
        give(returnStatus, given);
        return MObject();
    }
    return adoptAttribute(set, made, returnStatus);
}

} // namespace

TVX_FUNCTION_SET(MFnTypedAttribute, MFn::kTypedAttribute)

MObject MFnTypedAttribute::create(const MString& fullName, const MString& briefName, MFnData::Type type,
                                  MObject defaultData, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnTypedAttribute::create", ReturnStatus, MObject());
    const DataType dataType = dataTypeOf(type);
    if (dataType == DataType::none) {
        give(ReturnStatus, failure(MS::kInvalidParameter, StatusText::unexpectedFailure));
        return MObject();
    }
    return make(*this, fullName, briefName, dataType, {}, defaultData, ReturnStatus);
}

MObject MFnTypedAttribute::create(const MString& fullName, const MString& briefName, MFnData::Type type,
                                  MStatus* ReturnStatus)
{
    return create(fullName, briefName, type, MObject::kNullObj, ReturnStatus);
}

MObject MFnTypedAttribute::create(const MString& fullName, const MString& briefName, const MTypeId& id,
                                  MObject defaultData, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnTypedAttribute::create", ReturnStatus, MObject());
    const auto type = tvxhost::engine::Scene::current().dataTypes().find(id.id());
    if (!type) {
        give(ReturnStatus, failure(MS::kInvalidParameter, StatusText::unexpectedFailure));
        return MObject();
    }
    return make(*this, fullName, briefName, DataType::plugin, type->name, defaultData, ReturnStatus);
}

MFnData::Type MFnTypedAttribute::attrType(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnTypedAttribute::attrType", ReturnStatus, MFnData::kInvalid);
    const Attribute* attribute = attributeOf(*this);
    return requireAttached(attribute, ReturnStatus) ? dataTypeOf(attribute->dataType) : MFnData::kInvalid;
}

MStatus MFnTypedAttribute::getDefault(MObject& defaultCustomData)
{
    TVX_API_CALL("MFnTypedAttribute::getDefault");
    const Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    tvxAccess::setObject(defaultCustomData, attribute->defaultData.get());
    return MS::kSuccess;
}

MStatus MFnTypedAttribute::setDefault(const MObject& defaultCustomData)
{
    TVX_API_CALL("MFnTypedAttribute::setDefault");
    Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    return giveDefault(*attribute, defaultCustomData);
}
