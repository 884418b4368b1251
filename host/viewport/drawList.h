// DrawList: what of a scene is drawn in a viewport, and how.
#pragma once

#include "engine/dagPath.h"
#include "engine/scene.h"

#include <maya/M3dView.h>

#include <vector>

namespace tvxhost::viewport {

enum class DrawKind
{
    wire,   ///< a mesh
    cross,  ///< a locator of the host's own
    plugin, ///< a locator that a plug-in draws
};

/// One shape, once per instance.
struct DrawItem
{
    engine::DagPath path;
    DrawKind kind;
    M3dView::DisplayStatus status;
    engine::Matrix matrix; ///< of the path, in the world
};

/// Everything that can be seen, in the order of the DAG. Cameras, lights, what is invisible and intermediate
/// objects are not in it.
std::vector<DrawItem> drawList(engine::Scene& scene);

} // namespace tvxhost::viewport
