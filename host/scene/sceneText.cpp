// The text of a scene file, and the check that it is one; see sceneText.h.
#include "sceneText.h"

#include "beginsWith.h"

#include <algorithm>

namespace tvxhost::scene {

using engine::Reason;

namespace {

constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
constexpr std::string_view kHeader = "//Maya ASCII";

constexpr std::string_view kNameLine = "//Name:";
constexpr std::string_view kEndLine = "// End of";

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

} // namespace

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
