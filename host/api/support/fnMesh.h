// What the files of MFnMesh share.
#pragma once

#include "apiCall.h"
#include "dagSet.h"
#include "meshTarget.h"

class MFnMesh;

namespace tvxhost::api {

/// What a set is attached to, and its path when the set was built on one.
MeshTarget targetOf(const MFnMesh& set);

/// Runs `use(mesh)`, which returns a status.
template <class Use>
MStatus withMesh(const MFnMesh& set, const Use& use)
{
    const MeshTarget target = targetOf(set);
    const engine::MeshData* mesh = target.mesh();
    return mesh ? use(*mesh) : target.status();
}

/// What `read(mesh)` gives; 0 without a mesh.
template <class Read>
int readMesh(const MFnMesh& set, MStatus* returnStatus, const Read& read)
{
    int value = 0;
    give(returnStatus, withMesh(set, [&](const engine::MeshData& mesh) -> MStatus {
             value = static_cast<int>(read(mesh));
             return MS::kSuccess;
         }));
    return value;
}

/// Runs `use(mesh, matrix)`, which returns a status, with the matrix to a space.
template <class Use>
MStatus withPlacedMesh(const MFnMesh& set, MSpace::Space space, const Use& use)
{
    return withMesh(set, [&](const engine::MeshData& mesh) {
        engine::Matrix matrix;
        const MStatus status = targetOf(set).placement(space, matrix);
        return status ? use(mesh, matrix) : status;
    });
}

/// kInvalidParameter unless there is what was asked for.
inline MStatus requireThere(bool exists)
{
    return exists ? MStatus() : failure(StatusText::noElementAtIndex);
}

/// Runs `use(mesh, number)` for one of the mesh's items; kInvalidParameter when there is none.
template <class Use>
MStatus withFace(const MFnMesh& set, int face, const Use& use)
{
    return withMesh(set, [&](const engine::MeshData& mesh) {
        const MStatus status = requireThere(mesh.hasFace(face));
        return status ? use(mesh, static_cast<std::size_t>(face)) : status;
    });
}

/// The same for an edge: `use(edge)`.
template <class Use>
MStatus withEdge(const MFnMesh& set, int edge, const Use& use)
{
    return withMesh(set, [&](const engine::MeshData& mesh) {
        const MStatus status = requireThere(mesh.hasEdge(edge));
        return status ? use(mesh.edges[static_cast<std::size_t>(edge)]) : status;
    });
}

} // namespace tvxhost::api
