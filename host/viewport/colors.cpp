// Colours of the viewport.
#include "colors.h"

namespace tvxhost::viewport {

Color wireColor(M3dView::DisplayStatus status)
{
    switch (status) {
    case M3dView::kLead:
        return {0.263f, 1.0f, 0.639f};
    case M3dView::kActive:
        return {1.0f, 1.0f, 1.0f};
    case M3dView::kHilite:
        return {0.0f, 0.8f, 1.0f};
    case M3dView::kTemplate:
        return {0.5f, 0.5f, 0.5f};
    case M3dView::kActiveTemplate:
        return {1.0f, 0.47f, 0.47f};
    case M3dView::kActiveAffected:
        return {0.783f, 0.333f, 1.0f};
    default:
        return {0.0f, 0.016f, 0.376f};
    }
}

} // namespace tvxhost::viewport
