// Faults on the command line.
#include "app/fault.h"

#include <gtest/gtest.h>

namespace {

using tvxhost::app::Fault;
using tvxhost::app::parseFault;

void expectFault(const char* text, const char* function, std::size_t call, MStatus::MStatusCode code)
{
    const auto fault = parseFault(text);
    ASSERT_TRUE(fault) << text;
    EXPECT_EQ(fault->function, function);
    EXPECT_EQ(fault->call, call);
    EXPECT_EQ(fault->code, code);
}

TEST(Faults, NameAFunctionACallAndACode)
{
    expectFault("MFnPlugin::registerNode:2:kNotFound", "MFnPlugin::registerNode", 2, MStatus::kNotFound);
    expectFault("MFnPlugin::MFnPlugin:0:kInsufficientMemory", "MFnPlugin::MFnPlugin", 0,
                MStatus::kInsufficientMemory);
}

TEST(Faults, AreTheFirstCallFailingWhenNothingElseIsSaid)
{
    expectFault("MPxNode::addAttribute", "MPxNode::addAttribute", 1, MStatus::kFailure);
    expectFault("MPxNode::addAttribute:3", "MPxNode::addAttribute", 3, MStatus::kFailure);
}

TEST(Faults, OfAnotherFormAreNone)
{
    for (const char* text :
         {"", ":1", "A::b:", "A::b:x", "A::b:-1", "A::b:1:", "A::b:1:kNoSuch", "A::b:1:kFailure:1"})
        EXPECT_FALSE(parseFault(text)) << text;
}

} // namespace
