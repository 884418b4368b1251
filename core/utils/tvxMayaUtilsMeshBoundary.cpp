// The outline of a mesh's open border.
#include "core/utils/tvxMayaUtils.h"

#include "core/utils/tvxBorderWalk.h"

namespace tarvox::crowd {

MStatus MayaUtils::getMeshBoundary(const MDagPath& mesh, std::vector<core::Vector2<float>>& outline)
{
    outline.clear();
    MStatus status;
    MItMeshEdge edge(mesh, MObject::kNullObj, &status);
    while (status && !edge.isDone() && !edge.onBoundary())
        edge.next();
    if (!status || edge.isDone())
        return MStatus::kFailure;
    return BorderWalk(edge, outline).run();
}

} // namespace tarvox::crowd
