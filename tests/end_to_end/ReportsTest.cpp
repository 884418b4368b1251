// Reports: summaries of scenes, checks of scripts, lists of nodes; as text and as JSON.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace tvxhost::test;
using nlohmann::json;
using testing::Contains;
using testing::HasSubstr;

const char* const kScene = "//Maya ASCII 2016 scene\n"
                           "requires maya \"2016\";\n"
                           "createNode transform -n \"a\";\n"
                           "createNode transform -n \"b\" -p \"a\";\n"
                           "createNode noSuchType -n \"c\";\n"
                           "connectAttr \"a.tx\" \"b.ty\";\n"
                           "// End of small.ma\n";

TEST(SceneSummaryReport, IsOneJsonObject)
{
    const TemporaryFolder folder;
    writeFile(folder / "small.ma", kScene);
    const ProgramResult result = runHost({"--summary=json", folder / "small.ma"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const json summary = json::parse(result.output);
    EXPECT_EQ(summary["commands"]["createNode"], 3);
    EXPECT_EQ(summary["commands"]["connectAttr"], 1);
    EXPECT_EQ(summary["nodes"]["transform"], 2);
    EXPECT_EQ(summary["nodes"]["noSuchType"], 1);
    EXPECT_EQ(summary["connections"], 1);
    EXPECT_EQ(summary["errors"], 0);
    EXPECT_EQ(linesOf(result.output).size(), 1u);
}

TEST(SceneSummaryReport, IsTextForPeopleOtherwise)
{
    const TemporaryFolder folder;
    writeFile(folder / "small.ma", kScene);
    const ProgramResult result = runHost({"--summary", folder / "small.ma"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(linesOf(result.output), Contains(testing::ContainsRegex("transform.*2|2.*transform")));
}

TEST(NodeListReport, NamesTypeAndPath)
{
    const TemporaryFolder folder;
    writeFile(folder / "small.ma", kScene);
    const ProgramResult result = runHost({"--list-nodes", folder / "small.ma"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const std::vector<std::string> lines = linesOf(result.output);
    for (const char* line :
         {"transform |a", "transform |a|b", "noSuchType c", "time time1", "camera |persp|perspShape"})
        EXPECT_THAT(lines, Contains(line));
}

TEST(ScriptCheckReport, GivesTheVerdictTheProceduresAndTheStatements)
{
    const TemporaryFolder folder;
    writeFile(folder / "good.mel",
              "global proc string[] both(string $a, int $n[])\n{\n    return {$a};\n}\nprint 1;\n");
    const ProgramResult text = runHost({"--check", folder / "good.mel"});
    EXPECT_EQ(text.exitCode, 0) << text.errors;
    EXPECT_THAT(text.output, HasSubstr("both"));
    const ProgramResult asJson = runHost({"--check=json", folder / "good.mel"});
    const json report = json::parse(asJson.output);
    EXPECT_EQ(report["procedures"][0]["name"], "both");
    EXPECT_EQ(report["procedures"][0]["global"], true);
}

TEST(ScriptCheckReport, RunsNothing)
{
    const TemporaryFolder folder;
    writeFile(folder / "noisy.mel", "error \"ran\";\n");
    const ProgramResult result = runHost({"--check", folder / "noisy.mel"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
}

TEST(ScriptCheckReport, NamesTheLineOfTheFirstMistake)
{
    const TemporaryFolder folder;
    writeFile(folder / "bad.mel", "int $a = 1;\nint $b = 2;\nif ($a { print 1; }\n");
    const ProgramResult result = runHost({"--check=json", folder / "bad.mel"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(json::parse(result.output)["error"]["line"], 3);
}

} // namespace
