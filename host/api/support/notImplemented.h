// What an API function answers that the host does not do: a loud kNotImplemented.
#pragma once

#include "status.h"

namespace tvxhost::api {

/// Says once per function, as an error in the script editor, that the host does not do this; gives
/// kNotImplemented. `function` is "Class::function".
FND_EXPORT MStatus notImplemented(const char* function);

/// The same for a function that returns a value: writes the status for a caller that wants it.
inline void notImplemented(const char* function, MStatus* returnStatus)
{
    give(returnStatus, notImplemented(function));
}

} // namespace tvxhost::api
