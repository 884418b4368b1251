// Reports: summaries of scenes, checks of scripts, lists of nodes; as text and as JSON, each compared whole.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <regex>
#include <string>

namespace {

using namespace tvxhost::test;
using nlohmann::json;
using testing::IsSupersetOf;

class Reports : public testing::Test
{
protected:
    std::string file(const std::string& name, const std::string& contents)
    {
        writeFile(m_folder / name, contents);
        return m_folder / name;
    }
    // A scene with a node of a type that nobody knows, which is one warning.
    std::string scene()
    {
        return file("small.ma", "//Maya ASCII 2016 scene\n"
                                "requires maya \"2016\";\n"
                                "createNode transform -n \"a\";\n"
                                "createNode transform -n \"b\" -p \"a\";\n"
                                "createNode noSuchType -n \"c\";\n"
                                "connectAttr \"a.tx\" \"b.ty\";\n"
                                "// End of small.ma\n");
    }
    std::string warning()
    {
        return "Warning: file: " + scene() +
               " line 5: Unrecognized node type 'noSuchType'; its nodes are kept as they are in the file.\n";
    }
    static void expectPrinted(const std::vector<std::string>& arguments, int exitCode,
                              const std::string& output, const std::string& errors = {})
    {
        const ProgramResult result = runHost(arguments);
        EXPECT_EQ(result.exitCode, exitCode);
        EXPECT_EQ(result.output, output);
        EXPECT_EQ(result.errors, errors);
    }

    TemporaryFolder m_folder;
};

TEST_F(Reports, OfASceneIsOneJsonObjectOnOneLine)
{
    const ProgramResult result = runHost({"--summary=json", scene()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(linesOf(result.output).size(), 1u);
    json report = json::parse(result.output);
    EXPECT_GT(report.at("peakMemory"), 1'000'000); // bytes: less than any program of this size takes
    report.erase("peakMemory");
    EXPECT_EQ(report, json({{"file", scene()},
                            {"version", "2016"},
                            {"statements", 5},
                            {"commands", {{"connectAttr", 1}, {"createNode", 3}, {"requires", 1}}},
                            {"nodes", {{"noSuchType", 1}, {"transform", 2}}},
                            {"unknownNodes", {{"noSuchType", 1}}},
                            {"meshes", json::array()},
                            {"plugins", json::array()},
                            {"connections", 1},
                            {"keptStatements", 1},
                            {"warnings", 1},
                            {"errors", 0}}));
    EXPECT_EQ(result.errors, warning());
}

TEST_F(Reports, OfASceneIsTextForPeopleOtherwise)
{
    const ProgramResult result = runHost({"--summary", scene()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(std::regex_replace(result.output, std::regex("memory: [1-9][0-9]* MB"), "memory: N MB"),
              "file: " + scene() +
                  "\n"
                  "version: 2016\n"
                  "statements: 5\n"
                  "  connectAttr: 1\n"
                  "  createNode: 3\n"
                  "  requires: 1\n"
                  "nodes: 3\n"
                  "  noSuchType: 1\n"
                  "  transform: 2\n"
                  "unknown nodes: 1\n"
                  "  noSuchType: 1\n"
                  "meshes: 0\n"
                  "plug-ins: \n"
                  "connections: 1\n"
                  "kept statements: 1\n"
                  "peak memory: N MB\n"
                  "warnings: 1\n"
                  "errors: 0\n");
    EXPECT_EQ(result.errors, warning());
}

TEST_F(Reports, OfNodesNameTypeAndPath)
{
    const ProgramResult result = runHost({"--list-nodes", scene()});
    EXPECT_EQ(result.exitCode, 0);
    const std::vector<std::string> lines = linesOf(result.output);
    EXPECT_THAT(lines, IsSupersetOf({"time time1", "camera |persp|perspShape"}));
    ASSERT_GE(lines.size(), 3u);
    const std::vector<std::string> last(lines.end() - 3, lines.end());
    EXPECT_EQ(last, (std::vector<std::string>{"transform |a", "transform |a|b", "noSuchType c"}));
}

TEST_F(Reports, OfAGoodScriptGiveTheVerdictTheStatementsAndTheProcedures)
{
    const std::string script = file(
        "good.mel", "global proc string[] both(string $a, int $n[])\n{\n    return {$a};\n}\nprint 1;\n");
    expectPrinted({"--check", script}, 0,
                  script + ": OK\n"
                           "Statements: command 1 proc 1 return 1\n"
                           "Calls: print 1\n"
                           "Procedures: 1\n"
                           "  line 1: global proc string[] both(string $a, int $n[])\n");
    expectPrinted({"--check=json", script}, 0,
                  json({{"file", script},
                        {"ok", true},
                        {"commands", {{"print", 1}}},
                        {"statements", {{"command", 1}, {"proc", 1}, {"return", 1}}},
                        {"procedures", json::array({{{"global", true},
                                                     {"line", 1},
                                                     {"name", "both"},
                                                     {"parameters", {"string $a", "int $n[]"}},
                                                     {"result", "string[]"}}})}})
                          .dump() +
                      "\n");
}

TEST_F(Reports, OfABrokenScriptNameTheLineOfTheFirstMistake)
{
    const std::string script = file("bad.mel", "int $a = 1;\nint $b = 2;\nif ($a { print 1; }\n");
    expectPrinted({"--check", script}, 1,
                  script + ": line 3, column 8: Syntax error\nif ($a { print 1; }\n       ^\n");
    const ProgramResult result = runHost({"--check=json", script});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(json::parse(result.output)["error"], json({{"line", 3},
                                                         {"column", 8},
                                                         {"message", "Syntax error"},
                                                         {"text", "if ($a { print 1; }\n       ^"}}));
    EXPECT_EQ(json::parse(result.output)["ok"], false);
}

TEST_F(Reports, OfAScriptRunNothing)
{
    const std::string script = file("noisy.mel", "error \"ran\";\n");
    expectPrinted({"--check", script}, 0,
                  script + ": OK\nStatements: command 1\nCalls: error 1\nProcedures: 0\n");
}

TEST_F(Reports, OfAScriptThatIsNotThereAreOneError)
{
    const std::string script = m_folder / "missing.mel";
    expectPrinted({"--check", script}, 1, "", "Error: File not found: \"" + script + "\"\n");
}

} // namespace
