// Undo: its switches are taken, undoing itself is refused.
#include "commandSupport.h"
#include "sceneCommands.h"

namespace tvxhost::mel {

namespace {

Value undoInfo(CommandContext&, const ParsedCommand& call)
{
    // Nothing is recorded, so every query of the state answers off.
    return call.queries() ? Value(call.has("undoName") || call.has("redoName") ? Value("") : Value(0))
                          : Value();
}

Value flushUndo(CommandContext&, const ParsedCommand&)
{
    return {};
}

Value refused(CommandContext& context, const ParsedCommand&)
{
    context.fail("'" + context.command() + "' is not implemented: edits cannot be taken back");
}

} // namespace

void registerUndoCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand("undoInfo", "Switches the recording of edits",
                    {valueFlag("st", "state", A::boolean, "on or off", kCreateQuery),
                     valueFlag("swf", "stateWithoutFlush", A::boolean, "the same, keeping what is recorded",
                               kCreateQuery),
                     valueFlag("in", "infinity", A::boolean, "without a limit", kCreateQuery),
                     valueFlag("l", "length", A::integer, "how many edits are kept", kCreateQuery),
                     switchFlag("ock", "openChunk", "what follows is one edit"),
                     switchFlag("cck", "closeChunk", "ends it"),
                     valueFlag("cn", "chunkName", A::string, "its name", kCreateQuery),
                     switchFlag("un", "undoName", "what undo would take back", kQuery),
                     switchFlag("rn", "redoName", "what redo would do again", kQuery)},
                    noArguments(), undoInfo, kQuery),
        makeCommand("flushUndo", "Forgets the recorded edits", {}, noArguments(), flushUndo),
        makeCommand("undo", "Takes the last edit back", {}, noArguments(), refused),
        makeCommand("redo", "Does an edit again", {}, noArguments(), refused),
    });
}

} // namespace tvxhost::mel
