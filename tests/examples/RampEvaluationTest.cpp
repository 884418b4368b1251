// The value of a ramp at a position.
#include "rampEvaluation.h"

#include <gtest/gtest.h>

namespace gradientShader {
namespace {

using Entries = std::vector<Entry<float>>;

float at(const Entries& entries, float position)
{
    return valueAt(entries, position, -1.0f);
}

TEST(Ramp, WithoutEntriesIsTheOtherValue)
{
    EXPECT_EQ(at({}, 0.5f), -1.0f);
}

TEST(Ramp, OfOneEntryIsItsValueEverywhere)
{
    const Entries one = {{0.5f, 3.0f, Interpolation::linear}};
    for (const float position : {-1.0f, 0.5f, 2.0f})
        EXPECT_EQ(at(one, position), 3.0f);
}

TEST(Ramp, GoesOnAsItsEntriesSay)
{
    const Entries ramp = {{0.0f, 0.0f, Interpolation::none},
                          {1.0f, 4.0f, Interpolation::linear},
                          {2.0f, 8.0f, Interpolation::smooth},
                          {3.0f, 16.0f, Interpolation::linear}};
    EXPECT_EQ(at(ramp, -1.0f), 0.0f);
    EXPECT_EQ(at(ramp, 0.75f), 0.0f);
    EXPECT_EQ(at(ramp, 1.0f), 4.0f);
    EXPECT_EQ(at(ramp, 1.25f), 5.0f);
    EXPECT_EQ(at(ramp, 2.0f), 8.0f);
    EXPECT_EQ(at(ramp, 2.25f), 9.25f); // 3/16 - 2/64 = 5/32 of the way
    EXPECT_EQ(at(ramp, 2.5f), 12.0f);
    EXPECT_EQ(at(ramp, 3.0f), 16.0f);
    EXPECT_EQ(at(ramp, 9.0f), 16.0f);
}

TEST(Ramp, DoesNotHangOnTheOrderOfItsEntries)
{
    const Entries ramp = {{1.0f, 4.0f, Interpolation::linear}, {0.0f, 0.0f, Interpolation::linear}};
    EXPECT_EQ(at(ramp, 0.25f), 1.0f);
}

TEST(Ramp, JumpsWhereTwoEntriesAreAtOnePlace)
{
    const Entries ramp = {{0.0f, 0.0f, Interpolation::linear},
                          {1.0f, 4.0f, Interpolation::linear},
                          {1.0f, 8.0f, Interpolation::linear},
                          {2.0f, 0.0f, Interpolation::linear}};
    EXPECT_EQ(at(ramp, 0.5f), 2.0f);
    EXPECT_EQ(at(ramp, 1.0f), 8.0f);
    EXPECT_EQ(at(ramp, 1.5f), 4.0f);
}

TEST(Ramp, TakesAnUnknownInterpolationForNone)
{
    const Entries ramp = {{0.0f, 1.0f, static_cast<Interpolation>(7)}, {1.0f, 4.0f, Interpolation::linear}};
    EXPECT_EQ(at(ramp, 0.5f), 1.0f);
}

} // namespace
} // namespace gradientShader
