// Object groups: the components of one instance of a shape that are in a set. A group is an element of the
// shape's instObjGroups[i].objectGroups. A groupId node tells it from all others and is known to the set;
// where history makes the geometry a groupParts node in it says which components are meant, else the group
// itself.
#pragma once

#include "components.h"
#include "dagPath.h"
#include "outcome.h"
#include "plug.h"

#include <string>
#include <vector>

namespace tvxhost::engine {

/// Whether a plug is a group: an element of objectGroups.
bool isObjectGroup(const Plug& plug);
/// Whether it is one for the components that history is yet to make, which has none of its own.
bool isFutureGroup(const Plug& plug);

/// The components of a group as they are written, "f[0:3]" each. Empty when it has none.
std::vector<std::string> groupTexts(const Plug& group);
/// The same as numbers; what names no components of the shape is left out.
Components groupComponents(const Plug& group);

/// The groups of a path's end that a set has.
std::vector<Plug> groupsIn(Node& set, const DagPath& path);

/// Puts components of a path's end into a set.
Outcome addToGroups(Node& set, const DagPath& path, const Components& components);
/// Takes components out of the groups that a set has; a group with none left is dissolved.
Outcome removeFromGroups(Node& set, const DagPath& path, const Components& components);
/// Takes all components of a path's end out of a set.
Outcome dissolveGroups(Node& set, const DagPath& path);
/// Before the history of a shape goes: its groups keep their components themselves, and there is no group for
/// what history would make.
Outcome settleGroups(DagNode& shape);

} // namespace tvxhost::engine
