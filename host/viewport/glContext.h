// GlContext: an OpenGL compatibility context that needs no display.
#pragma once

#include "engine/outcome.h"

#include <memory>
#include <string>

namespace tvxhost::viewport {

/// One OpenGL context of the compatibility profile, made through EGL. Used from one thread.
class GlContext
{
public:
    /// Makes a context and makes it current. First without any surface (software GL is enough), then with a
    /// small pbuffer on the default display. Fails with a sentence that says what is missing.
    static engine::Expected<std::unique_ptr<GlContext>> create();
    ~GlContext();
    GlContext(const GlContext&) = delete;
    GlContext& operator=(const GlContext&) = delete;

    bool makeCurrent() const;
    /// Version and renderer as GL names them; the context must be current.
    std::string description() const;
    /// The largest side of a picture, in pixels; the context must be current.
    int largestSide() const;

private:
    struct Handles;
    explicit GlContext(std::unique_ptr<Handles> handles);
    std::unique_ptr<Handles> m_handles;
};

} // namespace tvxhost::viewport
