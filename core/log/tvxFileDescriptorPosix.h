// Writing to a file descriptor on Linux and macOS. Inline: behind a system call each return to a caller is a
// slow one.
#pragma once

#include <cerrno>
#include <cstddef>
#include <unistd.h>

namespace tarvox::crowd::descriptor {

inline std::ptrdiff_t writeSome(int file, const char* data, std::size_t size) noexcept
{
    ssize_t written = 0;
    do
        written = ::write(file, data, size);
    while (written < 0 && errno == EINTR);
    return written;
}

} // namespace tarvox::crowd::descriptor
