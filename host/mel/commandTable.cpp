// The commands, and what a running one can reach.
#include "commandTable.h"

#include "interpreter.h"

#include <algorithm>
#include <stdexcept>

namespace tvxhost::mel {

CommandContext::CommandContext(Interpreter& interpreter, std::string_view command, Place place)
    : m_interpreter(interpreter), m_command(command), m_place(std::move(place))
{
}

engine::ScriptEditor& CommandContext::editor() const
{
    return m_interpreter.editor();
}

Session* CommandContext::anySession() const
{
    return m_interpreter.session();
}

void CommandContext::fail(const std::string& message) const
{
    throw ScriptError(message, m_place);
}

void CommandContext::warn(const std::string& message) const
{
    editor().warning(message);
}

const FlagSpec* CommandSpec::flag(std::string_view flagName) const
{
    const auto found = std::find_if(flags.begin(), flags.end(), [flagName](const FlagSpec& row) {
        return row.shortName == flagName || row.longName == flagName;
    });
    return found == flags.end() ? nullptr : &*found;
}

bool CommandTable::add(CommandSpec spec)
{
    const std::string name = spec.name;
    return m_commands.emplace(name, std::make_shared<const CommandSpec>(std::move(spec))).second;
}

void CommandTable::add(std::initializer_list<CommandSpec> specs)
{
    for (const CommandSpec& spec : specs) {
        if (!add(spec)) {
            throw std::logic_error("the command '" + spec.name + "' is declared twice");
        }
    }
}

bool CommandTable::remove(std::string_view name)
{
    return m_commands.erase(std::string(name)) != 0;
}

std::shared_ptr<const CommandSpec> CommandTable::find(std::string_view name) const
{
    const auto found = m_commands.find(std::string(name));
    return found == m_commands.end() ? nullptr : found->second;
}

std::vector<std::string> CommandTable::names() const
{
    std::vector<std::string> result;
    result.reserve(m_commands.size());
    for (const auto& entry : m_commands) {
        result.push_back(entry.first);
    }
    std::sort(result.begin(), result.end());
    return result;
}

} // namespace tvxhost::mel
