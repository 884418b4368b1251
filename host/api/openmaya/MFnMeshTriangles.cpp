// MFnMesh: faces as triangles.
#include <maya/MFnMesh.h>

#include "engine/geometry/meshTriangles.h"
#include "support/fnMesh.h"
#include "support/meshIteration.h"

#include <maya/MIntArray.h>

#include <algorithm>

using namespace tvxhost;
using engine::MeshData;
using engine::Triangle;

namespace {

/// Gives how many triangles each face has, and three numbers for each triangle: `read(mesh, face, triangle)`.
template <class Read>
MStatus giveTriangles(const MFnMesh& set, MIntArray& counts, MIntArray& numbers, const Read& read)
{
    return api::withMesh(set, [&](const MeshData& mesh) -> MStatus {
        const engine::MeshTriangles& triangles = mesh.triangles();
        std::vector<int> all, each;
        for (std::size_t face = 0; face < mesh.faces.size(); ++face) {
            each.push_back(static_cast<int>(triangles.count(face)));
            for (std::size_t i = 0; i < triangles.count(face); ++i)
                for (const std::int32_t number : read(mesh, face, triangles[triangles.first(face) + i]))
                    all.push_back(number);
        }
        api::giveAll(counts, each);
        api::giveAll(numbers, all);
        return MS::kSuccess;
    });
}

} // namespace

MStatus MFnMesh::getTriangles(MIntArray& triangleCounts, MIntArray& triangleVertices) const
{
    TVX_API_CALL("MFnMesh::getTriangles");
    return giveTriangles(*this, triangleCounts, triangleVertices, engine::triangleVertices);
}

MStatus MFnMesh::getTriangleOffsets(MIntArray& triangleCounts, MIntArray& triangleIndices) const
{
    TVX_API_CALL("MFnMesh::getTriangleOffsets");
    return giveTriangles(*this, triangleCounts, triangleIndices,
                         [](const MeshData& mesh, std::size_t face, Triangle triangle) {
                             const auto first = static_cast<std::int32_t>(mesh.faces.firstCorner(face));
                             for (std::int32_t& corner : triangle)
                                 corner += first;
                             return triangle;
                         });
}

MStatus MFnMesh::getPolygonTriangleVertices(int polygonId, int triangleId, int triangleVertices[3]) const
{
    TVX_API_CALL("MFnMesh::getPolygonTriangleVertices");
    return api::withFace(*this, polygonId, [&](const MeshData& mesh, std::size_t face) {
        const engine::MeshTriangles& triangles = mesh.triangles();
        const MStatus status = api::requireThere(triangleId >= 0 && static_cast<std::size_t>(triangleId) <
                                                                        triangles.count(face));
        if (!status)
            return status;
        const Triangle vertices = engine::triangleVertices(
            mesh, face, triangles[triangles.first(face) + static_cast<std::size_t>(triangleId)]);
        std::copy(vertices.begin(), vertices.end(), triangleVertices);
        return status;
    });
}
