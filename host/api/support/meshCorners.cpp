// The corners of faces: see meshCorners.h.
#include "meshCorners.h"

#include "engine/geometry/meshTopology.h"
#include "meshNeighbours.h"

#include <numeric>

namespace tvxhost::api {

using engine::MeshData;

std::optional<std::size_t> localCorner(const MeshData& mesh, std::int64_t face, std::int64_t corner)
{
    if (!mesh.hasFace(face))
        return std::nullopt;
    const auto i = static_cast<std::size_t>(face);
    if (corner < 0 || corner >= static_cast<std::int64_t>(mesh.faces.corners(i).size()))
        return std::nullopt;
    return mesh.faces.firstCorner(i) + static_cast<std::size_t>(corner);
}

std::optional<std::size_t> cornerAtVertex(const MeshData& mesh, std::int64_t face, std::int64_t vertex)
{
    if (!mesh.hasFace(face))
        return std::nullopt;
    std::size_t place = mesh.faces.firstCorner(static_cast<std::size_t>(face));
    for (const std::int32_t corner : mesh.faces.corners(static_cast<std::size_t>(face))) {
        if (mesh.startOf(corner) == vertex)
            return place;
        ++place;
    }
    return std::nullopt;
}

std::vector<std::size_t> cornersOfFace(const MeshData& mesh, std::int32_t face)
{
    const auto i = static_cast<std::size_t>(face);
    std::vector<std::size_t> corners(mesh.faces.corners(i).size());
    std::iota(corners.begin(), corners.end(), mesh.faces.firstCorner(i));
    return corners;
}

std::vector<FaceCorner> cornersOfVertex(const MeshData& mesh, std::int32_t vertex)
{
    std::vector<FaceCorner> corners;
    for (const std::int32_t face : unique(mesh.topology().facesOfVertex(vertex)))
        corners.push_back({face, *cornerAtVertex(mesh, face, vertex)});
    return corners;
}

std::vector<std::size_t> placesAtVertex(const MeshData& mesh, std::int32_t vertex)
{
    std::vector<std::size_t> places;
    for (const FaceCorner& corner : cornersOfVertex(mesh, vertex))
        places.push_back(corner.corner);
    return places;
}

} // namespace tvxhost::api
