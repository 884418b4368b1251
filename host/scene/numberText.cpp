// Numbers as scene files hold them; see numberText.h.
#include "numberText.h"

#include <charconv>
#include <cstdlib>

namespace tvxhost::scene {

namespace {

constexpr int kShortDouble = 9;
constexpr int kWholeDouble = 17;
constexpr int kShortFloat = 8;
constexpr int kWholeFloat = 9;

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

std::string doubleText(double value)
{
    std::string text;
    appendDouble(text, value);
    return text;
}

} // namespace tvxhost::scene
