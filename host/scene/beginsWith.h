// Whether a text begins with another one.
#pragma once

#include <string_view>

namespace tvxhost::scene {

inline bool beginsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

} // namespace tvxhost::scene
