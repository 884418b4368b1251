// eval and its kin, source, help, and what a name stands for.
#include "../interpreter.h"
#include "language.h"

#include <algorithm>

namespace tvxhost::mel {

namespace {

using Arguments = std::vector<Value>;

/// Runs a text on behalf of a command; an error in it is one of the place that ran it.
Value evaluated(const CommandContext& context, const std::string& text)
{
    try {
        return context.interpreter().execute(text);
    } catch (const SyntaxError& error) {
        throw ScriptError(error.what(), context.place());
    } catch (const ScriptError& error) {
        throw ScriptError(error.what(), error.place().file.empty() ? context.place() : error.place());
    }
}

std::string joinedWithSpaces(const Arguments& words)
{
    std::string text;
    for (const Value& word : words) {
        text += (text.empty() ? "" : " ") + word.toString();
    }
    return text;
}

Value eval(CommandContext& context, Arguments& arguments)
{
    return evaluated(context, joinedWithSpaces(arguments));
}

Value evalEcho(CommandContext& context, Arguments& arguments)
{
    const std::string text = joinedWithSpaces(arguments);
    context.editor().print(text + '\n');
    return evaluated(context, text);
}

Value evalDeferred(CommandContext& context, const ParsedCommand& parsed)
{
    context.interpreter().defer(joinedWithSpaces(parsed.positional), parsed.has("lowestPriority"));
    return {};
}

Value source(CommandContext& context, Arguments& arguments)
{
    return context.interpreter().source(arguments[0].string(), context.place());
}

Value exists(CommandContext& context, Arguments& arguments)
{
    const std::string& name = arguments[0].string();
    Interpreter& interpreter = context.interpreter();
    return interpreter.definedProcedure(name) != nullptr || interpreter.commands().find(name) != nullptr ||
           interpreter.scriptPath().findProcedure(name).has_value();
}

Value whatIs(CommandContext& context, Arguments& arguments)
{
    const std::string& name = arguments[0].string();
    Interpreter& interpreter = context.interpreter();
    if (const auto procedure = interpreter.definedProcedure(name)) {
        return procedure->file.empty() ? Value("Mel procedure entered interactively.")
                                       : Value("Mel procedure found in: " + procedure->file);
    }
    if (interpreter.commands().find(name) != nullptr) {
        return "Command";
    }
    if (const auto file = interpreter.scriptPath().findProcedure(name)) {
        return "Script found in: " + file->string();
    }
    return "Unknown";
}

Value help(CommandContext& context, Arguments& arguments)
{
    const std::string& name = arguments[0].string();
    if (const auto spec = context.interpreter().commands().find(name)) {
        return commandHelp(spec->described ? spec->described() : *spec);
    }
    context.fail("Cannot find procedure \"" + name + "\".");
}

/// The names of all global variables, sorted.
Value env(CommandContext& context, Arguments&)
{
    Value::Strings names;
    for (const auto& entry : context.interpreter().globals()) {
        names.push_back('$' + entry.first);
    }
    std::sort(names.begin(), names.end());
    return names;
}

Value melInfo(CommandContext& context, Arguments&)
{
    return context.interpreter().globalProcedures();
}

} // namespace

void addEvaluationCommands(CommandTable& table)
{
    const Parameter words{Parameter::Kind::any, false, true};
    table.add({
        function("eval", "Runs a text and gives its value", {kAny, words}, eval),
        function("evalEcho", "Shows a text, runs it and gives its value", {kAny, words}, evalEcho),
        command("evalDeferred", "Runs a text when there is nothing else to do",
                {{"lp", "lowestPriority", {}, kCreate, "Runs after all other deferred texts"},
                 {"low", "low", {}, kCreate, "The usual priority"},
                 {"en", "evaluateNext", {}, kCreate, "The usual priority"}},
                {ArgumentType::script, 1, PositionalRule::kAny}, evalDeferred),
        function("source", "Runs a script file, found along the script path", {kString}, source),
        function("exists", "Tells whether a command or procedure of the name can be called", {kString},
                 exists),
        function("whatIs", "Tells what a name stands for", {kString}, whatIs),
        function("help", "Describes a command", {kString}, help),
        function("env", "Lists the global variables", {}, env),
        function("melInfo", "Lists the global procedures", {}, melInfo),
    });
}

} // namespace tvxhost::mel
