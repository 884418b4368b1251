// What the locators' draw functions share.
#pragma once

#include <maya/M3dView.h>
#include <maya/MColor.h>

namespace tarvox::crowd {

/// The colour of a proxy that is selected: orange.
MColor activeProxyColor();
/// The colour of a proxy in any other state: brown.
MColor dormantProxyColor();

/// Makes that of a proxy with the display status the current colour.
void setProxyColor(M3dView::DisplayStatus status);

/// Brackets a locator's drawing: the view's GL context, one level of the matrix stack and all attributes,
/// given back when it ends.
class LocatorDrawing
{
public:
    explicit LocatorDrawing(M3dView& view);
    ~LocatorDrawing();
    LocatorDrawing(const LocatorDrawing&) = delete;
    LocatorDrawing& operator=(const LocatorDrawing&) = delete;

private:
    M3dView& m_view;
};

} // namespace tarvox::crowd
