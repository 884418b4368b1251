// Reading and writing files whole or not at all.
#pragma once

#include "outcome.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace tvxhost::engine {

/// Reads a whole file. doesNotExist for a missing file; failed with the reason for what is no file, cannot be
/// read, or was written to in the meantime.
Expected<std::string> readFile(const std::filesystem::path& file);

/// Writes `text` to a temporary file beside `path` and renames it: a reader sees the old file or the new one.
/// A symbolic link stays and what it points to is written. On failure the old file stays as it is, nothing is
/// left behind, and the outcome names the file and what the system says; so for an old file that may not be
/// written to. What a process leaves that is killed meanwhile (NAME.NUMBER.tmp) goes at the next writing.
Outcome writeFileAtomically(const std::filesystem::path& path, std::string_view text);

/// Moves a file that cannot be understood out of the way, under its name with ".broken" (and a number) behind
/// it; the new path, empty when that failed.
std::filesystem::path setAside(const std::filesystem::path& file);

} // namespace tvxhost::engine
