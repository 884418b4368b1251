// Session: a scene with everything that works on it: plug-ins, the language, the script editor's streams.
#pragma once

#include "engine/scene.h"
#include "pluginCommands.h"
#include "scriptBridge.h"

#include "api/plugins/pluginLoader.h"
#include "mel/commandTable.h"
#include "mel/commands/sceneSession.h"
#include "mel/interpreter.h"

#include <ostream>

namespace tvxhost::app {

/// While it lives, its scene and plug-in loader are the current ones of the process. One at a time.
class Session
{
public:
    enum class Mode
    {
        batch,
        interactive
    };

    /// The script editor's lines go to `out` and `err`, framed as the mode asks for.
    Session(Mode mode, std::ostream& out, std::ostream& err);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    engine::Scene& scene() { return m_scene; }
    engine::ScriptEditor& editor() { return m_scene.scriptEditor(); }
    mel::Interpreter& interpreter() { return m_interpreter; }
    /// What scene commands work on: files, plug-ins, preferences.
    mel::SceneSession& commands() { return m_commands; }

private:
    engine::Scene m_scene;
    api::PluginLoader m_loader;
    mel::CommandTable m_table;
    mel::SceneSession m_commands;
    mel::Interpreter m_interpreter;
    PluginCommands m_pluginCommands;
    ScriptBridge m_bridge;
};

} // namespace tvxhost::app
