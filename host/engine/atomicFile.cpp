// Reading and writing files whole or not at all: see atomicFile.h.
#include "atomicFile.h"

#include "fileTests.h"

#include <cerrno>
#include <cstring>
#include <random>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tvxhost::engine {

namespace {

namespace fs = std::filesystem;

Outcome failure(const fs::path& path, const char* what)
{
    return {Reason::failed,
            "cannot " + std::string(what) + " '" + path.string() + "': " + std::strerror(errno)};
}

/// A file that is open for reading as long as it lives.
class OpenFile
{
public:
    explicit OpenFile(const std::filesystem::path& file) : m_file(::open(file.c_str(), O_RDONLY | O_CLOEXEC))
    {
    }
    ~OpenFile()
    {
        if (m_file >= 0)
            ::close(m_file);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool isOpen() const { return m_file >= 0; }
    struct stat state() const
    {
        struct stat now = {};
        (void)::fstat(m_file, &now);
        return now;
    }
    /// Bytes read, 0 at the end, less on failure.
    ssize_t read(char* bytes, std::size_t size) const
    {
        ssize_t count = 0;
        do
            count = ::read(m_file, bytes, size);
        while (count < 0 && errno == EINTR);
        return count;
    }

private:
    int m_file;
};

/// Whether another process has written to a file between two looks at it.
bool isChanged(const struct stat& before, const struct stat& after)
{
    return before.st_size != after.st_size || before.st_mtim.tv_sec != after.st_mtim.tv_sec ||
           before.st_mtim.tv_nsec != after.st_mtim.tv_nsec;
}

Outcome unreadable(const fs::path& file, const char* why)
{
    return {Reason::failed, "Cannot read file \"" + file.string() + "\": " + why};
}

constexpr std::string_view kTemporaryEnding = ".tmp";

/// How the names of a target's temporary files begin. A target may have a name as long as a name can be.
std::string temporaryStart(const fs::path& target)
{
    constexpr std::size_t kLongestPart = 200;
    return target.filename().string().substr(0, kLongestPart) + ".";
}

/// A name in the target's folder.
fs::path temporaryBeside(const fs::path& target)
{
    return target.parent_path() /
           (temporaryStart(target) + std::to_string(std::random_device()()) + std::string(kTemporaryEnding));
}

bool isTemporaryName(std::string_view name, std::string_view start)
{
    if (name.size() <= start.size() + kTemporaryEnding.size() || name.substr(0, start.size()) != start ||
        name.substr(name.size() - kTemporaryEnding.size()) != kTemporaryEnding)
        return false;
    name.remove_prefix(start.size());
    name.remove_suffix(kTemporaryEnding.size());
    return name.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Removes what processes left behind that ended while they wrote the same target. Those that still write
/// hold a lock.
void removeLeftovers(const fs::path& target)
{
    const std::string start = temporaryStart(target);
    std::error_code ignored;
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored)) {
        if (!isTemporaryName(entry.path().filename().string(), start) || !entry.is_regular_file(ignored))
            continue;
        const int file = ::open(entry.path().c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
        if (file < 0)
            continue;
        if (::flock(file, LOCK_EX | LOCK_NB) == 0)
            ::unlink(entry.path().c_str());
        ::close(file);
    }
}

/// A new file that is locked, -1 on failure. Between making and locking it another process may take it for a
/// leftover: it is then made again.
int makeLocked(const char* path)
{
    for (;;) {
        const int file = ::open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        struct stat state = {};
        if (file < 0 || ::flock(file, LOCK_EX) != 0 || ::fstat(file, &state) != 0 || state.st_nlink > 0)
            return file;
        ::close(file);
    }
}

/// An open file that is removed again unless it was kept. It stays locked until it has its name.
class TemporaryFile
{
public:
    explicit TemporaryFile(const fs::path& target)
        : m_path(temporaryBeside(target).string()), m_file(makeLocked(m_path.c_str()))
    {
    }
    ~TemporaryFile()
    {
        if (m_file < 0)
            return;
        if (!m_kept)
            ::unlink(m_path.c_str());
        ::close(m_file);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool isOpen() const { return m_file >= 0; }
    bool write(std::string_view text)
    {
        while (!text.empty()) {
            const ssize_t written = ::write(m_file, text.data(), text.size());
            if (written < 0 && errno == EINTR)
                continue;
            if (written < 0)
                return false;
            text.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }
    bool sync() const { return ::fsync(m_file) == 0; }
    void takePermissions(fs::perms permissions)
    {
        std::error_code ignored;
        fs::permissions(m_path, permissions, ignored);
    }
    bool renameTo(const fs::path& target)
    {
        m_kept = ::rename(m_path.c_str(), target.c_str()) == 0;
        return m_kept;
    }

private:
    std::string m_path;
    int m_file;
    bool m_kept = false;
};

/// Where a symbolic link points to, whether there is a file or not: the link itself is to stay.
fs::path followed(const fs::path& path)
{
    constexpr int kMostLinks = 40;
    fs::path target = path;
    std::error_code error;
    for (int i = 0; i < kMostLinks && fs::is_symlink(target, error); ++i)
        target = target.parent_path() / fs::read_symlink(target, error);
    return target;
}

/// Why what is there may not be replaced; a success when it may be.
Outcome checkReplaceable(const fs::path& path, const fs::path& target)
{
    std::error_code error;
    const fs::file_status old = fs::status(target, error);
    if (old.type() == fs::file_type::not_found)
        return {};
    if (old.type() == fs::file_type::none) {
        errno = error.value();
        return failure(path, "write");
    }
    if (!fs::is_regular_file(old))
        return {Reason::failed, "cannot replace '" + path.string() + "': it is not a file"};
    // The folder would let a file go that may not be written to.
    return ::access(target.c_str(), W_OK) == 0 ? Outcome() : failure(path, "write");
}

} // namespace

Expected<std::string> readFile(const fs::path& file)
{
    std::error_code ignored;
    if (!fs::exists(file, ignored))
        return {Reason::doesNotExist, "File not found: \"" + file.string() + "\""};
    if (fs::is_directory(file, ignored))
        return unreadable(file, std::strerror(EISDIR));
    // Nobody may ever write into a pipe.
    if (!fs::is_regular_file(file, ignored))
        return unreadable(file, "It is not a file");
    const OpenFile opened(file);
    if (!opened.isOpen())
        return unreadable(file, std::strerror(errno));
    const struct stat before = opened.state();
    std::string text;
    text.reserve(static_cast<std::size_t>(before.st_size) + 1);
    char block[1 << 16];
    ssize_t count = 0;
    while ((count = opened.read(block, sizeof block)) > 0)
        text.append(block, static_cast<std::size_t>(count));
    if (count < 0)
        return unreadable(file, std::strerror(errno));
    // What was read before the change and after it need not belong together.
    if (isChanged(before, opened.state()))
        return {Reason::failed, "The file \"" + file.string() + "\" was changed while it was read"};
    return text;
}

Outcome writeFileAtomically(const fs::path& path, std::string_view text)
{
    const fs::path target = followed(path);
    if (Outcome replaceable = checkReplaceable(path, target); !replaceable)
        return replaceable;
    removeLeftovers(target);
    TemporaryFile file(target);
    if (!file.isOpen() || !file.write(text))
        return failure(path, "write");
    std::error_code error;
    if (const fs::file_status old = fs::status(target, error); fs::is_regular_file(old))
        file.takePermissions(old.permissions());
    if (!file.sync())
        return failure(path, "write");
    if (!file.renameTo(target))
        return failure(path, "replace");
    return {};
}

std::filesystem::path setAside(const std::filesystem::path& file)
{
    std::filesystem::path aside = file;
    aside += ".broken";
    const std::string stem = aside.string();
    for (int i = 1; isThere(aside); ++i)
        aside = stem + std::to_string(i);
    std::error_code error;
    std::filesystem::rename(file, aside, error);
    return error ? std::filesystem::path() : aside;
}

} // namespace tvxhost::engine
