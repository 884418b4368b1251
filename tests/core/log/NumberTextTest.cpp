// Numbers are written as a stream in its default state, and printf's "%g", write them.
#include "core/log/tvxNumberText.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>
#include <string>

namespace tarvox::crowd {
namespace {

std::string floating(double value)
{
    TextBuffer text;
    appendFloating(text, value);
    return text.c_str();
}

std::string printed(double value)
{
    char text[64];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

TEST(NumberText, AppendsToWhatIsThere)
{
    TextBuffer text;
    text.append('a');
    appendDecimal(text, -5L);
    appendDecimal(text, 7u);
    appendFloating(text, 0.5);
    appendPointer(text, nullptr);
    EXPECT_STREQ(text.c_str(), "a-570.50");
}

TEST(NumberText, WritesTheLimitsOfIntegers)
{
    TextBuffer text;
    appendDecimal(text, LONG_MIN);
    text.append(' ');
    appendDecimal(text, LONG_MAX);
    text.append(' ');
    appendDecimal(text, UINT_MAX);
    EXPECT_STREQ(text.c_str(), "-9223372036854775808 9223372036854775807 4294967295");
}

TEST(NumberText, KeepsSixSignificantDigits)
{
    EXPECT_EQ(floating(3.14159265358979), "3.14159");
    EXPECT_EQ(floating(2.0 / 3.0), "0.666667");
    EXPECT_EQ(floating(-123456.7), "-123457");
    EXPECT_EQ(floating(0.000123456789), "0.000123457");
}

TEST(NumberText, LeavesOutZerosAtTheEnd)
{
    EXPECT_EQ(floating(1.0), "1");
    EXPECT_EQ(floating(100.0), "100");
    EXPECT_EQ(floating(0.25), "0.25");
    EXPECT_EQ(floating(9.9999999), "10");
    EXPECT_EQ(floating(0.0), "0");
    EXPECT_EQ(floating(-0.0), "-0");
}

TEST(NumberText, TurnsToExponentsWhereAStreamDoes)
{
    EXPECT_EQ(floating(1e6), "1e+06");
    EXPECT_EQ(floating(999999.0), "999999");
    EXPECT_EQ(floating(999999.5), "1e+06");
    EXPECT_EQ(floating(0.0001), "0.0001");
    EXPECT_EQ(floating(0.00001), "1e-05");
    EXPECT_EQ(floating(1.5e300), "1.5e+300");
    EXPECT_EQ(floating(-2.5e-300), "-2.5e-300");
}

TEST(NumberText, NamesWhatIsNoNumber)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(floating(infinity), "inf");
    EXPECT_EQ(floating(-infinity), "-inf");
    EXPECT_EQ(floating(std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(NumberText, RoundsTiesOfTheSixthDigitAsPrintfDoes)
{
    for (const double tie :
         {100000.5, 100001.5, 12345.25, 12345.75, 1.000005, 0.15625, 0.000244140625, 524288.5})
        EXPECT_EQ(floating(tie), printed(tie)) << tie;
}

TEST(NumberText, AgreesWithPrintfAroundEveryPowerOfTen)
{
    for (int power = -8; power <= 8; ++power)
        for (int steps = -3; steps <= 3; ++steps) {
            double value = std::strtod(("1e" + std::to_string(power)).c_str(), nullptr);
            for (int i = 0; i < std::abs(steps); ++i)
                value = std::nextafter(value, steps < 0 ? 0.0 : HUGE_VAL);
            EXPECT_EQ(floating(value), printed(value)) << power << " " << steps;
            EXPECT_EQ(floating(-value), printed(-value)) << power << " " << steps;
        }
}

TEST(NumberText, AgreesWithPrintfOnNumbersOfEverySize)
{
    std::mt19937_64 random(2016);
    std::uniform_real_distribution<double> magnitude(-7.0, 8.0);
    for (int i = 0; i < 200000; ++i) {
        const double value = std::pow(10.0, magnitude(random));
        ASSERT_EQ(floating(value), printed(value));
        ASSERT_EQ(floating(static_cast<float>(value)), printed(static_cast<float>(value)));
    }
}

TEST(NumberText, AgreesWithPrintfOnAnyBits)
{
    std::mt19937_64 random(2024);
    for (int i = 0; i < 100000; ++i) {
        const std::uint64_t bits = random();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        ASSERT_EQ(floating(value), printed(value));
    }
}

TEST(NumberText, WritesPointersAsAStreamDoes)
{
    int object = 0;
    for (const void* pointer : {static_cast<const void*>(&object), reinterpret_cast<const void*>(0x1AF),
                                static_cast<const void*>(nullptr)}) {
        TextBuffer text;
        appendPointer(text, pointer);
        std::ostringstream stream;
        stream << pointer;
        EXPECT_EQ(text.c_str(), stream.str());
    }
}

} // namespace
} // namespace tarvox::crowd
