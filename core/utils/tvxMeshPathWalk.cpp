// The walk from a DAG path down to the meshes below it.
#include "core/utils/tvxMeshPathWalk.h"

#include <maya/MFn.h>
#include <maya/MString.h>

#include <cstring>

namespace tarvox::crowd {

namespace {

std::size_t lengthOf(const MString& name)
{
    return std::strlen(name.asChar());
}

} // namespace

void MeshPathWalk::visit(MDagPath path)
{
    if (!appendIfMesh(path) && path.hasFn(MFn::kTransform))
        visitChildren(path, MFnDagNode(path.node(), nullptr), lengthOf(path.fullPathName()));
}

bool MeshPathWalk::appendIfMesh(const MDagPath& path)
{
    const bool isMesh = path.hasFn(MFn::kMesh);
    if (isMesh)
        m_meshes.push_back(path);
    return isMesh;
}

void MeshPathWalk::visitChildren(MDagPath& path, const MFnDagNode& end, std::size_t nameLength)
{
    const unsigned int count = end.childCount();
    for (unsigned int i = 0; i < count; ++i)
        visitChild(path, end.child(i), nameLength);
}

void MeshPathWalk::visitChild(MDagPath& path, const MObject& child, std::size_t nameLength)
{
    const MFnDagNode node(child, nullptr);
    // Of the paths to a child with one parent only the one from here has all of this path's name in common.
    if (node.parentCount() == 1 && nameLength < InstancePaths::kComparedLength && path.push(child)) {
        if (!appendIfMesh(path) && child.hasFn(MFn::kTransform))
            visitChildren(path, node, nameLength + 1 + lengthOf(node.name()));
        path.pop();
        return;
    }
    if (const MDagPath* best = pathsTo(child).bestFor(path.fullPathName()))
        visit(*best);
}

const InstancePaths& MeshPathWalk::pathsTo(const MObject& child)
{
    const MObjectHandle handle(child);
    const auto known = m_instanced.find(handle);
    return known != m_instanced.end() ? known->second : m_instanced.try_emplace(handle, child).first->second;
}

} // namespace tarvox::crowd
