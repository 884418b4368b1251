// PluginCommands: see pluginCommands.h.
#include "pluginCommands.h"

#include "scriptBridge.h"

#include <algorithm>
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

using engine::PluginSyntax;

std::vector<mel::ArgumentType> typesOf(const std::vector<PluginSyntax::Argument>& arguments)
{
    // In the order of PluginSyntax::Argument.
    constexpr mel::ArgumentType kTypes[] = {mel::ArgumentType::boolean, mel::ArgumentType::integer,
                                            mel::ArgumentType::number,  mel::ArgumentType::string,
                                            mel::ArgumentType::name,    mel::ArgumentType::time,
                                            mel::ArgumentType::linear,  mel::ArgumentType::angle};
    std::vector<mel::ArgumentType> types;
    for (const PluginSyntax::Argument argument : arguments)
        types.push_back(kTypes[static_cast<std::size_t>(argument)]);
    return types;
}

/// The arguments behind the flags: those of one type by it, others as any.
mel::PositionalRule positionalOf(const PluginSyntax& syntax)
{
    std::vector<mel::ArgumentType> types = typesOf(syntax.arguments);
    if (syntax.mostObjects > 0)
        types.push_back(mel::ArgumentType::name);
    mel::PositionalRule rule;
    if (!types.empty()) {
        const bool isOne =
            std::all_of(types.begin(), types.end(), [&](auto type) { return type == types[0]; });
        rule.type = isOne ? types[0] : mel::ArgumentType::any;
    }
    rule.least = syntax.arguments.size() + syntax.leastObjects;
    rule.most = syntax.mostObjects == PluginSyntax::kAnyNumber ? mel::PositionalRule::kAny
                                                               : syntax.arguments.size() + syntax.mostObjects;
    return rule;
}

/// The command as its plug-in declares it.
mel::CommandSpec described(mel::CommandSpec spec, const PluginSyntax& syntax)
{
    for (const PluginSyntax::Flag& flag : syntax.flags)
        spec.flags.push_back({flag.shortName, flag.longName, typesOf(flag.arguments),
                              mel::kCreate | (flag.isMultiUse ? mel::kMultiUse : 0u), ""});
    spec.positional = positionalOf(syntax);
    spec.queryable = syntax.isQueried;
    spec.editable = syntax.isEdited;
    return spec;
}

mel::CommandSpec specOf(engine::Scene& scene, const std::string& name)
{
    mel::CommandSpec spec;
    spec.name = name;
    spec.summary = "a command of the plug-in " + scene.pluginCommands.at(name).plugin;
    if (const auto syntax = scene.pluginCommands.at(name).syntax)
        spec.described = [plain = spec, syntax] { return described(plain, syntax()); };
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
