// OptionVars: the variables themselves; their file is in optionVarsFile.cpp.
#include "optionVars.h"

#include <cstdio>
#include <cstdlib>
#include <limits>

namespace tvxhost::engine {

namespace {

int clampedInt(double x)
{
    if (!(x > std::numeric_limits<int>::min()))
        return x == x ? std::numeric_limits<int>::min() : 0;
    if (x >= std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    return static_cast<int>(x);
}

struct AsDouble
{
    std::optional<double> operator()(int value) const { return value; }
    std::optional<double> operator()(double value) const { return value; }
    std::optional<double> operator()(const std::string& value) const
    {
        return std::strtod(value.c_str(), nullptr);
    }
    template <class T>
    std::optional<double> operator()(const std::vector<T>& values) const
    {
        return values.empty() ? std::nullopt : (*this)(values.front());
    }
};

struct AsString
{
    std::optional<std::string> operator()(int value) const { return std::to_string(value); }
    std::optional<std::string> operator()(double value) const
    {
        char text[32];
        std::snprintf(text, sizeof text, "%.15g", value);
        return text;
    }
    std::optional<std::string> operator()(const std::string& value) const { return value; }
    template <class T>
    std::optional<std::string> operator()(const std::vector<T>& values) const
    {
        return values.empty() ? std::nullopt : (*this)(values.front());
    }
};

} // namespace

const OptionValue* OptionVars::find(const std::string& name) const
{
    const auto found = m_values.find(name);
    return found == m_values.end() ? nullptr : &found->second;
}

void OptionVars::set(const std::string& name, OptionValue value)
{
    m_values[name] = std::move(value);
    m_changed = true;
}

bool OptionVars::remove(const std::string& name)
{
    const bool removed = m_values.erase(name) != 0;
    m_changed |= removed;
    return removed;
}

std::vector<std::string> OptionVars::names() const
{
    std::vector<std::string> result;
    for (const auto& entry : m_values)
        result.push_back(entry.first);
    return result;
}

std::optional<int> OptionVars::asInt(const std::string& name) const
{
    const std::optional<double> value = asDouble(name);
    return value ? std::optional(clampedInt(*value)) : std::nullopt;
}

std::optional<double> OptionVars::asDouble(const std::string& name) const
{
    const OptionValue* value = find(name);
    return value ? std::visit(AsDouble(), *value) : std::nullopt;
}

std::optional<std::string> OptionVars::asString(const std::string& name) const
{
    const OptionValue* value = find(name);
    return value ? std::visit(AsString(), *value) : std::nullopt;
}

} // namespace tvxhost::engine
