// MFnNumericAttribute: numbers, alone or in groups of two to four.
#include <maya/MFnNumericAttribute.h>

#include "support/attributeSets.h"
#include "support/notImplemented.h"
#include "support/valueTypes.h"

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::AttributeKind;
using tvxhost::engine::Ref;

namespace {

constexpr std::array<const char*, 4> kDigits = {"0", "1", "2", "3"};

Ref<Attribute> make(const std::string& longName, const std::string& shortName, NumberShape shape,
                    double defaultValue)
{
    if (shape.count == 1)
        return tvxhost::engine::makeNumber(longName, shortName, shape.kind, defaultValue);
    auto group =
        tvxhost::engine::makeNumberGroup(longName, shortName, shape.kind, shape.count, kDigits, kDigits);
    for (const auto& child : group->children)
        child->defaultNumber = defaultValue;
    return group;
}

/// Two or three free single numbers of one kind can stand side by side.
bool canBeGrouped(const std::vector<Attribute*>& numbers)
{
    for (const Attribute* number : numbers)
        if (!number || number->kind != AttributeKind::numeric || number->isNumberGroup() || number->parent ||
            number->isArray() || !isFree(*number) || number->number != numbers.front()->number)
            return false;
    return true;
}

/// The default of the single number that the set is attached to, as another type.
template <class T>
MStatus getDefaultAs(const MFnNumericAttribute& set, T& value)
{
    double real = 0.0;
    const MStatus status = getDefaults(set, "MFnNumericAttribute::getDefault", {&real});
    if (status)
        value = static_cast<T>(real);
    return status;
}

template <class T, class... Rest>
MStatus getDefaultsAs(const MFnNumericAttribute& set, T& first, Rest&... rest)
{
    double reals[1 + sizeof...(rest)] = {};
    MStatus status;
    if constexpr (sizeof...(rest) == 1)
        status = getDefaults(set, "MFnNumericAttribute::getDefault", {&reals[0], &reals[1]});
    else if constexpr (sizeof...(rest) == 2)
        status = getDefaults(set, "MFnNumericAttribute::getDefault", {&reals[0], &reals[1], &reals[2]});
    else
        status =
            getDefaults(set, "MFnNumericAttribute::getDefault", {&reals[0], &reals[1], &reals[2], &reals[3]});
    if (status) {
        const double* next = reals;
        first = static_cast<T>(*next++);
        ((rest = static_cast<Rest>(*next++)), ...);
    }
    return status;
}

template <class... T>
MStatus setDefaultsFrom(MFnNumericAttribute& set, T... values)
{
    return setDefaults(set, "MFnNumericAttribute::setDefault", {static_cast<double>(values)...});
}

} // namespace

TVX_FUNCTION_SET(MFnNumericAttribute, MFn::kNumericAttribute)

bool MFnNumericAttribute::objectChanged(MFn::Type objectType, MStatus* ReturnStatus)
{
    return MFnBase::objectChanged(objectType, ReturnStatus);
}

MObject MFnNumericAttribute::create(const MString& fullName, const MString& briefName,
                                    MFnNumericData::Type unitType, double defaultValue, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNumericAttribute::create", ReturnStatus, MObject());
    const NumberShape shape = numberShapeOf(unitType);
    if (shape.count == 0) {
        give(ReturnStatus, unitType == MFnNumericData::kAddr
                               ? notImplemented("MFnNumericAttribute::create(kAddr)")
                               : failure(MS::kInvalidParameter, StatusText::unexpectedFailure));
        return MObject();
    }
    return adoptAttribute(*this,
                          make(tvxAccess::text(fullName), tvxAccess::text(briefName), shape, defaultValue),
                          ReturnStatus);
}

MObject MFnNumericAttribute::create(const MString& fullName, const MString& briefName, const MObject& child1,
                                    const MObject& child2, const MObject& child3, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNumericAttribute::create", ReturnStatus, MObject());
    std::vector<Attribute*> numbers = {attributeOf(child1), attributeOf(child2)};
    if (!child3.isNull())
        numbers.push_back(attributeOf(child3));
    if (!canBeGrouped(numbers)) {
        give(ReturnStatus, failure(StatusText::objectIsIncompatible));
        return MObject();
    }
    const Ref<Attribute> group(
        new Attribute(AttributeKind::numeric, tvxAccess::text(fullName), tvxAccess::text(briefName)));
    group->number = numbers.front()->number;
    for (Attribute* number : numbers)
        group->addChild(number);
    return adoptAttribute(*this, group, ReturnStatus);
}

MObject MFnNumericAttribute::createColor(const MString& fullName, const MString& briefName,
                                         MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNumericAttribute::createColor", ReturnStatus, MObject());
    return adoptAttribute(*this,
                          tvxhost::engine::makeColor(tvxAccess::text(fullName), tvxAccess::text(briefName)),
                          ReturnStatus);
}

MObject MFnNumericAttribute::createPoint(const MString& fullName, const MString& briefName,
                                         MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnNumericAttribute::createPoint", ReturnStatus, MObject());
    return adoptAttribute(*this,
                          tvxhost::engine::makePoint(tvxAccess::text(fullName), tvxAccess::text(briefName)),
                          ReturnStatus);
}

MObject MFnNumericAttribute::createAddr(const MString&, const MString&, void*, MStatus* ReturnStatus)
{
    notImplemented("MFnNumericAttribute::createAddr", ReturnStatus);
    return MObject();
}

MFnNumericData::Type MFnNumericAttribute::unitType(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnNumericAttribute::unitType", ReturnStatus, MFnNumericData::kInvalid);
    const Attribute* attribute = attributeOf(*this);
    if (!requireAttached(attribute, ReturnStatus))
        return MFnNumericData::kInvalid;
    return numericTypeOf(*attribute);
}

MObject MFnNumericAttribute::child(unsigned int index, MStatus* ReturnStatus) const
{
    return childAt(*this, "MFnNumericAttribute::child", index, ReturnStatus);
}

#define TVX_HAS_LIMIT(function, limit)                                                                       \
    bool MFnNumericAttribute::function(MStatus* ReturnStatus) const                                          \
    {                                                                                                        \
        return hasLimit(*this, "MFnNumericAttribute::" #function, &Attribute::limit, ReturnStatus);          \
    }

TVX_HAS_LIMIT(hasMin, minimum)
TVX_HAS_LIMIT(hasMax, maximum)
TVX_HAS_LIMIT(hasSoftMin, softMinimum)
TVX_HAS_LIMIT(hasSoftMax, softMaximum)

#undef TVX_HAS_LIMIT

#define TVX_ONE_LIMIT(getter, setter, limit)                                                                 \
    MStatus MFnNumericAttribute::getter(double& a) const                                                     \
    {                                                                                                        \
        return getLimits(*this, "MFnNumericAttribute::" #getter, &Attribute::limit, {&a});                   \
    }                                                                                                        \
    MStatus MFnNumericAttribute::setter(double a)                                                            \
    {                                                                                                        \
        return setLimits(*this, "MFnNumericAttribute::" #setter, &Attribute::limit, {a});                    \
    }

#define TVX_GROUP_LIMITS(getter, setter, limit)                                                              \
    TVX_ONE_LIMIT(getter, setter, limit)                                                                     \
    MStatus MFnNumericAttribute::getter(double& a, double& b) const                                          \
    {                                                                                                        \
        return getLimits(*this, "MFnNumericAttribute::" #getter, &Attribute::limit, {&a, &b});               \
    }                                                                                                        \
    MStatus MFnNumericAttribute::getter(double& a, double& b, double& c) const                               \
    {                                                                                                        \
        return getLimits(*this, "MFnNumericAttribute::" #getter, &Attribute::limit, {&a, &b, &c});           \
    }                                                                                                        \
    MStatus MFnNumericAttribute::setter(double a, double b)                                                  \
    {                                                                                                        \
        return setLimits(*this, "MFnNumericAttribute::" #setter, &Attribute::limit, {a, b});                 \
    }                                                                                                        \
    MStatus MFnNumericAttribute::setter(double a, double b, double c)                                        \
    {                                                                                                        \
        return setLimits(*this, "MFnNumericAttribute::" #setter, &Attribute::limit, {a, b, c});              \
    }

TVX_GROUP_LIMITS(getMin, setMin, minimum)
TVX_GROUP_LIMITS(getMax, setMax, maximum)
TVX_ONE_LIMIT(getSoftMin, setSoftMin, softMinimum)
TVX_ONE_LIMIT(getSoftMax, setSoftMax, softMaximum)

#undef TVX_GROUP_LIMITS
#undef TVX_ONE_LIMIT

#define TVX_ONE_DEFAULT(Type)                                                                                \
    MStatus MFnNumericAttribute::getDefault(Type& a)                                                         \
    {                                                                                                        \
        return getDefaultAs(*this, a);                                                                       \
    }                                                                                                        \
    MStatus MFnNumericAttribute::setDefault(Type a)                                                          \
    {                                                                                                        \
        return setDefaultsFrom(*this, a);                                                                    \
    }

#define TVX_GROUP_DEFAULTS(Type)                                                                             \
    TVX_ONE_DEFAULT(Type)                                                                                    \
    MStatus MFnNumericAttribute::getDefault(Type& a, Type& b)                                                \
    {                                                                                                        \
        return getDefaultsAs(*this, a, b);                                                                   \
    }                                                                                                        \
    MStatus MFnNumericAttribute::getDefault(Type& a, Type& b, Type& c)                                       \
    {                                                                                                        \
        return getDefaultsAs(*this, a, b, c);                                                                \
    }                                                                                                        \
    MStatus MFnNumericAttribute::setDefault(Type a, Type b)                                                  \
    {                                                                                                        \
        return setDefaultsFrom(*this, a, b);                                                                 \
    }                                                                                                        \
    MStatus MFnNumericAttribute::setDefault(Type a, Type b, Type c)                                          \
    {                                                                                                        \
        return setDefaultsFrom(*this, a, b, c);                                                              \
    }

TVX_ONE_DEFAULT(bool)
TVX_ONE_DEFAULT(char)
TVX_ONE_DEFAULT(MInt64)
TVX_GROUP_DEFAULTS(int)
TVX_GROUP_DEFAULTS(float)
TVX_GROUP_DEFAULTS(double)

#undef TVX_GROUP_DEFAULTS
#undef TVX_ONE_DEFAULT

MStatus MFnNumericAttribute::getDefault(double& def1, double& def2, double& def3, double& def4)
{
    return getDefaultsAs(*this, def1, def2, def3, def4);
}

MStatus MFnNumericAttribute::setDefault(double def1, double def2, double def3, double def4)
{
    return setDefaultsFrom(*this, def1, def2, def3, def4);
}

MStatus MFnNumericAttribute::getDefault(void*&)
{
    return notImplemented("MFnNumericAttribute::getDefault(void*)");
}

MStatus MFnNumericAttribute::setDefault(void*)
{
    return notImplemented("MFnNumericAttribute::setDefault(void*)");
}
