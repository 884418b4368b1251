// tvxhost --qt: an application and a main window, for those who ask for them only.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost::test;
using testing::HasSubstr;
using testing::Not;

class QtWindows : public testing::Test
{
protected:
    /// Runs the program with a plug-in that looks for main windows and tells their names.
    ProgramResult probe(std::vector<std::string> words)
    {
        words.insert(words.end(), {"--plugin", TVX_QT_PROBE, "-e", "qtProbe"});
        return run(words);
    }
    /// Qt wants a folder of its own for what only lives as long as the session.
    ProgramResult run(const std::vector<std::string>& words)
    {
        return runHost(words, {{"XDG_RUNTIME_DIR", m_folder.path().string()}});
    }

private:
    TemporaryFolder m_folder;
};

TEST_F(QtWindows, ThereIsOneMainWindowWhenItIsAskedFor)
{
    const ProgramResult result = probe({"--qt"});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "// Result: MayaWindow // \n");
}

TEST_F(QtWindows, ThereIsNoneOtherwise)
{
    const ProgramResult result = probe({"--interactive"});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "// Result:  // \n");
    EXPECT_EQ(probe({}).output, "\n");
}

TEST_F(QtWindows, AreThoseOfAnInteractiveSession)
{
    const ProgramResult result = run({"--qt", "-e", "about -batch"});
    EXPECT_EQ(result.output, "// Result: 0 // \n");
    EXPECT_EQ(result.exitCode, 0);
}

TEST_F(QtWindows, TheProgramItselfNeedsNoQt)
{
    const std::string program = contentsOf(TVX_HOST_PROGRAM);
    ASSERT_THAT(program, HasSubstr("libOpenMayaUI"));
    EXPECT_THAT(program, Not(HasSubstr("libQt5")));
}

} // namespace
