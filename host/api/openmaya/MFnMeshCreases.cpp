// MFnMesh: creases of edges and vertices, and faces that are not seen.
#include <maya/MFnMesh.h>

#include "engine/polyComponents.h"
#include "support/fnMesh.h"
#include "support/handles.h"

#include <maya/MDoubleArray.h>
#include <maya/MUintArray.h>

using namespace tvxhost;
using engine::MeshData;
using engine::PolyComponentKind;
using engine::PolyComponents;

namespace {

/// How many components of a kind a mesh has.
using Count = std::size_t (*)(const MeshData& mesh);

std::size_t edgeCount(const MeshData& mesh)
{
    return mesh.edges.size();
}
std::size_t vertexCount(const MeshData& mesh)
{
    return mesh.points.size();
}
std::size_t faceCount(const MeshData& mesh)
{
    return mesh.faces.size();
}

/// Runs `use(mesh, shape)`, which returns a status; kInvalidParameter for a mesh that is no shape.
template <class Use>
MStatus withShape(const MFnMesh& set, const Use& use)
{
    return api::withMesh(set, [&](const MeshData& mesh) {
        engine::DagNode* shape = api::dagNodeOf(set);
        return shape ? use(mesh, *shape) : api::failure(api::StatusText::objectIsIncompatible);
    });
}

MStatus getCreases(const MFnMesh& set, const PolyComponentKind& kind, MUintArray& ids, MDoubleArray& creases)
{
    return withShape(set, [&](const MeshData&, engine::DagNode& shape) -> MStatus {
        ids.clear();
        creases.clear();
        for (const auto& [id, crease] : engine::polyComponentsOf(shape, kind)) {
            ids.append(static_cast<unsigned int>(id));
            creases.append(crease);
        }
        return MS::kSuccess;
    });
}

/// Changes what is said of some components: `change(components, id, place among the ids)` for each of them.
/// kInvalidParameter, and nothing changed, unless all of them exist.
template <class Change>
MStatus changeEach(const MFnMesh& set, const PolyComponentKind& kind, Count count, const MUintArray& ids,
                   const Change& change)
{
    return withShape(set, [&](const MeshData& mesh, engine::DagNode& shape) {
        PolyComponents components = engine::polyComponentsOf(shape, kind);
        for (unsigned int i = 0; i < ids.length(); ++i) {
            if (const MStatus status = api::requireThere(ids[i] < count(mesh)); !status)
                return status;
            change(components, static_cast<std::int32_t>(ids[i]), i);
        }
        return api::toStatus(engine::writePolyComponents(shape, kind, components));
    });
}

MStatus setCreases(const MFnMesh& set, const PolyComponentKind& kind, Count count, const MUintArray& ids,
                   const MDoubleArray& creases)
{
    if (ids.length() != creases.length())
        return api::requireThere(false);
    return changeEach(set, kind, count, ids,
                      [&](PolyComponents& components, std::int32_t id, unsigned int place) {
                          components[id] = creases[place];
                      });
}

} // namespace

MStatus MFnMesh::getCreaseEdges(MUintArray& edgeIds, MDoubleArray& creaseData) const
{
    TVX_API_CALL("MFnMesh::getCreaseEdges");
    return getCreases(*this, engine::kCreasedEdges, edgeIds, creaseData);
}

MStatus MFnMesh::setCreaseEdges(const MUintArray& edgeIds, const MDoubleArray& creaseData)
{
    TVX_API_CALL("MFnMesh::setCreaseEdges");
    return setCreases(*this, engine::kCreasedEdges, edgeCount, edgeIds, creaseData);
}

MStatus MFnMesh::getCreaseVertices(MUintArray& vertexIds, MDoubleArray& creaseData) const
{
    TVX_API_CALL("MFnMesh::getCreaseVertices");
    return getCreases(*this, engine::kCreasedVertices, vertexIds, creaseData);
}

MStatus MFnMesh::setCreaseVertices(const MUintArray& vertexIds, const MDoubleArray& creaseData)
{
    TVX_API_CALL("MFnMesh::setCreaseVertices");
    return setCreases(*this, engine::kCreasedVertices, vertexCount, vertexIds, creaseData);
}

MUintArray MFnMesh::getInvisibleFaces(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::getInvisibleFaces", ReturnStatus, MUintArray());
    MUintArray ids;
    api::give(ReturnStatus, withShape(*this, [&](const MeshData&, engine::DagNode& shape) -> MStatus {
                  for (const auto& face : engine::polyComponentsOf(shape, engine::kUnseenFaces))
                      ids.append(static_cast<unsigned int>(face.first));
                  return MS::kSuccess;
              }));
    return ids;
}

MStatus MFnMesh::setInvisibleFaces(const MUintArray& faceIds, bool makeVisible)
{
    TVX_API_CALL("MFnMesh::setInvisibleFaces");
    return changeEach(*this, engine::kUnseenFaces, faceCount, faceIds,
                      [&](PolyComponents& components, std::int32_t id, unsigned int) {
                          if (makeVisible)
                              components.erase(id);
                          else
                              components[id] = 0;
                      });
}
