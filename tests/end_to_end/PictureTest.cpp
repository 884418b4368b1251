// The picture of the example scene: grid, figures, and wire cubes in both colours.
#include "../host/support/temporaryFolder.h"
#include "program.h"
#include "viewport/png.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace {

using namespace tvxhost::test;
using tvxhost::viewport::Picture;
using tvxhost::viewport::Rgb;

constexpr Rgb kGrid{128, 128, 128};
constexpr Rgb kFigures{0, 4, 96};
constexpr Rgb kActiveProxy{255, 115, 0};  // (1.0, 0.45, 0.0)
constexpr Rgb kDormantProxy{166, 77, 26}; // (0.65, 0.3, 0.1)

std::map<Rgb, int> pixelsByColor(const Picture& picture)
{
    std::map<Rgb, int> counts;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x)
            ++counts[picture.at(x, y)];
    }
    return counts;
}

class ExamplePicture : public testing::Test
{
protected:
    Picture render(std::vector<std::string> extra, const std::string& size = "1280x720")
    {
        const std::filesystem::path file = m_folder / "picture.png";
        std::vector<std::string> arguments{"--plugin", pluginFile(), "--render",    file,
                                           "--size",   size,         exampleScene()};
        arguments.insert(arguments.end(), extra.begin(), extra.end());
        const ProgramResult result = runHost(arguments);
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        auto picture = tvxhost::viewport::decodePng(contentsOf(file));
        EXPECT_TRUE(picture) << picture.outcome.text;
        return std::move(picture.value);
    }

    TemporaryFolder m_folder;
};

TEST_F(ExamplePicture, ShowsGridFiguresAndProxiesInBothColours)
{
    const Picture picture = render({"--script", sourceRoot() / "examples/select_proxies.mel"});
    EXPECT_EQ(picture.width, 1280);
    EXPECT_EQ(picture.height, 720);
    std::map<Rgb, int> pixels = pixelsByColor(picture);
    EXPECT_GT(pixels[kGrid], 1000);
    EXPECT_GT(pixels[kFigures], 20000);
    EXPECT_GT(pixels[kActiveProxy], 500);
    EXPECT_GT(pixels[kDormantProxy], 500);
}

TEST_F(ExamplePicture, HasNoActiveColourWhenNothingIsSelected)
{
    std::map<Rgb, int> pixels = pixelsByColor(render({"-e", "select -cl"}));
    EXPECT_EQ(pixels[kActiveProxy], 0);
    EXPECT_GT(pixels[kDormantProxy], 1000);
}

TEST_F(ExamplePicture, ShowsAProxyActiveWhenItsGroupIsSelected)
{
    std::map<Rgb, int> pixels = pixelsByColor(render({"-e", "select -r proxies"}));
    EXPECT_EQ(pixels[kDormantProxy], 0);
    EXPECT_GT(pixels[kActiveProxy], 1000);
}

TEST_F(ExamplePicture, IsTheSameEveryTime)
{
    EXPECT_EQ(render({}).bytes, render({}).bytes);
}

TEST_F(ExamplePicture, CanLookThroughAnotherCamera)
{
    // From above, the middle of a proxy's cube is background and its outline is at its sides.
    const Picture top = render({"--camera", "top"}, "600x600");
    EXPECT_NE(top.bytes, render({}, "600x600").bytes);
    EXPECT_GT(pixelsByColor(top)[kDormantProxy], 200);
}

TEST_F(ExamplePicture, HasTheSizeThatIsAskedFor)
{
    for (const auto& [text, width, height] : {std::tuple{"1x1", 1, 1}, {"33x700", 33, 700}}) {
        const Picture picture = render({}, text);
        EXPECT_EQ(picture.width, width);
        EXPECT_EQ(picture.height, height);
    }
}

TEST_F(ExamplePicture, HasAClearEndWhereOpenGlCannotDoIt)
{
    const std::filesystem::path file = m_folder / "large.png";
    const ProgramResult result = runHost({"--render", file, "--size", "100000x10"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors,
                testing::StartsWith("Error: cannot draw the viewport: a picture of 100000x10 is larger "
                                    "than OpenGL can draw here, at most "));
    EXPECT_EQ(linesOf(result.errors).size(), 1u);
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(ExamplePicture, OfACameraThatDoesNotExistIsAnError)
{
    const ProgramResult result = runHost({"--render", m_folder / "x.png", "--camera", "nobody"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors,
              "Error: cannot draw the viewport: camera \"nobody\": No object matches name: nobody\n");
}

} // namespace
