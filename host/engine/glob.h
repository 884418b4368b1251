// Glob: node names with wildcards.
#pragma once

#include <string>
#include <string_view>

namespace tvxhost::engine {

/// `*` stands for any characters of one name, `?` for one; neither crosses a namespace's colon or a path's
/// bar.
class Glob
{
public:
    explicit Glob(std::string pattern) : m_pattern(std::move(pattern)) {}

    bool hasWildcards() const { return m_pattern.find_first_of("*?") != std::string::npos; }
    bool matches(std::string_view name) const;
    /// Whether a full path ("|a|b") ends in what the pattern says (begins there too for a pattern with a
    /// leading bar).
    bool matchesPath(std::string_view fullPath) const;

private:
    std::string m_pattern;
};

/// A name without the colon that means the root namespace.
std::string withoutColon(const std::string& name);

} // namespace tvxhost::engine
