// Aiming: orientations that point somewhere and have a side up.
#pragma once

#include "data.h"

#include <optional>

namespace tvxhost::engine {

class Node;

/// Which way is up in the world, as a node says that has the attributes worldUpType, worldUpVector and
/// worldUpMatrix; seen from a place. None where it does not say so.
Vec3d worldUp(Node& node, const Vec3d& place);

/// Directions at right angles as the rows of a matrix: one as given, one as near to `up` as it can be, and
/// theirs. None when `up` says nothing about it.
std::optional<Matrix> axesAlong(const Vec3d& direction, const Vec3d& up);

} // namespace tvxhost::engine
