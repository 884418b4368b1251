// Files: scenes and requirements.
#include "commandSupport.h"
#include "referenceCommands.h"
#include "sceneCommands.h"

#include "../interpreter.h"

#include "engine/fileTests.h"
#include "engine/scriptEditor.h"

#include <algorithm>

namespace tvxhost::mel {

namespace fs = std::filesystem;

namespace {

constexpr const char* kUnsaved = "Unsaved changes";

// file

void checkRead(CommandContext& context, const scene::ReadResult& result)
{
    if (!result.outcome)
        throw ScriptError(result.outcome.text, result.place.line > 0 ? result.place : context.place());
}

void checkUnsaved(CommandContext& context, const ParsedCommand& call)
{
    if (sceneOf(context).isModified && !call.has("force"))
        context.fail(kUnsaved);
}

Value newFile(CommandContext& context, const ParsedCommand& call)
{
    checkUnsaved(context, call);
    if (const auto outcome = sessionOf(context).newScene(); !outcome)
        context.fail(outcome.text);
    return Value("");
}

Value openFile(CommandContext& context, const ParsedCommand& call)
{
    checkUnsaved(context, call);
    SceneSession& session = sessionOf(context);
    const fs::path file = session.workspace.resolved(call.names().at(0));
    checkRead(context, session.open(context.interpreter(), file, referenceDepthOf(context, call)));
    return Value(file.string());
}

Value importFile(CommandContext& context, const ParsedCommand& call)
{
    SceneSession& session = sessionOf(context);
    const fs::path file = session.workspace.resolved(call.names().at(0));
    checkRead(context, session.import(context.interpreter(), file, referenceDepthOf(context, call)));
    return Value(file.string());
}

void checkFormat(CommandContext& context, const ParsedCommand& call, const fs::path& file)
{
    const std::string type = call.string("type", file.extension() == ".mb" ? "mayaBinary" : "mayaAscii");
    if (type != "mayaAscii")
        context.fail("Only files of type mayaAscii can be written, not " + type);
}

Value saveFile(CommandContext& context, const ParsedCommand& call)
{
    SceneSession& session = sessionOf(context);
    const std::string name = session.scene().fileName;
    if (name.empty())
        context.fail("The scene has no name: use file -rename first");
    checkFormat(context, call, name);
    require(context, session.saveAs(name));
    return Value(name);
}

Value renameFile(CommandContext& context, const ParsedCommand& call)
{
    SceneSession& session = sessionOf(context);
    session.scene().fileName = session.workspace.resolved(call.string("rename")).lexically_normal().string();
    return Value(session.scene().fileName);
}

/// Writes the whole scene beside its own file.
Value exportAll(CommandContext& context, const ParsedCommand& call)
{
    SceneSession& session = sessionOf(context);
    const fs::path file = session.workspace.resolved(call.names().at(0));
    checkFormat(context, call, file);
    require(context, session.exportTo(file));
    return Value(file.string());
}

Value queryFile(CommandContext& context, const ParsedCommand& call)
{
    SceneSession& session = sessionOf(context);
    const engine::Scene& scene = session.scene();
    const fs::path file(scene.fileName);
    if (call.has("exists") && call.positional.empty())
        context.fail("file -query -exists: which file is asked for?");
    if (call.has("exists"))
        return Value(engine::isThere(session.workspace.resolved(call.names().at(0))));
    if (call.has("modified"))
        return Value(scene.isModified);
    if (call.has("sceneName"))
        return Value(call.has("shortName") ? file.filename().string() : scene.fileName);
    if (call.has("location"))
        return Value(scene.fileName.empty() ? std::string("unknown") : scene.fileName);
    if (call.has("type"))
        return Value(Value::Strings{"mayaAscii"});
    if (call.has("reference") || call.has("referenceNode") || call.has("deferReference") ||
        call.has("namespace"))
        return queryReferences(context, call);
    if (call.has("list")) {
        Value::Strings files;
        if (!scene.fileName.empty())
            files.push_back(scene.fileName);
        for (const auto& reference : scene.references)
            files.push_back(reference->path.empty() ? reference->file : reference->path);
        return Value(std::move(files));
    }
    context.fail("file: nothing was asked");
}

Value file(CommandContext& context, const ParsedCommand& call)
{
    if (call.queries())
        return queryFile(context, call);
    using Action = Value (*)(CommandContext&, const ParsedCommand&);
    constexpr std::pair<const char*, Action> kActions[] = {
        {"newFile", newFile},     {"open", openFile},     {"import", importFile},
        {"exportAll", exportAll}, {"rename", renameFile}, {"save", saveFile},
    };
    if (isAboutReferences(call))
        return changeReferences(context, call);
    if (call.has("exportSelected"))
        context.fail("file -exportSelected is not implemented");
    if (call.has("modified")) {
        sceneOf(context).isModified = call.boolean("modified");
        return {};
    }
    Value value;
    bool isDone = false;
    for (const auto& [flag, action] : kActions) {
        if (!call.has(flag))
            continue;
        if (std::string_view(flag) != "rename" && std::string_view(flag) != "save" &&
            std::string_view(flag) != "newFile" && call.positional.empty())
            context.fail(std::string("file -") + flag + " needs the name of a file");
        value = action(context, call);
        isDone = true;
    }
    if (!isDone)
        context.fail("file: nothing was asked for");
    return value;
}

CommandSpec fileCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        switchFlag("new", "newFile", "an empty scene"),
        switchFlag("o", "open", "opens a file"),
        switchFlag("i", "import", "adds a file's content"),
        switchFlag("s", "save", "saves the scene under its name"),
        valueFlag("rn", "rename", A::string, "the scene's name from now on"),
        switchFlag("ea", "exportAll", "writes everything to another file"),
        switchFlag("es", "exportSelected", "writes what is selected to another file"),
        valueFlag("typ", "type", A::string, "mayaAscii", kCreateQuery),
        switchFlag("f", "force", "although there are changes that were not saved"),
        valueFlag("pmt", "prompt", A::boolean, "whether dialogs may ask"),
        valueFlag("op", "options", A::string, "for the writer of the format"),
        valueFlag("iv", "ignoreVersion", A::boolean, "reads files of other versions"),
        switchFlag("sn", "sceneName", "the scene's file", kQuery),
        switchFlag("shn", "shortName", "without its folder", kQuery),
        switchFlag("loc", "location", "the scene's file, or unknown", kQuery),
        valueFlag("mf", "modified", A::boolean, "whether there are changes that were not saved",
                  kCreateQuery),
        switchFlag("ex", "exists", "whether a file exists", kQuery),
        switchFlag("l", "list", "the files in use", kQuery)};
    const std::vector<FlagSpec> ofReferences = referenceFlags();
    flags.insert(flags.end(), ofReferences.begin(), ofReferences.end());
    return makeCommand("file", "Opens, saves and tells scene files", std::move(flags), names(0, 1), file,
                       kQuery);
}

// requires, fileInfo

Value requiresPlugin(CommandContext& context, const ParsedCommand& call)
{
    const std::vector<std::string> words = call.names();
    if (words[0] == "maya")
        return {};
    const engine::Outcome loaded = sessionOf(context).loadPlugin(words[0], context.place(), true);
    if (!loaded)
        context.warn(loaded.text);
    return {};
}

Value fileInfo(CommandContext& context, const ParsedCommand& call)
{
    auto& all = sceneOf(context).fileInfo;
    const std::vector<std::string> words = call.names();
    const auto findKey = [&](const std::string& key) {
        return std::find_if(all.begin(), all.end(), [&](const auto& entry) { return entry.first == key; });
    };
    if (!call.queries())
        sceneOf(context).journal().keep(all);
    if (call.has("remove")) {
        if (const auto entry = findKey(call.string("remove")); entry != all.end())
            all.erase(entry);
        return {};
    }
    if (call.queries()) {
        Value::Strings list;
        for (const auto& [key, value] : all) {
            if (!words.empty() && key != words.front())
                continue;
            if (words.empty())
                list.push_back(key);
            list.push_back(value);
        }
        return Value(std::move(list));
    }
    if (words.size() != 2)
        context.fail("fileInfo needs a keyword and a value");
    if (const auto entry = findKey(words[0]); entry != all.end())
        entry->second = words[1];
    else
        all.emplace_back(words[0], words[1]);
    return {};
}

} // namespace

void registerFileCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        fileCommand(),
        makeCommand(
            "requires", "Loads a plug-in that a scene needs",
            {valueFlag("nt", "nodeType", A::string, "a type that it defines", kCreate | kMultiUse),
             valueFlag("dt", "dataType", A::string, "a type of data that it defines", kCreate | kMultiUse)},
            names(2, 2), requiresPlugin),
        makeCommand("fileInfo", "Keeps words with the scene",
                    {valueFlag("rm", "remove", A::string, "forgets a keyword")}, {A::string, 0, 2}, fileInfo,
                    kQuery),
    });
}

} // namespace tvxhost::mel
