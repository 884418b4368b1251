// TVX_API_CALL: the first line of every API function that can report a status.
#pragma once

#include "faults.h"
#include "status.h"

/// In a function that returns MStatus: records the call, and returns at once when it was told to fail.
#define TVX_API_CALL(name)                                                                                   \
    do {                                                                                                     \
        if (const auto toldToFail = ::tvxhost::api::faults::onCall(name))                                    \
            return *toldToFail;                                                                              \
    } while (false)

/// In a function with a `MStatus* ReturnStatus`: the same; a call that was told to fail writes the status and
/// returns `neutral`.
#define TVX_API_CALL_OR(name, returnStatus, neutral)                                                         \
    do {                                                                                                     \
        if (const auto toldToFail = ::tvxhost::api::faults::onCall(name)) {                                  \
            ::tvxhost::api::give(returnStatus, *toldToFail);                                                 \
            return neutral;                                                                                  \
        }                                                                                                    \
    } while (false)

/// The same in a constructor: what is constructed stays empty.
#define TVX_API_CONSTRUCTION(name, returnStatus)                                                             \
    do {                                                                                                     \
        if (const auto toldToFail = ::tvxhost::api::faults::onCall(name)) {                                  \
            ::tvxhost::api::give(returnStatus, *toldToFail);                                                 \
            return;                                                                                          \
        }                                                                                                    \
    } while (false)
