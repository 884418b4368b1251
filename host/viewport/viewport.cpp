// Viewport: context, camera and painter put together.
#include "viewport.h"

#include "api/ui/viewBridge.h"
#include "camera.h"
#include "frameBuffer.h"
#include "glContext.h"
#include "painter.h"

namespace tvxhost::viewport {

using engine::DagPath;
using engine::Expected;
using engine::Matrix;

namespace {

/// The view as plug-ins see it while a picture is drawn.
class PictureView final : public api::ViewBridge
{
public:
    PictureView(const GlContext& context, const FrameBuffer& buffer, DagPath camera)
        : m_context(context), m_buffer(buffer), m_camera(std::move(camera)),
          m_view(viewMatrix(m_camera.inclusiveMatrix())),
          m_projection(projectionMatrix(lensOf(*m_camera.node()), aspect()))
    {
    }

    bool makeCurrent() override
    {
        if (!m_context.makeCurrent())
            return false;
        m_buffer.bind();
        return true;
    }
    int width() const override { return m_buffer.width(); }
    int height() const override { return m_buffer.height(); }
    DagPath cameraPath() const override { return m_camera; }
    Matrix modelView() const override { return m_view; }
    Matrix projection() const override { return m_projection; }
    M3dView::DisplayStyle displayStyle() const override { return M3dView::kWireFrame; }

private:
    double aspect() const { return static_cast<double>(m_buffer.width()) / m_buffer.height(); }

    const GlContext& m_context;
    const FrameBuffer& m_buffer;
    DagPath m_camera;
    Matrix m_view;
    Matrix m_projection;
};

} // namespace

Expected<Picture> drawPicture(engine::Scene& scene, const View& view)
{
    const auto camera = findCamera(scene, view.camera);
    if (!camera)
        return camera.outcome;
    const auto context = GlContext::create();
    if (!context)
        return context.outcome;
    const auto buffer = FrameBuffer::create(view.width, view.height, context.value->largestSide());
    if (!buffer)
        return buffer.outcome;

    PictureView pictureView(*context.value, *buffer.value, camera.value);
    const api::CurrentView current(pictureView);
    Painter(scene, pictureView.modelView(), pictureView.projection(), view.width, view.height).paint();
    return buffer.value->read();
}

} // namespace tvxhost::viewport
