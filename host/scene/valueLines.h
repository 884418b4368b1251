// ValueLines: the values of one `setAttr`, over lines that end where Maya ends them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tvxhost::engine {
class Attribute;
}

namespace tvxhost::scene {

/// Sets values apart and breaks the line as soon as a count passes the longest line. The count begins with a
/// flat rate for the words before the values; each value counts its width, or a flat rate of its own.
class ValueLines
{
public:
    /// How one kind of value is counted and set apart.
    struct Style
    {
        bool leads = false;        ///< a blank before each value and none behind it
        std::size_t flatWidth = 0; ///< what each value counts; 0 for its own width
        std::size_t beginning = 0; ///< what each line counts before its first value
        std::size_t blanks = 1;    ///< between the path and the values
    };

    /// `before`: what the statement counts up to its values; see countBefore().
    ValueLines(const Style& style, std::size_t before);

    /// Adds what must not be torn apart.
    void add(std::string_view words);

    /// The blanks, values and line ends so far.
    const std::string& text() const { return m_text; }

private:
    Style m_style;
    std::string m_text;
    std::size_t m_count;
    bool m_breaks = false;
    bool m_hasValues = false;
};

/// How the values of an array stand behind one another.
ValueLines::Style listStyle(const engine::Attribute& array);

/// What a statement counts before its values: for its path without the last index, for a size, and for the
/// words of its type.
std::size_t countBefore(std::string_view path, bool hasSize, std::string_view typeWords = {});

/// What really stands on the line before the values: lists that tell their length are broken by that.
std::size_t widthBefore(std::string_view path, std::string_view words);

} // namespace tvxhost::scene
