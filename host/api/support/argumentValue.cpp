// Reading one argument of a command as a type of the API.
#include "argumentValue.h"

#include "access.h"
#include "engine/units.h"
#include "numberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace tvxhost::api {

namespace {

std::optional<double> numberOf(const Argument& argument)
{
    if (const int* whole = std::get_if<int>(&argument))
        return *whole;
    if (const double* real = std::get_if<double>(&argument))
        return *real;
    return std::nullopt;
}

template <class Integer>
Integer truncated(double number)
{
    constexpr double kLowest = std::numeric_limits<Integer>::lowest();
    constexpr double kHighest = std::numeric_limits<Integer>::max();
    return std::isnan(number) ? 0 : static_cast<Integer>(std::clamp(number, kLowest, kHighest));
}

template <class Integer>
bool takeInteger(const Argument& argument, Integer& value)
{
    const auto number = numberOf(argument);
    value = truncated<Integer>(number.value_or(0.0));
    return number.has_value();
}

/// The unit that stands behind a number, by its name; none when nobody knows it.
std::optional<MDistance::Unit> unitNamed(const std::string& name, const MDistance&)
{
    const auto unit = engine::linearUnitNamed(name);
    return unit ? std::optional(static_cast<MDistance::Unit>(*unit)) : std::nullopt;
}

std::optional<MAngle::Unit> unitNamed(const std::string& name, const MAngle&)
{
    const auto unit = engine::angularUnitNamed(name);
    return unit ? std::optional(static_cast<MAngle::Unit>(*unit)) : std::nullopt;
}

std::optional<MTime::Unit> unitNamed(const std::string& name, const MTime&)
{
    const auto unit = engine::timeUnitNamed(name);
    return unit ? std::optional(static_cast<MTime::Unit>(*unit)) : std::nullopt;
}

/// "2.5m": a number with a unit behind it, which may be missing.
template <class Value>
bool takeText(const std::string& text, Value& value)
{
    double number = 0.0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    if (read.ec != std::errc())
        return false;
    const std::string name(read.ptr, end);
    const auto unit = name.empty() ? std::optional(Value::uiUnit()) : unitNamed(name, value);
    if (unit)
        value = Value(number, *unit);
    return unit.has_value();
}

template <class Value>
bool takeQuantity(const Argument& argument, Value& value)
{
    if (const auto* text = std::get_if<std::string>(&argument))
        return takeText(*text, value);
    value = Value(numberOf(argument).value_or(0.0), Value::uiUnit());
    return true;
}

} // namespace

bool take(const Argument& argument, double& value)
{
    const auto number = numberOf(argument);
    value = number.value_or(0.0);
    return number.has_value();
}

bool take(const Argument& argument, int& value)
{
    return takeInteger(argument, value);
}

bool take(const Argument& argument, unsigned int& value)
{
    return takeInteger(argument, value);
}

bool take(const Argument& argument, bool& value)
{
    const auto number = numberOf(argument);
    value = number.value_or(0.0) != 0.0;
    return number.has_value();
}

bool take(const Argument& argument, MString& value)
{
    if (const auto* text = std::get_if<std::string>(&argument))
        value = tvxAccess::string(*text);
    else if (const int* whole = std::get_if<int>(&argument))
        value = tvxAccess::string(std::to_string(*whole));
    else
        value = tvxAccess::string(numberText(std::get<double>(argument)));
    return true;
}

bool take(const Argument& argument, MDistance& value)
{
    return takeQuantity(argument, value);
}

bool take(const Argument& argument, MAngle& value)
{
    return takeQuantity(argument, value);
}

bool take(const Argument& argument, MTime& value)
{
    return takeQuantity(argument, value);
}

} // namespace tvxhost::api
