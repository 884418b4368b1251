// The steps of an initializer: what becomes of a failure and of an exception.
#include "rendering/tvxNodeAttributes.h"

#include <tvxCore/Exception.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace tarvox::crowd {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Recorder : public core::ILogEventListener
{
public:
    void onLogEvent(const core::LogEvent& event) override
    {
        events.push_back(std::to_string(event.severity) + "|" + event.file + "|" +
                         std::to_string(event.line) + "|" + event.function + "|" + event.message);
    }

    std::vector<std::string> events;
};

class NodeAttributesTest : public testing::Test
{
protected:
    NodeAttributesTest() { coreLog().addLogEventListener(&recorder); }
    ~NodeAttributesTest() override
    {
        coreLog().removeLogEventListener(&recorder);
        coreLog().setSeverityFilter(core::kWarning);
    }

    Recorder recorder;
};

const char* succeeds()
{
    return nullptr;
}
const char* fails()
{
    return "Add attribute error";
}
const char* throws()
{
    throw core::Exception("out of crowds");
}
const char* throwsWithoutText()
{
    throw core::Exception("");
}
const char* throwsOtherwise()
{
    throw std::runtime_error("not of the core");
}

MStatus initializeWith(const char* (*step)(), int& stepsDone)
{
    TVX_REQUIRE(attempt("Node::initialize", succeeds));
    ++stepsDone;
    TVX_REQUIRE(attempt("Node::initialize", step));
    ++stepsDone;
    return MStatus::kSuccess;
}

constexpr int kStepLine = __LINE__ - 5;
const std::string kPlace =
    "1|tests/rendering/NodeAttributesTest.cpp|" + std::to_string(kStepLine) + "|Node::initialize|";

TEST_F(NodeAttributesTest, StepsThatSucceedSayNothing)
{
    int stepsDone = 0;
    EXPECT_EQ(initializeWith(succeeds, stepsDone), MStatus::kSuccess);
    EXPECT_EQ(stepsDone, 2);
    EXPECT_THAT(recorder.events, IsEmpty());
}

TEST_F(NodeAttributesTest, AStepThatFailsIsReportedWithItsPlaceAndEndsTheInitializer)
{
    int stepsDone = 0;
    EXPECT_EQ(initializeWith(fails, stepsDone), MStatus::kFailure);
    EXPECT_EQ(stepsDone, 1);
    EXPECT_THAT(recorder.events,
                ElementsAre(kPlace + "At line " + std::to_string(kStepLine) +
                            " in file tests/rendering/NodeAttributesTest.cpp: Add attribute error"));
}

TEST_F(NodeAttributesTest, ACoreExceptionInAStepIsLoggedWithItsTextAndEndsTheInitializer)
{
    int stepsDone = 0;
    EXPECT_EQ(initializeWith(throws, stepsDone), MStatus::kFailure);
    EXPECT_EQ(stepsDone, 1);
    EXPECT_THAT(recorder.events, ElementsAre(kPlace + "out of crowds"));
}

TEST_F(NodeAttributesTest, ACoreExceptionWithoutATextEndsTheInitializerToo)
{
    int stepsDone = 0;
    EXPECT_EQ(initializeWith(throwsWithoutText, stepsDone), MStatus::kFailure);
    EXPECT_THAT(recorder.events, ElementsAre(kPlace));
}

TEST_F(NodeAttributesTest, OtherExceptionsPassThrough)
{
    int stepsDone = 0;
    EXPECT_THROW(initializeWith(throwsOtherwise, stepsDone), std::runtime_error);
}

TEST_F(NodeAttributesTest, FailuresBelowTheFilterEndTheInitializerSilently)
{
    coreLog().setSeverityFilter(core::kCritical);
    int stepsDone = 0;
    EXPECT_EQ(initializeWith(fails, stepsDone), MStatus::kFailure);
    EXPECT_EQ(initializeWith(throws, stepsDone), MStatus::kFailure);
    EXPECT_THAT(recorder.events, IsEmpty());
}

} // namespace
} // namespace tarvox::crowd
