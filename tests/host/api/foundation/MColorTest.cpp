// MColor: a colour with opacity, and its colour models.
#include <maya/MColor.h>

#include <gtest/gtest.h>

#include <sstream>

namespace {

struct HueCase
{
    float hue;
    MColor color;
};

TEST(MColor, HasAHueInDegrees)
{
    const HueCase cases[] = {{0, {1, 0, 0}},   {60, {1, 1, 0}},  {120, {0, 1, 0}},  {180, {0, 1, 1}},
                             {240, {0, 0, 1}}, {300, {1, 0, 1}}, {30, {1, 0.5f, 0}}};
    for (const HueCase& each : cases) {
        EXPECT_EQ(MColor(MColor::kHSV, each.hue, 1.0f, 1.0f), each.color) << each.hue;
        float h = 0, s = 0, v = 0;
        EXPECT_TRUE(each.color.get(MColor::kHSV, h, s, v));
        EXPECT_FLOAT_EQ(h, each.hue);
        EXPECT_EQ(s, 1.0f);
        EXPECT_EQ(v, 1.0f);
    }
}

TEST(MColor, IsGreyWithoutSaturation)
{
    EXPECT_EQ(MColor(MColor::kHSV, 200.0f, 0.0f, 0.25f), MColor(0.25f, 0.25f, 0.25f));
    float h = 1, s = 1, v = 1;
    MColor(0, 0, 0).get(MColor::kHSV, h, s, v);
    EXPECT_EQ(h, 0.0f);
    EXPECT_EQ(s, 0.0f);
    EXPECT_EQ(v, 0.0f);
}

TEST(MColor, IsWhatPaintTakesAway)
{
    EXPECT_EQ(MColor(MColor::kCMY, 0.25f, 0.5f, 1.0f, 0.5f), MColor(0.75f, 0.5f, 0.0f, 0.5f));
    EXPECT_EQ(MColor(MColor::kCMYK, 0.0f, 0.5f, 1.0f, 0.5f), MColor(0.5f, 0.25f, 0.0f, 1.0f));
    float c = 0, m = 0, y = 0, k = 0;
    EXPECT_TRUE(MColor(0.5f, 0.25f, 0.0f).get(MColor::kCMYK, c, m, y, k));
    EXPECT_EQ(c, 0.0f);
    EXPECT_EQ(m, 0.5f);
    EXPECT_EQ(y, 1.0f);
    EXPECT_EQ(k, 0.5f);
    EXPECT_TRUE(MColor(0, 0, 0).get(MColor::kCMYK, c, m, y, k));
    EXPECT_EQ(k, 1.0f);
}

TEST(MColor, TakesSharesOfAByteAndOfTwo)
{
    const unsigned char full = 255, none = 0, some = 51;
    EXPECT_EQ(MColor(MColor::kRGB, full, none, some), MColor(1.0f, 0.0f, 0.2f, 1.0f));
    const unsigned short wide = 65535, zero = 0;
    EXPECT_EQ(MColor(MColor::kRGB, zero, wide, zero, zero), MColor(0, 1, 0, 0));
}

TEST(MColor, CalculatesByComponent)
{
    const MColor color(0.25f, 0.5f, 1.0f, 0.5f);
    EXPECT_EQ(color * 2.0f, MColor(0.5f, 1.0f, 2.0f, 1.0f));
    EXPECT_EQ(2.0f * color, color + color);
    EXPECT_EQ(color / 0.5f, color * 2.0f);
    EXPECT_EQ(color * color, MColor(0.0625f, 0.25f, 1.0f, 0.25f));
    EXPECT_EQ(color - color, -color + color);
    MColor sum(color);
    sum += color;
    sum *= color;
    sum /= 2.0f;
    EXPECT_EQ(sum, color * color);
    EXPECT_NE(color, MColor(0.25f, 0.5f, 1.0f, 1.0f)) << "opacity counts";
}

TEST(MColor, IsWrittenInParentheses)
{
    std::ostringstream out;
    out << MColor(1, 0.5f, 0);
    EXPECT_EQ(out.str(), "(1, 0.5, 0, 1)");
}

} // namespace
