// The matrices that a transform is put together from, for row vectors.
#pragma once

#include "data.h"

namespace tvxhost::engine {

/// Moves by a vector.
Matrix translation(const Vec3d& by);

/// Scales by three factors.
Matrix scaling(const Vec3d& by);

/// x takes part of y (`shear.x`) and of z (`shear.y`), y takes part of z (`shear.z`).
Matrix shearing(const Vec3d& shear);

/// `angles` in radians about x, y and z; `order` as in the attribute rotateOrder: xyz yzx zxy xzy yxz zyx,
/// first axis first. An order that does not exist is taken as xyz.
Matrix rotation(const Vec3d& angles, int order);

} // namespace tvxhost::engine
