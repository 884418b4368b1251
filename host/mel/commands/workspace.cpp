// Workspace: see workspace.h.
#include "workspace.h"

#include "../arguments.h"

#include "engine/atomicFile.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <optional>
#include <pwd.h>

namespace tvxhost::mel {

namespace fs = std::filesystem;

namespace {

std::string environment(const std::string& name)
{
    const char* const value = std::getenv(name.c_str());
    return value ? value : std::string();
}

/// A variable in a name: where it ends, and what it is called; nothing at all when there is none.
struct VariableUse
{
    std::size_t end;
    std::string name;
};

std::optional<VariableUse> variableAt(const std::string& text, std::size_t at)
{
    const auto upTo = [&](char mark, std::size_t start) -> std::optional<VariableUse> {
        const std::size_t end = text.find(mark, start);
        if (end == std::string::npos || end == start)
            return std::nullopt;
        return VariableUse{end + 1, text.substr(start, end - start)};
    };
    if (text[at] == '%')
        return upTo('%', at + 1);
    if (text[at] != '$')
        return std::nullopt;
    if (text.compare(at, 2, "${") == 0)
        return upTo('}', at + 2);
    std::size_t end = at + 1;
    while (end < text.size() && (std::isalnum(static_cast<unsigned char>(text[end])) || text[end] == '_'))
        ++end;
    return end == at + 1 ? std::nullopt
                         : std::optional<VariableUse>({end, text.substr(at + 1, end - at - 1)});
}

std::string homeOf(const std::string& user)
{
    if (user.empty())
        return environment("HOME");
    const passwd* const entry = ::getpwnam(user.c_str());
    return entry ? entry->pw_dir : std::string();
}

/// ~ and ~user at the start of a name.
std::string withHome(const std::string& name)
{
    if (name.empty() || name.front() != '~')
        return name;
    const std::size_t slash = std::min(name.find('/'), name.size());
    const std::string home = homeOf(name.substr(1, slash - 1));
    return home.empty() ? name : home + name.substr(slash);
}

} // namespace

Workspace::Workspace(fs::path root) : directory(root), m_root(std::move(root)) {}

void Workspace::open(const fs::path& root)
{
    std::set<fs::path> projects = std::move(known);
    *this = Workspace(root);
    known = std::move(projects);
    known.insert(withoutSlash(root));
}

fs::path Workspace::expanded(const std::string& name) const
{
    std::string text;
    for (std::size_t at = 0; at < name.size();) {
        const std::optional<VariableUse> variable = variableAt(name, at);
        if (!variable) {
            text += name[at++];
            continue;
        }
        const bool isBehindTilde = at > 0 && name[at - 1] == '~';
        const auto own = variables.find(variable->name);
        const auto inherited = baseVariables.find(variable->name);
        text += isBehindTilde || (own == variables.end() && inherited == baseVariables.end())
                    ? environment(variable->name)
                : own != variables.end() ? own->second
                                         : inherited->second;
        at = variable->end;
    }
    return resolved(withHome(text));
}

fs::path Workspace::folderNamed(const std::string& name) const
{
    const fs::path path(name);
    const auto isNamed = [&](const fs::path& project) { return project.filename() == path; };
    const auto project = std::find_if(known.begin(), known.end(), isNamed);
    return project != known.end() ? *project : inDirectory(name);
}

fs::path Workspace::inDirectory(const std::string& name) const
{
    const fs::path path(name);
    return path.is_absolute() ? path : directory / path;
}

std::string Workspace::projectPath(const std::string& file) const
{
    const fs::path path = resolved(file).lexically_normal();
    const fs::path relative = path.lexically_relative(withoutSlash(m_root));
    return relative.empty() || *relative.begin() == ".." ? path.string() : relative.string();
}

void Workspace::findProjects()
{
    std::error_code error;
    for (fs::directory_iterator entry(directory, error), end; !error && entry != end; entry.increment(error))
        if (std::error_code other; fs::exists(entry->path() / kFileName, other))
            known.insert(withoutSlash(entry->path()));
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
