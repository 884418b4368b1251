// Text: see text.h.
#include "text.h"

namespace tvxhost::engine {

const std::string& Text::str() const
{
    static const std::string empty;
    return m_text ? *m_text : empty;
}

std::string& Text::edit()
{
    if (!m_text)
        m_text = new std::string;
    return *m_text;
}

} // namespace tvxhost::engine
