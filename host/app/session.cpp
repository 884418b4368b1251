// Session: the parts tied together.
#include "session.h"

#include "mel/commands/sceneCommands.h"

namespace tvxhost::app {

Session::Session(Mode mode, std::ostream& out, std::ostream& err)
    : m_scene(mode == Mode::batch), m_loader(m_scene), m_commands(m_scene, &m_loader),
      m_interpreter(m_table, m_scene.scriptEditor(), &m_commands), m_pluginCommands(m_scene, m_table),
      m_bridge(m_interpreter, m_scene.scriptEditor(), m_pluginCommands)
{
    engine::Scene::makeCurrent(&m_scene);
    api::PluginLoader::makeCurrent(&m_loader);
    editor().setStreams(&out, &err);
    editor().setFrame(mode == Mode::batch ? engine::ScriptEditor::Frame::batch
                                          : engine::ScriptEditor::Frame::interactive);
    mel::registerLanguageCommands(m_table);
    mel::registerSceneCommands(m_table);
    m_commands.declareGlobals(m_interpreter);
    m_commands.pluginsChanged = [this] { m_pluginCommands.update(); };
    m_scene.scriptRunner = &m_bridge;
    m_scene.newScene();
}

Session::~Session()
{
    m_scene.scriptRunner = nullptr;
    api::PluginLoader::makeCurrent(nullptr);
    engine::Scene::makeCurrent(nullptr);
}

} // namespace tvxhost::app
