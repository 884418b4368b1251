// GlContext: EGL without a display, or with a pbuffer on the default one.
#include "glContext.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GL/gl.h>
#include <GL/glext.h>

#include <algorithm>
#include <cstring>

namespace tvxhost::viewport {

using engine::Expected;
using engine::Outcome;
using engine::Reason;

struct GlContext::Handles
{
    EGLDisplay display = EGL_NO_DISPLAY;
    EGLSurface surface = EGL_NO_SURFACE;
    EGLContext context = EGL_NO_CONTEXT;

    ~Handles()
    {
        if (display == EGL_NO_DISPLAY)
            return;
        eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
        if (context != EGL_NO_CONTEXT)
            eglDestroyContext(display, context);
        if (surface != EGL_NO_SURFACE)
            eglDestroySurface(display, surface);
        // The display stays initialised: EGL has one for the process, and the next context uses it again.
    }
};

namespace {

constexpr const char* kAdvice = "; install Mesa's software driver (Debian: libegl-mesa0 libgl1-mesa-dri)";

bool contains(const char* extensions, const char* wanted)
{
    return extensions && std::strstr(extensions, wanted);
}

EGLDisplay surfacelessDisplay()
{
    if (!contains(eglQueryString(EGL_NO_DISPLAY, EGL_EXTENSIONS), "EGL_MESA_platform_surfaceless"))
        return EGL_NO_DISPLAY;
    const auto get =
        reinterpret_cast<PFNEGLGETPLATFORMDISPLAYEXTPROC>(eglGetProcAddress("eglGetPlatformDisplayEXT"));
    return get ? get(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr) : EGL_NO_DISPLAY;
}

EGLConfig chooseConfig(EGLDisplay display)
{
    const EGLint wanted[] = {EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT, EGL_SURFACE_TYPE, EGL_PBUFFER_BIT,
                             EGL_NONE};
    EGLConfig config = nullptr;
    EGLint count = 0;
    if (!eglChooseConfig(display, wanted, &config, 1, &count) || count == 0)
        return nullptr;
    return config;
}

/// Fills the handles on a display; the outcome names the step that failed.
template <class Handles>
Outcome start(Handles& handles, EGLDisplay display)
{
    if (display == EGL_NO_DISPLAY)
        return {Reason::failed, "EGL offers no display"};
    if (!eglInitialize(display, nullptr, nullptr))
        return {Reason::failed, "EGL cannot be initialised"};
    handles.display = display;
    if (!eglBindAPI(EGL_OPENGL_API))
        return {Reason::failed, "EGL offers no desktop OpenGL"};
    const EGLConfig config = chooseConfig(display);
    if (!config)
        return {Reason::failed, "EGL has no configuration for off-screen OpenGL"};
    handles.context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
    if (handles.context == EGL_NO_CONTEXT)
        return {Reason::failed, "EGL cannot make an OpenGL compatibility context"};
    if (!contains(eglQueryString(display, EGL_EXTENSIONS), "EGL_KHR_surfaceless_context")) {
        const EGLint size[] = {EGL_WIDTH, 16, EGL_HEIGHT, 16, EGL_NONE};
        handles.surface = eglCreatePbufferSurface(display, config, size);
    }
    if (!eglMakeCurrent(display, handles.surface, handles.surface, handles.context))
        return {Reason::failed, "EGL cannot make its OpenGL context current"};
    return {};
}

std::string glText(GLenum name)
{
    const GLubyte* text = glGetString(name);
    return text ? reinterpret_cast<const char*>(text) : "";
}

} // namespace

GlContext::GlContext(std::unique_ptr<Handles> handles) : m_handles(std::move(handles)) {}

GlContext::~GlContext() = default;

Expected<std::unique_ptr<GlContext>> GlContext::create()
{
    auto handles = std::make_unique<Handles>();
    Outcome outcome = start(*handles, surfacelessDisplay());
    if (!outcome) {
        handles = std::make_unique<Handles>();
        outcome = start(*handles, eglGetDisplay(EGL_DEFAULT_DISPLAY));
    }
    if (!outcome)
        return Outcome(Reason::failed, "no OpenGL: " + outcome.text + kAdvice);
    return std::unique_ptr<GlContext>(new GlContext(std::move(handles)));
}

bool GlContext::makeCurrent() const
{
    const Handles& h = *m_handles;
    return eglMakeCurrent(h.display, h.surface, h.surface, h.context) == EGL_TRUE;
}

std::string GlContext::description() const
{
    return glText(GL_VERSION) + ", " + glText(GL_RENDERER);
}

int GlContext::largestSide() const
{
    GLint buffer = 0;
    GLint viewport[2] = {0, 0};
    glGetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &buffer);
    glGetIntegerv(GL_MAX_VIEWPORT_DIMS, viewport);
    return std::min({buffer, viewport[0], viewport[1]});
}

} // namespace tvxhost::viewport
