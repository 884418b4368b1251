// Every MEL file of the project is parsed: it is whole, or has the mistake that it is there to show.
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <regex>
#include <string>
#include <vector>

namespace {

using namespace tvxhost::test;
namespace fs = std::filesystem;

std::vector<fs::path> melFilesBelow(const fs::path& folder)
{
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(sourceRoot() / folder))
        if (entry.path().extension() == ".mel")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

/// What the checker says of a script whose run shows an error of the script's own text; empty for one that
/// can be parsed. The error of a text that the script made itself shows a line that the script does not have.
std::optional<std::string> expectedMistake(const fs::path& script)
{
    fs::path beside = script;
    const std::string expected = contentsOf(beside.replace_extension(".expected"));
    static const std::regex kMistake("Error: file: \\S+ line (\\d+): ([^\\n]*)\\n([^\\n]*)\\n( *)\\^\\n");
    std::smatch parts;
    if (!std::regex_match(expected, parts, kMistake))
        return std::nullopt;
    static const std::regex kLineEnd("\r\n|\r|\n");
    const std::string text = contentsOf(script);
    const std::vector<std::string> lines(std::sregex_token_iterator(text.begin(), text.end(), kLineEnd, -1),
                                         {});
    const auto line = static_cast<std::size_t>(std::stoi(parts[1]));
    const std::string shown = line <= lines.size() ? lines[line - 1] : std::string();
    if (shown != parts[3])
        return std::nullopt;
    return script.string() + ": line " + parts[1].str() + ", column " +
           std::to_string(parts[4].length() + 1) + ": " + parts[2].str() + "\n" + parts[3].str() + "\n" +
           parts[4].str() + "^\n";
}

/// The whole report of a mistake; of a script without one its first line, which is the verdict.
std::string verdictOf(const ProgramResult& result)
{
    return result.exitCode == 0 ? result.output.substr(0, result.output.find('\n') + 1)
                                : result.output + result.errors;
}

void expectVerdicts(const fs::path& folder, std::size_t least)
{
    const std::vector<fs::path> files = melFilesBelow(folder);
    EXPECT_GE(files.size(), least) << folder;
    for (const fs::path& file : files) {
        const ProgramResult result = runHost({"--check", file.string()});
        const std::optional<std::string> mistake = expectedMistake(file);
        EXPECT_EQ(verdictOf(result), mistake.value_or(file.string() + ": OK\n"));
        EXPECT_EQ(result.exitCode, mistake ? 1 : 0) << file;
    }
}

TEST(Check, ThePlugInsScriptsAreWhole)
{
    expectVerdicts("scripts", 3);
}

TEST(Check, TheExamplesAreWhole)
{
    expectVerdicts("examples", 4);
}

TEST(Check, TheSuiteIsWholeButForTheMistakesThatItShows)
{
    expectVerdicts("tests/host/mel", 300);
}

TEST(Check, SomeScriptsOfTheSuiteShowMistakes)
{
    const std::vector<fs::path> files = melFilesBelow("tests/host/mel");
    EXPECT_GE(std::count_if(files.begin(), files.end(), expectedMistake), 8);
}

} // namespace
