// File descriptors on Linux and macOS.
#include "core/log/tvxFileDescriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace tarvox::crowd::descriptor {

int openForWriting(const char* path) noexcept
{
    int file = kNone;
    do
        file = ::open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    while (file < 0 && errno == EINTR);
    return file;
}

std::ptrdiff_t writeSome(int file, const char* data, std::size_t size) noexcept
{
    ssize_t written = 0;
    do
        written = ::write(file, data, size);
    while (written < 0 && errno == EINTR);
    return written;
}

bool close(int file) noexcept
{
    // Interrupted or not, the descriptor is released: it must not be closed again.
    return ::close(file) == 0 || errno == EINTR;
}

} // namespace tarvox::crowd::descriptor
