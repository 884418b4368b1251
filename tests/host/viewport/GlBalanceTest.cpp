// Foreign drawing code that leaves GL unbalanced is found out, and GL is put right.
#include "viewport/glBalance.h"
#include "viewport/frameBuffer.h"
#include "viewport/glContext.h"

#include <GL/gl.h>
#include <gtest/gtest.h>

namespace {

using tvxhost::viewport::FrameBuffer;
using tvxhost::viewport::GlBalance;
using tvxhost::viewport::GlContext;

class GlBalanceTest : public testing::Test
{
protected:
    void SetUp() override
    {
        auto made = GlContext::create();
        ASSERT_TRUE(made) << made.outcome.text;
        m_context = std::move(made.value);
        m_buffer = std::move(FrameBuffer::create(8, 8, m_context->largestSide()).value);
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix(); // so that too many pops stay inside the stack
        glPushAttrib(GL_CURRENT_BIT);
    }

    /// Expects that nothing is left to complain about.
    void expectRepaired(const GlBalance& balance)
    {
        EXPECT_EQ(balance.checkAndRepair(), "");
        GLint mode = 0;
        glGetIntegerv(GL_MATRIX_MODE, &mode);
        EXPECT_EQ(mode, GL_MODELVIEW);
    }

    std::unique_ptr<GlContext> m_context;
    std::unique_ptr<FrameBuffer> m_buffer; ///< GL has nowhere else to draw to
};

TEST_F(GlBalanceTest, BalancedDrawingIsLeftAlone)
{
    const GlBalance balance;
    glPushMatrix();
    glPushAttrib(GL_ALL_ATTRIB_BITS);
    glBegin(GL_LINES);
    glVertex3d(0, 0, 0);
    glVertex3d(1, 0, 0);
    glEnd();
    glPopAttrib();
    glPopMatrix();
    expectRepaired(balance);
}

TEST_F(GlBalanceTest, MatricesThatStayBehindAreCounted)
{
    const GlBalance balance;
    glPushMatrix();
    glPushMatrix();
    EXPECT_EQ(balance.checkAndRepair(), "model-view stack 2 too deep");
    expectRepaired(balance);
}

TEST_F(GlBalanceTest, MatricesThatWereTakenAreCounted)
{
    const GlBalance balance;
    glPopMatrix();
    EXPECT_EQ(balance.checkAndRepair(), "model-view stack 1 too shallow");
    expectRepaired(balance);
}

TEST_F(GlBalanceTest, EveryStackIsWatched)
{
    const GlBalance balance;
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glPopAttrib();
    glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
    EXPECT_EQ(balance.checkAndRepair(), "projection stack 1 too deep, "
                                        "attribute stack 1 too shallow, "
                                        "client attribute stack 1 too deep");
    expectRepaired(balance);
}

TEST_F(GlBalanceTest, TheProjectionIsPutBack)
{
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glScaled(0.5, 0.25, 1);
    const GlBalance balance;
    glLoadIdentity();
    EXPECT_EQ(balance.checkAndRepair(), "projection matrix changed");
    expectRepaired(balance);
    GLdouble matrix[16] = {};
    glGetDoublev(GL_PROJECTION_MATRIX, matrix);
    EXPECT_EQ(matrix[0], 0.5);
    EXPECT_EQ(matrix[5], 0.25);
    EXPECT_EQ(matrix[10], 1);
}

TEST_F(GlBalanceTest, AnOpenBeginIsClosed)
{
    const GlBalance balance;
    glBegin(GL_LINES);
    EXPECT_EQ(balance.checkAndRepair(), "glBegin without glEnd");
    expectRepaired(balance);
}

TEST_F(GlBalanceTest, ErrorsAreNamed)
{
    const struct
    {
        const char* name;
        void (*mistake)();
    } rows[] = {{"GL_INVALID_ENUM", [] { glEnable(GL_LINES); }}, // not a capability
                {"GL_INVALID_VALUE", [] { glLineWidth(-1); }},
                {"GL_INVALID_OPERATION", [] { glEnd(); }},
                {"GL_STACK_UNDERFLOW", [] {
                     glMatrixMode(GL_PROJECTION);
                     glPopMatrix();
                 }}};
    for (const auto& row : rows) {
        const GlBalance balance;
        row.mistake();
        EXPECT_EQ(balance.checkAndRepair(), row.name);
        expectRepaired(balance);
    }
}

TEST_F(GlBalanceTest, AStackThatIsFullIsEmptiedAgain)
{
    const GlBalance balance;
    GLint depth = 0;
    GLint most = 0;
    glGetIntegerv(GL_MODELVIEW_STACK_DEPTH, &depth);
    glGetIntegerv(GL_MAX_MODELVIEW_STACK_DEPTH, &most);
    for (int i = 0; i < most; ++i)
        glPushMatrix();
    EXPECT_EQ(balance.checkAndRepair(),
              "GL_STACK_OVERFLOW, model-view stack " + std::to_string(most - depth) + " too deep");
    expectRepaired(balance);
}

TEST_F(GlBalanceTest, ErrorsFromBeforeAreNotHeldAgainstIt)
{
    glEnable(GL_LINES);
    const GlBalance balance;
    expectRepaired(balance);
}

} // namespace
