// What the locators' draw functions share.
#pragma once

#include <maya/M3dView.h>
#include <maya/MColor.h>

namespace tarvox::crowd {

/// The colour of a proxy that is selected: orange.
MColor activeProxyColor();
/// The colour of a proxy in any other state: brown.
MColor dormantProxyColor();

/// Brackets a locator's drawing: the view's GL context, one level of the matrix stack and all attributes,
/// given back when it ends. The current colour is that of a proxy with the display status.
class ProxyDrawing
{
public:
    ProxyDrawing(M3dView& view, M3dView::DisplayStatus status);
    ~ProxyDrawing();
    ProxyDrawing(const ProxyDrawing&) = delete;
    ProxyDrawing& operator=(const ProxyDrawing&) = delete;

private:
    M3dView& m_view;
};

} // namespace tarvox::crowd
