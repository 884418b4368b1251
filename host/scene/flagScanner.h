// FlagScanner: a quick walk over the flags of a scene's plain statements.
#pragma once

#include "words.h"

#include <string_view>

namespace tvxhost::scene {

/// Goes over the arguments of a statement whose flags are known to be few: `next()` goes to the next one,
/// `text()` and `truth()` take a flag's value along. Flags that nobody asks for are passed over; their values
/// then look positional, so callers name every flag that takes one.
class FlagScanner
{
public:
    explicit FlagScanner(const mel::ArgumentList& arguments)
        : m_next(arguments.begin()), m_end(arguments.end())
    {
    }

    bool next()
    {
        if (m_next == m_end)
            return false;
        m_current = m_next++;
        return true;
    }
    bool is(std::string_view shortName, std::string_view longName) const
    {
        if (!m_current->looksLikeFlag())
            return false;
        const std::string_view name = m_current->text.substr(1);
        return name == shortName || name == longName;
    }
    const mel::Argument& argument() const { return *m_current; }
    bool isPositional() const { return !m_current->looksLikeFlag(); }

    /// The text of a positional argument, or the value of the flag just met; empty when it is missing.
    std::string_view text()
    {
        if (isPositional())
            return m_current->text;
        return m_next == m_end ? std::string_view() : (m_next++)->text;
    }
    /// The truth of the flag's value; true when it is missing.
    bool truth()
    {
        if (m_next == m_end)
            return true;
        return booleanOf(*m_next++).value_or(true);
    }

private:
    const mel::Argument* m_next;
    const mel::Argument* m_end;
    const mel::Argument* m_current = nullptr;
};

} // namespace tvxhost::scene
