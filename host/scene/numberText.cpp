// Numbers as scene files hold them; see numberText.h.
#include "numberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace tvxhost::scene {

namespace {

constexpr int kShortDouble = 9;
constexpr int kWholeDouble = 17;
constexpr int kShortFloat = 8;
constexpr int kWholeFloat = 9;
constexpr int kMostDecimals = 12;

/// `%.<digits>g` without a locale.
std::string_view general(char (&buffer)[40], double value, int digits)
{
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits);
    return {buffer, static_cast<std::size_t>(written.ptr - buffer)};
}

template <class T>
bool readsBack(std::string_view text, T value)
{
    T read{};
    std::from_chars(text.data(), text.data() + text.size(), read);
    return read == value;
}

template <class T>
void append(std::string& out, T value, int shortDigits, int wholeDigits)
{
    char buffer[40];
    std::string_view text = general(buffer, static_cast<double>(value), shortDigits);
    if (!readsBack(text, value))
        text = general(buffer, static_cast<double>(value), wholeDigits);
    out += text;
}

} // namespace

void appendDouble(std::string& out, double value)
{
    append(out, value, kShortDouble, kWholeDouble);
}

void appendFloat(std::string& out, float value)
{
    append(out, value, kShortFloat, kWholeFloat);
}

void appendMeshFloat(std::string& out, float value)
{
    double whole = 0.0;
    const double fraction = std::modf(std::abs(static_cast<double>(value)), &whole);
    if (whole == 0.0 || fraction == 0.0 || !std::isfinite(value))
        return appendFloat(out, value);
    const int zeros = -static_cast<int>(std::floor(std::log10(fraction))) - 1;
    const int decimals = std::min(kShortFloat + zeros, kMostDecimals);
    std::string digits = std::to_string(std::llround(fraction * std::pow(10.0, decimals)));
    digits.insert(0, static_cast<std::size_t>(decimals) - digits.size(), '0');
    digits.erase(digits.find_last_not_of('0') + 1);
    if (value < 0.0f)
        out += '-';
    appendDouble(out, whole);
    out += '.' + digits;
}

std::string wholeDoubleText(double value)
{
    char buffer[40];
    return std::string(general(buffer, value, kWholeDouble));
}

std::string doubleText(double value)
{
    std::string text;
    appendDouble(text, value);
    return text;
}

} // namespace tvxhost::scene
