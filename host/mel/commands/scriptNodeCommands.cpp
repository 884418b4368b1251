// scriptNode: scripts that travel with a scene.
#include "attributeFlags.h"
#include "sceneCommands.h"

#include "../interpreter.h"

namespace tvxhost::mel {

using engine::Node;

namespace {

const AttributeFlags& scriptFlags()
{
    using A = ArgumentType;
    static const AttributeFlags flags = {
        {"bs", "beforeScript", A::string, "before", "the script that runs first, as when a scene opens"},
        {"as", "afterScript", A::string, "after", "the script that runs last, as when a scene closes"},
        {"st", "scriptType", A::integer, "scriptType",
         "when it runs: 0 on demand, 1 with the scene, 2 with "
         "the scene where there is a user interface"},
        {"stp", "sourceType", A::string, "sourceType", "the language: mel or python"},
        {"ire", "ignoreReferenceEdits", A::boolean, "ignoreReferenceEdits",
         "its changes to references are no edits"},
    };
    return flags;
}

/// One script of a node, run on demand.
struct ScriptRun
{
    const char* shortName;
    const char* longName;
    const char* attribute;
    const char* help;
};

constexpr ScriptRun kRuns[] = {
    {"eb", "executeBefore", "before", "runs the first script now"},
    {"ea", "executeAfter", "after", "runs the last script now"},
};

Node& scriptNodeOf(const CommandContext& context, const engine::SelectionItem& item)
{
    if (!item.node->type().isA("script"))
        context.fail("'" + item.name() + "' is not a script node");
    return *item.node;
}

void runScripts(const CommandContext& context, const ParsedCommand& call, Node& node)
{
    for (const ScriptRun& run : kRuns) {
        if (!call.has(run.longName))
            continue;
        if (valueOf(context, readNumber(plugOf(context, node, "sourceType"))).asWhole() != 0)
            context.fail("scriptNode: '" + node.name() + "' is no MEL, and nothing else is run here");
        context.interpreter().execute(valueOf(context, readString(plugOf(context, node, run.attribute))));
    }
}

Value scriptNode(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const bool runsNow = call.has(kRuns[0].longName) || call.has(kRuns[1].longName);
    if (!call.queries() && !call.edits() && !runsNow) {
        Node& made = *valueOf(context, scene.createNode("script", call.string("name", "script1")));
        setAttributes(context, call, scriptFlags(), made);
        return Value(made.name());
    }
    Node& node = scriptNodeOf(context, onlyItem(context, call));
    if (!call.queries()) {
        setAttributes(context, call, scriptFlags(), node);
        runScripts(context, call, node);
        return Value(node.name());
    }
    if (const std::optional<Value> value = queriedAttribute(context, call, scriptFlags(), node))
        return *value;
    context.fail("scriptNode: nothing was asked");
}

} // namespace

void registerScriptNodeCommands(CommandTable& table)
{
    std::vector<FlagSpec> flags = specsOf(scriptFlags());
    flags.push_back(valueFlag("n", "name", ArgumentType::string, "the node's name"));
    for (const ScriptRun& run : kRuns)
        flags.push_back(switchFlag(run.shortName, run.longName, run.help));
    table.add({makeCommand("scriptNode", "Keeps scripts with a scene, and runs them", std::move(flags),
                           names(0, 1), scriptNode, kAllModes)});
}

} // namespace tvxhost::mel
