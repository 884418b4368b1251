// Numbers with units: the API's classes and the engine's internal units (radians, centimetres, seconds).
#pragma once

#include "engine/attribute.h"
#include "engine/scene.h"

#include <maya/MAngle.h>
#include <maya/MDistance.h>
#include <maya/MTime.h>

namespace tvxhost::api {

/// Seconds of a number of UI units of time, and back.
inline double secondsOf(double uiTime)
{
    return uiTime * engine::secondsPer(engine::Scene::current().units().time);
}
inline double uiTimeOf(double seconds)
{
    return seconds / engine::secondsPer(engine::Scene::current().units().time);
}

inline double internalValue(const MAngle& angle)
{
    return angle.asRadians();
}
inline double internalValue(const MDistance& distance)
{
    return distance.asCentimeters();
}
inline double internalValue(const MTime& time)
{
    return time.as(MTime::kSeconds);
}

/// The value with its unit: radians, centimetres, and for a time the UI unit.
template <class Value>
Value fromInternal(double internal);
template <>
inline MAngle fromInternal(double internal)
{
    return MAngle(internal, MAngle::kRadians);
}
template <>
inline MDistance fromInternal(double internal)
{
    return MDistance(internal, MDistance::kCentimeters);
}
template <>
inline MTime fromInternal(double internal)
{
    const auto unit = static_cast<MTime::Unit>(engine::Scene::current().units().time);
    return MTime(uiTimeOf(internal), unit);
}

template <class Value>
constexpr engine::UnitKind kUnitOf = engine::UnitKind::none;
template <>
inline constexpr engine::UnitKind kUnitOf<MAngle> = engine::UnitKind::angle;
template <>
inline constexpr engine::UnitKind kUnitOf<MDistance> = engine::UnitKind::distance;
template <>
inline constexpr engine::UnitKind kUnitOf<MTime> = engine::UnitKind::time;

} // namespace tvxhost::api
