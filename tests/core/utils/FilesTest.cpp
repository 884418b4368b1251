// Files, dialogs and window preferences: the exact commands, and what their answers become.
#include "UtilsFixture.h"
#include "memberWarning.h"

#include <locale>

namespace tarvox::crowd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

class Files : public UtilsFixture
{
protected:
    static std::string warning(const std::string& member, const std::string& text)
    {
        return memberWarning("tvxMayaUtilsFiles.cpp", member, "MayaUtils::" + member + ": " + text);
    }
};

TEST_F(Files, AFolderIsMadeByMaya)
{
    runner.answer("sysFile -makeDir \"/projects/a b\"", 1);
    testing::internal::CaptureStderr();
    EXPECT_EQ(MayaUtils::createDirectory("/projects/a b", false), MStatus::kSuccess);
    EXPECT_EQ(MayaUtils::createDirectory("/projects/a b", true), MStatus::kSuccess);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_THAT(runner.commands, ElementsAre("|sysFile -makeDir \"/projects/a b\"",
                                             "display|sysFile -makeDir \"/projects/a b\""));
}

TEST_F(Files, AFolderThatMayaCannotMakeIsToldOnStandardError)
{
    for (const int answer : {0, 2, -1}) {
        runner.answer("sysFile -makeDir \"/p\"", answer);
        testing::internal::CaptureStderr();
        EXPECT_EQ(MayaUtils::createDirectory("/p", false), MStatus::kFailure);
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
                  std::string("Unable to create directory /p: ") +
                      MStatus(MStatus::kFailure).errorString().asChar() + "\n");
    }
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Files, ACommandThatCannotRunGivesItsOwnStatus)
{
    testing::internal::CaptureStderr();
    faults::failCall("MGlobal::executeCommand", 1, failure());
    EXPECT_EQ(MayaUtils::createDirectory("/p", false), failure());
    runner.failing = {"sysFile -makeDir \"/p\""};
    EXPECT_EQ(MayaUtils::createDirectory("/p", false), MStatus::kFailure);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(Files, TheWorkspaceIsMayasAnswer)
{
    runner.answer("workspace -q -fn", std::string("/projects/crowd"));
    EXPECT_EQ(MayaUtils::getWorkspacePath(), "/projects/crowd");
    EXPECT_THAT(runner.commands, ElementsAre("|workspace -q -fn"));
    runner.failing = {"workspace -q -fn"};
    EXPECT_EQ(MayaUtils::getWorkspacePath(), "");
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Files, ASceneNameLosesAllAfterItsFirstPoint)
{
    const std::string command = "file -q -shn -sn";
    runner.answer(command, std::string("take.final.ma"));
    EXPECT_EQ(MayaUtils::getSceneShortName(false), "take.final.ma");
    EXPECT_EQ(MayaUtils::getSceneShortName(true), "take");
    runner.answer(command, std::string("untitled"));
    EXPECT_EQ(MayaUtils::getSceneShortName(true), "untitled");
    runner.answer(command, std::string(""));
    EXPECT_EQ(MayaUtils::getSceneShortName(true), "");
    runner.answer(command, std::string(".hidden"));
    EXPECT_EQ(MayaUtils::getSceneShortName(true), "");
    EXPECT_THAT(runner.commands,
                ElementsAre("|" + command, "|" + command, "|" + command, "|" + command, "|" + command));
}

TEST_F(Files, AFileIsAskedForWithItsFilter)
{
    const std::string any = "fileDialog2 -ds 2 -ff \"Scenes (*.ma)\"";
    const std::string existing = "fileDialog2 -ds 2  -fm 1 -ff \"Scenes (*.ma)\"";
    runner.answer(any, Strings{"/p/new.ma"});
    runner.answer(existing, Strings{"/p/old.ma"});
    EXPECT_EQ(MayaUtils::getFilePath("Scenes (*.ma)", false), MString("/p/new.ma"));
    EXPECT_EQ(MayaUtils::getFilePath("Scenes (*.ma)", true), MString("/p/old.ma"));
    EXPECT_THAT(runner.commands, ElementsAre("|" + any, "|" + existing));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Files, AFolderIsAskedForWhereTheCallerBegins)
{
    const std::string anywhere = "fileDialog2 -fileMode 3 ";
    const std::string inside = "fileDialog2 -fileMode 3 -startingDirectory \"/p q\"";
    const std::string atRoot = "fileDialog2 -fileMode 3 -startingDirectory \"/\"";
    runner.answer(anywhere, Strings{"/a"});
    runner.answer(inside, Strings{"/p q/b"});
    runner.answer(atRoot, Strings{"/c"});
    EXPECT_EQ(MayaUtils::getDirectoryPath(""), MString("/a"));
    EXPECT_EQ(MayaUtils::getDirectoryPath("/p q"), MString("/p q/b"));
    EXPECT_EQ(MayaUtils::getDirectoryPath("/"), MString("/c"));
    EXPECT_THAT(runner.commands, ElementsAre("|" + anywhere, "|" + inside, "|" + atRoot));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Files, NoneOrSeveralFilesAreNoChoice)
{
    const std::string file = "fileDialog2 -ds 2 -ff \"\"";
    const std::string folder = "fileDialog2 -fileMode 3 ";
    for (const Strings& chosen : {Strings{}, Strings{"/a", "/b"}}) {
        runner.answer(file, chosen);
        runner.answer(folder, chosen);
        EXPECT_EQ(MayaUtils::getFilePath("", false), MString(""));
        EXPECT_EQ(MayaUtils::getDirectoryPath(""), MString(""));
    }
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Files, ADialogThatCannotOpenIsToldAndThenThatThereIsNoAnswer)
{
    runner.failing = {"fileDialog2 -ds 2 -ff \"\"", "fileDialog2 -fileMode 3 "};
    EXPECT_EQ(MayaUtils::getFilePath("", false), MString(""));
    EXPECT_THAT(recorder.take(),
                ElementsAre(warning("getFilePath", "Could not open file dialog"),
                            warning("getFilePath", "Can't convert result filedialog2 to a string array")));
    EXPECT_EQ(MayaUtils::getDirectoryPath(""), MString(""));
    EXPECT_THAT(recorder.take(), ElementsAre(warning("getDirectoryPath", "Could not open file dialog"),
                                             warning("getDirectoryPath",
                                                     "Can't convert result filedialog2 to a string array")));
}

TEST_F(Files, AnAnswerOfAnotherTypeIsTold)
{
    runner.answer("fileDialog2 -ds 2 -ff \"\"", 1);
    runner.answer("fileDialog2 -fileMode 3 ", 1);
    MayaUtils::getFilePath("", false);
    MayaUtils::getDirectoryPath("");
    EXPECT_THAT(
        recorder.take(),
        ElementsAre(warning("getFilePath", "Can't convert result filedialog2 to a string array"),
                    warning("getDirectoryPath", "Can't convert result filedialog2 to a string array")));
}

TEST_F(Files, WithTheFilterBelowWarningsNothingIsTold)
{
    coreLog().setSeverityFilter(core::kError);
    faults::failCall("MGlobal::executeCommand", 0, failure());
    MayaUtils::getFilePath("", false);
    MayaUtils::getDirectoryPath("");
    EXPECT_THAT(recorder.take(), IsEmpty());
}

class Windows : public UtilsFixture
{
};

TEST_F(Windows, APreferenceIsMadeAndSetByOneScript)
{
    MayaUtils::restoreWindowPreference("crowdWindow", 10, -20, 640, 480);
    EXPECT_THAT(runner.commands,
                ElementsAre("|if(!`windowPref -exists crowdWindow`) windowPref crowdWindow;\n"
                            "windowPref -edit -topLeftCorner 10 -20 -widthHeight 640 480 crowdWindow"));
}

TEST_F(Windows, NumbersAreWrittenPlainInEveryLocale)
{
    struct Grouping : std::numpunct<char>
    {
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Grouping));
    MayaUtils::restoreWindowPreference("w", 1000, 2000, 3000, 4000);
    std::locale::global(before);
    ASSERT_EQ(runner.commands.size(), 1u);
    EXPECT_NE(runner.commands[0].find("-topLeftCorner 1000 2000 -widthHeight 3000 4000 w"),
              std::string::npos);
}

TEST_F(Windows, AllPreferencesAreSaved)
{
    MayaUtils::saveAllWindowPreferences();
    EXPECT_THAT(runner.commands, ElementsAre("|windowPref -saveAll ;"));
}

TEST_F(Windows, AStoredPreferenceIsRead)
{
    runner.answer("windowPref -exists w;", 1);
    runner.answer("windowPref -q -topEdge w;", 1);
    runner.answer("windowPref -q -leftEdge w;", 2);
    runner.answer("windowPref -q -width w;", 3);
    runner.answer("windowPref -q -height w;", 4);
    int top = 0, left = 0, width = 0, height = 0;
    MayaUtils::getWindowPreference("w", top, left, width, height);
    EXPECT_THAT((std::vector<int>{top, left, width, height}), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(runner.commands, ElementsAre("|windowPref -exists w;", "|windowPref -q -topEdge w;",
                                             "|windowPref -q -leftEdge w;", "|windowPref -q -width w;",
                                             "|windowPref -q -height w;"));
}

TEST_F(Windows, WithoutAPreferenceTheCallersDefaultsStay)
{
    for (const int answer : {0, 2}) {
        runner.commands.clear();
        runner.answer("windowPref -exists w;", answer);
        int top = 1, left = 2, width = 3, height = 4;
        MayaUtils::getWindowPreference("w", top, left, width, height);
        EXPECT_THAT((std::vector<int>{top, left, width, height}), ElementsAre(1, 2, 3, 4));
        EXPECT_THAT(runner.commands, ElementsAre("|windowPref -exists w;"));
    }
}

TEST_F(Windows, WhatCannotBeReadStaysAsItWasAndIsNotTold)
{
    const std::vector<std::string> queries = {"windowPref -q -topEdge w;", "windowPref -q -leftEdge w;",
                                              "windowPref -q -width w;", "windowPref -q -height w;"};
    runner.answer("windowPref -exists w;", 1);
    for (std::size_t i = 0; i < queries.size(); ++i)
        runner.answer(queries[i], 10 * (static_cast<int>(i) + 1));
    for (std::size_t failing = 0; failing < queries.size(); ++failing) {
        runner.failing = {queries[failing]};
        std::vector<int> edges = {1, 2, 3, 4};
        MayaUtils::getWindowPreference("w", edges[0], edges[1], edges[2], edges[3]);
        std::vector<int> expected = {10, 20, 30, 40};
        expected[failing] = static_cast<int>(failing) + 1;
        EXPECT_EQ(edges, expected) << queries[failing];
    }
    faults::failCall("MGlobal::executeCommand", 0, failure());
    int top = 1, left = 2, width = 3, height = 4;
    MayaUtils::restoreWindowPreference("w", 1, 2, 3, 4);
    MayaUtils::saveAllWindowPreferences();
    MayaUtils::getWindowPreference("w", top, left, width, height);
    EXPECT_THAT((std::vector<int>{top, left, width, height}), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

} // namespace
} // namespace tarvox::crowd::test
