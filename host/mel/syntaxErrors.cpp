// The layout of syntax errors: the message, the line, a caret below the place.
#include "syntaxErrors.h"

#include <algorithm>

namespace tvxhost::mel {

namespace {

// Of a longer line, as a scene's or a binary file's, only the part around the error is shown.
constexpr std::size_t kShownBefore = 60;
constexpr std::size_t kShownAfter = 60;

std::string printable(std::string_view text)
{
    std::string result(text);
    std::replace_if(
        result.begin(), result.end(),
        [](char c) { return (static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == 0x7f; }, '?');
    return result;
}

/// The line and, below it, a caret under the column; tabs stay tabs so that the two align.
std::string withCaret(const std::string& line, int column)
{
    const std::size_t before = std::min(static_cast<std::size_t>(column - 1), line.size());
    std::string padding = line.substr(0, before);
    std::replace_if(
        padding.begin(), padding.end(), [](char c) { return c != '\t'; }, ' ');
    return line + '\n' + padding + '^';
}

} // namespace

SyntaxError::SyntaxError(const std::string& message, Place place, int column, const std::string& line)
    : ScriptError(message + '\n' + line, std::move(place)), m_reason(message), m_line(line), m_column(column)
{
}

SyntaxError syntaxError(const GrammarError& error, const LineIndex& lines, const std::string& file)
{
    const ast::Position at = lines.at(error.offset);
    const std::string_view line = lines.lineText(error.offset);
    const auto before = std::min(static_cast<std::size_t>(at.column - 1), line.size());
    const std::size_t start = before > kShownBefore ? before - kShownBefore : 0;
    const std::string shown = printable(line.substr(start, before - start + kShownAfter));
    return SyntaxError(error.reason, Place{file, at.line}, at.column,
                       withCaret(shown, static_cast<int>(before - start) + 1));
}

} // namespace tvxhost::mel
