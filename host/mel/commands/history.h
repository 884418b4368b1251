// The nodes that made an object.
#pragma once

#include "engine/node.h"

#include <vector>

namespace tvxhost::mel {

/// The nodes whose geometry flows into a shape, the nearest first; other shapes and what is behind them are
/// left out.
std::vector<engine::Node*> geometryHistory(engine::Node& shape);

} // namespace tvxhost::mel
