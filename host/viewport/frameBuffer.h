// FrameBuffer: an off-screen drawing area with colour and depth.
#pragma once

#include "engine/outcome.h"
#include "picture.h"

#include <memory>

namespace tvxhost::viewport {

/// Lives and dies while its GL context is current.
class FrameBuffer
{
public:
    /// Makes and binds a frame buffer of a size in pixels. Fails for a size that is not positive or that GL
    /// cannot do.
    static engine::Expected<std::unique_ptr<FrameBuffer>> create(int width, int height, int largestSide);
    ~FrameBuffer();
    FrameBuffer(const FrameBuffer&) = delete;
    FrameBuffer& operator=(const FrameBuffer&) = delete;

    int width() const { return m_width; }
    int height() const { return m_height; }
    /// Makes it the place that GL draws to.
    void bind() const;
    /// What was drawn.
    Picture read() const;

private:
    FrameBuffer(int width, int height);
    int m_width;
    int m_height;
    unsigned m_frame = 0;
    unsigned m_color = 0;
    unsigned m_depth = 0;
};

} // namespace tvxhost::viewport
