// The surface of a nurbsSurface node: what its history yields, else what the node holds.
#pragma once

#include "../plug.h"
#include "nurbsSurface.h"

#include <optional>

namespace tvxhost::engine {

/// Whether something makes the surface that the node shows.
bool hasSurfaceHistory(Node& node);
/// The plug that holds the surface; a null one for a node that is no nurbsSurface.
Plug surfacePlugOf(Node& node);
/// None for a node without a surface, with a trimmed one, or that is no nurbsSurface.
std::optional<NurbsSurface> surfaceOf(Node& node);
/// Gives the node another surface. notWritable where history makes it, noData for what is no valid surface.
Outcome storeSurface(Node& node, const NurbsSurface& surface);

} // namespace tvxhost::engine
