// The internal codes of MStatus, their texts, and how outcomes of the engine become statuses.
#include "status.h"

#include "access.h"

#include <array>
#include <cstddef>

namespace tvxhost::api {

namespace {

constexpr std::array kCodeNames = {
    "kSuccess",          "kFailure",        "kInsufficientMemory", "kInvalidParameter", "kLicenseFailure",
    "kUnknownParameter", "kNotImplemented", "kNotFound",           "kEndOfFile",
};

/// What a public code says when there is no internal one.
constexpr std::array kCodeTexts = {
    "API Error Log Opened", "Unexpected Internal Failure", "Out of memory",   "Invalid parameter",
    "License failure",      "Unknown parameter",           "Not implemented", "Not found",
    "End of file",
};

struct InternalCode
{
    MStatus::MStatusCode usual;
    const char* text;
};

/// In the order of StatusText.
constexpr std::array kInternalCodes = {
    InternalCode{MStatus::kFailure, "Unexpected Internal Failure"},
    InternalCode{MStatus::kFailure, "Object does not exist"},
    InternalCode{MStatus::kInvalidParameter, "Object is incompatible with this method"},
    InternalCode{MStatus::kInvalidParameter, "Argument is a NULL pointer"},
    InternalCode{MStatus::kInvalidParameter, "Cannot find item of required type"},
    InternalCode{MStatus::kInvalidParameter, "No element at given index"},
    InternalCode{MStatus::kInvalidParameter, "Object is invalid"},
    InternalCode{MStatus::kNotImplemented, "Not implemented"},
};

const InternalCode& internalCode(StatusText text)
{
    return kInternalCodes.at(static_cast<std::size_t>(text));
}

} // namespace

MStatus failure(MStatus::MStatusCode code, StatusText text)
{
    MStatus status;
    status.set(false, static_cast<unsigned char>(code), static_cast<unsigned char>(text));
    return status;
}

MStatus failure(StatusText text)
{
    return failure(internalCode(text).usual, text);
}

MStatus toStatus(const engine::Outcome& outcome)
{
    using engine::Reason;
    switch (outcome.reason) {
    case Reason::none:
        return MStatus();
    case Reason::nullArgument:
        return failure(StatusText::nullArgument);
    case Reason::wrongKind:
        return failure(StatusText::objectIsIncompatible);
    case Reason::doesNotExist:
        return failure(StatusText::objectDoesNotExist);
    case Reason::notFound:
        return failure(StatusText::itemNotFound);
    case Reason::badIndex:
        return failure(StatusText::noElementAtIndex);
    case Reason::notImplemented:
        return failure(StatusText::notImplemented);
    default:
        return failure(StatusText::unexpectedFailure);
    }
}

std::string describe(const MStatus& status)
{
    const auto code = static_cast<std::size_t>(status.statusCode());
    if (code >= kCodeNames.size())
        return "(" + std::to_string(code) + "): Unknown status";
    const auto internal = static_cast<std::size_t>(tvxAccess::internalCode(status));
    const char* text = internal < kInternalCodes.size() ? kInternalCodes[internal].text : kCodeTexts[code];
    return std::string("(") + kCodeNames[code] + "): " + text;
}

} // namespace tvxhost::api
