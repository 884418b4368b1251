// What the locators' draw functions share.
#include "rendering/tvxLocatorDrawing.h"

#include "core/utils/tvxMayaCompat.h"
#include "rendering/tvxGL.h"

namespace tarvox::crowd {

MColor activeProxyColor()
{
    return MColor(1.0f, 0.45f, 0.0f, 1.0f);
}

MColor dormantProxyColor()
{
    return MColor(0.65f, 0.3f, 0.1f, 1.0f);
}

void setProxyColor(M3dView::DisplayStatus status)
{
    const bool selected = status == M3dView::kLead || status == M3dView::kActive;
    const MColor color = selected ? activeProxyColor() : dormantProxyColor();
    glColor4f(color.r, color.g, color.b, color.a);
}

LocatorDrawing::LocatorDrawing(M3dView& view) : m_view(view)
{
    compat::beginGL(m_view);
    glPushMatrix();
    glPushAttrib(GL_ALL_ATTRIB_BITS);
}

LocatorDrawing::~LocatorDrawing()
{
    glPopAttrib();
    glPopMatrix();
    compat::endGL(m_view);
}

} // namespace tarvox::crowd
