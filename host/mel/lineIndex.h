// LineIndex: lines and columns of offsets in a text with LF, CR or CR LF line ends.
#pragma once

#include "ast.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::mel {

class LineIndex
{
public:
    /// The text must outlive the index; its first line has the number `firstLine`.
    explicit LineIndex(std::string_view text, int firstLine = 1);

    ast::Position at(std::size_t offset) const;
    /// The line that holds the offset, without its end.
    std::string_view lineText(std::size_t offset) const;

private:
    std::size_t lineOf(std::size_t offset) const;

    std::string_view m_text;
    std::vector<std::size_t> m_starts;
    int m_firstLine;
};

/// The number of line ends in a text.
int countLines(std::string_view text);

} // namespace tvxhost::mel
