// Bounding boxes of DAG nodes.
#pragma once

#include "node.h"

namespace tvxhost::engine {

/// The box of a node and all below it that is not intermediate, in the space of its parent for a transform
/// and in its own for a shape. Empty when there is nothing.
Imath::Box3d boundingBoxOf(DagNode& node);

/// Puts boundingBox and center of a node up to date. They hang on everything below the node and are therefore
/// computed whenever they are asked for.
Computed computeBounds(DagNode& node);

} // namespace tvxhost::engine
