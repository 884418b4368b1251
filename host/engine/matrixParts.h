// The matrices that a transform is put together from and taken apart into, for row vectors.
#pragma once

#include "data.h"

#include <array>

namespace tvxhost::engine {

/// Moves by a vector.
Matrix translation(const Vec3d& by);

/// Scales by three factors.
Matrix scaling(const Vec3d& by);

/// x takes part of y (`shear.x`) and of z (`shear.y`), y takes part of z (`shear.z`).
Matrix shearing(const Vec3d& shear);

/// The axes (0 to 2) of an order of rotation, the first one first. Orders are numbered as in the attribute
/// rotateOrder: xyz yzx zxy xzy yxz zyx; one that does not exist is taken as xyz.
const std::array<int, 3>& axesOf(int order);

/// `angles` in radians about x, y and z.
Matrix rotation(const Vec3d& angles, int order);

/// A matrix taken apart: p' = p * scale * shear * rotation * translation.
struct MatrixPieces
{
    Vec3d scale{1.0};
    Vec3d shear{0.0};
    Vec3d translation{0.0};
    Matrix rotation;
};

/// A matrix without volume has no rotation to be found: then it is none.
MatrixPieces takeApart(const Matrix& matrix);

/// The angles in radians about x, y and z that make a rotation in an order (see `rotation`). The middle axis
/// turns by a quarter at most.
Vec3d anglesOf(const Matrix& rotation, int order);

} // namespace tvxhost::engine
