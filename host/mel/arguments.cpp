// Arguments of commands: tokens and values behind one face.
#include "arguments.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tvxhost::mel {

namespace {

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

Value integerOrNumber(double number)
{
    const bool fits = number == std::trunc(number) && number >= std::numeric_limits<int>::min() &&
                      number <= std::numeric_limits<int>::max();
    return fits ? Value(static_cast<int>(number)) : Value(number);
}

} // namespace

bool Argument::looksLikeFlag() const
{
    return (kind == ArgumentKind::flag || kind == ArgumentKind::string) && text.size() > 1 &&
           text[0] == '-' && isLetter(text[1]);
}

LeadingNumber Argument::number() const
{
    if (value != nullptr && !isArray(value->type()) && value->type() != Type::string &&
        value->type() != Type::matrix) {
        return {value->toNumber(), true};
    }
    return leadingNumber(text);
}

Value Argument::asValue() const
{
    if (value != nullptr) {
        return *value;
    }
    switch (kind) {
    case ArgumentKind::integer:
        return integerOrNumber(leadingNumber(text).value);
    case ArgumentKind::number:
        return leadingNumber(text).value;
    case ArgumentKind::word: {
        bool known = false;
        const bool on = keywordBoolean(text, known);
        return known ? Value(on) : Value(text);
    }
    default:
        return text;
    }
}

bool keywordBoolean(std::string_view text, bool& known)
{
    const bool on = text == "on" || text == "yes" || text == "true";
    known = on || text == "off" || text == "no" || text == "false";
    return on;
}

void ArgumentList::addToken(ArgumentKind kind, std::string_view text)
{
    m_arguments.push_back({kind, text, nullptr, nullptr});
}

void ArgumentList::addQuoted(std::string_view escapedText)
{
    if (escapedText.find('\\') == std::string_view::npos)
        addToken(ArgumentKind::string, escapedText);
    else
        addResolved(unescaped(escapedText));
}

void ArgumentList::addQuotedSum(std::string_view source)
{
    std::string sum;
    sum.reserve(source.size());
    for (std::size_t quote = source.find('"'); quote != std::string_view::npos;) {
        std::size_t end = quote + 1;
        while (source[end] != '"')
            end += source[end] == '\\' ? 2 : 1;
        appendUnescaped(sum, source.substr(quote + 1, end - quote - 1));
        quote = source.find('"', end + 1);
    }
    addResolved(std::move(sum));
}

void ArgumentList::addValue(const Value& value)
{
    if (isArray(value.type())) {
        for (std::size_t i = 0; i < value.size(); ++i) {
            addValue(value.element(i));
        }
        return;
    }
    if (value.isNone()) {
        return;
    }
    if (value.type() == Type::string) {
        addToken(ArgumentKind::string, keep(value.string()));
        return;
    }
    const ArgumentKind kind = value.type() == Type::integer  ? ArgumentKind::integer
                              : value.type() == Type::number ? ArgumentKind::number
                                                             : ArgumentKind::value;
    const std::string_view text = keep(value.toString());
    m_values.push_back(value);
    m_arguments.push_back({kind, text, &m_values.back(), nullptr});
}

void ArgumentList::clear()
{
    m_arguments.clear();
    m_strings.clear();
    m_values.clear();
}

void ArgumentList::addResolved(std::string text)
{
    std::string& kept = keep(std::move(text));
    m_arguments.push_back({ArgumentKind::string, kept, nullptr, &kept});
}

std::string& ArgumentList::keep(std::string text)
{
    m_strings.push_back(std::move(text));
    return m_strings.back();
}

std::string unescaped(std::string_view text)
{
    std::string plain;
    plain.reserve(text.size());
    appendUnescaped(plain, text);
    return plain;
}

void appendUnescaped(std::string& plain, std::string_view text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t escape = std::min(text.find('\\', i), text.size());
        plain.append(text, i, escape - i);
        i = escape;
        if (i + 1 >= text.size()) {
            plain.append(text.substr(i));
            break;
        }
        switch (const char escaped = text[++i]) {
        case 'n':
            plain += '\n';
            break;
        case 't':
            plain += '\t';
            break;
        case 'r':
            plain += '\r';
            break;
        case '\r':
            i += i + 1 < text.size() && text[i + 1] == '\n' ? 1 : 0;
            break;
        case '\n':
            break;
        default:
            plain += escaped;
        }
    }
}

std::string quoted(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        switch (c) {
        case '\n':
            result += "\\n";
            break;
        case '\t':
            result += "\\t";
            break;
        case '\r':
            result += "\\r";
            break;
        case '"':
        case '\\':
            result += '\\';
            [[fallthrough]];
        default:
            result += c;
        }
    }
    return result + '"';
}

} // namespace tvxhost::mel
