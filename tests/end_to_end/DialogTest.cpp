// Dialogs answered on the command line, and the preferences that a run leaves behind.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost::test;

const char* const kAsk = "fileDialog2 -fm 1";

TEST(Dialogs, AreAnsweredInOrderAndThenCancelled)
{
    const TemporaryFolder folder;
    writeFile(folder / "a.ma", "a");
    writeFile(folder / "b.ma", "b");
    const std::string a = (folder / "a.ma").string();
    const std::string b = (folder / "b.ma").string();
    const ProgramResult result =
        runHost({"--dialog-answer", a, "--dialog-answer", b, "-e", kAsk, "-e", kAsk, "-e", kAsk});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, a + "\n" + b + "\n\n");
    EXPECT_EQ(result.exitCode, 0);
}

TEST(Dialogs, AnAnswerThatCannotBeIsAnError)
{
    const TemporaryFolder folder;
    const std::string none = (folder / "none.ma").string();
    const ProgramResult result = runHost({"--dialog-answer", none, "-e", "fileDialog2 -fm 1"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, testing::HasSubstr("fileDialog2: there is no file \"" + none + "\""));
}

TEST(WindowPreferences, AreThereInTheNextRun)
{
    const TemporaryFolder folder;
    const std::string prefs = folder.path().string();
    const ProgramResult first =
        runHost({"--prefs", prefs, "-e", "windowPref -tlc 10 20 -wh 300 200 crowdWindow"});
    EXPECT_EQ(first.exitCode, 0);
    EXPECT_EQ(contentsOf(folder / "windowPrefs.mel"),
              "//Maya Preference file\n//\n//\n\n"
              "windowPref -topLeftCorner 10 20 -widthHeight 300 200 -maximized false crowdWindow;\n");
    const ProgramResult second =
        runHost({"--prefs", prefs, "-e", "print (`windowPref -q -leftEdge crowdWindow` + \"\\n\")"});
    EXPECT_EQ(second.errors, "");
    EXPECT_EQ(second.output, "20\n");
}

TEST(WindowPreferences, ThatAreNotUnderstoodAreSetAside)
{
    const TemporaryFolder folder;
    writeFile(folder / "windowPrefs.mel", "windowPref (;\n");
    const ProgramResult result = runHost({"--prefs", folder.path().string()});
    const std::string file = (folder / "windowPrefs.mel").string();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, "Error: '" + file + "' cannot be understood in line 1; it was set aside as '" +
                                 file + ".broken'\n");
    EXPECT_EQ(contentsOf(folder / "windowPrefs.mel.broken"), "windowPref (;\n");
}

} // namespace
