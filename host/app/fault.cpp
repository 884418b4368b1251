// Fault: reading one from the command line.
#include "fault.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

namespace tvxhost::app {

namespace {

constexpr std::array<std::pair<std::string_view, MStatus::MStatusCode>, 8> kCodes{{
    {"kFailure", MStatus::kFailure},
    {"kInsufficientMemory", MStatus::kInsufficientMemory},
    {"kInvalidParameter", MStatus::kInvalidParameter},
    {"kLicenseFailure", MStatus::kLicenseFailure},
    {"kUnknownParameter", MStatus::kUnknownParameter},
    {"kNotImplemented", MStatus::kNotImplemented},
    {"kNotFound", MStatus::kNotFound},
    {"kEndOfFile", MStatus::kEndOfFile},
}};

/// The text before the next single colon from `from` on; "::" belongs to a name.
std::string_view wordAt(std::string_view text, std::size_t from)
{
    std::size_t end = from;
    while (end < text.size() && (text[end] != ':' || text.substr(end, 2) == "::"))
        end += text[end] == ':' ? 2 : 1;
    return text.substr(from, std::min(end, text.size()) - from);
}

std::optional<std::size_t> wholeNumber(std::string_view text)
{
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

std::optional<MStatus::MStatusCode> codeNamed(std::string_view name)
{
    const auto found =
        std::find_if(kCodes.begin(), kCodes.end(), [&](const auto& row) { return row.first == name; });
    return found == kCodes.end() ? std::nullopt : std::optional(found->second);
}

} // namespace

std::optional<Fault> parseFault(const std::string& text)
{
    Fault fault;
    const std::string_view function = wordAt(text, 0);
    fault.function = function;
    std::size_t at = function.size();
    if (at < text.size()) {
        const std::string_view number = wordAt(text, at + 1);
        const auto call = wholeNumber(number);
        if (!call)
            return std::nullopt;
        fault.call = *call;
        at += 1 + number.size();
    }
    if (at < text.size()) {
        const auto code = codeNamed(std::string_view(text).substr(at + 1));
        if (!code)
            return std::nullopt;
        fault.code = *code;
    }
    if (fault.function.empty())
        return std::nullopt;
    return fault;
}

} // namespace tvxhost::app
