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
    if (path.hasFn(MFn::kMesh))
        m_meshes.push_back(path);
    else if (path.hasFn(MFn::kTransform))
        visitChildren(path, MFnDagNode(path.node(), nullptr), lengthOf(path.fullPathName()));
}

void MeshPathWalk::visitChildren(MDagPath& path, const MFnDagNode& end, std::size_t nameLength)
{
    const unsigned int count = end.childCount();
    for (unsigned int i = 0; i < count; ++i)
        visitChild(path, end.child(i), nameLength);
}

void MeshPathWalk::visitChild(MDagPath& path, const MObject& child, std::size_t nameLength)
{
    if (nameLength < InstancePaths::kComparedLength && path.push(child)) {
        const bool isDone = visitEnd(path, child, nameLength);
        path.pop();
        if (isDone)
            return;
    }
    if (const MDagPath* best = pathsTo(child).bestFor(path.fullPathName()))
        visit(*best);
}

bool MeshPathWalk::visitEnd(MDagPath& path, const MObject& child, std::size_t nameLength)
{
    if (path.hasFn(MFn::kMesh)) {
        // Most meshes are in one place, which the path tells without a function set for each.
        MStatus status;
        const bool isElsewhere = path.isInstanced(&status) || !status;
        if (isElsewhere && MFnDagNode(child, nullptr).parentCount() != 1)
            return false;
        m_meshes.push_back(path);
        return true;
    }
    if (!child.hasFn(MFn::kTransform))
        return true;
    const MFnDagNode node(child, nullptr);
    if (node.parentCount() != 1)
        return false;
    visitChildren(path, node, nameLength + 1 + lengthOf(node.name()));
    return true;
}

const InstancePaths& MeshPathWalk::pathsTo(const MObject& child)
{
    const MObjectHandle handle(child);
    const auto known = m_instanced.find(handle);
    return known != m_instanced.end() ? known->second : m_instanced.try_emplace(handle, child).first->second;
}

} // namespace tarvox::crowd
