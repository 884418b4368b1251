// MStatus in the header: codes, comparison, and the macros that report a failure.
#include <maya/MStatus.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

/// The bytes that inline code of plug-ins reads and writes: public code, internal code, success.
std::string bytesOf(const MStatus& status)
{
    std::string bytes(sizeof status, '\0');
    std::memcpy(&bytes[0], &status, sizeof status);
    return bytes;
}

TEST(Status, ANewStatusIsSuccessWithoutInternalCode)
{
    EXPECT_EQ(bytesOf(MStatus()), std::string("\x00\xff\x01", 3));
}

TEST(Status, PartsAreCodeInternalCodeAndSuccess)
{
    MStatus status;
    status.set(false, MStatus::kInvalidParameter, 0x12);
    EXPECT_EQ(bytesOf(status), std::string("\x03\x12\x00", 3));
    EXPECT_EQ(status.statusCode(), MStatus::kInvalidParameter);
    EXPECT_TRUE(status.error());
    EXPECT_FALSE(static_cast<bool>(status));
}

TEST(Status, ClearAndSetSuccessGoBackToSuccess)
{
    MStatus cleared(MStatus::kFailure);
    cleared.clear();
    EXPECT_EQ(bytesOf(cleared), std::string("\x00\xff\x01", 3));

    MStatus set(MStatus::kFailure);
    set.setSuccess();
    EXPECT_EQ(bytesOf(set), std::string("\x00\xff\x01", 3));
}

TEST(Status, ComparisonLooksAtThePublicCodeOnly)
{
    MStatus one;
    MStatus other;
    one.set(false, MStatus::kFailure, 1);
    other.set(false, MStatus::kFailure, 2);
    EXPECT_TRUE(one == other);
    EXPECT_FALSE(one != other);
    EXPECT_TRUE(one == MStatus::kFailure);
    EXPECT_TRUE(MStatus::kFailure == one);
    EXPECT_TRUE(one != MStatus::kSuccess);
    EXPECT_TRUE(MStatus::kSuccess != one);
}

TEST(Status, CopiesCarryAllThreeParts)
{
    MStatus status;
    status.set(false, MStatus::kNotFound, 0x21);
    const MStatus copy(status);
    MStatus assigned;
    assigned = status;
    EXPECT_EQ(bytesOf(copy), bytesOf(status));
    EXPECT_EQ(bytesOf(assigned), bytesOf(status));
}

/// A call that counts how often it is made.
struct Call
{
    MStatus::MStatusCode answer;
    int count = 0;

    MStatus operator()()
    {
        ++count;
        return answer;
    }
};

int returnsSevenOnFailure(Call& call)
{
    CHECK_MSTATUS_AND_RETURN(call(), 7);
    return 0;
}

MStatus returnsTheFailure(Call& call)
{
    CHECK_MSTATUS_AND_RETURN_IT(call());
    return MS::kEndOfFile;
}

TEST(CheckMacro, SaysNothingAboutASuccess)
{
    Call call{MS::kSuccess};
    testing::internal::CaptureStderr();
    CHECK_MSTATUS(call());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(call.count, 1);
}

TEST(CheckMacro, ReportsFileLineAndTextOfAFailure)
{
    Call call{MS::kFailure};
    testing::internal::CaptureStderr();
    const int line = __LINE__ + 1;
    CHECK_MSTATUS(call());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), std::string("\nAPI error detected in ") + __FILE__ +
                                                          " at line " + std::to_string(line) +
                                                          "\n(kFailure): Unexpected Internal Failure\n");
    EXPECT_EQ(call.count, 1);
}

TEST(CheckMacro, ReturnsAValueOnFailureOnly)
{
    Call failing{MS::kFailure};
    Call succeeding{MS::kSuccess};
    testing::internal::CaptureStderr();
    EXPECT_EQ(returnsSevenOnFailure(failing), 7);
    EXPECT_EQ(returnsSevenOnFailure(succeeding), 0);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(failing.count, 1);
    EXPECT_EQ(succeeding.count, 1);
}

TEST(CheckMacro, ReturnsTheFailureItself)
{
    Call failing{MS::kInvalidParameter};
    Call succeeding{MS::kSuccess};
    testing::internal::CaptureStderr();
    EXPECT_TRUE(returnsTheFailure(failing) == MS::kInvalidParameter);
    EXPECT_TRUE(returnsTheFailure(succeeding) == MS::kEndOfFile);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(failing.count, 1);
    EXPECT_EQ(succeeding.count, 1);
}

} // namespace
