// The progress line of long work.
#include "app/progress.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using std::chrono::milliseconds;
using tvxhost::app::Progress;

const Progress::Clock::time_point kStart{};

TEST(ProgressLine, IsNotShownForShortWork)
{
    std::ostringstream out;
    {
        Progress progress(out, true, "reading a.ma", kStart);
        progress.update(1, 2, kStart + milliseconds(499));
    }
    EXPECT_EQ(out.str(), "");
}

TEST(ProgressLine, IsNotShownWhereThereIsNoTerminal)
{
    std::ostringstream out;
    {
        Progress progress(out, false, "reading a.ma", kStart);
        progress.update(1, 2, kStart + milliseconds(5000));
    }
    EXPECT_EQ(out.str(), "");
}

TEST(ProgressLine, IsRewrittenInPlaceAndWipedAtTheEnd)
{
    std::ostringstream out;
    {
        Progress progress(out, true, "reading a.ma", kStart);
        progress.update(1, 4, kStart + milliseconds(500));
        progress.update(2, 4, kStart + milliseconds(550)); // too soon after the last
        progress.update(3, 4, kStart + milliseconds(600));
    }
    EXPECT_EQ(out.str(), "\r\033[Kreading a.ma: 25 %\r\033[Kreading a.ma: 75 %\r\033[K");
}

} // namespace
