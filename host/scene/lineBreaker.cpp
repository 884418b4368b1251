// LineBreaker: see lineBreaker.h.
#include "lineBreaker.h"

namespace tvxhost::scene {

LineBreaker::LineBreaker(std::string& text, std::size_t indent)
    : m_text(text), m_lineStart(text.rfind('\n') + 1 - indent)
{
}

void LineBreaker::word(std::string_view word, Blank blank)
{
    const bool isBehind = blank == Blank::behind;
    const bool breaks = isLong(isBehind ? 1 : 0);
    if (!breaks || isBehind)
        m_text += ' ';
    if (breaks)
        breakLine();
    if (breaks && !isBehind)
        m_text += ' ';
    m_text += word;
}

void LineBreaker::end()
{
    if (isLong(0))
        breakLine();
    m_text += ';';
}

void LineBreaker::breakLine()
{
    m_text += '\n';
    m_lineStart = m_text.size();
    m_text += "\t\t";
}

} // namespace tvxhost::scene
