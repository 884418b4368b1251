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

// namespaceInfo

/// A namespace without the colon that means the root, which is empty.
std::string plainName(const std::string& name)
{
    return name.empty() || name.front() != ':' ? name : name.substr(1);
}

std::string shown(const std::string& plain, const ParsedCommand& call)
{
    return plain.empty() || call.has("absoluteName") ? ":" + plain : plain;
}

/// Whether a name is in a namespace: directly, or anywhere below it.
bool isIn(const std::string& name, const std::string& space, bool isDeep)
{
    const std::string begin = space.empty() ? space : space + ":";
    return name.size() > begin.size() && name.compare(0, begin.size(), begin) == 0 &&
           (isDeep || name.find(':', begin.size()) == std::string::npos);
}

/// The namespaces and the nodes in one, as far as they are asked for.
Value contentOf(engine::Scene& scene, const std::string& space, const ParsedCommand& call)
{
    Value::Strings list;
    if (!call.has("listOnlyDependencyNodes"))
        for (const std::string& name : scene.namespaces())
            if (isIn(plainName(name), space, call.has("recurse")))
                list.push_back(shown(plainName(name), call));
    if (!call.has("listOnlyNamespaces"))
        for (engine::Node* node : scene.nodes())
            if (node != &scene.world() && isIn(node->name(), space, call.has("recurse")))
                list.push_back(call.has("dagPath") ? scene.shortestName(*node) : shown(node->name(), call));
    return Value(std::move(list));
}

Value namespaceInfo(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const std::string space =
        plainName(call.names().empty() ? scene.currentNamespace() : call.names().front());
    if (!space.empty() && !scene.hasNamespace(":" + space))
        context.fail("namespaceInfo: there is no namespace '" + space + "'");
    const std::size_t colon = space.rfind(':');
    const bool isTop = colon == std::string::npos;
    for (const char* flag : {"listNamespace", "listOnlyNamespaces", "listOnlyDependencyNodes"})
        if (call.has(flag))
            return contentOf(scene, space, call);
    if (call.has("isRootNamespace"))
        return Value(space.empty());
    if (call.has("parent"))
        return Value(shown(isTop ? std::string() : space.substr(0, colon), call));
    if (call.has("baseName") || call.has("shortName"))
        return Value(isTop ? space : space.substr(colon + 1));
    return Value(shown(space, call));
}

constexpr const char* kStays = "a namespace stays as long as the scene; rename its nodes";

} // namespace

void registerNamespaceCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand(
            "namespace", "Makes namespaces and sets the current one",
            {valueFlag("add", "add", A::string, "makes one below the current one"),
             valueFlag("set", "set", A::string, "makes it the current one"),
             valueFlag("ex", "exists", A::string, "whether it exists", kCreateQuery | kQueryWithArguments),
             refusedFlag("rm", "removeNamespace", kStays), refusedFlag("ren", "rename", kStays),
             refusedFlag("mv", "moveNamespace", kStays),
             refusedFlag("mnp", "mergeNamespaceWithParent", kStays),
             refusedFlag("mnr", "mergeNamespaceWithRoot", kStays),
             refusedFlag("dnc", "deleteNamespaceContent", kStays),
             refusedFlag("rel", "relativeNames", "names are always told from the root")},
            noArguments(), setNamespace, kQuery),
        makeCommand("namespaceInfo", "Tells about a namespace, the current one unless one is named",
                    {switchFlag("cur", "currentNamespace", "the current one"),
                     switchFlag("fn", "fullName", "its name with all that it is in"),
                     switchFlag("bn", "baseName", "its name alone"),
                     switchFlag("sn", "shortName", "its name alone"),
                     switchFlag("p", "parent", "the one that it is in"),
                     switchFlag("ir", "isRootNamespace", "whether it is the root"),
                     switchFlag("ls", "listNamespace", "the namespaces and nodes in it"),
                     switchFlag("lon", "listOnlyNamespaces", "the namespaces in it"),
                     switchFlag("lod", "listOnlyDependencyNodes", "the nodes in it"),
                     switchFlag("r", "recurse", "with -listNamespace and the like: also of those in it"),
                     switchFlag("dp", "dagPath", "nodes by path"),
                     switchFlag("an", "absoluteName", "with a leading colon"),
                     refusedFlag("int", "internal", "there are no internal namespaces")},
                    {A::string, 0, 1}, namespaceInfo),
    });
}

} // namespace tvxhost::mel
