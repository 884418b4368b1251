// Bounding boxes of DAG nodes.
#pragma once

#include "node.h"

#include <optional>

namespace tvxhost::engine {

/// Tells the box of a plug-in's locator in its own space; nothing for one that says nothing of its bounds,
/// which then has that of a plain locator.
using LocatorBounds = std::optional<Imath::Box3d> (*)(const DagNode& locator);

/// Says who knows the plug-ins' locators. Called once, before there are any.
void setLocatorBounds(LocatorBounds bounds);

/// The box of a node and all below it that is not intermediate, in the space of its parent for a transform
/// and in its own for a shape. Empty when there is nothing.
Imath::Box3d boundingBoxOf(DagNode& node);

/// Puts boundingBox and center of a node up to date. They hang on everything below the node and are therefore
/// computed whenever they are asked for.
Computed computeBounds(DagNode& node);

} // namespace tvxhost::engine
