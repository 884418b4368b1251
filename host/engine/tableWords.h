// The words of a line in one of the engine's text tables.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::engine {

/// Words are separated by blanks; one with blanks stands in double quotes; a '#' begins a comment.
std::vector<std::string> splitWords(std::string_view line);

/// The parts of a text between separators.
std::vector<std::string> splitAt(const std::string& text, char separator);

/// Calls `line` with the words of every line that has some, and its number from 1.
void forEachLine(std::string_view text,
                 const std::function<void(int, const std::vector<std::string>&)>& line);

} // namespace tvxhost::engine
