// Constraints: what they give the object that they constrain.
#pragma once

#include "nodeType.h"

namespace tvxhost::engine {

/// Gives point, orient, parent, scale, aim and pole vector constraints their outputs. Without a target that
/// has weight they yield their rest position when that is enabled, else what they yielded last.
void addConstraintComputes(TypeTable& types);

} // namespace tvxhost::engine
