// removeMultiInstance: elements of arrays go.
#include "commandSupport.h"
#include "sceneCommands.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::Plug;

namespace {

bool isConnectedBelow(const Plug& element)
{
    const std::vector<Plug> connected = engine::connectedPlugs(*element.node());
    return std::any_of(connected.begin(), connected.end(),
                       [&](const Plug& plug) { return plug.isAtOrBelow(element); });
}

void removeElement(const CommandContext& context, const ParsedCommand& call, const Plug& element)
{
    if (isConnectedBelow(element) && !call.boolean("break"))
        context.fail("removeMultiInstance: '" + element.name() +
                     "' is connected; -break true breaks its connections");
    if (engine::isLocked(element))
        context.fail("removeMultiInstance: '" + element.name() + "' is locked");
    require(context, engine::removeElement(element.array(), element.logicalIndex()));
}

Value removeMultiInstance(CommandContext& context, const ParsedCommand& call)
{
    const std::string name = call.names().front();
    const Plug plug = plugNamed(context, name);
    if (plug.isArray() && call.boolean("allChildren")) {
        for (const int i : engine::existingElements(plug))
            removeElement(context, call, plug.element(i));
        return Value(1);
    }
    if (!plug.isElement())
        context.fail("removeMultiInstance: '" + name + "' is no element of an array");
    removeElement(context, call, plug);
    return Value(1);
}

} // namespace

void registerElementCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({makeCommand("removeMultiInstance", "Removes an element of an array",
                           {valueFlag("b", "break", A::boolean, "breaks its connections first"),
                            valueFlag("all", "allChildren", A::boolean, "all elements of an array")},
                           names(1, 1), removeMultiInstance)});
}

} // namespace tvxhost::mel
