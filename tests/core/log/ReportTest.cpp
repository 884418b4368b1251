// The report convention: exact texts, nothing built in vain, nothing thrown.
#include "core/log/tvxReport.h"

#include "LogRecorder.h"

#include <maya/MString.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <ostream>
#include <stdexcept>
#include <string>

namespace tarvox::crowd {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kFile[] = "tests/core/log/ReportTest.cpp";

std::string event(int severity, int line, const std::string& message)
{
    return std::to_string(severity) + "|" + kFile + "|" + std::to_string(line) + "|f|" + message;
}

std::string atLine(int line, const std::string& text)
{
    return "At line " + std::to_string(line) + " in file " + kFile + ": " + text;
}

class Report : public testing::Test
{
protected:
    Report() { coreLog().setSeverityFilter(core::kDebug); }

    test::LogRecorder recorder;
};

TEST_F(Report, TellsLineFileAndText)
{
    const int line = __LINE__ + 1;
    TVX_REPORT(core::kError, "f", "Unable to create " << 3 << MString(" files"));
    EXPECT_THAT(recorder.placed,
                ElementsAre(event(core::kError, line, atLine(line, "Unable to create 3 files"))));
}

TEST_F(Report, TellsTheLineWhereItBegins)
{
    const int line = __LINE__ + 1;
    TVX_REPORT(core::kError, "f",
               "text that goes on "
                   << "and on");
    EXPECT_THAT(recorder.placed,
                ElementsAre(event(core::kError, line, atLine(line, "text that goes on and on"))));
}

TEST_F(Report, IsBuiltOnlyWhenTheFilterAdmitsIt)
{
    for (int filter = 0; filter <= 4; ++filter)
        for (int severity = 0; severity <= 4; ++severity) {
            int built = 0;
            recorder.take();
            coreLog().setSeverityFilter(filter);
            TVX_REPORT(severity, "f", "text " << ++built);
            EXPECT_EQ(built, severity <= filter ? 1 : 0) << filter << " " << severity;
            EXPECT_EQ(recorder.placed.size(), severity <= filter ? 1u : 0u) << filter << " " << severity;
        }
}

// Seen before main(), when nobody has asked for the log yet.
const bool kAdmittedAtFirst[] = {coreLogAdmits(core::kWarning), coreLogAdmits(core::kInfo)};

TEST(CoreLogFilter, IsThatOfANewLogBeforeTheLogIsMade)
{
    EXPECT_THAT(kAdmittedAtFirst, ElementsAre(true, false));
}

// A handler that is set before the log is made runs after the log's end.
TEST(CoreLogFilter, IsThatOfANewLogAfterTheLogHasEnded)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // in a process where the log is not made yet
    const auto endOfProcess = [] {
        std::atexit([] { std::_Exit(coreLogAdmits(core::kInfo) ? 1 : 0); });
        coreLog().setSeverityFilter(core::kDebug);
        std::exit(coreLogAdmits(core::kInfo) ? 0 : 2);
    };
    EXPECT_EXIT(endOfProcess(), testing::ExitedWithCode(0), "");
}

TEST(CoreLogFilter, IsSeenAsItIsSet)
{
    for (int filter = -1; filter <= 5; ++filter) {
        coreLog().setSeverityFilter(filter);
        for (int severity = 0; severity <= 5; ++severity)
            EXPECT_EQ(coreLogAdmits(severity), severity <= filter) << filter << " " << severity;
    }
    coreLog().setSeverityFilter(core::Log::kInitialFilter);
}

TEST_F(Report, EvaluatesEachArgumentOnce)
{
    int severities = 0;
    int functions = 0;
    const auto severity = [&] { return ++severities, core::kError; };
    const auto function = [&] { return ++functions, "f"; };
    TVX_REPORT(severity(), function(), "text");
    EXPECT_EQ(severities, 1);
    EXPECT_EQ(functions, 1);
}

const char* fails()
{
    throw core::Exception("no text to be had");
}

TEST_F(Report, LogsACoreExceptionOfItsTextInItsPlace)
{
    const int line = __LINE__ + 1;
    EXPECT_NO_THROW(TVX_REPORT(core::kError, "f", "text " << fails()));
    EXPECT_THAT(recorder.placed, ElementsAre(event(core::kError, line, "no text to be had")));
}

TEST_F(Report, LogsACoreExceptionOfTheLogInItsPlace)
{
    recorder.exceptions = 1;
    const int line = __LINE__ + 1;
    EXPECT_NO_THROW(TVX_REPORT(core::kWarning, "f", "text"));
    EXPECT_THAT(recorder.placed, ElementsAre(event(core::kWarning, line, "listener failed")));
}

TEST_F(Report, NeverThrowsEvenWhenTheLogKeepsFailing)
{
    recorder.exceptions = 2;
    EXPECT_NO_THROW(TVX_REPORT(core::kError, "f", "text"));
    EXPECT_THAT(recorder.placed, IsEmpty());
}

const char* failsOtherwise()
{
    throw std::runtime_error("not of the core");
}

TEST_F(Report, LetsOtherExceptionsThrough)
{
    EXPECT_THROW(TVX_REPORT(core::kError, "f", failsOtherwise()), std::runtime_error);
    EXPECT_THAT(recorder.placed, IsEmpty());
}

TEST_F(Report, StandsWhereOneStatementIsExpected)
{
    if (recorder.exceptions > 0)
        TVX_REPORT(core::kError, "f", "then");
    else
        TVX_REPORT(core::kError, "f", "else");
    EXPECT_EQ(recorder.placed.size(), 1u);
}

TEST_F(Report, TracesTheTextOfAnExceptionAsItIs)
{
    reportException(core::kError, kFile, 7, "f", "text");
    EXPECT_THAT(recorder.placed, ElementsAre(event(core::kError, 7, "text")));
    coreLog().setSeverityFilter(core::kCritical);
    reportException(core::kError, kFile, 7, "f", "text");
    EXPECT_EQ(recorder.placed.size(), 1u);
}

TEST(StatusCheck, SaysNothingOfSuccess)
{
    testing::internal::CaptureStderr();
    TVX_CHECK_STATUS(MStatus::kSuccess);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(StatusCheck, NotesAFailureOnStandardErrorAndGoesOn)
{
    const MStatus status(MStatus::kInvalidParameter);
    testing::internal::CaptureStderr();
    const int line = __LINE__ + 1;
    TVX_CHECK_STATUS(status);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), std::string("\nAPI error detected in ") + kFile +
                                                          " at line " + std::to_string(line) + "\n" +
                                                          status.errorString().asChar() + "\n");
}

TEST(StatusCheck, EvaluatesItsArgumentOnceAndStaysOutOfTheLog)
{
    const test::LogRecorder recorder;
    int evaluations = 0;
    testing::internal::CaptureStderr();
    TVX_CHECK_STATUS((++evaluations, MStatus(MStatus::kFailure)));
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(evaluations, 1);
    EXPECT_THAT(recorder.placed, IsEmpty());
}

} // namespace
} // namespace tarvox::crowd
