// ScriptBridge: the language as the engine and the API call it, and a plug-in's commands as scripts call
// them.
#pragma once

#include "engine/scene.h"
#include "mel/interpreter.h"

namespace tvxhost::app {

class PluginCommands;

/// Runs the API's scripts with an interpreter, the commands of plug-ins included. All three outlive it.
class ScriptBridge final : public engine::ScriptRunner
{
public:
    ScriptBridge(mel::Interpreter& interpreter, engine::ScriptEditor& editor, PluginCommands& commands)
        : m_interpreter(interpreter), m_editor(editor), m_commands(commands)
    {
    }

    bool run(const std::string& script, bool display, bool undoable, Result& result) override;
    bool sourceFile(const std::string& path) override;
    void runOnIdle(const std::string& script, bool display) override;

private:
    mel::Interpreter& m_interpreter;
    engine::ScriptEditor& m_editor;
    PluginCommands& m_commands;
};

/// A value of the language in the API's terms, and back.
engine::ScriptRunner::Result toResult(const mel::Value& value);
mel::Value toValue(const engine::ScriptRunner::Result& result);

} // namespace tvxhost::app
