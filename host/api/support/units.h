// What the units of the API are worth, by the engine's tables.
#pragma once

#include "engine/scene.h"
#include "engine/settingsChange.h"
#include "status.h"

#include <maya/MAngle.h>
#include <maya/MDistance.h>

namespace tvxhost::api {

/// One kind of unit: how much of the internal unit one is, and where the user's choice is kept.
template <class Value>
struct UnitsOf;

template <>
struct UnitsOf<MAngle>
{
    using Unit = engine::AngularUnit;
    static constexpr MAngle::Unit kInternal = MAngle::kRadians;
    static double size(MAngle::Unit unit) { return engine::radiansPer(static_cast<Unit>(unit)); }
    static bool exists(MAngle::Unit unit) { return unit > MAngle::kInvalid && unit < MAngle::kLast; }
    static Unit& chosen() { return engine::Scene::current().units().angle; }
};

template <>
struct UnitsOf<MDistance>
{
    using Unit = engine::LinearUnit;
    static constexpr MDistance::Unit kInternal = MDistance::kCentimeters;
    static double size(MDistance::Unit unit) { return engine::centimetresPer(static_cast<Unit>(unit)); }
    static bool exists(MDistance::Unit unit) { return unit > MDistance::kInvalid && unit < MDistance::kLast; }
    static Unit& chosen() { return engine::Scene::current().units().linear; }
};

/// A number of one unit as a number of another; 0 and kInvalidParameter for a unit that does not exist.
template <class Value>
double converted(double number, typename Value::Unit from, typename Value::Unit to, MStatus* status)
{
    if (!UnitsOf<Value>::exists(from) || !UnitsOf<Value>::exists(to)) {
        give(status, failure(MS::kInvalidParameter, StatusText::unexpectedFailure));
        return 0.0;
    }
    giveSuccess(status);
    return from == to ? number : number * UnitsOf<Value>::size(from) / UnitsOf<Value>::size(to);
}

/// Takes a unit over, when there is such a one.
template <class Value>
MStatus takeUnit(typename Value::Unit& target, typename Value::Unit unit)
{
    if (!UnitsOf<Value>::exists(unit))
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    target = unit;
    return MS::kSuccess;
}

template <class Value>
typename Value::Unit chosenUnit()
{
    return static_cast<typename Value::Unit>(UnitsOf<Value>::chosen());
}

template <class Value>
MStatus chooseUnit(typename Value::Unit unit)
{
    if (!UnitsOf<Value>::exists(unit))
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    const engine::SettingsChange settings(engine::Scene::current());
    UnitsOf<Value>::chosen() = static_cast<typename UnitsOf<Value>::Unit>(unit);
    return MS::kSuccess;
}

} // namespace tvxhost::api

/// The members that MAngle and MDistance share.
#define TVX_UNIT_VALUE_MEMBERS(Class)                                                                        \
    Class::Class() : val(0.0), valUnit(tvxhost::api::UnitsOf<Class>::kInternal) {}                           \
    Class::Class(const Class& src) : val(src.val), valUnit(src.valUnit) {}                                   \
    Class::Class(double number, Unit u) : val(number), valUnit(u) {}                                         \
    Class::~Class() {}                                                                                       \
    Class& Class::operator=(const Class& other)                                                              \
    {                                                                                                        \
        val = other.val;                                                                                     \
        valUnit = other.valUnit;                                                                             \
        return *this;                                                                                        \
    }                                                                                                        \
    Class::Unit Class::unit() const                                                                          \
    {                                                                                                        \
        return valUnit;                                                                                      \
    }                                                                                                        \
    double Class::value() const                                                                              \
    {                                                                                                        \
        return val;                                                                                          \
    }                                                                                                        \
    MStatus Class::setUnit(Unit newUnit)                                                                     \
    {                                                                                                        \
        return tvxhost::api::takeUnit<Class>(valUnit, newUnit);                                              \
    }                                                                                                        \
    MStatus Class::setValue(double newValue)                                                                 \
    {                                                                                                        \
        val = newValue;                                                                                      \
        return MS::kSuccess;                                                                                 \
    }                                                                                                        \
    double Class::as(Unit otherUnit, MStatus* ReturnStatus) const                                            \
    {                                                                                                        \
        return tvxhost::api::converted<Class>(val, valUnit, otherUnit, ReturnStatus);                        \
    }                                                                                                        \
    double Class::asUnits(Unit otherUnit, MStatus* ReturnStatus) const                                       \
    {                                                                                                        \
        return as(otherUnit, ReturnStatus);                                                                  \
    }                                                                                                        \
    Class::Unit Class::uiUnit()                                                                              \
    {                                                                                                        \
        return tvxhost::api::chosenUnit<Class>();                                                            \
    }                                                                                                        \
    MStatus Class::setUIUnit(Unit newUnit)                                                                   \
    {                                                                                                        \
        return tvxhost::api::chooseUnit<Class>(newUnit);                                                     \
    }                                                                                                        \
    Class::Unit Class::internalUnit()                                                                        \
    {                                                                                                        \
        return tvxhost::api::UnitsOf<Class>::kInternal;                                                      \
    }                                                                                                        \
    double Class::internalToUI(double internalValue)                                                         \
    {                                                                                                        \
        return tvxhost::api::converted<Class>(internalValue, internalUnit(), uiUnit(), nullptr);             \
    }                                                                                                        \
    double Class::uiToInternal(double uiValue)                                                               \
    {                                                                                                        \
        return tvxhost::api::converted<Class>(uiValue, uiUnit(), internalUnit(), nullptr);                   \
    }                                                                                                        \
    MStatus Class::setInternalUnit(Unit)                                                                     \
    {                                                                                                        \
        return tvxhost::api::notImplemented(#Class "::setInternalUnit");                                     \
    }                                                                                                        \
    const char* Class::className()                                                                           \
    {                                                                                                        \
        return #Class;                                                                                       \
    }
