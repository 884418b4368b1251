// Function sets of DAG nodes: what is built on a path and what on an object.
#pragma once

#include "functionSet.h"

namespace tvxhost::api {

/// Attaches a set to a node; it cannot say then which instance is meant.
OPENMAYA_EXPORT MStatus attachTo(MFnDagNode& set, const MObject& object);
/// Attaches a set to the node at the end of a path, or to the shape below it when that is what the set is
/// for; the set then knows which instance is meant.
OPENMAYA_EXPORT MStatus attachTo(MFnDagNode& set, const MDagPath& path);

/// The path that a set was built on; null when it was built on an object or the path is no longer there.
OPENMAYA_EXPORT const engine::DagPath* ownPathOf(const MFnDagNode& set);
/// That path, or the first one to the set's node.
OPENMAYA_EXPORT engine::DagPath pathOf(const MFnDagNode& set, engine::DagNode& node);

} // namespace tvxhost::api
