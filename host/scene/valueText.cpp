// Values of attributes as the words of a `setAttr`; see valueText.h.
#include "valueText.h"

#include "numberText.h"
#include "uiUnits.h"

#include "mel/arguments.h"

#include <charconv>
#include <cmath>
#include <optional>

namespace tvxhost::scene {

using engine::NumberKind;

namespace {

constexpr std::size_t kLongString = 1024;
constexpr std::size_t kLongestPiece = 2048;

double parse(const std::string& text)
{
    double value = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::string shortText(double value)
{
    char buffer[40];
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 9);
    return {buffer, written.ptr};
}

/// A text for a UI value near `guess` that converts to exactly `internal`.
std::optional<std::string> exactText(double internal, double factor, double guess)
{
    if (std::string text = shortText(guess); parse(text) * factor == internal)
        return text;
    constexpr int kNeighbours = 3;
    double below = guess;
    double above = guess;
    for (int i = 0; i <= kNeighbours; ++i) {
        for (const double candidate : {below, above}) {
            std::string text = doubleText(candidate);
            if (parse(text) * factor == internal)
                return text;
        }
        below = std::nextafter(below, -HUGE_VAL);
        above = std::nextafter(above, HUGE_VAL);
    }
    return std::nullopt;
}

bool isWhole(const engine::Attribute& leaf)
{
    return leaf.number != NumberKind::single && leaf.number != NumberKind::real;
}

/// Behind the line end that follows, or at the end.
std::size_t lineEnd(std::string_view text, std::size_t begin)
{
    const std::size_t found = text.find('\n', begin);
    return found == std::string_view::npos ? text.size() : found + 1;
}

/// Where to break a long string: behind the first line end past the limit, and before a line with which the
/// piece would get too long.
std::size_t pieceEnd(std::string_view text, std::size_t begin)
{
    std::size_t end = lineEnd(text, begin);
    while (end < text.size() && end - begin <= kLongString) {
        const std::size_t next = lineEnd(text, end);
        if (next - begin > kLongestPiece)
            break;
        end = next;
    }
    return end;
}

} // namespace

std::string uiNumberText(double internal, double factor)
{
    if (factor == 1.0 || !std::isfinite(internal))
        return doubleText(internal);
    // As Maya converts back: by the inverse of the factor.
    const double guess = internal * (1.0 / factor);
    if (const auto text = exactText(internal, factor, guess))
        return *text;
    // No text gives this number: settle on the nearest one that a text does give.
    return exactText(guess * factor, factor, guess).value_or(doubleText(guess));
}

std::string leafText(const engine::Attribute& leaf, double internal, const engine::Units& units, bool inGroup)
{
    if (leaf.number == NumberKind::boolean && !inGroup)
        return internal != 0.0 ? "yes" : "no";
    if (isWhole(leaf))
        return std::to_string(static_cast<long long>(internal));
    if (leaf.number == NumberKind::single && inGroup) {
        std::string text;
        appendFloat(text, static_cast<float>(internal));
        return text;
    }
    return uiNumberText(internal, internalPerUi(leaf, units));
}

std::string stringText(std::string_view text)
{
    if (text.size() <= kLongString)
        return mel::quoted(text);
    std::string joined = "(";
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = pieceEnd(text, begin);
        joined += begin == 0 ? "\n\t\t" : "\n\t\t+ ";
        joined += mel::quoted(text.substr(begin, end - begin));
        begin = end;
    }
    return joined + ")";
}

} // namespace tvxhost::scene
