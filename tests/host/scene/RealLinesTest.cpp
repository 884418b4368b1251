// Scenes that real Maya wrote are written back as Maya wrote them: statement by statement, letter by letter.
#include "scene/reader.h"
#include "scene/sceneText.h"
#include "scene/writer.h"

#include "engine/scene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <map>
#include <string>

namespace {

using namespace tvxhost;

/// How often each statement stands in a text. Further lines of a statement begin with two tabs.
std::map<std::string, std::size_t> statementsOf(const std::string& text)
{
    std::map<std::string, std::size_t> statements;
    for (std::size_t begin = 0; begin < text.size();) {
        std::size_t end = std::min(text.find('\n', begin), text.size());
        while (text.compare(end, 3, "\n\t\t") == 0)
            end = std::min(text.find('\n', end + 1), text.size());
        if (text.compare(begin, 2, "//") != 0)
            ++statements[text.substr(begin, end - begin)];
        begin = end + 1;
    }
    return statements;
}

std::string withoutCarriageReturns(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return text;
}

// What is said differently, of a thousand statements: six of the header (this host is one version, the scenes
// are of many), one of default nodes of which other versions have more or fewer, three of files that other
// programs wrote (long names of flags and attributes, numbers as Windows prints them), and a few each of
// breaks in lines of addAttr, of sizes that count elements that are gone, and of groups whose parts are fed.
TEST(RealLines, areWrittenBackLetterByLetter)
{
    std::size_t all = 0;
    std::size_t same = 0;
    std::size_t scenes = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(TVX_SCENES_DIR)) {
        if (entry.path().extension() != ".ma")
            continue;
        engine::Scene scene;
        (void)scene::openScene(scene, entry.path());
        const auto text = scene::readFile(entry.path());
        ASSERT_TRUE(text) << text.outcome.text;
        const auto before = statementsOf(withoutCarriageReturns(text.value));
        const auto after = statementsOf(scene::sceneText(scene, entry.path().filename().string()));
        for (const auto& [statement, count] : before) {
            all += count;
            if (const auto found = after.find(statement); found != after.end())
                same += std::min(count, found->second);
        }
        ++scenes;
    }
    EXPECT_EQ(scenes, 90u);
    EXPECT_GE(same * 1000, all * 986) << same << " of " << all;
}

} // namespace
