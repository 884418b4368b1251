// The text of a scene file, and the check that it is one; see sceneText.h.
#include "sceneText.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace tvxhost::scene {

using engine::Expected;
using engine::Outcome;
using engine::Reason;

namespace {

constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
constexpr std::string_view kHeader = "//Maya ASCII";

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

bool beginsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

int lineAt(std::string_view text, std::size_t offset)
{
    return 1 + static_cast<int>(
                   std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(offset), '\n'));
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
    const std::unique_ptr<std::FILE, CloseFile> stream(std::fopen(file.c_str(), "rb"));
    if (!stream)
        return systemFailure(file, errno);
    std::string text;
    text.reserve(static_cast<std::size_t>(std::filesystem::file_size(file, ignored)) + 1);
    char block[1 << 16];
    while (const std::size_t count = std::fread(block, 1, sizeof block, stream.get()))
        text.append(block, count);
    if (std::ferror(stream.get()))
        return systemFailure(file, errno);
    return text;
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
