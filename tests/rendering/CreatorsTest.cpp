// The creators that Maya makes instances with. A program of its own: it lets allocations fail.
#include "rendering/tvxCrowdGetUserData3Delight.h"
#include "rendering/tvxCrowdGetUserDataVRay.h"
#include "rendering/tvxCrowdHSLShaderVRay.h"
#include "rendering/tvxCrowdProxyRendermanStudio.h"
#include "rendering/tvxCrowdProxyVRay.h"
#include "rendering/tvxCrowdRenderManagerNode.h"
#include "rendering/tvxCrowdSwitchShader3Delight.h"
#include "rendering/tvxCrowdSwitchShaderVRay.h"

#include "FailingAllocation.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <utility>

namespace tarvox::crowd {
namespace {

using Creator = std::pair<const char*, void* (*)()>;

class Creators : public testing::TestWithParam<Creator>
{
protected:
    static std::unique_ptr<MPxNode> create()
    {
        return std::unique_ptr<MPxNode>(static_cast<MPxNode*>(GetParam().second()));
    }
};

TEST_P(Creators, MakeANewInstanceEachTime)
{
    const std::unique_ptr<MPxNode> first = create();
    const std::unique_ptr<MPxNode> second = create();
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first, second);
}

TEST_P(Creators, MakeNothingWithoutMemoryAndThrowNothing)
{
    bool threw = false;
    std::unique_ptr<MPxNode> node;
    {
        const test::FailingAllocation none;
        try {
            node = create();
        } catch (const std::bad_alloc&) {
            threw = true;
        }
    }
    EXPECT_FALSE(threw);
    EXPECT_EQ(node, nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    OfEachType, Creators,
    testing::Values(Creator{"CrowdRenderManagerNode", &CrowdRenderManagerNode::creator},
                    Creator{"CrowdProxyVRay", &CrowdProxyVRay::creator},
                    Creator{"CrowdProxyRendermanStudio", &CrowdProxyRendermanStudio::creator},
                    Creator{"CrowdSwitchShaderVRay", &CrowdSwitchShaderVRay::creator},
                    Creator{"CrowdHSLShaderVRay", &CrowdHSLShaderVRay::creator},
                    Creator{"CrowdGetUserDataVRay", &CrowdGetUserDataVRay::creator},
                    Creator{"CrowdSwitchShader3Delight", &CrowdSwitchShader3Delight::creator},
                    Creator{"CrowdGetUserData3Delight", &CrowdGetUserData3Delight::creator}),
    [](const auto& instance) { return instance.param.first; });

} // namespace
} // namespace tarvox::crowd
