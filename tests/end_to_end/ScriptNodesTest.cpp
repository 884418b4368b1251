// Scripts that travel with a scene: they run when they are asked for, and only then.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace tvxhost::test;

class ScriptNodes : public testing::Test
{
protected:
    // A scene with a script node of some type that tells when it runs.
    std::string scene(const std::string& name, int type, const std::string& more = {})
    {
        const std::string file = m_folder / (name + ".ma");
        writeFile(file, "//Maya ASCII 2016 scene\ncreateNode script -n \"" + name +
                            "\";\n\tsetAttr \".b\" -type \"string\" \"print \\\"" + name +
                            " opens\\\\n\\\"\";\n\tsetAttr \".a\" -type \"string\" \"print \\\"" + name +
                            " closes\\\\n\\\"\";\n\tsetAttr \".st\" " + std::to_string(type) + ";\n" + more);
        return file;
    }
    static std::string printed(std::vector<std::string> arguments)
    {
        const ProgramResult result = runHost(arguments);
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        return result.output;
    }

    TemporaryFolder m_folder;
};

TEST_F(ScriptNodes, DoNotRunUnlessTheyAreAskedFor)
{
    EXPECT_EQ(printed({scene("s", 1), "-e", "print \"now\\n\""}), "now\n");
}

TEST_F(ScriptNodes, RunWhenTheirSceneOpensAndCloses)
{
    EXPECT_EQ(printed({"--run-script-nodes", scene("s", 1), "-e", "print \"now\\n\""}),
              "s opens\nnow\ns closes\n");
    EXPECT_EQ(printed({"--run-script-nodes", scene("s", 1), "-e", "file -f -new; print \"now\\n\""}),
              "s opens\ns closes\nnow\n\n");
}

TEST_F(ScriptNodes, StayQuietWhenAnotherSceneCannotBeOpened)
{
    // The 1 is what catchQuiet gives: opening failed.
    EXPECT_EQ(printed({"--run-script-nodes", scene("s", 1), "-e",
                       "catchQuiet(`file -f -o \"missing.ma\"`); print \"now\\n\""}),
              "s opens\nnow\n1\ns closes\n");
}

TEST_F(ScriptNodes, OfOtherTypesDoNotRun)
{
    for (const int type : {0, 3, 4, 5, 6, 7})
        EXPECT_EQ(printed({"--run-script-nodes", scene("s", type)}), "") << type;
}

TEST_F(ScriptNodes, OfTheInterfaceRunOnlyWhereThereIsOne)
{
    const std::string file = scene("s", 2);
    EXPECT_EQ(printed({"--run-script-nodes", file}), "");
    EXPECT_EQ(printed({"--run-script-nodes", "--interactive", file}), "s opens\ns closes\n");
}

TEST_F(ScriptNodes, RunTheirLastScriptWhenTheyAreDeletedWhateverTheirType)
{
    EXPECT_EQ(printed({"--run-script-nodes", scene("s", 0), "-e", "delete s; print \"now\\n\""}),
              "s closes\nnow\n");
}

TEST_F(ScriptNodes, OfAnImportedFileRunAndThoseThatWereThereDoNotAgain)
{
    const std::string imported = scene("t", 1);
    EXPECT_EQ(printed({"--run-script-nodes", scene("s", 1), "-e", "file -i \"" + imported + "\";"}),
              "s opens\nt opens\n" + imported + "\ns closes\nt closes\n");
}

TEST_F(ScriptNodes, WithAMistakeFailTheRunAndNameTheNode)
{
    const std::string file = m_folder / "wrong.ma";
    writeFile(file, "//Maya ASCII 2016 scene\ncreateNode script -n \"wrong\";\n"
                    "\tsetAttr \".b\" -type \"string\" \"noSuchCommand\";\n\tsetAttr \".st\" 1;\n");
    const ProgramResult result = runHost({"--run-script-nodes", file});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, "Error: file: wrong.before line 1: Cannot find procedure \"noSuchCommand\".\n");
}

TEST_F(ScriptNodes, InAnotherLanguageAreToldAndNotRun)
{
    const ProgramResult result = runHost({"--run-script-nodes", scene("s", 1, "\tsetAttr \".stp\" 1;\n")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "Warning: The script 's.before' is no MEL and is not run\n"
                             "Warning: The script 's.after' is no MEL and is not run\n");
}

} // namespace
