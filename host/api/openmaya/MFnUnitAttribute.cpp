// MFnUnitAttribute: angles, distances and times.
#include <maya/MAngle.h>
#include <maya/MDistance.h>
#include <maya/MFnUnitAttribute.h>
#include <maya/MTime.h>

#include "support/attributeSets.h"
#include "support/unitValues.h"

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::AttributeKind;
using tvxhost::engine::NumberKind;
using tvxhost::engine::Ref;
using tvxhost::engine::UnitKind;

namespace {

UnitKind kindOf(MFnUnitAttribute::Type type)
{
    switch (type) {
    case MFnUnitAttribute::kAngle:
        return UnitKind::angle;
    case MFnUnitAttribute::kDistance:
        return UnitKind::distance;
    case MFnUnitAttribute::kTime:
        return UnitKind::time;
    default:
        return UnitKind::none;
    }
}

/// A new unit attribute; `defaultValue` in the engine's units.
MObject createUnit(MFnUnitAttribute& set, const MString& longName, const MString& shortName, UnitKind unit,
                   double defaultValue, MStatus* returnStatus)
{
    TVX_API_CALL_OR("MFnUnitAttribute::create", returnStatus, MObject());
    if (unit == UnitKind::none) {
        give(returnStatus, failure(MS::kInvalidParameter, StatusText::unexpectedFailure));
        return MObject();
    }
    const Ref<Attribute> made(
        new Attribute(AttributeKind::unit, tvxAccess::text(longName), tvxAccess::text(shortName)));
    made->unit = unit;
    made->number = NumberKind::real;
    made->defaultNumber = defaultValue;
    return adoptAttribute(set, made, returnStatus);
}

UnitKind unitOf(const MFnBase& set)
{
    const Attribute* attribute = attributeOf(set);
    return attribute ? attribute->unit : UnitKind::none;
}

// A plain number stands for the attribute's own unit; a number with a unit must be of the same kind.
double toEngine(const MFnBase& set, double value)
{
    return unitOf(set) == UnitKind::time ? secondsOf(value) : value;
}
void fromEngine(const MFnBase& set, double internal, double& value)
{
    value = unitOf(set) == UnitKind::time ? uiTimeOf(internal) : internal;
}
template <class Value>
double toEngine(const MFnBase&, const Value& value)
{
    return internalValue(value);
}
template <class Value>
void fromEngine(const MFnBase&, double internal, Value& value)
{
    value = fromInternal<Value>(internal);
}

bool fits(const MFnBase&, const double&)
{
    return true;
}
template <class Value>
bool fits(const MFnBase& set, const Value&)
{
    return !attributeOf(set) || unitOf(set) == kUnitOf<Value>;
}

template <class Value>
MStatus getLimit(const MFnBase& set, const char* name, Limit limit, Value& value)
{
    if (!fits(set, value))
        return failure(StatusText::objectIsIncompatible);
    double internal = 0.0;
    const MStatus status = getLimits(set, name, limit, {&internal});
    if (status)
        fromEngine(set, internal, value);
    return status;
}

template <class Value>
MStatus setLimit(MFnBase& set, const char* name, Limit limit, const Value& value)
{
    if (!fits(set, value))
        return failure(StatusText::objectIsIncompatible);
    return setLimits(set, name, limit, {toEngine(set, value)});
}

template <class Value>
MStatus getDefaultOf(const MFnBase& set, Value& value)
{
    if (!fits(set, value))
        return failure(StatusText::objectIsIncompatible);
    double internal = 0.0;
    const MStatus status = getDefaults(set, "MFnUnitAttribute::getDefault", {&internal});
    if (status)
        fromEngine(set, internal, value);
    return status;
}

template <class Value>
MStatus setDefaultOf(MFnBase& set, const Value& value)
{
    if (!fits(set, value))
        return failure(StatusText::objectIsIncompatible);
    return setDefaults(set, "MFnUnitAttribute::setDefault", {toEngine(set, value)});
}

} // namespace

TVX_FUNCTION_SET(MFnUnitAttribute, MFn::kUnitAttribute)

MObject MFnUnitAttribute::create(const MString& fullName, const MString& briefName, Type unitType,
                                 double defaultValue, MStatus* ReturnStatus)
{
    const double internal = unitType == kTime ? secondsOf(defaultValue) : defaultValue;
    return createUnit(*this, fullName, briefName, kindOf(unitType), internal, ReturnStatus);
}

MObject MFnUnitAttribute::create(const MString& fullName, const MString& briefName, const MTime& defaultValue,
                                 MStatus* ReturnStatus)
{
    return createUnit(*this, fullName, briefName, UnitKind::time, internalValue(defaultValue), ReturnStatus);
}

MObject MFnUnitAttribute::create(const MString& fullName, const MString& briefName,
                                 const MAngle& defaultValue, MStatus* ReturnStatus)
{
    return createUnit(*this, fullName, briefName, UnitKind::angle, internalValue(defaultValue), ReturnStatus);
}

MObject MFnUnitAttribute::create(const MString& fullName, const MString& briefName,
                                 const MDistance& defaultValue, MStatus* ReturnStatus)
{
    return createUnit(*this, fullName, briefName, UnitKind::distance, internalValue(defaultValue),
                      ReturnStatus);
}

MFnUnitAttribute::Type MFnUnitAttribute::unitType(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnUnitAttribute::unitType", ReturnStatus, kInvalid);
    if (!requireAttached(attributeOf(*this), ReturnStatus))
        return kInvalid;
    for (const Type type : {kAngle, kDistance, kTime})
        if (kindOf(type) == unitOf(*this))
            return type;
    return kInvalid;
}

#define TVX_HAS_LIMIT(function, limit)                                                                       \
    bool MFnUnitAttribute::function(MStatus* ReturnStatus) const                                             \
    {                                                                                                        \
        return hasLimit(*this, "MFnUnitAttribute::" #function, &Attribute::limit, ReturnStatus);             \
    }

TVX_HAS_LIMIT(hasMin, minimum)
TVX_HAS_LIMIT(hasMax, maximum)
TVX_HAS_LIMIT(hasSoftMin, softMinimum)
TVX_HAS_LIMIT(hasSoftMax, softMaximum)

#undef TVX_HAS_LIMIT

#define TVX_LIMIT(getter, setter, limit, Value, Parameter)                                                   \
    MStatus MFnUnitAttribute::getter(Value& value) const                                                     \
    {                                                                                                        \
        return getLimit(*this, "MFnUnitAttribute::" #getter, &Attribute::limit, value);                      \
    }                                                                                                        \
    MStatus MFnUnitAttribute::setter(Parameter value)                                                        \
    {                                                                                                        \
        return setLimit(*this, "MFnUnitAttribute::" #setter, &Attribute::limit, value);                      \
    }

#define TVX_LIMIT_OF_ALL_KINDS(getter, setter, limit)                                                        \
    TVX_LIMIT(getter, setter, limit, double, double)                                                         \
    TVX_LIMIT(getter, setter, limit, MTime, const MTime&)                                                    \
    TVX_LIMIT(getter, setter, limit, MAngle, const MAngle&)                                                  \
    TVX_LIMIT(getter, setter, limit, MDistance, const MDistance&)

TVX_LIMIT_OF_ALL_KINDS(getMin, setMin, minimum)
TVX_LIMIT_OF_ALL_KINDS(getMax, setMax, maximum)
TVX_LIMIT_OF_ALL_KINDS(getSoftMin, setSoftMin, softMinimum)
TVX_LIMIT_OF_ALL_KINDS(getSoftMax, setSoftMax, softMaximum)

#undef TVX_LIMIT_OF_ALL_KINDS
#undef TVX_LIMIT

#define TVX_DEFAULT(Value, Parameter)                                                                        \
    MStatus MFnUnitAttribute::getDefault(Value& value)                                                       \
    {                                                                                                        \
        return getDefaultOf(*this, value);                                                                   \
    }                                                                                                        \
    MStatus MFnUnitAttribute::setDefault(Parameter value)                                                    \
    {                                                                                                        \
        return setDefaultOf(*this, value);                                                                   \
    }

TVX_DEFAULT(double, double)
TVX_DEFAULT(MTime, const MTime&)
TVX_DEFAULT(MAngle, const MAngle&)
TVX_DEFAULT(MDistance, const MDistance&)

#undef TVX_DEFAULT
