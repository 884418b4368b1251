// SceneSession: what scene commands work on: the scene, its plug-ins, files, preferences and interface.
#pragma once

#include "conditions.h"
#include "interfaceTree.h"
#include "keyClipboard.h"
#include "scriptJobs.h"
#include "windowPreferences.h"
#include "workspace.h"

#include "../commandTable.h"

#include "scene/pendingCompounds.h"
#include "scene/reader.h"
#include "scene/writer.h"

#include "engine/observers.h"
#include "engine/scene.h"

#include <deque>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace tvxhost::api {
class PluginLoader;
}

namespace tvxhost::mel {

class Interpreter;

class SceneSession : public Session
{
public:
    /// Both outlive the session; without a loader no plug-in can be loaded.
    explicit SceneSession(engine::Scene& scene, api::PluginLoader* plugins = nullptr);

    engine::Scene& scene() const { return m_scene; }
    engine::Journal* journal() override { return &m_scene.journal(); }
    api::PluginLoader* plugins() const { return m_plugins; }
    InterfaceTree& interface() { return m_interface; }

    /// Compounds that `addAttr` has declared in part.
    scene::PendingCompounds compounds;
    /// The folder of the user's preferences; empty: none are kept between runs.
    std::filesystem::path preferencesFolder;
    WindowPreferences windows;
    /// The project.
    Workspace workspace;
    /// What scripts may ask for by name.
    Conditions conditions;
    /// What was copied last of the scene's animation.
    KeyClipboard keyClipboard;
    /// Scripts that wait for something to happen.
    ScriptJobs jobs;
    /// What the user will answer to the next dialogs, in order; a dialog that finds none is cancelled.
    std::deque<std::string> dialogAnswers;
    /// Called after a plug-in was loaded or unloaded, before its interface is made or after it was removed.
    std::function<void()> pluginsChanged;
    /// Told about the progress of reading; may be empty.
    std::function<void(std::size_t done, std::size_t total)> progress;
    /// What the last file that was read held.
    scene::SceneSummary lastSummary;

    /// Loads a plug-in; the messages that the loader leaves to its caller are shown. Success when it is
    /// loaded afterwards.
    engine::Outcome loadPlugin(const std::string& name, const engine::ScriptPlace& place, bool quiet = false,
                               const std::string& wishedName = {});

    /// Reads option variables and the places of windows from the preferences' folder. The first thing that
    /// went wrong; the rest was read nevertheless.
    engine::Outcome loadPreferences(Interpreter& interpreter);
    /// Only the places of windows. A file that cannot be understood is set aside.
    engine::Outcome loadWindows(Interpreter& interpreter);
    /// Writes them all, or only what has changed.
    engine::Outcome savePreferences(bool onlyChanged);

    /// An empty scene: `file -new`. Like opening, importing and saving it is told to the scene's observers,
    /// who may forbid it.
    engine::Outcome newScene();
    /// Opens a file: `file -open`. A failure is a file that is no scene; what is wrong inside has been shown.
    scene::ReadResult open(Interpreter& interpreter, const std::filesystem::path& file,
                           scene::ReferenceDepth depth = scene::ReferenceDepth::asSaved);
    scene::ReadResult import(Interpreter& interpreter, const std::filesystem::path& file,
                             scene::ReferenceDepth depth = scene::ReferenceDepth::asSaved);
    /// Loads a reference; whether it was shows in the reference, what went wrong has been shown.
    /// `depth` counts from it on: of none and of topOnly it is the only one.
    void loadReference(Interpreter& interpreter, engine::Reference& reference, scene::ReferenceDepth depth);
    /// Loads or unloads a reference within another one; see scene::setNestedLoaded().
    engine::Outcome setNestedLoaded(Interpreter& interpreter, engine::Reference& reference, bool isLoaded,
                                    scene::ReferenceDepth depth);
    /// Gives a reference within another one another file; see scene::replaceNested().
    engine::Outcome replaceNested(Interpreter& interpreter, engine::Reference& reference,
                                  const std::string& file, bool isLoaded, scene::ReferenceDepth depth);
    /// Makes the nodes of a reference the scene's own.
    engine::Outcome importReference(Interpreter& interpreter, engine::Reference& reference);
    /// Saves the scene under its name or another.
    engine::Outcome saveAs(const std::filesystem::path& file);
    /// Writes the scene to another file and leaves it what it is called.
    engine::Outcome exportTo(const std::filesystem::path& file);

    /// Declares the globals that scripts of an interactive session expect: `$gMainWindow`.
    void declareGlobals(Interpreter& interpreter) const;

private:
    engine::Outcome write(const std::filesystem::path& file, engine::Happening check, engine::Happening begun,
                          engine::Happening done);

    struct Reading;
    scene::ReadResult read(const Reading& reading, const std::filesystem::path& file,
                           scene::ReadOptions options);
    scene::ReadOptions readOptions(Interpreter& interpreter,
                                   scene::ReferenceDepth depth = scene::ReferenceDepth::asSaved);

    engine::Scene& m_scene;
    api::PluginLoader* m_plugins;
    InterfaceTree m_interface;
};

} // namespace tvxhost::mel
