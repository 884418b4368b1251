// Bad input: one clear error each, with its place, and nothing is overwritten.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <vector>

namespace {

using namespace tvxhost::test;

constexpr const char* kNotReplaced =
    "' is not replaced, because what it holds cannot be read: mend it or move it away";

class BadInput : public testing::Test
{
protected:
    std::string path(const std::string& name) const { return m_folder / name; }
    std::string file(const std::string& name, const std::string& contents)
    {
        writeFile(m_folder / name, contents);
        return path(name);
    }
    // Expects that a run prints the errors and nothing else, and fails.
    static void expectErrors(const std::vector<std::string>& arguments, const std::string& errors)
    {
        const ProgramResult result = runHost(arguments);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, errors);
    }
    // The same of a run that is to write a scene and a picture over others: they are kept.
    void expectErrorsAndNothingWritten(std::vector<std::string> arguments, const std::string& errors)
    {
        const std::string scene = file("kept.ma", "a scene");
        const std::string picture = file("kept.png", "a picture");
        arguments.insert(arguments.end(), {"--save", scene, "--render", picture});
        expectErrors(arguments, errors);
        EXPECT_EQ(contentsOf(scene), "a scene");
        EXPECT_EQ(contentsOf(picture), "a picture");
    }
    // What is said of the files that are not written.
    std::string notWritten(const std::string& reason) const
    {
        std::string warnings;
        for (const char* name : {"kept.png", "kept.ma"})
            warnings += "Warning: \"" + path(name) + "\" is not written, because " + reason + "\n";
        return warnings;
    }

    TemporaryFolder m_folder;
};

// Scenes

TEST_F(BadInput, AMissingSceneIsNamed)
{
    expectErrorsAndNothingWritten({path("missing.ma")},
                                  "Error: File not found: \"" + path("missing.ma") + "\"\n");
}

TEST_F(BadInput, AnEmptySceneIsNamed)
{
    const std::string scene = file("empty.ma", "");
    expectErrorsAndNothingWritten({scene}, "Error: The file \"" + scene + "\" is empty\n");
    EXPECT_EQ(contentsOf(scene), "");
}

TEST_F(BadInput, ABinarySceneIsNamed)
{
    const std::string contents("FOR4\0\0\1\2Maya", 12);
    const std::string scene = file("binary.ma", contents);
    expectErrorsAndNothingWritten({scene}, "Error: file: " + scene + " line 1: The file \"" + scene +
                                               "\" is Maya Binary; only Maya ASCII can be read\n");
    EXPECT_EQ(contentsOf(scene), contents);
}

TEST_F(BadInput, ASceneThatIsNoTextIsNamedWithTheLine)
{
    const std::string scene = file("zero.ma", std::string("//Maya ASCII 2016 scene\nab\0c\n", 29));
    expectErrorsAndNothingWritten({scene}, "Error: file: " + scene + " line 2: The file \"" + scene +
                                               "\" is not text: it holds a byte of value 0\n");
}

TEST_F(BadInput, AFolderIsNoScene)
{
    const std::string folder = m_folder.path();
    expectErrorsAndNothingWritten({folder}, "Error: Cannot read file \"" + folder + "\": Is a directory\n");
}

TEST_F(BadInput, APipeIsNoScene)
{
    const std::string pipe = path("pipe.ma");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    expectErrorsAndNothingWritten({pipe}, "Error: Cannot read file \"" + pipe + "\": It is not a file\n");
}

TEST_F(BadInput, ASceneMayBeWrittenOverItself)
{
    const std::string scene = file("same.ma", "//Maya ASCII 2016 scene\ncreateNode transform -n \"kept\";\n");
    const ProgramResult result = runHost({scene, "-e", "createNode -n added transform", "--save", scene});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    for (const char* line : {"createNode transform -n \"kept\";\n", "createNode transform -n \"added\";\n"})
        EXPECT_NE(contentsOf(scene).find(line), std::string::npos) << line;
}

TEST_F(BadInput, AnEndingOfTheOtherFormatIsRefusedBeforeAnythingIsDone)
{
    const std::string target = path("out.mb");
    const ProgramResult result = runHost({"-e", "print \"done\"", "--save", target});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_NE(
        result.errors.find("\"" + target + "\" would be Maya Binary; only Maya ASCII (.ma) can be written"),
        std::string::npos)
        << result.errors;
    EXPECT_FALSE(std::filesystem::exists(target));
}

// Scripts

TEST_F(BadInput, APipeIsNoScript)
{
    const std::string pipe = path("pipe.mel");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    expectErrors({"--script", pipe}, "Error: Cannot read file \"" + pipe + "\": It is not a file\n");
    expectErrors({"--check", pipe}, "Error: Cannot read file \"" + pipe + "\": It is not a file\n");
}

TEST_F(BadInput, AScriptThatIsWrittenToMeanwhileIsToldAndNotRun)
{
    const std::string whole = "print \"ran\";\n//" + std::string(32'000'000, 'x') + "\n";
    const std::string script = file("changing.mel", whole);
    std::atomic<bool> isDone{false};
    std::thread other([&] {
        while (!isDone) {
            std::filesystem::resize_file(script, whole.size() / 2);
            std::ofstream(script, std::ios::in | std::ios::out) << whole;
        }
    });
    ProgramResult result;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    do
        result = runHost({"--script", script});
    while (result.exitCode == 0 && std::chrono::steady_clock::now() < end);
    isDone = true;
    other.join();
    EXPECT_EQ(result.errors, "Error: The file \"" + script + "\" was changed while it was read\n");
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.exitCode, 1);
}

TEST_F(BadInput, AScriptsMistakeIsAtItsLine)
{
    const std::string script =
        file("seven.mel", "print \"not run\";\nint $b;\nint $c;\nint $d;\nint $e;\nint $f;\n$a = = 1;\n");
    expectErrorsAndNothingWritten({"--script", script}, "Error: file: " + script +
                                                            " line 7: Syntax error\n$a = = 1;\n     ^\n" +
                                                            notWritten("a script failed"));
}

TEST_F(BadInput, AnUnknownCommandIsAtItsLine)
{
    const std::string script =
        file("seven.mel", "int $a;\n\n\n\n\n\nnoSuchCommand $a;\nprint \"not reached\";\n");
    expectErrorsAndNothingWritten({"--script", script},
                                  "Error: file: " + script +
                                      " line 7: Cannot find procedure \"noSuchCommand\".\n" +
                                      notWritten("a script failed"));
}

TEST_F(BadInput, AnErrorOfAScriptsOwnIsAtItsLine)
{
    const std::string script = file("own.mel", "proc f()\n{\n    error \"no crowd\";\n}\nf();\n");
    expectErrors({"--script", script}, "Error: file: " + script + " line 3: no crowd\n");
}

TEST_F(BadInput, AnUnknownFlagIsAtItsLine)
{
    const std::string script = file("flag.mel", "\ncreateNode transform;\nls -noSuchFlag;\n");
    expectErrors({"--script", script}, "Error: file: " + script + " line 3: Invalid flag '-noSuchFlag'\n");
}

TEST_F(BadInput, AMissingScriptIsNamed)
{
    const std::string script = path("missing.mel");
    expectErrorsAndNothingWritten({"--script", script}, "Error: Cannot read file \"" + script + "\".\n" +
                                                            notWritten("a script failed"));
}

// Plug-ins

TEST_F(BadInput, APluginThatIsNoLibraryIsNamed)
{
    const std::string plugin = file("text.so", std::string(1000, 'x'));
    expectErrorsAndNothingWritten({"--plugin", plugin}, "Error: " + plugin + ": invalid ELF header (text)\n" +
                                                            notWritten("a plug-in was not loaded"));
}

TEST_F(BadInput, APluginThatIsNotThereIsNamed)
{
    expectErrorsAndNothingWritten({"--plugin", "noSuchPlugin"},
                                  "Error: Plug-in, \"noSuchPlugin\", was not found on MAYA_PLUG_IN_PATH.\n" +
                                      notWritten("a plug-in was not loaded"));
}

TEST_F(BadInput, ALibraryWithoutEntryPointsIsNamed)
{
    const std::filesystem::path library = TVX_CORE_LIBRARY;
    expectErrorsAndNothingWritten({"--plugin", library}, "Error: " + library.string() +
                                                             ": undefined symbol: initializePlugin (" +
                                                             library.filename().string() + ")\n" +
                                                             notWritten("a plug-in was not loaded"));
}

TEST_F(BadInput, APluginThatFailsToLoadKeepsTheFilesThatWereToBeWritten)
{
    const std::string scene = file("kept.ma", "a scene");
    const ProgramResult result =
        runHost({"--fail", "MFnPlugin::registerUI", "--plugin", pluginFile(), "--save", scene});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(linesOf(result.errors).back(),
              "Warning: \"" + scene + "\" is not written, because a plug-in was not loaded");
    EXPECT_EQ(contentsOf(scene), "a scene");
}

// Preferences

TEST_F(BadInput, ABrokenPreferencesFileIsToldAndSetAside)
{
    const std::string contents = "optionVar -iv \"a\" 1;\noptionVar -iv \"b\n";
    const std::string preferences = file("userPrefs.mel", contents);
    expectErrors({"--prefs", m_folder.path()}, "Error: '" + preferences +
                                                   "' cannot be understood in line 2; it was set aside as '" +
                                                   preferences + ".broken'\n");
    EXPECT_EQ(contentsOf(preferences + ".broken"), contents);
    EXPECT_FALSE(std::filesystem::exists(preferences));
}

TEST_F(BadInput, APreferencesFolderThatCannotBeMadeIsNamed)
{
    const std::string taken = file("taken", "a file");
    for (const std::string& folder : {taken, taken + "/prefs"})
        expectErrors({"--prefs", folder, "-e", "optionVar -iv \"a\" 1"},
                     "Error: cannot make the folder '" + folder + "': Not a directory\n");
    EXPECT_EQ(contentsOf(taken), "a file");
}

TEST_F(BadInput, APreferencesFolderThatTakesNoFilesIsNamed)
{
    // Not even for the superuser; the reason depends on who asks.
    ASSERT_EQ(open("/proc/userPrefs.mel", O_WRONLY | O_CREAT, 0600), -1);
    const std::string reason = std::strerror(errno);
    expectErrors({"--prefs", "/proc", "-e", "optionVar -iv \"a\" 1"},
                 "Error: cannot write '/proc/userPrefs.mel': " + reason + "\n");
}

TEST_F(BadInput, PreferencesThatCannotBeReplacedAreKept)
{
    std::filesystem::create_directories(m_folder / "userPrefs.mel/inside");
    expectErrors({"--prefs", m_folder.path(), "-e", "optionVar -iv \"a\" 1"},
                 "Error: Cannot read file \"" + path("userPrefs.mel") + "\": Is a directory\nError: '" +
                     path("userPrefs.mel") + kNotReplaced + "\n");
    EXPECT_TRUE(std::filesystem::exists(path("userPrefs.mel/inside")));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(m_folder.path()), {}), 1);
}

TEST_F(BadInput, PreferencesThatCannotBeReadAreNotReplaced)
{
    // A file that can be opened by anybody and read by nobody.
    const char* const unreadable = "/proc/self/mem";
    for (const char* name : {"userPrefs.mel", "windowPrefs.mel"}) {
        const TemporaryFolder folder;
        const std::string held = folder / name;
        std::filesystem::create_symlink(unreadable, held);
        const ProgramResult result = runHost(
            {"--interactive", "--prefs", folder.path(), "-e", "optionVar -iv a 1; windowPref -topEdge 3 w"});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.errors, "// Error: Cannot read file \"" + held +
                                     "\": Input/output error // \n// Error: '" + held + kNotReplaced +
                                     " // \n");
        EXPECT_TRUE(std::filesystem::is_symlink(held));
    }
}

// Files to write

TEST_F(BadInput, ASceneThatCannotBeWrittenIsNamed)
{
    const std::string target = path("no/such/folder/out.ma");
    expectErrors({"--save", target}, "Error: cannot write '" + target + "': No such file or directory\n");
    EXPECT_FALSE(std::filesystem::exists(path("no")));
}

TEST_F(BadInput, APictureThatCannotBeWrittenIsNamed)
{
    const std::string target = path("no/such.png");
    expectErrors({"--render", target, "--size", "8x8"},
                 "Error: cannot write '" + target + "': No such file or directory\n");
}

TEST_F(BadInput, WhatIsNoFileIsNotReplaced)
{
    const std::string pipe = path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    expectErrors({"--save", pipe}, "Error: cannot replace '" + pipe + "': it is not a file\n");
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST_F(BadInput, ASceneThatAScriptLeftHalfChangedIsNotSaved)
{
    expectErrorsAndNothingWritten({"-e", "createNode transform; error \"stop\""},
                                  "Error: line 1: stop\n" + notWritten("a script failed"));
}

TEST_F(BadInput, AFailedTextStopsNeitherTheNextNorTheExitCode)
{
    const ProgramResult result = runHost({"-e", "error \"first\"", "-e", "print \"second\\n\""});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, "Error: line 1: first\n");
    EXPECT_EQ(result.output, "second\n");
}

} // namespace
