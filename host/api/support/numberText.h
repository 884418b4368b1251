// Numbers to text and back, as the API's strings do it.
#pragma once

#include <charconv>
#include <cstdio>
#include <limits>
#include <string>
#include <type_traits>

namespace tvxhost::api {

/// Six significant digits, as a stream writes by default.
inline std::string numberText(double value)
{
    char buffer[32];
    return std::string(buffer, static_cast<std::size_t>(std::snprintf(buffer, sizeof buffer, "%g", value)));
}

/// So many digits after the point.
inline std::string fixedNumberText(double value, int digits)
{
    const int size = std::snprintf(nullptr, 0, "%.*f", digits, value);
    std::string text(static_cast<std::size_t>(size), '\0');
    std::snprintf(text.data(), text.size() + 1, "%.*f", digits, value);
    return text;
}

/// Where the digits start: behind blanks and one plus sign.
inline const char* startOfNumber(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(" \t\n\r\f\v");
    const char* start = text.c_str() + (first == std::string::npos ? text.size() : first);
    return *start == '+' && start[1] != '-' ? start + 1 : start;
}

/// Reads a number at the beginning of a text; what is too large is clamped. `end` is where it stopped, or
/// null when there is no number or it does not fit.
template <class Number>
Number readNumber(const std::string& text, const char*& end)
{
    const char* start = startOfNumber(text);
    Number value{};
    const auto [stop, error] = std::from_chars(start, text.c_str() + text.size(), value);
    end = error == std::errc() ? stop : nullptr;
    if (error == std::errc::result_out_of_range)
        value = *start == '-' ? std::numeric_limits<Number>::lowest() : std::numeric_limits<Number>::max();
    return value;
}

/// The number at the beginning of a text, 0 when there is none.
template <class Number>
Number leadingNumber(const std::string& text)
{
    const char* end = nullptr;
    return readNumber<Number>(text, end);
}

/// Whether the whole text is a number that fits, blanks around it aside.
template <class Number>
bool isWholeNumber(const std::string& text)
{
    const char* end = nullptr;
    readNumber<Number>(text, end);
    return end && text.find_first_not_of(" \t\n\r\f\v", static_cast<std::size_t>(end - text.c_str())) ==
                      std::string::npos;
}

} // namespace tvxhost::api
