// Strings as scene and preference files write them.
#pragma once

#include <string>
#include <string_view>

namespace tvxhost::engine {

/// In double quotes, with \" \\ \n \t \r escaped.
std::string quotedString(std::string_view text);

/// The text between the quotes with its escapes undone; an unknown escape stands for its character.
std::string unescapedString(std::string_view inside);

} // namespace tvxhost::engine
