// MFnMesh: the texture coordinates in a set, and which of them the faces have.
#include <maya/MFnMesh.h>

#include "engine/geometry/shells.h"
#include "support/fnMesh.h"
#include "support/meshCorners.h"
#include "support/meshIteration.h"
#include "support/meshSets.h"

#include <maya/MFloatArray.h>

#include <algorithm>

using namespace tvxhost;
using api::failure;
using api::requireFit;
using api::StatusText;
using api::targetOf;
using api::UvKind;
using engine::MeshData;
using engine::UvSet;

namespace {

template <class Use>
MStatus withUvSet(const MFnMesh& set, const MString* name, const Use& use)
{
    return api::withSet<UvKind>(targetOf(set), name, use);
}

template <class Check, class Change>
MStatus changeUvSet(const MFnMesh& set, const MString* name, const Check& check, const Change& change)
{
    return api::changeSet<UvKind>(targetOf(set), name, check, change);
}

int countUvs(const MFnMesh& set, const MString* name, MStatus* returnStatus)
{
    int count = 0;
    api::give(returnStatus, withUvSet(set, name, [&](const MeshData&, const UvSet& uvs) -> MStatus {
                  count = static_cast<int>(uvs.values.size());
                  return MS::kSuccess;
              }));
    return count;
}

/// The list grows where a number is behind its end.
MStatus writeUvs(const MFnMesh& set, const MString* name, const std::vector<int>& numbers,
                 const std::vector<engine::Vec2f>& values)
{
    return changeUvSet(
        set, name,
        [&](const MeshData&, const UvSet& uvs) { return requireFit(api::isWithinReach(uvs, numbers)); },
        [&](MeshData&, UvSet& uvs) {
            for (std::size_t i = 0; i < numbers.size(); ++i) {
                const auto place = static_cast<std::size_t>(numbers[i]);
                if (place >= uvs.values.size())
                    uvs.values.resize(place + 1, engine::Vec2f(0, 0));
                uvs.values[place] = values[i];
            }
        });
}

/// The number of the texture coordinate at a corner of a face; kFailure when it has none.
MStatus readCorner(const MeshData& mesh, const UvSet& uvs, int face, int corner, int& number)
{
    const auto place = api::localCorner(mesh, face, corner);
    if (!place)
        return failure(StatusText::noElementAtIndex);
    if (uvs.at(*place) == engine::kUnmapped)
        return failure(StatusText::unexpectedFailure);
    number = uvs.at(*place);
    return MS::kSuccess;
}

/// Whether lists give each face no texture coordinates or one for each of its corners, all of them there.
bool fits(const MeshData& mesh, const UvSet& uvs, const MIntArray& counts, const MIntArray& ids)
{
    if (counts.length() != mesh.faces.size())
        return false;
    std::size_t total = 0;
    for (unsigned int face = 0; face < counts.length(); ++face) {
        const auto count = static_cast<std::size_t>(counts[face]);
        if (counts[face] != 0 && count != mesh.faces.corners(face).size())
            return false;
        total += count;
    }
    const auto& all = tvxAccess::elements(ids);
    return total == all.size() &&
           std::all_of(all.begin(), all.end(), [&uvs](int id) { return uvs.hasValue(id); });
}

} // namespace

int MFnMesh::numUVs(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numUVs", ReturnStatus, 0);
    return countUvs(*this, nullptr, ReturnStatus);
}

int MFnMesh::numUVs(const MString& uvSet, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numUVs", ReturnStatus, 0);
    return countUvs(*this, &uvSet, ReturnStatus);
}

MStatus MFnMesh::setUVs(const MFloatArray& uArray, const MFloatArray& vArray, const MString* uvSet)
{
    TVX_API_CALL("MFnMesh::setUVs");
    return changeUvSet(
        *this, uvSet,
        [&](const MeshData&, const UvSet& uvs) {
            return requireFit(uArray.length() == vArray.length() && uArray.length() >= uvs.values.size());
        },
        [&](MeshData&, UvSet& uvs) { uvs.values = api::uvPairs(uArray, vArray); });
}

MStatus MFnMesh::setSomeUVs(const MIntArray& uvIds, const MFloatArray& uArray, const MFloatArray& vArray,
                            const MString* uvSet)
{
    TVX_API_CALL("MFnMesh::setSomeUVs");
    if (uvIds.length() != uArray.length() || uArray.length() != vArray.length())
        return failure(StatusText::noElementAtIndex);
    return writeUvs(*this, uvSet, tvxAccess::elements(uvIds), api::uvPairs(uArray, vArray));
}

MStatus MFnMesh::getUVs(MFloatArray& uArray, MFloatArray& vArray, const MString* uvSet) const
{
    TVX_API_CALL("MFnMesh::getUVs");
    return withUvSet(*this, uvSet, [&](const MeshData&, const UvSet& uvs) -> MStatus {
        auto& us = tvxAccess::elements(uArray);
        auto& vs = tvxAccess::elements(vArray);
        us.clear();
        vs.clear();
        for (const engine::Vec2f& value : uvs.values) {
            us.push_back(value.x);
            vs.push_back(value.y);
        }
        return MS::kSuccess;
    });
}

MStatus MFnMesh::setUV(int uvId, float u, float v, const MString* uvSet)
{
    TVX_API_CALL("MFnMesh::setUV");
    return writeUvs(*this, uvSet, {uvId}, {{u, v}});
}

MStatus MFnMesh::getUV(int uvId, float& u, float& v, const MString* uvSet) const
{
    TVX_API_CALL("MFnMesh::getUV");
    return withUvSet(*this, uvSet, [&](const MeshData&, const UvSet& uvs) {
        const MStatus status = requireFit(uvs.hasValue(uvId));
        if (status) {
            u = uvs.values[static_cast<std::size_t>(uvId)].x;
            v = uvs.values[static_cast<std::size_t>(uvId)].y;
        }
        return status;
    });
}

MStatus MFnMesh::getPolygonUV(int polygonId, int vertexIndex, float& u, float& v, const MString* uvSet) const
{
    TVX_API_CALL("MFnMesh::getPolygonUV");
    return withUvSet(*this, uvSet, [&](const MeshData& mesh, const UvSet& uvs) {
        int number = 0;
        const MStatus status = readCorner(mesh, uvs, polygonId, vertexIndex, number);
        if (status) {
            u = uvs.values[static_cast<std::size_t>(number)].x;
            v = uvs.values[static_cast<std::size_t>(number)].y;
        }
        return status;
    });
}

MStatus MFnMesh::getPolygonUVid(int polygonId, int vertexIndex, int& uvId, const MString* uvSet) const
{
    TVX_API_CALL("MFnMesh::getPolygonUVid");
    return withUvSet(*this, uvSet, [&](const MeshData& mesh, const UvSet& uvs) {
        return readCorner(mesh, uvs, polygonId, vertexIndex, uvId);
    });
}

MStatus MFnMesh::assignUV(int polygonId, int vertexIndex, int uvId, const MString* uvSet)
{
    TVX_API_CALL("MFnMesh::assignUV");
    return changeUvSet(
        *this, uvSet,
        [&](const MeshData& mesh, const UvSet& uvs) {
            return requireFit(api::localCorner(mesh, polygonId, vertexIndex) && uvs.hasValue(uvId));
        },
        [&](MeshData& mesh, UvSet& uvs) {
            uvs.assign(*api::localCorner(mesh, polygonId, vertexIndex), uvId);
        });
}

MStatus MFnMesh::assignUVs(const MIntArray& uvCounts, const MIntArray& uvIds, const MString* uvSet)
{
    TVX_API_CALL("MFnMesh::assignUVs");
    return changeUvSet(
        *this, uvSet,
        [&](const MeshData& mesh, const UvSet& uvs) { return requireFit(fits(mesh, uvs, uvCounts, uvIds)); },
        [&](MeshData& mesh, UvSet& uvs) {
            uvs.used.assign(mesh.faces.cornerCount(), engine::kUnmapped);
            unsigned int next = 0;
            for (unsigned int face = 0; face < uvCounts.length(); ++face)
                for (int i = 0; i < uvCounts[face]; ++i)
                    uvs.used[mesh.faces.firstCorner(face) + static_cast<std::size_t>(i)] = uvIds[next++];
        });
}

MStatus MFnMesh::clearUVs(const MString* uvSet)
{
    TVX_API_CALL("MFnMesh::clearUVs");
    return changeUvSet(
        *this, uvSet, [](const MeshData&, const UvSet&) -> MStatus { return MS::kSuccess; },
        [](MeshData&, UvSet& uvs) {
            uvs.values.clear();
            uvs.used.clear();
        });
}

MStatus MFnMesh::getAssignedUVs(MIntArray& uvCounts, MIntArray& uvIds, const MString* uvSet) const
{
    TVX_API_CALL("MFnMesh::getAssignedUVs");
    return withUvSet(*this, uvSet, [&](const MeshData& mesh, const UvSet& uvs) -> MStatus {
        auto& counts = tvxAccess::elements(uvCounts);
        auto& ids = tvxAccess::elements(uvIds);
        counts.clear();
        ids.clear();
        for (std::int32_t face = 0; mesh.hasFace(face); ++face) {
            counts.push_back(0);
            if (!api::isMapped(mesh, uvs, face))
                continue;
            for (const std::size_t corner : api::cornersOfFace(mesh, face))
                ids.push_back(uvs.at(corner));
            counts.back() = static_cast<int>(mesh.faces.corners(static_cast<std::size_t>(face)).size());
        }
        return MS::kSuccess;
    });
}

MStatus MFnMesh::getUvShellsIds(MIntArray& uvShellIds, unsigned int& nbUvShells, const MString* uvSet) const
{
    TVX_API_CALL("MFnMesh::getUvShellsIds");
    return withUvSet(*this, uvSet, [&](const MeshData& mesh, const UvSet& uvs) -> MStatus {
        engine::Shells shells = engine::uvShells(mesh, uvs);
        api::giveAll(uvShellIds, shells.numbers());
        nbUvShells = static_cast<unsigned int>(shells.count());
        return MS::kSuccess;
    });
}
