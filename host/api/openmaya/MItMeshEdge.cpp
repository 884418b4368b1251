// MItMeshEdge: goes through the edges of a mesh.
#include <maya/MItMeshEdge.h>

#include "engine/geometry/meshTopology.h"
#include "support/meshIteration.h"

using namespace tvxhost;
using api::failure;
using api::MeshIteration;
using api::StatusText;
using engine::MeshData;
using engine::MeshTopology;

namespace {

const MeshData::Edge& edgeAt(const MeshData& mesh, std::int32_t edge)
{
    return mesh.edges[static_cast<std::size_t>(edge)];
}

/// The vertex at one end, 0 or 1; kInvalidParameter for another.
MStatus endOf(const MeshData& mesh, std::int32_t edge, int end, std::int32_t& vertex)
{
    if (end != 0 && end != 1)
        return failure(StatusText::noElementAtIndex);
    vertex = end == 0 ? edgeAt(mesh, edge).from : edgeAt(mesh, edge).to;
    return MS::kSuccess;
}

bool touches(const MeshData& mesh, std::int32_t edge, std::int32_t vertex)
{
    return edgeAt(mesh, edge).from == vertex || edgeAt(mesh, edge).to == vertex;
}

/// Calls `use` with each neighbour once, those at the first vertex first.
template <class Use>
void forEachNeighbour(const MeshData& mesh, std::int32_t edge, const Use& use)
{
    const MeshTopology& topology = mesh.topology();
    const auto [from, to, smooth] = edgeAt(mesh, edge);
    for (const std::int32_t other : topology.edgesOfVertex(from))
        if (other != edge)
            use(other);
    if (to == from)
        return;
    for (const std::int32_t other : topology.edgesOfVertex(to))
        if (other != edge && !touches(mesh, other, from))
            use(other);
}

/// Calls `use` with each face once.
template <class Use>
void forEachFace(const MeshData& mesh, std::int32_t edge, const Use& use)
{
    std::int32_t last = -1;
    for (const std::int32_t face : mesh.topology().facesOfEdge(edge))
        if (std::exchange(last, face) != face)
            use(face);
}

MStatus startOn(MeshIteration& iteration, const MObject& object, const MObject& component)
{
    return iteration.start(api::MeshTarget(object), component);
}

} // namespace

MItMeshEdge::MItMeshEdge(MObject& polyObject, MStatus* ReturnStatus)
    : iteration(new MeshIteration(api::kEdgeItems)), reserved()
{
    TVX_API_CONSTRUCTION("MItMeshEdge::MItMeshEdge", ReturnStatus);
    api::give(ReturnStatus, startOn(*iteration, polyObject, MObject()));
}

MItMeshEdge::MItMeshEdge(MObject& polyObject, MObject& component, MStatus* ReturnStatus)
    : iteration(new MeshIteration(api::kEdgeItems)), reserved()
{
    TVX_API_CONSTRUCTION("MItMeshEdge::MItMeshEdge", ReturnStatus);
    api::give(ReturnStatus, startOn(*iteration, polyObject, component));
}

MItMeshEdge::MItMeshEdge(const MDagPath& polyObject, MObject& component, MStatus* ReturnStatus)
    : iteration(new MeshIteration(api::kEdgeItems)), reserved()
{
    TVX_API_CONSTRUCTION("MItMeshEdge::MItMeshEdge", ReturnStatus);
    api::give(ReturnStatus, iteration->start(api::MeshTarget(polyObject), component));
}

MItMeshEdge::~MItMeshEdge()
{
    delete iteration;
}

bool MItMeshEdge::isDone(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshEdge::isDone", ReturnStatus, true);
    api::giveSuccess(ReturnStatus);
    return iteration->isDone();
}

MStatus MItMeshEdge::next()
{
    TVX_API_CALL("MItMeshEdge::next");
    return iteration->next();
}

MStatus MItMeshEdge::reset()
{
    TVX_API_CALL("MItMeshEdge::reset");
    return iteration->restart();
}

MStatus MItMeshEdge::reset(MObject& polyObject, MObject& component)
{
    TVX_API_CALL("MItMeshEdge::reset");
    return startOn(*iteration, polyObject, component);
}

MStatus MItMeshEdge::reset(const MDagPath& polyObject, MObject& component)
{
    TVX_API_CALL("MItMeshEdge::reset");
    return iteration->start(api::MeshTarget(polyObject), component);
}

int MItMeshEdge::count(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshEdge::count", ReturnStatus, 0);
    api::give(ReturnStatus, iteration->target.status());
    return static_cast<int>(iteration->count());
}

MPoint MItMeshEdge::center(MSpace::Space space, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshEdge::center", ReturnStatus, MPoint());
    MPoint result;
    api::give(ReturnStatus, api::withPlacedItem(*iteration, space,
                                                [&](const MeshData& mesh, std::int32_t edge,
                                                    const engine::Matrix& matrix) -> MStatus {
                                                    const auto& ends = edgeAt(mesh, edge);
                                                    const MPoint from =
                                                        api::placedPoint(mesh, ends.from, matrix);
                                                    const MPoint to = api::placedPoint(mesh, ends.to, matrix);
                                                    result = from + (to - from) * 0.5;
                                                    return MS::kSuccess;
                                                }));
    return result;
}

MPoint MItMeshEdge::point(int index, MSpace::Space space, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshEdge::point", ReturnStatus, MPoint());
    MPoint result;
    api::give(ReturnStatus,
              api::withPlacedItem(*iteration, space,
                                  [&](const MeshData& mesh, std::int32_t edge, const engine::Matrix& matrix) {
                                      std::int32_t vertex = 0;
                                      const MStatus status = endOf(mesh, edge, index, vertex);
                                      if (status)
                                          result = api::placedPoint(mesh, vertex, matrix);
                                      return status;
                                  }));
    return result;
}

MStatus MItMeshEdge::setPoint(const MPoint& point, unsigned int index, MSpace::Space space)
{
    TVX_API_CALL("MItMeshEdge::setPoint");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t edge) {
        std::int32_t vertex = 0;
        const MStatus status = endOf(mesh, edge, static_cast<int>(index), vertex);
        return status ? iteration->move({{vertex, point}}, space) : status;
    });
}

bool MItMeshEdge::isSmooth(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshEdge::isSmooth", ReturnStatus, false);
    return api::readItem(*iteration, ReturnStatus, false, [](const MeshData& mesh, std::int32_t edge) {
        return edgeAt(mesh, edge).smooth != 0;
    });
}

MStatus MItMeshEdge::setSmoothing(bool smooth)
{
    TVX_API_CALL("MItMeshEdge::setSmoothing");
    return api::withItem(*iteration, [&](const MeshData&, std::int32_t edge) {
        const MStatus status = iteration->target.smooth(edge, smooth);
        iteration->refresh();
        return status;
    });
}

MStatus MItMeshEdge::cleanupSmoothing()
{
    TVX_API_CALL("MItMeshEdge::cleanupSmoothing");
    return iteration->target.status();
}

int MItMeshEdge::index(int index, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshEdge::index", ReturnStatus, -1);
    std::int32_t vertex = -1;
    api::give(ReturnStatus, api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t edge) {
                  return endOf(mesh, edge, index, vertex);
              }));
    return vertex;
}

int MItMeshEdge::index(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshEdge::index", ReturnStatus, -1);
    return api::presentItem(*iteration, ReturnStatus);
}

MObject MItMeshEdge::edge(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshEdge::edge", ReturnStatus, MObject());
    return api::presentComponent(*iteration, ReturnStatus);
}

MObject MItMeshEdge::currentItem(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshEdge::currentItem", ReturnStatus, MObject());
    return api::presentComponent(*iteration, ReturnStatus);
}

MStatus MItMeshEdge::updateSurface()
{
    TVX_API_CALL("MItMeshEdge::updateSurface");
    return iteration->target.status();
}

MStatus MItMeshEdge::geomChanged()
{
    TVX_API_CALL("MItMeshEdge::geomChanged");
    return iteration->target.status();
}

MStatus MItMeshEdge::setIndex(int index, int& prevIndex)
{
    TVX_API_CALL("MItMeshEdge::setIndex");
    return iteration->jump(index, prevIndex);
}

int MItMeshEdge::getConnectedFaces(MIntArray& faceList, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshEdge::getConnectedFaces", ReturnStatus, 0);
    return api::readItem(*iteration, ReturnStatus, 0, [&](const MeshData& mesh, std::int32_t edge) {
        auto& faces = tvxAccess::elements(faceList);
        faces.clear();
        forEachFace(mesh, edge, [&](std::int32_t face) { faces.push_back(face); });
        return static_cast<int>(faces.size());
    });
}

int MItMeshEdge::getConnectedEdges(MIntArray& edgeList, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshEdge::getConnectedEdges", ReturnStatus, 0);
    return api::readItem(*iteration, ReturnStatus, 0, [&](const MeshData& mesh, std::int32_t edge) {
        auto& edges = tvxAccess::elements(edgeList);
        edges.clear();
        forEachNeighbour(mesh, edge, [&](std::int32_t other) { edges.push_back(other); });
        return static_cast<int>(edges.size());
    });
}

MStatus MItMeshEdge::numConnectedFaces(int& faceCount) const
{
    TVX_API_CALL("MItMeshEdge::numConnectedFaces");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t edge) -> MStatus {
        faceCount = 0;
        forEachFace(mesh, edge, [&](std::int32_t) { ++faceCount; });
        return MS::kSuccess;
    });
}

MStatus MItMeshEdge::numConnectedEdges(int& edgeCount) const
{
    TVX_API_CALL("MItMeshEdge::numConnectedEdges");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t edge) -> MStatus {
        edgeCount = 0;
        forEachNeighbour(mesh, edge, [&](std::int32_t) { ++edgeCount; });
        return MS::kSuccess;
    });
}

bool MItMeshEdge::connectedToFace(int index, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshEdge::connectedToFace", ReturnStatus, false);
    return api::readItem(*iteration, ReturnStatus, false, [&](const MeshData& mesh, std::int32_t edge) {
        return api::requireItem(mesh.hasFace(index), ReturnStatus) &&
               api::holds(mesh.topology().facesOfEdge(edge), index);
    });
}

bool MItMeshEdge::connectedToEdge(int index, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshEdge::connectedToEdge", ReturnStatus, false);
    return api::readItem(*iteration, ReturnStatus, false, [&](const MeshData& mesh, std::int32_t edge) {
        const auto& ends = edgeAt(mesh, edge);
        return api::requireItem(mesh.hasEdge(index), ReturnStatus) && index != edge &&
               (touches(mesh, index, ends.from) || touches(mesh, index, ends.to));
    });
}

bool MItMeshEdge::onBoundary(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshEdge::onBoundary", ReturnStatus, false);
    return api::readItem(*iteration, ReturnStatus, false, [](const MeshData& mesh, std::int32_t edge) {
        return mesh.topology().isBorder(edge);
    });
}

MStatus MItMeshEdge::getLength(double& length, MSpace::Space space)
{
    TVX_API_CALL("MItMeshEdge::getLength");
    return api::withPlacedItem(
        *iteration, space,
        [&](const MeshData& mesh, std::int32_t edge, const engine::Matrix& matrix) -> MStatus {
            const auto& ends = edgeAt(mesh, edge);
            length =
                api::placedPoint(mesh, ends.from, matrix).distanceTo(api::placedPoint(mesh, ends.to, matrix));
            return MS::kSuccess;
        });
}

const char* MItMeshEdge::className()
{
    return "MItMeshEdge";
}
