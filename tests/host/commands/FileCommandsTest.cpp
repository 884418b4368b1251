// file, fileInfo, sysFile.
#include "projectFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::HasSubstr;

using FileCommandsTest = ProjectFixture;

TEST_F(FileCommandsTest, savesUnderTheNameAndOpensAgain)
{
    run("createNode transform -n \"a\"; setAttr a.tx 3; file -rename \"shot.ma\"");
    EXPECT_EQ(run("file -save -type \"mayaAscii\""), path("shot.ma"));
    EXPECT_EQ(run("file -q -mf"), "0");
    EXPECT_EQ(run("file -q -sn"), path("shot.ma"));
    EXPECT_EQ(run("file -q -shn -sn"), "shot.ma");
    run("file -f -new");
    EXPECT_EQ(run("objExists a"), "0");
    EXPECT_EQ(run("file -q -sn"), "");
    EXPECT_EQ(run("file -o \"shot.ma\""), path("shot.ma"));
    EXPECT_EQ(run("getAttr a.tx"), "3");
}

TEST_F(FileCommandsTest, unsavedChangesAreGuarded)
{
    run("createNode transform -n \"a\"");
    EXPECT_EQ(failure("file -new"), "Unsaved changes");
    EXPECT_EQ(run("objExists a"), "1");
}

TEST_F(FileCommandsTest, filesThatAreNoScenesAreErrorsAndChangeNothing)
{
    run("createNode transform -n \"a\"");
    EXPECT_EQ(failure("file -f -o \"none.ma\""), "File not found: \"" + path("none.ma") + "\"");
    folder.write("note.ma", "hello\n");
    EXPECT_THAT(failure("file -f -o \"note.ma\""), HasSubstr("is not a Maya ASCII scene"));
    EXPECT_EQ(run("objExists a"), "1");
}

TEST_F(FileCommandsTest, mayaBinaryIsNotWritten)
{
    run("file -rename \"shot.mb\"");
    EXPECT_EQ(failure("file -save"), "Only files of type mayaAscii can be written, not mayaBinary");
    EXPECT_EQ(run("file -q -ex \"shot.mb\""), "0");
}

TEST_F(FileCommandsTest, anUntitledSceneIsNotSaved)
{
    EXPECT_EQ(failure("file -save"), "The scene has no name: use file -rename first");
}

TEST_F(FileCommandsTest, scenesMayHoldStatementsOfTheLanguage)
{
    writeScene("script.ma", "createNode transform -n \"a\";\n"
                            "for ($i = 0; $i < 3; $i++) currentTime $i;\n");
    run("file -f -o \"script.ma\"");
    EXPECT_EQ(session.lastSummary.errors, 0u);
    EXPECT_EQ(run("currentTime -q"), "2");
}

TEST_F(FileCommandsTest, importAddsToTheScene)
{
    run("createNode transform -n \"a\"; file -rename \"one.ma\"; file -save; file -f -new; createNode "
        "transform -n \"b\"");
    run("file -i \"one.ma\"");
    EXPECT_EQ(run("objExists a"), "1");
    EXPECT_EQ(run("objExists b"), "1");
}

TEST_F(FileCommandsTest, exportAllLeavesTheScenesNameAlone)
{
    run("createNode transform -n \"a\"; file -ea -type \"mayaAscii\" \"copy.ma\"");
    EXPECT_EQ(run("file -q -sn"), "");
    EXPECT_EQ(run("file -q -ex \"copy.ma\""), "1");
}

TEST_F(FileCommandsTest, fileInfoIsKeptWithTheScene)
{
    run("fileInfo \"studio\" \"Tarvox\"; fileInfo \"take\" \"1\"; fileInfo \"take\" \"2\"");
    EXPECT_THAT(strings("fileInfo -q \"take\""), ElementsAre("2"));
    run("fileInfo -rm \"take\"");
    EXPECT_THAT(strings("fileInfo -q \"take\""), testing::IsEmpty());
}

TEST_F(FileCommandsTest, sysFileMakesMovesAndDeletes)
{
    EXPECT_EQ(run("sysFile -makeDir \"" + path("a/b/c") + "\""), "1");
    EXPECT_TRUE(std::filesystem::is_directory(path("a/b/c")));
    EXPECT_EQ(run("sysFile -makeDir \"" + path("a/b/c") + "\""), "1");
    folder.write("x.txt", "x");
    EXPECT_EQ(run("sysFile -copy \"" + path("y.txt") + "\" \"" + path("x.txt") + "\""), "1");
    EXPECT_EQ(run("sysFile -rename \"" + path("z.txt") + "\" \"" + path("y.txt") + "\""), "1");
    EXPECT_TRUE(std::filesystem::exists(path("z.txt")));
    EXPECT_FALSE(std::filesystem::exists(path("y.txt")));
    EXPECT_EQ(run("sysFile -delete \"" + path("z.txt") + "\""), "1");
    EXPECT_EQ(run("sysFile -delete \"" + path("z.txt") + "\""), "0");
}

} // namespace tvxhost::mel
