// Running scripts: files, texts, procedures, commands.
#include "interpreter.h"

#include "evaluator.h"
#include "stackRoom.h"

#include "engine/atomicFile.h"
#include "engine/journal.h"

#include <algorithm>
#include <optional>

namespace tvxhost::mel {

namespace {

std::string readFile(const std::filesystem::path& file)
{
    auto text = engine::readFile(file);
    if (text.outcome.reason == engine::Reason::doesNotExist) {
        throw ScriptError("Cannot read file \"" + file.string() + "\".", {});
    }
    if (!text) {
        throw ScriptError(text.outcome.text, {});
    }
    return std::move(text.value);
}

/// The arguments of a procedure or function that is called as a command.
std::vector<Value> valuesOf(const ArgumentList& arguments)
{
    std::vector<Value> values;
    values.reserve(arguments.size());
    for (const Argument& argument : arguments) {
        values.push_back(argument.asValue());
    }
    return values;
}

/// A command as it would be typed, for the one who looks for what to take back.
std::string commandText(const std::string& name, const ArgumentList& arguments)
{
    std::string text = name;
    for (const Argument& argument : arguments) {
        text += ' ';
        text +=
            argument.kind == ArgumentKind::string ? mel::quoted(argument.text) : std::string(argument.text);
    }
    return text;
}

} // namespace

Interpreter::Interpreter(CommandTable& commands, engine::ScriptEditor& editor, Session* session)
    : m_commands(commands), m_editor(editor), m_session(session), m_scriptPath(ScriptPath::fromEnvironment())
{
}

Interpreter::Depth::Depth(Interpreter& interpreter, const Place& place) : m_interpreter(interpreter)
{
    if (interpreter.m_depth >= kDepthLimit || !stackHasRoom()) {
        throw ScriptError("Too many nested calls; is a procedure calling itself without end?", place);
    }
    ++interpreter.m_depth;
}

Value Interpreter::runScript(const ast::Script& script)
{
    const Depth depth(*this, {script.name, 1});
    std::optional<engine::Journal::Group> whole;
    if (engine::Journal* journal = m_session ? m_session->journal() : nullptr) {
        whole.emplace(*journal);
    }
    Evaluator evaluator(*this, script.name);
    evaluator.runAll(script.statements);
    return evaluator.lastValue();
}

Value Interpreter::execute(std::string_view text, const std::string& file)
{
    // A script may define procedures and go: they keep their own trees.
    return runScript(*parseScript(text, file));
}

std::optional<Value> Interpreter::run(std::string_view text, const std::string& file)
{
    try {
        return execute(text, file);
    } catch (const ScriptError& error) {
        report(error);
        return std::nullopt;
    }
}

Value Interpreter::sourceFile(const std::filesystem::path& file)
{
    return execute(readFile(file), file.string());
}

Value Interpreter::source(const std::string& name, const Place& place)
{
    const auto file = m_scriptPath.find(name);
    if (!file) {
        throw ScriptError("Cannot find file \"" + name + "\" for source statement.", place);
    }
    return sourceFile(*file);
}

void Interpreter::executeStatement(StatementReader& reader, const std::string& file)
{
    const Place place{file, reader.line()};
    try {
        if (const PlainCommand* plain = reader.plain()) {
            const Callable callable = resolve(std::string(plain->name), place, &localProcedures(file));
            if (callable.takesValues()) {
                std::vector<Value> values = valuesOf(plain->arguments);
                callWithValues(callable, values, place);
            } else {
                callCommand(callable, plain->arguments, place);
            }
            return;
        }
        Evaluator(*this, file).execute(*reader.statement());
    } catch (const ValueError& error) {
        throw ScriptError(error.what(), place);
    }
}

Value Interpreter::call(const std::string& name, std::vector<Value> arguments, const Place& place,
                        const LocalProcedures* locals)
{
    const Callable callable = resolve(name, place, locals);
    try {
        if (callable.takesValues()) {
            return callWithValues(callable, arguments, place);
        }
        ArgumentList list;
        for (const Value& argument : arguments) {
            list.addValue(argument);
        }
        return callCommand(callable, list, place);
    } catch (const ValueError& error) {
        throw ScriptError(error.what(), place);
    }
}

Callable Interpreter::resolve(const std::string& name, const Place& place, const LocalProcedures* locals)
{
    if (auto procedure = definedProcedure(name, locals)) {
        return {std::move(procedure), nullptr};
    }
    if (auto command = m_commands.find(name)) {
        return {nullptr, std::move(command)};
    }
    if (auto procedure = procedureFromPath(name)) {
        return {std::move(procedure), nullptr};
    }
    throw ScriptError("Cannot find procedure \"" + name + "\".", place);
}

Value Interpreter::callWithValues(const Callable& callable, std::vector<Value>& arguments, const Place& place)
{
    const Depth depth(*this, place);
    if (callable.procedure) {
        return Evaluator(*this, *callable.procedure).callProcedure(arguments, place);
    }
    CommandContext context(*this, callable.command->name, place);
    convertArguments(*callable.command, arguments);
    return std::get<FunctionHandler>(callable.command->handler)(context, arguments);
}

Value Interpreter::callCommand(const Callable& callable, const ArgumentList& arguments, const Place& place)
{
    const Depth depth(*this, place);
    CommandContext context(*this, callable.command->name, place);
    std::optional<engine::Journal::Command> step;
    if (engine::Journal* journal = m_session ? m_session->journal() : nullptr) {
        step.emplace(*journal,
                     journal->namesNext() ? commandText(callable.command->name, arguments) : std::string());
    }
    if (callable.command->isRaw()) {
        return std::get<RawHandler>(callable.command->handler)(context, arguments);
    }
    const ParsedCommand parsed = parseArguments(*callable.command, arguments);
    return std::get<ParsedHandler>(callable.command->handler)(context, parsed);
}

std::shared_ptr<const ProcedureEntry> Interpreter::definedProcedure(const std::string& name,
                                                                    const LocalProcedures* locals) const
{
    if (locals != nullptr) {
        const auto found = locals->find(name);
        if (found != locals->end()) {
            return found->second;
        }
    }
    const auto found = m_procedures.find(name);
    return found == m_procedures.end() ? nullptr : found->second;
}

std::shared_ptr<const ProcedureEntry> Interpreter::procedureFromPath(const std::string& name)
{
    const auto file = m_scriptPath.findProcedure(name);
    if (!file) {
        return nullptr;
    }
    sourceFile(*file);
    return definedProcedure(name);
}

std::vector<std::string> Interpreter::globalProcedures() const
{
    std::vector<std::string> names;
    names.reserve(m_procedures.size());
    for (const auto& entry : m_procedures) {
        names.push_back(entry.first);
    }
    std::sort(names.begin(), names.end());
    return names;
}

void Interpreter::define(std::shared_ptr<const ProcedureEntry> entry)
{
    const std::string name = entry->procedure->name;
    if (entry->procedure->isGlobal) {
        entry->locals->erase(name);
        m_procedures[name] = std::move(entry);
    } else {
        (*entry->locals)[name] = std::move(entry);
    }
}

void Interpreter::defer(std::string script, bool lowestPriority)
{
    (lowestPriority ? m_deferredLast : m_deferred).push_back(std::move(script));
}

int Interpreter::runDeferred()
{
    int failed = runQueues();
    if (idleWork) {
        failed += idleWork(*this);
        failed += runQueues();
    }
    return failed;
}

int Interpreter::runQueues()
{
    int failed = 0;
    while (hasDeferred()) {
        std::deque<std::string>& queue = m_deferred.empty() ? m_deferredLast : m_deferred;
        const std::string script = std::move(queue.front());
        queue.pop_front();
        failed += run(script) ? 0 : 1;
    }
    return failed;
}

void Interpreter::report(const ScriptError& error)
{
    m_editor.error(error.what(), error.place());
}

} // namespace tvxhost::mel
