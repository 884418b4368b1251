// MTime: a time with its unit, in whole ticks.
#include <maya/MTime.h>

#include "engine/scene.h"
#include "engine/settingsChange.h"
#include "support/status.h"

#include <cmath>

using namespace tvxhost;

namespace {

constexpr double kTicksPerSecond = 6000.0;

double ticksPer(MTime::Unit unit)
{
    return engine::secondsPer(unit) * kTicksPerSecond;
}

double ticksOf(double number, MTime::Unit unit)
{
    return std::round(number * ticksPer(unit));
}

double ticksOf(const MTime& time)
{
    return ticksOf(time.value(), time.unit());
}

double fromTicks(double ticks, MTime::Unit unit)
{
    const double size = ticksPer(unit);
    return size > 0.0 ? ticks / size : 0.0;
}

/// The nearest number that is a whole count of ticks.
double rounded(double number, MTime::Unit unit)
{
    return ticksPer(unit) > 0.0 ? fromTicks(ticksOf(number, unit), unit) : number;
}

} // namespace

MTime::MTime() : number(0.0), label(uiUnit()) {}

MTime::MTime(const MTime& other) : number(other.number), label(other.label) {}

MTime::MTime(double time_val, Unit timeUnit) : number(rounded(time_val, timeUnit)), label(timeUnit) {}

MTime::~MTime() {}

MTime& MTime::operator=(const MTime& rhs)
{
    number = rhs.number;
    label = rhs.label;
    return *this;
}

MTime::Unit MTime::unit() const
{
    return label;
}

double MTime::value() const
{
    return number;
}

MStatus MTime::setUnit(Unit new_unit)
{
    if (ticksPer(new_unit) <= 0.0)
        return api::failure(MS::kInvalidParameter, api::StatusText::unexpectedFailure);
    label = new_unit;
    return MS::kSuccess;
}

MStatus MTime::setValue(double new_value)
{
    number = rounded(new_value, label);
    return MS::kSuccess;
}

double MTime::as(Unit other_unit) const
{
    return other_unit == label ? number : fromTicks(ticksOf(*this), other_unit);
}

double MTime::asUnits(Unit other_unit) const
{
    return as(other_unit);
}

MTime::Unit MTime::uiUnit()
{
    return static_cast<Unit>(engine::Scene::current().units().time);
}

MStatus MTime::setUIUnit(Unit new_unit)
{
    if (ticksPer(new_unit) <= 0.0)
        return api::failure(MS::kInvalidParameter, api::StatusText::unexpectedFailure);
    const engine::SettingsChange settings(engine::Scene::current());
    engine::Scene::current().units().time = new_unit;
    return MS::kSuccess;
}

bool MTime::operator==(const MTime& rhs) const
{
    return ticksOf(*this) == ticksOf(rhs);
}

bool MTime::operator!=(const MTime& rhs) const
{
    return !(*this == rhs);
}

bool MTime::operator<=(const MTime& rhs) const
{
    return ticksOf(*this) <= ticksOf(rhs);
}

bool MTime::operator>=(const MTime& rhs) const
{
    return rhs <= *this;
}

bool MTime::operator<(const MTime& rhs) const
{
    return ticksOf(*this) < ticksOf(rhs);
}

bool MTime::operator>(const MTime& rhs) const
{
    return rhs < *this;
}

MTime MTime::operator+(const MTime& rhs) const
{
    return MTime(fromTicks(ticksOf(*this) + ticksOf(rhs), label), label);
}

MTime MTime::operator+(double rhs) const
{
    return MTime(number + rhs, label);
}

MTime& MTime::operator+=(const MTime& rhs)
{
    return *this = *this + rhs;
}

MTime& MTime::operator+=(double rhs)
{
    return *this = *this + rhs;
}

MTime MTime::operator-(const MTime& rhs) const
{
    return MTime(fromTicks(ticksOf(*this) - ticksOf(rhs), label), label);
}

MTime MTime::operator-(double rhs) const
{
    return MTime(number - rhs, label);
}

MTime& MTime::operator-=(const MTime& rhs)
{
    return *this = *this - rhs;
}

MTime& MTime::operator-=(double rhs)
{
    return *this = *this - rhs;
}

MTime MTime::operator*(double rhs) const
{
    return MTime(number * rhs, label);
}

MTime& MTime::operator*=(double rhs)
{
    return *this = *this * rhs;
}

MTime MTime::operator/(double rhs) const
{
    return MTime(number / rhs, label);
}

MTime& MTime::operator/=(double rhs)
{
    return *this = *this / rhs;
}

MTime& MTime::operator++()
{
    return *this += 1.0;
}

MTime& MTime::operator++(int)
{
    return *this += 1.0;
}

MTime& MTime::operator--()
{
    return *this -= 1.0;
}

MTime& MTime::operator--(int)
{
    return *this -= 1.0;
}

const char* MTime::className()
{
    return "MTime";
}
