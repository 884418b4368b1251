// The locator rulerLocator, as its script uses it and as it looks.
#include "exampleRun.h"
#include "viewport/png.h"

#include <cstdlib>

namespace tvxhost::test {
namespace {

using viewport::Picture;
using viewport::Rgb;

constexpr Rgb kLead{67, 255, 163};
constexpr Rgb kYard{255, 128, 0}; // its own colour, (1, 0.5, 0)

class RulerLocator : public ExampleRun
{
protected:
    /// A picture from the front, 220 cm wide: 2 pixels to a centimetre.
    Picture drawn(std::vector<std::string> arguments)
    {
        const std::string picture = file("ruler.png");
        arguments.insert(arguments.end(),
                         {"-e", "setAttr front.tx 50; setAttr frontShape.orthographicWidth 220", "--camera",
                          "front", "--render", picture, "--size", "440x440"});
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        auto decoded = viewport::decodePng(contentsOf(picture));
        EXPECT_TRUE(decoded) << decoded.outcome.text;
        return std::move(decoded.value);
    }
    static bool isAt(const Picture& picture, int x, int y, const Rgb& color)
    {
        const Rgb pixel = picture.at(x, y);
        return std::abs(pixel[0] - color[0]) <= 1 && std::abs(pixel[1] - color[1]) <= 1 &&
               std::abs(pixel[2] - color[2]) <= 1;
    }
    static int count(const Picture& picture, const Rgb& color)
    {
        int pixels = 0;
        for (int y = 0; y < picture.height; ++y)
            for (int x = 0; x < picture.width; ++x)
                pixels += isAt(picture, x, y, color);
        return pixels;
    }
};

TEST_F(RulerLocator, IsAsLongAsItIsTold)
{
    expectPrinted("rulerLocator.mel", "metre: from 0 1 to 100 6\n"
                                      "yard: from 0 -1 to 91.44 3\n"
                                      "the yard is 91.44 centimetres long\n");
}

TEST_F(RulerLocator, IsSavedInCentimetresAndReadAgain)
{
    const std::string scene = sceneMadeBy("rulerLocator.mel", "rulers.ma");
    EXPECT_EQ(nodeText(contentsOf(scene), "yardShape"),
              "createNode rulerLocator -n \"yardShape\" -p \"yard\";\n"
              "\tsetAttr -k off \".v\";\n"
              "\tsetAttr \".ln\" 91.44;\n"
              "\tsetAttr \".ts\" 4;\n"
              "\tsetAttr \".dv\" 3;\n"
              "\tsetAttr \".rc\" -type \"float3\" 1 0.5 0 ;\n");
    expectReadingAndSavingChangesNothing(scene);
}

TEST_F(RulerLocator, IsDrawnInTheColourOfItsStatus)
{
    const Picture oneSelected = drawn({"--script", script("rulerLocator.mel")});
    // A line of 200 pixels and eleven ticks above it, three of 10 and eight of 5, less where they meet.
    EXPECT_NEAR(count(oneSelected, kLead), 200 + 3 * 10 + 8 * 5, 12);
    EXPECT_NEAR(count(oneSelected, kYard), 183 + 2 * 8 + 2 * 4, 6);
    const Picture noneSelected = drawn({"--script", script("rulerLocator.mel"), "-e", "select -clear"});
    EXPECT_EQ(count(noneSelected, kLead), 0);
    EXPECT_NEAR(count(noneSelected, Rgb{0, 128, 255}), 270, 12);
    EXPECT_EQ(count(noneSelected, kYard), count(oneSelected, kYard));
}

TEST_F(RulerLocator, LooksTheSameWhenItIsReadAgain)
{
    const std::string scene = file("rulers.ma");
    const Picture before = drawn({"--script", script("rulerLocator.mel"), "--save", scene});
    const Picture after = drawn({scene, "-e", "select -r metre"});
    EXPECT_EQ(before.bytes, after.bytes);
}

TEST_F(RulerLocator, KeepsItsLimits)
{
    const ProgramResult result =
        run({"-e", "createNode rulerLocator -n ruler; setAttr -clamp \"ruler.divisions\" 0", "-e",
             "setAttr -clamp \"ruler.length\" -5", "-e", "getAttr ruler.divisions", "-e",
             "getAttr ruler.length"});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "ruler\n1\n0\n");
}

TEST_F(RulerLocator, DoesNotLoadWithoutItsAttributes)
{
    expectLoadingFailsWith({"MFnUnitAttribute::create:1", "MFnUnitAttribute::create:2",
                            "MFnNumericAttribute::create:1", "MFnNumericAttribute::createColor:1",
                            "MPxNode::addAttribute:4", "MFnPlugin::registerNode:1"});
}

} // namespace
} // namespace tvxhost::test
