// Nodes of construction history that change or pass on a mesh.
#pragma once

#include "../nodeType.h"

namespace tvxhost::engine {

/// Gives groupParts, transformGeometry, polyTweak, polyTweakUV and polyMapCut their outputs: those that are
/// about groups and textures pass the mesh on as it is.
void addHistoryComputes(TypeTable& types);

} // namespace tvxhost::engine
