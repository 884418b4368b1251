// MFnMesh: normals that are set, and so locked, instead of computed.
#include <maya/MFnMesh.h>

#include "engine/geometry/meshNormals.h"
#include "support/fnMesh.h"
#include "support/meshCorners.h"
#include "support/modifier.h"

#include <maya/MFloatVectorArray.h>
#include <maya/MIntArray.h>
#include <maya/MVector.h>
#include <maya/MVectorArray.h>

using namespace tvxhost;
using engine::MeshData;
using engine::Vec3d;
using engine::Vec3f;

namespace {

/// The normal that a corner gets, by its place among all corners; kNoNormal: a computed one.
struct NormalAt
{
    std::size_t corner;
    Vec3f normal;
};
using NormalsAt = std::vector<NormalAt>;
using Corners = std::vector<std::size_t>;

const Vec3f kUnlocked(engine::kNoNormal);

/// The corners of all faces at a vertex; none for a vertex that does not exist.
Corners cornersAt(const MeshData& mesh, int vertex)
{
    Corners corners;
    if (mesh.hasVertex(vertex))
        for (const api::FaceCorner& corner : api::cornersOfVertex(mesh, vertex))
            corners.push_back(corner.corner);
    return corners;
}

/// The corner of a face at a vertex; none where it has none.
Corners cornersAt(const MeshData& mesh, int face, int vertex)
{
    const std::optional<std::size_t> corner = api::cornerAtVertex(mesh, face, vertex);
    return corner ? Corners{*corner} : Corners();
}

/// The normals of vertices, or where there are faces, too, of their corners at the vertices. `normalOf(i,
/// corner)` gives one. kInvalidParameter, and none, unless all of these exist.
template <class NormalOf>
MStatus collect(const MeshData& mesh, const MIntArray* faces, const MIntArray& vertices, NormalsAt& normals,
                const NormalOf& normalOf)
{
    if (faces && faces->length() != vertices.length())
        return api::requireThere(false);
    for (unsigned int i = 0; i < vertices.length(); ++i) {
        const Corners corners =
            faces ? cornersAt(mesh, (*faces)[i], vertices[i]) : cornersAt(mesh, vertices[i]);
        if (corners.empty() && (faces || !mesh.hasVertex(vertices[i])))
            return api::requireThere(false);
        for (const std::size_t corner : corners)
            normals.push_back({corner, normalOf(i, corner)});
    }
    return MS::kSuccess;
}

void put(MeshData& mesh, const NormalsAt& normals)
{
    mesh.lockedNormals.resize(mesh.faces.cornerCount(), kUnlocked);
    bool areSet = false;
    for (const NormalAt& at : normals)
        mesh.lockedNormals[at.corner] = at.normal;
    for (const Vec3f& normal : mesh.lockedNormals)
        areSet = areSet || engine::isSetNormal(normal);
    if (!areSet)
        mesh.lockedNormals.clear();
}

/// Gives a mesh some normals; with a modifier it is the modifier's to take back.
MStatus give(const MFnMesh& set, const NormalsAt& normals, MDGModifier* modifier = nullptr)
{
    const auto change = [target = api::targetOf(set), normals] {
        return target.editNormals([&](MeshData& mesh) { put(mesh, normals); });
    };
    return modifier ? tvxAccess::modifier(*modifier).queueMade(change) : change();
}

/// Sets normals of a space, one for each of the vertices (see collect). kInvalidParameter for a normal of
/// length 0.
template <class Array>
MStatus setNormalsAt(const MFnMesh& set, const Array& values, const MIntArray* faces,
                     const MIntArray& vertices, MSpace::Space space, MDGModifier* modifier = nullptr)
{
    return api::withPlacedMesh(set, space, [&](const MeshData& mesh, const engine::Matrix& matrix) {
        if (values.length() != vertices.length())
            return api::requireThere(false);
        NormalsAt normals;
        bool haveLength = true;
        const MStatus status = collect(mesh, faces, vertices, normals, [&](unsigned int i, std::size_t) {
            const Vec3d normal = api::takenNormal({values[i].x, values[i].y, values[i].z}, matrix);
            haveLength = haveLength && normal.length2() > 0;
            return Vec3f(normal);
        });
        return status ? (haveLength ? give(set, normals, modifier) : api::requireThere(false)) : status;
    });
}

/// Locks normals as they are.
MStatus lock(const MFnMesh& set, const MIntArray* faces, const MIntArray& vertices)
{
    return api::withMesh(set, [&](const MeshData& mesh) {
        NormalsAt normals;
        const engine::NormalTable& table = mesh.normals();
        const MStatus status = collect(mesh, faces, vertices, normals, [&](unsigned int, std::size_t corner) {
            return table.normals[static_cast<std::size_t>(table.used[corner])];
        });
        return status ? give(set, normals) : status;
    });
}

/// Has normals computed again.
MStatus unlock(const MFnMesh& set, const MIntArray* faces, const MIntArray& vertices)
{
    return api::withMesh(set, [&](const MeshData& mesh) {
        NormalsAt normals;
        const MStatus status =
            collect(mesh, faces, vertices, normals, [](unsigned int, std::size_t) { return kUnlocked; });
        return status ? give(set, normals) : status;
    });
}

} // namespace

bool MFnMesh::isNormalLocked(int normalId, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::isNormalLocked", ReturnStatus, false);
    bool isLocked = false;
    api::give(ReturnStatus, api::withMesh(*this, [&](const MeshData& mesh) {
                  const std::vector<bool>& locked = mesh.normals().locked;
                  const auto number = static_cast<std::size_t>(normalId);
                  const MStatus status = api::requireThere(normalId >= 0 && number < locked.size());
                  if (status)
                      isLocked = locked[number];
                  return status;
              }));
    return isLocked;
}

MStatus MFnMesh::setNormals(MFloatVectorArray& normals, MSpace::Space space)
{
    TVX_API_CALL("MFnMesh::setNormals");
    return api::withPlacedMesh(*this, space, [&](const MeshData& mesh, const engine::Matrix& matrix) {
        const engine::NormalTable& table = mesh.normals();
        if (normals.length() != table.normals.size())
            return api::requireThere(false);
        NormalsAt set;
        for (std::size_t corner = 0; corner < table.used.size(); ++corner) {
            const MFloatVector& value = normals[static_cast<unsigned int>(table.used[corner])];
            const Vec3d normal = api::takenNormal({value.x, value.y, value.z}, matrix);
            if (normal.length2() == 0)
                return api::requireThere(false);
            set.push_back({corner, Vec3f(normal)});
        }
        return give(*this, set);
    });
}

MStatus MFnMesh::setFaceVertexNormal(MVector& normal, int faceIndex, int vertexIndex, MSpace::Space space,
                                     MDGModifier* modifier)
{
    TVX_API_CALL("MFnMesh::setFaceVertexNormal");
    const MIntArray face(1, faceIndex), vertex(1, vertexIndex);
    return setNormalsAt(*this, MVectorArray(1, normal), &face, vertex, space, modifier);
}

MStatus MFnMesh::setVertexNormal(MVector& normal, int vertexIndex, MSpace::Space space, MDGModifier* modifier)
{
    TVX_API_CALL("MFnMesh::setVertexNormal");
    return setNormalsAt(*this, MVectorArray(1, normal), nullptr, MIntArray(1, vertexIndex), space, modifier);
}

MStatus MFnMesh::setFaceVertexNormals(MVectorArray& normalArray, MIntArray& faceList, MIntArray& vertexList,
                                      MSpace::Space space)
{
    TVX_API_CALL("MFnMesh::setFaceVertexNormals");
    return setNormalsAt(*this, normalArray, &faceList, vertexList, space);
}

MStatus MFnMesh::setVertexNormals(MVectorArray& normalArray, MIntArray& vertexList, MSpace::Space space)
{
    TVX_API_CALL("MFnMesh::setVertexNormals");
    return setNormalsAt(*this, normalArray, nullptr, vertexList, space);
}

MStatus MFnMesh::lockVertexNormals(MIntArray& vertexList)
{
    TVX_API_CALL("MFnMesh::lockVertexNormals");
    return lock(*this, nullptr, vertexList);
}

MStatus MFnMesh::lockFaceVertexNormals(MIntArray& faceList, MIntArray& vertexList)
{
    TVX_API_CALL("MFnMesh::lockFaceVertexNormals");
    return lock(*this, &faceList, vertexList);
}

MStatus MFnMesh::unlockVertexNormals(MIntArray& vertexList)
{
    TVX_API_CALL("MFnMesh::unlockVertexNormals");
    return unlock(*this, nullptr, vertexList);
}

MStatus MFnMesh::unlockFaceVertexNormals(MIntArray& faceList, MIntArray& vertexList)
{
    TVX_API_CALL("MFnMesh::unlockFaceVertexNormals");
    return unlock(*this, &faceList, vertexList);
}
