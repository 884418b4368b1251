// makeIdentity: transforms without effect, with their shapes moved or left in place.
#include "sceneCommands.h"
#include "transformParts.h"

#include "engine/mesh.h"

namespace tvxhost::mel {

using api::Parents;
using api::Transformation;
using engine::DagNode;
using engine::DagPath;

namespace {

/// Which parts of a transform are reset; all when none is named.
struct Reset
{
    bool translates = true;
    bool rotates = true;
    bool scales = true;

    void operator()(Transformation& parts) const
    {
        if (translates)
            parts.translation = MVector();
        if (rotates)
            parts.rotation = MVector();
        if (scales) {
            parts.scale = MVector(1.0, 1.0, 1.0);
            parts.shear = MVector();
        }
    }
};

Reset resetOf(const ParsedCommand& call)
{
    if (!call.has("translate") && !call.has("rotate") && !call.has("scale"))
        return {};
    return {call.boolean("translate"), call.boolean("rotate"), call.boolean("scale")};
}

/// Everything below a transform must be able to take over what the transform did.
void checkGeometry(const CommandContext& context, DagNode& transform)
{
    for (DagNode* child : transform.children()) {
        if (child->parents().size() > 1)
            context.fail("makeIdentity -apply: '" + child->name() + "' is instanced");
        if (child->isTransform())
            checkGeometry(context, *child);
        else if (!child->type().isA("mesh"))
            context.fail("makeIdentity -apply: '" + child->name() + "' has no points to move");
    }
}

void movePoints(const CommandContext& context, DagNode& shape, const MMatrix& by)
{
    const engine::MeshData* mesh = engine::meshOf(shape);
    if (!mesh)
        return;
    engine::MovedPoints moved;
    for (std::size_t i = 0; i < mesh->points.size(); ++i) {
        const auto& from = mesh->points[i];
        const MPoint to = MPoint(from.x, from.y, from.z) * by;
        moved.emplace_back(
            static_cast<std::int32_t>(i),
            engine::Vec3f(static_cast<float>(to.x), static_cast<float>(to.y), static_cast<float>(to.z)));
    }
    require(context, engine::movePoints(shape, moved));
}

/// Resets a transform which something above has been taken from, and hands what is taken from it to what is
/// below. Pivots stay where they are in the parent's space.
void freeze(const CommandContext& context, const DagPath& path, const Reset& reset, const MMatrix& taken)
{
    MMatrix handedDown;
    changeParts(context, path, [&](Transformation& parts, const Parents&) {
        const MMatrix whole = parts.matrix() * taken;
        const MVector rotatePivot(MPoint(parts.rotatePivot) * whole);
        const MVector scalePivot(MPoint(parts.scalePivot) * whole);
        takeMatrix(parts, whole);
        reset(parts);
        parts.rotatePivot = rotatePivot - parts.translation;
        parts.scalePivot = scalePivot - parts.translation;
        parts.rotatePivotTranslation = MVector();
        parts.scalePivotTranslation = MVector();
        handedDown = whole * parts.matrix().inverse();
    });
    for (DagNode* child : path.node()->children()) {
        if (child->isShape()) {
            movePoints(context, *child, handedDown);
            continue;
        }
        DagPath below = path;
        require(context, below.push(*child));
        freeze(context, below, reset, handedDown);
    }
}

Value makeIdentity(CommandContext& context, const ParsedCommand& call)
{
    const Reset reset = resetOf(call);
    const std::vector<DagPath> paths = transformsOf(context, call.names());
    if (!call.boolean("apply")) {
        for (const DagPath& path : paths)
            changeParts(context, path, [&](Transformation& parts, const Parents&) { reset(parts); });
        return {};
    }
    for (const DagPath& path : paths)
        checkGeometry(context, *path.node());
    for (const DagPath& path : paths)
        freeze(context, path, reset, MMatrix());
    return {};
}

} // namespace

void registerMakeIdentityCommands(CommandTable& table)
{
    using A = ArgumentType;
    table.add({
        makeCommand(
            "makeIdentity", "Resets transforms",
            {valueFlag("a", "apply", A::boolean, "meshes below stay where they are in the world"),
             valueFlag("t", "translate", A::boolean, "the translation only"),
             valueFlag("r", "rotate", A::boolean, "the rotation only"),
             valueFlag("s", "scale", A::boolean, "the scale and shear only"),
             valueFlag("n", "normal", A::integer, "normals follow the faces, whatever it says"),
             valueFlag("pn", "preserveNormals", A::boolean, "normals follow the faces, whatever it says"),
             refusedFlag("jo", "jointOrient", "joints are transforms like others")},
            names(), makeIdentity),
    });
}

} // namespace tvxhost::mel
