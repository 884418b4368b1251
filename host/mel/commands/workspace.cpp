// Workspace: see workspace.h.
#include "workspace.h"

#include "../arguments.h"

#include "engine/atomicFile.h"

namespace tvxhost::mel {

namespace fs = std::filesystem;

Workspace::Workspace(fs::path root) : directory(root), m_root(std::move(root)) {}

void Workspace::open(const fs::path& root)
{
    *this = Workspace(root);
}

fs::path Workspace::resolved(const std::string& name) const
{
    const fs::path path(name);
    return path.is_absolute() ? path : m_root / path;
}

engine::Outcome Workspace::save() const
{
    std::string text = "//Maya Project Definition\n\n";
    for (const auto& [rule, folder] : rules)
        text += "workspace -fr " + mel::quoted(rule) + " " + mel::quoted(folder) + ";\n";
    for (const auto& [name, value] : variables)
        text += "workspace -v " + mel::quoted(name) + " " + mel::quoted(value) + ";\n";
    return engine::writeFileAtomically(m_root / kFileName, text);
}

std::string withoutSlash(const fs::path& folder)
{
    std::string text = folder.lexically_normal().string();
    while (text.size() > 1 && text.back() == '/')
        text.pop_back();
    return text;
}

} // namespace tvxhost::mel
