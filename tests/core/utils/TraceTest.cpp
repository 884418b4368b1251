// Texts traced as they stand: built only when they are wanted, and no core exception leaves them.
#include "core/utils/tvxTrace.h"

#include "../log/LogRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <stdexcept>

namespace tarvox::crowd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kBegin[] = "|tests/core/utils/TraceTest.cpp|f|";

class Trace : public testing::Test
{
protected:
    static std::string event(int severity, const std::string& text)
    {
        return std::to_string(severity) + kBegin + text;
    }

    LogRecorder recorder;
};

TEST_F(Trace, IsTheTextAlone)
{
    const int line = __LINE__ + 1;
    TVX_WARN("f", "no more than " << 3 << " words");
    EXPECT_THAT(recorder.lines, ElementsAre(line));
    EXPECT_THAT(recorder.take(), ElementsAre(event(core::kWarning, "no more than 3 words")));
}

TEST_F(Trace, IsBuiltOnlyWhenTheFilterAdmitsIt)
{
    int built = 0;
    coreLog().setSeverityFilter(core::kError);
    TVX_WARN("f", ++built);
    EXPECT_EQ(built, 0);
    TVX_TRACE(core::kError, "f", ++built);
    EXPECT_EQ(built, 1);
    EXPECT_THAT(recorder.take(), ElementsAre(event(core::kError, "1")));
}

const char* failsByTheCore()
{
    throw core::Exception("no text to be had");
}
const char* failsOtherwise()
{
    throw std::runtime_error("not of the core");
}

TEST_F(Trace, GivesWayToACoreExceptionOfItsText)
{
    EXPECT_NO_THROW(TVX_WARN("f", failsByTheCore()));
    EXPECT_THAT(recorder.take(), ElementsAre(event(core::kWarning, "no text to be had")));
}

TEST_F(Trace, GivesWayToACoreExceptionOfTheLog)
{
    recorder.exceptions = 1;
    EXPECT_NO_THROW(TVX_WARN("f", "text"));
    EXPECT_THAT(recorder.take(), ElementsAre(event(core::kWarning, "listener failed")));
    recorder.exceptions = 2;
    EXPECT_NO_THROW(TVX_WARN("f", "text"));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Trace, LetsOtherExceptionsThrough)
{
    EXPECT_THROW(TVX_WARN("f", failsOtherwise()), std::runtime_error);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

MStatus fails(const char* text)
{
    TVX_FAIL("f", text);
}

TEST_F(Trace, EndsAMemberThatFails)
{
    EXPECT_EQ(fails("no way"), MStatus::kFailure);
    ASSERT_EQ(recorder.lines.size(), 1u);
    EXPECT_THAT(recorder.take(),
                ElementsAre(event(core::kError, "At line " + std::to_string(__LINE__ - 8) +
                                                    " in file tests/core/utils/TraceTest.cpp: no way")));
}

} // namespace
} // namespace tarvox::crowd::test
