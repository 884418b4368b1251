// The locators as a scene has them.
#include "NodeTest.h"
#include "api/support/faults.h"

#include <maya/MFnDependencyNode.h>
#include <maya/MPxLocatorNode.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace tarvox::crowd {
namespace {

namespace faults = tvxhost::api::faults;

using testing::IsEmpty;

struct Locator
{
    const char* type;
    const char* shape;
};

void PrintTo(const Locator& locator, std::ostream* text)
{
    *text << locator.type;
}

class LocatorNode : public test::NodeTest, public testing::WithParamInterface<Locator>
{
protected:
    static MObject create() { return createShape(GetParam().type); }
};

TEST_P(LocatorNode, NamesItsShapeUniquely)
{
    const std::string name = GetParam().shape;
    EXPECT_EQ(nameOf(create()), name);
    EXPECT_EQ(nameOf(create()), name + "1");
    EXPECT_EQ(nameOf(create()), name + "2");
}

TEST_P(LocatorNode, IsCreatedAllTheSameWhenItCannotBeRenamed)
{
    faults::failCall("MFnDependencyNode::setName", 1, MStatus(MStatus::kFailure));
    const MObject locator = create();
    EXPECT_FALSE(locator.isNull());
    EXPECT_NE(nameOf(locator), GetParam().shape);
}

TEST_P(LocatorNode, ComputesNothing)
{
    const MObject locator = create();
    for (const MPlug& plug : plugsOf(locator))
        EXPECT_EQ(compute(locator, plug), MStatus::kUnknownParameter) << plug.name().asChar();
}

TEST_P(LocatorNode, IsUnbounded)
{
    const auto* code = dynamic_cast<MPxLocatorNode*>(MFnDependencyNode(create(), nullptr).userNode());
    ASSERT_NE(code, nullptr);
    EXPECT_FALSE(code->isBounded());
}

INSTANTIATE_TEST_SUITE_P(OfEachType, LocatorNode,
                         testing::Values(Locator{"CrowdRenderManagerNode", "crowdRenderManagerNodeShape"},
                                         Locator{"CrowdProxyVRay", "crowdProxyVRayShape"},
                                         Locator{"CrowdProxyRendermanStudio", "crowdProxyRMSShape"}),
                         [](const auto& instance) { return instance.param.type; });

class ProxyNode : public test::NodeTest
{
};

TEST_F(ProxyNode, HoldsStringsThatStartEmpty)
{
    const auto expectStrings = [](const MObject& proxy, const std::vector<const char*>& names) {
        for (const char* name : names) {
            MPlug plug = plugOf(proxy, name);
            EXPECT_EQ(plug.asString(), "") << name;
            EXPECT_TRUE(plug.setString("/crowds/arena")) << name;
            EXPECT_EQ(plug.asString(), "/crowds/arena") << name;
        }
    };
    expectStrings(createShape("CrowdProxyVRay"), {"sceneName", "vrsceneFileDir", "pythonCallback"});
    expectStrings(createShape("CrowdProxyRendermanStudio"), {"sceneName", "ribFileDir"});
}

TEST_F(ProxyNode, HoldsAFrameAndAFrameRateThatStartAtZero)
{
    const MObject proxy = createShape("CrowdProxyRendermanStudio");
    MPlug frame = plugOf(proxy, "frame");
    EXPECT_EQ(frame.asInt(), 0);
    EXPECT_TRUE(frame.setInt(-2147483647));
    EXPECT_EQ(frame.asInt(), -2147483647);
    MPlug rate = plugOf(proxy, "frameRate");
    EXPECT_EQ(rate.asDouble(), 0.0);
    EXPECT_TRUE(rate.setDouble(23.976));
    EXPECT_EQ(rate.asDouble(), 23.976);
}

} // namespace
} // namespace tarvox::crowd
