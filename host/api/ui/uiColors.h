// The colours of the user interface that the API names: Maya's defaults.
#pragma once

#include <maya/M3dView.h>
#include <maya/MColor.h>

namespace tvxhost::api::colors {

inline MColor background()
{
    return MColor(0.36f, 0.36f, 0.36f);
}
inline MColor backgroundTop()
{
    return MColor(0.54f, 0.617f, 0.71f);
}
inline MColor backgroundBottom()
{
    return MColor(0.1f, 0.1f, 0.1f);
}
inline MColor lead()
{
    return MColor(0.263f, 1.0f, 0.639f);
}
inline MColor active()
{
    return MColor(1.0f, 1.0f, 1.0f);
}
inline MColor activeAffected()
{
    return MColor(0.783f, 0.333f, 1.0f);
}
inline MColor hilite()
{
    return MColor(0.0f, 0.8f, 1.0f);
}
inline MColor live()
{
    return MColor(0.0f, 0.4f, 0.0f);
}
inline MColor templated()
{
    return MColor(0.5f, 0.5f, 0.5f);
}
inline MColor activeTemplate()
{
    return MColor(1.0f, 0.47f, 0.47f);
}
inline MColor reference()
{
    return MColor(0.0f, 0.0f, 0.0f);
}
inline MColor dormant()
{
    return MColor(0.0f, 0.016f, 0.376f);
}

/// The colour of what Maya draws itself in a display status.
inline MColor of(M3dView::DisplayStatus status)
{
    switch (status) {
    case M3dView::kLead:
        return lead();
    case M3dView::kActive:
        return active();
    case M3dView::kActiveAffected:
        return activeAffected();
    case M3dView::kLive:
        return live();
    case M3dView::kHilite:
        return hilite();
    case M3dView::kTemplate:
        return templated();
    case M3dView::kActiveTemplate:
        return activeTemplate();
    default:
        return dormant();
    }
}

} // namespace tvxhost::api::colors
