// Parsing statement by statement, with a light path for plain commands.
#include "parser.h"

#include "astBuilder.h"
#include "grammar.h"
#include "syntaxErrors.h"
#include "syntaxTree.h"

#include <algorithm>

namespace tvxhost::mel {

namespace {

using Input = tao::pegtl::memory_input<tao::pegtl::tracking_mode::lazy>;

/// Adds the tokens of a plain statement to the command as the grammar meets them.
template <class Rule>
struct Collect : tao::pegtl::nothing<Rule>
{
};
template <>
struct Collect<grammar::command_name>
{
    template <class Matched>
    static void apply(const Matched& in, PlainCommand& command)
    {
        command.name = in.string_view();
    }
};
template <>
struct Collect<grammar::plain_string>
{
    template <class Matched>
    static void apply(const Matched& in, PlainCommand& command)
    {
        const std::string_view quotedText = in.string_view();
        command.arguments.addQuoted(quotedText.substr(1, quotedText.size() - 2));
    }
};
template <>
struct Collect<grammar::plain_sum>
{
    template <class Matched>
    static void apply(const Matched& in, PlainCommand& command)
    {
        command.arguments.addQuotedSum(in.string_view());
    }
};
template <ArgumentKind Kind>
struct CollectToken
{
    template <class Matched>
    static void apply(const Matched& in, PlainCommand& command)
    {
        command.arguments.addToken(Kind, in.string_view());
    }
};
template <>
struct Collect<grammar::flag_token> : CollectToken<ArgumentKind::flag>
{
};
template <>
struct Collect<grammar::float_token> : CollectToken<ArgumentKind::number>
{
};
template <>
struct Collect<grammar::integer_token> : CollectToken<ArgumentKind::integer>
{
};
template <>
struct Collect<grammar::word_token> : CollectToken<ArgumentKind::word>
{
};

constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";

} // namespace

struct StatementReader::State
{
    std::string_view text;
    std::string name;
    std::size_t start = 0; ///< of the current statement
    std::size_t end = 0;
    int line = 1; ///< of `start`
    PlainCommand plain;
    ast::StatementPtr tree;
    bool isPlain = false;

    void moveTo(std::size_t offset)
    {
        line += countLines(text.substr(start, offset - start));
        start = offset;
    }

    void skipWhiteSpace()
    {
        Input input(text.data() + end, text.data() + text.size(), "");
        tao::pegtl::parse<grammar::ws>(input);
        moveTo(static_cast<std::size_t>(input.current() - text.data()));
        end = start;
    }

    bool readPlain()
    {
        plain.arguments.clear();
        Input input(text.data() + start, text.data() + text.size(), "");
        if (!tao::pegtl::parse<grammar::plain_statement, Collect>(input, plain)) {
            return false;
        }
        plain.line = line;
        end = static_cast<std::size_t>(input.current() - text.data());
        return true;
    }

    void readTree()
    {
        const std::string_view rest = text.substr(start);
        std::size_t length = 0;
        const SyntaxTree parsed = parseNextStatement(rest, length);
        end = start + length;
        const std::string_view own = rest.substr(0, length);
        const LineIndex lines(own, line);
        tree = parsed->children.empty() ? nullptr : AstBuilder(own, lines).statement(*parsed->children[0]);
    }

    /// The error of a text that begins at `from`; looks no further than the end of the line it is in.
    SyntaxError errorAt(std::size_t from, const GrammarError& error) const
    {
        const std::size_t lineEnd = text.find_first_of("\r\n", from + error.offset);
        const int firstLine = line + countLines(text.substr(start, from - start));
        return syntaxError(error, LineIndex(text.substr(from, lineEnd - from), firstLine), name);
    }
};

StatementReader::StatementReader(std::string_view text, std::string name) : m_state(std::make_unique<State>())
{
    m_state->text = text;
    m_state->name = std::move(name);
    m_state->end = text.substr(0, kByteOrderMark.size()) == kByteOrderMark ? kByteOrderMark.size() : 0;
}

StatementReader::~StatementReader() = default;

bool StatementReader::next()
{
    State& state = *m_state;
    state.tree.reset();
    state.isPlain = false;
    try {
        do {
            state.skipWhiteSpace();
            if (state.start == state.text.size()) {
                return false;
            }
            state.isPlain = state.readPlain();
            if (!state.isPlain) {
                state.readTree();
            }
        } while (!state.isPlain && state.tree == nullptr);
        return true;
    } catch (const GrammarError& error) {
        throw state.errorAt(state.start, error);
    } catch (const tao::pegtl::parse_error& error) {
        // Only a comment without end stops the light path, and leaves nothing behind it to go on with.
        const std::size_t from = std::max(state.start, state.end);
        const SyntaxError shown =
            state.errorAt(from, {error.positions().front().byte, "Unterminated comment."});
        state.end = state.text.size();
        throw shown;
    }
}

void StatementReader::skipBroken()
{
    State& state = *m_state;
    std::size_t at = std::max(state.start, state.end);
    bool isBehind = false;
    while (at < state.text.size() && !isBehind) {
        const std::size_t lineEnd = std::min(state.text.find_first_of("\r\n", at), state.text.size());
        const std::string_view line = state.text.substr(at, lineEnd - at);
        const std::size_t last = line.find_last_not_of(" \t");
        isBehind = last != std::string_view::npos && line[last] == ';';
        at = lineEnd + 1;
    }
    state.end = std::min(at, state.text.size());
}

const PlainCommand* StatementReader::plain() const
{
    return m_state->isPlain ? &m_state->plain : nullptr;
}

const ast::Statement* StatementReader::statement() const
{
    return m_state->tree.get();
}

ast::StatementPtr StatementReader::takeStatement()
{
    return std::move(m_state->tree);
}

std::string_view StatementReader::source() const
{
    return m_state->text.substr(m_state->start, m_state->end - m_state->start);
}

int StatementReader::line() const
{
    return m_state->line;
}

std::size_t StatementReader::offset() const
{
    return m_state->end;
}

} // namespace tvxhost::mel
