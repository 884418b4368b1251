// workspace: tells and sets the project.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "../interpreter.h"

#include "engine/observers.h"

namespace tvxhost::mel {

namespace fs = std::filesystem;

namespace {

std::string valueIn(const std::map<std::string, std::string>& entries, const std::string& name)
{
    const auto found = entries.find(name);
    return found == entries.end() ? std::string() : found->second;
}

Value::Strings namesIn(const std::map<std::string, std::string>& entries)
{
    Value::Strings list;
    for (const auto& entry : entries)
        list.push_back(entry.first);
    return list;
}

Value::Strings pairsIn(const std::map<std::string, std::string>& entries)
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
    {"act", "active", "the project's folder",
     [](const Workspace& workspace) { return Value(withoutSlash(workspace.root())); }},
    {"frl", "fileRuleList", "the names of the rules",
     [](const Workspace& workspace) { return Value(namesIn(workspace.rules)); }},
    {"vl", "variableList", "the names of the variables",
     [](const Workspace& workspace) { return Value(namesIn(workspace.variables)); }},
};

/// What can be set, changed, asked for and removed by name.
struct Table
{
    const char* set; ///< also asks for all pairs
    const char* entry;
    const char* remove;
    std::map<std::string, std::string> Workspace::*entries;
};

constexpr Table kTables[] = {
    {"fileRule", "fileRuleEntry", "removeFileRuleEntry", &Workspace::rules},
    {"variable", "variableEntry", "removeVariableEntry", &Workspace::variables},
};

Value queryWorkspace(CommandContext& context, const ParsedCommand& call)
{
    const Workspace& project = sessionOf(context).workspace;
    for (const Table& table : kTables) {
        if (call.has(table.entry))
            return Value(valueIn(project.*table.entries, call.string(table.entry)));
        if (call.has(table.set))
            return Value(pairsIn(project.*table.entries));
    }
    if (call.has("expandName"))
        return Value(project.resolved(call.string("expandName")).lexically_normal().string());
    if (call.has("directory"))
        return Value(withoutSlash(project.directory));
    for (const Question& question : kQuestions)
        if (call.has(question.longName))
            return question.answer(project);
    context.fail("workspace: nothing was asked");
}

void openProject(CommandContext& context, const fs::path& folder)
{
    if (!fs::is_directory(folder))
        context.fail("workspace: there is no folder \"" + folder.string() + "\"");
    sessionOf(context).workspace.open(folder);
    if (fs::exists(folder / Workspace::kFileName))
        context.interpreter().sourceFile(folder / Workspace::kFileName);
    sceneOf(context).observers().tell({engine::Happening::projectChanged});
}

void makeFolder(CommandContext& context, const fs::path& folder)
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (error)
        context.fail("workspace: cannot make the folder \"" + folder.string() + "\": " + error.message());
}

void changeTables(Workspace& project, const ParsedCommand& call)
{
    for (const Table& table : kTables) {
        for (const FlagUse* use : call.uses(table.set))
            (project.*table.entries)[use->arguments[0].toString()] = use->arguments[1].toString();
        if (call.has(table.remove))
            (project.*table.entries).erase(call.string(table.remove));
    }
}

Value workspace(CommandContext& context, const ParsedCommand& call)
{
    if (call.queries())
        return queryWorkspace(context, call);
    Workspace& project = sessionOf(context).workspace;
    const std::string name = call.positional.empty() ? std::string() : call.names().front();
    if (call.has("newWorkspace"))
        makeFolder(context, project.resolved(name));
    if (!name.empty())
        openProject(context, project.resolved(name));
    if (call.has("create"))
        makeFolder(context, project.resolved(call.string("create")));
    if (call.has("directory"))
        project.directory = project.resolved(call.string("directory"));
    changeTables(project, call);
    if (call.has("saveWorkspace"))
        require(context, project.save());
    return {};
}

} // namespace

void registerWorkspaceCommands(CommandTable& table)
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        switchFlag("o", "openWorkspace", "makes the named folder the project"),
        switchFlag("nw", "newWorkspace", "makes the folder first"),
        switchFlag("s", "saveWorkspace", "writes the rules into the project's folder"),
        valueFlag("cr", "create", A::string, "makes a folder in the project"),
        valueFlag("dir", "directory", A::string, "the current folder", kCreateQuery),
        valueFlag("en", "expandName", A::string, "the path of a file of the project",
                  kQuery | kQueryWithArguments),
        {"fr", "fileRule", {A::string, A::string}, kCreateQuery | kMultiUse, "a kind of file and its folder"},
        valueFlag("fre", "fileRuleEntry", A::string, "the folder of a kind of file",
                  kQuery | kQueryWithArguments),
        valueFlag("rfr", "removeFileRuleEntry", A::string, "forgets a kind of file"),
        {"v", "variable", {A::string, A::string}, kCreateQuery | kMultiUse, "a variable and its value"},
        valueFlag("ve", "variableEntry", A::string, "the value of a variable", kQuery | kQueryWithArguments),
        valueFlag("rv", "removeVariableEntry", A::string, "forgets a variable"),
    };
    for (const Question& question : kQuestions)
        flags.push_back(switchFlag(question.shortName, question.longName, question.help, kQuery));
    table.add({makeCommand("workspace", "Tells and sets the project", std::move(flags), {A::string, 0, 1},
                           workspace, kQuery)});
}

} // namespace tvxhost::mel
