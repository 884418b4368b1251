// MFnMesh: making meshes.
#include <maya/MFnMesh.h>

#include "engine/geometry/meshBuilder.h"
#include "engine/scene.h"
#include "support/fnMesh.h"
#include "support/meshSets.h"

#include <maya/MFloatArray.h>
#include <maya/MFloatPointArray.h>
#include <maya/MIntArray.h>
#include <maya/MPointArray.h>

#include <atomic>
#include <string_view>

using namespace tvxhost;
using api::failure;
using api::StatusText;
using engine::Expected;
using engine::MeshData;
using engine::Ref;

namespace {

/// Whether a vertex twice in a row is refused; one setting for all meshes.
std::atomic<bool> refuseRepeats{true};

template <class Array>
std::vector<engine::Vec3f> pointsOf(const Array& array)
{
    std::vector<engine::Vec3f> points;
    points.reserve(array.length());
    for (const auto& point : tvxAccess::elements(array))
        points.emplace_back(static_cast<float>(point.x), static_cast<float>(point.y),
                            static_cast<float>(point.z));
    return points;
}

/// The arrays have at least as many elements as the numbers say; only those count.
template <class Array>
Expected<Ref<MeshData>> build(int numVertices, int numPolygons, const Array& vertexArray,
                              const MIntArray& polygonCounts, const MIntArray& polygonConnects)
{
    std::vector<engine::Vec3f> points = pointsOf(vertexArray);
    std::vector<int> counts = tvxAccess::elements(polygonCounts);
    if (numVertices < 0 || numPolygons < 0 || static_cast<std::size_t>(numVertices) > points.size() ||
        static_cast<std::size_t>(numPolygons) > counts.size())
        return {engine::Reason::badIndex, "there are fewer points or polygons than the numbers say"};
    points.resize(static_cast<std::size_t>(numVertices));
    counts.resize(static_cast<std::size_t>(numPolygons));
    return engine::buildMesh(std::move(points), counts, tvxAccess::elements(polygonConnects), refuseRepeats);
}

/// A new shape with the mesh, below a transform or below one of its own. The handle is on what is new at the
/// top of it.
MObject createShape(MFnMesh& set, const Ref<MeshData>& mesh, const MObject& parent, MStatus* returnStatus)
{
    engine::DagNode* above = api::dagNodeOf(parent);
    const auto made = engine::Scene::current().createNode("mesh", {}, above);
    api::give(returnStatus, api::toStatus(made.outcome));
    if (!made)
        return MObject();
    engine::DagNode& shape = *made.value->asDag();
    engine::storeMesh(shape, mesh);
    static_cast<void>(api::attachTo(set, tvxAccess::handle(&shape)));
    return tvxAccess::handle(above ? &shape : shape.parents().front());
}

/// The same in a data object, whose own mesh is replaced.
MObject fillData(MFnMesh& set, const MeshData& mesh, const MObject& owner, MStatus* returnStatus)
{
    static_cast<MeshData&>(*api::dataOf(owner)).assign(mesh);
    api::give(returnStatus, api::attachTo(set, owner));
    return owner;
}

bool isMeshData(const MObject& object)
{
    const engine::Data* data = api::dataOf(object);
    return data && data->type() == engine::DataType::mesh;
}

MObject place(MFnMesh& set, const Expected<Ref<MeshData>>& mesh, const MObject& parent, MStatus* returnStatus)
{
    if (!mesh) {
        api::give(returnStatus, api::toStatus(mesh.outcome));
        return MObject();
    }
    if (isMeshData(parent))
        return fillData(set, *mesh.value, parent, returnStatus);
    const engine::DagNode* above = api::dagNodeOf(parent);
    if (parent.isNull() || (above && above->isTransform()))
        return createShape(set, mesh.value, parent, returnStatus);
    api::give(returnStatus, failure(StatusText::objectIsIncompatible));
    return MObject();
}

/// The same with texture coordinates, which no corner has yet.
template <class Array>
MObject createMesh(MFnMesh& set, int numVertices, int numPolygons, const Array& vertexArray,
                   const MIntArray& polygonCounts, const MIntArray& polygonConnects, const MFloatArray& u,
                   const MFloatArray& v, const MObject& parent, MStatus* returnStatus)
{
    TVX_API_CALL_OR("MFnMesh::create", returnStatus, MObject());
    if (u.length() != v.length()) {
        api::give(returnStatus, failure(StatusText::noElementAtIndex));
        return MObject();
    }
    const auto mesh = build(numVertices, numPolygons, vertexArray, polygonCounts, polygonConnects);
    if (mesh)
        mesh.value->uvSets.front().values = api::uvPairs(u, v);
    return place(set, mesh, parent, returnStatus);
}

template <class Array>
MObject createMesh(MFnMesh& set, int numVertices, int numPolygons, const Array& vertexArray,
                   const MIntArray& polygonCounts, const MIntArray& polygonConnects, const MObject& parent,
                   MStatus* returnStatus)
{
    TVX_API_CALL_OR("MFnMesh::create", returnStatus, MObject());
    return place(set, build(numVertices, numPolygons, vertexArray, polygonCounts, polygonConnects), parent,
                 returnStatus);
}

/// Gives what a set is attached to another mesh. Not where history makes it.
MStatus replace(const MFnMesh& set, const Expected<Ref<MeshData>>& mesh)
{
    if (!mesh)
        return api::toStatus(mesh.outcome);
    engine::Object* object = tvxAccess::attached(set);
    if (engine::Data* data = api::dataOf(object)) {
        static_cast<MeshData&>(*data).assign(*mesh.value);
        return MS::kSuccess;
    }
    engine::DagNode* shape = api::dagNodeOf(object);
    if (!shape)
        return api::notAttached();
    if (engine::hasHistory(*shape))
        return failure(StatusText::unexpectedFailure);
    engine::storeMesh(*shape, mesh.value);
    return MS::kSuccess;
}

/// A copy of the mesh of a shape or of data.
Expected<Ref<MeshData>> copyOf(const MObject& source)
{
    const MeshData* mesh = api::MeshTarget(source).mesh();
    if (!mesh)
        return {engine::Reason::wrongKind, "there is no mesh to copy"};
    return Ref<MeshData>(static_cast<MeshData*>(mesh->clone().get()));
}

struct ComponentName
{
    MFn::Type type;
    std::string_view name;
};

constexpr ComponentName kComponentNames[] = {{MFn::kMeshVertComponent, "vertex"},
                                             {MFn::kMeshEdgeComponent, "edge"},
                                             {MFn::kMeshPolygonComponent, "face"},
                                             {MFn::kMeshFaceVertComponent, "vertexFace"}};

} // namespace

MObject MFnMesh::create(int numVertices, int numPolygons, const MFloatPointArray& vertexArray,
                        const MIntArray& polygonCounts, const MIntArray& polygonConnects,
                        MObject parentOrOwner, MStatus* ReturnStatus)
{
    return createMesh(*this, numVertices, numPolygons, vertexArray, polygonCounts, polygonConnects,
                      parentOrOwner, ReturnStatus);
}

MObject MFnMesh::create(int numVertices, int numPolygons, const MPointArray& vertexArray,
                        const MIntArray& polygonCounts, const MIntArray& polygonConnects,
                        MObject parentOrOwner, MStatus* ReturnStatus)
{
    return createMesh(*this, numVertices, numPolygons, vertexArray, polygonCounts, polygonConnects,
                      parentOrOwner, ReturnStatus);
}

MObject MFnMesh::create(int numVertices, int numPolygons, const MFloatPointArray& vertexArray,
                        const MIntArray& polygonCounts, const MIntArray& polygonConnects,
                        const MFloatArray& uArray, const MFloatArray& vArray, MObject parentOrOwner,
                        MStatus* ReturnStatus)
{
    return createMesh(*this, numVertices, numPolygons, vertexArray, polygonCounts, polygonConnects, uArray,
                      vArray, parentOrOwner, ReturnStatus);
}

MObject MFnMesh::create(int numVertices, int numPolygons, const MPointArray& vertexArray,
                        const MIntArray& polygonCounts, const MIntArray& polygonConnects,
                        const MFloatArray& uArray, const MFloatArray& vArray, MObject parentOrOwner,
                        MStatus* ReturnStatus)
{
    return createMesh(*this, numVertices, numPolygons, vertexArray, polygonCounts, polygonConnects, uArray,
                      vArray, parentOrOwner, ReturnStatus);
}

MStatus MFnMesh::createInPlace(int numVertices, int numPolygons, const MFloatPointArray& vertexArray,
                               const MIntArray& polygonCounts, const MIntArray& polygonConnects)
{
    TVX_API_CALL("MFnMesh::createInPlace");
    return replace(*this, build(numVertices, numPolygons, vertexArray, polygonCounts, polygonConnects));
}

MObject MFnMesh::copy(const MObject& source, MObject parentOrOwner, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::copy", ReturnStatus, MObject());
    return place(*this, copyOf(source), parentOrOwner, ReturnStatus);
}

MStatus MFnMesh::copyInPlace(const MObject& source)
{
    TVX_API_CALL("MFnMesh::copyInPlace");
    return replace(*this, copyOf(source));
}

void MFnMesh::setCheckSamePointTwice(bool check)
{
    refuseRepeats = check;
}

bool MFnMesh::getCheckSamePointTwice()
{
    return refuseRepeats;
}

MString MFnMesh::componentTypeName(MFn::Type compType, MStatus& status)
{
    for (const ComponentName& row : kComponentNames)
        if (row.type == compType) {
            status = MS::kSuccess;
            return tvxAccess::string(std::string(row.name));
        }
    status = failure(StatusText::objectIsIncompatible);
    return MString();
}

MFn::Type MFnMesh::componentTypeFromName(const MString& assocName)
{
    for (const ComponentName& row : kComponentNames)
        if (row.name == tvxAccess::text(assocName))
            return row.type;
    return MFn::kInvalid;
}
