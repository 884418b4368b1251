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
    char line[sizeof(LinePrefix::text)];
    return {line, putLinePrefix(line, severity)};
}

std::string timeStamp(std::int64_t seconds)
{
    char line[kTimeStampRoom];
    return {line, putTimeStamp(line, seconds)};
}

std::string indentation(int levels)
{
    char line[100];
    return {line, putIndentation(line, levels)};
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

TEST(LogLine, HasRoomForTheLongestTimeStamp)
{
    // 2^63 - 1 seconds are 2562047788015215 hours, 30 minutes and 7 seconds.
    EXPECT_EQ(timeStamp(INT64_MAX), "2562047788015215:30:07 ");
    EXPECT_LT(timeStamp(INT64_MAX).size(), kTimeStampRoom) << "and for the blank behind it";
}

TEST(LogLine, IndentsByTwoBlanksPerLevel)
{
    EXPECT_EQ(indentation(0), "");
    EXPECT_EQ(indentation(3), "      ");
}

TEST(LogLine, HasRoomForAllItsPartsAndItsEnd)
{
    const std::string most = linePrefix(0) + timeStamp(INT64_MAX) + " " + indentation(3) + "text";
    EXPECT_GT(lineRoom(3, 4), most.size());
}

} // namespace
} // namespace tarvox::crowd
