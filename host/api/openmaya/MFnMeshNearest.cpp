// MFnMesh: the point of a mesh that is nearest to a point, and the normal there.
#include <maya/MFnMesh.h>

#include "engine/geometry/meshMeasures.h"
#include "engine/geometry/meshNormals.h"
#include "engine/geometry/meshTriangles.h"
#include "engine/geometry/triangleTree.h"
#include "support/fnMesh.h"

using namespace tvxhost;
using engine::MeshData;
using engine::SurfacePoint;

namespace {

/// The mean of the normals at the corners of a triangle; that of the face where they cancel out.
engine::Vec3d normalAt(const MeshData& mesh, const SurfacePoint& place)
{
    const auto face = static_cast<std::size_t>(place.face);
    const engine::MeshTriangles& triangles = mesh.triangles();
    const engine::Triangle& triangle =
        triangles[triangles.first(face) + static_cast<std::size_t>(place.triangle)];
    engine::Vec3d sum(0.0);
    for (int i = 0; i < 3; ++i) {
        const auto corner = static_cast<std::size_t>(triangle[static_cast<std::size_t>(i)]);
        const auto number =
            static_cast<std::size_t>(mesh.normals().used[mesh.faces.firstCorner(face) + corner]);
        sum += engine::Vec3d(mesh.normals().normals[number]) * place.weights[i];
    }
    return sum.length2() > 0 ? sum : engine::faceNormal(mesh, face);
}

/// Finds the nearest point and tells it, the normal there and the face; any of them may be null. kFailure for
/// a mesh without faces.
MStatus tellNearest(const MFnMesh& set, const MPoint& to, MSpace::Space space, MPoint* point, MVector* normal,
                    int* face)
{
    return api::withPlacedMesh(
        set, space, [&](const MeshData& mesh, const engine::Matrix& matrix) -> MStatus {
            const auto found = mesh.tree(matrix).nearestTo(api::toImath(to));
            if (!found)
                return api::failure(api::StatusText::unexpectedFailure);
            if (point)
                *point = api::toPoint(found->point);
            if (normal)
                *normal = api::toVector(api::placedNormal(normalAt(mesh, *found), matrix));
            if (face)
                *face = found->face;
            return MS::kSuccess;
        });
}

} // namespace

MStatus MFnMesh::getClosestPointAndNormal(const MPoint& toThisPoint, MPoint& theClosestPoint,
                                          MVector& theNormal, MSpace::Space space, int* closestPolygon,
                                          MMeshIsectAccelParams*) const
{
    TVX_API_CALL("MFnMesh::getClosestPointAndNormal");
    return tellNearest(*this, toThisPoint, space, &theClosestPoint, &theNormal, closestPolygon);
}

MStatus MFnMesh::getClosestPoint(const MPoint& toThisPoint, MPoint& theClosestPoint, MSpace::Space space,
                                 int* closestPolygon, MMeshIsectAccelParams*) const
{
    TVX_API_CALL("MFnMesh::getClosestPoint");
    return tellNearest(*this, toThisPoint, space, &theClosestPoint, nullptr, closestPolygon);
}

MStatus MFnMesh::getClosestNormal(const MPoint& toThisPoint, MVector& theNormal, MSpace::Space space,
                                  int* closestPolygon, MMeshIsectAccelParams*) const
{
    TVX_API_CALL("MFnMesh::getClosestNormal");
    return tellNearest(*this, toThisPoint, space, nullptr, &theNormal, closestPolygon);
}
