// SceneSession: see sceneSession.h.
#include "sceneSession.h"

#include "../interpreter.h"

#include "api/plugins/pluginLoader.h"
#include "engine/atomicFile.h"
#include "engine/observers.h"
#include "scene/references.h"

namespace tvxhost::mel {

using engine::Happening;
using engine::Outcome;

namespace {

void tell(engine::Scene& scene, Happening what, const std::filesystem::path& file = {})
{
    engine::Event event{what};
    event.text = file.string();
    scene.observers().tell(event);
}

/// Asks those who may forbid it.
Outcome mayDo(engine::Scene& scene, Happening check, const std::filesystem::path& file = {})
{
    if (scene.observers().allow(check, file.string()))
        return {};
    return {engine::Reason::failed, "File operation cancelled by user supplied callback."};
}

constexpr const char* kVariablesFile = "userPrefs.mel";

/// What cannot be read is not replaced: nobody would know what is lost.
Outcome mayReplace(const std::filesystem::path& file)
{
    const auto held = engine::readFile(file);
    if (held || held.outcome.reason == engine::Reason::doesNotExist)
        return {};
    return {engine::Reason::failed, "'" + file.string() +
                                        "' is not replaced, because what it holds cannot be read: mend it or "
                                        "move it away"};
}

/// The root of all when the folder that the program runs in is gone.
std::filesystem::path currentFolder()
{
    std::error_code gone;
    const std::filesystem::path folder = std::filesystem::current_path(gone);
    return gone ? std::filesystem::path("/") : folder;
}

} // namespace

SceneSession::SceneSession(engine::Scene& scene, api::PluginLoader* plugins)
    : workspace(currentFolder()), conditions(scene), jobs(scene), m_scene(scene), m_plugins(plugins)
{
}

engine::Outcome SceneSession::loadPlugin(const std::string& name, const engine::ScriptPlace& place,
                                         bool quiet, const std::string& wishedName)
{
    if (!m_plugins)
        return {engine::Reason::notImplemented, "Plug-ins cannot be loaded in this session"};
    const api::PluginResult result = m_plugins->load(name, wishedName);
    if (!result.warning.empty() && !quiet)
        m_scene.scriptEditor().warning(result.warning, place);
    if (result.outcome && pluginsChanged)
        pluginsChanged();
    return result.outcome;
}

Outcome SceneSession::loadPreferences(Interpreter& interpreter)
{
    Outcome variables = m_scene.optionVars().load(preferencesFolder);
    Outcome places = loadWindows(interpreter);
    return variables ? std::move(places) : std::move(variables);
}

Outcome SceneSession::loadWindows(Interpreter& interpreter)
{
    const std::filesystem::path file = preferencesFolder / WindowPreferences::kFileName;
    if (preferencesFolder.empty())
        return {};
    if (const auto held = engine::readFile(file); !held)
        return held.outcome.reason == engine::Reason::doesNotExist ? Outcome() : held.outcome;
    try {
        interpreter.sourceFile(file);
    } catch (const ScriptError& error) {
        const std::string place =
            "'" + file.string() + "' cannot be understood in line " + std::to_string(error.place().line);
        const std::filesystem::path aside = engine::setAside(file);
        return {engine::Reason::failed,
                place + (aside.empty() ? " and could not be set aside"
                                       : "; it was set aside as '" + aside.string() + "'")};
    }
    windows.markSaved();
    return {};
}

Outcome SceneSession::savePreferences(bool onlyChanged)
{
    if (preferencesFolder.empty())
        return {};
    Outcome variables, places;
    if (!onlyChanged || m_scene.optionVars().isChanged())
        if (variables = mayReplace(preferencesFolder / kVariablesFile); variables)
            variables = m_scene.optionVars().save(preferencesFolder);
    if (!onlyChanged || windows.isChanged())
        if (places = mayReplace(preferencesFolder / WindowPreferences::kFileName); places)
            places = windows.save(preferencesFolder);
    return variables ? std::move(places) : std::move(variables);
}

scene::ReadOptions SceneSession::readOptions(Interpreter& interpreter, scene::ReferenceDepth depth)
{
    scene::ReadOptions options;
    options.references = depth;
    options.loadPlugin = [this](const std::string& name) -> engine::Outcome {
        if (m_plugins && m_plugins->findLoaded(name))
            return {};
        if (!api::PluginLoader::find(name))
            return engine::Reason::doesNotExist;
        return loadPlugin(name, {}, true);
    };
    options.runStatement = [&interpreter](StatementReader& reader, const std::string& file) {
        interpreter.executeStatement(reader, file);
    };
    options.progress = progress;
    options.projectFolders = {workspace.root()};
    if (const auto scenes = workspace.rules.find("scene"); scenes != workspace.rules.end())
        options.projectFolders.push_back(workspace.resolved(scenes->second));
    return options;
}

/// A way to read a file, and what observers are told of it.
struct SceneSession::Reading
{
    decltype(scene::openScene)* read;
    Happening check;
    Happening begun;
    Happening done;
};

scene::ReadResult SceneSession::open(Interpreter& interpreter, const std::filesystem::path& file,
                                     scene::ReferenceDepth depth)
{
    return read({scene::openScene, Happening::openChecked, Happening::openBegun, Happening::openDone}, file,
                readOptions(interpreter, depth));
}

scene::ReadResult SceneSession::import(Interpreter& interpreter, const std::filesystem::path& file,
                                       scene::ReferenceDepth depth)
{
    return read({scene::importScene, Happening::importChecked, Happening::importBegun, Happening::importDone},
                file, readOptions(interpreter, depth));
}

scene::ReadResult SceneSession::read(const Reading& reading, const std::filesystem::path& file,
                                     scene::ReadOptions options)
{
    scene::ReadResult result;
    result.outcome = mayDo(m_scene, reading.check, file);
    if (!result.outcome)
        return result;
    options.begins = [&] {
        tell(m_scene, reading.begun, file);
        tell(m_scene, Happening::readBegun, file);
    };
    result = reading.read(m_scene, file, options);
    lastSummary = result.summary;
    if (!result.outcome)
        return result;
    tell(m_scene, Happening::readDone, file);
    tell(m_scene, reading.done, file);
    return result;
}

void SceneSession::loadReference(Interpreter& interpreter, engine::Reference& reference,
                                 scene::ReferenceDepth depth)
{
    scene::ReferenceStates states;
    states[reference.nodeName].depth = scene::depthBelow(depth);
    scene::SceneSummary summary;
    scene::loadReference(m_scene, reference, readOptions(interpreter), states, summary);
}

engine::Outcome SceneSession::setNestedLoaded(Interpreter& interpreter, engine::Reference& reference,
                                              bool isLoaded, scene::ReferenceDepth depth)
{
    scene::SceneSummary summary;
    return scene::setNestedLoaded(m_scene, reference, isLoaded, readOptions(interpreter, depth), summary);
}

engine::Outcome SceneSession::replaceNested(Interpreter& interpreter, engine::Reference& reference,
                                            const std::string& file, bool isLoaded,
                                            scene::ReferenceDepth depth)
{
    scene::SceneSummary summary;
    return scene::replaceNested(m_scene, reference, file, isLoaded, readOptions(interpreter, depth), summary);
}

engine::Outcome SceneSession::importReference(Interpreter& interpreter, engine::Reference& reference)
{
    scene::SceneSummary summary;
    return scene::importReference(m_scene, reference, readOptions(interpreter), summary);
}

engine::Outcome SceneSession::newScene()
{
    if (Outcome outcome = mayDo(m_scene, Happening::newChecked); !outcome)
        return outcome;
    tell(m_scene, Happening::newBegun);
    m_scene.newScene();
    tell(m_scene, Happening::newDone);
    return {};
}

engine::Outcome SceneSession::saveAs(const std::filesystem::path& file)
{
    return write(file, Happening::saveChecked, Happening::saveBegun, Happening::saveDone);
}

engine::Outcome SceneSession::exportTo(const std::filesystem::path& file)
{
    const std::string name = m_scene.fileName;
    const bool wasModified = m_scene.isModified;
    Outcome outcome = write(file, Happening::exportChecked, Happening::exportBegun, Happening::exportDone);
    m_scene.fileName = name;
    m_scene.isModified = wasModified;
    return outcome;
}

engine::Outcome SceneSession::write(const std::filesystem::path& file, Happening check, Happening begun,
                                    Happening done)
{
    if (Outcome outcome = mayDo(m_scene, check, file); !outcome)
        return outcome;
    tell(m_scene, begun, file);
    scene::WriteOptions options;
    options.pluginVersion = [this](const std::string& name) {
        const api::Plugin* plugin = m_plugins ? m_plugins->findLoaded(name) : nullptr;
        return plugin ? plugin->version : std::string();
    };
    Outcome outcome = scene::saveScene(m_scene, file, options);
    if (outcome)
        tell(m_scene, done, file);
    return outcome;
}

void SceneSession::declareGlobals(Interpreter& interpreter) const
{
    auto window = std::make_shared<Variable>();
    window->type = Type::string;
    window->value = Value(m_scene.isBatch() ? "" : InterfaceTree::kMainWindow);
    interpreter.globals()["gMainWindow"] = window;
}

} // namespace tvxhost::mel
