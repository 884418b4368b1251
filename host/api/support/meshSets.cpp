// Sets of texture coordinates and of colours: see meshSets.h.
#include "meshSets.h"

#include "meshCorners.h"

#include <maya/MFloatArray.h>

#include <algorithm>

namespace tvxhost::api {

std::vector<engine::Vec2f> uvPairs(const MFloatArray& u, const MFloatArray& v)
{
    std::vector<engine::Vec2f> pairs;
    for (unsigned int i = 0; i < u.length(); ++i)
        pairs.emplace_back(u[i], v[i]);
    return pairs;
}

bool isMapped(const engine::MeshData& mesh, const engine::UvSet& set, std::int32_t face)
{
    const std::vector<std::size_t> corners = cornersOfFace(mesh, face);
    return !corners.empty() && std::all_of(corners.begin(), corners.end(), [&set](std::size_t corner) {
        return set.at(corner) != engine::kUnmapped;
    });
}

void giveFaceSetNames(const engine::MeshData& mesh, std::int32_t face, MStringArray& names)
{
    names.clear();
    for (const engine::UvSet& set : mesh.uvSets)
        if (isMapped(mesh, set, face))
            names.append(tvxAccess::string(set.name));
}

} // namespace tvxhost::api
