// Strings: parts, patterns, case, words.
#include "../regularExpression.h"
#include "language.h"

#include <algorithm>
#include <cctype>
#include <fnmatch.h>
#include <string_view>

namespace tvxhost::mel {

namespace {

using Arguments = std::vector<Value>;

constexpr const char* kBlanks = " \t\n\r\f\v";

/// `substring TEXT FIRST LAST`, counted from 1, the last character included.
Value substring(CommandContext&, Arguments& arguments)
{
    const std::string& text = arguments[0].string();
    const int length = static_cast<int>(text.size());
    const int first = std::max(arguments[1].integer(), 1);
    const int last = std::min(arguments[2].integer(), length);
    if (first > last) {
        return "";
    }
    return text.substr(static_cast<std::size_t>(first - 1), static_cast<std::size_t>(last - first + 1));
}

Value match(CommandContext&, Arguments& arguments)
{
    const std::string& text = arguments[1].string();
    const auto found = RegularExpression(arguments[0].string()).find(text);
    return found ? text.substr(found->start, found->length) : std::string();
}

Value substitute(CommandContext&, Arguments& arguments)
{
    std::string text = arguments[1].string();
    if (const auto found = RegularExpression(arguments[0].string()).find(text)) {
        text.replace(found->start, found->length, arguments[2].string());
    }
    return text;
}

Value gmatch(CommandContext&, Arguments& arguments)
{
    return fnmatch(arguments[1].string().c_str(), arguments[0].string().c_str(), 0) == 0;
}

Value substituteAllString(CommandContext&, Arguments& arguments)
{
    std::string text = arguments[0].string();
    const std::string& from = arguments[1].string();
    const std::string& to = arguments[2].string();
    if (from.empty()) {
        return text;
    }
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

Value::Strings tokens(std::string_view text, std::string_view separators)
{
    Value::Strings result;
    for (std::size_t start = text.find_first_not_of(separators); start != std::string_view::npos;) {
        const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
        result.emplace_back(text.substr(start, end - start));
        start = text.find_first_not_of(separators, end);
    }
    return result;
}

/// `tokenize TEXT [SEPARATORS] RESULT`
Value tokenize(CommandContext& context, Arguments& arguments)
{
    const Value& result = arguments.back();
    if (arguments.size() < 2 || result.type() != Type::stringArray) {
        context.fail("tokenize needs a variable of type string[] for the tokens.");
    }
    const std::string separators = arguments.size() == 3 ? arguments[1].toString() : kBlanks;
    result.strings() = tokens(arguments[0].string(), separators);
    return static_cast<int>(result.size());
}

Value stringToStringArray(CommandContext&, Arguments& arguments)
{
    return tokens(arguments[0].string(), arguments[1].string());
}

/// `format -stringArg A -stringArg B "^1s and ^2s"`
Value format(CommandContext&, const ParsedCommand& parsed)
{
    const auto arguments = parsed.uses("stringArg");
    const std::string pattern = parsed.positional[0].toString();
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        std::size_t end = i + 1;
        std::size_t number = 0;
        while (end < pattern.size() && std::isdigit(static_cast<unsigned char>(pattern[end])) != 0) {
            number = number * 10 + static_cast<std::size_t>(pattern[end++] - '0');
        }
        const bool isPlace = pattern[i] == '^' && end > i + 1 && end < pattern.size() && pattern[end] == 's';
        if (isPlace && number >= 1 && number <= arguments.size()) {
            text += arguments[number - 1]->arguments[0].toString();
            i = end;
        } else {
            text += pattern[i];
        }
    }
    return text;
}

Value strcmp(CommandContext&, Arguments& arguments)
{
    const int order = arguments[0].string().compare(arguments[1].string());
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

std::string mapped(std::string text, int (*map)(int))
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [map](unsigned char c) { return static_cast<char>(c < 0x80 ? map(c) : c); });
    return text;
}

Value toUpper(CommandContext&, Arguments& arguments)
{
    return mapped(arguments[0].string(), std::toupper);
}

Value toLower(CommandContext&, Arguments& arguments)
{
    return mapped(arguments[0].string(), std::tolower);
}

Value capitalized(CommandContext&, Arguments& arguments)
{
    const std::string& text = arguments[0].string();
    return mapped(text.substr(0, 1), std::toupper) + (text.empty() ? "" : text.substr(1));
}

Value strip(CommandContext&, Arguments& arguments)
{
    const std::string& text = arguments[0].string();
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

Value startsWith(CommandContext&, Arguments& arguments)
{
    const std::string& start = arguments[1].string();
    return arguments[0].string().compare(0, start.size(), start) == 0;
}

Value endsWith(CommandContext&, Arguments& arguments)
{
    const std::string& text = arguments[0].string();
    const std::string& end = arguments[1].string();
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

/// How many characters of a text a count means.
std::size_t characters(const std::string& text, int count)
{
    return std::min(static_cast<std::size_t>(std::max(count, 0)), text.size());
}

Value startString(CommandContext&, Arguments& arguments)
{
    const std::string& text = arguments[0].string();
    return text.substr(0, characters(text, arguments[1].integer()));
}

Value endString(CommandContext&, Arguments& arguments)
{
    const std::string& text = arguments[0].string();
    return text.substr(text.size() - characters(text, arguments[1].integer()));
}

/// The text as it would stand between quotes in a script.
Value encodeString(CommandContext&, Arguments& arguments)
{
    const std::string text = mel::quoted(arguments[0].string());
    return text.substr(1, text.size() - 2);
}

/// Every character that a name cannot have becomes an underscore.
Value formValidObjectName(CommandContext&, Arguments& arguments)
{
    std::string name = arguments[0].string();
    std::replace_if(
        name.begin(), name.end(),
        [](unsigned char c) { return c >= 0x80 || (std::isalnum(c) == 0 && c != '_'); }, '_');
    return !name.empty() && std::isdigit(static_cast<unsigned char>(name[0])) != 0 ? '_' + name : name;
}

} // namespace

void addStringCommands(CommandTable& table)
{
    table.add({
        function("substring", "The characters from the first to the last place, counted from 1",
                 {kString, kInt, kInt}, substring),
        function("match", "The part of the second text that the regular expression matches",
                 {kString, kString}, match),
        function("substitute", "The second text with its first match replaced", {kString, kString, kString},
                 substitute),
        function("gmatch", "Whether the whole text matches a pattern with * ? [set]", {kString, kString},
                 gmatch),
        function("substituteAllString", "The first text with every occurrence replaced",
                 {kString, kString, kString}, substituteAllString),
        function("tokenize", "Splits a text into an array and gives the number of parts",
                 {kString, kAny, optional(kAny)}, tokenize),
        function("stringToStringArray", "The parts of a text between separators", {kString, kString},
                 stringToStringArray),
        command(
            "format", "Puts arguments in the places ^1s, ^2s … of a text",
            {{"s", "stringArg", {ArgumentType::string}, kCreate | kMultiUse, "The text of the next place"}},
            {ArgumentType::string, 1, 1}, format),
        function("strcmp", "-1, 0 or 1 as the first text stands before, equals or stands behind the second",
                 {kString, kString}, strcmp),
        function("toupper", "The text in capitals", {kString}, toUpper),
        function("tolower", "The text in small letters", {kString}, toLower),
        function("capitalizeString", "The text with a capital first letter", {kString}, capitalized),
        function("strip", "The text without white space at its ends", {kString}, strip),
        function("startsWith", "Whether a text begins with another", {kString, kString}, startsWith),
        function("endsWith", "Whether a text ends with another", {kString, kString}, endsWith),
        function("startString", "The first characters of a text", {kString, kInt}, startString),
        function("endString", "The last characters of a text", {kString, kInt}, endString),
        function("encodeString", "The text as it stands between quotes in a script", {kString}, encodeString),
        function("formValidObjectName", "The text as a legal name of a node", {kString}, formValidObjectName),
    });
}

} // namespace tvxhost::mel
