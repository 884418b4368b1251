// Workspace: the project, a folder with rules that say where its files are.
#pragma once

#include "engine/outcome.h"

#include <filesystem>
#include <map>
#include <string>

namespace tvxhost::mel {

class Workspace
{
public:
    /// Rules and variables stand in this file of the project's folder.
    static constexpr const char* kFileName = "workspace.mel";

    explicit Workspace(std::filesystem::path root);

    const std::filesystem::path& root() const { return m_root; }
    /// Another project; it has no rules yet, and its root is the current folder.
    void open(const std::filesystem::path& root);

    /// A file's name as scripts give it: relative ones start at the root.
    std::filesystem::path resolved(const std::string& name) const;
    /// Writes the rules and variables.
    engine::Outcome save() const;

    /// The folder that scripts call the current one.
    std::filesystem::path directory;
    /// Folders by what is kept in them ("scene" → "scenes"), and other values of the project by name.
    std::map<std::string, std::string> rules, variables;

private:
    std::filesystem::path m_root;
};

/// Without a slash at the end, except for the root of all.
std::string withoutSlash(const std::filesystem::path& folder);

} // namespace tvxhost::mel
