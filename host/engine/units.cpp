// Units: the names and sizes of linear, angular and time units.
#include "units.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tvxhost::engine {

namespace {

template <class Unit>
struct UnitRow
{
    Unit unit;
    std::string_view shortName;
    std::string_view longName;
    double size; ///< in internal units
};

constexpr double kPi = 3.14159265358979323846;

constexpr std::array kLinear = {
    UnitRow<LinearUnit>{LinearUnit::inches, "in", "inch", 2.54},
    UnitRow<LinearUnit>{LinearUnit::feet, "ft", "foot", 30.48},
    UnitRow<LinearUnit>{LinearUnit::yards, "yd", "yard", 91.44},
    UnitRow<LinearUnit>{LinearUnit::miles, "mi", "mile", 160934.4},
    UnitRow<LinearUnit>{LinearUnit::millimetres, "mm", "millimeter", 0.1},
    UnitRow<LinearUnit>{LinearUnit::centimetres, "cm", "centimeter", 1.0},
    UnitRow<LinearUnit>{LinearUnit::kilometres, "km", "kilometer", 100000.0},
    UnitRow<LinearUnit>{LinearUnit::metres, "m", "meter", 100.0},
};

constexpr std::array kAngular = {
    UnitRow<AngularUnit>{AngularUnit::radians, "rad", "radian", 1.0},
    UnitRow<AngularUnit>{AngularUnit::degrees, "deg", "degree", kPi / 180.0},
    UnitRow<AngularUnit>{AngularUnit::minutes, "min", "minute", kPi / 180.0 / 60.0},
    UnitRow<AngularUnit>{AngularUnit::seconds, "sec", "second", kPi / 180.0 / 3600.0},
};

constexpr std::array kTime = {
    UnitRow<TimeUnit>{1, "hour", "hour", 3600.0},
    UnitRow<TimeUnit>{2, "min", "minute", 60.0},
    UnitRow<TimeUnit>{3, "sec", "second", 1.0},
    UnitRow<TimeUnit>{4, "millisec", "millisecond", 0.001},
    UnitRow<TimeUnit>{5, "game", "game", 1.0 / 15.0},
    UnitRow<TimeUnit>{6, "film", "film", 1.0 / 24.0},
    UnitRow<TimeUnit>{7, "pal", "pal", 1.0 / 25.0},
    UnitRow<TimeUnit>{8, "ntsc", "ntsc", 1.0 / 30.0},
    UnitRow<TimeUnit>{9, "show", "show", 1.0 / 48.0},
    UnitRow<TimeUnit>{10, "palf", "palf", 1.0 / 50.0},
    UnitRow<TimeUnit>{11, "ntscf", "ntscf", 1.0 / 60.0},
};

/// The units from this one up are frame rates in this order; their names are the rate with "fps".
constexpr TimeUnit kFirstFrameRate = 12;
constexpr std::array kFrameRates = {2,   3,   4,   5,   6,    8,    10,   12,   16,  20,  40,
                                    75,  80,  100, 120, 125,  150,  200,  240,  250, 300, 375,
                                    400, 500, 600, 750, 1200, 1500, 2000, 3000, 6000};
constexpr TimeUnit kLastTimeUnit = kFirstFrameRate + static_cast<TimeUnit>(kFrameRates.size()) - 1;

int frameRate(TimeUnit unit)
{
    if (unit < kFirstFrameRate || unit > kLastTimeUnit)
        return 0;
    return kFrameRates[static_cast<std::size_t>(unit - kFirstFrameRate)];
}

template <class Rows, class Unit>
const auto* rowOf(const Rows& rows, Unit unit)
{
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.unit == unit; });
    return found == rows.end() ? nullptr : &*found;
}

template <class Rows>
const auto* rowNamed(const Rows& rows, const std::string& name)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const auto& row) {
        return row.shortName == name || row.longName == name;
    });
    return found == rows.end() ? nullptr : &*found;
}

template <class Rows, class Unit>
std::string nameIn(const Rows& rows, Unit unit, bool full)
{
    const auto* row = rowOf(rows, unit);
    return row ? std::string(full ? row->longName : row->shortName) : std::string();
}

} // namespace

double centimetresPer(LinearUnit unit)
{
    const auto* row = rowOf(kLinear, unit);
    return row ? row->size : 1.0;
}

double radiansPer(AngularUnit unit)
{
    const auto* row = rowOf(kAngular, unit);
    return row ? row->size : 1.0;
}

double secondsPer(TimeUnit unit)
{
    if (const auto* row = rowOf(kTime, unit))
        return row->size;
    const int rate = frameRate(unit);
    return rate ? 1.0 / rate : 0.0;
}

std::optional<LinearUnit> linearUnitNamed(const std::string& name)
{
    const auto* row = rowNamed(kLinear, name);
    return row ? std::optional(row->unit) : std::nullopt;
}

std::optional<AngularUnit> angularUnitNamed(const std::string& name)
{
    const auto* row = rowNamed(kAngular, name);
    return row ? std::optional(row->unit) : std::nullopt;
}

std::optional<TimeUnit> timeUnitNamed(const std::string& name)
{
    if (const auto* row = rowNamed(kTime, name))
        return row->unit;
    for (TimeUnit unit = kFirstFrameRate; unit <= kLastTimeUnit; ++unit)
        if (name == timeUnitName(unit))
            return unit;
    return std::nullopt;
}

std::string nameOf(LinearUnit unit, bool full)
{
    return nameIn(kLinear, unit, full);
}

std::string nameOf(AngularUnit unit, bool full)
{
    return nameIn(kAngular, unit, full);
}

std::string timeUnitName(TimeUnit unit)
{
    if (const auto* row = rowOf(kTime, unit))
        return std::string(row->shortName);
    const int rate = frameRate(unit);
    return rate ? std::to_string(rate) + "fps" : std::string();
}

} // namespace tvxhost::engine
