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

bool close(int file) noexcept
{
    // Interrupted or not, the descriptor is released: it must not be closed again.
    return ::close(file) == 0 || errno == EINTR;
}

} // namespace tarvox::crowd::descriptor
