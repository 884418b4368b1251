// Writing a file whole or not at all; see atomicFile.h.
#include "atomicFile.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tvxhost::scene {

using engine::Outcome;
using engine::Reason;

namespace {

/// A new file beside the one that is to be; removed unless it was renamed.
class TemporaryFile
{
public:
    explicit TemporaryFile(const std::filesystem::path& beside) : m_path(beside.string() + ".XXXXXX")
    {
        m_descriptor = ::mkstemp(m_path.data());
    }
    ~TemporaryFile()
    {
        close();
        if (m_exists)
            ::unlink(m_path.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool isOpen()
    {
        m_exists = m_descriptor >= 0;
        return m_exists;
    }

    bool write(std::string_view content)
    {
        while (!content.empty()) {
            const ssize_t count = ::write(m_descriptor, content.data(), content.size());
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                return false;
            content.remove_prefix(static_cast<std::size_t>(count));
        }
        return ::fsync(m_descriptor) == 0;
    }

    /// The mode of the file it replaces, or that of a new file.
    bool takeMode(const std::filesystem::path& file)
    {
        struct stat old = {};
        if (::stat(file.c_str(), &old) == 0)
            return ::fchmod(m_descriptor, old.st_mode & 07777) == 0;
        const mode_t mask = ::umask(0);
        ::umask(mask);
        return ::fchmod(m_descriptor, 0666 & ~mask) == 0;
    }

    bool close()
    {
        const int descriptor = m_descriptor;
        m_descriptor = -1;
        return descriptor < 0 || ::close(descriptor) == 0;
    }

    bool renameTo(const std::filesystem::path& file)
    {
        m_exists = ::rename(m_path.c_str(), file.c_str()) != 0;
        return !m_exists;
    }

private:
    std::string m_path;
    int m_descriptor = -1;
    bool m_exists = false;
};

} // namespace

Outcome writeFileAtomically(const std::filesystem::path& file, std::string_view content)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored))
        errno = EISDIR;
    else if (TemporaryFile temporary(file); temporary.isOpen() && temporary.write(content) &&
                                            temporary.takeMode(file) && temporary.close() &&
                                            temporary.renameTo(file))
        return {};
    return {Reason::failed, "Cannot write file \"" + file.string() + "\": " + std::strerror(errno)};
}

} // namespace tvxhost::scene
