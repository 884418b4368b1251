// The text of a scene file, and the check that it is one; see sceneText.h.
#include "sceneText.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tvxhost::scene {

using engine::Expected;
using engine::Outcome;
using engine::Reason;

namespace {

constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
constexpr std::string_view kHeader = "//Maya ASCII";

constexpr std::string_view kNameLine = "//Name:";
constexpr std::string_view kEndLine = "// End of";

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

bool beginsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

int lineAt(std::string_view text, std::size_t offset)
{
    return 1 + static_cast<int>(
                   std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(offset), '\n'));
}

/// Whether a line of the text begins so.
bool hasLine(std::string_view text, std::string_view start)
{
    std::size_t at = text.find(start);
    while (at != std::string_view::npos && at != 0 && text[at - 1] != '\n' && text[at - 1] != '\r')
        at = text.find(start, at + 1);
    return at != std::string_view::npos;
}

Outcome systemFailure(const std::filesystem::path& file, int error)
{
    return {Reason::failed, "Cannot read file \"" + file.string() + "\": " + std::strerror(error)};
}

} // namespace

Expected<std::string> readFile(const std::filesystem::path& file)
{
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored))
        return {Reason::doesNotExist, "File not found: \"" + file.string() + "\""};
    if (std::filesystem::is_directory(file, ignored))
        return systemFailure(file, EISDIR);
    const OpenFile opened(file);
    if (!opened.isOpen())
        return systemFailure(file, errno);
    const struct stat before = opened.state();
    std::string text;
    text.reserve(static_cast<std::size_t>(before.st_size) + 1);
    char block[1 << 16];
    ssize_t count = 0;
    while ((count = opened.read(block, sizeof block)) > 0)
        text.append(block, static_cast<std::size_t>(count));
    if (count < 0)
        return systemFailure(file, errno);
    // What was read before the change and after it need not belong together.
    if (isChanged(before, opened.state()))
        return {Reason::failed, "The file \"" + file.string() + "\" was changed while it was read"};
    return text;
}

bool lacksItsEnd(std::string_view text)
{
    constexpr std::size_t kHead = 500;
    constexpr std::size_t kTail = 5000;
    const std::size_t tail = text.size() - std::min(text.size(), kTail);
    return hasLine(text.substr(0, kHead), kNameLine) && !hasLine(text.substr(tail), kEndLine);
}

SceneTextError checkSceneText(std::string_view text, const std::string& name)
{
    const std::string quotedName = "\"" + name + "\"";
    if (text.empty())
        return {{Reason::failed, "The file " + quotedName + " is empty"}, 0};
    if (beginsWith(text, "FOR4") || beginsWith(text, "FOR8"))
        return {{Reason::failed, "The file " + quotedName + " is Maya Binary; only Maya ASCII can be read"},
                1};
    if (const std::size_t nul = text.find('\0'); nul != std::string_view::npos)
        return {{Reason::failed, "The file " + quotedName + " is not text: it holds a byte of value 0"},
                lineAt(text, nul)};
    if (beginsWith(text, kByteOrderMark))
        text.remove_prefix(kByteOrderMark.size());
    if (!beginsWith(text, kHeader))
        return {{Reason::failed, "The file " + quotedName +
                                     " is not a Maya ASCII scene: it does not begin with \"//Maya ASCII\""},
                1};
    return {};
}

} // namespace tvxhost::scene
