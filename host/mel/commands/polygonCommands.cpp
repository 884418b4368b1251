// polyPlane, polyCube, polySphere, polyCone, polyCylinder, polyTorus: primitives with the nodes that make
// them.
#include "attributeFlags.h"
#include "sceneCommands.h"
#include "setMembers.h"

#include "engine/mesh.h"

#include <algorithm>

namespace tvxhost::mel {

using engine::DagNode;
using engine::Node;
using engine::Plug;

namespace {

using A = ArgumentType;

struct Primitive
{
    const char* command; ///< also the type of the node that makes it
    const char* name;    ///< of the transform, without its number
    const char* summary;
    AttributeFlags flags;
    int capRings = -1;  ///< subdivisions of the caps when no flag gives them; -1: as the node has them
    int createUVs = -1; ///< how textures are laid on when no flag says it; -1: as the node has it
};

const std::vector<Primitive>& primitives()
{
    static const std::vector<Primitive> all = {
        {"polyPlane",
         "pPlane",
         "Makes a plane of polygons",
         {{"w", "width", A::linear, "width", "along x"},
          {"h", "height", A::linear, "height", "along z"},
          {"sx", "subdivisionsX", A::integer, "subdivisionsWidth", "columns"},
          {"sy", "subdivisionsY", A::integer, "subdivisionsHeight", "rows"},
          {"sw", "subdivisionsWidth", A::integer, "subdivisionsWidth", "columns"},
          {"sh", "subdivisionsHeight", A::integer, "subdivisionsHeight", "rows"}},
         -1,
         2},
        {"polyCube",
         "pCube",
         "Makes a cube of polygons",
         {{"w", "width", A::linear, "width", "along x"},
          {"h", "height", A::linear, "height", "along y"},
          {"d", "depth", A::linear, "depth", "along z"},
          {"sx", "subdivisionsX", A::integer, "subdivisionsWidth", "along x"},
          {"sy", "subdivisionsY", A::integer, "subdivisionsHeight", "along y"},
          {"sz", "subdivisionsZ", A::integer, "subdivisionsDepth", "along z"},
          {"sw", "subdivisionsWidth", A::integer, "subdivisionsWidth", "along x"},
          {"sh", "subdivisionsHeight", A::integer, "subdivisionsHeight", "along y"},
          {"sd", "subdivisionsDepth", A::integer, "subdivisionsDepth", "along z"}},
         -1,
         4},
        {"polySphere",
         "pSphere",
         "Makes a sphere of polygons",
         {{"r", "radius", A::linear, "radius", "of the sphere"},
          {"sx", "subdivisionsX", A::integer, "subdivisionsAxis", "around the axis"},
          {"sy", "subdivisionsY", A::integer, "subdivisionsHeight", "along the axis"},
          {"sa", "subdivisionsAxis", A::integer, "subdivisionsAxis", "around the axis"},
          {"sh", "subdivisionsHeight", A::integer, "subdivisionsHeight", "along the axis"}}},
        {"polyCone",
         "pCone",
         "Makes a cone of polygons",
         {{"r", "radius", A::linear, "radius", "of the bottom"},
          {"h", "height", A::linear, "height", "along the axis"},
          {"sx", "subdivisionsX", A::integer, "subdivisionsAxis", "around the axis"},
          {"sy", "subdivisionsY", A::integer, "subdivisionsHeight", "along the axis"},
          {"sz", "subdivisionsZ", A::integer, "subdivisionsCap", "of the bottom"},
          {"sa", "subdivisionsAxis", A::integer, "subdivisionsAxis", "around the axis"},
          {"sh", "subdivisionsHeight", A::integer, "subdivisionsHeight", "along the axis"},
          {"sc", "subdivisionsCap", A::integer, "subdivisionsCap", "of the bottom"},
          {"rcp", "roundCap", A::boolean, "roundCap", "whether the bottom is round"}},
         -1,
         3},
        {"polyCylinder",
         "pCylinder",
         "Makes a cylinder of polygons",
         {{"r", "radius", A::linear, "radius", "of the cylinder"},
          {"h", "height", A::linear, "height", "along the axis"},
          {"sx", "subdivisionsX", A::integer, "subdivisionsAxis", "around the axis"},
          {"sy", "subdivisionsY", A::integer, "subdivisionsHeight", "along the axis"},
          {"sz", "subdivisionsZ", A::integer, "subdivisionsCaps", "of the caps"},
          {"sa", "subdivisionsAxis", A::integer, "subdivisionsAxis", "around the axis"},
          {"sh", "subdivisionsHeight", A::integer, "subdivisionsHeight", "along the axis"},
          {"sc", "subdivisionsCaps", A::integer, "subdivisionsCaps", "of the caps"},
          {"rcp", "roundCap", A::boolean, "roundCap", "whether the caps are round"}},
         1,
         3},
        {"polyTorus",
         "pTorus",
         "Makes a torus of polygons",
         {{"r", "radius", A::linear, "radius", "of the middle of the ring"},
          {"sr", "sectionRadius", A::linear, "sectionRadius", "of its section"},
          {"tw", "twist", A::angle, "twist", "of the section"},
          {"sx", "subdivisionsX", A::integer, "subdivisionsAxis", "around the axis"},
          {"sy", "subdivisionsY", A::integer, "subdivisionsHeight", "around the section"},
          {"sa", "subdivisionsAxis", A::integer, "subdivisionsAxis", "around the axis"},
          {"sh", "subdivisionsHeight", A::integer, "subdivisionsHeight", "around the section"}}},
    };
    return all;
}

/// The flags that all primitives have.
const AttributeFlags& sharedFlags()
{
    static const AttributeFlags shared = {
        {"ax", "axis", A::number, "axis", "what it stands along", 3},
        {"cuv", "createUVs", A::integer, "createUVs", "how textures are laid on"},
        {"cch", "caching", A::boolean, "caching", "whether the history node keeps its values"},
        {"nds", "nodeState", A::integer, "nodeState",
         "whether the history node works: 0 normal, 1 without effect"},
    };
    return shared;
}

void setAll(const CommandContext& context, const ParsedCommand& call, const Primitive& primitive, Node& node)
{
    setAttributes(context, call, primitive.flags, node);
    setAttributes(context, call, sharedFlags(), node);
}

bool givesCapRings(const ParsedCommand& call, const Primitive& primitive)
{
    return std::any_of(primitive.flags.begin(), primitive.flags.end(), [&](const AttributeFlag& flag) {
        return std::string(flag.attribute) == "subdivisionsCaps" && call.has(flag.longName);
    });
}

void setIfThere(DagNode& node, const char* attribute, int value)
{
    if (const auto plug = node.findPlug(attribute))
        (void)writeNumber(plug.value, value);
}

/// A mesh that is shaded as new ones are, below a transform.
DagNode& makeShape(CommandContext& context, const std::string& name)
{
    engine::Scene& scene = sceneOf(context);
    DagNode& transform = *valueOf(context, scene.createNode("transform", name))->asDag();
    DagNode& shape =
        *valueOf(context, scene.createNode("mesh", shapeNameFor(transform.name()), &transform))->asDag();
    setIfThere(shape, "visibleInReflections", 1);
    setIfThere(shape, "visibleInRefractions", 1);
    if (const auto group = scene.findNode(":initialShadingGroup"))
        require(context, addSetMember(*group.value, itemNamed(context, scene.shortestName(shape))));
    return shape;
}

Value create(CommandContext& context, const ParsedCommand& call, const Primitive& primitive)
{
    engine::Scene& scene = sceneOf(context);
    const std::string name = call.string("name", primitive.name + std::string("1"));
    DagNode& shape = makeShape(context, name);
    DagNode& transform = *shape.parents().front();
    Node& maker = *valueOf(context, scene.createNode(primitive.command));
    if (primitive.capRings >= 0 && !givesCapRings(call, primitive))
        require(context, writeNumber(plugOf(context, maker, "subdivisionsCaps"), primitive.capRings));
    if (primitive.createUVs >= 0)
        require(context, writeNumber(plugOf(context, maker, "createUVs"), primitive.createUVs));
    setAll(context, call, primitive, maker);
    require(context, scene.connect(plugOf(context, maker, "output"), plugOf(context, shape, "inMesh")));
    // Made at once, so that it stays when its history goes.
    static_cast<void>(engine::meshOf(shape));
    selectOnly(scene, transform);
    Value::Strings result = {scene.shortestName(transform)};
    if (call.boolean("constructionHistory", true))
        result.push_back(maker.name());
    else
        require(context, scene.deleteNode(maker));
    return Value(std::move(result));
}

/// The node that makes a primitive: named itself, or by what it makes.
Node& makerOf(const CommandContext& context, const engine::SelectionItem& item, const Primitive& primitive)
{
    DagNode* dag = item.node->asDag();
    if (dag && dag->isTransform())
        for (DagNode* child : dag->children())
            if (child->type().isA("mesh"))
                dag = child;
    Node* node = item.node.get();
    if (dag && dag->type().isA("mesh")) {
        const Plug source = sourceOf(plugOf(context, *dag, "inMesh"));
        node = source.isNull() ? nullptr : source.node();
    }
    if (!node || !node->type().isA(primitive.command))
        context.fail("'" + item.name() + "' has no " + primitive.command + " in its history");
    return *node;
}

Value query(CommandContext& context, const ParsedCommand& call, const Primitive& primitive)
{
    Node& maker = makerOf(context, onlyItem(context, call), primitive);
    for (const AttributeFlags& flags : {primitive.flags, sharedFlags()})
        if (const std::optional<Value> value = queriedAttribute(context, call, flags, maker))
            return *value;
    context.fail("'" + context.command() + "' in query mode needs a flag");
}

Value run(CommandContext& context, const ParsedCommand& call, const Primitive& primitive)
{
    if (call.queries())
        return query(context, call, primitive);
    if (!call.edits())
        return create(context, call, primitive);
    Node& maker = makerOf(context, onlyItem(context, call), primitive);
    setAll(context, call, primitive, maker);
    return Value(maker.name());
}

CommandSpec specOf(const Primitive& primitive)
{
    std::vector<FlagSpec> flags = specsOf(primitive.flags);
    const std::vector<FlagSpec> shared = specsOf(sharedFlags());
    flags.insert(flags.end(), shared.begin(), shared.end());
    flags.push_back(
        valueFlag("ch", "constructionHistory", A::boolean, "keeps the node that makes it (on by default)"));
    flags.push_back(valueFlag("n", "name", A::string, "of the transform"));
    flags.push_back(refusedFlag("tx", "texture", "say -createUVs"));
    flags.push_back(refusedFlag("o", "object", "make the node with createNode"));
    return makeCommand(
        primitive.command, primitive.summary, std::move(flags), names(0, 1),
        [&primitive](CommandContext& context, const ParsedCommand& call) {
            return run(context, call, primitive);
        },
        kAllModes);
}

} // namespace

void registerPolygonCommands(CommandTable& table)
{
    for (const Primitive& primitive : primitives())
        table.add({specOf(primitive)});
}

} // namespace tvxhost::mel
