// Off-screen pictures: any size that GL can do, rows from the top.
#include "viewport/frameBuffer.h"
#include "viewport/glContext.h"

#include <GL/gl.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost;
using viewport::FrameBuffer;
using viewport::GlContext;
using viewport::Rgb;

class FrameBufferTest : public testing::Test
{
protected:
    void SetUp() override
    {
        auto made = GlContext::create();
        ASSERT_TRUE(made) << made.outcome.text;
        m_context = std::move(made.value);
    }

    std::unique_ptr<GlContext> m_context;
};

TEST_F(FrameBufferTest, TheContextHasTheCompatibilityProfile)
{
    const auto buffer = FrameBuffer::create(2, 2, m_context->largestSide());
    EXPECT_NE(m_context->description(), ", ");
    glBegin(GL_POINTS);
    glEnd();
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(FrameBufferTest, CanBeOnePixelOrVeryLarge)
{
    for (const auto& [width, height] : {std::pair{1, 1}, {8192, 1}, {1, 8192}, {8192, 8192}}) {
        const auto buffer = FrameBuffer::create(width, height, m_context->largestSide());
        ASSERT_TRUE(buffer) << buffer.outcome.text;
        glClearColor(1, 0.5f, 0, 1);
        glClear(GL_COLOR_BUFFER_BIT);
        const viewport::Picture picture = buffer.value->read();
        EXPECT_EQ(picture.at(0, 0), (Rgb{255, 128, 0}));
        EXPECT_EQ(picture.at(width - 1, height - 1), (Rgb{255, 128, 0}));
    }
}

TEST_F(FrameBufferTest, IsReadFromTheTopDown)
{
    const auto buffer = FrameBuffer::create(4, 3, m_context->largestSide());
    ASSERT_TRUE(buffer);
    glClearColor(0, 0, 0, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    glEnable(GL_SCISSOR_TEST);
    glScissor(1, 2, 1, 1); // GL counts rows from the bottom
    glClearColor(1, 1, 1, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    glDisable(GL_SCISSOR_TEST);
    const viewport::Picture picture = buffer.value->read();
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(picture.at(x, y)[0], x == 1 && y == 0 ? 255 : 0) << x << "," << y;
    }
}

TEST_F(FrameBufferTest, OfTwoRowsEachIsInItsPlace)
{
    const auto buffer = FrameBuffer::create(1, 2, m_context->largestSide());
    ASSERT_TRUE(buffer);
    glClearColor(0, 0, 0, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    glEnable(GL_SCISSOR_TEST);
    glScissor(0, 0, 1, 1); // the lower one
    glClearColor(1, 1, 1, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    glDisable(GL_SCISSOR_TEST);
    EXPECT_EQ(buffer.value->read().bytes, (std::vector<std::uint8_t>{0, 0, 0, 255, 255, 255}));
}

TEST_F(FrameBufferTest, OfASizeThatGlCannotDoIsRefused)
{
    EXPECT_EQ(FrameBuffer::create(0, 10, 8192).outcome.text, "a picture of 0x10 has no pixels");
    EXPECT_EQ(FrameBuffer::create(10, 0, 8192).outcome.text, "a picture of 10x0 has no pixels");
    EXPECT_EQ(FrameBuffer::create(10, 8193, 8192).outcome.text,
              "a picture of 10x8193 is larger than OpenGL can draw here, at most 8192x8192");
    EXPECT_EQ(FrameBuffer::create(8193, 10, 8192).outcome.text,
              "a picture of 8193x10 is larger than OpenGL can draw here, at most 8192x8192");
}

TEST_F(FrameBufferTest, ContextsMayFollowEachOther)
{
    for (int i = 0; i < 3; ++i) {
        m_context.reset();
        auto made = GlContext::create();
        ASSERT_TRUE(made) << made.outcome.text;
        m_context = std::move(made.value);
        EXPECT_TRUE(m_context->makeCurrent());
    }
}

} // namespace
