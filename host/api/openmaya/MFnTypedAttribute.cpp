// MFnTypedAttribute: attributes that hold a data object.
#include <maya/MFnTypedAttribute.h>
#include <maya/MTypeId.h>

#include "support/attributeSets.h"
#include "support/notImplemented.h"
#include "support/valueTypes.h"

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::AttributeKind;
using tvxhost::engine::Data;
using tvxhost::engine::DataType;
using tvxhost::engine::Ref;

namespace {

/// The data of a default: none for a null object; a failure for what is not data of the type.
MStatus findDefault(const MObject& object, DataType type, Ref<Data>& found)
{
    if (object.isNull())
        return MS::kSuccess;
    Data* data = dataOf(object);
    if (!data || data->type() != type)
        return failure(StatusText::objectIsIncompatible);
    found = data->clone();
    return MS::kSuccess;
}

} // namespace

TVX_FUNCTION_SET(MFnTypedAttribute, MFn::kTypedAttribute)

MObject MFnTypedAttribute::create(const MString& fullName, const MString& briefName, MFnData::Type type,
                                  MObject defaultData, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnTypedAttribute::create", ReturnStatus, MObject());
    const DataType dataType = dataTypeOf(type);
    Ref<Data> value;
    const MStatus fits = dataType == DataType::none
                             ? failure(MS::kInvalidParameter, StatusText::unexpectedFailure)
                             : findDefault(defaultData, dataType, value);
    if (!fits) {
        give(ReturnStatus, fits);
        return MObject();
    }
    const Ref<Attribute> made(
        new Attribute(AttributeKind::typed, tvxAccess::text(fullName), tvxAccess::text(briefName)));
    made->dataType = dataType;
    made->defaultData = value;
    return adoptAttribute(*this, made, ReturnStatus);
}

MObject MFnTypedAttribute::create(const MString& fullName, const MString& briefName, MFnData::Type type,
                                  MStatus* ReturnStatus)
{
    return create(fullName, briefName, type, MObject::kNullObj, ReturnStatus);
}

MObject MFnTypedAttribute::create(const MString&, const MString&, const MTypeId&, MObject,
                                  MStatus* ReturnStatus)
{
    notImplemented("MFnTypedAttribute::create(MTypeId)", ReturnStatus);
    return MObject();
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
    Ref<Data> value;
    if (const MStatus fits = findDefault(defaultCustomData, attribute->dataType, value); !fits)
        return fits;
    attribute->defaultData = value;
    return MS::kSuccess;
}
