// The program's own words: help, version and a command line that makes no sense.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace tvxhost::test;
using testing::HasSubstr;

TEST(CommandLine, HelpNamesTheOptionsAndGivesExamples)
{
    const ProgramResult result = runHost({"--help"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    for (const char* option :
         {"--plugin", "--prefs", "--script", "-e,--execute", "--render", "--size", "--camera", "--save",
          "--summary", "--check", "--describe", "--list-nodes", "--allow-system", "--dialog-answer", "--qt",
          "--fail", "--list-calls", "--list-functions", "Examples:"})
        EXPECT_THAT(result.output, HasSubstr(option));
}

TEST(CommandLine, TheFunctionsOfTheInterfaceAreListed)
{
    const ProgramResult result = runHost({"--list-functions"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    for (const char* line : {"\nMDagPath::className: gives no status\n", "\nMDagPath::hasFn\n",
                             "\nMNodeMessage::addNodeDirtyCallback\n",
                             "\nMIntArray::append: only changes or reads a value that is its caller's: "
                             "nothing but its arguments can make "
                             "it fail\n"})
        EXPECT_THAT(result.output, HasSubstr(line));
}

TEST(CommandLine, VersionIsThatOfTheProject)
{
    const ProgramResult result = runHost({"--version"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "tvxhost 2.5.0.1\n");
}

TEST(CommandLine, OtherProgramsRunOnlyWhenThatIsAllowed)
{
    const ProgramResult refused = runHost({"-e", "system \"echo hello\""});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_EQ(refused.errors, "Error: line 1: system is not allowed in this session.\n");
    const ProgramResult allowed = runHost({"--allow-system", "-e", "system \"echo hello\""});
    EXPECT_EQ(allowed.exitCode, 0);
    EXPECT_THAT(allowed.output, HasSubstr("hello"));
}

TEST(CommandLine, EachMistakeIsOneErrorThatSaysWhatIsWrong)
{
    const struct
    {
        std::vector<std::string> words;
        const char* error;
    } mistakes[] = {
        {{"--bogus"}, "The following argument was not expected: --bogus"},
        {{"one.ma", "two.ma"}, "The following argument was not expected: two.ma"},
        {{"--save"}, "--save: 1 required OUT.ma missing"},
        {{"--save", ""}, "--save: no name is given"},
        {{""}, "FILE: no name is given"},
        {{"--render", "x.png", "--size", "640"}, "--size: \"640\" is not a size such as 1280x720"},
        {{"--render", "x.png", "--size", "0x0"}, "--size: \"0x0\" is not a size such as 1280x720"},
        {{"--describe"}, "--describe: no node type is named"},
        {{"--describe=xml", "locator"}, "--describe: xml not in {text,json}"},
        {{"--summary=xml", "one.ma"}, "--summary: xml not in {text,json}"},
        {{"--fail", "MFnPlugin::registerUI:1:kNonsense"},
         "--fail: \"MFnPlugin::registerUI:1:kNonsense\" is not of the form Class::function:N:kCode"},
    };
    for (const auto& mistake : mistakes) {
        const ProgramResult result = runHost(mistake.words);
        EXPECT_EQ(result.exitCode, 2) << mistake.error;
        EXPECT_EQ(result.output, "") << mistake.error;
        EXPECT_EQ(result.errors, std::string(mistake.error) + "\nRun with --help for more information.\n");
    }
}

TEST(CommandLine, OutputThatCannotBeWrittenIsAnError)
{
    const ProgramResult result =
        runProgram("/bin/sh", {"-c", "exec \"$0\" -e 'print \"words\\n\"' >/dev/full", TVX_HOST_PROGRAM});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors,
              "Error: cannot write standard output: some of it is lost; is there room where it goes?\n");
}

TEST(CommandLine, WhatIsPrintedToAClosedOutputLandsInNoFile)
{
    const TemporaryFolder folder;
    const std::string scene = (folder / "out.ma").string();
    const ProgramResult result = runProgram(
        "/bin/sh", {"-c", "exec \"$0\" -e 'print \"words\\n\"' --save \"$1\" >&-", TVX_HOST_PROGRAM, scene});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_THAT(contentsOf(scene), testing::StartsWith("//Maya ASCII"));
    EXPECT_THAT(contentsOf(scene), testing::Not(HasSubstr("words")));
}

} // namespace
