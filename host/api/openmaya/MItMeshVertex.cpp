// MItMeshVertex: goes through the vertices of a mesh. Texture coordinates and colours are in
// MItMeshVertexUvs.cpp and MItMeshVertexColors.cpp.
#include <maya/MItMeshVertex.h>

#include "engine/geometry/meshNormals.h"
#include "engine/geometry/meshTopology.h"
#include "support/meshIteration.h"
#include "support/meshNeighbours.h"

#include <maya/MVectorArray.h>

#include <algorithm>

using namespace tvxhost;
using api::failure;
using api::MeshIteration;
using api::StatusText;
using engine::IndexSpan;
using engine::MeshData;

namespace {

MStatus startOn(MeshIteration& iteration, const MObject& object)
{
    return iteration.start(api::MeshTarget(object), MObject());
}

std::vector<std::int32_t> facesAt(const MeshData& mesh, std::int32_t vertex)
{
    return api::unique(mesh.topology().facesOfVertex(vertex));
}

/// The other end of an edge that ends at a vertex.
std::int32_t oppositeOf(const MeshData& mesh, std::int32_t edge, std::int32_t vertex)
{
    const auto& ends = mesh.edges[static_cast<std::size_t>(edge)];
    return ends.from == vertex ? ends.to : ends.from;
}

/// The numbers of the normals that the faces at a vertex have there.
std::vector<std::int32_t> normalsAt(const MeshData& mesh, std::int32_t vertex)
{
    std::vector<std::int32_t> numbers;
    for (const std::int32_t face : facesAt(mesh, vertex))
        numbers.push_back(api::normalAt(mesh, face, vertex));
    return numbers;
}

MVector placedVector(const engine::Vec3d& normal, const engine::Matrix& matrix)
{
    return api::toVector(api::placedNormal(normal, matrix));
}

} // namespace

MItMeshVertex::MItMeshVertex(MObject& polyObject, MStatus* ReturnStatus)
    : iteration(new MeshIteration(api::kVertexItems)), reserved()
{
    TVX_API_CONSTRUCTION("MItMeshVertex::MItMeshVertex", ReturnStatus);
    api::give(ReturnStatus, startOn(*iteration, polyObject));
}

MItMeshVertex::MItMeshVertex(const MDagPath& polyObject, MObject& component, MStatus* ReturnStatus)
    : iteration(new MeshIteration(api::kVertexItems)), reserved()
{
    TVX_API_CONSTRUCTION("MItMeshVertex::MItMeshVertex", ReturnStatus);
    api::give(ReturnStatus, iteration->start(api::MeshTarget(polyObject), component));
}

MItMeshVertex::~MItMeshVertex()
{
    delete iteration;
}

bool MItMeshVertex::isDone(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshVertex::isDone", ReturnStatus, true);
    api::giveSuccess(ReturnStatus);
    return iteration->isDone();
}

MStatus MItMeshVertex::next()
{
    TVX_API_CALL("MItMeshVertex::next");
    return iteration->next();
}

MStatus MItMeshVertex::reset()
{
    TVX_API_CALL("MItMeshVertex::reset");
    return iteration->restart();
}

MStatus MItMeshVertex::reset(MObject& polyObject)
{
    TVX_API_CALL("MItMeshVertex::reset");
    return startOn(*iteration, polyObject);
}

MStatus MItMeshVertex::reset(const MDagPath& polyObject, MObject& component)
{
    TVX_API_CALL("MItMeshVertex::reset");
    return iteration->start(api::MeshTarget(polyObject), component);
}

int MItMeshVertex::count(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshVertex::count", ReturnStatus, 0);
    api::give(ReturnStatus, iteration->target.status());
    return static_cast<int>(iteration->count());
}

int MItMeshVertex::index(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshVertex::index", ReturnStatus, -1);
    return api::presentItem(*iteration, ReturnStatus);
}

MObject MItMeshVertex::vertex(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshVertex::vertex", ReturnStatus, MObject());
    return api::presentComponent(*iteration, ReturnStatus);
}

MObject MItMeshVertex::currentItem(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshVertex::currentItem", ReturnStatus, MObject());
    return api::presentComponent(*iteration, ReturnStatus);
}

MPoint MItMeshVertex::position(MSpace::Space space, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshVertex::position", ReturnStatus, MPoint());
    MPoint result;
    api::give(ReturnStatus, api::withPlacedItem(*iteration, space,
                                                [&](const MeshData& mesh, std::int32_t vertex,
                                                    const engine::Matrix& matrix) -> MStatus {
                                                    result = api::placedPoint(mesh, vertex, matrix);
                                                    return MS::kSuccess;
                                                }));
    return result;
}

MStatus MItMeshVertex::setPosition(const MPoint& point, MSpace::Space space)
{
    TVX_API_CALL("MItMeshVertex::setPosition");
    return api::withItem(*iteration, [&](const MeshData&, std::int32_t vertex) {
        return iteration->move({{vertex, point}}, space);
    });
}

MStatus MItMeshVertex::translateBy(const MVector& vector, MSpace::Space space)
{
    TVX_API_CALL("MItMeshVertex::translateBy");
    return api::withPlacedItem(
        *iteration, space, [&](const MeshData& mesh, std::int32_t vertex, const engine::Matrix& matrix) {
            return iteration->move({{vertex, api::placedPoint(mesh, vertex, matrix) + vector}}, space);
        });
}

MStatus MItMeshVertex::getNormal(MVector& vector, MSpace::Space space)
{
    TVX_API_CALL("MItMeshVertex::getNormal");
    return api::withPlacedItem(
        *iteration, space,
        [&](const MeshData& mesh, std::int32_t vertex, const engine::Matrix& matrix) -> MStatus {
            vector = placedVector(engine::vertexNormal(mesh, vertex, false), matrix);
            return MS::kSuccess;
        });
}

MStatus MItMeshVertex::getNormal(MVector& vector, int faceIndex, MSpace::Space space)
{
    TVX_API_CALL("MItMeshVertex::getNormal");
    return api::withPlacedItem(
        *iteration, space,
        [&](const MeshData& mesh, std::int32_t vertex, const engine::Matrix& matrix) -> MStatus {
            if (!api::holds(mesh.topology().facesOfVertex(vertex), faceIndex))
                return failure(StatusText::noElementAtIndex);
            vector = placedVector(api::normalNumbered(mesh, api::normalAt(mesh, faceIndex, vertex)), matrix);
            return MS::kSuccess;
        });
}

MStatus MItMeshVertex::getNormals(MVectorArray& vectorArray, MSpace::Space space)
{
    TVX_API_CALL("MItMeshVertex::getNormals");
    return api::withPlacedItem(
        *iteration, space,
        [&](const MeshData& mesh, std::int32_t vertex, const engine::Matrix& matrix) -> MStatus {
            vectorArray.clear();
            for (const std::int32_t number : normalsAt(mesh, vertex))
                vectorArray.append(placedVector(api::normalNumbered(mesh, number), matrix));
            return MS::kSuccess;
        });
}

MStatus MItMeshVertex::getNormalIndices(MIntArray& normalIndices) const
{
    TVX_API_CALL("MItMeshVertex::getNormalIndices");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t vertex) -> MStatus {
        api::giveAll(normalIndices, normalsAt(mesh, vertex));
        return MS::kSuccess;
    });
}

MStatus MItMeshVertex::updateSurface()
{
    TVX_API_CALL("MItMeshVertex::updateSurface");
    return iteration->target.status();
}

MStatus MItMeshVertex::geomChanged()
{
    TVX_API_CALL("MItMeshVertex::geomChanged");
    return iteration->target.status();
}

MStatus MItMeshVertex::setIndex(int index, int& prevIndex)
{
    TVX_API_CALL("MItMeshVertex::setIndex");
    return iteration->jump(index, prevIndex);
}

MStatus MItMeshVertex::getConnectedFaces(MIntArray& faceList)
{
    TVX_API_CALL("MItMeshVertex::getConnectedFaces");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t vertex) -> MStatus {
        api::giveAll(faceList, facesAt(mesh, vertex));
        return MS::kSuccess;
    });
}

MStatus MItMeshVertex::getConnectedEdges(MIntArray& edgeList)
{
    TVX_API_CALL("MItMeshVertex::getConnectedEdges");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t vertex) -> MStatus {
        api::giveAll(edgeList, mesh.topology().edgesOfVertex(vertex));
        return MS::kSuccess;
    });
}

MStatus MItMeshVertex::getConnectedVertices(MIntArray& vertexList)
{
    TVX_API_CALL("MItMeshVertex::getConnectedVertices");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t vertex) -> MStatus {
        std::vector<std::int32_t> others;
        for (const std::int32_t edge : mesh.topology().edgesOfVertex(vertex))
            others.push_back(oppositeOf(mesh, edge, vertex));
        api::giveAll(vertexList, others);
        return MS::kSuccess;
    });
}

MStatus MItMeshVertex::numConnectedFaces(int& faceCount) const
{
    TVX_API_CALL("MItMeshVertex::numConnectedFaces");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t vertex) -> MStatus {
        faceCount = static_cast<int>(facesAt(mesh, vertex).size());
        return MS::kSuccess;
    });
}

MStatus MItMeshVertex::numConnectedEdges(int& edgeCount) const
{
    TVX_API_CALL("MItMeshVertex::numConnectedEdges");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t vertex) -> MStatus {
        edgeCount = static_cast<int>(mesh.topology().edgesOfVertex(vertex).size());
        return MS::kSuccess;
    });
}

bool MItMeshVertex::connectedToFace(int faceIndex, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshVertex::connectedToFace", ReturnStatus, false);
    return api::readItem(*iteration, ReturnStatus, false, [&](const MeshData& mesh, std::int32_t vertex) {
        return api::requireItem(mesh.hasFace(faceIndex), ReturnStatus) &&
               api::holds(mesh.topology().facesOfVertex(vertex), faceIndex);
    });
}

bool MItMeshVertex::connectedToEdge(int edgeIndex, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshVertex::connectedToEdge", ReturnStatus, false);
    return api::readItem(*iteration, ReturnStatus, false, [&](const MeshData& mesh, std::int32_t vertex) {
        return api::requireItem(mesh.hasEdge(edgeIndex), ReturnStatus) &&
               api::holds(mesh.topology().edgesOfVertex(vertex), edgeIndex);
    });
}

MStatus MItMeshVertex::getOppositeVertex(int& vertexId, int edgeId)
{
    TVX_API_CALL("MItMeshVertex::getOppositeVertex");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t vertex) -> MStatus {
        if (!api::holds(mesh.topology().edgesOfVertex(vertex), edgeId))
            return failure(StatusText::noElementAtIndex);
        vertexId = oppositeOf(mesh, edgeId, vertex);
        return MS::kSuccess;
    });
}

bool MItMeshVertex::onBoundary(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshVertex::onBoundary", ReturnStatus, false);
    return api::readItem(*iteration, ReturnStatus, false, [](const MeshData& mesh, std::int32_t vertex) {
        const IndexSpan edges = mesh.topology().edgesOfVertex(vertex);
        return std::any_of(edges.begin(), edges.end(),
                           [&](std::int32_t edge) { return mesh.topology().isBorder(edge); });
    });
}

const char* MItMeshVertex::className()
{
    return "MItMeshVertex";
}
