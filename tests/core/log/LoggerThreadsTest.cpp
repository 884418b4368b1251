// The logger is made once, whoever asks first. A program of its own: the instance must not be there yet.
#include "../../host/support/temporaryFolder.h"
#include "HostSession.h"
#include "SystemCalls.h"
#include "core/log/tvxMayaLogger.h"

#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <thread>
#include <vector>

namespace tarvox::crowd {
namespace {

TEST(LoggerThreads, SixtyFourThreadsGetOneLoggerThatIsMadeOnce)
{
    constexpr std::size_t kThreads = 64;
    test::HostSession host;
    const tvxhost::test::TemporaryFolder folder;
    host.scene.optionVars().set("tvxPrefLogToFile", 1);
    host.scene.optionVars().set("tvxPrefLogDirectory", folder.path().string());
    const test::SystemCalls system;
    std::atomic<std::size_t> ready{0};
    std::vector<const MayaLogger*> seen(kThreads);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < kThreads; ++i)
        threads.emplace_back([&, i] {
            ++ready;
            while (ready < kThreads)
                std::this_thread::yield();
            seen[i] = &MayaLogger::getInstance();
        });
    for (std::thread& thread : threads)
        thread.join();
    const std::set<const MayaLogger*> loggers(seen.begin(), seen.end());
    EXPECT_EQ(loggers.size(), 1u);
    EXPECT_EQ(loggers.count(&MayaLogger::getInstance()), 1u);
    EXPECT_EQ(system.opened.size(), 1u) << "each construction opens the log file";
}

} // namespace
} // namespace tarvox::crowd
