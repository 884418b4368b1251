// Plug-ins: loadPlugin, unloadPlugin, pluginInfo.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "api/plugins/pluginLoader.h"

#include <algorithm>

namespace tvxhost::mel {

using api::Plugin;
using api::PluginLoader;

namespace {

PluginLoader& loaderOf(CommandContext& context)
{
    PluginLoader* loader = sessionOf(context).plugins();
    if (!loader)
        context.fail("Plug-ins cannot be loaded in this session");
    return *loader;
}

Value loadPlugin(CommandContext& context, const ParsedCommand& call)
{
    SceneSession& session = sessionOf(context);
    PluginLoader& loader = loaderOf(context);
    Value::Strings loadedNames;
    for (const std::string& name : call.names()) {
        require(context, session.loadPlugin(name, context.place(), call.has("quiet"), call.string("name")));
        if (const Plugin* plugin = loader.findLoaded(call.has("name") ? call.string("name") : name))
            loadedNames.push_back(plugin->name);
    }
    return Value(std::move(loadedNames));
}

Value unloadPlugin(CommandContext& context, const ParsedCommand& call)
{
    SceneSession& session = sessionOf(context);
    Value::Strings unloaded;
    for (const std::string& name : call.names()) {
        const api::PluginResult result = loaderOf(context).unload(name, call.has("force"));
        if (!result.warning.empty())
            context.editor().warning(result.warning, context.place());
        require(context, result.outcome);
        if (session.pluginsChanged)
            session.pluginsChanged();
        if (!result.name.empty())
            unloaded.push_back(result.name);
    }
    return Value(std::move(unloaded));
}

// pluginInfo

struct PluginQuestion
{
    const char* shortName;
    const char* longName;
    const char* help;
    Value (*answer)(PluginLoader& loader, const Plugin& plugin);
};

Value::Strings typeNames(PluginLoader& loader, const Plugin& plugin)
{
    Value::Strings names;
    for (const engine::NodeType* type : loader.nodeTypes(plugin))
        names.push_back(type->name);
    return names;
}

const PluginQuestion kQuestions[] = {
    {"n", "name", "its name", [](PluginLoader&, const Plugin& plugin) { return Value(plugin.name); }},
    {"p", "path", "its library",
     [](PluginLoader&, const Plugin& plugin) { return Value(plugin.file.string()); }},
    {"vd", "vendor", "who made it", [](PluginLoader&, const Plugin& plugin) { return Value(plugin.vendor); }},
    {"v", "version", "its version",
     [](PluginLoader&, const Plugin& plugin) { return Value(plugin.version); }},
    {"av", "apiVersion", "the interface it was built with",
     [](PluginLoader&, const Plugin& plugin) { return Value(plugin.apiVersion); }},
    {"dn", "dependNode", "the types of node that it defines",
     [](PluginLoader& loader, const Plugin& plugin) { return Value(typeNames(loader, plugin)); }},
    {"c", "command", "the commands that it defines",
     [](PluginLoader&, const Plugin& plugin) { return Value(Value::Strings(plugin.commands)); }},
    {"uo", "unloadOk", "whether it can be unloaded now",
     [](PluginLoader& loader, const Plugin& plugin) { return Value(!loader.isInUse(plugin)); }},
    {"r", "registered", "whether it is known", [](PluginLoader&, const Plugin&) { return Value(1); }},
    {"a", "autoload", "whether it is loaded at every start",
     [](PluginLoader&, const Plugin&) { return Value(0); }},
    {"wr", "writeRequires", "whether scenes name it without using it",
     [](PluginLoader&, const Plugin&) { return Value(0); }},
};

Value::Strings allNames(PluginLoader& loader, bool onlyInUse)
{
    Value::Strings names;
    for (const Plugin* plugin : loader.loaded())
        if (!onlyInUse || loader.isInUse(*plugin)) {
            names.push_back(plugin->name);
            if (onlyInUse)
                names.push_back(plugin->version);
        }
    return names;
}

/// -dependNodeId: the id of one of the plug-in's types.
Value typeId(CommandContext& context, PluginLoader& loader, const Plugin& plugin, const std::string& type)
{
    for (const engine::NodeType* candidate : loader.nodeTypes(plugin))
        if (candidate->name == type)
            return Value(static_cast<int>(candidate->id));
    context.fail("pluginInfo: '" + plugin.name + "' has no node type '" + type + "'");
}

Value pluginInfo(CommandContext& context, const ParsedCommand& call)
{
    PluginLoader& loader = loaderOf(context);
    if (!call.queries())
        context.fail("pluginInfo can only be queried");
    if (call.has("listPlugins"))
        return Value(allNames(loader, false));
    if (call.has("pluginsInUse"))
        return Value(allNames(loader, true));
    const std::vector<std::string> names = call.names();
    if (names.empty())
        context.fail("pluginInfo: no plug-in was named");
    const Plugin* plugin = loader.findLoaded(names.front());
    if (call.has("loaded"))
        return Value(plugin != nullptr);
    if (!plugin) {
        if (call.has("registered"))
            return Value(0);
        context.fail("Plug-in, \"" + names.front() + "\", is not loaded.");
    }
    if (call.has("dependNodeId"))
        return typeId(context, loader, *plugin, call.string("dependNodeId"));
    for (const PluginQuestion& question : kQuestions)
        if (call.has(question.longName))
            return question.answer(loader, *plugin);
    context.fail("pluginInfo: nothing was asked");
}

CommandSpec pluginInfoCommand()
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags = {
        switchFlag("ls", "listPlugins", "all that are loaded", kQuery),
        switchFlag("pu", "pluginsInUse", "those whose nodes are in the scene, with their versions", kQuery),
        switchFlag("l", "loaded", "whether it is loaded", kQuery),
        valueFlag("dni", "dependNodeId", A::string, "the id of a type that it defines",
                  kQuery | kQueryWithArguments),
    };
    for (const PluginQuestion& question : kQuestions)
        flags.push_back(switchFlag(question.shortName, question.longName, question.help, kQuery));
    const char* const notHere = "the host has no plug-ins of this kind";
    for (const auto& [shortName, longName] :
         {std::pair("aci", "animCurveInterp"), std::pair("cf", "cacheFormat"),
          std::pair("ctc", "constraintCommand"), std::pair("ctl", "controlCommand"), std::pair("d", "data"),
          std::pair("dv", "device"), std::pair("ddb", "dragAndDropBehavior"), std::pair("ik", "iksolver"),
          std::pair("t", "tool"), std::pair("tr", "translator")})
        flags.push_back(refusedFlag(shortName, longName, notHere));
    const char* const notKept = "the host keeps no settings of plug-ins";
    for (const auto& [shortName, longName] :
         {std::pair("cc", "changedCommand"), std::pair("lpp", "loadPluginPrefs"),
          std::pair("spp", "savePluginPrefs"), std::pair("set", "settings")})
        flags.push_back(refusedFlag(shortName, longName, notKept));
    return makeCommand("pluginInfo", "Tells about plug-ins", std::move(flags), {A::string, 0, 1}, pluginInfo,
                       kAllModes);
}

constexpr const char* kNoCallbacks = "no scripts are run when plug-ins come and go";

} // namespace

void registerPluginCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand("loadPlugin", "Loads plug-ins",
                    {switchFlag("qt", "quiet", "no warning when it is loaded already"),
                     valueFlag("n", "name", A::string, "the name to know it by"),
                     refusedFlag("a", "allPlugins", "name those that are wanted"),
                     refusedFlag("ac", "addCallback", kNoCallbacks),
                     refusedFlag("rc", "removeCallback", kNoCallbacks)},
                    {A::string, 1, PositionalRule::kAny}, loadPlugin),
        makeCommand("unloadPlugin", "Unloads plug-ins",
                    {switchFlag("f", "force", "although there are nodes of its types"),
                     refusedFlag("ac", "addCallback", kNoCallbacks),
                     refusedFlag("rc", "removeCallback", kNoCallbacks)},
                    {A::string, 1, PositionalRule::kAny}, unloadPlugin),
        pluginInfoCommand(),
    });
}

} // namespace tvxhost::mel
