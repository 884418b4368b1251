// Where nodes lie: on lines of the processor's cache, and given back on whichever thread lets go of them
// last.
#include "engine/nodeMemory.h"

#include "fixtures.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <set>
#include <thread>
#include <vector>

namespace tvxhost::engine {
namespace {

constexpr std::size_t kLine = 64;

TEST(NodeMemory, BeginsOnALineOfTheCacheAndIsNobodyElses)
{
    constexpr std::size_t kSize = sizeof(DagNode);
    std::set<char*> taken;
    for (int i = 0; i < 10'000; ++i) {
        auto* const memory = static_cast<char*>(takeNodeMemory(kSize));
        std::memset(memory, i % 256, kSize);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % kLine, 0u);
        const auto next = taken.insert(memory).first;
        const auto after = std::next(next);
        const auto room = static_cast<std::ptrdiff_t>(kSize);
        ASSERT_TRUE(next == taken.begin() || memory - *std::prev(next) >= room);
        ASSERT_TRUE(after == taken.end() || *after - memory >= room);
    }
    for (char* const memory : taken)
        giveBackNodeMemory(memory, kSize);
}

using NodeMemoryTest = SceneTest;

TEST_F(NodeMemoryTest, NodesMayBeLetGoOfOnAnyThread)
{
    constexpr int kThreads = 4;
    constexpr int kNodes = 5'000;
    std::vector<std::vector<Ref<Node>>> held(kThreads);
    for (std::vector<Ref<Node>>& mine : held)
        for (int i = 0; i < kNodes; ++i)
            mine.emplace_back(&make("transform"));
    scene.newScene();

    std::vector<std::thread> threads;
    for (std::vector<Ref<Node>>& mine : held)
        threads.emplace_back([&mine] { mine.clear(); });
    for (std::thread& thread : threads)
        thread.join();

    for (int i = 0; i < kThreads * kNodes; ++i)
        ASSERT_TRUE(make("transform").isAlive());
    EXPECT_TRUE(scene.findNode("transform" + std::to_string(kThreads * kNodes)));
}

} // namespace
} // namespace tvxhost::engine
