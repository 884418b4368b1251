// The parts of a transform as they are seen from a space: what MFnTransform and the commands share.
#pragma once

#include "engine/dagPath.h"
#include "transformation.h"

namespace tvxhost::api {

/// What stands above a transform on its path; nothing by default, and for a node that inherits no transform.
struct Parents
{
    MMatrix matrix;
    MQuaternion rotation; ///< what is left of the matrix without scale and shear
};

Parents parentsOf(const engine::DagPath& path);

/// From the node's points to a space behind the transformation; the identity for the spaces before it.
MMatrix toSpace(const Transformation& parts, const Parents& parents, MSpace::Space space);

/// The rotation as seen from a space: in the world with the rotation of the axes and that of the parents.
MQuaternion rotationIn(const Transformation& parts, const Parents& parents, MSpace::Space space);
/// Becomes the rotation that looks so from a space; of the possible angles the nearest.
void setRotationIn(Transformation& parts, const Parents& parents, MSpace::Space space,
                   const MQuaternion& rotation);
/// Turns further; in the world about its axes.
void turn(Transformation& parts, const Parents& parents, MSpace::Space space, const MQuaternion& rotation);

/// The translation as a point of the world (or, without parents, of the parent's space).
MVector translationIn(const Transformation& parts, const Parents& parents);
/// Moves so that a point of the world (the parent's space) that was at `from` comes to `to`.
void shift(Transformation& parts, const Parents& parents, const MVector& from, const MVector& to);

} // namespace tvxhost::api
