// LineBreaker: see lineBreaker.h.
#include "lineBreaker.h"

namespace tvxhost::scene {

LineBreaker::LineBreaker(std::string& text) : m_text(text), m_lineStart(text.rfind('\n') + 1) {}

void LineBreaker::word(std::string_view word)
{
    if (m_text.size() - m_lineStart > kLongLine) {
        m_text += '\n';
        m_lineStart = m_text.size();
        m_text += "\t\t";
    }
    m_text += ' ';
    m_text += word;
}

} // namespace tvxhost::scene
