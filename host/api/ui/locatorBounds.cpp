// The bounding boxes of plug-ins' locators, for an engine that does not know plug-ins.
#include "engine/boundingBox.h"

#include <maya/MPxLocatorNode.h>

namespace {

using tvxhost::engine::DagNode;
using tvxhost::engine::Vec3d;

Vec3d corner(const MPoint& point)
{
    return {point.x, point.y, point.z};
}

std::optional<Imath::Box3d> boundsOf(const DagNode& node)
{
    auto* object = static_cast<MPxNode*>(node.behaviour()->apiObject());
    const auto* locator = dynamic_cast<MPxLocatorNode*>(object);
    if (!locator || !locator->isBounded())
        return std::nullopt;
    const MBoundingBox box = locator->boundingBox();
    return Imath::Box3d(corner(box.min()), corner(box.max()));
}

/// In force as soon as the library is loaded, as plug-ins with locators need it.
const bool isSet = (tvxhost::engine::setLocatorBounds(boundsOf), true);

} // namespace
