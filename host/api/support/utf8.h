// UTF-8 and wide characters (one per code point).
#pragma once

#include <maya/MTypes.h>

#include <string>

namespace tvxhost::api {

/// A byte that is not part of valid UTF-8 becomes U+FFFD.
FND_EXPORT std::wstring toWide(const std::string& utf8);
/// What is no code point becomes U+FFFD.
FND_EXPORT std::string toUtf8(const std::wstring& wide);

} // namespace tvxhost::api
