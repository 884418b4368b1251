// GlBalance: compares and repairs the depths of GL's stacks.
#include "glBalance.h"

#include <GL/gl.h>

#include <cstdlib>

namespace tvxhost::viewport {

namespace {

int depthOf(GLenum stack)
{
    GLint depth = -1;
    glGetIntegerv(stack, &depth);
    return depth;
}

/// Takes all pending errors; the first of them, or GL_NO_ERROR.
GLenum takeErrors()
{
    const GLenum first = glGetError();
    // A lost context answers with an error for ever: do not wait for its end.
    for (int i = 0; i < 32 && glGetError() != GL_NO_ERROR; ++i) {
    }
    return first;
}

const char* errorName(GLenum error)
{
    switch (error) {
    case GL_INVALID_ENUM:
        return "GL_INVALID_ENUM";
    case GL_INVALID_VALUE:
        return "GL_INVALID_VALUE";
    case GL_INVALID_OPERATION:
        return "GL_INVALID_OPERATION";
    case GL_STACK_OVERFLOW:
        return "GL_STACK_OVERFLOW";
    case GL_STACK_UNDERFLOW:
        return "GL_STACK_UNDERFLOW";
    case GL_OUT_OF_MEMORY:
        return "GL_OUT_OF_MEMORY";
    default:
        return "a GL error";
    }
}

/// Between glBegin and glEnd nothing can be asked.
bool isInsideBegin()
{
    return depthOf(GL_MODELVIEW_STACK_DEPTH) < 0;
}

void add(std::string& list, const std::string& complaint)
{
    list += (list.empty() ? "" : ", ") + complaint;
}

struct Stack
{
    const char* name;
    GLenum depth;
    void (*push)();
    void (*pop)();
};

void pushModelView()
{
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
}
void popModelView()
{
    glMatrixMode(GL_MODELVIEW);
    glPopMatrix();
}
void pushProjection()
{
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
}
void popProjection()
{
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
}
void pushAttributes()
{
    glPushAttrib(GL_CURRENT_BIT);
}
void pushClientAttributes()
{
    glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
}

constexpr Stack kModelView{"model-view", GL_MODELVIEW_STACK_DEPTH, pushModelView, popModelView};
constexpr Stack kProjection{"projection", GL_PROJECTION_STACK_DEPTH, pushProjection, popProjection};
constexpr Stack kAttributes{"attribute", GL_ATTRIB_STACK_DEPTH, pushAttributes, glPopAttrib};
constexpr Stack kClientAttributes{"client attribute", GL_CLIENT_ATTRIB_STACK_DEPTH, pushClientAttributes,
                                  glPopClientAttrib};

void restore(const Stack& stack, int wanted, std::string& complaints)
{
    const int surplus = depthOf(stack.depth) - wanted;
    if (surplus == 0)
        return;
    add(complaints, std::string(stack.name) + " stack " + std::to_string(std::abs(surplus)) +
                        (surplus > 0 ? " too deep" : " too shallow"));
    for (int i = 0; i < surplus; ++i)
        stack.pop();
    for (int i = surplus; i < 0; ++i)
        stack.push();
}

std::array<double, 16> projectionMatrix()
{
    std::array<double, 16> matrix{};
    glGetDoublev(GL_PROJECTION_MATRIX, matrix.data());
    return matrix;
}

void restoreProjection(const std::array<double, 16>& wanted, std::string& complaints)
{
    if (projectionMatrix() == wanted)
        return;
    add(complaints, "projection matrix changed");
    glMatrixMode(GL_PROJECTION);
    glLoadMatrixd(wanted.data());
}

} // namespace

GlBalance::GlBalance()
    : m_modelView(depthOf(GL_MODELVIEW_STACK_DEPTH)), m_projection(depthOf(GL_PROJECTION_STACK_DEPTH)),
      m_attributes(depthOf(GL_ATTRIB_STACK_DEPTH)), m_clientAttributes(depthOf(GL_CLIENT_ATTRIB_STACK_DEPTH)),
      m_projectionMatrix(projectionMatrix())
{
    takeErrors();
}

std::string GlBalance::checkAndRepair() const
{
    std::string complaints;
    if (isInsideBegin()) {
        glEnd();
        takeErrors();
        add(complaints, "glBegin without glEnd");
    }
    if (const GLenum error = takeErrors(); error != GL_NO_ERROR)
        add(complaints, errorName(error));
    restore(kModelView, m_modelView, complaints);
    restore(kProjection, m_projection, complaints);
    restore(kAttributes, m_attributes, complaints);
    restore(kClientAttributes, m_clientAttributes, complaints);
    restoreProjection(m_projectionMatrix, complaints);
    glMatrixMode(GL_MODELVIEW);
    return complaints;
}

} // namespace tvxhost::viewport
