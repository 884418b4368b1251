// Numbers and strings as scene files hold them.
#include "scene/valueText.h"
#include "scene/numberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>

namespace tvxhost::scene {

TEST(NumberText, isShortWhenNineDigitsReadBackEqual)
{
    EXPECT_EQ(doubleText(0), "0");
    EXPECT_EQ(doubleText(1), "1");
    EXPECT_EQ(doubleText(-0.375), "-0.375");
    EXPECT_EQ(doubleText(100.1), "100.1");
    EXPECT_EQ(doubleText(1e20), "1e+20");
    EXPECT_EQ(doubleText(123456789), "123456789");
}

TEST(NumberText, hasSeventeenDigitsOtherwise)
{
    EXPECT_EQ(doubleText(1.0 / 3), "0.33333333333333331");
    EXPECT_EQ(doubleText(34.999999999999993), "34.999999999999993");
    EXPECT_EQ(doubleText(8.8262730457699945e-15), "8.8262730457699945e-15");
    EXPECT_EQ(doubleText(static_cast<double>(0.8f)), "0.80000001192092896");
}

TEST(NumberText, ofFloatsInGroupsReadsBackEqual)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> numbers(-1000.f, 1000.f);
    for (int i = 0; i < 10000; ++i) {
        const float value = numbers(random);
        std::string text;
        appendFloat(text, value);
        ASSERT_EQ(std::strtof(text.c_str(), nullptr), value) << text;
    }
    std::string text;
    appendFloat(text, 0.05f);
    EXPECT_EQ(text, "0.050000001");
}

TEST(UiNumberText, givesTheVeryNumberBackThatWasRead)
{
    const double factor = std::acos(-1.0) / 180;
    std::mt19937 random(11);
    std::uniform_real_distribution<double> degrees(-720, 720);
    for (int i = 0; i < 10000; ++i) {
        const double internal = degrees(random) * factor;
        const std::string text = uiNumberText(internal, factor);
        ASSERT_EQ(std::strtod(text.c_str(), nullptr) * factor, internal) << text;
    }
    EXPECT_EQ(uiNumberText(90 * factor, factor), "90");
    EXPECT_EQ(uiNumberText(48.0 / 24, 1.0 / 24), "48");
}

TEST(UiNumberText, settlesForNumbersThatNoTextGives)
{
    const double factor = std::acos(-1.0) / 180;
    std::mt19937 random(13);
    std::uniform_real_distribution<double> radians(-7, 7);
    for (int i = 0; i < 10000; ++i) {
        const std::string first = uiNumberText(radians(random), factor);
        const std::string second = uiNumberText(std::strtod(first.c_str(), nullptr) * factor, factor);
        ASSERT_EQ(first, second);
    }
}

/// A line of that many characters, its end included.
std::string lineOf(std::size_t length)
{
    return std::string(length - 1, 'x') + '\n';
}
std::string quotedLineOf(std::size_t length)
{
    return std::string(length - 1, 'x') + "\\n";
}

TEST(StringText, breaksBehindTheFirstLineEndPastAThousandCharacters)
{
    EXPECT_EQ(stringText(lineOf(500) + lineOf(524)), '"' + quotedLineOf(500) + quotedLineOf(524) + '"');
    EXPECT_EQ(stringText(lineOf(500) + lineOf(524) + lineOf(10) + lineOf(20)),
              "(\n\t\t\"" + quotedLineOf(500) + quotedLineOf(524) + quotedLineOf(10) + "\"\n\t\t+ \"" +
                  quotedLineOf(20) + "\")");
}

TEST(StringText, breaksBeforeALineThatIsTooLongForWhatIsThere)
{
    EXPECT_EQ(stringText(lineOf(75) + lineOf(1516)),
              "(\n\t\t\"" + quotedLineOf(75) + quotedLineOf(1516) + "\")");
    EXPECT_EQ(stringText(lineOf(548) + lineOf(1507)),
              "(\n\t\t\"" + quotedLineOf(548) + "\"\n\t\t+ \"" + quotedLineOf(1507) + "\")");
}

TEST(StringText, standsInParenthesesWhenItIsLongWithoutLineEnds)
{
    const std::string text(3411, 'x');
    EXPECT_EQ(stringText(text), "(\n\t\t\"" + text + "\")");
}

} // namespace tvxhost::scene
