// What the transform commands share; see transformParts.h.
#include "transformParts.h"

#include "api/support/matrix4.h"
#include "api/support/transformNode.h"
#include "engine/boundingBox.h"

#include <Imath/ImathBoxAlgo.h>

namespace tvxhost::mel {

using api::Transformation;
using engine::DagPath;
using engine::Outcome;

std::vector<DagPath> transformsOf(const CommandContext& context, const std::vector<std::string>& names)
{
    return transformsOf(context, itemsOrSelection(context, names));
}

std::vector<DagPath> transformsOf(const CommandContext& context,
                                  const std::vector<engine::SelectionItem>& items)
{
    std::vector<DagPath> paths;
    for (const engine::SelectionItem& item : items) {
        if (!item.components.empty())
            context.fail("'" + context.command() + "' of components is not implemented: " + item.name());
        if (!item.plug.isNull())
            context.fail("'" + context.command() + "' is of objects, not of attributes: " + item.name());
        DagPath path = item.path;
        while (path.isValid() && path.length() > 0 && !path.node()->isTransform())
            if (!path.pop())
                break;
        if (path.isValid() && path.length() > 0)
            paths.push_back(path);
    }
    if (paths.empty())
        context.fail("Nothing is selected to " + context.command() + ".");
    return paths;
}

Transformation partsOf(const CommandContext& context, const DagPath& path)
{
    return valueOf(context, api::readTransformation(*path.node()));
}

void changeParts(const CommandContext& context, const DagPath& path, const PartsChange& change)
{
    Transformation parts = partsOf(context, path);
    change(parts, api::parentsOf(path));
    require(context, api::writeTransformation(*path.node(), parts));
}

void takeMatrix(Transformation& parts, const MMatrix& local)
{
    Transformation taken;
    taken.rotation.order = parts.rotation.order;
    taken.decompose(local);
    parts.scale = taken.scale;
    parts.shear = taken.shear;
    const MEulerRotation before = parts.rotation;
    parts.rotation = taken.rotation;
    if (parts.orientation != MQuaternion::identity)
        parts.rotation = parts.orientation.inverse() * taken.rotation.asQuaternion();
    parts.rotation.setToClosestSolution(before);
    parts.translation += MVector(local.matrix[3]) - MVector(parts.matrix().matrix[3]);
}

Outcome setLocalMatrix(engine::DagNode& transform, const engine::Matrix& local)
{
    auto parts = api::readTransformation(transform);
    if (!parts)
        return parts.outcome;
    takeMatrix(parts.value, api::fromImath<MMatrix>(local));
    return api::writeTransformation(transform, parts.value);
}

Imath::Box3d boxOf(const DagPath& path, bool inWorld)
{
    const Imath::Box3d box = engine::boundingBoxOf(*path.node());
    if (box.isEmpty())
        return Imath::Box3d(engine::Vec3d(0.0));
    return inWorld ? Imath::transform(box, path.exclusiveMatrix()) : box;
}

std::vector<FlagSpec> componentFlags()
{
    return {
        refusedFlag("puv", "preserveUV", "texture coordinates stay as they are"),
        refusedFlag("rfl", "reflection", kNoSymmetry),
        refusedFlag("rao", "reflectionAboutOrigin", kNoSymmetry),
        refusedFlag("rab", "reflectionAboutBBox", kNoSymmetry),
        refusedFlag("rax", "reflectionAboutX", kNoSymmetry),
        refusedFlag("ray", "reflectionAboutY", kNoSymmetry),
        refusedFlag("raz", "reflectionAboutZ", kNoSymmetry),
        refusedFlag("rft", "reflectionTolerance", kNoSymmetry),
        refusedFlag("dph", "deletePriorHistory", "use delete -constructionHistory"),
    };
}

double unitOf(const CommandContext& context, ArgumentType type)
{
    return type == ArgumentType::number ? 1.0 : toInternal(context, Value(1.0), type);
}

double internalNumber(const CommandContext& context, const Value& value, ArgumentType type)
{
    return type == ArgumentType::number ? value.toNumber() : toInternal(context, value, type);
}

} // namespace tvxhost::mel
