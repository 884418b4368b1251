// Whether a DAG node is in several places.
#pragma once

#include "engine/node.h"

namespace tvxhost::api {

/// Whether more than one path leads to a node, be it that the node itself or one above it has several
/// parents.
inline bool hasSeveralPaths(const engine::DagNode& node)
{
    const engine::DagNode* fork = &node;
    while (fork->parents().size() == 1)
        fork = fork->parents().front();
    return !fork->parents().empty();
}

} // namespace tvxhost::api
