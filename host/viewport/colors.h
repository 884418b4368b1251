// Colours of the viewport: Maya's defaults for what it draws itself.
#pragma once

#include <maya/M3dView.h>

#include <array>

namespace tvxhost::viewport {

/// Red, green, blue from 0 to 1.
using Color = std::array<float, 3>;

constexpr Color kBackground{0.36f, 0.36f, 0.36f};
constexpr Color kGridLines{0.5f, 0.5f, 0.5f};
constexpr Color kGridAxes{0.0f, 0.0f, 0.0f};

/// The wire colour of an object of Maya's own in a display status.
Color wireColor(M3dView::DisplayStatus status);

} // namespace tvxhost::viewport
