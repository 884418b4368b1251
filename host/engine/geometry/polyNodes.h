// Nodes of construction history that make polygons.
#pragma once

#include "../nodeType.h"

namespace tvxhost::engine {

/// Gives polyPlane, polyCube, polySphere, polyCylinder, polyCone and polyTorus their `output`.
void addPolyComputes(TypeTable& types);

} // namespace tvxhost::engine
