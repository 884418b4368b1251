// LineBreaker: long statements over several lines, as scene files hold them.
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
    /// Where the blank between two words goes when the line breaks there.
    enum class Blank
    {
        before, ///< begins the new line
        behind  ///< ends the old one
    };

    /// `text` holds the beginning of the statement; its current line counts from the last line end, and
    /// `indent` characters before that.
    explicit LineBreaker(std::string& text, std::size_t indent = 0);
    /// Appends " word".
    void word(std::string_view word, Blank blank = Blank::before);
    /// Appends the semicolon.
    void end();

private:
    static constexpr std::size_t kLongLine = 80;

    bool isLong(std::size_t more) const { return m_text.size() + more >= m_lineStart + kLongLine; }
    void breakLine();

    std::string& m_text;
    std::size_t m_lineStart;
};

} // namespace tvxhost::scene
