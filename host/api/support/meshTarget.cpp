// MeshTarget: see meshTarget.h.
#include "meshTarget.h"

#include "handles.h"

#include <maya/MTypes.h>

namespace tvxhost::api {

namespace {

engine::DagNode* meshShape(engine::Object* object)
{
    engine::DagNode* node = dagNodeOf(object);
    return node && node->type().isA("mesh") ? node : nullptr;
}

engine::Data* meshData(engine::Object* object)
{
    engine::Data* data = dataOf(object);
    return data && data->type() == engine::DataType::mesh ? data : nullptr;
}

/// The path to the mesh at or below the end of a path.
std::optional<engine::DagPath> pathToMesh(const MDagPath& path)
{
    const engine::DagPath* given = tvxAccess::dagPath(path);
    if (!given || !given->isValid())
        return std::nullopt;
    engine::DagPath found = *given;
    if (!meshShape(found.node())) {
        engine::DagNode* shape = found.shapeBelow();
        if (!shape || !found.push(*shape))
            return std::nullopt;
    }
    return found;
}

bool isKnown(MSpace::Space space)
{
    return space > MSpace::kInvalid && space < MSpace::kLast;
}

} // namespace

MeshTarget::MeshTarget(engine::Object* object, const engine::DagPath* path)
    : m_shape(meshShape(object)), m_data(meshData(object))
{
    if (m_shape && path)
        m_path = *path;
}

MeshTarget::MeshTarget(const MObject& object) : MeshTarget(tvxAccess::object(object), nullptr) {}

MeshTarget::MeshTarget(const MDagPath& path) : m_path(pathToMesh(path))
{
    if (m_path)
        m_shape = meshShape(m_path->node());
}

MStatus MeshTarget::status() const
{
    return mesh() ? MStatus() : failure(StatusText::objectIsIncompatible);
}

engine::MeshData* MeshTarget::mesh() const
{
    if (m_data)
        return static_cast<engine::MeshData*>(m_data.get());
    return shape() ? const_cast<engine::MeshData*>(engine::meshOf(*shape())) : nullptr;
}

engine::DagNode* MeshTarget::shape() const
{
    return m_shape && m_shape->isAlive() ? m_shape->asDag() : nullptr;
}

MStatus MeshTarget::placement(MSpace::Space space, engine::Matrix& matrix) const
{
    if (!isKnown(space))
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    matrix = engine::Matrix();
    if (space != MSpace::kWorld)
        return MS::kSuccess;
    if (!m_path || !m_path->isValid())
        return failure(StatusText::unexpectedFailure);
    matrix = m_path->inclusiveMatrix();
    return MS::kSuccess;
}

MStatus MeshTarget::move(const engine::MovedPoints& points) const
{
    engine::MeshData* changed = mesh();
    if (!changed)
        return status();
    if (m_shape)
        return toStatus(engine::movePoints(*m_shape->asDag(), points));
    for (const auto& [i, point] : points) {
        if (!changed->hasVertex(i))
            return failure(StatusText::noElementAtIndex);
        changed->points[static_cast<std::size_t>(i)] = point;
    }
    changed->forgetDerived();
    return MS::kSuccess;
}

MStatus MeshTarget::smooth(int edge, bool smooth) const
{
    engine::MeshData* changed = mesh();
    if (!changed)
        return status();
    if (m_shape)
        return toStatus(engine::smoothEdge(*m_shape->asDag(), edge, smooth));
    if (!changed->hasEdge(edge))
        return failure(StatusText::noElementAtIndex);
    changed->edges[static_cast<std::size_t>(edge)].smooth = smooth ? 1 : 0;
    changed->forgetDerived();
    return MS::kSuccess;
}

MStatus MeshTarget::editNormals(const engine::NormalEdit& edit) const
{
    engine::MeshData* changed = mesh();
    if (!changed)
        return status();
    if (m_shape)
        return toStatus(engine::editNormals(*m_shape->asDag(), edit));
    edit(*changed);
    changed->forgetDerived();
    return MS::kSuccess;
}

MStatus MeshTarget::editSets(const engine::SetEdit& edit) const
{
    engine::MeshData* changed = mesh();
    if (!changed)
        return status();
    if (m_shape)
        return toStatus(engine::editSets(*m_shape->asDag(), edit));
    edit(*changed);
    return MS::kSuccess;
}

engine::Vec3d placedNormal(const engine::Vec3d& normal, const engine::Matrix& matrix)
{
    engine::Vec3d placed;
    matrix.inverse().transposed().multDirMatrix(normal, placed);
    return placed.normalized();
}

engine::Vec3d takenNormal(const engine::Vec3d& placed, const engine::Matrix& matrix)
{
    engine::Vec3d normal;
    matrix.transposed().multDirMatrix(placed, normal);
    return normal.normalized();
}

} // namespace tvxhost::api
