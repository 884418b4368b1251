// The meshes below a path by the rule as it is written.
#include "MeshPathRule.h"

#include <maya/MDagPathArray.h>
#include <maya/MFn.h>
#include <maya/MString.h>

namespace tarvox::crowd::test {

int literalScore(const std::string& candidate, const std::string& path)
{
    int score = 0;
    for (std::size_t i = 0; i < 10000 && i < candidate.size(); ++i) {
        if (i == path.size())
            return candidate[i] == '|' ? score + 1 : score;
        if (candidate[i] != path[i])
            return score;
        ++score;
    }
    return score;
}

void collectLiterally(const MDagPath& path, std::list<MDagPath>& meshes)
{
    if (path.hasFn(MFn::kMesh)) {
        meshes.push_back(path);
        return;
    }
    if (!path.hasFn(MFn::kTransform))
        return;
    const std::string name = path.fullPathName().asChar();
    for (unsigned int i = 0; i < path.childCount(); ++i) {
        MDagPathArray candidates;
        MDagPath::getAllPathsTo(path.child(i), candidates);
        int bestScore = -1;
        MDagPath best;
        for (unsigned int k = 0; k < candidates.length(); ++k) {
            const int score = literalScore(candidates[k].fullPathName().asChar(), name);
            if (score > bestScore) {
                bestScore = score;
                best = candidates[k];
            }
        }
        collectLiterally(best, meshes);
    }
}

} // namespace tarvox::crowd::test
