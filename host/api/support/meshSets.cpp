// Sets of texture coordinates and of colours: see meshSets.h.
#include "meshSets.h"

#include "engine/geometry/uvPlaces.h"
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

MStatus changeUvs(const MeshTarget& target, const std::string& set, const std::vector<CornerUv>& changes)
{
    return target.editSets([&](engine::MeshData& changed) {
        for (engine::UvSet& uvs : changed.uvSets)
            for (const auto& [corner, value] : changes)
                if (uvs.name == set && uvs.at(corner) != engine::kUnmapped)
                    uvs.values[static_cast<std::size_t>(uvs.at(corner))] = value;
    });
}

MStatus tellPointAtUv(const MeshTarget& target, const engine::MeshData& mesh, std::int32_t face,
                      MPoint& point, const float2& uv, const engine::Matrix& matrix, const MString* set,
                      double tolerance)
{
    return withSet<UvKind>(
        target, mesh, set, [&](const engine::MeshData&, const engine::UvSet& uvs) -> MStatus {
            const auto place =
                engine::placeAt(mesh, uvs, face, engine::Vec2f(uv[0], uv[1]), tolerance, matrix);
            if (!place)
                return failure(StatusText::unexpectedFailure);
            point = toPoint(place->point);
            return MS::kSuccess;
        });
}

MStatus tellUvAt(const MeshTarget& target, const engine::MeshData& mesh,
                 const std::optional<engine::SurfacePoint>& place, float2& uv, const MString* set)
{
    return withSet<UvKind>(target, mesh, set,
                           [&](const engine::MeshData&, const engine::UvSet& uvs) -> MStatus {
                               const auto found = place ? engine::uvAt(mesh, uvs, *place) : std::nullopt;
                               if (!found)
                                   return failure(StatusText::unexpectedFailure);
                               uv[0] = found->x;
                               uv[1] = found->y;
                               return MS::kSuccess;
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
