// MStatus: texts and the standard error stream. What is inline is tested with the headers.
#include <maya/MStatus.h>
#include <maya/MString.h>

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>

namespace {

TEST(MStatus, HasATextForEachCode)
{
    const std::pair<MStatus::MStatusCode, const char*> texts[] = {
        {MS::kSuccess, "(kSuccess): API Error Log Opened"},
        {MS::kFailure, "(kFailure): Unexpected Internal Failure"},
        {MS::kInsufficientMemory, "(kInsufficientMemory): Out of memory"},
        {MS::kInvalidParameter, "(kInvalidParameter): Invalid parameter"},
        {MS::kLicenseFailure, "(kLicenseFailure): License failure"},
        {MS::kUnknownParameter, "(kUnknownParameter): Unknown parameter"},
        {MS::kNotImplemented, "(kNotImplemented): Not implemented"},
        {MS::kNotFound, "(kNotFound): Not found"},
        {MS::kEndOfFile, "(kEndOfFile): End of file"},
    };
    for (const auto& [code, text] : texts)
        EXPECT_STREQ(MStatus(code).errorString().asChar(), text);
}

TEST(MStatus, GoesToTheStandardErrorStreamBehindItsPrefix)
{
    testing::internal::CaptureStderr();
    MStatus(MS::kFailure).perror("registerNode");
    MStatus(MS::kFailure).perror("");
    MStatus(MS::kFailure).perror(MString("string"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "registerNode: (kFailure): Unexpected Internal Failure\n"
              "(kFailure): Unexpected Internal Failure\n"
              "string: (kFailure): Unexpected Internal Failure\n");
}

TEST(MStatus, IsWrittenAsItsText)
{
    MStatus status(MS::kNotFound);
    std::ostringstream out;
    out << status;
    EXPECT_EQ(out.str(), "(kNotFound): Not found");
}

TEST(MStatus, IsReportedOnceByTheCheckMacro)
{
    int calls = 0;
    const auto failing = [&calls] {
        ++calls;
        return MStatus(MS::kFailure);
    };
    testing::internal::CaptureStderr();
    CHECK_MSTATUS(failing());
    const int line = __LINE__ - 1;
    EXPECT_EQ(testing::internal::GetCapturedStderr(), std::string("\nAPI error detected in ") + __FILE__ +
                                                          " at line " + std::to_string(line) +
                                                          "\n(kFailure): Unexpected Internal Failure\n");
    EXPECT_EQ(calls, 1);
}

} // namespace
