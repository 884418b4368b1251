// How the locators leave OpenGL, in a real context: as they found it.
#include "rendering/tvxCrowdProxyRendermanStudio.h"
#include "rendering/tvxCrowdProxyVRay.h"
#include "rendering/tvxCrowdRenderManagerNode.h"
#include "viewport/frameBuffer.h"
#include "viewport/glContext.h"

#include <maya/M3dView.h>
#include <maya/MDagPath.h>

#include <GL/gl.h>
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tarvox::crowd {
namespace {

using tvxhost::viewport::FrameBuffer;
using tvxhost::viewport::GlContext;

// All that a drawing might change and forget.
std::vector<float> stateOfGl()
{
    std::vector<float> state;
    for (const GLenum name :
         {GL_MODELVIEW_STACK_DEPTH, GL_PROJECTION_STACK_DEPTH, GL_ATTRIB_STACK_DEPTH, GL_MODELVIEW_MATRIX,
          GL_PROJECTION_MATRIX, GL_MATRIX_MODE, GL_CURRENT_COLOR, GL_CURRENT_NORMAL, GL_POLYGON_MODE,
          GL_BLEND, GL_DEPTH_WRITEMASK, GL_LINE_WIDTH, GL_LIGHTING}) {
        std::array<GLfloat, 16> values{};
        glGetFloatv(name, values.data());
        state.insert(state.end(), values.begin(), values.end());
    }
    return state;
}

class LocatorState : public testing::TestWithParam<std::pair<const char*, void* (*)()>>
{
protected:
    void SetUp() override
    {
        auto made = GlContext::create();
        ASSERT_TRUE(made) << made.outcome.text;
        m_context = std::move(made.value);
        m_buffer = std::move(FrameBuffer::create(16, 16, m_context->largestSide()).value);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glTranslatef(3, 2, 1);
        glColor4f(0.25f, 0.5f, 0.75f, 0.5f);
        glLineWidth(2);
        ASSERT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    }

    std::unique_ptr<GlContext> m_context;
    std::unique_ptr<FrameBuffer> m_buffer; // GL has nowhere else to draw to
};

TEST_P(LocatorState, IsLeftAsItWas)
{
    const std::unique_ptr<MPxLocatorNode> locator(static_cast<MPxLocatorNode*>(GetParam().second()));
    M3dView view;
    const MDagPath path;
    const std::vector<float> before = stateOfGl();
    for (const auto status :
         {M3dView::kDormant, M3dView::kActive, M3dView::kLead, M3dView::kTemplate, M3dView::kHilite}) {
        locator->draw(view, path, M3dView::kWireFrame, status);
        EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR)) << status;
        EXPECT_EQ(stateOfGl(), before) << status;
    }
}

INSTANTIATE_TEST_SUITE_P(
    OfEachType, LocatorState,
    testing::Values(std::pair{"CrowdRenderManagerNode", &CrowdRenderManagerNode::creator},
                    std::pair{"CrowdProxyVRay", &CrowdProxyVRay::creator},
                    std::pair{"CrowdProxyRendermanStudio", &CrowdProxyRendermanStudio::creator}),
    [](const auto& instance) { return instance.param.first; });

} // namespace
} // namespace tarvox::crowd
