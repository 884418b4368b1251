// MFnMesh: where rays meet a mesh. The kinds of accelerator that callers may ask for make no difference: the
// tree of the mesh is always used, and kept with the mesh.
#include <maya/MFnMesh.h>

#include "engine/geometry/triangleTree.h"
#include "support/fnMesh.h"
#include "support/meshIteration.h"

#include <maya/MFloatArray.h>
#include <maya/MFloatPointArray.h>
#include <maya/MFloatVector.h>
#include <maya/MIntArray.h>
#include <maya/MPointArray.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <numeric>

using namespace tvxhost;
using engine::MeshData;
using engine::RayHit;
using engine::RayQuery;
using engine::TriangleTree;

namespace {

/// A face and one of its triangles; -1: all of them.
using TriangleId = std::pair<int, int>;

MStatus badArgument()
{
    return api::failure(api::StatusText::noElementAtIndex);
}

/// Limits a query to faces, or to triangles of them. Numbers that say they are sorted are not believed.
MStatus limit(RayQuery& query, const MIntArray* faceIds, const MIntArray* triIds)
{
    if (!faceIds)
        return triIds ? badArgument() : MStatus();
    if (triIds && triIds->length() != faceIds->length())
        return badArgument();
    std::vector<TriangleId> ids;
    for (unsigned int i = 0; i < faceIds->length(); ++i)
        ids.emplace_back((*faceIds)[i], triIds ? (*triIds)[i] : -1);
    if (!std::is_sorted(ids.begin(), ids.end()))
        std::sort(ids.begin(), ids.end());
    query.accepts = [ids](std::int32_t face, std::int32_t triangle) {
        return std::binary_search(ids.begin(), ids.end(), TriangleId(face, -1)) ||
               std::binary_search(ids.begin(), ids.end(), TriangleId(face, triangle));
    };
    return MS::kSuccess;
}

/// What is asked about a ray in single precision.
struct RayArguments
{
    const MFloatPoint& source;
    const MFloatVector& direction;
    const MIntArray* faceIds;
    const MIntArray* triIds;
    MSpace::Space space;
    float reach;
    bool bothWays;
    float tolerance;
};

/// Runs `use(tree, query)`. kInvalidParameter for a ray without a direction, and for triangles without faces.
template <class Use>
MStatus cast(const MFnMesh& set, const RayArguments& arguments, const Use& use)
{
    const MFloatPoint& from = arguments.source;
    const MFloatVector& along = arguments.direction;
    RayQuery query{{{from.x, from.y, from.z}, {along.x, along.y, along.z}},
                   arguments.bothWays ? -static_cast<double>(arguments.reach) : 0.0,
                   arguments.reach,
                   arguments.tolerance,
                   {}};
    if (query.ray.direction.length2() == 0)
        return badArgument();
    if (const MStatus status = limit(query, arguments.faceIds, arguments.triIds); !status)
        return status;
    return api::withPlacedMesh(set, arguments.space,
                               [&](const MeshData& mesh, const engine::Matrix& matrix) -> MStatus {
                                   use(mesh.tree(matrix), query);
                                   return MS::kSuccess;
                               });
}

MFloatPoint floatPoint(const engine::Vec3d& p)
{
    return MFloatPoint(static_cast<float>(p.x), static_cast<float>(p.y), static_cast<float>(p.z));
}

template <class To, class From>
void tell(To* to, From value)
{
    if (to)
        *to = static_cast<To>(value);
}

/// Where a single hit is to be told; all but the point may be null.
struct HitPlaces
{
    MFloatPoint& point;
    float* rayParam;
    int* face;
    int* triangle;
    float* bary1;
    float* bary2;
};

bool tellNearest(const MFnMesh& set, const RayArguments& arguments, const HitPlaces& places,
                 MStatus* returnStatus)
{
    bool isHit = false;
    const MStatus status = cast(set, arguments, [&](const TriangleTree& tree, const RayQuery& query) {
        const std::optional<RayHit> hit = tree.nearestHit(query);
        if (!hit)
            return;
        isHit = true;
        places.point = floatPoint(hit->point);
        tell(places.rayParam, hit->t);
        tell(places.face, hit->face);
        tell(places.triangle, hit->triangle);
        tell(places.bary1, hit->weights.x);
        tell(places.bary2, hit->weights.y);
    });
    api::give(returnStatus, status);
    return isHit;
}

/// Fills an array, if there is one, with what `read` gives for each hit.
template <class Array, class Read>
void tellAll(Array* array, const std::vector<RayHit>& hits, const Read& read)
{
    if (!array)
        return;
    array->clear();
    for (const RayHit& hit : hits)
        array->append(read(hit));
}

void sortByDistance(std::vector<RayHit>& hits)
{
    std::stable_sort(hits.begin(), hits.end(), [](const RayHit& a, const RayHit& b) { return a.t < b.t; });
}

/// The hits of a half-line in double precision, from near to far.
bool tellPoints(const MFnMesh& set, const MPoint& source, const MVector& direction, MPointArray& points,
                double tolerance, MSpace::Space space, MIntArray* polygonIds, MStatus* returnStatus)
{
    const RayQuery query{{api::toImath(source), {direction.x, direction.y, direction.z}},
                         0,
                         std::numeric_limits<double>::infinity(),
                         tolerance,
                         {}};
    std::vector<RayHit> hits;
    MStatus status = badArgument();
    if (query.ray.direction.length2() > 0)
        status = api::withPlacedMesh(
            set, space, [&](const MeshData& mesh, const engine::Matrix& matrix) -> MStatus {
                hits = mesh.tree(matrix).hits(query);
                sortByDistance(hits);
                tellAll(&points, hits, [](const RayHit& hit) { return api::toPoint(hit.point); });
                tellAll(polygonIds, hits, [](const RayHit& hit) { return hit.face; });
                return MS::kSuccess;
            });
    api::give(returnStatus, status);
    return !hits.empty();
}

std::size_t bytesOf(const std::vector<const TriangleTree*>& trees)
{
    return std::accumulate(trees.begin(), trees.end(), std::size_t{0},
                           [](std::size_t sum, const TriangleTree* tree) { return sum + tree->bytes(); });
}

/// "3.5KB"
std::string kilobytes(std::size_t bytes)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.1fKB", static_cast<double>(bytes) / 1024);
    return text;
}

/// "0.012s"
std::string seconds(double time)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.3fs", time);
    return text;
}

std::string describe(const std::vector<const TriangleTree*>& trees)
{
    if (trees.empty())
        return {};
    double time = 0;
    for (const TriangleTree* tree : trees)
        time += tree->buildSeconds();
    return "tree of " + std::to_string(trees.front()->size()) + " triangles, (build time " + seconds(time) +
           "), (memory footprint " + kilobytes(bytesOf(trees)) + ")";
}

} // namespace

bool MFnMesh::closestIntersection(const MFloatPoint& raySource, const MFloatVector& rayDirection,
                                  const MIntArray* faceIds, const MIntArray* triIds, bool,
                                  MSpace::Space space, float maxParam, bool testBothDirections,
                                  MMeshIsectAccelParams*, MFloatPoint& hitPoint, float* hitRayParam,
                                  int* hitFace, int* hitTriangle, float* hitBary1, float* hitBary2,
                                  float tolerance, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::closestIntersection", ReturnStatus, false);
    return tellNearest(
        *this, {raySource, rayDirection, faceIds, triIds, space, maxParam, testBothDirections, tolerance},
        {hitPoint, hitRayParam, hitFace, hitTriangle, hitBary1, hitBary2}, ReturnStatus);
}

bool MFnMesh::anyIntersection(const MFloatPoint& raySource, const MFloatVector& rayDirection,
                              const MIntArray* faceIds, const MIntArray* triIds, bool, MSpace::Space space,
                              float maxParam, bool testBothDirections, MMeshIsectAccelParams*,
                              MFloatPoint& hitPoint, float* hitRayParam, int* hitFace, int* hitTriangle,
                              float* hitBary1, float* hitBary2, float tolerance, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::anyIntersection", ReturnStatus, false);
    return tellNearest(
        *this, {raySource, rayDirection, faceIds, triIds, space, maxParam, testBothDirections, tolerance},
        {hitPoint, hitRayParam, hitFace, hitTriangle, hitBary1, hitBary2}, ReturnStatus);
}

bool MFnMesh::allIntersections(const MFloatPoint& raySource, const MFloatVector& rayDirection,
                               const MIntArray* faceIds, const MIntArray* triIds, bool, MSpace::Space space,
                               float maxParam, bool testBothDirections, MMeshIsectAccelParams*, bool sortHits,
                               MFloatPointArray& hitPoints, MFloatArray* hitRayParams, MIntArray* hitFaces,
                               MIntArray* hitTriangles, MFloatArray* hitBary1, MFloatArray* hitBary2,
                               float tolerance, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::allIntersections", ReturnStatus, false);
    std::vector<RayHit> hits;
    const RayArguments arguments{raySource, rayDirection,       faceIds,  triIds, space,
                                 maxParam,  testBothDirections, tolerance};
    const MStatus status = cast(*this, arguments, [&](const TriangleTree& tree, const RayQuery& query) {
        hits = tree.hits(query);
        if (sortHits)
            sortByDistance(hits);
        tellAll(&hitPoints, hits, [](const RayHit& hit) { return floatPoint(hit.point); });
        tellAll(hitRayParams, hits, [](const RayHit& hit) { return static_cast<float>(hit.t); });
        tellAll(hitFaces, hits, [](const RayHit& hit) { return hit.face; });
        tellAll(hitTriangles, hits, [](const RayHit& hit) { return hit.triangle; });
        tellAll(hitBary1, hits, [](const RayHit& hit) { return static_cast<float>(hit.weights.x); });
        tellAll(hitBary2, hits, [](const RayHit& hit) { return static_cast<float>(hit.weights.y); });
    });
    api::give(ReturnStatus, status);
    return !hits.empty();
}

MStatus MFnMesh::sortIntersectionFaceTriIds(MIntArray* faceIds, MIntArray* triIds)
{
    TVX_API_CALL("MFnMesh::sortIntersectionFaceTriIds");
    if (!faceIds)
        return api::failure(api::StatusText::nullArgument);
    if (triIds && triIds->length() != faceIds->length())
        return badArgument();
    std::vector<TriangleId> ids;
    for (unsigned int i = 0; i < faceIds->length(); ++i)
        ids.emplace_back((*faceIds)[i], triIds ? (*triIds)[i] : -1);
    std::sort(ids.begin(), ids.end());
    for (unsigned int i = 0; i < faceIds->length(); ++i) {
        (*faceIds)[i] = ids[i].first;
        if (triIds)
            (*triIds)[i] = ids[i].second;
    }
    return MS::kSuccess;
}

MStatus MFnMesh::freeCachedIntersectionAccelerator()
{
    TVX_API_CALL("MFnMesh::freeCachedIntersectionAccelerator");
    const api::MeshTarget target = api::targetOf(*this);
    if (MeshData* mesh = target.mesh())
        mesh->forgetTrees();
    return target.status();
}

MString MFnMesh::cachedIntersectionAcceleratorInfo(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::cachedIntersectionAcceleratorInfo", ReturnStatus, MString());
    std::string text;
    api::give(ReturnStatus, api::withMesh(*this, [&](const MeshData& mesh) -> MStatus {
                  text = describe(mesh.keptTrees());
                  return MS::kSuccess;
              }));
    return tvxAccess::string(text);
}

MString MFnMesh::globalIntersectionAcceleratorsInfo()
{
    const TriangleTree::Totals totals = TriangleTree::totals();
    return tvxAccess::string("total " + std::to_string(totals.made) + " accelerators created (" +
                             std::to_string(totals.present) +
                             " currently active - total current memory = " + kilobytes(totals.bytes) +
                             "), total build time = " + seconds(totals.buildSeconds) +
                             ", peak memory = " + kilobytes(totals.mostBytes));
}

void MFnMesh::clearGlobalIntersectionAcceleratorInfo()
{
    TriangleTree::forgetTotals();
}

bool MFnMesh::intersect(const MPoint& raySource, const MVector& rayDirection, MPointArray& points,
                        double tolerance, MSpace::Space space, MIntArray* polygonIds,
                        MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::intersect", ReturnStatus, false);
    return tellPoints(*this, raySource, rayDirection, points, tolerance, space, polygonIds, ReturnStatus);
}

bool MFnMesh::intersect(MPoint& raySource, MVector& rayDirection, MPointArray& points,
                        MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::intersect", ReturnStatus, false);
    return tellPoints(*this, raySource, rayDirection, points, kMFnMeshPointTolerance, MSpace::kObject,
                      nullptr, ReturnStatus);
}

bool MFnMesh::intersect(const MPoint& raySource, const MVector& rayDirection, MPointArray& points,
                        MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::intersect", ReturnStatus, false);
    return tellPoints(*this, raySource, rayDirection, points, kMFnMeshPointTolerance, MSpace::kObject,
                      nullptr, ReturnStatus);
}
