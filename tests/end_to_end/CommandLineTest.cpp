// The program's own words: help, version and a command line that makes no sense.
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost::test;
using testing::HasSubstr;
using testing::StartsWith;

TEST(CommandLine, HelpNamesTheOptionsAndGivesExamples)
{
    const ProgramResult result = runHost({"--help"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    for (const char* option :
         {"--plugin", "--prefs", "--script", "-e,--execute", "--render", "--size", "--camera", "--save",
          "--summary", "--check", "--list-nodes", "--fail", "--list-calls", "Examples:"})
        EXPECT_THAT(result.output, HasSubstr(option));
}

TEST(CommandLine, VersionIsThatOfTheProject)
{
    const ProgramResult result = runHost({"--version"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "tvxhost 2.5.0.1\n");
}

TEST(CommandLine, AnUnknownOptionIsOneError)
{
    const ProgramResult result = runHost({"--bogus"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, StartsWith("The following argument was not expected: --bogus\n"));
}

TEST(CommandLine, ASizeThatIsNoneIsOneError)
{
    const ProgramResult result = runHost({"--render", "x.png", "--size", "640"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, StartsWith("--size: \"640\" is not a size such as 1280x720\n"));
}

} // namespace
