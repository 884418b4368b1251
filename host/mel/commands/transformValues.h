// The numbers of a transform: set from a matrix, moved, turned.
#pragma once

#include "engine/node.h"

namespace tvxhost::mel {

/// Sets translate, rotate, scale and shear so that the transform's own matrix becomes `local`, whatever its
/// pivots are. lockedOrConnected when one of them cannot be set.
engine::Outcome setLocalMatrix(engine::DagNode& transform, const engine::Matrix& local);

} // namespace tvxhost::mel
