// MItMeshPolygon: goes through the faces of a mesh. Texture coordinates and colours are in
// MItMeshPolygonUvs.cpp and MItMeshPolygonColors.cpp.
#include <maya/MItMeshPolygon.h>

#include "engine/geometry/meshMeasures.h"
#include "support/meshIteration.h"
#include "support/meshNeighbours.h"

#include <maya/MPointArray.h>
#include <maya/MVectorArray.h>

#include <algorithm>

using namespace tvxhost;
using api::failure;
using api::MeshIteration;
using api::StatusText;
using engine::MeshData;

namespace {

/// Below this, in square centimetres, a face counts as one without area.
constexpr double kNoArea = 1e-10;

MStatus startOn(MeshIteration& iteration, const MObject& object)
{
    return iteration.start(api::MeshTarget(object), MObject());
}

std::vector<std::int32_t> verticesOf(const MeshData& mesh, std::int32_t face)
{
    return engine::cornerVertices(mesh, static_cast<std::size_t>(face));
}

/// The vertex at a corner; kInvalidParameter when there is no such corner.
MStatus vertexAt(const MeshData& mesh, std::int32_t face, std::int64_t corner, std::int32_t& vertex)
{
    const engine::IndexSpan corners = mesh.faces.corners(static_cast<std::size_t>(face));
    if (corner < 0 || corner >= static_cast<std::int64_t>(corners.size()))
        return failure(StatusText::noElementAtIndex);
    vertex = mesh.startOf(corners[static_cast<std::size_t>(corner)]);
    return MS::kSuccess;
}

template <class Read>
MStatus getList(const MeshIteration& iteration, MIntArray& list, const Read& read)
{
    return api::withItem(iteration, [&](const MeshData& mesh, std::int32_t face) -> MStatus {
        api::giveAll(list, read(mesh, face));
        return MS::kSuccess;
    });
}

template <class Read>
MStatus getCount(const MeshIteration& iteration, int& count, const Read& read)
{
    return api::withItem(iteration, [&](const MeshData& mesh, std::int32_t face) -> MStatus {
        count = static_cast<int>(read(mesh, face).size());
        return MS::kSuccess;
    });
}

/// Whether a list of neighbours holds a number; kInvalidParameter for one that the mesh has not.
bool isBeside(const MeshIteration& iteration, MStatus* status, int number,
              bool (MeshData::*exists)(std::int64_t) const,
              std::vector<std::int32_t> (*beside)(const MeshData&, std::int32_t))
{
    return api::readItem(iteration, status, false, [&](const MeshData& mesh, std::int32_t face) {
        if (!api::requireItem((mesh.*exists)(number), status))
            return false;
        const std::vector<std::int32_t> all = beside(mesh, face);
        return std::binary_search(all.begin(), all.end(), number);
    });
}

/// What a face is, by its number.
bool isFace(const MeshIteration& iteration, MStatus* status, bool (*ask)(const MeshData&, std::size_t))
{
    return api::readItem(iteration, status, false, [&](const MeshData& mesh, std::int32_t face) {
        return ask(mesh, static_cast<std::size_t>(face));
    });
}

MVector placedVector(const engine::Vec3d& normal, const engine::Matrix& matrix)
{
    return api::toVector(api::placedNormal(normal, matrix));
}

std::vector<std::int32_t> edgesOf(const MeshData& mesh, std::int32_t face)
{
    std::vector<std::int32_t> edges;
    for (const std::int32_t corner : mesh.faces.corners(static_cast<std::size_t>(face)))
        edges.push_back(engine::edgeOf(corner));
    return edges;
}

} // namespace

MItMeshPolygon::MItMeshPolygon(const MObject& polyObject, MStatus* ReturnStatus)
    : iteration(new MeshIteration(api::kFaceItems)), reserved()
{
    TVX_API_CONSTRUCTION("MItMeshPolygon::MItMeshPolygon", ReturnStatus);
    api::give(ReturnStatus, startOn(*iteration, polyObject));
}

MItMeshPolygon::MItMeshPolygon(const MDagPath& polyObject, MObject& component, MStatus* ReturnStatus)
    : iteration(new MeshIteration(api::kFaceItems)), reserved()
{
    TVX_API_CONSTRUCTION("MItMeshPolygon::MItMeshPolygon", ReturnStatus);
    api::give(ReturnStatus, iteration->start(api::MeshTarget(polyObject), component));
}

MItMeshPolygon::~MItMeshPolygon()
{
    delete iteration;
}

bool MItMeshPolygon::isDone(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::isDone", ReturnStatus, true);
    api::giveSuccess(ReturnStatus);
    return iteration->isDone();
}

MStatus MItMeshPolygon::next()
{
    TVX_API_CALL("MItMeshPolygon::next");
    return iteration->next();
}

MStatus MItMeshPolygon::reset()
{
    TVX_API_CALL("MItMeshPolygon::reset");
    return iteration->restart();
}

MStatus MItMeshPolygon::reset(const MObject& polyObject)
{
    TVX_API_CALL("MItMeshPolygon::reset");
    return startOn(*iteration, polyObject);
}

MStatus MItMeshPolygon::reset(const MDagPath& polyObject, MObject& component)
{
    TVX_API_CALL("MItMeshPolygon::reset");
    return iteration->start(api::MeshTarget(polyObject), component);
}

unsigned int MItMeshPolygon::count(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::count", ReturnStatus, 0);
    api::give(ReturnStatus, iteration->target.status());
    return static_cast<unsigned int>(iteration->count());
}

unsigned int MItMeshPolygon::polygonVertexCount(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::polygonVertexCount", ReturnStatus, 0);
    return api::readItem(*iteration, ReturnStatus, 0U, [](const MeshData& mesh, std::int32_t face) {
        return static_cast<unsigned int>(mesh.faces.corners(static_cast<std::size_t>(face)).size());
    });
}

MPoint MItMeshPolygon::center(MSpace::Space space, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::center", ReturnStatus, MPoint());
    MPoint result;
    api::give(ReturnStatus,
              api::withPlacedItem(
                  *iteration, space,
                  [&](const MeshData& mesh, std::int32_t face, const engine::Matrix& matrix) -> MStatus {
                      result = api::toPoint(engine::centerOf(mesh, static_cast<std::size_t>(face), matrix));
                      return MS::kSuccess;
                  }));
    return result;
}

MObject MItMeshPolygon::polygon(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::polygon", ReturnStatus, MObject());
    return api::presentComponent(*iteration, ReturnStatus);
}

MObject MItMeshPolygon::currentItem(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::currentItem", ReturnStatus, MObject());
    return api::presentComponent(*iteration, ReturnStatus);
}

unsigned int MItMeshPolygon::index(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::index", ReturnStatus, 0);
    return static_cast<unsigned int>(std::max(0, api::presentItem(*iteration, ReturnStatus)));
}

MStatus MItMeshPolygon::setIndex(int index, int& prevIndex)
{
    TVX_API_CALL("MItMeshPolygon::setIndex");
    return iteration->jump(index, prevIndex);
}

unsigned int MItMeshPolygon::vertexIndex(int index, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::vertexIndex", ReturnStatus, 0);
    std::int32_t vertex = 0;
    api::give(ReturnStatus, api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t face) {
                  return vertexAt(mesh, face, index, vertex);
              }));
    return static_cast<unsigned int>(vertex);
}

MStatus MItMeshPolygon::getVertices(MIntArray& vertices)
{
    TVX_API_CALL("MItMeshPolygon::getVertices");
    return getList(*iteration, vertices, verticesOf);
}

MPoint MItMeshPolygon::point(int index, MSpace::Space space, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::point", ReturnStatus, MPoint());
    MPoint result;
    api::give(ReturnStatus,
              api::withPlacedItem(*iteration, space,
                                  [&](const MeshData& mesh, std::int32_t face, const engine::Matrix& matrix) {
                                      std::int32_t vertex = 0;
                                      const MStatus status = vertexAt(mesh, face, index, vertex);
                                      if (status)
                                          result = api::placedPoint(mesh, vertex, matrix);
                                      return status;
                                  }));
    return result;
}

void MItMeshPolygon::getPoints(MPointArray& pointArray, MSpace::Space space, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::getPoints", ReturnStatus, static_cast<void>(0));
    api::give(ReturnStatus,
              api::withPlacedItem(
                  *iteration, space,
                  [&](const MeshData& mesh, std::int32_t face, const engine::Matrix& matrix) -> MStatus {
                      pointArray.clear();
                      for (const std::int32_t vertex : verticesOf(mesh, face))
                          pointArray.append(api::placedPoint(mesh, vertex, matrix));
                      return MS::kSuccess;
                  }));
}

MStatus MItMeshPolygon::setPoint(const MPoint& point, unsigned int index, MSpace::Space space)
{
    TVX_API_CALL("MItMeshPolygon::setPoint");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t face) {
        std::int32_t vertex = 0;
        const MStatus status = vertexAt(mesh, face, index, vertex);
        return status ? iteration->move({{vertex, point}}, space) : status;
    });
}

MStatus MItMeshPolygon::setPoints(MPointArray& pointArray, MSpace::Space space)
{
    TVX_API_CALL("MItMeshPolygon::setPoints");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t face) -> MStatus {
        const std::vector<std::int32_t> vertices = verticesOf(mesh, face);
        if (pointArray.length() != vertices.size())
            return failure(StatusText::noElementAtIndex);
        std::vector<std::pair<std::int32_t, MPoint>> moved;
        for (unsigned int i = 0; i < pointArray.length(); ++i)
            moved.emplace_back(vertices[i], pointArray[i]);
        return iteration->move(moved, space);
    });
}

unsigned int MItMeshPolygon::normalIndex(int vertex, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshPolygon::normalIndex", ReturnStatus, 0);
    unsigned int number = 0;
    api::give(ReturnStatus, api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t face) {
                  std::int32_t ignored = 0;
                  const MStatus status = vertexAt(mesh, face, vertex, ignored);
                  if (status)
                      number = static_cast<unsigned int>(
                          api::normalsOfFace(mesh, face)[static_cast<std::size_t>(vertex)]);
                  return status;
              }));
    return number;
}

MStatus MItMeshPolygon::getNormal(MVector& normal, MSpace::Space space) const
{
    TVX_API_CALL("MItMeshPolygon::getNormal");
    return api::withPlacedItem(
        *iteration, space,
        [&](const MeshData& mesh, std::int32_t face, const engine::Matrix& matrix) -> MStatus {
            normal = placedVector(engine::faceNormal(mesh, static_cast<std::size_t>(face)), matrix);
            return MS::kSuccess;
        });
}

MStatus MItMeshPolygon::getNormal(unsigned int Vertexindex, MVector& normal, MSpace::Space space) const
{
    TVX_API_CALL("MItMeshPolygon::getNormal");
    return api::withPlacedItem(*iteration, space,
                               [&](const MeshData& mesh, std::int32_t face, const engine::Matrix& matrix) {
                                   std::int32_t ignored = 0;
                                   const MStatus status = vertexAt(mesh, face, Vertexindex, ignored);
                                   if (!status)
                                       return status;
                                   const std::int32_t number = api::normalsOfFace(mesh, face)[Vertexindex];
                                   normal = placedVector(api::normalNumbered(mesh, number), matrix);
                                   return status;
                               });
}

MStatus MItMeshPolygon::getNormals(MVectorArray& vectorArray, MSpace::Space space) const
{
    TVX_API_CALL("MItMeshPolygon::getNormals");
    return api::withPlacedItem(
        *iteration, space,
        [&](const MeshData& mesh, std::int32_t face, const engine::Matrix& matrix) -> MStatus {
            vectorArray.clear();
            for (const std::int32_t number : api::normalsOfFace(mesh, face))
                vectorArray.append(placedVector(api::normalNumbered(mesh, number), matrix));
            return MS::kSuccess;
        });
}

MStatus MItMeshPolygon::updateSurface()
{
    TVX_API_CALL("MItMeshPolygon::updateSurface");
    return iteration->target.status();
}

MStatus MItMeshPolygon::geomChanged()
{
    TVX_API_CALL("MItMeshPolygon::geomChanged");
    return iteration->target.status();
}

MStatus MItMeshPolygon::getEdges(MIntArray& edges)
{
    TVX_API_CALL("MItMeshPolygon::getEdges");
    return getList(*iteration, edges, edgesOf);
}

MStatus MItMeshPolygon::getConnectedFaces(MIntArray& faces)
{
    TVX_API_CALL("MItMeshPolygon::getConnectedFaces");
    return getList(*iteration, faces, api::facesBeside);
}

MStatus MItMeshPolygon::getConnectedEdges(MIntArray& edges)
{
    TVX_API_CALL("MItMeshPolygon::getConnectedEdges");
    return getList(*iteration, edges, api::edgesBeside);
}

MStatus MItMeshPolygon::getConnectedVertices(MIntArray& vertices)
{
    TVX_API_CALL("MItMeshPolygon::getConnectedVertices");
    return getList(*iteration, vertices, api::verticesBeside);
}

bool MItMeshPolygon::isConnectedToFace(int index, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::isConnectedToFace", ReturnStatus, false);
    return isBeside(*iteration, ReturnStatus, index, &MeshData::hasFace, api::facesBeside);
}

bool MItMeshPolygon::isConnectedToEdge(int index, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::isConnectedToEdge", ReturnStatus, false);
    return isBeside(*iteration, ReturnStatus, index, &MeshData::hasEdge, api::edgesBeside);
}

bool MItMeshPolygon::isConnectedToVertex(int index, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::isConnectedToVertex", ReturnStatus, false);
    return isBeside(*iteration, ReturnStatus, index, &MeshData::hasVertex, api::verticesBeside);
}

MStatus MItMeshPolygon::numConnectedFaces(int& faceCount) const
{
    TVX_API_CALL("MItMeshPolygon::numConnectedFaces");
    return getCount(*iteration, faceCount, api::facesBeside);
}

MStatus MItMeshPolygon::numConnectedEdges(int& edgeCount) const
{
    TVX_API_CALL("MItMeshPolygon::numConnectedEdges");
    return getCount(*iteration, edgeCount, api::edgesBeside);
}

bool MItMeshPolygon::onBoundary(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::onBoundary", ReturnStatus, false);
    return api::readItem(*iteration, ReturnStatus, false, api::isOnBorder);
}

MStatus MItMeshPolygon::getArea(double& area, MSpace::Space space)
{
    TVX_API_CALL("MItMeshPolygon::getArea");
    return api::withPlacedItem(
        *iteration, space,
        [&](const MeshData& mesh, std::int32_t face, const engine::Matrix& matrix) -> MStatus {
            area = engine::areaVector(mesh, static_cast<std::size_t>(face), matrix).length();
            return MS::kSuccess;
        });
}

bool MItMeshPolygon::zeroArea(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::zeroArea", ReturnStatus, false);
    return isFace(*iteration, ReturnStatus, [](const MeshData& mesh, std::size_t face) {
        return engine::areaVector(mesh, face).length() < kNoArea;
    });
}

bool MItMeshPolygon::isConvex(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::isConvex", ReturnStatus, false);
    return isFace(*iteration, ReturnStatus, engine::isConvex);
}

bool MItMeshPolygon::isStarlike(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::isStarlike", ReturnStatus, false);
    return isFace(*iteration, ReturnStatus, engine::isStarlike);
}

bool MItMeshPolygon::isLamina(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::isLamina", ReturnStatus, false);
    return isFace(*iteration, ReturnStatus, engine::isLamina);
}

bool MItMeshPolygon::isHoled(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::isHoled", ReturnStatus, false);
    return isFace(*iteration, ReturnStatus,
                  [](const MeshData& mesh, std::size_t face) { return mesh.faces.loopCount(face) > 1; });
}

bool MItMeshPolygon::isPlanar(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::isPlanar", ReturnStatus, false);
    return isFace(*iteration, ReturnStatus, engine::isPlanar);
}

const char* MItMeshPolygon::className()
{
    return "MItMeshPolygon";
}
