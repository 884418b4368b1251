// Words: see words.h.
#include "words.h"

#include <charconv>
#include <cmath>
#include <utility>

namespace tvxhost::scene {

std::optional<double> numberOf(const mel::Argument& argument)
{
    const std::string_view text = argument.text;
    double value = 0.0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
    if (parsed.ec == std::errc() && parsed.ptr == text.data() + text.size())
        return value;
    bool isKnown = false;
    const bool truth = mel::keywordBoolean(text, isKnown);
    if (isKnown)
        return truth ? 1.0 : 0.0;
    const mel::LeadingNumber leading = argument.number();
    if (leading.found)
        return leading.value;
    return std::nullopt;
}

std::optional<bool> booleanOf(const mel::Argument& argument)
{
    const std::optional<double> number = numberOf(argument);
    if (!number)
        return std::nullopt;
    return *number != 0.0;
}

const mel::Argument* Words::take()
{
    if (atEnd()) {
        m_failed = true;
        return nullptr;
    }
    return m_next++;
}

double Words::number()
{
    const mel::Argument* word = take();
    const std::optional<double> value = word ? numberOf(*word) : std::nullopt;
    m_failed |= !value;
    return value.value_or(0.0);
}

int Words::integer()
{
    const double value = number();
    constexpr double kLimit = 2147483647.0;
    if (!(std::fabs(value) <= kLimit)) {
        m_failed = true;
        return 0;
    }
    return static_cast<int>(value);
}

std::size_t Words::count(std::size_t wordsEach)
{
    const int value = integer();
    if (value < 0 || static_cast<std::size_t>(value) > left() / wordsEach) {
        m_failed = true;
        return 0;
    }
    return static_cast<std::size_t>(value);
}

std::string Words::takeText()
{
    if (!atEnd() && m_next->resolved)
        return std::move(*take()->resolved);
    return text();
}

std::string Words::text()
{
    const mel::Argument* word = take();
    return word ? std::string(word->text) : std::string();
}

std::string Words::rest()
{
    std::string all;
    for (; m_next != m_end; ++m_next) {
        if (!all.empty())
            all += ' ';
        all += sourceText(*m_next);
    }
    return all;
}

std::string sourceText(const mel::Argument& word)
{
    return word.kind == mel::ArgumentKind::string ? mel::quoted(word.text) : std::string(word.text);
}

} // namespace tvxhost::scene
