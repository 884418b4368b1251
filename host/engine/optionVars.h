// OptionVars: the user's option variables, kept in a preferences folder between runs.
#pragma once

#include "outcome.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tvxhost::engine {

/// An int, a double, a string, or an array of one of them.
using OptionValue =
    std::variant<int, double, std::string, std::vector<int>, std::vector<double>, std::vector<std::string>>;

/// Setting replaces a variable of another type. Getters convert: numbers into each other, a string by its
/// leading number, a number into its text.
class OptionVars
{
public:
    bool exists(const std::string& name) const { return m_values.count(name) != 0; }
    const OptionValue* find(const std::string& name) const;
    void set(const std::string& name, OptionValue value);
    bool remove(const std::string& name);
    std::vector<std::string> names() const; ///< sorted

    std::optional<int> asInt(const std::string& name) const;
    std::optional<double> asDouble(const std::string& name) const;
    std::optional<std::string> asString(const std::string& name) const;

    /// Reads `folder`/userPrefs.mel. A missing file is an empty set. A file that cannot be understood is
    /// renamed to userPrefs.mel.broken (a number appended when taken), and the outcome names both and the
    /// line.
    Outcome load(const std::filesystem::path& folder);
    /// Writes `folder`/userPrefs.mel whole or not at all (a temporary file beside it, then a rename), making
    /// the folder when it is missing.
    Outcome save(const std::filesystem::path& folder) const;
    bool isChanged() const { return m_changed; }

private:
    std::map<std::string, OptionValue> m_values;
    mutable bool m_changed = false;
};

} // namespace tvxhost::engine
