// Every step of every initializer, failing in turn.
#include "CoreLogTrap.h"
#include "PluginSession.h"
#include "api/support/faults.h"

#include <maya/MStatus.h>
#include <maya/MString.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace tarvox::crowd {
namespace {

namespace faults = tvxhost::api::faults;

using test::lineOf;
using test::Lines;
using test::PluginSession;
using test::reportOf;

// An attribute: what Maya is asked to create, the text of the statement, and what is said when it fails.
struct Step
{
    std::string create;
    std::string statement;
    std::string problem;
};

Step color(const std::string& statement)
{
    return {"MFnNumericAttribute::createColor", statement, "Color attribute create error"};
}
Step number(const std::string& statement)
{
    return {"MFnNumericAttribute::create", statement, "Numeric attribute create error"};
}
Step enumeration(const std::string& statement)
{
    return {"MFnEnumAttribute::create", statement, "Enum attribute create error"};
}
Step string(const std::string& statement)
{
    return {"MFnTypedAttribute::create", statement, "Typed attribute create error"};
}

struct Initializer
{
    const char* type;
    std::vector<Step> steps;
    std::vector<std::string> affects; // the text of the statement of each dependency

    std::string file() const { return std::string("rendering/tvx") + type + ".cpp"; }
    std::string function() const { return std::string("tarvox::crowd::") + type + "::initialize"; }
};

void PrintTo(const Initializer& initializer, std::ostream* text)
{
    *text << initializer.type;
}

// In the order in which the types are registered.
std::vector<Initializer> initializers()
{
    std::vector<Initializer> all = {
        {"CrowdRenderManagerNode", {}, {}},
        {"CrowdProxyVRay",
         {string("\"sceneName\""), string("\"vrsceneFileDir\""), string("\"pythonCallback\"")},
         {}},
        {"CrowdProxyRendermanStudio",
         {string("\"sceneName\""), number("\"frame\""), number("\"frameRate\""), string("\"ribFileDir\"")},
         {}},
        {"CrowdSwitchShaderVRay",
         {color("\"output\""), number("\"selector\""), number("\"startOffset\""), color("\"default\"")},
         std::vector<std::string>(3, "TVX_CHECK_AFFECTS(*input")},
        {"CrowdHSLShaderVRay",
         {color("\"output\""), number("\"h\""), number("\"s\""), number("\"l\""), color("\"input\"")},
         std::vector<std::string>(4, "TVX_CHECK_AFFECTS")},
        {"CrowdGetUserDataVRay",
         {number("\"output\""), enumeration("make.choice("), number("\"default\"")},
         std::vector<std::string>(2, "TVX_CHECK_AFFECTS")},
        {"CrowdSwitchShader3Delight", {string("\"shadingParameters\""), string("\"shadingCode\"")}, {}},
        {"CrowdGetUserData3Delight", {string("\"shadingParameters\""), string("\"shadingCode\"")}, {}},
    };
    Initializer& shaderSwitch = all[3];
    for (int shader = 0; shader < 10; ++shader) {
        shaderSwitch.steps.push_back(color("make.color(shaders[i]"));
        shaderSwitch.affects.push_back("TVX_CHECK_AFFECTS(shader");
    }
    return all;
}

const MStatus kRefused(MStatus::kFailure);

// What all initializers before that of a type ask for.
std::size_t callsBefore(const Initializer& initializer, const std::string& create)
{
    std::size_t count = 0;
    for (const Initializer& other : initializers()) {
        if (std::string(other.type) == initializer.type)
            break;
        for (const Step& step : other.steps)
            count += create == step.create || create == "MPxNode::addAttribute";
        if (create == "MPxNode::attributeAffects")
            count += other.affects.size();
    }
    return count;
}

std::vector<Initializer> initializersWith(const std::function<bool(const Initializer&)>& trait)
{
    std::vector<Initializer> found;
    for (const Initializer& initializer : initializers())
        if (trait(initializer))
            found.push_back(initializer);
    return found;
}

std::size_t createdSoFar()
{
    std::size_t count = 0;
    for (const char* create : {"MFnNumericAttribute::createColor", "MFnNumericAttribute::create",
                               "MFnEnumAttribute::create", "MFnTypedAttribute::create"})
        count += faults::countOf(create);
    return count;
}

std::string entryReport(const Initializer& initializer)
{
    return reportOf("ERROR", "global/tvxCrowdRenderPlugin.cpp", "\"registering \" << row.name",
                    std::string("initializePlugin: Problem while registering ") + initializer.type +
                        " node - " + kRefused.errorString().asChar());
}

class NodeInitializer : public testing::TestWithParam<Initializer>
{
protected:
    NodeInitializer() { test::takeTraces(); }

    static const Initializer& initializer() { return GetParam(); }

    // The load fails at a step, with the report of it, and nothing is tried after it.
    void expectFailedLoad(PluginSession& session, std::size_t index, const std::string& problem)
    {
        const Step& step = initializer().steps[index];
        EXPECT_FALSE(session.load());
        EXPECT_EQ(session.takeReports(),
                  (Lines{reportOf("ERROR", initializer().file(), step.statement, problem),
                         entryReport(initializer())}));
        EXPECT_EQ(createdSoFar(), callsBefore(initializer(), "MPxNode::addAttribute") + index + 1);
        const std::vector<test::Trace> traces = test::takeTraces();
        ASSERT_EQ(traces.size(), 2u);
        EXPECT_EQ(traces[0].severity, 1);
        EXPECT_EQ(traces[0].file, initializer().file());
        EXPECT_EQ(traces[0].line, lineOf(initializer().file(), step.statement));
        EXPECT_EQ(traces[0].function, initializer().function());
    }
};

TEST_P(NodeInitializer, ReportsTheAttributeThatCannotBeCreatedAndCreatesNoOther)
{
    for (std::size_t i = 0; i < initializer().steps.size(); ++i) {
        const Step& step = initializer().steps[i];
        const auto sameBefore = std::count_if(initializer().steps.begin(),
                                              initializer().steps.begin() + static_cast<std::ptrdiff_t>(i),
                                              [&](const Step& other) { return other.create == step.create; });
        PluginSession session;
        faults::record(true);
        faults::failCall(step.create,
                         callsBefore(initializer(), step.create) + static_cast<std::size_t>(sameBefore) + 1,
                         kRefused);
        expectFailedLoad(session, i, step.problem);
        EXPECT_EQ(faults::countOf("MPxNode::addAttribute"),
                  callsBefore(initializer(), "MPxNode::addAttribute") + i);
    }
}

TEST_P(NodeInitializer, ReportsTheAttributeThatCannotBeAddedAndCreatesNoOther)
{
    for (std::size_t i = 0; i < initializer().steps.size(); ++i) {
        PluginSession session;
        faults::record(true);
        faults::failCall("MPxNode::addAttribute", callsBefore(initializer(), "MPxNode::addAttribute") + i + 1,
                         kRefused);
        expectFailedLoad(session, i, "Add attribute error");
    }
}

TEST_P(NodeInitializer, LogsACoreExceptionInPlaceOfAReportAndFails)
{
    for (std::size_t i = 0; i < initializer().steps.size(); ++i) {
        PluginSession session;
        faults::failCall("MPxNode::addAttribute", callsBefore(initializer(), "MPxNode::addAttribute") + i + 1,
                         kRefused);
        test::breakCoreLog(1);
        EXPECT_FALSE(session.load());
        EXPECT_EQ(session.takeReports(), (Lines{"ERROR]\tthe log is broken", entryReport(initializer())}));
        const std::vector<test::Trace> traces = test::takeTraces();
        ASSERT_EQ(traces.size(), 3u);
        EXPECT_EQ(traces[1].message, "the log is broken");
        EXPECT_EQ(traces[1].severity, 1);
        EXPECT_EQ(traces[1].file, initializer().file());
        EXPECT_EQ(traces[1].line, lineOf(initializer().file(), initializer().steps[i].statement));
        EXPECT_EQ(traces[1].function, initializer().function());
    }
}

TEST_P(NodeInitializer, FailsSilentlyBelowTheFilter)
{
    for (std::size_t i = 0; i < initializer().steps.size(); ++i) {
        PluginSession session;
        session.scene.optionVars().set("tvxPrefLogLevelForCrowd_Render", 0);
        faults::failCall("MPxNode::addAttribute", callsBefore(initializer(), "MPxNode::addAttribute") + i + 1,
                         kRefused);
        EXPECT_FALSE(session.load());
        EXPECT_EQ(session.takeReports(), Lines{});
        EXPECT_EQ(session.scene.types().find(std::string(initializer().type)), nullptr);
    }
}

INSTANTIATE_TEST_SUITE_P(OfEachType, NodeInitializer,
                         testing::ValuesIn(initializersWith([](const Initializer& initializer) {
                             return !initializer.steps.empty();
                         })),
                         [](const auto& instance) { return instance.param.type; });

class NodeDependencies : public testing::TestWithParam<Initializer>
{
protected:
    static const Initializer& initializer() { return GetParam(); }
};

TEST_P(NodeDependencies, AreNotedOnStandardErrorWhenRefusedAndTheOthersDeclared)
{
    std::size_t all = 0;
    for (const Initializer& other : initializers())
        all += other.affects.size();
    for (std::size_t i = 0; i < initializer().affects.size(); ++i) {
        PluginSession session;
        const MStatus refused(MStatus::kInvalidParameter);
        faults::record(true);
        faults::failCall("MPxNode::attributeAffects",
                         callsBefore(initializer(), "MPxNode::attributeAffects") + i + 1, refused);
        testing::internal::CaptureStderr();
        EXPECT_TRUE(session.load());
        const int line = lineOf(initializer().file(), initializer().affects[i]);
        EXPECT_GT(line, 0);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "\nAPI error detected in " + initializer().file() +
                                                              " at line " + std::to_string(line) + "\n" +
                                                              refused.errorString().asChar() + "\n");
        EXPECT_EQ(faults::countOf("MPxNode::attributeAffects"), all);
        EXPECT_EQ(session.takeReports().size(), 1u) << "nothing but the report of the load";
    }
}

INSTANTIATE_TEST_SUITE_P(OfEachType, NodeDependencies,
                         testing::ValuesIn(initializersWith([](const Initializer& initializer) {
                             return !initializer.affects.empty();
                         })),
                         [](const auto& instance) { return instance.param.type; });

// What the initializers do not look at: flags, defaults, limits and fields.
TEST(NodeInitializers, DoNotMindWhatElseMayaRefuses)
{
    for (const char* call :
         {"MFnAttribute::setKeyable", "MFnAttribute::setReadable", "MFnAttribute::setWritable",
          "MFnAttribute::setHidden", "MFnAttribute::setArray", "MFnAttribute::setIndexMatters",
          "MFnAttribute::setStorable", "MFnNumericAttribute::setDefault", "MFnNumericAttribute::setMin",
          "MFnNumericAttribute::setMax", "MFnEnumAttribute::addField"}) {
        PluginSession session;
        faults::record(true);
        faults::failCall(call, 0, kRefused);
        EXPECT_TRUE(session.load()) << call;
        EXPECT_GT(faults::countOf(call), 0u) << call;
        EXPECT_EQ(session.takeReports().size(), 1u) << call;
    }
}

// Nothing to fail at: the manager's initializer asks for nothing.
TEST(NodeInitializers, ThatDeclareNothingCannotFail)
{
    PluginSession session;
    faults::record(true);
    faults::failCall("MFnPlugin::registerNode", 2, kRefused);
    EXPECT_FALSE(session.load());
    EXPECT_EQ(createdSoFar(), 0u);
    EXPECT_EQ(faults::countOf("MPxNode::addAttribute"), 0u);
    EXPECT_NE(session.scene.types().find(std::string("CrowdRenderManagerNode")), nullptr);
}

} // namespace
} // namespace tarvox::crowd
