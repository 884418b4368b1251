// Bounding boxes: see boundingBox.h.
#include "boundingBox.h"

#include "computeSupport.h"
#include "mesh.h"
#include "values.h"

#include <Imath/ImathBoxAlgo.h>

namespace tvxhost::engine {

namespace {

LocatorBounds locatorBounds = nullptr;

/// A locator's cross: one unit each way, scaled, around its position.
Imath::Box3d crossBox(DagNode& node)
{
    const std::vector<double> at = readNumbers(plugOf(node, "localPosition")).value;
    const std::vector<double> scale = readNumbers(plugOf(node, "localScale")).value;
    Imath::Box3d box;
    for (const double side : {-1.0, 1.0})
        box.extendBy(Vec3d(at[0] + side * scale[0], at[1] + side * scale[1], at[2] + side * scale[2]));
    return box;
}

Imath::Box3d locatorBox(DagNode& node)
{
    const auto box = locatorBounds && node.behaviour() ? locatorBounds(node) : std::nullopt;
    return box ? *box : crossBox(node);
}

Imath::Box3d shapeBox(DagNode& node)
{
    Imath::Box3d box;
    if (const MeshData* mesh = meshOf(node))
        for (const Vec3f& point : mesh->points)
            box.extendBy(Vec3d(point));
    else if (node.type().isA("locator"))
        box = locatorBox(node);
    return box;
}

void finish(DagNode& node, const char* name, const Vec3d& value)
{
    const Plug plug = plugOf(node, name);
    for (std::size_t i = 0; i < 3; ++i)
        keepNumber(plug.child(i), Number(value[static_cast<int>(i)]));
}

} // namespace

void setLocatorBounds(LocatorBounds bounds)
{
    locatorBounds = bounds;
}

Imath::Box3d boundingBoxOf(DagNode& node)
{
    if (node.isShape())
        return shapeBox(node);
    Imath::Box3d box;
    for (DagNode* child : node.children())
        if (!child->isIntermediate())
            box.extendBy(boundingBoxOf(*child));
    return box.isEmpty() ? box : Imath::transform(box, node.localMatrix());
}

Computed computeBounds(DagNode& node)
{
    Imath::Box3d box = boundingBoxOf(node);
    if (box.isEmpty())
        box = Imath::Box3d(Vec3d(0.0));
    finish(node, "boundingBoxMin", box.min);
    finish(node, "boundingBoxMax", box.max);
    finish(node, "boundingBoxSize", box.size());
    finish(node, "center", box.center());
    return Computed::done;
}

} // namespace tvxhost::engine
