// ValueLines: see valueLines.h.
#include "valueLines.h"

#include "engine/attribute.h"

namespace tvxhost::scene {

namespace {

constexpr std::size_t kLongest = 80;
constexpr std::size_t kStatement = 27;
constexpr std::size_t kSize = 10;

} // namespace

ValueLines::ValueLines(const Style& style, std::size_t before)
    : m_style(style), m_count(before + style.blanks - 1 + style.beginning)
{
    m_text.assign(style.leads ? style.blanks - 1 : style.blanks, ' ');
}

void ValueLines::add(std::string_view words)
{
    if (m_breaks) {
        m_text += m_style.leads ? "\n\t\t" : " \n\t\t";
        m_count = m_style.beginning;
    } else if (!m_style.leads && m_hasValues) {
        m_text += ' ';
    }
    if (m_style.leads)
        m_text += ' ';
    m_text += words;
    m_count += m_style.flatWidth != 0 ? m_style.flatWidth : words.size() + 1;
    m_breaks = m_count > kLongest;
    m_hasValues = true;
}

ValueLines::Style listStyle(const engine::Attribute& array)
{
    ValueLines::Style style;
    style.blanks = 2;
    if (array.kind == engine::AttributeKind::enumeration)
        style.flatWidth = 5;
    if (array.number == engine::NumberKind::boolean) {
        style.blanks = 1;
        style.beginning = 1;
    }
    return style;
}

std::size_t countBefore(std::string_view path, bool hasSize, std::string_view typeWords)
{
    return kStatement + path.size() + (hasSize ? kSize : 0) + typeWords.size();
}

std::size_t widthBefore(std::string_view path, std::string_view words)
{
    constexpr std::string_view kWords = "\tsetAttr \".\"";
    return kWords.size() + path.size() + words.size();
}

} // namespace tvxhost::scene
