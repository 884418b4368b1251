// LineBreaker: long lists of values over several lines, as scene files hold them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tvxhost::scene {

/// Appends blank-separated words to a text and breaks the line where it gets long. Continued lines begin with
/// two tabs.
class LineBreaker
{
public:
    /// `text` holds the beginning of the statement; its current line counts from the last line end.
    explicit LineBreaker(std::string& text);
    /// Appends " word".
    void word(std::string_view word);

private:
    static constexpr std::size_t kLongLine = 90;

    std::string& m_text;
    std::size_t m_lineStart;
};

} // namespace tvxhost::scene
