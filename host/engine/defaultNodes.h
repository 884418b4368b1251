// The nodes that a new scene begins with.
#pragma once

namespace tvxhost::engine {

class Scene;

/// Makes them, as types/defaults.nodes says.
void makeDefaultNodes(Scene& scene);

} // namespace tvxhost::engine
