// print, trace, warning, error.
#include "../interpreter.h"
#include "language.h"

namespace tvxhost::mel {

namespace {

using Arguments = std::vector<Value>;

std::string placeText(const Place& place)
{
    const std::string line = "line " + std::to_string(place.line) + ": ";
    return place.file.empty() ? line : "file: " + place.file + ' ' + line;
}

Value print(CommandContext& context, Arguments& arguments)
{
    context.editor().print(arguments[0].toString());
    return {};
}

Value trace(CommandContext& context, const ParsedCommand& parsed)
{
    const std::string place = parsed.has("where") ? placeText(context.place()) : std::string();
    context.editor().print(place + parsed.positional[0].toString() + '\n');
    return {};
}

Value warning(CommandContext& context, const ParsedCommand& parsed)
{
    const bool showsPlace = parsed.boolean("showLineNumber") && !parsed.has("noContext");
    context.editor().warning(parsed.positional[0].toString(), showsPlace ? context.place() : Place());
    return {};
}

Value error(CommandContext& context, const ParsedCommand& parsed)
{
    const bool showsPlace = parsed.boolean("showLineNumber", true) && !parsed.has("noContext");
    throw ScriptError(parsed.positional[0].toString(), showsPlace ? context.place() : Place());
}

const FlagSpec kNoContext{"n", "noContext", {}, kCreate, "Leaves the file and line out"};
const FlagSpec kShowLineNumber{
    "sl", "showLineNumber", {ArgumentType::boolean}, kCreate, "Whether the file and line are shown"};

} // namespace

void addMessageCommands(CommandTable& table)
{
    const PositionalRule oneText{ArgumentType::string, 1, 1};
    table.add({
        function("print", "Shows a value; no line end is added", {kAny}, print),
        command("trace", "Shows a line of text",
                {{"w", "where", {}, kCreate, "Puts the file and line of the call first"}}, oneText, trace),
        command("warning", "Shows a warning", {kNoContext, kShowLineNumber}, oneText, warning),
        command("error", "Shows an error and stops the script", {kNoContext, kShowLineNumber}, oneText,
                error),
    });
}

} // namespace tvxhost::mel
