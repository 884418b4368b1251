// File descriptors of the C runtime on Windows.
#include "core/log/tvxFileDescriptor.h"

#include <algorithm>
#include <climits>
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>

namespace tarvox::crowd::descriptor {

int openForWriting(const char* path) noexcept
{
    int file = kNone;
    const int flags = _O_WRONLY | _O_CREAT | _O_TRUNC | _O_TEXT | _O_NOINHERIT;
    return _sopen_s(&file, path, flags, _SH_DENYNO, _S_IREAD | _S_IWRITE) == 0 ? file : kNone;
}

std::ptrdiff_t writeSome(int file, const char* data, std::size_t size) noexcept
{
    return _write(file, data, static_cast<unsigned int>(std::min<std::size_t>(size, INT_MAX)));
}

bool close(int file) noexcept
{
    return _close(file) == 0;
}

} // namespace tarvox::crowd::descriptor
