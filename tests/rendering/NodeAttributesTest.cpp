// The steps of an initializer: what becomes of a failure and of an exception.
#include "rendering/tvxNodeAttributes.h"

#include "../core/log/LogRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace tarvox::crowd {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NodeAttributesTest : public testing::Test
{
protected:
    test::LogRecorder recorder;
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
    EXPECT_THAT(recorder.placed, IsEmpty());
}

TEST_F(NodeAttributesTest, AStepThatFailsIsReportedWithItsPlaceAndEndsTheInitializer)
{
    int stepsDone = 0;
    EXPECT_EQ(initializeWith(fails, stepsDone), MStatus::kFailure);
    EXPECT_EQ(stepsDone, 1);
    EXPECT_THAT(recorder.placed,
                ElementsAre(kPlace + "At line " + std::to_string(kStepLine) +
                            " in file tests/rendering/NodeAttributesTest.cpp: Add attribute error"));
}

TEST_F(NodeAttributesTest, ACoreExceptionInAStepIsLoggedWithItsTextAndEndsTheInitializer)
{
    int stepsDone = 0;
    EXPECT_EQ(initializeWith(throws, stepsDone), MStatus::kFailure);
    EXPECT_EQ(stepsDone, 1);
    EXPECT_THAT(recorder.placed, ElementsAre(kPlace + "out of crowds"));
}

TEST_F(NodeAttributesTest, ACoreExceptionWithoutATextEndsTheInitializerToo)
{
    int stepsDone = 0;
    EXPECT_EQ(initializeWith(throwsWithoutText, stepsDone), MStatus::kFailure);
    EXPECT_THAT(recorder.placed, ElementsAre(kPlace));
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
    EXPECT_THAT(recorder.placed, IsEmpty());
}

} // namespace
} // namespace tarvox::crowd
