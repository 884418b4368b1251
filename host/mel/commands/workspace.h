// Workspace: the project, a folder with rules that say where its files are.
#pragma once

#include "engine/outcome.h"

#include <filesystem>
#include <map>
#include <set>
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
    /// The same with variables replaced (%name%, $name, ${name}: the project's, or else of the environment;
    /// behind a tilde only the latter) and the home folder for ~ and ~user.
    std::filesystem::path expanded(const std::string& name) const;
    /// A project's name as scripts give it: that of one that is known, or else of a folder.
    std::filesystem::path folderNamed(const std::string& name) const;
    /// A folder's name: relative ones start at the current folder.
    std::filesystem::path inDirectory(const std::string& name) const;
    /// A file below the root relative to it; others whole.
    std::string projectPath(const std::string& file) const;
    /// Writes the rules and variables.
    engine::Outcome save() const;

    /// The folder that scripts call the current one.
    std::filesystem::path directory;
    using Entries = std::map<std::string, std::string>;
    /// Folders by what is kept in them ("scene" → "scenes"), and other values of the project by name.
    Entries rules, variables;
    /// Another project whose entries hold where this one has none.
    std::string base = "default";
    Entries baseRules, baseVariables;
    /// The folders of the projects that were opened or found; they outlive the project.
    std::set<std::filesystem::path> known;
    /// Adds the projects that are in the current folder to those that are known.
    void findProjects();

private:
    std::filesystem::path m_root;
};

/// Without a slash at the end, except for the root of all.
std::string withoutSlash(const std::filesystem::path& folder);

} // namespace tvxhost::mel
