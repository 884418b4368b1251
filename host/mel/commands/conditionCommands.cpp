// condition and isTrue: named truths.
#include "commandSupport.h"
#include "sceneCommands.h"

#include "../interpreter.h"

namespace tvxhost::mel {

namespace {

std::string nameIn(const CommandContext& context, const ParsedCommand& call)
{
    const std::vector<std::string> names = call.names();
    if (names.empty())
        context.fail(context.command() + ": no condition is named");
    return names.front();
}

[[noreturn]] void failFor(const CommandContext& context, const std::string& name)
{
    context.fail(context.command() + ": there is no condition '" + name + "'");
}

Value makeCondition(CommandContext& context, const ParsedCommand& call, const std::string& name)
{
    Conditions& conditions = sessionOf(context).conditions;
    ScriptCondition made;
    made.script = call.string("script");
    made.state = call.boolean("state");
    for (const FlagUse* use : call.uses("dependency")) {
        const std::string other = use->arguments.front().toString();
        if (!conditions.exists(other))
            failFor(context, other);
        made.dependencies.push_back(other);
    }
    if (!conditions.add(name, std::move(made), context.interpreter()))
        context.fail("condition: '" + name + "' is one of the host's");
    if (call.has("initialize"))
        conditions.initialize(name, context.interpreter());
    return Value(name);
}

Value condition(CommandContext& context, const ParsedCommand& call)
{
    Conditions& conditions = sessionOf(context).conditions;
    const std::string name = nameIn(context, call);
    if (call.queries()) {
        if (!conditions.exists(name))
            failFor(context, name);
        return Value(conditions.isTrue(name, context.interpreter()));
    }
    if (call.has("delete")) {
        if (!conditions.remove(name))
            failFor(context, name);
        return {};
    }
    if (!call.edits())
        return makeCondition(context, call, name);
    if (!conditions.set(name, call.boolean("state")))
        failFor(context, name);
    return {};
}

Value isTrue(CommandContext& context, const ParsedCommand& call)
{
    Conditions& conditions = sessionOf(context).conditions;
    const std::string name = nameIn(context, call);
    if (!conditions.exists(name))
        failFor(context, name);
    return Value(conditions.isTrue(name, context.interpreter()));
}

} // namespace

void registerConditionCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand("condition", "Makes a named truth",
                    {valueFlag("st", "state", A::boolean, "whether it is true", kAllModes),
                     valueFlag("s", "script", A::script, "tells anew whether it is true"),
                     valueFlag("d", "dependency", A::string, "the script runs when this one changes",
                               kCreate | kMultiUse),
                     switchFlag("in", "initialize", "the script runs at once"),
                     switchFlag("del", "delete", "takes it away")},
                    {A::string, 0, 1}, condition, kAllModes),
        makeCommand("isTrue", "Tells whether a condition is true", {}, {A::string, 1, 1}, isTrue),
    });
}

} // namespace tvxhost::mel
