// Writing a file whole or not at all.
#pragma once

#include "engine/outcome.h"

#include <filesystem>
#include <string_view>

namespace tvxhost::scene {

/// Writes a temporary file beside `file`, brings it to the disk and renames it. On failure the old file is as
/// it was, the temporary one is gone, and the outcome names the file and the system's reason.
engine::Outcome writeFileAtomically(const std::filesystem::path& file, std::string_view content);

} // namespace tvxhost::scene
