// M3dView: a viewport: its size, camera and matrices, and the way to draw into it.
#include <maya/M3dView.h>

#include "support/access.h"
#include "support/displayStatus.h"
#include "support/matrix4.h"
#include "support/notImplemented.h"
#include "viewAccess.h"

#include <cmath>

using namespace tvxhost;
using api::bridgeOf;
using api::failure;
using api::StatusText;

namespace {

MMatrix toApi(const engine::Matrix& matrix)
{
    return api::fromImath<MMatrix>(matrix);
}

/// Whether there is just the view that is drawing, or none.
unsigned int viewCount()
{
    return api::currentView() ? 1 : 0;
}

/// A point of the clip cube behind a pixel; depth -1 is the near plane, 1 the far one.
MPoint clipPoint(const api::ViewBridge& view, short x, short y, double depth)
{
    return MPoint(2.0 * x / view.width() - 1.0, 2.0 * y / view.height() - 1.0, depth);
}

MPoint unprojected(const api::ViewBridge& view, short x, short y, double depth)
{
    const engine::Matrix toWorld = (view.modelView() * view.projection()).inverse();
    return (clipPoint(view, x, y, depth) * toApi(toWorld)).cartesianize();
}

/// The ray behind a pixel: from the near plane, with length 1.
void rayBehind(const api::ViewBridge& view, short x, short y, MPoint& start, MVector& direction)
{
    start = unprojected(view, x, y, -1.0);
    direction = (unprojected(view, x, y, 1.0) - start).normal();
}

bool isInClipCube(const MPoint& point)
{
    return point.w > 0.0 && std::fabs(point.x) <= point.w && std::fabs(point.y) <= point.w &&
           std::fabs(point.z) <= point.w;
}

int widthOf(const api::View* view, MStatus* status)
{
    const api::ViewBridge* bridge = bridgeOf(view, status);
    return bridge ? bridge->width() : 0;
}

int heightOf(const api::View* view, MStatus* status)
{
    const api::ViewBridge* bridge = bridgeOf(view, status);
    return bridge ? bridge->height() : 0;
}

MStatus makeCurrent(const api::View* view)
{
    MStatus status;
    api::ViewBridge* bridge = bridgeOf(view, &status);
    if (bridge && !bridge->makeCurrent())
        return failure(StatusText::unexpectedFailure);
    return status;
}

MStatus redraw(const api::View* view)
{
    MStatus status;
    api::ViewBridge* bridge = bridgeOf(view, &status);
    if (bridge && !bridge->redraw())
        return api::notImplemented("M3dView::refresh");
    return status;
}

/// The view of a panel. There are no panels: a view is drawn by itself.
MStatus noPanel()
{
    return failure(StatusText::objectDoesNotExist);
}

} // namespace

M3dView::M3dView() : view(nullptr), reserved(nullptr) {}

M3dView::~M3dView() {}

M3dView M3dView::active3dView(MStatus* ReturnStatus)
{
    M3dView active;
    TVX_API_CALL_OR("M3dView::active3dView", ReturnStatus, active);
    active.view = api::currentView();
    api::give(ReturnStatus, active.view ? MStatus() : failure(StatusText::objectDoesNotExist));
    return active;
}

unsigned int M3dView::numberOf3dViews()
{
    return viewCount();
}

MStatus M3dView::get3dView(const unsigned int index, M3dView& view)
{
    TVX_API_CALL("M3dView::get3dView");
    if (index >= viewCount())
        return failure(StatusText::noElementAtIndex);
    view.view = api::currentView();
    return MS::kSuccess;
}

M3dView::DisplayStatus M3dView::displayStatus(const MDagPath& path, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::displayStatus", ReturnStatus, kNoStatus);
    const engine::DagPath* place = tvxAccess::dagPath(path);
    const bool isValid = place && place->isValid();
    api::give(ReturnStatus,
              isValid ? MStatus() : failure(MS::kInvalidParameter, StatusText::objectDoesNotExist));
    return isValid ? api::displayStatusOf(*place) : kNoStatus;
}

MStatus M3dView::makeSharedContextCurrent()
{
    TVX_API_CALL("M3dView::makeSharedContextCurrent");
    return makeCurrent(view);
}

void M3dView::getScreenPosition(int& x, int& y, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::getScreenPosition", ReturnStatus, );
    if (bridgeOf(view, ReturnStatus))
        x = y = 0;
}

int M3dView::portWidth(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::portWidth", ReturnStatus, 0);
    return widthOf(view, ReturnStatus);
}

int M3dView::portHeight(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::portHeight", ReturnStatus, 0);
    return heightOf(view, ReturnStatus);
}

bool M3dView::isVisible(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::isVisible", ReturnStatus, false);
    return bridgeOf(view, ReturnStatus) != nullptr;
}

int M3dView::playblastPortWidth(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::playblastPortWidth", ReturnStatus, 0);
    return widthOf(view, ReturnStatus);
}

int M3dView::playblastPortHeight(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("M3dView::playblastPortHeight", ReturnStatus, 0);
    return heightOf(view, ReturnStatus);
}

MStatus M3dView::pushViewport(unsigned int x, unsigned int y, unsigned int width, unsigned int height)
{
    TVX_API_CALL("M3dView::pushViewport");
    MStatus status;
    if (bridgeOf(view, &status)) {
        glPushAttrib(GL_VIEWPORT_BIT);
        glViewport(static_cast<GLint>(x), static_cast<GLint>(y), static_cast<GLsizei>(width),
                   static_cast<GLsizei>(height));
    }
    return status;
}

MStatus M3dView::popViewport()
{
    TVX_API_CALL("M3dView::popViewport");
    MStatus status;
    if (bridgeOf(view, &status))
        glPopAttrib();
    return status;
}

MStatus M3dView::viewport(unsigned int& x, unsigned int& y, unsigned int& width, unsigned int& height) const
{
    TVX_API_CALL("M3dView::viewport");
    MStatus status;
    if (const api::ViewBridge* bridge = bridgeOf(view, &status)) {
        x = y = 0;
        width = static_cast<unsigned int>(bridge->width());
        height = static_cast<unsigned int>(bridge->height());
    }
    return status;
}

MStatus M3dView::beginGL()
{
    TVX_API_CALL("M3dView::beginGL");
    return makeCurrent(view);
}

MStatus M3dView::endGL()
{
    TVX_API_CALL("M3dView::endGL");
    MStatus status;
    bridgeOf(view, &status);
    return status;
}

void M3dView::beginSelect(GLuint* buffer, GLsizei size)
{
    if (!bridgeOf(view, nullptr))
        return;
    if (buffer)
        glSelectBuffer(size, buffer);
    glRenderMode(GL_SELECT);
}

GLint M3dView::endSelect()
{
    return bridgeOf(view, nullptr) ? glRenderMode(GL_RENDER) : 0;
}

bool M3dView::selectMode() const
{
    GLint mode = GL_RENDER;
    if (bridgeOf(view, nullptr))
        glGetIntegerv(GL_RENDER_MODE, &mode);
    return mode == GL_SELECT;
}

void M3dView::loadName(GLuint name)
{
    if (bridgeOf(view, nullptr))
        glLoadName(name);
}

void M3dView::pushName(GLuint name)
{
    if (bridgeOf(view, nullptr))
        glPushName(name);
}

void M3dView::popName()
{
    if (bridgeOf(view, nullptr))
        glPopName();
}

void M3dView::initNames()
{
    if (bridgeOf(view, nullptr))
        glInitNames();
}

MStatus M3dView::colorMask(bool& r, bool& g, bool& b, bool& a)
{
    TVX_API_CALL("M3dView::colorMask");
    MStatus status;
    if (bridgeOf(view, &status)) {
        GLboolean mask[4] = {};
        glGetBooleanv(GL_COLOR_WRITEMASK, mask);
        r = mask[0] == GL_TRUE;
        g = mask[1] == GL_TRUE;
        b = mask[2] == GL_TRUE;
        a = mask[3] == GL_TRUE;
    }
    return status;
}

MStatus M3dView::setColorMask(bool r, bool g, bool b, bool a)
{
    TVX_API_CALL("M3dView::setColorMask");
    MStatus status;
    if (bridgeOf(view, &status))
        glColorMask(r, g, b, a);
    return status;
}

MStatus M3dView::getCamera(MDagPath& camera)
{
    TVX_API_CALL("M3dView::getCamera");
    MStatus status;
    if (const api::ViewBridge* bridge = bridgeOf(view, &status))
        tvxAccess::setDagPath(camera, bridge->cameraPath());
    return status;
}

MStatus M3dView::setCamera(MDagPath& camera)
{
    TVX_API_CALL("M3dView::setCamera");
    MStatus status;
    api::ViewBridge* bridge = bridgeOf(view, &status);
    if (!bridge)
        return status;
    MDagPath shape(camera);
    if (!shape.extendToShape() || !shape.hasFn(MFn::kCamera))
        return failure(StatusText::objectIsIncompatible);
    return bridge->lookThrough(*tvxAccess::dagPath(shape)) ? status
                                                           : api::notImplemented("M3dView::setCamera");
}

MStatus M3dView::scheduleRefreshAllViews()
{
    TVX_API_CALL("M3dView::scheduleRefreshAllViews");
    return MS::kSuccess;
}

// Pictures are drawn when they are asked for: every one is fresh.
MStatus M3dView::scheduleRefresh()
{
    TVX_API_CALL("M3dView::scheduleRefresh");
    MStatus status;
    bridgeOf(view, &status);
    return status;
}

MStatus M3dView::refresh(bool, bool)
{
    TVX_API_CALL("M3dView::refresh");
    return redraw(view);
}

MStatus M3dView::refresh(bool, bool, bool)
{
    TVX_API_CALL("M3dView::refresh");
    return redraw(view);
}

MStatus M3dView::viewToWorld(short x_pos, short y_pos, MPoint& worldPt, MVector& worldVector) const
{
    TVX_API_CALL("M3dView::viewToWorld");
    MStatus status;
    if (const api::ViewBridge* bridge = bridgeOf(view, &status))
        rayBehind(*bridge, x_pos, y_pos, worldPt, worldVector);
    return status;
}

MStatus M3dView::viewToWorld(short x_pos, short y_pos, MPoint& nearClipPt, MPoint& farClipPt) const
{
    TVX_API_CALL("M3dView::viewToWorld");
    MStatus status;
    if (const api::ViewBridge* bridge = bridgeOf(view, &status)) {
        nearClipPt = unprojected(*bridge, x_pos, y_pos, -1.0);
        farClipPt = unprojected(*bridge, x_pos, y_pos, 1.0);
    }
    return status;
}

MStatus M3dView::viewToObjectSpace(short x_pos, short y_pos, const MMatrix& localMatrixInverse, MPoint& oPt,
                                   MVector& oVector) const
{
    TVX_API_CALL("M3dView::viewToObjectSpace");
    MStatus status;
    if (const api::ViewBridge* bridge = bridgeOf(view, &status)) {
        rayBehind(*bridge, x_pos, y_pos, oPt, oVector);
        oPt *= localMatrixInverse;
        oVector *= localMatrixInverse;
    }
    return status;
}

bool M3dView::worldToView(const MPoint& worldPt, short& x_pos, short& y_pos, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("M3dView::worldToView", ReturnStatus, false);
    const api::ViewBridge* bridge = bridgeOf(view, ReturnStatus);
    if (!bridge)
        return false;
    MPoint clip = worldPt * toApi(bridge->modelView() * bridge->projection());
    const bool isInside = isInClipCube(clip);
    clip.cartesianize();
    x_pos = static_cast<short>(std::lround((clip.x + 1.0) * bridge->width() / 2.0));
    y_pos = static_cast<short>(std::lround((clip.y + 1.0) * bridge->height() / 2.0));
    return isInside;
}

MStatus M3dView::projectionMatrix(MMatrix& matrix) const
{
    TVX_API_CALL("M3dView::projectionMatrix");
    MStatus status;
    if (const api::ViewBridge* bridge = bridgeOf(view, &status))
        matrix = toApi(bridge->projection());
    return status;
}

MStatus M3dView::modelViewMatrix(MMatrix& matrix) const
{
    TVX_API_CALL("M3dView::modelViewMatrix");
    MStatus status;
    if (const api::ViewBridge* bridge = bridgeOf(view, &status))
        matrix = toApi(bridge->modelView());
    return status;
}

MStatus M3dView::getM3dViewFromModelPanel(const MString&, M3dView&)
{
    TVX_API_CALL("M3dView::getM3dViewFromModelPanel");
    return noPanel();
}

MStatus M3dView::getM3dViewFromModelEditor(const MString&, M3dView&)
{
    TVX_API_CALL("M3dView::getM3dViewFromModelEditor");
    return noPanel();
}

MStatus M3dView::readDepthMap(unsigned short x, unsigned short y, unsigned int width, unsigned int height,
                              unsigned char* bufferPtr, DepthBufferFormat depthMapPrecision)
{
    TVX_API_CALL("M3dView::readDepthMap");
    const MStatus status = makeCurrent(view);
    if (!status)
        return status;
    if (!bufferPtr)
        return failure(StatusText::nullArgument);
    glReadPixels(x, y, static_cast<GLsizei>(width), static_cast<GLsizei>(height), GL_DEPTH_COMPONENT,
                 depthMapPrecision == kDepth_Float ? GL_FLOAT : GL_UNSIGNED_BYTE, bufferPtr);
    return MS::kSuccess;
}

const char* M3dView::className()
{
    return "M3dView";
}
