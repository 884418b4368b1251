// Undo: undo, redo, undoInfo, flushUndo.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "engine/observers.h"
#include "engine/scriptEditor.h"

namespace tvxhost::mel {

namespace {

using engine::Journal;

Journal& journalOf(const CommandContext& context)
{
    return sceneOf(context).journal();
}

std::string nameOfLast(const std::deque<engine::Step>& steps)
{
    return steps.empty() ? std::string() : steps.back().name;
}

void printQueue(const CommandContext& context)
{
    std::string text;
    std::size_t number = 0;
    for (const engine::Step& step : journalOf(context).undoable())
        text += std::to_string(++number) + ": " + step.name + "\n";
    context.editor().print(text);
}

/// What `undoInfo -query` answers, by flag.
struct UndoQuestion
{
    const char* flag;
    Value (*answer)(const CommandContext& context, const Journal& journal);
};

const UndoQuestion kQuestions[] = {
    {"state", [](const CommandContext&, const Journal& journal) { return Value(journal.isOn()); }},
    {"stateWithoutFlush",
     [](const CommandContext&, const Journal& journal) { return Value(journal.isOn()); }},
    {"infinity", [](const CommandContext&, const Journal& journal) { return Value(journal.isInfinite); }},
    {"length",
     [](const CommandContext&, const Journal& journal) { return Value(static_cast<int>(journal.length())); }},
    {"chunkName", [](const CommandContext&, const Journal& journal) { return Value(journal.runningName()); }},
    {"undoName",
     [](const CommandContext&, const Journal& journal) { return Value(nameOfLast(journal.undoable())); }},
    {"redoName",
     [](const CommandContext&, const Journal& journal) { return Value(nameOfLast(journal.redoable())); }},
    {"undoQueueEmpty",
     [](const CommandContext&, const Journal& journal) { return Value(journal.undoable().empty()); }},
    {"redoQueueEmpty",
     [](const CommandContext&, const Journal& journal) { return Value(journal.redoable().empty()); }},
    {"printQueue",
     [](const CommandContext& context, const Journal&) {
         printQueue(context);
         return Value();
     }},
};

Value queryUndo(const CommandContext& context, const ParsedCommand& call)
{
    const Journal& journal = journalOf(context);
    for (const UndoQuestion& question : kQuestions)
        if (call.has(question.flag))
            return question.answer(context, journal);
    return Value(static_cast<int>(journal.undoable().size()));
}

Value undoInfo(CommandContext& context, const ParsedCommand& call)
{
    if (call.queries())
        return queryUndo(context, call);
    Journal& journal = journalOf(context);
    if (call.has("infinity"))
        journal.isInfinite = call.boolean("infinity");
    if (call.has("length")) {
        if (call.integer("length") < 0)
            context.fail("undoInfo: the length is less than 0");
        journal.setLength(static_cast<std::size_t>(call.integer("length")));
    }
    if (call.has("stateWithoutFlush"))
        journal.setOn(call.boolean("stateWithoutFlush"));
    if (call.has("state")) {
        journal.setOn(call.boolean("state"));
        if (!journal.isOn())
            journal.flush();
    }
    if (call.has("openChunk"))
        journal.openChunk(call.string("chunkName"));
    if (call.has("closeChunk"))
        journal.closeChunk();
    return {};
}

Value flushUndo(CommandContext& context, const ParsedCommand&)
{
    journalOf(context).flush();
    return {};
}

/// Goes one step; false when there is none. A selection that comes back is told like any other.
bool travel(CommandContext& context, bool (Journal::*step)(), engine::Happening what)
{
    engine::Scene& scene = sceneOf(context);
    const engine::SelectionList selection = scene.selection();
    if (!(scene.journal().*step)())
        return false;
    if (!(selection == scene.selection()))
        scene.observers().tell({engine::Happening::selectionChanged});
    scene.observers().tell({what});
    return true;
}

Value undo(CommandContext& context, const ParsedCommand&)
{
    if (!travel(context, &Journal::undo, engine::Happening::undone))
        context.fail("There are no more commands to undo.");
    context.editor().info("Undo: " + nameOfLast(journalOf(context).redoable()));
    return {};
}

Value redo(CommandContext& context, const ParsedCommand&)
{
    if (!travel(context, &Journal::redo, engine::Happening::redone))
        context.fail("There are no more commands to redo.");
    context.editor().info("Redo: " + nameOfLast(journalOf(context).undoable()));
    return {};
}

} // namespace

void registerUndoCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand(
            "undoInfo", "Switches the recording of edits, and makes one step of several",
            {valueFlag("st", "state", A::boolean, "on or off; off forgets what was recorded", kCreateQuery),
             valueFlag("swf", "stateWithoutFlush", A::boolean, "the same, keeping what was recorded",
                       kCreateQuery),
             valueFlag("in", "infinity", A::boolean, "whether steps are kept without a limit", kCreateQuery),
             valueFlag("l", "length", A::integer, "how many steps are kept", kCreateQuery),
             switchFlag("ock", "openChunk", "what follows is one step"),
             switchFlag("cck", "closeChunk", "ends it"),
             valueFlag("cn", "chunkName", A::string, "the name of the step", kCreateQuery),
             switchFlag("un", "undoName", "what undo would take back", kQuery),
             switchFlag("rn", "redoName", "what redo would do again", kQuery),
             switchFlag("uqe", "undoQueueEmpty", "whether there is nothing to take back", kQuery),
             switchFlag("rqe", "redoQueueEmpty", "whether there is nothing to do again", kQuery),
             switchFlag("pq", "printQueue", "prints the steps, the oldest first", kQuery)},
            noArguments(), undoInfo, kQuery),
        makeCommand("flushUndo", "Forgets the recorded steps", {}, noArguments(), flushUndo),
        makeCommand("undo", "Takes the last step back", {}, noArguments(), undo),
        makeCommand("redo", "Does again what was taken back last", {}, noArguments(), redo),
    });
}

} // namespace tvxhost::mel
