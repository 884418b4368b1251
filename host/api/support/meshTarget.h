// MeshTarget: the mesh that an iterator or a function set is about.
#pragma once

#include "engine/dagPath.h"
#include "engine/geometry/meshData.h"
#include "engine/mesh.h"
#include "engine/node.h"
#include "status.h"

#include <maya/MDagPath.h>
#include <maya/MObject.h>
#include <maya/MPoint.h>
#include <maya/MSpace.h>
#include <maya/MVector.h>

#include <optional>

namespace tvxhost::api {

/// A mesh shape, on one of its paths or on none, or a data object that holds a mesh.
class MeshTarget
{
public:
    /// Nothing.
    MeshTarget() = default;
    explicit MeshTarget(const MObject& object);
    /// A path to a mesh shape or to a transform above one.
    explicit MeshTarget(const MDagPath& path);
    /// A node or data, and the path to it where it is known.
    MeshTarget(engine::Object* object, const engine::DagPath* path);

    /// Success, or why there is no mesh.
    MStatus status() const;
    /// Null when there is no mesh or it has no geometry. Valid until the mesh changes.
    engine::MeshData* mesh() const;

    /// The matrix from the mesh's points to a space. kFailure for the world without a path.
    MStatus placement(MSpace::Space space, engine::Matrix& matrix) const;

    /// Moves points that are given in object space; see engine::movePoints.
    MStatus move(const engine::MovedPoints& points) const;
    MStatus smooth(int edge, bool smooth) const;
    /// Changes the normals that are set; see engine::editNormals.
    MStatus editNormals(const engine::NormalEdit& edit) const;
    /// Changes texture coordinates and colours; see engine::editSets.
    MStatus editSets(const engine::SetEdit& edit) const;

    /// The shape while it lives; null for data.
    engine::DagNode* shape() const;

private:
    engine::Ref<engine::Node> m_shape;
    engine::Ref<engine::Data> m_data;
    std::optional<engine::DagPath> m_path;
};

inline MPoint toPoint(const engine::Vec3d& p)
{
    return MPoint(p.x, p.y, p.z);
}
inline MVector toVector(const engine::Vec3d& v)
{
    return MVector(v.x, v.y, v.z);
}
inline engine::Vec3d toImath(const MPoint& p)
{
    return {p.x, p.y, p.z};
}

/// A normal of object space where the points are moved by a matrix; of length one.
engine::Vec3d placedNormal(const engine::Vec3d& normal, const engine::Matrix& matrix);
/// The normal of object space that becomes this one there; of length one, or zero for a zero normal.
engine::Vec3d takenNormal(const engine::Vec3d& placed, const engine::Matrix& matrix);

} // namespace tvxhost::api
