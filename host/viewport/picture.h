// Picture: pixels in memory.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace tvxhost::viewport {

using Rgb = std::array<std::uint8_t, 3>;

/// Eight bits of red, green and blue per pixel, rows from the top down without gaps.
struct Picture
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes; ///< width * height * 3

    Picture() = default;
    /// Black.
    Picture(int w, int h) : width(w), height(h), bytes(static_cast<std::size_t>(w) * h * 3) {}

    /// `x` from the left, `y` from the top; not checked.
    Rgb at(int x, int y) const
    {
        const std::uint8_t* pixel = bytes.data() + (static_cast<std::size_t>(y) * width + x) * 3;
        return {pixel[0], pixel[1], pixel[2]};
    }
};

} // namespace tvxhost::viewport
