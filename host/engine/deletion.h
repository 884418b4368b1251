// Which nodes cannot be deleted, and the cameras of every scene, which are among them.
#pragma once

#include "outcome.h"

namespace tvxhost::engine {

class DagNode;
class Node;

/// Whether a node is a camera that the scene began with (persp, top, front, side), or the transform above
/// one.
bool isStartupCamera(const Node& node);
/// Makes a camera and the transform above it, of which one is given, startup ones or ordinary ones.
void setStartupCamera(DagNode& node, bool on);

/// Whether it stays whatever happens: a default node or a startup camera.
bool isUndeletable(const Node& node);
/// Success when a node can be deleted with all that goes with it: what is below it and nowhere else.
Outcome checkDeletion(const Node& node);

} // namespace tvxhost::engine
