// RegularExpression: those of MEL's `match` and `substitute`, translated for the C library.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace tvxhost::mel {

/// Knows `^ $ . * + ? ( ) [set] [^set] \c`; `|` and braces are plain characters. Matches as early and then as
/// long as possible.
class RegularExpression
{
public:
    struct Match
    {
        std::size_t start = 0;
        std::size_t length = 0;
    };

    /// Throws ValueError for a pattern that is none.
    explicit RegularExpression(const std::string& pattern);
    ~RegularExpression();
    RegularExpression(const RegularExpression&) = delete;
    RegularExpression& operator=(const RegularExpression&) = delete;

    std::optional<Match> find(const std::string& text) const;

    /// The pattern as a POSIX extended regular expression.
    static std::string translated(const std::string& pattern);

private:
    struct Compiled;
    std::unique_ptr<Compiled> m_compiled;
};

} // namespace tvxhost::mel
