// MEL patterns on top of POSIX regular expressions.
#include "regularExpression.h"

#include "value.h"

#include <bitset>
#include <regex.h>
#include <string_view>

namespace tvxhost::mel {

namespace {

constexpr std::string_view kPlainToMel = "|{}";
constexpr std::string_view kSpecialToPosix = ".[]*+?()^$\\|{}";

std::string literal(char c)
{
    return kSpecialToPosix.find(c) == std::string_view::npos ? std::string(1, c) : std::string{'\\', c};
}

/// The characters of a set as POSIX wants them: "]" first, "[", "^" and "-" last, no escapes.
std::string posixSet(const std::bitset<256>& members, bool isNegated)
{
    std::string middle;
    std::string end;
    for (std::size_t i = 1; i < members.size(); ++i) {
        const char c = static_cast<char>(i);
        if (!members[i] || c == ']' || c == '-') {
            continue;
        }
        (c == '[' || c == '^' ? end : middle) += c;
    }
    std::string set = (members[']'] ? "]" : "") + middle + end + (members['-'] ? "-" : "");
    if (set == "^") {
        return isNegated ? "[^^]" : "\\^";
    }
    // Only "[" and "^": the caret must not come first.
    if (!isNegated && set.front() == '^') {
        set = set.substr(1) + '^';
    }
    return (isNegated ? "[^" : "[") + set + ']';
}

/// Translates the set that begins behind `[` at `next`, which ends up behind the closing bracket.
std::string translatedSet(const std::string& pattern, std::size_t& next)
{
    const bool isNegated = next < pattern.size() && pattern[next] == '^';
    next += isNegated ? 1 : 0;
    const auto character = [&]() -> unsigned char {
        if (pattern[next] == '\\' && next + 1 < pattern.size()) {
            ++next;
        }
        return static_cast<unsigned char>(pattern[next++]);
    };
    std::bitset<256> members;
    while (next < pattern.size() && pattern[next] != ']') {
        const unsigned char first = character();
        const bool isRange = next + 1 < pattern.size() && pattern[next] == '-' && pattern[next + 1] != ']';
        next += isRange ? 1 : 0;
        const unsigned char last = isRange ? character() : first;
        for (unsigned c = first; c <= last; ++c) {
            members.set(c);
        }
    }
    if (next == pattern.size() || members.none()) {
        throw ValueError("Invalid regular expression \"" + pattern + "\".");
    }
    ++next;
    return posixSet(members, isNegated);
}

} // namespace

struct RegularExpression::Compiled
{
    regex_t expression{};
};

std::string RegularExpression::translated(const std::string& pattern)
{
    std::string result;
    for (std::size_t i = 0; i < pattern.size();) {
        const char c = pattern[i++];
        if (c == '\\' && i < pattern.size()) {
            result += literal(pattern[i++]);
        } else if (c == '[') {
            result += translatedSet(pattern, i);
        } else if (c == '\\' || kPlainToMel.find(c) != std::string_view::npos) {
            result += literal(c);
        } else {
            result += c;
        }
    }
    return result;
}

RegularExpression::RegularExpression(const std::string& pattern) : m_compiled(std::make_unique<Compiled>())
{
    if (regcomp(&m_compiled->expression, translated(pattern).c_str(), REG_EXTENDED) != 0) {
        throw ValueError("Invalid regular expression \"" + pattern + "\".");
    }
}

RegularExpression::~RegularExpression()
{
    regfree(&m_compiled->expression);
}

std::optional<RegularExpression::Match> RegularExpression::find(const std::string& text) const
{
    regmatch_t found[1];
    if (regexec(&m_compiled->expression, text.c_str(), 1, found, 0) != 0) {
        return std::nullopt;
    }
    return Match{static_cast<std::size_t>(found[0].rm_so),
                 static_cast<std::size_t>(found[0].rm_eo - found[0].rm_so)};
}

} // namespace tvxhost::mel
