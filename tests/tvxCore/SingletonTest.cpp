// The singleton: made once, from any thread; destroyed with its library; made anew when asked for after that.
#include <tvxCore/Singleton.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace tarvox::core {
namespace {

using testing::ElementsAre;

class Counted : public Singleton<Counted>
{
    friend class Singleton<Counted>;

    // Takes so long that all who ask at once have found none.
    Counted()
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        ++made;
    }
    ~Counted() override = default;

public:
    static std::atomic<int> made;
};

std::atomic<int> Counted::made{0};

TEST(Singleton, IsMadeOnceWhenManyThreadsAskAtOnce)
{
    constexpr std::size_t kThreads = 64;
    std::atomic<bool> go{false};
    std::vector<const Counted*> seen(kThreads);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < kThreads; ++i)
        threads.emplace_back([&, i] {
            while (!go)
                std::this_thread::yield();
            seen[i] = &Counted::getInstance();
        });
    go = true;
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(Counted::made, 1);
    EXPECT_EQ(std::set<const Counted*>(seen.begin(), seen.end()).size(), 1u);
}

class Reluctant : public Singleton<Reluctant>
{
    friend class Singleton<Reluctant>;

    Reluctant()
    {
        if (++tries == 1)
            throw std::runtime_error("not yet");
    }
    ~Reluctant() override = default;

public:
    static int tries;
};

int Reluctant::tries = 0;

TEST(Singleton, WhoseConstructorThrewIsTriedAgain)
{
    EXPECT_THROW(Reluctant::getInstance(), std::runtime_error);
    const Reluctant* instance = &Reluctant::getInstance();
    EXPECT_EQ(&Reluctant::getInstance(), instance);
    EXPECT_EQ(Reluctant::tries, 2);
}

std::vector<std::string> life;

const void* loadAndAsk(void*& library)
{
    library = dlopen(TVX_SINGLETON_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        ADD_FAILURE() << dlerror();
        return nullptr;
    }
    using Ask = const void* (*)(void (*)(const char*));
    const auto ask = reinterpret_cast<Ask>(dlsym(library, "residentOf"));
    const void* instance = ask([](const char* event) { life.emplace_back(event); });
    EXPECT_EQ(ask([](const char* event) { life.emplace_back(event); }), instance);
    return instance;
}

TEST(Singleton, LivesAndDiesWithItsLibrary)
{
    for (int round = 0; round < 100; ++round) {
        life.clear();
        void* library = nullptr;
        ASSERT_NE(loadAndAsk(library), nullptr);
        EXPECT_THAT(life, ElementsAre("made"));
        ASSERT_EQ(dlclose(library), 0);
        ASSERT_THAT(life, ElementsAre("made", "gone"));
        ASSERT_EQ(dlopen(TVX_SINGLETON_LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr)
            << "the library stays mapped";
    }
}

// Prints its life; AsksAgain, complete before it, asks for it when it is gone.
class Phoenix : public Singleton<Phoenix>
{
    friend class Singleton<Phoenix>;

    Phoenix() { std::fputs("made\n", stderr); }
    ~Phoenix() override { std::fputs("gone\n", stderr); }
};

struct AsksAgain
{
    ~AsksAgain()
    {
        std::fprintf(stderr, "%s\n", &Phoenix::getInstance() == before ? "same place" : "elsewhere");
    }

    const Phoenix* before = nullptr;
};

[[noreturn]] void askAfterTheEnd()
{
    static AsksAgain asksAgain;
    asksAgain.before = &Phoenix::getInstance();
    std::exit(0);
}

TEST(SingletonDeathTest, AskedForAfterItsDestructionIsMadeAnewInTheSamePlaceAndDestroyedAgain)
{
    EXPECT_EXIT(askAfterTheEnd(), testing::ExitedWithCode(0), "^made\ngone\nmade\nsame place\ngone\n$");
}

} // namespace
} // namespace tarvox::core
