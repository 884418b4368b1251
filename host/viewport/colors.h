// Colours of the viewport: Maya's defaults for what it draws itself.
#pragma once

#include <maya/M3dView.h>
#include <maya/MColor.h>

namespace tvxhost::viewport {

/// The wire colour of an object of Maya's own in a display status.
MColor wireColor(M3dView::DisplayStatus status);

MColor backgroundColor();
MColor gridColor();
MColor gridAxisColor();

} // namespace tvxhost::viewport
