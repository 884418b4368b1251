// FrameBuffer: a GL frame buffer object with two render buffers.
#define GL_GLEXT_PROTOTYPES
#include "frameBuffer.h"

#include <GL/gl.h>
#include <GL/glext.h>

#include <algorithm>
#include <string>

namespace tvxhost::viewport {

using engine::Expected;
using engine::Outcome;
using engine::Reason;

namespace {

std::string sizeText(int width, int height)
{
    return std::to_string(width) + "x" + std::to_string(height);
}

/// GL's rows run from the bottom up.
void flipRows(Picture& picture)
{
    const auto row = static_cast<std::ptrdiff_t>(picture.width) * 3;
    for (int top = 0, bottom = picture.height - 1; top < bottom; ++top, --bottom) {
        const auto first = picture.bytes.begin() + top * row;
        std::swap_ranges(first, first + row, picture.bytes.begin() + bottom * row);
    }
}

} // namespace

FrameBuffer::FrameBuffer(int width, int height) : m_width(width), m_height(height)
{
    glGenFramebuffers(1, &m_frame);
    glGenRenderbuffers(1, &m_color);
    glGenRenderbuffers(1, &m_depth);
    glBindFramebuffer(GL_FRAMEBUFFER, m_frame);
    glBindRenderbuffer(GL_RENDERBUFFER, m_color);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, width, height);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, m_color);
    glBindRenderbuffer(GL_RENDERBUFFER, m_depth);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT24, width, height);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, m_depth);
    glBindRenderbuffer(GL_RENDERBUFFER, 0);
}

FrameBuffer::~FrameBuffer()
{
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    glDeleteFramebuffers(1, &m_frame);
    glDeleteRenderbuffers(1, &m_color);
    glDeleteRenderbuffers(1, &m_depth);
}

Expected<std::unique_ptr<FrameBuffer>> FrameBuffer::create(int width, int height, int largestSide)
{
    if (width < 1 || height < 1)
        return Outcome(Reason::badIndex, "a picture of " + sizeText(width, height) + " has no pixels");
    if (width > largestSide || height > largestSide)
        return Outcome(Reason::badIndex, "a picture of " + sizeText(width, height) +
                                             " is larger than OpenGL can draw here, at most " +
                                             sizeText(largestSide, largestSide));
    std::unique_ptr<FrameBuffer> buffer(new FrameBuffer(width, height));
    if (glCheckFramebufferStatus(GL_FRAMEBUFFER) != GL_FRAMEBUFFER_COMPLETE)
        return Outcome(Reason::failed,
                       "OpenGL cannot make an off-screen picture of " + sizeText(width, height));
    return buffer;
}

void FrameBuffer::bind() const
{
    glBindFramebuffer(GL_FRAMEBUFFER, m_frame);
}

Picture FrameBuffer::read() const
{
    Picture picture(m_width, m_height);
    bind();
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, m_width, m_height, GL_RGB, GL_UNSIGNED_BYTE, picture.bytes.data());
    flipRows(picture);
    return picture;
}

} // namespace tvxhost::viewport
