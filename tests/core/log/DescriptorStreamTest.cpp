// Unbuffered streams: one system call per message, and what becomes of calls that do less than asked.
#include "core/log/tvxDescriptorStream.h"

#include "../../host/support/temporaryFolder.h"
#include "SystemCalls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <iostream>
#include <string>
#include <unistd.h>

namespace tarvox::crowd {
namespace {

using test::Outcome;
using test::SystemCalls;
using testing::ElementsAre;
using tvxhost::test::TemporaryFolder;

class LogFileStreamTest : public testing::Test
{
protected:
    std::string contents() const { return folder.read("a.log"); }

    TemporaryFolder folder;
    const std::string path = folder.path("a.log");
    SystemCalls system;
};

TEST_F(LogFileStreamTest, WritesEachTextAtOnceWithOneCall)
{
    LogFileStream stream(path);
    ASSERT_TRUE(stream.isOpen());
    stream.write("first\n", 6).flush();
    EXPECT_EQ(contents(), "first\n");
    const std::string longText(1 << 20, 'x');
    stream.write(longText.data(), static_cast<std::streamsize>(longText.size())).flush();
    EXPECT_EQ(system.writeCount, 2);
    EXPECT_EQ(contents(), "first\n" + longText);
}

TEST_F(LogFileStreamTest, WritesATextAtOnceAsWriteAndFlushDo)
{
    LogFileStream stream(path);
    stream.writeAtOnce("first\n", 6);
    EXPECT_EQ(contents(), "first\n");
    system.writes = {Outcome{0, 3}, Outcome{EINTR}, Outcome{0, 3}, Outcome{EIO}};
    stream.writeAtOnce("whole\n", 6);
    EXPECT_TRUE(stream.good());
    stream.writeAtOnce("lost\n", 5);
    EXPECT_TRUE(stream.bad());
    stream.writeAtOnce("not tried\n", 10);
    EXPECT_EQ(system.writeCount, 5);
    EXPECT_EQ(contents(), "first\nwhole\n");
}

TEST_F(LogFileStreamTest, WritesSingleCharactersToo)
{
    LogFileStream stream(path);
    stream.put('a').put('\n');
    EXPECT_TRUE(stream.good());
    EXPECT_EQ(contents(), "a\n");
}

TEST_F(LogFileStreamTest, EmptiesAFileThatExists)
{
    folder.write("a.log", "old");
    const LogFileStream stream(path);
    EXPECT_EQ(contents(), "");
}

TEST_F(LogFileStreamTest, LetsOthersReadAndWriteTheFile)
{
    LogFileStream stream(path);
    LogFileStream other(path);
    EXPECT_TRUE(other.isOpen());
    stream << "mine" << std::flush;
    EXPECT_EQ(contents(), "mine");
}

TEST_F(LogFileStreamTest, IsNotHandedOnToProgramsThatAreStarted)
{
    const int file = descriptor::openForWriting(path.c_str());
    EXPECT_NE(::fcntl(file, F_GETFD) & FD_CLOEXEC, 0);
    descriptor::close(file);
}

TEST_F(LogFileStreamTest, GoesOnAfterAShortWrite)
{
    LogFileStream stream(path);
    system.writes = {Outcome{0, 2}, Outcome{0, 1}};
    stream << "abcdef" << std::flush;
    EXPECT_TRUE(stream.good());
    EXPECT_THAT(system.written, ElementsAre("ab", "c", "def"));
    EXPECT_EQ(contents(), "abcdef");
}

TEST_F(LogFileStreamTest, TriesAgainWhenASignalInterrupts)
{
    LogFileStream stream(path);
    system.writes = {Outcome{EINTR}, Outcome{0, 3}, Outcome{EINTR}};
    stream << "abcdef" << std::flush;
    EXPECT_TRUE(stream.good());
    EXPECT_EQ(contents(), "abcdef");
}

TEST_F(LogFileStreamTest, SetsTheBadBitWhenAWriteFails)
{
    LogFileStream stream(path);
    system.writes = {Outcome{ENOSPC}};
    stream << "lost" << std::flush;
    EXPECT_TRUE(stream.bad());
    EXPECT_EQ(contents(), "");
}

TEST_F(LogFileStreamTest, SetsTheBadBitWhenAWriteFailsHalfWay)
{
    LogFileStream stream(path);
    system.writes = {Outcome{0, 3}, Outcome{EIO}};
    stream << "abcdef" << std::flush;
    EXPECT_TRUE(stream.bad());
    EXPECT_EQ(contents(), "abc");
}

TEST_F(LogFileStreamTest, DoesNotWaitForASystemThatTakesNothing)
{
    LogFileStream stream(path);
    system.writes = {Outcome{0, 0}};
    stream << "lost" << std::flush;
    EXPECT_TRUE(stream.bad());
    EXPECT_EQ(system.writeCount, 1);
}

TEST_F(LogFileStreamTest, SetsTheBadBitWhenACharacterIsNotTaken)
{
    LogFileStream stream(path);
    system.writes = {Outcome{EIO}};
    stream.put('a');
    EXPECT_TRUE(stream.bad());
}

TEST_F(LogFileStreamTest, IsNotOpenWhenTheFolderDoesNotExist)
{
    LogFileStream stream(folder.path("none/a.log"));
    EXPECT_FALSE(stream.isOpen());
    EXPECT_TRUE(stream.fail());
    stream << "nothing";
    stream.close();
    EXPECT_EQ(system.writeCount, 0);
}

TEST_F(LogFileStreamTest, OpensAgainWhenASignalInterrupts)
{
    system.opens = {Outcome{EINTR}};
    EXPECT_TRUE(LogFileStream(path).isOpen());
}

TEST_F(LogFileStreamTest, SetsTheFailBitWhenClosingFails)
{
    LogFileStream stream(path);
    system.closes = {Outcome{EIO}};
    stream.close();
    EXPECT_TRUE(stream.fail());
    EXPECT_FALSE(stream.bad());
    EXPECT_FALSE(stream.isOpen());
}

TEST_F(LogFileStreamTest, CountsAnInterruptedCloseAsClosed)
{
    LogFileStream stream(path);
    system.closes = {Outcome{EINTR}};
    stream.close();
    EXPECT_TRUE(stream.good());
    EXPECT_FALSE(stream.isOpen());
}

TEST_F(LogFileStreamTest, ClosesOnce)
{
    LogFileStream stream(path);
    stream.close();
    system.closes = {Outcome{EIO}};
    stream.close();
    EXPECT_TRUE(stream.good());
    EXPECT_EQ(system.closes.size(), 1u);
}

TEST(StandardOutputStream, WritesEachTextWithOneCallAfterWhatTheProgramHasPrinted)
{
    testing::internal::CaptureStdout();
    {
        SystemCalls system;
        StandardOutputStream stream;
        std::cout << "printed before, ";
        stream << "logged, " << std::flush;
        std::cout << "printed after";
        std::cout.flush();
        EXPECT_THAT(system.written, ElementsAre("logged, "));
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "printed before, logged, printed after");
}

} // namespace
} // namespace tarvox::crowd
