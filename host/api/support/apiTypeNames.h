// The names of the enumerators of MFn::Type.
#pragma once

namespace tvxhost::api {

/// "kTransform" for MFn::kTransform; "kInvalid" for a number that is none of them.
const char* apiTypeName(int type);

} // namespace tvxhost::api
