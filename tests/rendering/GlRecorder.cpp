// The GL functions, defined in the test program itself: they come before those of the system's library.
#include "GlRecorder.h"

#include "api/support/faults.h"

#include <GL/gl.h>

namespace tarvox::crowd::test {

namespace {

GlRecorder* current = nullptr;

// A call as it would be written; nothing is written down while no recorder lives.
template <class... Arguments>
void note(const char* function, Arguments... arguments)
{
    if (current)
        current->add(glCall(function, arguments...));
}

/// A GL constant and its name.
struct Name
{
    unsigned int value;
    const char* text;
};

template <std::size_t count>
std::string nameIn(const Name (&names)[count], unsigned int value)
{
    for (const Name& name : names)
        if (name.value == value)
            return name.text;
    return std::to_string(value);
}

// Numbers are reused in GL: each kind of argument has names of its own.
std::string mode(GLenum value)
{
    static constexpr Name names[] = {
        {GL_LINES, "GL_LINES"},     {GL_LINE_LOOP, "GL_LINE_LOOP"},
        {GL_QUADS, "GL_QUADS"},     {GL_QUAD_STRIP, "GL_QUAD_STRIP"},
        {GL_POLYGON, "GL_POLYGON"}, {GL_TRIANGLE_FAN, "GL_TRIANGLE_FAN"},
    };
    return nameIn(names, value);
}

std::string bits(GLbitfield value)
{
    static constexpr Name names[] = {
        {GL_ALL_ATTRIB_BITS, "GL_ALL_ATTRIB_BITS"},
        {GL_CURRENT_BIT, "GL_CURRENT_BIT"},
        {GL_POLYGON_BIT, "GL_POLYGON_BIT"},
    };
    return nameIn(names, value);
}

std::string constant(GLenum value)
{
    static constexpr Name names[] = {
        {GL_BLEND, "GL_BLEND"},
        {GL_SRC_ALPHA, "GL_SRC_ALPHA"},
        {GL_ONE_MINUS_SRC_ALPHA, "GL_ONE_MINUS_SRC_ALPHA"},
        {GL_FRONT_AND_BACK, "GL_FRONT_AND_BACK"},
        {GL_FILL, "GL_FILL"},
        {GL_LINE, "GL_LINE"},
    };
    return nameIn(names, value);
}

std::string boolean(GLboolean value)
{
    return value ? "GL_TRUE" : "GL_FALSE";
}

} // namespace

GlRecorder::GlRecorder()
{
    current = this;
    tvxhost::api::faults::record(true);
}

GlRecorder::~GlRecorder()
{
    tvxhost::api::faults::clear();
    current = nullptr;
}

const std::vector<std::string>& GlRecorder::calls()
{
    addApiCalls();
    return m_calls;
}

void GlRecorder::add(const std::string& call)
{
    addApiCalls();
    m_calls.push_back(call);
}

void GlRecorder::addApiCalls()
{
    const std::vector<std::string> calls = tvxhost::api::faults::calls();
    for (; m_apiCalls < calls.size(); ++m_apiCalls)
        m_calls.push_back(calls[m_apiCalls]);
}

extern "C" {

void glBegin(GLenum value)
{
    note("glBegin", mode(value));
}
void glEnd()
{
    note("glEnd");
}
void glVertex3f(GLfloat x, GLfloat y, GLfloat z)
{
    note("glVertex3f", x, y, z);
}
void glVertex3d(GLdouble x, GLdouble y, GLdouble z)
{
    note("glVertex3d", x, y, z);
}
void glNormal3f(GLfloat x, GLfloat y, GLfloat z)
{
    note("glNormal3f", x, y, z);
}
void glColor3f(GLfloat r, GLfloat g, GLfloat b)
{
    note("glColor3f", r, g, b);
}
void glColor4f(GLfloat r, GLfloat g, GLfloat b, GLfloat a)
{
    note("glColor4f", r, g, b, a);
}
void glPushMatrix()
{
    note("glPushMatrix");
}
void glPopMatrix()
{
    note("glPopMatrix");
}
void glTranslatef(GLfloat x, GLfloat y, GLfloat z)
{
    note("glTranslatef", x, y, z);
}
void glRotatef(GLfloat angle, GLfloat x, GLfloat y, GLfloat z)
{
    note("glRotatef", angle, x, y, z);
}
void glScalef(GLfloat x, GLfloat y, GLfloat z)
{
    note("glScalef", x, y, z);
}
void glPushAttrib(GLbitfield value)
{
    note("glPushAttrib", bits(value));
}
void glPopAttrib()
{
    note("glPopAttrib");
}
void glPolygonMode(GLenum face, GLenum value)
{
    note("glPolygonMode", constant(face), constant(value));
}
void glEnable(GLenum capability)
{
    note("glEnable", constant(capability));
}
void glDisable(GLenum capability)
{
    note("glDisable", constant(capability));
}
void glBlendFunc(GLenum source, GLenum destination)
{
    note("glBlendFunc", constant(source), constant(destination));
}
void glDepthMask(GLboolean value)
{
    note("glDepthMask", boolean(value));
}

} // extern "C"

} // namespace tarvox::crowd::test
