// ScriptError: what stops a script, with the place it happened at.
#pragma once

#include "../engine/scriptEditor.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace tvxhost::mel {

/// A place in a script; no file means typed text. Lines and columns count from 1; 0: not known.
using Place = engine::ScriptPlace;

/// Ends a script up to its entry point or the next `catch`. `what()` is the message without any frame.
class ScriptError : public std::runtime_error
{
public:
    ScriptError(const std::string& message, Place place)
        : std::runtime_error(message), m_place(std::move(place))
    {
    }
    const Place& place() const { return m_place; }

private:
    Place m_place;
};

/// Text that is not MEL. The message is followed by the offending line and a caret below the column.
class SyntaxError : public ScriptError
{
public:
    SyntaxError(const std::string& message, Place place, int column, const std::string& line);

    int column() const { return m_column; }
    /// The first line of the message alone: "Syntax error", "Unterminated string.".
    const std::string& reason() const { return m_reason; }
    /// The line of the text the error is in, without its end.
    const std::string& line() const { return m_line; }

private:
    std::string m_reason;
    std::string m_line;
    int m_column;
};

} // namespace tvxhost::mel
