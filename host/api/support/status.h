// The internal codes of MStatus, their texts, and how outcomes of the engine become statuses.
#pragma once

#include "engine/outcome.h"

#include <maya/MStatus.h>

#include <string>

namespace tvxhost::api {

/// The internal code of a status: it decides the text, the public code does not.
enum class StatusText : unsigned char
{
    unexpectedFailure,    ///< "Unexpected Internal Failure"
    objectDoesNotExist,   ///< "Object does not exist"
    objectIsIncompatible, ///< "Object is incompatible with this method"
    nullArgument,         ///< "Argument is a NULL pointer"
    itemNotFound,         ///< "Cannot find item of required type"
    noElementAtIndex,     ///< "No element at given index"
    objectIsInvalid,      ///< "Object is invalid"
    notImplemented,       ///< "Not implemented"
    none = 0xff           ///< set by no one: a status made from a public code alone
};

/// A failure with both codes.
FND_EXPORT MStatus failure(MStatus::MStatusCode code, StatusText text);

/// A failure with the public code under which the text is usually seen: kFailure for an unexpected failure
/// and for an object that does not exist, kNotImplemented for that, kInvalidParameter for the others.
FND_EXPORT MStatus failure(StatusText text);

/// Success, or the failure that fits the engine's reason.
FND_EXPORT MStatus toStatus(const engine::Outcome& outcome);

/// "(kCode): text", as MStatus::errorString gives it.
FND_EXPORT std::string describe(const MStatus& status);

/// Writes a status to a caller that wants it.
inline void give(MStatus* returnStatus, const MStatus& status)
{
    if (returnStatus)
        *returnStatus = status;
}

/// Writes success to a caller that wants it.
inline void giveSuccess(MStatus* returnStatus)
{
    if (returnStatus)
        returnStatus->setSuccess();
}

} // namespace tvxhost::api
