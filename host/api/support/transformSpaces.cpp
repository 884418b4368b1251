// The parts of a transform as they are seen from a space; see transformSpaces.h.
#include "transformSpaces.h"

#include "engine/builtinTypes.h"
#include "matrix4.h"

namespace tvxhost::api {

namespace {

MQuaternion rotationOf(const MMatrix& matrix)
{
    Transformation parts;
    parts.decompose(matrix);
    return parts.rotation.asQuaternion();
}

} // namespace

Parents parentsOf(const engine::DagPath& path)
{
    if (!engine::inheritsTransform(*path.node()))
        return {};
    const auto matrix = fromImath<MMatrix>(path.exclusiveMatrix());
    return {matrix, rotationOf(matrix)};
}

MMatrix toSpace(const Transformation& parts, const Parents& parents, MSpace::Space space)
{
    return isBehind(space) ? parts.matrix() * parents.matrix : MMatrix();
}

MQuaternion rotationIn(const Transformation& parts, const Parents& parents, MSpace::Space space)
{
    const MQuaternion own = parts.rotation.asQuaternion();
    return space == MSpace::kWorld ? parts.orientation * own * parents.rotation : own;
}

void setRotationIn(Transformation& parts, const Parents& parents, MSpace::Space space,
                   const MQuaternion& rotation)
{
    const MEulerRotation before = parts.rotation;
    parts.rotation = space == MSpace::kWorld
                         ? parts.orientation.inverse() * rotation * parents.rotation.inverse()
                         : rotation;
    parts.rotation.setToClosestSolution(before);
}

void turn(Transformation& parts, const Parents& parents, MSpace::Space space, const MQuaternion& rotation)
{
    parts.rotateBy(
        space == MSpace::kWorld ? parents.rotation * rotation * parents.rotation.inverse() : rotation, space);
}

MVector translationIn(const Transformation& parts, const Parents& parents)
{
    return MVector(MPoint(parts.translation) * parents.matrix);
}

void shift(Transformation& parts, const Parents& parents, const MVector& from, const MVector& to)
{
    parts.translation += (to - from) * parents.matrix.inverse();
}

} // namespace tvxhost::api
