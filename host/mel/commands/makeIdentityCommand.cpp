// makeIdentity: transforms without effect, with their shapes moved or left in place.
#include "sceneCommands.h"
#include "transformParts.h"

#include "api/support/matrix4.h"
#include "engine/geometry/curveNode.h"
#include "engine/geometry/meshNormals.h"
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
    bool orientsJoints = false;   ///< the axes of joints become those of the world
    bool reversesNormals = false; ///< of meshes that are turned inside out

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
    Reset reset;
    if (call.has("translate") || call.has("rotate") || call.has("scale")) {
        reset.translates = call.boolean("translate");
        reset.rotates = call.boolean("rotate");
        reset.scales = call.boolean("scale");
    }
    reset.orientsJoints = call.has("jointOrient");
    reset.reversesNormals = call.boolean("preserveNormals");
    return reset;
}

bool isJoint(const DagNode& node)
{
    return node.type().isA("joint");
}

/// Everything below a transform must be able to take over what the transform did.
void checkGeometry(const CommandContext& context, DagNode& transform)
{
    for (DagNode* child : transform.children()) {
        if (child->parents().size() > 1)
            context.fail("makeIdentity -apply: '" + child->name() + "' is instanced");
        if (child->isTransform())
            checkGeometry(context, *child);
        else if (child->type().isA("nurbsCurve") && engine::hasCurveHistory(*child))
            context.fail("makeIdentity -apply: '" + child->name() + "' has construction history");
        else if (!child->type().isA("mesh") && !child->type().isA("nurbsCurve"))
            context.fail("makeIdentity -apply: '" + child->name() + "' has no points to move");
    }
}

// Shapes

void moveMesh(const CommandContext& context, DagNode& shape, const MMatrix& by)
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
    const bool turnsNormals = !mesh->lockedNormals.empty() && !engine::hasHistory(shape);
    require(context, engine::movePoints(shape, moved));
    if (turnsNormals)
        require(context, engine::editNormals(shape, [&](engine::MeshData& changed) {
                    engine::turnLockedNormals(changed, engine::Matrix(by.matrix));
                }));
}

void moveCurve(const CommandContext& context, DagNode& shape, const MMatrix& by)
{
    std::optional<engine::NurbsCurve> curve = engine::curveOf(shape);
    if (!curve)
        return;
    for (engine::NurbsCurve::Point& point : curve->points) {
        const MPoint to = MPoint(point.place.x, point.place.y, point.place.z) * by;
        point.place = {to.x, to.y, to.z};
    }
    require(context, engine::storeCurve(shape, *curve));
}

/// Faces that are seen from the other side now get normals that point there.
void reverseNormals(const CommandContext& context, DagNode& shape)
{
    const engine::Plug opposite = valueOf(context, shape.findPlug("opposite"));
    const bool isOpposite = valueOf(context, engine::readNumber(opposite)).asWhole() != 0;
    require(context, engine::writeNumber(opposite, engine::Number(isOpposite ? 0 : 1)));
}

void moveShape(const CommandContext& context, DagNode& shape, const Reset& reset, const MMatrix& by)
{
    if (shape.type().isA("nurbsCurve"))
        return moveCurve(context, shape, by);
    moveMesh(context, shape, by);
    if (reset.reversesNormals && by.det3x3() < 0.0)
        reverseNormals(context, shape);
}

// Transforms: each takes over what was taken from above, and gives what it hands down

/// Resets a transform. Pivots stay where they are in the parent's space.
MMatrix freezeTransform(const CommandContext& context, const DagPath& path, const Reset& reset,
                        const MMatrix& taken)
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
    return handedDown;
}

void writeJointOrient(const CommandContext& context, DagNode& joint, const MVector& angles)
{
    const engine::Plug orient = valueOf(context, joint.findPlug("jointOrient"));
    for (unsigned axis = 0; axis < 3; ++axis)
        require(context, engine::writeNumber(orient.child(axis), engine::Number(angles[axis])));
}

MMatrix localMatrixOf(DagNode& joint)
{
    return api::fromImath<MMatrix>(joint.localMatrix());
}

/// Resets a joint, which stays where it is: the axes of its orientation take over its rotation.
MMatrix freezeJoint(const CommandContext& context, const DagPath& path, const Reset& reset,
                    const MMatrix& taken)
{
    DagNode& joint = *path.node();
    const MMatrix whole = localMatrixOf(joint) * taken;
    Transformation wanted;
    wanted.decompose(whole);
    changeParts(context, path, [&](Transformation& parts, const Parents& parents) {
        parts.translation = wanted.translation;
        parts.scale = wanted.scale;
        parts.shear = wanted.shear;
        Reset inPlace = reset;
        inPlace.translates = false;
        inPlace(parts);
        const MQuaternion turned =
            reset.orientsJoints ? parents.rotation.inverse() : wanted.rotation.asQuaternion();
        const MQuaternion own = parts.orientation * parts.rotation.asQuaternion();
        writeJointOrient(context, joint, (own.inverse() * turned).asEulerRotation().asVector());
    });
    return whole * localMatrixOf(joint).inverse();
}

void freeze(const CommandContext& context, const DagPath& path, const Reset& reset, const MMatrix& taken)
{
    const MMatrix handedDown = isJoint(*path.node()) ? freezeJoint(context, path, reset, taken)
                                                     : freezeTransform(context, path, reset, taken);
    for (DagNode* child : path.node()->children()) {
        if (child->isShape()) {
            moveShape(context, *child, reset, handedDown);
            continue;
        }
        DagPath below = path;
        require(context, below.push(*child));
        freeze(context, below, reset, handedDown);
    }
}

/// Resets without regard to what is moved by that; only a joint keeps its place.
void resetParts(const CommandContext& context, const DagPath& path, const Reset& reset)
{
    Reset own = reset;
    own.translates = reset.translates && !isJoint(*path.node());
    changeParts(context, path, [&](Transformation& parts, const Parents&) { own(parts); });
    if (isJoint(*path.node()) && reset.orientsJoints)
        writeJointOrient(context, *path.node(), MVector());
}

Value makeIdentity(CommandContext& context, const ParsedCommand& call)
{
    const Reset reset = resetOf(call);
    const std::vector<DagPath> paths = transformsOf(context, call.names());
    if (!call.boolean("apply")) {
        for (const DagPath& path : paths)
            resetParts(context, path, reset);
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
            {valueFlag("a", "apply", A::boolean, "meshes and curves below stay where they are in the world"),
             valueFlag("t", "translate", A::boolean, "the translation only"),
             valueFlag("r", "rotate", A::boolean, "the rotation only"),
             valueFlag("s", "scale", A::boolean, "the scale and shear only"),
             valueFlag("n", "normal", A::integer, "normals follow the faces, whatever it says"),
             valueFlag("pn", "preserveNormals", A::boolean,
                       "with -apply: meshes that are turned inside out get their normals reversed"),
             switchFlag("jo", "jointOrient", "the axes of joints become those of the world")},
            names(), makeIdentity),
    });
}

} // namespace tvxhost::mel
