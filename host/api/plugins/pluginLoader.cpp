// PluginLoader: finds, loads and unloads plug-ins, and knows what each of them registered.
#include "pluginLoader.h"

#include "engine/fileTests.h"
#include "engine/observers.h"
#include "engine/pluginData.h"
#include "library.h"
#include "support/access.h"
#include "support/builtInAttributes.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <utility>

namespace tvxhost::api {

namespace fs = std::filesystem;
using engine::Outcome;
using engine::Reason;

namespace {

constexpr const char* kExtension = ".so";

PluginLoader* chosenLoader = nullptr;

std::vector<fs::path> searchPath()
{
    std::vector<fs::path> folders;
    const char* path = std::getenv("MAYA_PLUG_IN_PATH");
    std::istringstream list(path ? path : "");
    for (std::string folder; std::getline(list, folder, ':');)
        if (!folder.empty())
            folders.emplace_back(folder);
    return folders;
}

/// The path itself or with the extension of a plug-in.
std::optional<fs::path> fileAt(const fs::path& path)
{
    for (const fs::path& candidate : {path, fs::path(path.string() + kExtension)})
        if (engine::isFile(candidate))
            return fs::absolute(candidate).lexically_normal();
    return std::nullopt;
}

/// The name under which a file's plug-in is known.
std::string nameOf(const fs::path& file)
{
    return file.extension() == kExtension ? file.stem().string() : file.filename().string();
}

/// "Plug-in, "NAME", " and the rest of a sentence.
std::string say(const std::string& name, const char* rest)
{
    return "Plug-in, \"" + name + "\", " + rest;
}

/// Calls an entry point; what it throws is a failure like any other.
bool call(Library::EntryPoint entryPoint, const Plugin& plugin)
{
    try {
        return entryPoint(tvxAccess::handle(&plugin));
    } catch (...) {
        return false;
    }
}

void tell(engine::Scene& scene, engine::Happening what, const fs::path& file, const std::string& name = {})
{
    engine::Event event{what};
    event.text = file.string();
    event.name = name;
    scene.observers().tell(event);
}

} // namespace

Plugin::Plugin(std::string pluginName, fs::path libraryFile)
    : Object(engine::ObjectClass::plugin), name(std::move(pluginName)), file(std::move(libraryFile)),
      vendor("Unknown"), version("Unknown"), requiredApiVersion("Any")
{
}

Plugin::~Plugin() = default;

PluginLoader::PluginLoader(engine::Scene& scene) : m_scene(scene) {}

// As when the program ends: no plug-in is told, and all libraries stay mapped for what still points to them.
PluginLoader::~PluginLoader()
{
    if (chosenLoader == this)
        chosenLoader = nullptr;
    for (const auto& plugin : m_loaded)
        plugin->m_library->keepMapped();
}

PluginLoader& PluginLoader::current()
{
    if (chosenLoader)
        return *chosenLoader;
    static PluginLoader ofTheSession(engine::Scene::current());
    return ofTheSession;
}

void PluginLoader::makeCurrent(PluginLoader* loader)
{
    chosenLoader = loader;
}

std::optional<fs::path> PluginLoader::find(const std::string& nameOrPath)
{
    if (nameOrPath.empty())
        return std::nullopt;
    const fs::path given(nameOrPath);
    if (given.has_parent_path())
        return fileAt(given);
    for (const fs::path& folder : searchPath())
        if (auto file = fileAt(folder / given))
            return file;
    return std::nullopt;
}

PluginResult PluginLoader::load(const std::string& nameOrPath, const std::string& wishedName)
{
    if (const Plugin* present = findLoaded(nameOrPath))
        return {{}, say(present->name, "is already loaded."), present->name};
    const auto file = find(nameOrPath);
    if (!file)
        return {{Reason::doesNotExist, say(nameOrPath, "was not found on MAYA_PLUG_IN_PATH.")}, {}, {}};
    if (const Plugin* present = findLoaded(file->string()))
        return {{}, say(present->name, "is already loaded."), present->name};
    const engine::Ref<Plugin> plugin(
        new Plugin(uniqueName(wishedName.empty() ? nameOf(*file) : wishedName), *file));
    tell(m_scene, engine::Happening::pluginLoadBegun, *file);
    const Outcome started = start(*plugin);
    if (!started) {
        if (plugin->m_library)
            m_failed.push_back(plugin);
        return {started, {}, plugin->name};
    }
    runInterface(plugin->interfaceProcedures.creation, plugin->interfaceProcedures.batchCreation);
    tell(m_scene, engine::Happening::pluginLoadDone, *file, plugin->name);
    return {{}, {}, plugin->name};
}

/// Opens the library and runs its entry point. The plug-in is among the loaded ones while it runs.
Outcome PluginLoader::start(Plugin& plugin)
{
    auto library = Library::open(plugin.file);
    if (!library)
        return {Reason::failed, library.outcome.text + " (" + plugin.name + ")"};
    plugin.m_library = std::move(library.value);
    plugin.apiVersion = plugin.m_library->apiVersion();
    BuiltInAttributes::bindAll(m_scene.types());
    m_loaded.emplace_back(&plugin);
    if (call(plugin.m_library->initialize(), plugin))
        return {};
    m_loaded.erase(std::find(m_loaded.begin(), m_loaded.end(), engine::Ref<Plugin>(&plugin)));
    // What it registered stays, and points into the library.
    plugin.m_library->keepMapped();
    return {Reason::failed, "initializePlugin function failed (" + plugin.name + ")"};
}

PluginResult PluginLoader::unload(const std::string& nameOrPath, bool force)
{
    Plugin* found = findLoaded(nameOrPath);
    if (!found)
        return {{}, say(nameOrPath, "is not loaded."), {}};
    const engine::Ref<Plugin> plugin(found);
    if (isInUse(*plugin) && !force)
        return {{Reason::inUse, say(plugin->name, "cannot be unloaded because it is still in use.")},
                {},
                plugin->name};
    tell(m_scene, engine::Happening::pluginUnloadBegun, plugin->file, plugin->name);
    runInterface(plugin->interfaceProcedures.deletion, plugin->interfaceProcedures.batchDeletion);
    const Outcome stopped = stop(*plugin);
    if (stopped)
        tell(m_scene, engine::Happening::pluginUnloadDone, plugin->file, plugin->name);
    return {stopped, {}, plugin->name};
}

Outcome PluginLoader::stop(Plugin& plugin)
{
    // Their code must be gone before the library is.
    m_scene.journal().flushCodeOf(plugin.name);
    for (engine::NodeType* type : nodeTypes(plugin))
        m_scene.makeUnknown(*type);
    if (!call(plugin.m_library->uninitialize(), plugin))
        return {Reason::failed, "uninitializePlugin function failed (" + plugin.name + ")"};
    forget(plugin);
    return {};
}

/// Removes what a plug-in left behind, and closes its library.
void PluginLoader::forget(Plugin& plugin)
{
    for (engine::NodeType* type : nodeTypes(plugin))
        (void)m_scene.types().remove(*type);
    for (const auto& type : m_scene.dataTypes().ofPlugin(plugin.name))
        m_scene.dataTypes().remove(*type);
    for (const std::string& command : plugin.commands)
        m_scene.pluginCommands.erase(command);
    plugin.commands.clear();
    plugin.m_library.reset();
    m_loaded.erase(std::find(m_loaded.begin(), m_loaded.end(), engine::Ref<Plugin>(&plugin)));
}

std::vector<Plugin*> PluginLoader::loaded() const
{
    std::vector<Plugin*> all;
    for (const auto& plugin : m_loaded)
        all.push_back(plugin.get());
    return all;
}

Plugin* PluginLoader::findLoaded(const std::string& nameOrPath) const
{
    const fs::path given(nameOrPath);
    const fs::path absolute = given.has_parent_path() ? fs::absolute(given).lexically_normal() : fs::path();
    for (const auto& plugin : m_loaded)
        if (plugin->name == nameOrPath || plugin->file.filename() == given || plugin->file == absolute)
            return plugin.get();
    return nullptr;
}

std::vector<engine::NodeType*> PluginLoader::nodeTypes(const Plugin& plugin) const
{
    return m_scene.types().ofPlugin(plugin.name);
}

bool PluginLoader::isInUse(const Plugin& plugin) const
{
    const auto types = nodeTypes(plugin);
    const auto dataTypes = m_scene.dataTypes().ofPlugin(plugin.name);
    return std::any_of(
               types.begin(), types.end(),
               [](const engine::NodeType* type) { return type->liveNodes + type->waitingNodes > 0; }) ||
           std::any_of(dataTypes.begin(), dataTypes.end(),
                       [&](const auto& type) { return engine::hasDataInUse(*type, m_scene.types()); });
}

Outcome PluginLoader::rename(Plugin& plugin, const std::string& wish, bool makeUnique)
{
    const Plugin* holder = findLoaded(wish);
    if (wish.empty() || (holder && holder != &plugin && !makeUnique))
        return {Reason::nameTaken, "A plug-in of this name is loaded"};
    const auto types = nodeTypes(plugin);
    const std::string before = std::exchange(plugin.name, holder == &plugin ? wish : uniqueName(wish));
    m_scene.dataTypes().renamePlugin(before, plugin.name);
    for (engine::NodeType* type : types)
        type->plugin = plugin.name;
    for (const std::string& command : plugin.commands)
        m_scene.pluginCommands.at(command).plugin = plugin.name;
    return {};
}

void PluginLoader::runInterface(const std::string& interactive, const std::string& batch)
{
    const std::string& procedure = m_scene.isBatch() ? batch : interactive;
    if (procedure.empty())
        return;
    engine::ScriptRunner::Result unused;
    if (m_scene.scriptRunner)
        m_scene.scriptRunner->run(procedure + "()", false, false, unused);
    else
        m_scene.scriptEditor().error("Cannot find procedure \"" + procedure + "\".");
}

std::string PluginLoader::uniqueName(const std::string& wish) const
{
    std::string name = wish;
    for (int number = 1; findLoaded(name); ++number)
        name = wish + std::to_string(number);
    return name;
}

} // namespace tvxhost::api
