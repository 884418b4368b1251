// The motionPath node: a place on a curve, and an orientation along it.
#pragma once

#include "nodeType.h"

namespace tvxhost::engine {

/// Gives motionPath its coordinates, rotation and matrix. Twists and banking are not computed.
void addMotionPathCompute(TypeTable& types);

} // namespace tvxhost::engine
