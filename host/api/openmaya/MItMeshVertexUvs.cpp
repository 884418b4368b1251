// MItMeshVertex: the texture coordinates that faces have at a vertex.
#include <maya/MItMeshVertex.h>

#include "support/meshCorners.h"
#include "support/meshIteration.h"
#include "support/meshSets.h"

#include <maya/MFloatArray.h>

#include <set>

using namespace tvxhost;
using api::FaceCorner;
using api::failure;
using api::MeshIteration;
using api::StatusText;
using api::UvKind;
using engine::MeshData;
using engine::UvSet;
using engine::Vec2f;

namespace {

/// Runs `use(set, corners)`, which returns a status, with the corners at the present vertex that have a
/// texture coordinate.
template <class Use>
MStatus withCorners(const MeshIteration& iteration, const MString* name, const Use& use)
{
    return api::withItem(iteration, [&](const MeshData& mesh, std::int32_t vertex) {
        return api::withSet<UvKind>(iteration.target, mesh, name, [&](const MeshData&, const UvSet& set) {
            std::vector<FaceCorner> mapped;
            for (const FaceCorner& corner : api::cornersOfVertex(mesh, vertex))
                if (set.at(corner.corner) != engine::kUnmapped)
                    mapped.push_back(corner);
            return use(set, mapped);
        });
    });
}

/// The same; kFailure when no corner has one.
template <class Use>
MStatus withMappedCorners(const MeshIteration& iteration, const MString* name, const Use& use)
{
    return withCorners(iteration, name, [&](const UvSet& set, const std::vector<FaceCorner>& corners) {
        return corners.empty() ? failure(StatusText::unexpectedFailure) : use(set, corners);
    });
}

const FaceCorner* findFace(const std::vector<FaceCorner>& corners, int face)
{
    for (const FaceCorner& corner : corners)
        if (corner.face == face)
            return &corner;
    return nullptr;
}

const Vec2f& valueAt(const UvSet& set, const FaceCorner& corner)
{
    return set.values[static_cast<std::size_t>(set.at(corner.corner))];
}

/// Changes the texture coordinates that corners have.
MStatus write(const MeshIteration& iteration, const UvSet& set,
              const std::vector<std::pair<FaceCorner, Vec2f>>& values)
{
    std::vector<api::CornerUv> changes;
    for (const auto& [corner, value] : values)
        changes.emplace_back(corner.corner, value);
    return api::changeUvs(iteration.target, set.name, changes);
}

/// The same by the numbers of faces; kInvalidParameter for one that is not at the vertex or not mapped.
MStatus writeFaces(MeshIteration& iteration, const MString* name,
                   const std::vector<std::pair<int, Vec2f>>& values)
{
    const MStatus status =
        withCorners(iteration, name, [&](const UvSet& set, const std::vector<FaceCorner>& corners) {
            std::vector<std::pair<FaceCorner, Vec2f>> found;
            for (const auto& [face, value] : values) {
                const FaceCorner* corner = findFace(corners, face);
                if (!corner)
                    return failure(StatusText::noElementAtIndex);
                found.emplace_back(*corner, value);
            }
            return write(iteration, set, found);
        });
    iteration.refresh();
    return status;
}

} // namespace

MStatus MItMeshVertex::numUVs(int& count, const MString* uvSet)
{
    TVX_API_CALL("MItMeshVertex::numUVs");
    return withCorners(*iteration, uvSet, [&](const UvSet& set, const std::vector<FaceCorner>& corners) {
        std::set<std::int32_t> numbers;
        for (const FaceCorner& corner : corners)
            numbers.insert(set.at(corner.corner));
        count = static_cast<int>(numbers.size());
        return MStatus();
    });
}

MStatus MItMeshVertex::setUV(float2& uvPoint, const MString* uvSet)
{
    TVX_API_CALL("MItMeshVertex::setUV");
    const MStatus status =
        withMappedCorners(*iteration, uvSet, [&](const UvSet& set, const std::vector<FaceCorner>& corners) {
            std::vector<std::pair<FaceCorner, Vec2f>> values;
            for (const FaceCorner& corner : corners)
                values.emplace_back(corner, Vec2f(uvPoint[0], uvPoint[1]));
            return write(*iteration, set, values);
        });
    iteration->refresh();
    return status;
}

MStatus MItMeshVertex::getUV(float2& uvPoint, const MString* uvSet)
{
    TVX_API_CALL("MItMeshVertex::getUV");
    return withMappedCorners(*iteration, uvSet,
                             [&](const UvSet& set, const std::vector<FaceCorner>& corners) {
                                 uvPoint[0] = valueAt(set, corners.front()).x;
                                 uvPoint[1] = valueAt(set, corners.front()).y;
                                 return MStatus();
                             });
}

MStatus MItMeshVertex::setUV(int faceId, float2& uvPoint, const MString* uvSet)
{
    TVX_API_CALL("MItMeshVertex::setUV");
    return writeFaces(*iteration, uvSet, {{faceId, Vec2f(uvPoint[0], uvPoint[1])}});
}

MStatus MItMeshVertex::getUV(int faceId, float2& uvPoint, const MString* uvSet) const
{
    TVX_API_CALL("MItMeshVertex::getUV");
    return withCorners(*iteration, uvSet, [&](const UvSet& set, const std::vector<FaceCorner>& corners) {
        const FaceCorner* corner = findFace(corners, faceId);
        if (!corner)
            return failure(StatusText::noElementAtIndex);
        uvPoint[0] = valueAt(set, *corner).x;
        uvPoint[1] = valueAt(set, *corner).y;
        return MStatus();
    });
}

MStatus MItMeshVertex::setUVs(MFloatArray& uArray, MFloatArray& vArray, MIntArray& faceIds,
                              const MString* uvSet)
{
    TVX_API_CALL("MItMeshVertex::setUVs");
    if (uArray.length() != vArray.length() || uArray.length() != faceIds.length())
        return failure(StatusText::noElementAtIndex);
    std::vector<std::pair<int, Vec2f>> values;
    for (unsigned int i = 0; i < faceIds.length(); ++i)
        values.emplace_back(faceIds[i], Vec2f(uArray[i], vArray[i]));
    return writeFaces(*iteration, uvSet, values);
}

MStatus MItMeshVertex::getUVs(MFloatArray& uArray, MFloatArray& vArray, MIntArray& faceIds,
                              const MString* uvSet) const
{
    TVX_API_CALL("MItMeshVertex::getUVs");
    return withMappedCorners(*iteration, uvSet,
                             [&](const UvSet& set, const std::vector<FaceCorner>& corners) {
                                 uArray.clear();
                                 vArray.clear();
                                 faceIds.clear();
                                 for (const FaceCorner& corner : corners) {
                                     uArray.append(valueAt(set, corner).x);
                                     vArray.append(valueAt(set, corner).y);
                                     faceIds.append(corner.face);
                                 }
                                 return MStatus();
                             });
}

MStatus MItMeshVertex::getUVIndices(MIntArray& uvIndices, const MString* uvSet) const
{
    TVX_API_CALL("MItMeshVertex::getUVIndices");
    return withCorners(*iteration, uvSet, [&](const UvSet& set, const std::vector<FaceCorner>& corners) {
        uvIndices.clear();
        for (const FaceCorner& corner : corners)
            uvIndices.append(set.at(corner.corner));
        return MStatus();
    });
}

bool MItMeshVertex::getUVSetIndex(const MString* uvSetName, int& uvSet) const
{
    return api::findSetNumber<UvKind>(iteration->target, uvSetName, uvSet);
}
