// workspace: tells and sets the project.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "../interpreter.h"

#include "engine/fileTests.h"
#include "engine/observers.h"

#include <algorithm>

namespace tvxhost::mel {

namespace fs = std::filesystem;

namespace {

using Entries = Workspace::Entries;

/// What can be set, asked for and removed by name. Kinds of files have had several names.
struct Table
{
    struct Flag
    {
        const char* shortName;
        const char* longName;
    };
    Flag set; ///< also asks for all pairs
    Flag entry;
    Flag list;
    Flag remove; ///< none for the older names
    Entries Workspace::*entries;
    Entries Workspace::*inherited;
    const char* what;
};

constexpr Table kTables[] = {
    {{"fr", "fileRule"},
     {"fre", "fileRuleEntry"},
     {"frl", "fileRuleList"},
     {"rfr", "removeFileRuleEntry"},
     &Workspace::rules,
     &Workspace::baseRules,
     "a kind of file"},
    {{"rt", "renderType"},
     {"rte", "renderTypeEntry"},
     {"rtl", "renderTypeList"},
     {},
     &Workspace::rules,
     &Workspace::baseRules,
     "a kind of file (as -fileRule)"},
    {{"ot", "objectType"},
     {"ote", "objectTypeEntry"},
     {"otl", "objectTypeList"},
     {},
     &Workspace::rules,
     &Workspace::baseRules,
     "a kind of file (as -fileRule)"},
    {{"v", "variable"},
     {"ve", "variableEntry"},
     {"vl", "variableList"},
     {"rve", "removeVariableEntry"},
     &Workspace::variables,
     &Workspace::baseVariables,
     "a variable"},
};

/// Those of the project, and those of its base that it does not have.
Entries entriesOf(const Workspace& project, const Table& table)
{
    Entries entries = project.*table.entries;
    entries.insert((project.*table.inherited).begin(), (project.*table.inherited).end());
    return entries;
}

Value::Strings namesIn(const Entries& entries)
{
    Value::Strings list;
    for (const auto& entry : entries)
        list.push_back(entry.first);
    return list;
}

Value::Strings pairsIn(const Entries& entries)
{
    Value::Strings list;
    for (const auto& [name, value] : entries)
        list.insert(list.end(), {name, value});
    return list;
}

/// What can be asked without a name.
struct Question
{
    const char* shortName;
    const char* longName;
    const char* help;
    Value (*answer)(const Workspace& workspace);
};

const Question kQuestions[] = {
    {"fn", "fullName", "the project's folder",
     [](const Workspace& workspace) { return Value(withoutSlash(workspace.root())); }},
    {"rd", "rootDirectory", "the same with a slash at its end",
     [](const Workspace& workspace) {
         return Value((fs::path(withoutSlash(workspace.root())) / "").string());
     }},
    {"sn", "shortName", "the name of the project's folder",
     [](const Workspace& workspace) {
         return Value(fs::path(withoutSlash(workspace.root())).filename().string());
     }},
    {"lw", "listWorkspaces", "the names of the projects that are known",
     [](const Workspace& workspace) {
         Value::Strings list;
         for (const fs::path& project : workspace.known)
             list.push_back(project.filename().string());
         return Value(std::move(list));
     }},
    {"lfw", "listFullWorkspaces", "the folders of the projects that are known",
     [](const Workspace& workspace) {
         Value::Strings list;
         for (const fs::path& project : workspace.known)
             list.push_back(project.string());
         return Value(std::move(list));
     }},
};

/// What is asked with a name.
struct Lookup
{
    const char* shortName;
    const char* longName;
    const char* help;
    std::string (*answer)(const Workspace& workspace, const std::string& name);
};

const Lookup kLookups[] = {
    {"en", "expandName", "the path of a file of the project",
     [](const Workspace& workspace, const std::string& name) {
         return workspace.expanded(name).lexically_normal().string();
     }},
    {"pp", "projectPath", "a file's path from the project's folder on, when it is in it",
     [](const Workspace& workspace, const std::string& name) { return workspace.projectPath(name); }},
};

Value contentOf(const fs::path& folder)
{
    Value::Strings names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        names.push_back(entry->path().filename().string());
    std::sort(names.begin(), names.end());
    return Value(std::move(names));
}

/// The answer of a table; no value when it was not asked.
Value answerOf(const Workspace& project, const Table& table, const ParsedCommand& call)
{
    const Entries entries = entriesOf(project, table);
    if (call.has(table.entry.longName)) {
        const auto found = entries.find(call.string(table.entry.longName));
        return Value(found == entries.end() ? std::string() : found->second);
    }
    if (call.has(table.list.longName))
        return Value(namesIn(entries));
    return call.queries() && call.has(table.set.longName) ? Value(pairsIn(entries)) : Value();
}

/// What was asked; no value when nothing was.
Value answer(const Workspace& project, const ParsedCommand& call)
{
    for (const Table& table : kTables)
        if (Value found = answerOf(project, table, call); found.type() != Type::none)
            return found;
    for (const Lookup& lookup : kLookups)
        if (call.has(lookup.longName))
            return Value(lookup.answer(project, call.string(lookup.longName)));
    for (const Question& question : kQuestions)
        if (call.has(question.longName))
            return question.answer(project);
    if (call.has("list"))
        return contentOf(call.positional.empty() ? project.directory
                                                 : project.folderNamed(call.names().front()));
    if (!call.queries())
        return {};
    if (call.has("baseWorkspace"))
        return Value(project.base);
    if (call.has("openWorkspace") || call.has("active"))
        return Value(withoutSlash(project.root()));
    return call.has("directory") ? Value(withoutSlash(project.directory)) : Value();
}

Value queryWorkspace(CommandContext& context, const ParsedCommand& call)
{
    Value found = answer(sessionOf(context).workspace, call);
    if (found.type() == Type::none)
        context.fail("workspace: nothing was asked");
    return found;
}

void readDefinition(CommandContext& context, const fs::path& folder)
{
    if (engine::isFile(folder / Workspace::kFileName))
        context.interpreter().sourceFile(folder / Workspace::kFileName);
}

void openProject(CommandContext& context, const fs::path& folder)
{
    if (!engine::isFolder(folder))
        context.fail("workspace: there is no folder \"" + folder.string() + "\"");
    sessionOf(context).workspace.open(folder);
    readDefinition(context, folder);
    sceneOf(context).observers().tell({engine::Happening::projectChanged});
}

/// A project without a definition yet. No folder is made; without one the root is that of the system.
void newProject(CommandContext& context, const fs::path& folder)
{
    if (engine::isFile(folder / Workspace::kFileName))
        context.fail("workspace: there is a project in \"" + folder.string() + "\" already");
    sessionOf(context).workspace.open(engine::isFolder(folder) ? folder : folder.root_path());
    sceneOf(context).observers().tell({engine::Happening::projectChanged});
}

/// The entries of another project hold as far as this one has none.
void baseOn(CommandContext& context, const std::string& name)
{
    Workspace& project = sessionOf(context).workspace;
    const fs::path folder = project.folderNamed(name);
    if (!engine::isFile(folder / Workspace::kFileName))
        context.fail("workspace: there is no project '" + name + "'");
    Workspace own = project;
    project.open(folder);
    try {
        readDefinition(context, folder);
    } catch (...) {
        project = std::move(own);
        throw;
    }
    own.base = name;
    own.baseRules = std::move(project.rules);
    own.baseVariables = std::move(project.variables);
    project = std::move(own);
}

void makeFolder(CommandContext& context, const fs::path& folder)
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (error)
        context.fail("workspace: cannot make the folder \"" + folder.string() + "\": " + error.message());
}

void changeTables(CommandContext& context, const ParsedCommand& call)
{
    Workspace& project = sessionOf(context).workspace;
    bool isChanged = false;
    for (const Table& table : kTables) {
        for (const FlagUse* use : call.uses(table.set.longName)) {
            (project.*table.entries)[use->arguments[0].toString()] = use->arguments[1].toString();
            isChanged = true;
        }
        if (table.remove.longName && call.has(table.remove.longName))
            isChanged = (project.*table.entries).erase(call.string(table.remove.longName)) > 0 || isChanged;
    }
    if (isChanged)
        sceneOf(context).observers().tell({engine::Happening::projectChanged});
}

Value workspace(CommandContext& context, const ParsedCommand& call)
{
    if (call.queries())
        return queryWorkspace(context, call);
    Workspace& project = sessionOf(context).workspace;
    if (!call.positional.empty() && !call.has("list")) {
        const fs::path folder = project.folderNamed(call.names().front());
        call.has("newWorkspace") ? newProject(context, folder) : openProject(context, folder);
    }
    if (call.has("create"))
        makeFolder(context, project.inDirectory(call.string("create")));
    if (call.has("directory"))
        project.directory = project.inDirectory(call.string("directory"));
    if (call.has("update") || call.has("updateAll"))
        project.findProjects();
    if (call.has("baseWorkspace"))
        baseOn(context, call.string("baseWorkspace"));
    changeTables(context, call);
    if (call.has("saveWorkspace"))
        require(context, project.save());
    return answer(project, call);
}

void addTableFlags(const Table& table, std::vector<FlagSpec>& flags)
{
    using A = ArgumentType;
    constexpr unsigned kAsks = kCreateQuery | kQueryWithArguments;
    const std::string what = table.what;
    flags.push_back({table.set.shortName,
                     table.set.longName,
                     {A::string, A::string},
                     kCreateQuery | kMultiUse,
                     what + " and its value; asked: all of them"});
    flags.push_back(
        valueFlag(table.entry.shortName, table.entry.longName, A::string, "the value of " + what, kAsks));
    flags.push_back(switchFlag(table.list.shortName, table.list.longName, "the names of all", kCreateQuery));
    if (table.remove.longName)
        flags.push_back(
            valueFlag(table.remove.shortName, table.remove.longName, A::string, "forgets " + what));
}

} // namespace

void registerWorkspaceCommands(CommandTable& table)
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        switchFlag("o", "openWorkspace", "makes the named folder the project", kCreateQuery),
        switchFlag("act", "active", "the same", kCreateQuery),
        switchFlag("n", "newWorkspace", "makes the named folder a new project"),
        switchFlag("s", "saveWorkspace", "writes the rules into the project's folder"),
        switchFlag("u", "update", "looks for projects in the current folder"),
        switchFlag("ua", "updateAll", "the same"),
        valueFlag("bw", "baseWorkspace", A::string, "the project whose rules hold where this one has none",
                  kCreateQuery),
        valueFlag("cr", "create", A::string, "makes a folder in the current one"),
        valueFlag("dir", "directory", A::string, "the current folder", kCreateQuery),
        switchFlag("l", "list", "what is in the current folder, or in the named one", kCreateQuery),
        refusedFlag("f", "filter", "obsolete"),
    };
    for (const Table& entries : kTables)
        addTableFlags(entries, flags);
    for (const Lookup& lookup : kLookups)
        flags.push_back(valueFlag(lookup.shortName, lookup.longName, A::string, lookup.help,
                                  kCreateQuery | kQueryWithArguments));
    for (const Question& question : kQuestions)
        flags.push_back(switchFlag(question.shortName, question.longName, question.help, kCreateQuery));
    table.add({makeCommand("workspace", "Tells and sets the project", std::move(flags), {A::string, 0, 1},
                           workspace, kQuery)});
}

} // namespace tvxhost::mel
