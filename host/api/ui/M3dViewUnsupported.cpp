// M3dView: what the host's views cannot do; each answers kNotImplemented and says so once.
#include <maya/M3dView.h>

#include "support/notImplemented.h"
#include "viewAccess.h"

using tvxhost::api::notImplemented;

MStatus M3dView::beginXorDrawing(bool, bool, float, LineStipplePattern, const MColor&)
{
    TVX_API_CALL("M3dView::beginXorDrawing");
    return notImplemented("M3dView::beginXorDrawing");
}

MStatus M3dView::endXorDrawing()
{
    TVX_API_CALL("M3dView::endXorDrawing");
    return notImplemented("M3dView::endXorDrawing");
}

MStatus M3dView::setDrawColor(unsigned int, ColorTable)
{
    TVX_API_CALL("M3dView::setDrawColor");
    return notImplemented("M3dView::setDrawColor");
}

MStatus M3dView::setUserDefinedColor(unsigned int, const MColor&)
{
    TVX_API_CALL("M3dView::setUserDefinedColor");
    return notImplemented("M3dView::setUserDefinedColor");
}

MStatus M3dView::getColorIndexAndTable(unsigned int, unsigned int&, ColorTable&) const
{
    TVX_API_CALL("M3dView::getColorIndexAndTable");
    return notImplemented("M3dView::getColorIndexAndTable");
}

MStatus M3dView::drawText(const MString&, const MPoint, TextPosition)
{
    TVX_API_CALL("M3dView::drawText");
    return notImplemented("M3dView::drawText");
}

MStatus M3dView::setViewSelectedPrefix(const MString&)
{
    TVX_API_CALL("M3dView::setViewSelectedPrefix");
    return notImplemented("M3dView::setViewSelectedPrefix");
}

MStatus M3dView::setShowViewSelectedChildren(bool)
{
    TVX_API_CALL("M3dView::setShowViewSelectedChildren");
    return notImplemented("M3dView::setShowViewSelectedChildren");
}

MStatus M3dView::setDisplayStyle(DisplayStyle, bool)
{
    TVX_API_CALL("M3dView::setDisplayStyle");
    return notImplemented("M3dView::setDisplayStyle");
}

MStatus M3dView::setObjectDisplay(unsigned int)
{
    TVX_API_CALL("M3dView::setObjectDisplay");
    return notImplemented("M3dView::setObjectDisplay");
}

MStatus M3dView::setPluginObjectDisplay(const MString&, bool)
{
    TVX_API_CALL("M3dView::setPluginObjectDisplay");
    return notImplemented("M3dView::setPluginObjectDisplay");
}

MStatus M3dView::readBufferTo2dTexture(unsigned short, unsigned short, unsigned int, unsigned int)
{
    TVX_API_CALL("M3dView::readBufferTo2dTexture");
    return notImplemented("M3dView::readBufferTo2dTexture");
}

MStatus M3dView::setDisallowPolygonOffset(bool)
{
    TVX_API_CALL("M3dView::setDisallowPolygonOffset");
    return notImplemented("M3dView::setDisallowPolygonOffset");
}

MStatus M3dView::beginProjMatrixOverride(MMatrix&)
{
    TVX_API_CALL("M3dView::beginProjMatrixOverride");
    return notImplemented("M3dView::beginProjMatrixOverride");
}

MStatus M3dView::endProjMatrixOverride()
{
    TVX_API_CALL("M3dView::endProjMatrixOverride");
    return notImplemented("M3dView::endProjMatrixOverride");
}

MStatus M3dView::setRenderOverrideName(const MString&)
{
    TVX_API_CALL("M3dView::setRenderOverrideName");
    return notImplemented("M3dView::setRenderOverrideName");
}

MStatus M3dView::setObjectListFilterName(const MString&)
{
    TVX_API_CALL("M3dView::setObjectListFilterName");
    return notImplemented("M3dView::setObjectListFilterName");
}

MStatus M3dView::setShowObjectFilterNameInHUD(bool)
{
    TVX_API_CALL("M3dView::setShowObjectFilterNameInHUD");
    return notImplemented("M3dView::setShowObjectFilterNameInHUD");
}

unsigned int M3dView::numDormantColors(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::numDormantColors", ReturnStatus, 0);
    notImplemented("M3dView::numDormantColors", ReturnStatus);
    return 0;
}

unsigned int M3dView::numActiveColors(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::numActiveColors", ReturnStatus, 0);
    notImplemented("M3dView::numActiveColors", ReturnStatus);
    return 0;
}

unsigned int M3dView::numUserDefinedColors(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::numUserDefinedColors", ReturnStatus, 0);
    notImplemented("M3dView::numUserDefinedColors", ReturnStatus);
    return 0;
}

unsigned int M3dView::userDefinedColorIndex(unsigned int, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::userDefinedColorIndex", ReturnStatus, 0);
    notImplemented("M3dView::userDefinedColorIndex", ReturnStatus);
    return 0;
}

MColor M3dView::colorAtIndex(unsigned int, ColorTable, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::colorAtIndex", ReturnStatus, MColor());
    notImplemented("M3dView::colorAtIndex", ReturnStatus);
    return MColor();
}

void M3dView::setMultipleDrawEnable(bool)
{
    notImplemented("M3dView::setMultipleDrawEnable");
}

void M3dView::setMultipleDrawPassCount(unsigned int)
{
    notImplemented("M3dView::setMultipleDrawPassCount");
}

// What a window of the window system would have

Display* M3dView::display(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::display", ReturnStatus, nullptr);
    notImplemented("M3dView::display", ReturnStatus);
    return nullptr;
}

MGLContext M3dView::glxContext(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::glxContext", ReturnStatus, nullptr);
    notImplemented("M3dView::glxContext", ReturnStatus);
    return nullptr;
}

MNativeWindowHdl M3dView::applicationShell(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::applicationShell", ReturnStatus, 0);
    notImplemented("M3dView::applicationShell", ReturnStatus);
    return 0;
}

QWidget* M3dView::widget(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::widget", ReturnStatus, nullptr);
    notImplemented("M3dView::widget", ReturnStatus);
    return nullptr;
}

MNativeWindowHdl M3dView::window(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::window", ReturnStatus, 0);
    notImplemented("M3dView::window", ReturnStatus);
    return 0;
}

// Pictures in memory

MStatus M3dView::refresh(MPxGlBuffer&)
{
    TVX_API_CALL("M3dView::refresh");
    return notImplemented("M3dView::refresh(MPxGlBuffer)");
}

MStatus M3dView::refresh(MPxGlBuffer& buffer, bool)
{
    return refresh(buffer);
}

MStatus M3dView::refresh(MPxGlBuffer& buffer, bool, const MMatrix&)
{
    return refresh(buffer);
}

MStatus M3dView::readColorBuffer(MImage&, bool)
{
    TVX_API_CALL("M3dView::readColorBuffer");
    return notImplemented("M3dView::readColorBuffer");
}

MStatus M3dView::writeColorBuffer(const MImage&, short, short) const
{
    TVX_API_CALL("M3dView::writeColorBuffer");
    return notImplemented("M3dView::writeColorBuffer");
}
