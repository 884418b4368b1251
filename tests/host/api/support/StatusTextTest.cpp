// The texts of statuses: they belong to the internal code.
#include "api/support/status.h"

#include <gtest/gtest.h>

using namespace tvxhost::api;
using tvxhost::engine::Outcome;
using tvxhost::engine::Reason;

TEST(StatusText, OneTextServesSeveralPublicCodes)
{
    EXPECT_EQ("(kFailure): Object does not exist", describe(failure(StatusText::objectDoesNotExist)));
    EXPECT_EQ("(kInvalidParameter): Object does not exist",
              describe(failure(MStatus::kInvalidParameter, StatusText::objectDoesNotExist)));
}

TEST(StatusText, EachTextHasItsUsualCode)
{
    EXPECT_EQ("(kFailure): Unexpected Internal Failure", describe(failure(StatusText::unexpectedFailure)));
    EXPECT_EQ("(kInvalidParameter): Object is incompatible with this method",
              describe(failure(StatusText::objectIsIncompatible)));
    EXPECT_EQ("(kInvalidParameter): Argument is a NULL pointer", describe(failure(StatusText::nullArgument)));
    EXPECT_EQ("(kInvalidParameter): Cannot find item of required type",
              describe(failure(StatusText::itemNotFound)));
    EXPECT_EQ("(kInvalidParameter): No element at given index",
              describe(failure(StatusText::noElementAtIndex)));
    EXPECT_EQ("(kInvalidParameter): Object is invalid", describe(failure(StatusText::objectIsInvalid)));
    EXPECT_EQ("(kNotImplemented): Not implemented", describe(failure(StatusText::notImplemented)));
}

TEST(StatusText, AStatusMadeFromACodeAloneHasAPlainText)
{
    EXPECT_EQ("(kFailure): Unexpected Internal Failure", describe(MStatus(MStatus::kFailure)));
    EXPECT_EQ("(kNotFound): Not found", describe(MStatus(MStatus::kNotFound)));
    EXPECT_EQ("(kUnknownParameter): Unknown parameter", describe(MStatus(MStatus::kUnknownParameter)));
}

TEST(StatusText, SuccessHasATextOfTheSameForm)
{
    EXPECT_EQ("(kSuccess): API Error Log Opened", describe(MStatus()));
}

TEST(StatusText, OutcomesOfTheEngineBecomeStatuses)
{
    EXPECT_TRUE(toStatus(Outcome()));
    EXPECT_EQ("(kFailure): Unexpected Internal Failure",
              describe(toStatus(Outcome(Reason::lockedOrConnected))));
    EXPECT_EQ("(kFailure): Unexpected Internal Failure", describe(toStatus(Outcome(Reason::nameTaken))));
    EXPECT_EQ("(kFailure): Object does not exist", describe(toStatus(Outcome(Reason::doesNotExist))));
    EXPECT_EQ("(kInvalidParameter): No element at given index",
              describe(toStatus(Outcome(Reason::badIndex))));
    EXPECT_EQ("(kNotImplemented): Not implemented", describe(toStatus(Outcome(Reason::notImplemented))));
}
