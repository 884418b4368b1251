// MFnMesh: normals of faces, of vertices and at corners. Setting them is in MFnMeshLockedNormals.cpp.
#include <maya/MFnMesh.h>

#include "engine/geometry/meshMeasures.h"
#include "support/fnMesh.h"
#include "support/meshIteration.h"
#include "support/meshNeighbours.h"

#include <maya/MFloatVectorArray.h>
#include <maya/MIntArray.h>
#include <maya/MVector.h>

using namespace tvxhost;
using api::readMesh;
using api::requireThere;
using api::withFace;
using api::withMesh;
using api::withPlacedMesh;
using engine::MeshData;

namespace {

MFloatVector floatVector(const engine::Vec3d& normal, const engine::Matrix& matrix)
{
    const engine::Vec3d placed = api::placedNormal(normal, matrix);
    return MFloatVector(static_cast<float>(placed.x), static_cast<float>(placed.y),
                        static_cast<float>(placed.z));
}

/// Puts a vector for each of a row of normals into an array.
template <class Normals>
void giveNormals(MFloatVectorArray& array, const Normals& normals, const engine::Matrix& matrix)
{
    array.clear();
    for (const auto& normal : normals)
        array.append(floatVector(engine::Vec3d(normal), matrix));
}

MStatus readVertexNormal(const MFnMesh& set, int vertexId, bool angleWeighted, MVector& normal,
                         MSpace::Space space)
{
    return withPlacedMesh(set, space, [&](const MeshData& mesh, const engine::Matrix& matrix) {
        const MStatus status = requireThere(mesh.hasVertex(vertexId));
        if (status)
            normal =
                api::toVector(api::placedNormal(engine::vertexNormal(mesh, vertexId, angleWeighted), matrix));
        return status;
    });
}

} // namespace

int MFnMesh::numNormals(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numNormals", ReturnStatus, 0);
    return readMesh(*this, ReturnStatus, [](const MeshData& mesh) { return mesh.normals().normals.size(); });
}

MStatus MFnMesh::getNormals(MFloatVectorArray& normals, MSpace::Space space) const
{
    TVX_API_CALL("MFnMesh::getNormals");
    return withPlacedMesh(*this, space, [&](const MeshData& mesh, const engine::Matrix& matrix) -> MStatus {
        giveNormals(normals, mesh.normals().normals, matrix);
        return MS::kSuccess;
    });
}

const float* MFnMesh::getRawNormals(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::getRawNormals", ReturnStatus, nullptr);
    const float* numbers = nullptr;
    api::give(ReturnStatus, withMesh(*this, [&](const MeshData& mesh) -> MStatus {
                  const std::vector<engine::Vec3f>& normals = mesh.normals().normals;
                  numbers = normals.empty() ? nullptr : &normals.front().x;
                  return MS::kSuccess;
              }));
    return numbers;
}

MStatus MFnMesh::getFaceVertexNormal(int faceIndex, int vertexIndex, MVector& normal,
                                     MSpace::Space space) const
{
    TVX_API_CALL("MFnMesh::getFaceVertexNormal");
    return withPlacedMesh(*this, space, [&](const MeshData& mesh, const engine::Matrix& matrix) {
        const std::int32_t number =
            mesh.hasFace(faceIndex) ? api::normalAt(mesh, faceIndex, vertexIndex) : -1;
        const MStatus status = requireThere(number >= 0);
        if (status)
            normal = api::toVector(api::placedNormal(api::normalNumbered(mesh, number), matrix));
        return status;
    });
}

MStatus MFnMesh::getFaceVertexNormals(int faceIndex, MFloatVectorArray& normals, MSpace::Space space) const
{
    TVX_API_CALL("MFnMesh::getFaceVertexNormals");
    return withPlacedMesh(*this, space, [&](const MeshData& mesh, const engine::Matrix& matrix) {
        const MStatus status = requireThere(mesh.hasFace(faceIndex));
        if (!status)
            return status;
        std::vector<engine::Vec3d> all;
        for (const std::int32_t number : api::normalsOfFace(mesh, faceIndex))
            all.push_back(api::normalNumbered(mesh, number));
        giveNormals(normals, all, matrix);
        return status;
    });
}

MStatus MFnMesh::getNormalIds(MIntArray& normalIdCounts, MIntArray& normalIds) const
{
    TVX_API_CALL("MFnMesh::getNormalIds");
    return withMesh(*this, [&](const MeshData& mesh) -> MStatus {
        auto& counts = tvxAccess::elements(normalIdCounts);
        counts.clear();
        for (std::size_t face = 0; face < mesh.faces.size(); ++face)
            counts.push_back(static_cast<int>(mesh.faces.corners(face).size()));
        api::giveAll(normalIds, mesh.normals().used);
        return MS::kSuccess;
    });
}

MStatus MFnMesh::getFaceNormalIds(int faceIndex, MIntArray& normals) const
{
    TVX_API_CALL("MFnMesh::getFaceNormalIds");
    return withFace(*this, faceIndex, [&](const MeshData& mesh, std::size_t) -> MStatus {
        api::giveAll(normals, api::normalsOfFace(mesh, faceIndex));
        return MS::kSuccess;
    });
}

MStatus MFnMesh::getVertexNormal(int vertexId, MVector& normal, MSpace::Space space) const
{
    TVX_API_CALL("MFnMesh::getVertexNormal");
    return readVertexNormal(*this, vertexId, false, normal, space);
}

MStatus MFnMesh::getVertexNormal(int vertexId, bool angleWeighted, MVector& normal, MSpace::Space space) const
{
    TVX_API_CALL("MFnMesh::getVertexNormal");
    return readVertexNormal(*this, vertexId, angleWeighted, normal, space);
}

MStatus MFnMesh::getVertexNormals(bool angleWeighted, MFloatVectorArray& normals, MSpace::Space space) const
{
    TVX_API_CALL("MFnMesh::getVertexNormals");
    return withPlacedMesh(*this, space, [&](const MeshData& mesh, const engine::Matrix& matrix) -> MStatus {
        giveNormals(normals, engine::vertexNormals(mesh, angleWeighted), matrix);
        return MS::kSuccess;
    });
}

MStatus MFnMesh::getPolygonNormal(int polygonId, MVector& normal, MSpace::Space space) const
{
    TVX_API_CALL("MFnMesh::getPolygonNormal");
    return withPlacedMesh(*this, space, [&](const MeshData& mesh, const engine::Matrix& matrix) {
        const MStatus status = requireThere(mesh.hasFace(polygonId));
        if (status)
            normal = api::toVector(
                api::placedNormal(engine::faceNormal(mesh, static_cast<std::size_t>(polygonId)), matrix));
        return status;
    });
}
