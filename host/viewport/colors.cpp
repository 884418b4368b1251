// Colours of the viewport.
#include "colors.h"

#include "api/ui/uiColors.h"

namespace tvxhost::viewport {

namespace colors = api::colors;

MColor wireColor(M3dView::DisplayStatus status)
{
    switch (status) {
    case M3dView::kLead:
        return colors::lead();
    case M3dView::kActive:
        return colors::active();
    case M3dView::kHilite:
        return colors::hilite();
    case M3dView::kTemplate:
        return colors::templated();
    case M3dView::kActiveTemplate:
        return colors::activeTemplate();
    case M3dView::kActiveAffected:
        return colors::activeAffected();
    default:
        return colors::dormant();
    }
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
