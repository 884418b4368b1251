// The order of the three angles of a rotation, in the two numberings of the API, and as axes.
#pragma once

#include <maya/MEulerRotation.h>
#include <maya/MTransformationMatrix.h>

namespace tvxhost::api {

/// MTransformationMatrix counts from 1, MEulerRotation from 0; an order that does not exist is taken as xyz.
inline MEulerRotation::RotationOrder eulerOrder(MTransformationMatrix::RotationOrder order)
{
    return order > MTransformationMatrix::kInvalid && order < MTransformationMatrix::kLast
               ? static_cast<MEulerRotation::RotationOrder>(order - 1)
               : MEulerRotation::kXYZ;
}

inline MTransformationMatrix::RotationOrder transformOrder(MEulerRotation::RotationOrder order)
{
    return static_cast<MTransformationMatrix::RotationOrder>(order + 1);
}

inline bool isRotationOrder(MTransformationMatrix::RotationOrder order)
{
    return order > MTransformationMatrix::kInvalid && order < MTransformationMatrix::kLast;
}

/// The axes (0 to 2) in the order of rotation; `sign` is 1 when they follow each other as x, y, z do.
struct AxisOrder
{
    int first, second, third;
    double sign;
};

inline AxisOrder axesOf(MEulerRotation::RotationOrder order)
{
    static constexpr AxisOrder kOrders[] = {{0, 1, 2, 1.0},  {1, 2, 0, 1.0},  {2, 0, 1, 1.0},
                                            {0, 2, 1, -1.0}, {1, 0, 2, -1.0}, {2, 1, 0, -1.0}};
    return kOrders[order];
}

} // namespace tvxhost::api
