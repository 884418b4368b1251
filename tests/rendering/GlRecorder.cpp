// The GL functions, defined in the test program itself: they come before those of the system's library.
#include "GlRecorder.h"

#include "api/support/faults.h"

#include <GL/gl.h>

#include <iomanip>
#include <limits>
#include <sstream>

namespace tarvox::crowd::test {

namespace {

GlRecorder* current = nullptr;

// A call as it would be written; floats with all the digits that tell them apart.
template <class... Arguments>
void note(const char* function, Arguments... arguments)
{
    if (!current)
        return;
    std::ostringstream text;
    text << std::setprecision(std::numeric_limits<float>::max_digits10) << function << "(";
    [[maybe_unused]] const char* separator = "";
    ((text << separator << arguments, separator = ", "), ...);
    text << ")";
    current->add(text.str());
}

std::string mode(GLenum value)
{
    return value == GL_LINES ? "GL_LINES" : std::to_string(value);
}

std::string bits(GLbitfield value)
{
    return value == GL_ALL_ATTRIB_BITS ? "GL_ALL_ATTRIB_BITS" : std::to_string(value);
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
void glPushAttrib(GLbitfield value)
{
    note("glPushAttrib", bits(value));
}
void glPopAttrib()
{
    note("glPopAttrib");
}

} // extern "C"

} // namespace tarvox::crowd::test
