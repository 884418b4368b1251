// The picture of the example scene: grid, figures, and wire cubes in both colours.
#include "../host/support/temporaryFolder.h"
#include "program.h"
#include "viewport/png.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using namespace tvxhost::test;
using tvxhost::viewport::Picture;
using tvxhost::viewport::Rgb;

constexpr Rgb kGrid{128, 128, 128};
constexpr Rgb kFigures{0, 4, 96};
constexpr Rgb kActiveProxy{255, 115, 0};  // (1.0, 0.45, 0.0)
constexpr Rgb kDormantProxy{166, 77, 26}; // (0.65, 0.3, 0.1)

/// Pixels of a colour; the last bit of a channel is OpenGL's to round.
int count(const Picture& picture, const Rgb& color)
{
    int pixels = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const Rgb pixel = picture.at(x, y);
            pixels += std::abs(pixel[0] - color[0]) <= 1 && std::abs(pixel[1] - color[1]) <= 1 &&
                      std::abs(pixel[2] - color[2]) <= 1;
        }
    }
    return pixels;
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
    EXPECT_GT(count(picture, kGrid), 1000);
    EXPECT_GT(count(picture, kFigures), 20000);
    EXPECT_GT(count(picture, kActiveProxy), 500);
    EXPECT_GT(count(picture, kDormantProxy), 500);
}

TEST_F(ExamplePicture, HasNoActiveColourWhenNothingIsSelected)
{
    const Picture picture = render({"-e", "select -cl"});
    EXPECT_EQ(count(picture, kActiveProxy), 0);
    EXPECT_GT(count(picture, kDormantProxy), 1000);
}

TEST_F(ExamplePicture, ShowsAProxyActiveWhenItsGroupIsSelected)
{
    const Picture picture = render({"-e", "select -r proxies"});
    EXPECT_EQ(count(picture, kDormantProxy), 0);
    EXPECT_GT(count(picture, kActiveProxy), 1000);
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
    EXPECT_GT(count(top, kDormantProxy), 200);
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
