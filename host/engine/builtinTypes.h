// The built-in node types: where their attributes are, and what they compute.
#pragma once

#include "node.h"

namespace tvxhost::engine {

/// Gives the built-in types in `types` their compute functions.
void addBuiltinComputes(TypeTable& types);

/// What a DAG node's own attributes say, whatever stands above it. These read values, following connections.
bool inheritsTransform(DagNode& node);
/// Visible by `visibility`, `lodVisibility`, the display override, and not intermediate.
bool isShownByItself(DagNode& node);
/// Template by the attribute or by the display override.
bool isTemplatedByItself(DagNode& node);

} // namespace tvxhost::engine
