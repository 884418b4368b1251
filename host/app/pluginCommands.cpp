// PluginCommands: see pluginCommands.h.
#include "pluginCommands.h"

#include "scriptBridge.h"

#include <utility>

namespace tvxhost::app {

namespace {

mel::Value runCommand(engine::Scene& scene, const mel::CommandContext& context,
                      const mel::ArgumentList& arguments)
{
    const auto found = scene.pluginCommands.find(context.command());
    if (found == scene.pluginCommands.end())
        context.fail("'" + context.command() + "' belongs to a plug-in that is not loaded");
    std::vector<engine::ScriptRunner::Result> words;
    for (const mel::Argument& argument : arguments)
        words.push_back(toResult(argument.asValue()));
    engine::ScriptRunner::Result result;
    if (!found->second.run(words, result))
        context.fail("'" + context.command() + "' failed");
    return toValue(result);
}

mel::CommandSpec specOf(engine::Scene& scene, const std::string& name)
{
    mel::CommandSpec spec;
    spec.name = name;
    spec.summary = "a command of the plug-in " + scene.pluginCommands.at(name).plugin;
    spec.handler =
        mel::RawHandler([&scene](mel::CommandContext& context, const mel::ArgumentList& arguments) {
            return runCommand(scene, context, arguments);
        });
    return spec;
}

} // namespace

void PluginCommands::update()
{
    for (auto name = m_names.begin(); name != m_names.end();) {
        if (m_scene.pluginCommands.count(*name) != 0) {
            ++name;
            continue;
        }
        m_table.remove(*name);
        name = m_names.erase(name);
    }
    for (const auto& [name, command] : m_scene.pluginCommands) {
        if (m_names.count(name) == 0 && m_table.add(specOf(m_scene, name)))
            m_names.insert(name);
    }
}

} // namespace tvxhost::app
