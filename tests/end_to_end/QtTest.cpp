// tvxhost --qt: an application and a main window, for those who ask for them only.
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost::test;
using testing::HasSubstr;
using testing::Not;

/// The main windows that a plug-in sees, one per line.
ProgramResult probe(std::vector<std::string> words)
{
    words.insert(words.end(), {"--plugin", TVX_QT_PROBE, "-e",
                               "string $n[] = `qtProbe`; print (size($n) + \"\\n\"); print $n;"});
    return runHost(words);
}

TEST(QtWindows, ThereIsOneMainWindowWhenItIsAskedFor)
{
    const ProgramResult result = probe({"--qt"});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "1\nMayaWindow\n");
}

TEST(QtWindows, ThereIsNoneOtherwise)
{
    const ProgramResult result = probe({});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "0\n");
    EXPECT_EQ(probe({"--interactive"}).output, "0\n");
}

TEST(QtWindows, AreThoseOfAnInteractiveSession)
{
    const ProgramResult result = runHost({"--qt", "-e", "print (`about -batch` + \"\\n\")"});
    EXPECT_EQ(result.output, "0\n");
    EXPECT_EQ(result.exitCode, 0);
}

TEST(QtWindows, TheProgramItselfNeedsNoQt)
{
    const std::string program = contentsOf(TVX_HOST_PROGRAM);
    ASSERT_THAT(program, HasSubstr("libOpenMayaUI"));
    EXPECT_THAT(program, Not(HasSubstr("libQt5")));
}

} // namespace
