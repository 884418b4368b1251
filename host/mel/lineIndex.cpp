// Line numbers of a text.
#include "lineIndex.h"

#include <algorithm>

namespace tvxhost::mel {

namespace {

/// Where the next line begins; npos when there is none.
std::size_t nextLine(std::string_view text, std::size_t from)
{
    const std::size_t end = text.find_first_of("\r\n", from);
    if (end == std::string_view::npos) {
        return end;
    }
    return end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
}

} // namespace

LineIndex::LineIndex(std::string_view text, int firstLine) : m_text(text), m_firstLine(firstLine)
{
    for (std::size_t start = 0; start != std::string_view::npos; start = nextLine(text, start)) {
        m_starts.push_back(start);
    }
}

std::size_t LineIndex::lineOf(std::size_t offset) const
{
    const auto after = std::upper_bound(m_starts.begin(), m_starts.end(), offset);
    return static_cast<std::size_t>(after - m_starts.begin()) - 1;
}

ast::Position LineIndex::at(std::size_t offset) const
{
    const std::size_t line = lineOf(offset);
    return {m_firstLine + static_cast<int>(line), static_cast<int>(offset - m_starts[line]) + 1};
}

std::string_view LineIndex::lineText(std::size_t offset) const
{
    const std::string_view line = m_text.substr(m_starts[lineOf(offset)]);
    return line.substr(0, line.find_first_of("\r\n"));
}

int countLines(std::string_view text)
{
    int lines = 0;
    for (std::size_t i = nextLine(text, 0); i != std::string_view::npos; i = nextLine(text, i)) {
        ++lines;
    }
    return lines;
}

} // namespace tvxhost::mel
