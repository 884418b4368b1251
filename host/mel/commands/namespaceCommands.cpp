// namespace: the parts of names before the colon.
#include "commandSupport.h"
#include "sceneCommands.h"

namespace tvxhost::mel {

namespace {

Value setNamespace(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    if (call.has("exists"))
        return Value(scene.hasNamespace(call.string("exists")));
    if (call.has("add"))
        require(context, scene.addNamespace(call.string("add")));
    if (call.has("set"))
        require(context, scene.setCurrentNamespace(call.string("set")));
    return Value(call.has("add") ? call.string("add") : scene.currentNamespace());
}

Value namespaceInfo(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    if (call.has("listOnlyNamespaces"))
        return Value(Value::Strings(scene.namespaces()));
    const std::string& current = scene.currentNamespace();
    const bool isAbsolute = call.has("absoluteName") || current == ":";
    return Value(isAbsolute || current.front() != ':' ? current : current.substr(1));
}

} // namespace

void registerNamespaceCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand("namespace", "Makes namespaces and sets the current one",
                    {valueFlag("add", "add", A::string, "makes one below the current one"),
                     valueFlag("set", "set", A::string, "makes it the current one"),
                     valueFlag("ex", "exists", A::string, "whether it exists", kCreateQuery)},
                    noArguments(), setNamespace, kQuery),
        makeCommand("namespaceInfo", "Tells about namespaces",
                    {switchFlag("cur", "currentNamespace", "the current one"),
                     switchFlag("lon", "listOnlyNamespaces", "all of them"),
                     switchFlag("an", "absoluteName", "with a leading colon")},
                    noArguments(), namespaceInfo),
    });
}

} // namespace tvxhost::mel
