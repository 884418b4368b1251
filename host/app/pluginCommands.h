// PluginCommands: makes the commands of plug-ins known to the language.
#pragma once

#include "engine/scene.h"
#include "mel/commandTable.h"

#include <set>
#include <string>

namespace tvxhost::app {

/// Keeps a command table in step with what plug-ins registered in a scene. Both outlive it.
class PluginCommands
{
public:
    PluginCommands(engine::Scene& scene, mel::CommandTable& table) : m_scene(scene), m_table(table) {}

    /// Adds the commands that came and takes away those that went. A name that the host has itself stays the
    /// host's.
    void update();

private:
    engine::Scene& m_scene;
    mel::CommandTable& m_table;
    std::set<std::string> m_names; ///< in the table because of a plug-in
};

} // namespace tvxhost::app
