// shadingNode: nodes for rendering, which the lists of the scene know by their class.
#include "attributeFlags.h"
#include "sceneCommands.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::Node;

namespace {

/// One class of nodes and the list of the scene that they are put into.
struct ShadingClass
{
    const char* shortName;
    const char* longName;
    const char* help;
    const char* list; ///< the array of messages
};

constexpr ShadingClass kClasses[] = {
    {"as", "asShader", "a material", ":defaultShaderList1.shaders"},
    {"at", "asTexture", "a texture", ":defaultTextureList1.textures"},
    {"al", "asLight", "a light", ":defaultLightList1.lights"},
    {"au", "asUtility", "a utility", ":defaultRenderUtilityList1.utilities"},
    {"app", "asPostProcess", "a post process", ":postProcessList1.postProcesses"},
    {"ar", "asRendering", "a node for rendering", ":defaultRenderingList1.rendering"},
};

const ShadingClass& classOf(const CommandContext& context, const ParsedCommand& call)
{
    const auto isAsked = [&](const ShadingClass& row) { return call.has(row.longName); };
    const auto* const found = std::find_if(std::begin(kClasses), std::end(kClasses), isAsked);
    if (found == std::end(kClasses) || std::any_of(found + 1, std::end(kClasses), isAsked))
        context.fail("shadingNode needs exactly one of the flags that say what the node is used as");
    return *found;
}

Value shadingNode(CommandContext& context, const ParsedCommand& call)
{
    engine::Scene& scene = sceneOf(context);
    const ShadingClass& row = classOf(context, call);
    const std::string type = call.names().front();
    const std::string name = call.string("name");
    if (call.has("shared") && !name.empty() && scene.findNode(name))
        return Value("");
    if (!scene.types().find(type))
        context.fail("Unknown object type: " + type);
    engine::DagNode* parent = call.has("parent") ? &dagNodeNamed(context, call.string("parent")) : nullptr;
    Node& node = *valueOf(context, scene.createNode(type, name, parent));
    node.isShared = call.has("shared");
    const engine::Plug list = scene.nextAvailable(plugNamed(context, row.list));
    require(context, scene.connect(plugOf(context, node, "message"), list));
    engine::DagNode* dag = node.asDag();
    // Of a shape the transform above it is what was made.
    Node& told = dag && dag->isShape() ? static_cast<Node&>(*dag->parents().front()) : node;
    if (!call.has("skipSelect"))
        selectOnly(scene, told);
    return Value(scene.shortestName(told));
}

} // namespace

void registerShadingCommands(CommandTable& table)
{
    using A = ArgumentType;
    std::vector<FlagSpec> flags;
    for (const ShadingClass& row : kClasses)
        flags.push_back(switchFlag(row.shortName, row.longName, row.help));
    flags.push_back(valueFlag("n", "name", A::string, "its name; made unique when taken"));
    flags.push_back(valueFlag("p", "parent", A::name, "the DAG node to put it under"));
    flags.push_back(switchFlag("s", "shared", "only when there is no node of that name"));
    flags.push_back(switchFlag("ss", "skipSelect", "leaves the selection as it is"));
    flags.push_back(refusedFlag("icm", "isColorManaged", "the host manages no colours"));
    table.add({makeCommand("shadingNode", "Makes a node for rendering", std::move(flags), names(1, 1),
                           shadingNode)});
}

} // namespace tvxhost::mel
