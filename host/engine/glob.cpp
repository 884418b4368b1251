// Glob: see glob.h.
#include "glob.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

bool isSeparator(char c)
{
    return c == ':' || c == '|';
}

/// Whether the pattern matches the whole text. On a mismatch the last star takes one character more.
bool matchWhole(std::string_view pattern, std::string_view text)
{
    std::size_t p = 0;
    std::size_t t = 0;
    std::size_t star = std::string_view::npos;
    std::size_t starText = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            starText = t;
        } else if (p < pattern.size() &&
                   (pattern[p] == text[t] || (pattern[p] == '?' && !isSeparator(text[t])))) {
            ++p;
            ++t;
        } else if (star != std::string_view::npos && !isSeparator(text[starText])) {
            p = star + 1;
            t = ++starText;
        } else
            return false;
    }
    return std::all_of(pattern.begin() + static_cast<std::ptrdiff_t>(p), pattern.end(),
                       [](char c) { return c == '*'; });
}

} // namespace

bool Glob::matches(std::string_view name) const
{
    return matchWhole(m_pattern, name);
}

bool Glob::matchesPath(std::string_view fullPath) const
{
    if (!m_pattern.empty() && m_pattern[0] == '|')
        return matchWhole(m_pattern, fullPath);
    const auto bars = std::count(m_pattern.begin(), m_pattern.end(), '|');
    std::size_t start = fullPath.size();
    for (std::ptrdiff_t i = 0; i <= bars; ++i) {
        if (start == 0)
            return false;
        start = fullPath.rfind('|', start - 1);
        if (start == std::string_view::npos)
            return false;
    }
    return matchWhole(m_pattern, fullPath.substr(start + 1));
}

std::string withoutColon(const std::string& name)
{
    return !name.empty() && name[0] == ':' ? name.substr(1) : name;
}

} // namespace tvxhost::engine
