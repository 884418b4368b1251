// Meshes: the geometry of a shape, and where it lives.
#pragma once

#include "geometry/meshData.h"
#include "node.h"

#include <functional>
#include <string>
#include <utility>

namespace tvxhost::engine {

/// The geometry of a mesh shape, the first of these that there is: what its history yields (a connected
/// `inMesh`), what `inMesh` holds (left by history that has gone, or given by storeMesh), what its attributes
/// say: `vt` points, `ed` edges, `fc` faces, `n` normals that were set. On top of it the tweaks `pt`. Null
/// for what is no mesh, for a mesh without points, and, with a warning, for one whose edges or faces name
/// things that are not there. Valid until the shape or its history changes; asking again costs nothing until
/// then.
///
/// The elements of `fc` are data of the type "polyFaces": one face each, as the words of a scene file
/// (see readFace), kept as KeptData.
const MeshData* meshOf(DagNode& shape);

/// Whether the shape's geometry comes from history: a connected `inMesh` that yields a mesh.
bool hasHistory(DagNode& shape);

/// Makes the data itself the geometry of a shape without history; tweaks are forgotten. The shape may change
/// the data: it must not be that of anything else.
void storeMesh(DagNode& shape, const Ref<Data>& mesh);

/// Gives a copy of a shape what the original's history yields or left; its attributes are copied otherwise.
void copyHeldMesh(DagNode& original, DagNode& copy);

/// New places of vertices by number, in object space.
using MovedPoints = std::vector<std::pair<std::int32_t, Vec3f>>;
/// Moves vertices as seen by meshOf: by tweaks where there is history, for good where there is none.
/// badIndex, and nothing moved, when there is no such vertex; noData when there is no mesh.
Outcome movePoints(DagNode& shape, const MovedPoints& moved);

/// Makes an edge smooth or hard. badIndex when there is no such edge, noData when there is no mesh, and
/// notWritable where the edges are those of history.
Outcome smoothEdge(DagNode& shape, std::int32_t edge, bool smooth);

/// Changes the normals that are set (MeshData::lockedNormals) and nothing else of a mesh.
using NormalEdit = std::function<void(MeshData& mesh)>;
/// Changes them for good. noData when there is no mesh, notWritable where history makes it.
Outcome editNormals(DagNode& shape, const NormalEdit& edit);

/// Changes the sets of texture coordinates and colours of a mesh, and which of their values its faces use;
/// nothing else of it.
using SetEdit = std::function<void(MeshData& mesh)>;
/// Changes them for good. noData when there is no mesh, notWritable where history makes them.
Outcome editSets(DagNode& shape, const SetEdit& edit);

/// The sets that are meant when none is named: those that the shape's `cuvs` and `ccls` say, else the first
/// ones. Empty for a mesh without colours, and when there is no mesh.
std::string currentUvSet(DagNode& shape);
std::string currentColorSet(DagNode& shape);
/// The attributes that say so, by long name.
inline constexpr const char* kCurrentUvSet = "currentUVSet";
inline constexpr const char* kCurrentColorSet = "currentColorSet";

/// Writes geometry that only `inMesh` holds to `vt`, `ed`, `fc` and `n`, as a file needs it.
void settleMesh(DagNode& shape);

} // namespace tvxhost::engine
