// What the members of MPlug share: the plug behind it, and what is wrong with one that cannot be used.
#pragma once

#include "apiCall.h"
#include "handles.h"

namespace tvxhost::api {

/// True for a plug whose node lives and has the attribute; else the status of one that has not is written
/// too.
inline bool requirePlug(const engine::Plug& plug, MStatus* returnStatus)
{
    const bool usable = !plug.isNull() && plug.isValid();
    give(returnStatus, usable ? MStatus() : failure(StatusText::objectDoesNotExist));
    return usable;
}

/// The status of an operation on a plug: whatever the graph refuses is the same failure.
inline MStatus plugStatus(const engine::Outcome& outcome)
{
    using engine::Reason;
    switch (outcome.reason) {
    case Reason::none:
        return MStatus();
    case Reason::doesNotExist:
        return failure(StatusText::objectDoesNotExist);
    case Reason::notImplemented:
        return failure(StatusText::notImplemented);
    default:
        return failure(StatusText::unexpectedFailure);
    }
}

/// A plug that leads on from another; a null one with a failure when there is none.
inline MPlug plugOr(const engine::Plug& found, StatusText otherwise, MStatus* returnStatus)
{
    give(returnStatus, found.isNull() ? failure(otherwise) : MStatus());
    return tvxAccess::plug(found);
}

} // namespace tvxhost::api
