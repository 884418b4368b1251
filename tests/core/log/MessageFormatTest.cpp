// The printf-like language: every conversion, and what is none.
#include "core/log/tvxMessageFormat.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <cstdarg>
#include <string>
#include <vector>

namespace tarvox::crowd {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MessageFormat : public testing::Test
{
protected:
    std::string format(const char* text, ...)
    {
        TextBuffer result;
        std::va_list arguments;
        va_start(arguments, text);
        appendFormatted(result, text, arguments, [this](bool isLong, char character) {
            unknown.push_back(std::string(isLong ? "%l" : "%") + character);
        });
        va_end(arguments);
        return result.c_str();
    }

    std::vector<std::string> unknown;
};

TEST_F(MessageFormat, KeepsPlainText)
{
    EXPECT_EQ(format("nothing to convert\t"), "nothing to convert\t");
}

TEST_F(MessageFormat, WritesAPercentSign)
{
    EXPECT_EQ(format("%d%%", 50), "50%");
}

TEST_F(MessageFormat, WritesCharacters)
{
    EXPECT_EQ(format("<%c%c>", 'a', '%'), "<a%>");
}

TEST_F(MessageFormat, WritesInts)
{
    EXPECT_EQ(format("%d %i %d", -1, 0, INT_MAX), "-1 0 2147483647");
    EXPECT_EQ(format("%d", INT_MIN), "-2147483648");
}

TEST_F(MessageFormat, WritesUnsignedInts)
{
    EXPECT_EQ(format("%u", UINT_MAX), "4294967295");
}

TEST_F(MessageFormat, WritesLongs)
{
    EXPECT_EQ(format("%ld %li", LONG_MIN, LONG_MAX), "-9223372036854775808 9223372036854775807");
}

TEST_F(MessageFormat, NarrowsPlainFloatsAndKeepsLongOnes)
{
    EXPECT_EQ(format("%f %lf", 0.1, 0.1), "0.1 0.1");
    // The nearest float is 524289.5, which rounds to an even sixth digit.
    EXPECT_EQ(format("%f %lf", 524289.47, 524289.47), "524290 524289");
    EXPECT_EQ(format("%f|%lf", 1e300, 1e300), "inf|1e+300");
    EXPECT_EQ(format("%f|%lf", 1e-300, 1e-300), "0|1e-300");
}

TEST_F(MessageFormat, WritesStrings)
{
    EXPECT_EQ(format("[%s%s]", "crowd", ""), "[crowd]");
    EXPECT_EQ(format("%s", static_cast<const char*>(nullptr)), "(null)");
    EXPECT_EQ(format("%s", "100%d"), "100%d");
}

TEST_F(MessageFormat, WritesPointersInHexadecimalAndGoesOnInDecimal)
{
    EXPECT_EQ(format("%p %d", reinterpret_cast<void*>(0xBEEF), 16), "0xbeef 16");
}

TEST_F(MessageFormat, TakesManyArgumentsInOrder)
{
    EXPECT_EQ(format("%d %s %f %lf %u %c %ld", 1, "two", 3.5, 4.25, 5u, '6', 7L), "1 two 3.5 4.25 5 6 7");
    EXPECT_THAT(unknown, IsEmpty());
}

TEST_F(MessageFormat, LeavesUnknownConversionsOutWithoutTakingAnArgument)
{
    EXPECT_EQ(format("a%qb%d", 3), "ab3");
    EXPECT_EQ(format("a%lqb%ld", 4L), "ab4");
    EXPECT_THAT(unknown, ElementsAre("%q", "%lq"));
}

TEST_F(MessageFormat, KnowsNoOtherCharacterAsAConversion)
{
    const std::string conversions = "%cdiufspl";
    const std::string longConversions = "dif";
    for (int code = 1; code < 256; ++code) {
        const char character = static_cast<char>(code);
        unknown.clear();
        if (conversions.find(character) == std::string::npos) {
            EXPECT_EQ(format((std::string("a%") + character + "b%d").c_str(), 3), "ab3") << code;
            EXPECT_THAT(unknown, ElementsAre(std::string("%") + character));
        }
        unknown.clear();
        if (longConversions.find(character) == std::string::npos) {
            EXPECT_EQ(format((std::string("a%l") + character + "b%d").c_str(), 3), "ab3") << code;
            EXPECT_THAT(unknown, ElementsAre(std::string("%l") + character));
        }
    }
}

TEST_F(MessageFormat, KnowsNoFlagsWidthsOrPrecisions)
{
    EXPECT_EQ(format("%5d"), "d");
    EXPECT_EQ(format("%-3s"), "3s");
    EXPECT_EQ(format("%.2f"), "2f");
    EXPECT_EQ(format("%l5d"), "d");
    EXPECT_EQ(format("%llu"), "u");
    EXPECT_THAT(unknown, ElementsAre("%5", "%-", "%.", "%l5", "%ll"));
}

TEST_F(MessageFormat, DropsAPercentSignAtTheEnd)
{
    EXPECT_EQ(format("100%"), "100");
    EXPECT_EQ(format("%"), "");
    EXPECT_EQ(format("100%l"), "100");
    EXPECT_THAT(unknown, IsEmpty());
}

} // namespace
} // namespace tarvox::crowd
