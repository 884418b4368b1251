// The logger allocates nothing once it has seen a message, and nothing at all for a rejected report. A
// program of its own: it counts every allocation of the process.
#include "AllocationCounter.h"
#include "LoggerTest.h"

#include "core/log/tvxReport.h"

#include <cstddef>
#include <ostream>
#include <streambuf>
#include <string>

namespace tarvox::crowd {
namespace {

// Takes everything and keeps nothing.
class Sink : public std::streambuf
{
protected:
    std::streamsize xsputn(const char*, std::streamsize size) override { return size; }
};

class LoggerAllocation : public SharedLoggerTest
{
protected:
    LoggerAllocation() : stream(&sink)
    {
        registerLog(log, "A name that does not fit into a short string", core::kDebug);
        logger.setUseScriptEditor(false);
        logger.setOutputStream(&stream);
        logger.setLogDirectory(folder.path());
        logger.setUseFile(true);
        logger.start();
    }

    // What a thousand calls allocate, the first one apart.
    template <class Call>
    static std::size_t allocationsOf(Call call)
    {
        call();
        const std::size_t before = test::allocations();
        for (int i = 0; i < 1000; ++i)
            call();
        return test::allocations() - before;
    }

    core::Log log;
    Sink sink;
    std::ostream stream;
    const std::string text = std::string(300, 'x');
    const std::string longText = std::string(10'000, 'x');
};

TEST_F(LoggerAllocation, CountsAllocations)
{
    EXPECT_EQ(allocationsOf([&] { std::string copy(text); }), 1000u);
}

TEST_F(LoggerAllocation, OfALineIsNone)
{
    EXPECT_EQ(allocationsOf([&] { logger.log(core::kInfo, text.c_str()); }), 0u);
    EXPECT_EQ(allocationsOf([&] { logger.log(core::kInfo, longText.c_str()); }), 0u);
    EXPECT_EQ(allocationsOf([&] { logger.log(core::kDebug, text.c_str()); }), 0u);
}

TEST_F(LoggerAllocation, OfAWrittenMessageIsNone)
{
    EXPECT_EQ(allocationsOf([&] {
                  logger.write(core::kInfo, true, "%d %s %f %lf %u %p %ld", 1, text.c_str(), 2.5, 1e300, 3u,
                               &text, 4L);
              }),
              0u);
}

TEST_F(LoggerAllocation, OfAForwardedMessageIsNone)
{
    EXPECT_EQ(allocationsOf([&] { trace(log, core::kInfo, text.c_str()); }), 0u);
}

TEST_F(LoggerAllocation, OfARejectedReportIsNoneFromTheFirstOn)
{
    coreLog().setSeverityFilter(core::kCritical);
    const std::size_t before = test::allocations();
    for (int i = 0; i < 1000; ++i)
        TVX_REPORT(core::kError, "function", "text " << text << i);
    EXPECT_EQ(test::allocations() - before, 0u);
    coreLog().setSeverityFilter(core::kWarning);
}

} // namespace
} // namespace tarvox::crowd
