// ArgumentList: the arguments of one command call, as tokens of the source or as evaluated values.
#pragma once

#include "value.h"

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::mel {

enum class ArgumentKind : std::uint8_t
{
    word,    ///< an unquoted word: a name, a path, a keyword
    string,  ///< a quoted or evaluated string
    integer, ///< a whole number
    number,  ///< any other number
    flag,    ///< an unquoted `-name`
    value,   ///< an evaluated vector or matrix
};

/// One argument. The text is that of the token with quotes and escapes resolved, or the evaluated value's
/// text. Views stay valid as long as the list (and the source the tokens came from).
struct Argument
{
    ArgumentKind kind = ArgumentKind::word;
    std::string_view text;
    const Value* value = nullptr; ///< the evaluated value; null for a token of the source
    /// The text itself when the list had to resolve quotes or escapes: whoever asks last may move it away.
    std::string* resolved = nullptr;

    /// A flag's name is an unquoted or quoted string that begins with a dash and a letter.
    bool looksLikeFlag() const;
    /// The number the argument is or begins with; `found` false when there is none.
    LeadingNumber number() const;
    /// The argument as a value: a number as int or float, `on` and alike as 1 and 0, text as string.
    Value asValue() const;
};

/// True for yes/on/true, false for no/off/false; `known` tells whether it was one of them.
bool keywordBoolean(std::string_view text, bool& known);

/// The arguments in order. Owns evaluated values and resolved strings; tokens stay views into the source.
class ArgumentList
{
public:
    ArgumentList() = default;
    ArgumentList(ArgumentList&&) = default;
    ArgumentList& operator=(ArgumentList&&) = default;
    ArgumentList(const ArgumentList&) = delete;
    ArgumentList& operator=(const ArgumentList&) = delete;

    /// A token whose text is final.
    void addToken(ArgumentKind kind, std::string_view text);
    /// A quoted string, quotes not included; escapes are resolved into storage of the list.
    void addQuoted(std::string_view escapedText);
    /// Quoted strings that are to be joined, with their quotes; what stands between them is passed over.
    void addQuotedSum(std::string_view source);
    /// An evaluated value; an array adds one argument per element.
    void addValue(const Value& value);
    /// Forgets the arguments and keeps the room.
    void clear();

    std::size_t size() const { return m_arguments.size(); }
    bool empty() const { return m_arguments.empty(); }
    const Argument& operator[](std::size_t index) const { return m_arguments[index]; }
    const Argument* begin() const { return m_arguments.data(); }
    const Argument* end() const { return m_arguments.data() + m_arguments.size(); }

private:
    std::string& keep(std::string text);
    void addResolved(std::string text);

    std::vector<Argument> m_arguments;
    std::deque<std::string> m_strings;
    std::deque<Value> m_values;
};

/// The characters a quoted string stands for: `\n`, `\t`, `\r`, `\\`, `\"`; any other escaped character is
/// itself, an escaped line end is nothing.
std::string unescaped(std::string_view text);
void appendUnescaped(std::string& plain, std::string_view text);
/// The text as a quoted MEL string, quotes included.
std::string quoted(std::string_view text);

} // namespace tvxhost::mel
