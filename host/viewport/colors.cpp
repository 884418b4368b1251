// Colours of the viewport.
#include "colors.h"

#include "api/ui/uiColors.h"

namespace tvxhost::viewport {

namespace colors = api::colors;

MColor wireColor(M3dView::DisplayStatus status)
{
    return colors::of(status);
}

MColor backgroundColor()
{
    return colors::background();
}

MColor gridColor()
{
    return {0.5f, 0.5f, 0.5f};
}

MColor gridAxisColor()
{
    return {0.0f, 0.0f, 0.0f};
}

} // namespace tvxhost::viewport
