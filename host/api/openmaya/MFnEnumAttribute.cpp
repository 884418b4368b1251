// MFnEnumAttribute: attributes whose numbers have names.
#include <maya/MFnEnumAttribute.h>

#include "support/attributeSets.h"

#include <algorithm>

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::AttributeKind;
using tvxhost::engine::EnumField;
using tvxhost::engine::NumberKind;
using tvxhost::engine::Ref;

namespace {

bool lessValue(const EnumField& a, const EnumField& b)
{
    return a.value < b.value;
}

MStatus defaultNameOf(const MFnBase& set, MString& name)
{
    const Attribute* attribute = attributeOf(set);
    if (!attribute)
        return notAttached();
    const auto found = attribute->fieldName(static_cast<short>(attribute->defaultNumber));
    if (!found)
        return failure(StatusText::itemNotFound);
    name = tvxAccess::string(*found);
    return MS::kSuccess;
}

} // namespace

TVX_FUNCTION_SET(MFnEnumAttribute, MFn::kEnumAttribute)

MObject MFnEnumAttribute::create(const MString& fullName, const MString& briefName, short defaultValue,
                                 MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnEnumAttribute::create", ReturnStatus, MObject());
    const Ref<Attribute> made(
        new Attribute(AttributeKind::enumeration, tvxAccess::text(fullName), tvxAccess::text(briefName)));
    made->number = NumberKind::shortInteger;
    made->defaultNumber = defaultValue;
    return adoptAttribute(*this, made, ReturnStatus);
}

MStatus MFnEnumAttribute::addField(const MString& fieldString, short index)
{
    TVX_API_CALL("MFnEnumAttribute::addField");
    Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    auto& fields = attribute->fields;
    const auto same = std::find_if(fields.begin(), fields.end(),
                                   [&](const EnumField& field) { return field.value == index; });
    if (same == fields.end())
        fields.push_back({tvxAccess::text(fieldString), index});
    else
        same->name = tvxAccess::text(fieldString);
    return MS::kSuccess;
}

MString MFnEnumAttribute::fieldName(short index, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnEnumAttribute::fieldName", ReturnStatus, MString());
    const Attribute* attribute = attributeOf(*this);
    if (!requireAttached(attribute, ReturnStatus))
        return MString();
    const auto name = attribute->fieldName(index);
    if (!name)
        give(ReturnStatus, failure(StatusText::itemNotFound));
    return tvxAccess::string(name.value_or(""));
}

short MFnEnumAttribute::fieldIndex(const MString& fieldString, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnEnumAttribute::fieldIndex", ReturnStatus, 0);
    const Attribute* attribute = attributeOf(*this);
    if (!requireAttached(attribute, ReturnStatus))
        return 0;
    const auto value = attribute->fieldValue(tvxAccess::text(fieldString));
    if (!value)
        give(ReturnStatus, failure(StatusText::itemNotFound));
    return value.value_or(0);
}

MStatus MFnEnumAttribute::getMin(short& minValue) const
{
    TVX_API_CALL("MFnEnumAttribute::getMin");
    const Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    if (attribute->fields.empty())
        return failure(StatusText::unexpectedFailure);
    minValue = std::min_element(attribute->fields.begin(), attribute->fields.end(), lessValue)->value;
    return MS::kSuccess;
}

MStatus MFnEnumAttribute::getMax(short& maxValue) const
{
    TVX_API_CALL("MFnEnumAttribute::getMax");
    const Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    if (attribute->fields.empty())
        return failure(StatusText::unexpectedFailure);
    maxValue = std::max_element(attribute->fields.begin(), attribute->fields.end(), lessValue)->value;
    return MS::kSuccess;
}

MStatus MFnEnumAttribute::setDefault(short index)
{
    return setDefaults(*this, "MFnEnumAttribute::setDefault", {static_cast<double>(index)});
}

MStatus MFnEnumAttribute::setDefault(const MString& fieldString)
{
    TVX_API_CALL("MFnEnumAttribute::setDefault");
    Attribute* attribute = attributeOf(*this);
    if (!attribute)
        return notAttached();
    const auto value = attribute->fieldValue(tvxAccess::text(fieldString));
    if (!value)
        return failure(StatusText::itemNotFound);
    attribute->defaultNumber = *value;
    return MS::kSuccess;
}

MStatus MFnEnumAttribute::getDefault(short& index) const
{
    double value = 0.0;
    const MStatus status = getDefaults(*this, "MFnEnumAttribute::getDefault", {&value});
    if (status)
        index = static_cast<short>(value);
    return status;
}

MStatus MFnEnumAttribute::getDefault(MString& fieldString) const
{
    TVX_API_CALL("MFnEnumAttribute::getDefault");
    return defaultNameOf(*this, fieldString);
}

MString MFnEnumAttribute::defaultValue(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnEnumAttribute::defaultValue", ReturnStatus, MString());
    MString name;
    give(ReturnStatus, defaultNameOf(*this, name));
    return name;
}
