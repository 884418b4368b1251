// What stands before a line's text.
#include "core/log/tvxLogLine.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <string>

namespace tarvox::crowd {
namespace {

std::string linePrefix(int severity)
{
    TextBuffer line;
    appendLinePrefix(line, severity);
    return line.c_str();
}

std::string timeStamp(std::int64_t seconds)
{
    TextBuffer line;
    appendTimeStamp(line, seconds);
    return line.c_str();
}

TEST(LogLine, HasAPrefixForEverySeverity)
{
    EXPECT_EQ(linePrefix(0), "[TarvoxCrowd::CRITICAL]\t");
    EXPECT_EQ(linePrefix(1), "[TarvoxCrowd::ERROR]\t");
    EXPECT_EQ(linePrefix(2), "[TarvoxCrowd::WARNING]\t");
    EXPECT_EQ(linePrefix(3), "[TarvoxCrowd::INFO]\t");
    EXPECT_EQ(linePrefix(4), "[TarvoxCrowd::DEBUG]\t");
}

TEST(LogLine, HasNoPrefixForOtherCodes)
{
    for (const int code : {-1, 5, INT_MIN, INT_MAX})
        EXPECT_EQ(linePrefix(code), "") << code;
}

TEST(LogLine, CountsHoursMinutesAndSeconds)
{
    EXPECT_EQ(timeStamp(0), "00:00:00 ");
    EXPECT_EQ(timeStamp(65), "00:01:05 ");
    EXPECT_EQ(timeStamp(3599), "00:59:59 ");
    EXPECT_EQ(timeStamp(3600), "01:00:00 ");
}

TEST(LogLine, DoesNotWrapHoursAtADay)
{
    EXPECT_EQ(timeStamp(86399), "23:59:59 ");
    EXPECT_EQ(timeStamp(86400), "24:00:00 ");
    EXPECT_EQ(timeStamp(360000 + 61), "100:01:01 ");
}

TEST(LogLine, CountsATimeBeforeTheStartAsTheStart)
{
    EXPECT_EQ(timeStamp(-5), "00:00:00 ");
}

TEST(LogLine, IndentsByTwoBlanksPerLevel)
{
    TextBuffer line;
    line.append('x');
    appendIndentation(line, 0);
    EXPECT_STREQ(line.c_str(), "x");
    appendIndentation(line, 3);
    EXPECT_STREQ(line.c_str(), "x      ");
}

} // namespace
} // namespace tarvox::crowd
