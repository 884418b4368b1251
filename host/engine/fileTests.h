// What there is on the disk under a name. What cannot be looked at, because its name is too long or a folder
// above it is closed, counts as not there: nothing is thrown.
#pragma once

#include <filesystem>
#include <system_error>

namespace tvxhost::engine {

inline bool isFile(const std::filesystem::path& path)
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

inline bool isFolder(const std::filesystem::path& path)
{
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored);
}

/// Whether there is anything: a file, a folder, a pipe.
inline bool isThere(const std::filesystem::path& path)
{
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

} // namespace tvxhost::engine
