// MItMeshPolygon: the texture coordinates of a face.
#include <maya/MItMeshPolygon.h>

#include "engine/geometry/uvPlaces.h"
#include "support/meshCorners.h"
#include "support/meshIteration.h"
#include "support/meshSets.h"

#include <maya/MFloatArray.h>

#include <cmath>

using namespace tvxhost;
using api::failure;
using api::MeshIteration;
using api::requireFit;
using api::StatusText;
using api::UvKind;
using engine::MeshData;
using engine::UvSet;
using engine::Vec2f;

namespace {

/// Below this a face counts as one without area in the texture.
constexpr double kNoArea = 1e-10;

/// Runs `use(mesh, set, face)`, which returns a status.
template <class Use>
MStatus withFaceUvs(const MeshIteration& iteration, const MString* name, const Use& use)
{
    return api::withItem(iteration, [&](const MeshData& mesh, std::int32_t face) {
        return api::withSet<UvKind>(iteration.target, mesh, name,
                                    [&](const MeshData&, const UvSet& set) { return use(mesh, set, face); });
    });
}

/// The same for a face that is mapped; kFailure for another one.
template <class Use>
MStatus withMappedFace(const MeshIteration& iteration, const MString* name, const Use& use)
{
    return withFaceUvs(iteration, name, [&](const MeshData& mesh, const UvSet& set, std::int32_t face) {
        return api::isMapped(mesh, set, face) ? use(mesh, set, face) : failure(StatusText::unexpectedFailure);
    });
}

/// Gives corners of the present face, by their numbers there, other texture coordinates.
MStatus write(MeshIteration& iteration, const MString* name, int firstCorner,
              const std::vector<Vec2f>& values)
{
    const MStatus status =
        withMappedFace(iteration, name, [&](const MeshData& mesh, const UvSet& set, std::int32_t face) {
            const int last = firstCorner + static_cast<int>(values.size()) - 1;
            if (!api::localCorner(mesh, face, firstCorner) || !api::localCorner(mesh, face, last))
                return failure(StatusText::noElementAtIndex);
            std::vector<api::CornerUv> changes;
            std::size_t corner = *api::localCorner(mesh, face, firstCorner);
            for (const Vec2f& value : values)
                changes.emplace_back(corner++, value);
            return api::changeUvs(iteration.target, set.name, changes);
        });
    iteration.refresh();
    return status;
}

const Vec2f& valueAt(const UvSet& set, std::size_t corner)
{
    return set.values[static_cast<std::size_t>(set.at(corner))];
}

/// The number and the value of a corner's texture coordinate.
MStatus readCorner(const MeshIteration& iteration, const MString* name, int corner, int& number, Vec2f& value)
{
    return withMappedFace(iteration, name, [&](const MeshData& mesh, const UvSet& set, std::int32_t face) {
        const auto place = api::localCorner(mesh, face, corner);
        if (!place)
            return failure(StatusText::noElementAtIndex);
        number = set.at(*place);
        value = valueAt(set, *place);
        return MStatus();
    });
}

bool hasMap(const MeshIteration& iteration, const MString* name, MStatus* returnStatus)
{
    bool isMapped = false;
    api::give(returnStatus,
              withFaceUvs(iteration, name, [&](const MeshData& mesh, const UvSet& set, std::int32_t face) {
                  isMapped = api::isMapped(mesh, set, face);
                  return MStatus();
              }));
    return isMapped;
}

/// Of a face's loops in the texture; holes run the other way and take away.
double areaOf(const MeshData& mesh, const UvSet& set, std::int32_t face)
{
    const auto i = static_cast<std::size_t>(face);
    std::size_t first = mesh.faces.firstCorner(i);
    double doubled = 0;
    for (std::size_t loop = 0; loop < mesh.faces.loopCount(i); ++loop) {
        const std::size_t count = mesh.faces.loop(i, loop).size();
        for (std::size_t corner = 0; corner < count; ++corner) {
            const Imath::V2d from(valueAt(set, first + corner));
            const Imath::V2d to(valueAt(set, first + (corner + 1) % count));
            doubled += from.cross(to);
        }
        first += count;
    }
    return std::fabs(doubled) / 2;
}

MStatus readArea(const MeshIteration& iteration, const MString* name, double& area)
{
    return withMappedFace(iteration, name, [&](const MeshData& mesh, const UvSet& set, std::int32_t face) {
        area = areaOf(mesh, set, face);
        return MStatus();
    });
}

bool hasNoArea(const MeshIteration& iteration, const MString* name, MStatus* returnStatus)
{
    double area = 1;
    api::give(returnStatus, readArea(iteration, name, area));
    return area < kNoArea;
}

} // namespace

bool MItMeshPolygon::hasUVs(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshPolygon::hasUVs", ReturnStatus, false);
    return hasMap(*iteration, nullptr, ReturnStatus);
}

bool MItMeshPolygon::hasUVs(const MString& uvSet, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MItMeshPolygon::hasUVs", ReturnStatus, false);
    return hasMap(*iteration, &uvSet, ReturnStatus);
}

MStatus MItMeshPolygon::setUV(int vertexId, float2& uvPoint, const MString* uvSet)
{
    TVX_API_CALL("MItMeshPolygon::setUV");
    return write(*iteration, uvSet, vertexId, {{uvPoint[0], uvPoint[1]}});
}

MStatus MItMeshPolygon::getUV(int vertexId, float2& uvPoint, const MString* uvSet) const
{
    TVX_API_CALL("MItMeshPolygon::getUV");
    int number = 0;
    Vec2f value;
    const MStatus status = readCorner(*iteration, uvSet, vertexId, number, value);
    if (status) {
        uvPoint[0] = value.x;
        uvPoint[1] = value.y;
    }
    return status;
}

MStatus MItMeshPolygon::setUVs(MFloatArray& uArray, MFloatArray& vArray, const MString* uvSet)
{
    TVX_API_CALL("MItMeshPolygon::setUVs");
    const auto corners = [](const MeshData& mesh, std::int32_t face) {
        return mesh.faces.corners(static_cast<std::size_t>(face)).size();
    };
    const MStatus status = api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t face) {
        return requireFit(uArray.length() == corners(mesh, face) && uArray.length() == vArray.length());
    });
    return status ? write(*iteration, uvSet, 0, api::uvPairs(uArray, vArray)) : status;
}

MStatus MItMeshPolygon::getUVs(MFloatArray& uArray, MFloatArray& vArray, const MString* uvSet) const
{
    TVX_API_CALL("MItMeshPolygon::getUVs");
    return withMappedFace(*iteration, uvSet, [&](const MeshData& mesh, const UvSet& set, std::int32_t face) {
        uArray.clear();
        vArray.clear();
        for (const std::size_t corner : api::cornersOfFace(mesh, face)) {
            uArray.append(valueAt(set, corner).x);
            vArray.append(valueAt(set, corner).y);
        }
        return MStatus();
    });
}

MStatus MItMeshPolygon::getUVIndex(int vertex, int& index, const MString* uvSet)
{
    TVX_API_CALL("MItMeshPolygon::getUVIndex");
    Vec2f value;
    return readCorner(*iteration, uvSet, vertex, index, value);
}

MStatus MItMeshPolygon::getUVIndex(int vertex, int& index, float& u, float& v, const MString* uvSet)
{
    TVX_API_CALL("MItMeshPolygon::getUVIndex");
    Vec2f value;
    const MStatus status = readCorner(*iteration, uvSet, vertex, index, value);
    if (status) {
        u = value.x;
        v = value.y;
    }
    return status;
}

MStatus MItMeshPolygon::getUVSetNames(MStringArray& setNames) const
{
    TVX_API_CALL("MItMeshPolygon::getUVSetNames");
    return api::withItem(*iteration, [&](const MeshData& mesh, std::int32_t face) {
        api::giveFaceSetNames(mesh, face, setNames);
        return MStatus();
    });
}

MStatus MItMeshPolygon::getUVArea(double& area, const MString* uvSet)
{
    TVX_API_CALL("MItMeshPolygon::getUVArea");
    return readArea(*iteration, uvSet, area);
}

bool MItMeshPolygon::zeroUVArea(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::zeroUVArea", ReturnStatus, false);
    return hasNoArea(*iteration, nullptr, ReturnStatus);
}

bool MItMeshPolygon::zeroUVArea(const MString& uvSet, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MItMeshPolygon::zeroUVArea", ReturnStatus, false);
    return hasNoArea(*iteration, &uvSet, ReturnStatus);
}

MStatus MItMeshPolygon::getPointAtUV(MPoint& pt, float2& uvPoint, MSpace::Space space, const MString* uvSet,
                                     float tolerance)
{
    TVX_API_CALL("MItMeshPolygon::getPointAtUV");
    return api::withPlacedItem(
        *iteration, space, [&](const MeshData& mesh, std::int32_t face, const engine::Matrix& matrix) {
            return api::tellPointAtUv(iteration->target, mesh, face, pt, uvPoint, matrix, uvSet, tolerance);
        });
}

MStatus MItMeshPolygon::getUVAtPoint(MPoint& pt, float2& uvPoint, MSpace::Space space, const MString* uvSet)
{
    TVX_API_CALL("MItMeshPolygon::getUVAtPoint");
    return api::withPlacedItem(
        *iteration, space, [&](const MeshData& mesh, std::int32_t face, const engine::Matrix& matrix) {
            return api::tellUvAt(iteration->target, mesh,
                                 engine::nearestOnFace(mesh, face, api::toImath(pt), matrix), uvPoint, uvSet);
        });
}

bool MItMeshPolygon::getUVSetIndex(const MString* uvSetName, int& uvSet) const
{
    return api::findSetNumber<UvKind>(iteration->target, uvSetName, uvSet);
}
