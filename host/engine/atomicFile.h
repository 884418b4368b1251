// Writing files whole or not at all.
#pragma once

#include "outcome.h"

#include <filesystem>
#include <string_view>

namespace tvxhost::engine {

/// Writes `text` to a temporary file beside `path` and renames it: a reader sees the old file or the new one.
/// On failure the old file stays as it is, nothing is left behind, and the outcome names the file and what
/// the system says.
Outcome writeFileAtomically(const std::filesystem::path& path, std::string_view text);

} // namespace tvxhost::engine
