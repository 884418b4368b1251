// MItMeshPolygon: the triangles of a face.
#include <maya/MItMeshPolygon.h>

#include "engine/geometry/meshTriangles.h"
#include "support/meshIteration.h"

#include <maya/MPointArray.h>

using namespace tvxhost;
using api::MeshIteration;
using engine::MeshData;
using engine::Triangle;

namespace {

/// Gives the vertices of some triangles of the present face, and where they are. Of all without a number;
/// kInvalidParameter when there is none of that number.
MStatus giveTriangles(const MeshIteration& iteration, const int* number, MPointArray& points,
                      MIntArray& vertices, MSpace::Space space)
{
    return api::withPlacedItem(
        iteration, space, [&](const MeshData& mesh, std::int32_t item, const engine::Matrix& matrix) {
            const auto face = static_cast<std::size_t>(item);
            const engine::MeshTriangles& triangles = mesh.triangles();
            const std::size_t count = triangles.count(face);
            MStatus status;
            if (!api::requireItem(!number || (*number >= 0 && static_cast<std::size_t>(*number) < count),
                                  &status))
                return status;
            const std::size_t first = number ? static_cast<std::size_t>(*number) : 0;
            points.clear();
            vertices.clear();
            for (std::size_t i = first; i < (number ? first + 1 : count); ++i)
                for (const std::int32_t vertex :
                     engine::triangleVertices(mesh, face, triangles[triangles.first(face) + i])) {
                    vertices.append(vertex);
                    points.append(api::placedPoint(mesh, vertex, matrix));
                }
            return status;
        });
}

} // namespace

bool MItMeshPolygon::hasValidTriangulation(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshPolygon::hasValidTriangulation", ReturnStatus, false);
    return api::readItem(*iteration, ReturnStatus, false, [](const MeshData& mesh, std::int32_t face) {
        return engine::hasValidTriangles(mesh, static_cast<std::size_t>(face));
    });
}

MStatus MItMeshPolygon::numTriangles(int& count) const
{
    TVX_API_CALL("MItMeshPolygon::numTriangles");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t face) -> MStatus {
        count = static_cast<int>(mesh.triangles().count(static_cast<std::size_t>(face)));
        return MS::kSuccess;
    });
}

MStatus MItMeshPolygon::getTriangle(int localTriIndex, MPointArray& points, MIntArray& vertexList,
                                    MSpace::Space space) const
{
    TVX_API_CALL("MItMeshPolygon::getTriangle");
    return giveTriangles(*iteration, &localTriIndex, points, vertexList, space);
}

MStatus MItMeshPolygon::getTriangles(MPointArray& points, MIntArray& vertexList, MSpace::Space space) const
{
    TVX_API_CALL("MItMeshPolygon::getTriangles");
    return giveTriangles(*iteration, nullptr, points, vertexList, space);
}
