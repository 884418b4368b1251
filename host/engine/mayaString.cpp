// Strings in files: see mayaString.h.
#include "mayaString.h"

#include <array>
#include <utility>

namespace tvxhost::engine {

namespace {

constexpr std::array<std::pair<char, char>, 5> kEscapes = {
    {{'"', '"'}, {'\\', '\\'}, {'\n', 'n'}, {'\t', 't'}, {'\r', 'r'}}};

} // namespace

std::string quotedString(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        char letter = 0;
        for (const auto& [character, escape] : kEscapes)
            if (character == c)
                letter = escape;
        if (letter)
            result += '\\';
        result += letter ? letter : c;
    }
    return result + '"';
}

std::string unescapedString(std::string_view inside)
{
    std::string result;
    result.reserve(inside.size());
    for (std::size_t i = 0; i < inside.size(); ++i) {
        if (inside[i] != '\\' || i + 1 == inside.size()) {
            result += inside[i];
            continue;
        }
        char meant = inside[++i];
        for (const auto& [character, escape] : kEscapes)
            if (escape == inside[i])
                meant = character;
        result += meant;
    }
    return result;
}

} // namespace tvxhost::engine
