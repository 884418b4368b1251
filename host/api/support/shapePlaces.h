// Places on a shape, as callers of its function set mean them: in its own space or in the world.
#pragma once

#include "dagSet.h"
#include "handles.h"

#include <maya/MPoint.h>
#include <maya/MSpace.h>
#include <maya/MVector.h>

namespace tvxhost::api {

/// From the shape's own space to another.
inline engine::Matrix matrixTo(const MFnDagNode& set, MSpace::Space space)
{
    engine::DagNode* node = dagNodeOf(set);
    return space == MSpace::kWorld && node ? pathOf(set, *node).inclusiveMatrix() : engine::Matrix();
}

inline MPoint placed(const Imath::V3d& point, const engine::Matrix& matrix)
{
    const Imath::V3d there = point * matrix;
    return MPoint(there.x, there.y, there.z);
}

inline MVector turned(const Imath::V3d& vector, const engine::Matrix& matrix)
{
    Imath::V3d there;
    matrix.multDirMatrix(vector, there);
    return MVector(there.x, there.y, there.z);
}

/// From another space, whose matrix is inverted.
inline Imath::V3d taken(const MPoint& point, const engine::Matrix& inverse)
{
    return Imath::V3d(point.x, point.y, point.z) * inverse;
}

} // namespace tvxhost::api
