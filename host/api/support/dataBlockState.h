// What stands behind a data block and a context.
#pragma once

#include "engine/node.h"

#include <maya/MTypes.h>

#include <optional>

namespace tvxhost::api {

/// A node's values as its own code sees them. One per node, owned by the node's behaviour.
struct DataBlock
{
    engine::Node* node = nullptr;
};

/// A time other than the current one.
struct DGContext
{
    double seconds = 0.0;
};

} // namespace tvxhost::api
