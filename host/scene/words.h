// Words: the values of a statement, taken one by one.
#pragma once

#include "mel/arguments.h"

#include <optional>
#include <string>
#include <string_view>

namespace tvxhost::scene {

/// The number an argument is: of a token, of a quoted number, of yes/no and alike; empty when it is none.
std::optional<double> numberOf(const mel::Argument& argument);
/// The truth of a flag's value: a boolean word or a number; empty when it is neither.
std::optional<bool> booleanOf(const mel::Argument& argument);

/// A run of arguments. The first value that is missing or of the wrong kind makes the run fail for good; what
/// is taken from then on is neutral, so that callers ask once at the end.
class Words
{
public:
    Words(const mel::Argument* begin, const mel::Argument* end) : m_next(begin), m_end(end) {}

    bool atEnd() const { return m_next == m_end; }
    std::size_t left() const { return static_cast<std::size_t>(m_end - m_next); }
    bool failed() const { return m_failed; }
    /// The text of the next word without taking it; empty at the end.
    std::string_view peek() const { return atEnd() ? std::string_view() : m_next->text; }

    double number();
    int integer();
    /// A count that the remaining words can satisfy, each counted thing being `wordsEach` words.
    std::size_t count(std::size_t wordsEach = 1);
    std::string text();
    /// The same, which must not be asked for again: a long text is moved rather than copied.
    std::string takeText();
    void skip() { ++m_next; }

    /// All that is left as source text, strings quoted; takes them.
    std::string rest();

private:
    const mel::Argument* take();

    const mel::Argument* m_next;
    const mel::Argument* m_end;
    bool m_failed = false;
};

/// One word as source text.
std::string sourceText(const mel::Argument& word);

} // namespace tvxhost::scene
