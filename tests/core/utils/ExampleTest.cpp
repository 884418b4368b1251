// The example of the utility class: it runs as its users run it, and the documentation shows what it is.
#include "../../end_to_end/program.h"
#include "../../host/support/temporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace tarvox::crowd::test {
namespace {

using namespace tvxhost::test;

using testing::HasSubstr;

TEST(UtilitiesExample, UsesEachFamily)
{
    const TemporaryFolder project;
    const std::string script = sourceRoot() / "examples" / "utilities.mel";
    const ProgramResult result =
        runHost({"--plugin", pluginFile(), "-e",
                 "workspace -openWorkspace \"" + project.path().string() + "\"; source \"" + script + "\""});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output,
              "attributes: from 2.5 to 5\n"
              "placement: at 12, seen\n"
              "placement: at 24, hidden\n"
              "connections: fed by leader, then by nobody\n"
              "geometry: open, 6 border edges; footprint (-2, -1) (2, -1) (2, 1) (-2, 1)\n"
              "geometry: closed, 0 border edges; footprint (-10.5, -0.5) (-9.5, -0.5) (-9.5, 0.5) (-10.5, "
              "0.5)\n"
              "meshes: floorShape crateShape\n"
              "note: renders with the crowd\n"
              "meshes:\n"
              "particle: mass 1 at 4 5 6\n"
              "particle: no such particle\n"
              "files: a folder for plaza\n"
              "windows: from 0 0, 320 by 200\n"
              "windows: from 10 20, 320 by 200\n"
              "units: a frame is 0.04 s, a metre is 1\n"
              "pal\n"); // the value of the last statement that has one, which sets the unit
    EXPECT_EQ(result.errors,
              "Warning: [TarvoxCrowd::WARNING]\tCrowd Render: No mesh selected, please select a "
              "mesh first\n");
    EXPECT_TRUE(std::filesystem::is_directory(project.path("crowd")));
}

/// The code blocks of a text.
std::vector<std::string> codeBlocks(const std::string& text)
{
    const std::string begin = "```cpp\n";
    std::vector<std::string> blocks;
    for (std::size_t at = text.find(begin); at != std::string::npos; at = text.find(begin, at)) {
        at += begin.size();
        const std::size_t end = text.find("```", at);
        blocks.push_back(text.substr(at, end - at));
        at = end;
    }
    return blocks;
}

TEST(UtilitiesExample, IsWhatTheDocumentationShows)
{
    const auto example = sourceRoot() / "examples" / "utilities";
    const std::string sources =
        contentsOf(example / "families.cpp") + contentsOf(example / "crowdUtilitiesPlugin.cpp");
    const std::vector<std::string> blocks = codeBlocks(contentsOf(sourceRoot() / "docs" / "utilities.md"));
    EXPECT_EQ(blocks.size(), 10u); // one for each family
    for (const std::string& block : blocks)
        EXPECT_THAT(sources, HasSubstr(block));
}

} // namespace
} // namespace tarvox::crowd::test
