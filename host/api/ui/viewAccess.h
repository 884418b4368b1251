// From an M3dView to the viewport that it stands for.
#pragma once

#include "support/apiCall.h"
#include "viewBridge.h"

namespace tvxhost::api {

/// The viewport of a view, as long as it is there; null, and kFailure, otherwise.
inline ViewBridge* bridgeOf(const View* view, MStatus* status)
{
    ViewBridge* bridge = currentView();
    if (!bridge || bridge != view)
        bridge = nullptr;
    give(status, bridge ? MStatus() : failure(StatusText::objectDoesNotExist));
    return bridge;
}

} // namespace tvxhost::api
