// The meshes below a path or the selection.
#include "core/utils/tvxMayaUtils.h"

#include "core/utils/tvxMeshPathWalk.h"
#include "core/utils/tvxTrace.h"

#include <maya/MGlobal.h>
#include <maya/MSelectionList.h>

#include <ostream>

namespace tarvox::crowd {

void MayaUtils::getSelectedMeshes(std::vector<MObject>& meshes, bool warnIfNone)
{
    MSelectionList selected;
    MGlobal::getActiveSelectionList(selected, false);
    meshes.clear();
    for (unsigned int i = 0; i < selected.length(); ++i) {
        MDagPath path;
        selected.getDagPath(i, path);
        std::list<MDagPath> found;
        collectMeshPaths(path, found);
        for (const MDagPath& mesh : found)
            meshes.push_back(mesh.node());
    }
    if (meshes.empty() && warnIfNone)
        TVX_WARN(TVX_UTILS_MEMBER("getSelectedMeshes"), "No mesh selected, please select a mesh first");
}

void MayaUtils::collectMeshPaths(const MDagPath& path, std::list<MDagPath>& meshes)
{
    MeshPathWalk(meshes).visit(path);
}

} // namespace tarvox::crowd
