// namespaceInfo: what a namespace is called, and what is in it.
#include "commandSupport.h"
#include "namespaceNames.h"

namespace tvxhost::mel {

namespace {

/// A namespace's name in the form that the call asks for.
std::string shown(const std::string& plain, const ParsedCommand& call)
{
    if (call.has("baseName") || call.has("shortName"))
        return plain.empty() ? ":" : baseName(plain);
    return plain.empty() || call.has("absoluteName") ? ":" + plain : plain;
}

/// The namespaces and the nodes in one, as far as they are asked for.
Value contentOf(engine::Scene& scene, const std::string& space, const ParsedCommand& call)
{
    Value::Strings list;
    if (!call.has("listOnlyDependencyNodes"))
        for (const std::string& name : scene.namespaces())
            if (isIn(name, space, call.has("recurse")))
                list.push_back(shown(name, call));
    if (!call.has("listOnlyNamespaces"))
        for (engine::Node* node : scene.nodesIn(space))
            if (isIn(node->name(), space, call.has("recurse")))
                list.push_back(call.has("dagPath") ? scene.shortestName(*node) : shown(node->name(), call));
    return Value(std::move(list));
}

Value namespaceInfo(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const std::string space = call.names().empty() ? plainName(scene.currentNamespace())
                                                   : existingNamespace(context, call.names().front());
    for (const char* flag : {"listNamespace", "listOnlyNamespaces", "listOnlyDependencyNodes"})
        if (call.has(flag))
            return contentOf(scene, space, call);
    if (call.has("isRootNamespace"))
        return Value(space.empty());
    return Value(shown(call.has("parent") ? parentNamespace(space) : space, call));
}

} // namespace

void registerNamespaceInfoCommands(CommandTable& table)
{
    table.add({
        makeCommand("namespaceInfo", "Tells about a namespace, the current one unless one is named",
                    {switchFlag("cur", "currentNamespace", "the current one"),
                     switchFlag("fn", "fullName", "names with all that they are in"),
                     switchFlag("bn", "baseName", "names alone"),
                     switchFlag("sn", "shortName", "names alone"),
                     switchFlag("an", "absoluteName", "names with all that they are in and a leading colon"),
                     switchFlag("p", "parent", "the one that it is in"),
                     switchFlag("ir", "isRootNamespace", "whether it is the root"),
                     switchFlag("ls", "listNamespace", "the namespaces and nodes in it"),
                     switchFlag("lon", "listOnlyNamespaces", "the namespaces in it"),
                     switchFlag("lod", "listOnlyDependencyNodes", "the nodes in it"),
                     switchFlag("r", "recurse", "with -listNamespace and the like: also of those in it"),
                     switchFlag("dp", "dagPath", "nodes by path"),
                     switchFlag("int", "internal", "internal nodes too; the host has none")},
                    {ArgumentType::string, 0, 1}, namespaceInfo),
    });
}

} // namespace tvxhost::mel
