// The parser: text to syntax tree, whole or statement by statement.
#pragma once

#include "arguments.h"
#include "ast.h"
#include "scriptError.h"

#include <memory>
#include <string>
#include <string_view>

namespace tvxhost::mel {

/// Parses a whole script. `name` is the file it came from, empty for typed text; it is the one that errors
/// name. The last statement may lack its semicolon. Throws SyntaxError.
std::shared_ptr<const ast::Script> parseScript(std::string_view text, const std::string& name = {});

/// A statement that is only a command name followed by words, strings, numbers and flags: nearly every line
/// of a scene. Views are valid until the next statement is read.
struct PlainCommand
{
    std::string_view name;
    ArgumentList arguments;
    int line = 0; ///< of the name
};

/// Reads a text one top-level statement at a time, so that a scene of any size needs the memory of its
/// largest statement only. The text must outlive the reader.
class StatementReader
{
public:
    StatementReader(std::string_view text, std::string name);
    ~StatementReader();
    StatementReader(const StatementReader&) = delete;
    StatementReader& operator=(const StatementReader&) = delete;

    /// Goes to the next statement; false at the end of the text. Throws SyntaxError for a statement that is
    /// not MEL; `skipBroken` then goes on behind it.
    bool next();
    /// After a SyntaxError: leaves out the text up to the end of the next line that ends with a semicolon.
    void skipBroken();

    /// The statement as a plain command; null when it is any other statement.
    const PlainCommand* plain() const;
    /// The statement as a tree; null when it is a plain command.
    const ast::Statement* statement() const;
    /// The same as the last owner: for statements that must outlive the reader (procedures).
    ast::StatementPtr takeStatement();

    /// The source text of the statement, its semicolon included.
    std::string_view source() const;
    /// The line the statement begins in, from 1.
    int line() const;
    /// Bytes read so far, for progress.
    std::size_t offset() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace tvxhost::mel
