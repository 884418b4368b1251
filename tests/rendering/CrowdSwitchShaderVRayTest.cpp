// The V-Ray shader switch as a scene has it.
#include "NodeContract.h"
#include "PluginSession.h"
#include "api/support/faults.h"

#include <maya/MDGModifier.h>
#include <maya/MDataBlock.h>
#include <maya/MDataHandle.h>
#include <maya/MFloatVector.h>
#include <maya/MFnAttribute.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MPxNode.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvox::crowd {
namespace {

namespace engine = tvxhost::engine;
namespace faults = tvxhost::api::faults;

using test::Lines;
using test::PluginSession;
using test::reportOf;
using testing::ElementsAre;

constexpr char kFile[] = "rendering/tvxCrowdSwitchShaderVRay.cpp";

using Color = std::vector<float>;
const Color kOrange{1.0f, 0.45f, 0.0f};
const Color kTeal{0.0f, 0.5f, 0.25f};

class SwitchShaderVRay : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(session.load());
        session.takeReports();
        node = create();
    }

    static MObject create() { return MFnDependencyNode().create("CrowdSwitchShaderVRay"); }

    static MPlug plugOf(const MObject& node, const char* name)
    {
        return MFnDependencyNode(node, nullptr).findPlug(name, true);
    }
    MPlug plug(const char* name) const { return plugOf(node, name); }

    static Color colorOf(const MPlug& plug)
    {
        return {plug.child(0).asFloat(), plug.child(1).asFloat(), plug.child(2).asFloat()};
    }
    static void setColor(const MPlug& plug, const Color& color)
    {
        for (unsigned int i = 0; i < 3; ++i)
            EXPECT_TRUE(plug.child(i).setFloat(color[i]));
    }

    bool isOutputDirty()
    {
        const std::string name = MFnDependencyNode(node, nullptr).name().asChar();
        return engine::isDirty(session.scene.findPlug(name + ".output").value);
    }

    PluginSession session;
    MObject node;
};

TEST_F(SwitchShaderVRay, DeclaresItsAttributes)
{
    const auto color = [](const std::string& name, const std::string& brief, const char* flags) {
        std::string children;
        for (const char* child : {"R/r 1", "G/g 0.45", "B/b 0"}) {
            const std::string part = child;
            children += (children.empty() ? "" : " ") + name + part[0] + "/" + brief + part.substr(2);
        }
        return name + " " + brief + " float3 colour (" + children + ") " + flags;
    };
    Lines expected = {color("output", "op", "-R---I-"), "selector sel long 0 KRW--IS",
                      "startOffset sto long 0 KRW--IS", color("default", "def", "KRW--IS")};
    for (const std::string number : {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"})
        expected.push_back(color("shader" + number, "sh" + number, "KRW--IS"));
    EXPECT_EQ(test::attributesOf(*session.scene.types().find(std::string("CrowdSwitchShaderVRay"))),
              expected);
}

TEST_F(SwitchShaderVRay, DeclaresWhatAffectsTheOutput)
{
    EXPECT_THAT(test::affectsOf(*session.scene.types().find(std::string("CrowdSwitchShaderVRay"))),
                ElementsAre("selector output", "startOffset output", "default output", "shader0 output",
                            "shader1 output", "shader2 output", "shader3 output", "shader4 output",
                            "shader5 output", "shader6 output", "shader7 output", "shader8 output",
                            "shader9 output"));
}

TEST_F(SwitchShaderVRay, IsOrangeWhenNew)
{
    EXPECT_EQ(colorOf(plug("output")), kOrange);
}

TEST_F(SwitchShaderVRay, PassesTheFirstShaderThroughWhateverIsSelected)
{
    setColor(plug("shader0"), kTeal);
    for (const int selected : {-5, 0, 3, 9, 10, 1000}) {
        EXPECT_TRUE(plug("selector").setInt(selected));
        EXPECT_EQ(colorOf(plug("output")), kTeal) << selected;
    }
}

TEST_F(SwitchShaderVRay, PassesTheFirstShaderThroughThoughAnotherOneIsConnectedAndSelected)
{
    const MObject source = create();
    setColor(plugOf(source, "shader0"), {0.9f, 0.9f, 0.9f});
    setColor(plug("shader0"), kTeal);
    MDGModifier modifier;
    ASSERT_TRUE(modifier.connect(plugOf(source, "output"), plug("shader3")));
    ASSERT_TRUE(modifier.doIt());
    EXPECT_TRUE(plug("selector").setInt(3));
    EXPECT_EQ(colorOf(plug("shader3")), (Color{0.9f, 0.9f, 0.9f}));
    EXPECT_EQ(colorOf(plug("output")), kTeal);
}

TEST_F(SwitchShaderVRay, PassesAConnectedFirstShaderThrough)
{
    const MObject source = create();
    setColor(plugOf(source, "shader0"), kTeal);
    MDGModifier modifier;
    ASSERT_TRUE(modifier.connect(plugOf(source, "output"), plug("shader0")));
    ASSERT_TRUE(modifier.doIt());
    EXPECT_EQ(colorOf(plug("output")), kTeal);
    setColor(plugOf(source, "shader0"), {0.125f, 0.25f, 0.5f});
    EXPECT_EQ(colorOf(plug("output")), (Color{0.125f, 0.25f, 0.5f}));
}

TEST_F(SwitchShaderVRay, ComputesAllComponentsWhenAskedForOne)
{
    setColor(plug("shader0"), kTeal);
    const MPlug output = plug("output");
    for (unsigned int i = 0; i < 3; ++i) {
        setColor(plug("shader0"), {0.0f, 0.0f, 0.0f});
        MPxNode* code = MFnDependencyNode(node, nullptr).userNode();
        MDataBlock block = code->_forceCache();
        setColor(plug("shader0"), kTeal);
        EXPECT_EQ(code->compute(output.child(i), block), MStatus::kSuccess);
        const MFloatVector& result = block.outputValue(output).asFloatVector();
        EXPECT_EQ((Color{result.x, result.y, result.z}), kTeal) << i;
        EXPECT_FALSE(isOutputDirty());
    }
}

TEST_F(SwitchShaderVRay, AnswersForNoOtherPlugAndTouchesNothing)
{
    const MFnDependencyNode function(node, nullptr);
    MPxNode* code = function.userNode();
    MDataBlock block = code->_forceCache();
    setColor(plug("shader0"), kTeal);
    ASSERT_TRUE(isOutputDirty());
    for (unsigned int i = 0; i < function.attributeCount(); ++i) {
        const MPlug other(node, function.attribute(i));
        const bool isOutput =
            other == plug("output") || (other.isChild() && other.parent() == plug("output"));
        if (isOutput)
            continue;
        EXPECT_EQ(code->compute(other, block), MStatus::kUnknownParameter) << other.name().asChar();
    }
    EXPECT_TRUE(isOutputDirty());
}

TEST_F(SwitchShaderVRay, RunsAgainWhenAnyInputChanges)
{
    std::vector<MPlug> inputs{plug("selector"), plug("startOffset"), plug("defaultR")};
    for (const char* name : {"shader0G", "shader1R", "shader2R", "shader3R", "shader4R", "shader5R",
                             "shader6R", "shader7R", "shader8R", "shader9B"})
        inputs.push_back(plug(name));
    for (MPlug& input : inputs) {
        colorOf(plug("output"));
        ASSERT_FALSE(isOutputDirty());
        EXPECT_TRUE(input.setFloat(1.0f + input.asFloat()));
        EXPECT_TRUE(isOutputDirty()) << input.name().asChar();
    }
}

TEST_F(SwitchShaderVRay, DoesNotLetItsOutputBeSetOrSaved)
{
    EXPECT_FALSE(plug("output").child(0).setFloat(0.5f));
    EXPECT_EQ(colorOf(plug("output")), kOrange);
    const MFnAttribute output(plug("output").attribute(), nullptr);
    EXPECT_FALSE(output.isWritable());
    EXPECT_FALSE(output.isStorable());
}

// Every step of the initializer, failing in turn.

// A step in its order: what Maya is asked to create, and the text of the statement in the source.
struct Step
{
    const char* create;
    std::string statement;
    const char* problem;
};

std::vector<Step> steps()
{
    const char* const kColor = "MFnNumericAttribute::createColor";
    const char* const kNumber = "MFnNumericAttribute::create";
    std::vector<Step> all = {{kColor, "\"output\"", "Color attribute create error"},
                             {kNumber, "\"selector\"", "Numeric attribute create error"},
                             {kNumber, "\"startOffset\"", "Numeric attribute create error"},
                             {kColor, "\"default\"", "Color attribute create error"}};
    for (int i = 0; i < 10; ++i)
        all.push_back({kColor, "shaders[i]", "Color attribute create error"});
    return all;
}

std::size_t createdSoFar()
{
    return faults::countOf("MFnNumericAttribute::createColor") +
           faults::countOf("MFnNumericAttribute::create");
}

Lines failedLoad(const Step& step, const std::string& problem)
{
    const std::string node = "initializePlugin: Problem while registering CrowdSwitchShaderVRay node - ";
    return {reportOf("ERROR", kFile, step.statement, problem),
            reportOf("ERROR", "global/tvxCrowdRenderPlugin.cpp", "\"registering \" << row.name",
                     node + MStatus(MStatus::kFailure).errorString().asChar())};
}

TEST(SwitchShaderVRayFailure, ReportsTheAttributeThatCannotBeCreatedAndCreatesNoOther)
{
    std::size_t colors = 0;
    std::size_t numbers = 0;
    std::size_t before = 0;
    for (const Step& step : steps()) {
        std::size_t& kind = step.create == std::string("MFnNumericAttribute::create") ? numbers : colors;
        PluginSession session;
        faults::record(true);
        faults::failCall(step.create, ++kind, MStatus(MStatus::kFailure));
        EXPECT_FALSE(session.load());
        EXPECT_EQ(session.takeReports(), failedLoad(step, step.problem));
        EXPECT_EQ(createdSoFar(), ++before);
    }
}

TEST(SwitchShaderVRayFailure, ReportsTheAttributeThatCannotBeAddedAndCreatesNoOther)
{
    constexpr std::size_t kAddedByTheNodesBefore = 3;
    std::size_t before = 0;
    for (const Step& step : steps()) {
        PluginSession session;
        faults::record(true);
        faults::failCall("MPxNode::addAttribute", kAddedByTheNodesBefore + ++before,
                         MStatus(MStatus::kFailure));
        EXPECT_FALSE(session.load());
        EXPECT_EQ(session.takeReports(), failedLoad(step, "Add attribute error"));
        EXPECT_EQ(createdSoFar(), before);
    }
}

TEST(SwitchShaderVRayFailure, NotesEachAffectThatFailsOnStandardErrorAndGoesOn)
{
    for (std::size_t i = 0; i < 13; ++i) {
        PluginSession session;
        const MStatus refused(MStatus::kInvalidParameter);
        faults::record(true);
        faults::failCall("MPxNode::attributeAffects", i + 1, refused);
        testing::internal::CaptureStderr();
        EXPECT_TRUE(session.load());
        const std::string statement = i < 3 ? "TVX_CHECK_AFFECTS(*input" : "TVX_CHECK_AFFECTS(shader";
        EXPECT_EQ(testing::internal::GetCapturedStderr(), std::string("\nAPI error detected in ") + kFile +
                                                              " at line " +
                                                              std::to_string(test::lineOf(kFile, statement)) +
                                                              "\n" + refused.errorString().asChar() + "\n")
            << i;
        EXPECT_EQ(faults::countOf("MPxNode::attributeAffects"), 13u);
        EXPECT_EQ(session.takeReports().size(), 1u) << "nothing but the report of the load";
    }
}

TEST(SwitchShaderVRayFailure, DoesNotMindThatStorableCannotBeSwitchedOff)
{
    PluginSession session;
    faults::failCall("MFnAttribute::setStorable", 0, MStatus(MStatus::kFailure));
    EXPECT_TRUE(session.load());
    EXPECT_EQ(session.takeReports().size(), 1u);
}

} // namespace
} // namespace tarvox::crowd
