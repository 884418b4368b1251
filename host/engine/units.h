// Units: UI units of a scene and their conversion to internal ones (centimetres, radians, seconds).
#pragma once

#include <optional>
#include <string>

namespace tvxhost::engine {

/// Values are those of the API's enumerations.
enum class LinearUnit
{
    inches = 1,
    feet,
    yards,
    miles,
    millimetres,
    centimetres,
    kilometres,
    metres
};
enum class AngularUnit
{
    radians = 1,
    degrees,
    minutes,
    seconds
};
/// The API's MTime::Unit.
using TimeUnit = int;

double centimetresPer(LinearUnit unit);
double radiansPer(AngularUnit unit);
/// Seconds of one unit of time; 0 for an unknown unit.
double secondsPer(TimeUnit unit);

// Names as `currentUnit` takes and gives them, short and long.
std::optional<LinearUnit> linearUnitNamed(const std::string& name);
std::optional<AngularUnit> angularUnitNamed(const std::string& name);
std::optional<TimeUnit> timeUnitNamed(const std::string& name);
std::string nameOf(LinearUnit unit, bool full = false);
std::string nameOf(AngularUnit unit, bool full = false);
std::string timeUnitName(TimeUnit unit);

/// What the user sees and types.
struct Units
{
    LinearUnit linear = LinearUnit::centimetres;
    AngularUnit angle = AngularUnit::degrees;
    TimeUnit time = 6; ///< film, 24 frames a second

    double toInternalLinear(double ui) const { return ui * centimetresPer(linear); }
    double fromInternalLinear(double cm) const { return cm / centimetresPer(linear); }
    double toInternalAngle(double ui) const { return ui * radiansPer(angle); }
    double fromInternalAngle(double rad) const { return rad / radiansPer(angle); }
};

} // namespace tvxhost::engine
