// MFnMesh: polygon meshes, their points, edges and faces. What else there is to them stands in further files;
// what the host cannot do in the MFnMeshUnsupported… files.
#include <maya/MFnMesh.h>

#include "engine/geometry/meshMeasures.h"
#include "support/fnMesh.h"
#include "support/meshIteration.h"
#include "support/meshNeighbours.h"

#include <maya/MFloatPointArray.h>
#include <maya/MIntArray.h>
#include <maya/MPointArray.h>

#include <numeric>

using namespace tvxhost;
using api::readMesh;
using api::requireThere;
using api::targetOf;
using api::withEdge;
using api::withFace;
using api::withMesh;
using api::withPlacedMesh;
using engine::MeshData;

namespace {

template <class Array>
MStatus readPoints(const MFnMesh& set, Array& points, MSpace::Space space)
{
    return withPlacedMesh(set, space, [&](const MeshData& mesh, const engine::Matrix& matrix) -> MStatus {
        auto& elements = tvxAccess::elements(points);
        elements.clear();
        elements.reserve(mesh.points.size());
        for (const engine::Vec3f& point : mesh.points)
            elements.emplace_back(api::toPoint(engine::Vec3d(point) * matrix));
        return MS::kSuccess;
    });
}

/// Moves points of a space, given by number.
MStatus movePoints(const MFnMesh& set, const std::vector<std::pair<std::int32_t, MPoint>>& points,
                   MSpace::Space space)
{
    const api::MeshTarget target = targetOf(set);
    engine::Matrix matrix;
    if (const MStatus status = target.placement(space, matrix); !status)
        return status;
    const engine::Matrix back = matrix.inverse();
    engine::MovedPoints moved;
    moved.reserve(points.size());
    for (const auto& [vertex, point] : points)
        moved.emplace_back(vertex, engine::Vec3f(api::toImath(point) * back));
    return target.move(moved);
}

template <class Array>
MStatus writePoints(const MFnMesh& set, const Array& points, MSpace::Space space)
{
    return withMesh(set, [&](const MeshData& mesh) {
        const MStatus status = requireThere(points.length() == mesh.points.size());
        if (!status)
            return status;
        std::vector<std::pair<std::int32_t, MPoint>> moved;
        moved.reserve(points.length());
        for (unsigned int i = 0; i < points.length(); ++i)
            moved.emplace_back(static_cast<std::int32_t>(i), MPoint(points[i]));
        return movePoints(set, moved, space);
    });
}

} // namespace

namespace tvxhost::api {

MeshTarget targetOf(const MFnMesh& set)
{
    return MeshTarget(tvxAccess::attached(set), ownPathOf(set));
}

} // namespace tvxhost::api

TVX_FUNCTION_SET(MFnMesh, MFn::kMesh)

MFnMesh::MFnMesh() : reservedWords() {}

MFnMesh::MFnMesh(const MDagPath& object, MStatus* ret) : reservedWords()
{
    TVX_API_CONSTRUCTION("MFnMesh::MFnMesh", ret);
    api::give(ret, api::attachTo(*this, object));
}

bool MFnMesh::objectChanged(MFn::Type tp, MStatus* ReturnStatus)
{
    return MFnDagNode::objectChanged(tp, ReturnStatus);
}

int MFnMesh::numVertices(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numVertices", ReturnStatus, 0);
    return readMesh(*this, ReturnStatus, [](const MeshData& mesh) { return mesh.points.size(); });
}

int MFnMesh::numEdges(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numEdges", ReturnStatus, 0);
    return readMesh(*this, ReturnStatus, [](const MeshData& mesh) { return mesh.edges.size(); });
}

int MFnMesh::numPolygons(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numPolygons", ReturnStatus, 0);
    return readMesh(*this, ReturnStatus, [](const MeshData& mesh) { return mesh.faces.size(); });
}

int MFnMesh::numFaceVertices(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numFaceVertices", ReturnStatus, 0);
    return readMesh(*this, ReturnStatus, [](const MeshData& mesh) { return mesh.faces.cornerCount(); });
}

int MFnMesh::polygonVertexCount(int polygonId, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::polygonVertexCount", ReturnStatus, 0);
    int count = 0;
    api::give(ReturnStatus,
              withFace(*this, polygonId, [&](const MeshData& mesh, std::size_t face) -> MStatus {
                  count = static_cast<int>(mesh.faces.corners(face).size());
                  return MS::kSuccess;
              }));
    return count;
}

MStatus MFnMesh::updateSurface()
{
    TVX_API_CALL("MFnMesh::updateSurface");
    return targetOf(*this).status();
}

MStatus MFnMesh::syncObject()
{
    TVX_API_CALL("MFnMesh::syncObject");
    return targetOf(*this).status();
}

const float* MFnMesh::getRawPoints(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::getRawPoints", ReturnStatus, nullptr);
    const api::MeshTarget target = targetOf(*this);
    const MeshData* mesh = target.mesh();
    api::give(ReturnStatus, target.status());
    return mesh && !mesh->points.empty() ? &mesh->points.front().x : nullptr;
}

MStatus MFnMesh::getPoints(MFloatPointArray& vertexArray, MSpace::Space space) const
{
    TVX_API_CALL("MFnMesh::getPoints");
    return readPoints(*this, vertexArray, space);
}

MStatus MFnMesh::getPoints(MPointArray& vertexArray, MSpace::Space space) const
{
    TVX_API_CALL("MFnMesh::getPoints");
    return readPoints(*this, vertexArray, space);
}

MStatus MFnMesh::setPoints(MFloatPointArray& vertexArray, MSpace::Space space)
{
    TVX_API_CALL("MFnMesh::setPoints");
    return writePoints(*this, vertexArray, space);
}

MStatus MFnMesh::setPoints(MPointArray& vertexArray, MSpace::Space space)
{
    TVX_API_CALL("MFnMesh::setPoints");
    return writePoints(*this, vertexArray, space);
}

MStatus MFnMesh::setPoint(int vertexId, const MPoint& pos, MSpace::Space space)
{
    TVX_API_CALL("MFnMesh::setPoint");
    return movePoints(*this, {{vertexId, pos}}, space);
}

MStatus MFnMesh::getPoint(int vertexId, MPoint& pos, MSpace::Space space) const
{
    TVX_API_CALL("MFnMesh::getPoint");
    return withPlacedMesh(*this, space, [&](const MeshData& mesh, const engine::Matrix& matrix) {
        const MStatus status = requireThere(mesh.hasVertex(vertexId));
        if (status)
            pos = api::placedPoint(mesh, vertexId, matrix);
        return status;
    });
}

MStatus MFnMesh::getVertices(MIntArray& vertexCount, MIntArray& vertexList) const
{
    TVX_API_CALL("MFnMesh::getVertices");
    return withMesh(*this, [&](const MeshData& mesh) -> MStatus {
        auto& counts = tvxAccess::elements(vertexCount);
        auto& vertices = tvxAccess::elements(vertexList);
        counts.clear();
        vertices.clear();
        vertices.reserve(mesh.faces.cornerCount());
        for (std::size_t face = 0; face < mesh.faces.size(); ++face) {
            counts.push_back(static_cast<int>(mesh.faces.corners(face).size()));
            for (const std::int32_t corner : mesh.faces.corners(face))
                vertices.push_back(mesh.startOf(corner));
        }
        return MS::kSuccess;
    });
}

MStatus MFnMesh::getPolygonVertices(int polygonId, MIntArray& vertexList) const
{
    TVX_API_CALL("MFnMesh::getPolygonVertices");
    return withFace(*this, polygonId, [&](const MeshData& mesh, std::size_t face) -> MStatus {
        api::giveAll(vertexList, engine::cornerVertices(mesh, face));
        return MS::kSuccess;
    });
}

bool MFnMesh::isPolygonConvex(int faceIndex, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::isPolygonConvex", ReturnStatus, false);
    bool isConvex = false;
    api::give(ReturnStatus,
              withFace(*this, faceIndex, [&](const MeshData& mesh, std::size_t face) -> MStatus {
                  isConvex = engine::isConvex(mesh, face);
                  return MS::kSuccess;
              }));
    return isConvex;
}

MStatus MFnMesh::getEdgeVertices(int edgeId, int2& vertexList) const
{
    TVX_API_CALL("MFnMesh::getEdgeVertices");
    return withEdge(*this, edgeId, [&](const MeshData::Edge& edge) -> MStatus {
        vertexList[0] = edge.from;
        vertexList[1] = edge.to;
        return MS::kSuccess;
    });
}

bool MFnMesh::isEdgeSmooth(int edgeId, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::isEdgeSmooth", ReturnStatus, false);
    bool isSmooth = false;
    api::give(ReturnStatus, withEdge(*this, edgeId, [&](const MeshData::Edge& edge) -> MStatus {
                  isSmooth = edge.smooth != 0;
                  return MS::kSuccess;
              }));
    return isSmooth;
}

MStatus MFnMesh::setEdgeSmoothing(int edgeId, bool smooth)
{
    TVX_API_CALL("MFnMesh::setEdgeSmoothing");
    return targetOf(*this).smooth(edgeId, smooth);
}

MStatus MFnMesh::cleanupEdgeSmoothing()
{
    TVX_API_CALL("MFnMesh::cleanupEdgeSmoothing");
    return targetOf(*this).status();
}

int MFnMesh::getHoles(MIntArray& holeInfoArray, MIntArray& holeVertexArray, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::getHoles", ReturnStatus, 0);
    return readMesh(*this, ReturnStatus, [&](const MeshData& mesh) {
        auto& info = tvxAccess::elements(holeInfoArray);
        auto& vertices = tvxAccess::elements(holeVertexArray);
        info.clear();
        vertices.clear();
        for (std::size_t face = 0; face < mesh.faces.size(); ++face)
            for (std::size_t i = 1; i < mesh.faces.loopCount(face); ++i) {
                const engine::IndexSpan hole = mesh.faces.loop(face, i);
                info.insert(info.end(), {static_cast<int>(face), static_cast<int>(hole.size()),
                                         static_cast<int>(vertices.size())});
                for (const std::int32_t corner : hole)
                    vertices.push_back(mesh.startOf(corner));
            }
        return info.size() / 3;
    });
}

bool MFnMesh::onBoundary(int polygonId, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::onBoundary", ReturnStatus, false);
    bool isOnBorder = false;
    api::give(ReturnStatus, withFace(*this, polygonId, [&](const MeshData& mesh, std::size_t) -> MStatus {
                  isOnBorder = api::isOnBorder(mesh, polygonId);
                  return MS::kSuccess;
              }));
    return isOnBorder;
}
