// MFnMesh: from points to texture coordinates and back.
#include <maya/MFnMesh.h>

#include "engine/geometry/uvPlaces.h"
#include "support/fnMesh.h"
#include "support/meshSets.h"

using namespace tvxhost;
using api::failure;
using api::StatusText;
using engine::MeshData;
using engine::UvSet;

MStatus MFnMesh::getPointAtUV(int polygonId, MPoint& theClosestPoint, float2& uvPoint, MSpace::Space space,
                              const MString* uvSet, float tolerance)
{
    TVX_API_CALL("MFnMesh::getPointAtUV");
    return api::withPlacedMesh(*this, space, [&](const MeshData& mesh, const engine::Matrix& matrix) {
        if (!mesh.hasFace(polygonId))
            return failure(StatusText::noElementAtIndex);
        return api::tellPointAtUv(api::targetOf(*this), mesh, polygonId, theClosestPoint, uvPoint, matrix,
                                  uvSet, tolerance);
    });
}

MStatus MFnMesh::getUVAtPoint(MPoint& pt, float2& uvPoint, MSpace::Space space, const MString* uvSet,
                              int* closestPolygon)
{
    TVX_API_CALL("MFnMesh::getUVAtPoint");
    return api::withPlacedMesh(*this, space, [&](const MeshData& mesh, const engine::Matrix& matrix) {
        const auto place = mesh.tree(matrix).nearestTo(api::toImath(pt));
        const MStatus status = api::tellUvAt(api::targetOf(*this), mesh, place, uvPoint, uvSet);
        if (status && closestPolygon)
            *closestPolygon = place->face;
        return status;
    });
}
