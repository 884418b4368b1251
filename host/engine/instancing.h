// Whether a DAG node is in several places.
#pragma once

#include "node.h"

namespace tvxhost::engine {

/// Whether more than one path leads to a node, be it that the node itself or one above it has several
/// parents.
inline bool hasSeveralPaths(const DagNode& node)
{
    const DagNode* fork = &node;
    while (fork->parents().size() == 1)
        fork = fork->parents().front();
    return !fork->parents().empty();
}

} // namespace tvxhost::engine
