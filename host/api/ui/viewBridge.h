// ViewBridge: how the API reaches the viewport that is drawing, without knowing it.
#pragma once

#include "engine/dagPath.h"

#include <maya/M3dView.h>

namespace tvxhost::api {

/// What an M3dView points to.
struct View
{
protected:
    ~View() = default;
};

/// A viewport as M3dView sees it. Implemented by the viewport, which makes itself the current one while it
/// can be asked.
class OPENMAYAUI_EXPORT ViewBridge : public View
{
public:
    virtual ~ViewBridge();

    /// Makes the view's OpenGL context current and binds what is drawn to; false when that fails.
    virtual bool makeCurrent() = 0;
    virtual int width() const = 0;  ///< pixels
    virtual int height() const = 0; ///< pixels
    /// To the camera's shape.
    virtual engine::DagPath cameraPath() const = 0;
    virtual engine::Matrix modelView() const = 0;  ///< from the world to the eye, row vectors
    virtual engine::Matrix projection() const = 0; ///< from the eye to the clip cube, row vectors
    virtual M3dView::DisplayStyle displayStyle() const = 0;

    // What a view need not be able to do: false says that it is not.
    /// Looks through another camera shape from the next picture on.
    virtual bool lookThrough(const engine::DagPath& camera);
    /// Draws again, now.
    virtual bool redraw();
};

/// The view that API calls mean; null when there is none.
OPENMAYAUI_EXPORT ViewBridge* currentView();

/// Makes a view the current one for as long as this object lives; then the one before is current again.
class OPENMAYAUI_EXPORT CurrentView
{
public:
    explicit CurrentView(ViewBridge& view);
    ~CurrentView();
    CurrentView(const CurrentView&) = delete;
    CurrentView& operator=(const CurrentView&) = delete;

private:
    ViewBridge* m_before;
};

} // namespace tvxhost::api
