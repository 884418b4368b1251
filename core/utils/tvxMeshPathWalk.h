// The walk from a DAG path down to the meshes below it.
#pragma once

#include "core/utils/tvxInstancePaths.h"

#include <maya/MDagPath.h>
#include <maya/MFnDagNode.h>
#include <maya/MObject.h>
#include <maya/MObjectHandle.h>

#include <cstddef>
#include <list>
#include <unordered_map>

namespace tarvox::crowd {

/// Gathers the paths of meshes. What it finds out of the paths to an instanced node serves for the whole
/// walk, so the graph must not change during it.
class MeshPathWalk
{
public:
    explicit MeshPathWalk(std::list<MDagPath>& meshes) : m_meshes(meshes) {}

    /// Appends the meshes at and below a path.
    void visit(MDagPath path);

private:
    void visitChildren(MDagPath& path, const MFnDagNode& end, std::size_t nameLength);
    void visitChild(MDagPath& path, const MObject& child, std::size_t nameLength);
    /// Visits the child to which a path has just been lengthened, unless other parents make it a matter of
    /// scores: of the paths to a child with one parent only this one has all of the shorter path's name in
    /// common. Returns whether it did. `nameLength`: that of the shorter path's name.
    bool visitEnd(MDagPath& path, const MObject& child, std::size_t nameLength);
    const InstancePaths& pathsTo(const MObject& child);

    struct Hash
    {
        std::size_t operator()(const MObjectHandle& handle) const { return handle.hashCode(); }
    };

    std::list<MDagPath>& m_meshes;
    std::unordered_map<MObjectHandle, InstancePaths, Hash> m_instanced;
};

} // namespace tarvox::crowd
