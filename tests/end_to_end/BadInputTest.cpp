// Bad input: one clear error each, with its place, and nothing is overwritten.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

namespace {

using namespace tvxhost::test;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

class BadInput : public testing::Test
{
protected:
    std::string path(const std::string& name) const { return m_folder / name; }
    std::string file(const std::string& name, const std::string& contents)
    {
        writeFile(m_folder / name, contents);
        return path(name);
    }
    /// Expects one error line and exit code 1, and returns the line.
    std::string onlyError(const std::vector<std::string>& arguments)
    {
        const ProgramResult result = runHost(arguments);
        EXPECT_EQ(result.exitCode, 1) << result.output;
        const std::vector<std::string> lines = linesOf(result.errors);
        EXPECT_EQ(lines.size(), 1u) << result.errors;
        return lines.empty() ? "" : lines[0];
    }

    TemporaryFolder m_folder;
};

TEST_F(BadInput, AMissingSceneIsNamed)
{
    EXPECT_THAT(onlyError({path("missing.ma")}), HasSubstr(path("missing.ma")));
}

TEST_F(BadInput, AnEmptySceneIsNamed)
{
    EXPECT_THAT(onlyError({file("empty.ma", "")}), HasSubstr(path("empty.ma")));
}

TEST_F(BadInput, ABinarySceneIsNamed)
{
    EXPECT_THAT(onlyError({file("binary.ma", std::string("FOR4\0\0\1\2Maya", 12))}),
                HasSubstr(path("binary.ma")));
}

TEST_F(BadInput, AFolderIsNoScene)
{
    EXPECT_THAT(onlyError({m_folder.path()}), HasSubstr(m_folder.path().string()));
}

TEST_F(BadInput, ASceneThatCannotBeReadIsNotSavedOverAnother)
{
    const std::string target = file("target.ma", "kept");
    onlyError({path("missing.ma"), "--save", target, "--render", path("picture.png")});
    EXPECT_EQ(contentsOf(target), "kept");
    EXPECT_FALSE(std::filesystem::exists(path("picture.png")));
}

TEST_F(BadInput, AScriptsMistakeIsAtItsLine)
{
    const std::string script =
        file("seven.mel", "int $a;\nint $b;\nint $c;\nint $d;\nint $e;\nint $f;\n$a = = 1;\n");
    const ProgramResult result = runHost({"--script", script});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(linesOf(result.errors)[0], StartsWith("Error: file: " + script + " line 7: Syntax error"));
    EXPECT_EQ(linesWith(result.errors, "Error").size(), 1u) << result.errors;
}

TEST_F(BadInput, AnUnknownCommandIsAtItsLine)
{
    const std::string script =
        file("seven.mel", "int $a;\n\n\n\n\n\nnoSuchCommand $a;\nprint \"not reached\";\n");
    EXPECT_EQ(onlyError({"--script", script}),
              "Error: file: " + script + " line 7: Cannot find procedure \"noSuchCommand\".");
}

TEST_F(BadInput, AnUnknownFlagIsAtItsLine)
{
    const std::string script = file("flag.mel", "\ncreateNode transform;\nls -noSuchFlag;\n");
    EXPECT_EQ(onlyError({"--script", script}),
              "Error: file: " + script + " line 3: Invalid flag '-noSuchFlag'");
}

TEST_F(BadInput, AMissingScriptIsNamed)
{
    EXPECT_THAT(onlyError({"--script", path("missing.mel")}), HasSubstr(path("missing.mel")));
}

TEST_F(BadInput, APluginThatIsNoLibraryIsNamed)
{
    EXPECT_THAT(onlyError({"--plugin", file("text.so", "not a library")}), HasSubstr("text.so"));
}

TEST_F(BadInput, APluginThatIsNotThereIsNamed)
{
    EXPECT_EQ(onlyError({"--plugin", "noSuchPlugin"}),
              "Error: Plug-in, \"noSuchPlugin\", was not found on MAYA_PLUG_IN_PATH.");
}

TEST_F(BadInput, ALibraryWithoutEntryPointsIsNamed)
{
    EXPECT_THAT(onlyError({"--plugin", TVX_CORE_LIBRARY}), HasSubstr("initializePlugin"));
}

TEST_F(BadInput, ABrokenPreferencesFileIsToldAndSetAside)
{
    file("userPrefs.mel", "optionVar -iv \"a\" 1;\noptionVar -iv \"b\n");
    const ProgramResult result = runHost({"--prefs", m_folder.path()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(linesOf(result.errors).size(), 1u) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr("userPrefs.mel.broken"));
    EXPECT_THAT(result.errors, HasSubstr("2"));
    EXPECT_EQ(contentsOf(path("userPrefs.mel.broken")), "optionVar -iv \"a\" 1;\noptionVar -iv \"b\n");
}

TEST_F(BadInput, APreferencesFolderThatCannotBeMadeIsNamed)
{
    const std::string folder = file("taken", "a file") + "/prefs";
    EXPECT_THAT(onlyError({"--prefs", folder, "-e", "optionVar -iv \"a\" 1"}), HasSubstr(folder));
    EXPECT_EQ(contentsOf(path("taken")), "a file");
}

TEST_F(BadInput, AFolderThatCannotBeWrittenKeepsItsScene)
{
    const std::string target = path("no/such/folder/out.ma");
    EXPECT_THAT(onlyError({"--save", target}), HasSubstr(target));
    EXPECT_FALSE(std::filesystem::exists(path("no")));
}

TEST_F(BadInput, APictureThatCannotBeWrittenIsNamed)
{
    const std::string target = path("no/such.png");
    EXPECT_EQ(onlyError({"--render", target, "--size", "8x8"}),
              "Error: cannot write '" + target + "': No such file or directory");
}

TEST_F(BadInput, ASceneThatAScriptLeftHalfChangedIsNotSaved)
{
    const std::string target = file("target.ma", "kept");
    const ProgramResult result = runHost({"-e", "createNode transform; error \"stop\"", "--save", target});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors,
              "Error: line 1: stop\nWarning: \"" + target + "\" is not written, because a script failed\n");
    EXPECT_EQ(contentsOf(target), "kept");
}

TEST_F(BadInput, AFailedTextStopsNeitherTheNextNorTheExitCode)
{
    const ProgramResult result = runHost({"-e", "error \"first\"", "-e", "print \"second\\n\""});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, "Error: line 1: first\n");
    EXPECT_EQ(result.output, "second\n");
}

} // namespace
