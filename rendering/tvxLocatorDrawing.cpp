// What the locators' draw functions share.
#include "rendering/tvxLocatorDrawing.h"

#include "core/utils/tvxMayaCompat.h"
#include "rendering/tvxGL.h"

namespace tarvox::crowd {

namespace {

MColor proxyColor(M3dView::DisplayStatus status)
{
    const bool selected = status == M3dView::kLead || status == M3dView::kActive;
    return selected ? activeProxyColor() : dormantProxyColor();
}

} // namespace

MColor activeProxyColor()
{
    return MColor(1.0f, 0.45f, 0.0f, 1.0f);
}

MColor dormantProxyColor()
{
    return MColor(0.65f, 0.3f, 0.1f, 1.0f);
}

ProxyDrawing::ProxyDrawing(M3dView& view, M3dView::DisplayStatus status) : m_view(view)
{
    compat::beginGL(m_view);
    glPushMatrix();
    glPushAttrib(GL_ALL_ATTRIB_BITS);
    const MColor color = proxyColor(status);
    glColor4f(color.r, color.g, color.b, color.a);
}

ProxyDrawing::~ProxyDrawing()
{
    glPopAttrib();
    glPopMatrix();
    compat::endGL(m_view);
}

} // namespace tarvox::crowd
