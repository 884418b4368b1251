// M3dView: colours and display options.
#include <maya/M3dView.h>

#include "uiColors.h"
#include "viewAccess.h"

using namespace tvxhost;
using api::bridgeOf;
namespace colors = tvxhost::api::colors;

namespace {

/// A colour of the user interface, which is there with or without a view.
MColor given(const MColor& color, MStatus* status)
{
    api::giveSuccess(status);
    return color;
}

MStatus noSuchLight(const api::View* view)
{
    MStatus status;
    return bridgeOf(view, &status) ? api::failure(api::StatusText::noElementAtIndex) : status;
}

/// An option that is off in the host's views.
bool off(const api::View* view, MStatus* status)
{
    bridgeOf(view, status);
    return false;
}

} // namespace

bool M3dView::isBackgroundGradient(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::isBackgroundGradient", ReturnStatus, false);
    api::giveSuccess(ReturnStatus);
    return false;
}

MColor M3dView::templateColor(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::templateColor", ReturnStatus, MColor());
    return given(colors::templated(), ReturnStatus);
}

MColor M3dView::backgroundColor(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::backgroundColor", ReturnStatus, MColor());
    return given(colors::background(), ReturnStatus);
}

MColor M3dView::backgroundColorTop(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::backgroundColorTop", ReturnStatus, MColor());
    return given(colors::backgroundTop(), ReturnStatus);
}

MColor M3dView::backgroundColorBottom(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::backgroundColorBottom", ReturnStatus, MColor());
    return given(colors::backgroundBottom(), ReturnStatus);
}

MColor M3dView::liveColor(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::liveColor", ReturnStatus, MColor());
    return given(colors::live(), ReturnStatus);
}

MColor M3dView::referenceLayerColor(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::referenceLayerColor", ReturnStatus, MColor());
    return given(colors::reference(), ReturnStatus);
}

MColor M3dView::activeTemplateColor(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::activeTemplateColor", ReturnStatus, MColor());
    return given(colors::activeTemplate(), ReturnStatus);
}

MColor M3dView::leadColor(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::leadColor", ReturnStatus, MColor());
    return given(colors::lead(), ReturnStatus);
}

MColor M3dView::hiliteColor(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::hiliteColor", ReturnStatus, MColor());
    return given(colors::hilite(), ReturnStatus);
}

MColor M3dView::activeAffectedColor(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::activeAffectedColor", ReturnStatus, MColor());
    return given(colors::activeAffected(), ReturnStatus);
}

MStatus M3dView::setDrawColor(const MColor& color)
{
    TVX_API_CALL("M3dView::setDrawColor");
    MStatus status;
    if (bridgeOf(view, &status))
        glColor3f(color.r, color.g, color.b);
    return status;
}

MStatus M3dView::setDrawColorAndAlpha(const MColor& color)
{
    TVX_API_CALL("M3dView::setDrawColorAndAlpha");
    MStatus status;
    if (bridgeOf(view, &status))
        glColor4f(color.r, color.g, color.b, color.a);
    return status;
}

M3dView::DisplayStyle M3dView::displayStyle(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::displayStyle", ReturnStatus, kWireFrame);
    const api::ViewBridge* bridge = bridgeOf(view, ReturnStatus);
    return bridge ? bridge->displayStyle() : kWireFrame;
}

unsigned int M3dView::objectDisplay(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::objectDisplay", ReturnStatus, 0);
    return bridgeOf(view, ReturnStatus) ? static_cast<unsigned int>(kDisplayEverything) : 0;
}

bool M3dView::pluginObjectDisplay(const MString&, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::pluginObjectDisplay", ReturnStatus, false);
    return bridgeOf(view, ReturnStatus) != nullptr;
}

M3dView::RendererName M3dView::getRendererName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::getRendererName", ReturnStatus, kDefaultQualityRenderer);
    bridgeOf(view, ReturnStatus);
    return kDefaultQualityRenderer;
}

MString M3dView::rendererString(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::rendererString", ReturnStatus, MString());
    return bridgeOf(view, ReturnStatus) ? MString("base_OpenGL_Renderer") : MString();
}

MStatus M3dView::getRendererString(MString& stringName) const
{
    TVX_API_CALL("M3dView::getRendererString");
    MStatus status;
    if (bridgeOf(view, &status))
        stringName = "base_OpenGL_Renderer";
    return status;
}

bool M3dView::isShadeActiveOnly(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::isShadeActiveOnly", ReturnStatus, false);
    return off(view, ReturnStatus);
}

bool M3dView::wireframeOnlyInShadedMode(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::wireframeOnlyInShadedMode", ReturnStatus, false);
    return off(view, ReturnStatus);
}

bool M3dView::wireframeOnShaded(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::wireframeOnShaded", ReturnStatus, false);
    return off(view, ReturnStatus);
}

bool M3dView::xray(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::xray", ReturnStatus, false);
    return off(view, ReturnStatus);
}

bool M3dView::xrayJoints(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::xrayJoints", ReturnStatus, false);
    return off(view, ReturnStatus);
}

bool M3dView::twoSidedLighting(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::twoSidedLighting", ReturnStatus, false);
    return off(view, ReturnStatus);
}

bool M3dView::showViewSelectedChildren(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::showViewSelectedChildren", ReturnStatus, false);
    return off(view, ReturnStatus);
}

bool M3dView::showObjectFilterNameInHUD(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::showObjectFilterNameInHUD", ReturnStatus, false);
    return off(view, ReturnStatus);
}

MString M3dView::viewSelectedPrefix(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::viewSelectedPrefix", ReturnStatus, MString());
    bridgeOf(view, ReturnStatus);
    return MString();
}

MString M3dView::renderOverrideName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::renderOverrideName", ReturnStatus, MString());
    bridgeOf(view, ReturnStatus);
    return MString();
}

MString M3dView::objectListFilterName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::objectListFilterName", ReturnStatus, MString());
    bridgeOf(view, ReturnStatus);
    return MString();
}

bool M3dView::textureMode() const
{
    return off(view, nullptr);
}

bool M3dView::usingMipmappedTextures() const
{
    return off(view, nullptr);
}

bool M3dView::usingDefaultMaterial() const
{
    return off(view, nullptr);
}

bool M3dView::disallowPolygonOffset() const
{
    return off(view, nullptr);
}

bool M3dView::multipleDrawEnabled() const
{
    return off(view, nullptr);
}

unsigned int M3dView::multipleDrawPassCount()
{
    return bridgeOf(view, nullptr) ? 1 : 0;
}

// Matrices and camera are read when they are asked for.
MStatus M3dView::updateViewingParameters()
{
    TVX_API_CALL("M3dView::updateViewingParameters");
    MStatus status;
    bridgeOf(view, &status);
    return status;
}

// The host's views are drawn without lights.
MStatus M3dView::getLightCount(unsigned int& count, bool)
{
    TVX_API_CALL("M3dView::getLightCount");
    MStatus status;
    if (bridgeOf(view, &status))
        count = 0;
    return status;
}

MStatus M3dView::getLightingMode(LightingMode& mode)
{
    TVX_API_CALL("M3dView::getLightingMode");
    MStatus status;
    if (bridgeOf(view, &status))
        mode = kLightNone;
    return status;
}

MStatus M3dView::getLightPath(unsigned int, MDagPath&)
{
    TVX_API_CALL("M3dView::getLightPath");
    return noSuchLight(view);
}

MStatus M3dView::isLightVisible(unsigned int, bool&)
{
    TVX_API_CALL("M3dView::isLightVisible");
    return noSuchLight(view);
}

MStatus M3dView::getLightIndex(unsigned int, unsigned int&)
{
    TVX_API_CALL("M3dView::getLightIndex");
    return noSuchLight(view);
}
