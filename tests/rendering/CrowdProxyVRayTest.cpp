// The V-Ray proxy as a scene has it.
#include "NodeContract.h"
#include "PluginSession.h"
#include "api/support/faults.h"

#include <maya/MDataBlock.h>
#include <maya/MFnDagNode.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MPxNode.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tarvox::crowd {
namespace {

namespace faults = tvxhost::api::faults;

using test::Lines;
using test::PluginSession;
using test::reportOf;
using testing::ElementsAre;

constexpr char kFile[] = "rendering/tvxCrowdProxyVRay.cpp";
constexpr const char* kAttributes[] = {"sceneName", "vrsceneFileDir", "pythonCallback"};

class ProxyVRay : public testing::Test
{
protected:
    // The shape of a new proxy.
    MObject createProxy()
    {
        MFnDagNode transform;
        const MObject made = transform.create("CrowdProxyVRay");
        return made.hasFn(MFn::kTransform) ? MFnDagNode(made, nullptr).child(0) : made;
    }

    static std::string nameOf(const MObject& node)
    {
        return MFnDependencyNode(node, nullptr).name().asChar();
    }

    PluginSession session;
};

TEST_F(ProxyVRay, DeclaresItsAttributes)
{
    ASSERT_TRUE(session.load());
    EXPECT_THAT(test::attributesOf(*session.scene.types().find(std::string("CrowdProxyVRay"))),
                ElementsAre("sceneName scn string none -RW--IS", "vrsceneFileDir vfd string none -RW--IS",
                            "pythonCallback pyc string none -RW--IS"));
    EXPECT_THAT(test::affectsOf(*session.scene.types().find(std::string("CrowdProxyVRay"))), ElementsAre());
}

TEST_F(ProxyVRay, NamesItsShapeUniquely)
{
    ASSERT_TRUE(session.load());
    EXPECT_EQ(nameOf(createProxy()), "crowdProxyVRayShape");
    EXPECT_EQ(nameOf(createProxy()), "crowdProxyVRayShape1");
    EXPECT_EQ(nameOf(createProxy()), "crowdProxyVRayShape2");
}

TEST_F(ProxyVRay, IsCreatedAllTheSameWhenItCannotBeRenamed)
{
    ASSERT_TRUE(session.load());
    faults::failCall("MFnDependencyNode::setName", 1, MStatus(MStatus::kFailure));
    const MObject proxy = createProxy();
    EXPECT_FALSE(proxy.isNull());
    EXPECT_NE(nameOf(proxy), "crowdProxyVRayShape");
}

TEST_F(ProxyVRay, HoldsStringsThatStartEmpty)
{
    ASSERT_TRUE(session.load());
    const MFnDependencyNode proxy(createProxy(), nullptr);
    for (const char* name : kAttributes) {
        MPlug plug = proxy.findPlug(name, true);
        EXPECT_EQ(plug.asString(), "") << name;
        EXPECT_TRUE(plug.setString("/crowds/arena")) << name;
        EXPECT_EQ(plug.asString(), "/crowds/arena") << name;
    }
}

TEST_F(ProxyVRay, ComputesNothing)
{
    ASSERT_TRUE(session.load());
    const MFnDependencyNode proxy(createProxy(), nullptr);
    MPxNode* node = proxy.userNode();
    ASSERT_NE(node, nullptr);
    MDataBlock block = node->_forceCache();
    for (unsigned int i = 0; i < proxy.attributeCount(); ++i) {
        const MPlug plug(proxy.object(), proxy.attribute(i));
        EXPECT_EQ(node->compute(plug, block), MStatus::kUnknownParameter) << plug.name().asChar();
    }
}

// Every step of the initializer, failing in turn.

Lines failedLoad(const char* attribute, const std::string& problem)
{
    const std::string node = "initializePlugin: Problem while registering CrowdProxyVRay node - ";
    return {reportOf("ERROR", kFile, std::string("\"") + attribute + "\"", problem),
            reportOf("ERROR", "global/tvxCrowdRenderPlugin.cpp", "\"registering \" << row.name",
                     node + MStatus(MStatus::kFailure).errorString().asChar())};
}

TEST_F(ProxyVRay, ReportsTheAttributeThatCannotBeCreatedAndCreatesNoOther)
{
    for (std::size_t i = 0; i < std::size(kAttributes); ++i) {
        PluginSession own;
        faults::record(true);
        faults::failCall("MFnTypedAttribute::create", i + 1, MStatus(MStatus::kFailure));
        EXPECT_FALSE(own.load());
        EXPECT_EQ(own.takeReports(), failedLoad(kAttributes[i], "Typed attribute create error"));
        EXPECT_EQ(faults::countOf("MFnTypedAttribute::create"), i + 1);
        EXPECT_EQ(faults::countOf("MPxNode::addAttribute"), i);
    }
}

TEST_F(ProxyVRay, ReportsTheAttributeThatCannotBeAddedAndCreatesNoOther)
{
    for (std::size_t i = 0; i < std::size(kAttributes); ++i) {
        PluginSession own;
        faults::record(true);
        faults::failCall("MPxNode::addAttribute", i + 1, MStatus(MStatus::kFailure));
        EXPECT_FALSE(own.load());
        EXPECT_EQ(own.takeReports(), failedLoad(kAttributes[i], "Add attribute error"));
        EXPECT_EQ(faults::countOf("MFnTypedAttribute::create"), i + 1);
    }
}

TEST_F(ProxyVRay, FailsSilentlyBelowTheFilter)
{
    session.scene.optionVars().set("tvxPrefLogLevelForCrowd_Render", 0);
    faults::failCall("MPxNode::addAttribute", 2, MStatus(MStatus::kFailure));
    EXPECT_FALSE(session.load());
    EXPECT_EQ(session.takeReports(), Lines{});
}

TEST_F(ProxyVRay, DoesNotMindFlagsThatMayaRefuses)
{
    for (const char* setter :
         {"MFnAttribute::setKeyable", "MFnAttribute::setReadable", "MFnAttribute::setWritable",
          "MFnAttribute::setHidden", "MFnAttribute::setArray", "MFnAttribute::setIndexMatters"})
        faults::failCall(setter, 0, MStatus(MStatus::kFailure));
    EXPECT_TRUE(session.load());
    EXPECT_EQ(session.takeReports().size(), 1u);
}

} // namespace
} // namespace tarvox::crowd
