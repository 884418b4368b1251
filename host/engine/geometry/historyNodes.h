// Nodes of construction history that change or pass on a mesh.
#pragma once

#include "../nodeType.h"

namespace tvxhost::engine {

/// Gives groupParts, transformGeometry, polyTweak, polyTweakUV and polyMapCut their outputs. groupParts
/// passes the mesh on as it is, polyMapCut without texture coordinates.
void addHistoryComputes(TypeTable& types);

} // namespace tvxhost::engine
