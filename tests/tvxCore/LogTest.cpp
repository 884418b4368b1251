// The core log: its filter, and listeners that come and go at the worst moment.
#include <tvxCore/Exception.h>
#include <tvxCore/Log.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tarvox::core {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Writes each message into a record shared by several listeners, then does what the test asks for.
class Recorder : public ILogEventListener
{
public:
    Recorder(std::string name, std::vector<std::string>& heard) : m_name(std::move(name)), m_heard(heard) {}

    void onLogEvent(const LogEvent& event) override
    {
        m_heard.push_back(m_name + ":" + event.message);
        if (then)
            then();
    }

    std::function<void()> then;

private:
    std::string m_name;
    std::vector<std::string>& m_heard;
};

class LogTest : public testing::Test
{
protected:
    void say(const char* message) { log.trace(kError, "file.cpp", 1, "function", message); }

    std::vector<std::string> heard;
    Log log;
    Recorder a{"a", heard}, b{"b", heard}, c{"c", heard};
};

TEST_F(LogTest, StartsWithTheFilterAtWarning)
{
    EXPECT_EQ(log.getSeverityFilter(), kWarning);
}

TEST_F(LogTest, PassesCodesUpToTheFilter)
{
    log.addLogEventListener(&a);
    for (int filter = -1; filter <= 5; ++filter) {
        heard.clear();
        log.setSeverityFilter(filter);
        EXPECT_EQ(log.getSeverityFilter(), filter);
        std::vector<std::string> expected;
        for (int severity = 0; severity <= 5; ++severity) {
            log.trace(severity, "", 0, "", std::to_string(severity).c_str());
            if (severity <= filter)
                expected.push_back("a:" + std::to_string(severity));
        }
        EXPECT_EQ(heard, expected) << "filter " << filter;
    }
}

TEST_F(LogTest, HandsTheWholeEventOn)
{
    class Keeper : public ILogEventListener
    {
    public:
        void onLogEvent(const LogEvent& event) override
        {
            text = std::to_string(event.severity) + "|" + event.file + "|" + std::to_string(event.line) +
                   "|" + event.function + "|" + event.message;
        }
        std::string text;
    } keeper;
    log.addLogEventListener(&keeper);
    log.trace(kWarning, "rendering/tvxNode.cpp", 42, "tarvox::crowd::Node::initialize", "broken");
    EXPECT_EQ(keeper.text, "2|rendering/tvxNode.cpp|42|tarvox::crowd::Node::initialize|broken");
    log.trace(kWarning, nullptr, 0, nullptr, nullptr);
    EXPECT_EQ(keeper.text, "2||0||");
}

TEST_F(LogTest, WithoutListenersDoesNothing)
{
    EXPECT_NO_THROW(say("nobody hears"));
}

TEST_F(LogTest, CallsListenersInTheOrderTheyWereAdded)
{
    log.addLogEventListener(&b);
    log.addLogEventListener(&a);
    say("1");
    EXPECT_THAT(heard, ElementsAre("b:1", "a:1"));
}

TEST_F(LogTest, AListenerAddedTwiceHearsOnce)
{
    log.addLogEventListener(&a);
    log.addLogEventListener(&a);
    say("1");
    EXPECT_THAT(heard, ElementsAre("a:1"));
    log.removeLogEventListener(&a);
    say("2");
    EXPECT_THAT(heard, ElementsAre("a:1"));
}

TEST_F(LogTest, AListenerRemovedTwiceLeavesTheOthers)
{
    log.addLogEventListener(&a);
    log.addLogEventListener(&b);
    log.removeLogEventListener(&a);
    log.removeLogEventListener(&a);
    say("1");
    EXPECT_THAT(heard, ElementsAre("b:1"));
}

TEST_F(LogTest, NullListenersAndUnknownOnesChangeNothing)
{
    log.addLogEventListener(nullptr);
    log.removeLogEventListener(nullptr);
    log.removeLogEventListener(&a);
    say("1");
    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(LogTest, AListenerThatRemovesItselfIsDoneAndTheNextStillHears)
{
    log.addLogEventListener(&a);
    log.addLogEventListener(&b);
    log.addLogEventListener(&c);
    b.then = [this] { log.removeLogEventListener(&b); };
    say("1");
    say("2");
    EXPECT_THAT(heard, ElementsAre("a:1", "b:1", "c:1", "a:2", "c:2"));
}

TEST_F(LogTest, AListenerRemovedByAnEarlierOneMissesThatMessage)
{
    log.addLogEventListener(&a);
    log.addLogEventListener(&b);
    log.addLogEventListener(&c);
    a.then = [this] { log.removeLogEventListener(&b); };
    say("1");
    EXPECT_THAT(heard, ElementsAre("a:1", "c:1"));
}

TEST_F(LogTest, AListenerRemovedByALaterOneIsNotCalledAgain)
{
    log.addLogEventListener(&a);
    log.addLogEventListener(&b);
    b.then = [this] { log.removeLogEventListener(&a); };
    say("1");
    say("2");
    EXPECT_THAT(heard, ElementsAre("a:1", "b:1", "b:2"));
}

TEST_F(LogTest, AListenerDeletedOnceRemovedIsNotTouched)
{
    auto shortLived = std::make_unique<Recorder>("d", heard);
    log.addLogEventListener(&a);
    log.addLogEventListener(shortLived.get());
    a.then = [&] {
        log.removeLogEventListener(shortLived.get());
        shortLived.reset();
    };
    say("1");
    say("2");
    EXPECT_THAT(heard, ElementsAre("a:1", "a:2"));
}

TEST_F(LogTest, AListenerAddedWhileAMessageIsUnderWayHearsTheNextOne)
{
    log.addLogEventListener(&a);
    a.then = [this] { log.addLogEventListener(&b); };
    say("1");
    say("2");
    EXPECT_THAT(heard, ElementsAre("a:1", "a:2", "b:2"));
}

TEST_F(LogTest, AListenerRemovedAndAddedAgainWhileAMessageIsUnderWayHearsTheNextOne)
{
    log.addLogEventListener(&a);
    log.addLogEventListener(&b);
    a.then = [this] {
        log.removeLogEventListener(&b);
        log.addLogEventListener(&b);
    };
    say("1");
    a.then = nullptr;
    say("2");
    EXPECT_THAT(heard, ElementsAre("a:1", "a:2", "b:2"));
}

TEST_F(LogTest, AListenerMayTraceFromItsHandler)
{
    for (Recorder* recorder : {&a, &b, &c})
        log.addLogEventListener(recorder);
    a.then = [this] {
        a.then = nullptr;
        log.removeLogEventListener(&a);
        say("inner");
    };
    say("outer");
    EXPECT_THAT(heard, ElementsAre("a:outer", "b:inner", "c:inner", "b:outer", "c:outer"));
}

TEST_F(LogTest, WhatAListenerThrowsReachesTheCallerAndTheLogStaysUsable)
{
    log.addLogEventListener(&a);
    log.addLogEventListener(&b);
    a.then = [this] {
        log.removeLogEventListener(&a);
        throw Exception("listener failed");
    };
    EXPECT_THROW(say("1"), Exception);
    say("2");
    EXPECT_THAT(heard, ElementsAre("a:1", "b:2"));
}

} // namespace
} // namespace tarvox::core
