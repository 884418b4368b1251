// Aiming: see aiming.h.
#include "aiming.h"

#include "computeSupport.h"
#include "node.h"

namespace tvxhost::engine {

namespace {

enum class WorldUp
{
    scene = 0,
    object = 1,         ///< towards an object
    objectRotation = 2, ///< a direction of an object
    vector = 3,
};

} // namespace

Vec3d worldUp(Node& node, const Vec3d& place)
{
    const Matrix matrix = matrixOf(plugOf(node, "worldUpMatrix"));
    Vec3d up(0.0);
    switch (static_cast<WorldUp>(static_cast<int>(numberOf(node, "worldUpType")))) {
    case WorldUp::scene:
        return {0.0, 1.0, 0.0};
    case WorldUp::object:
        return matrix.translation() - place;
    case WorldUp::objectRotation:
        matrix.multDirMatrix(vectorOf(node, "worldUpVector"), up);
        return up;
    case WorldUp::vector:
        return vectorOf(node, "worldUpVector");
    }
    return up;
}

std::optional<Matrix> axesAlong(const Vec3d& direction, const Vec3d& up)
{
    const Vec3d first = direction.normalized();
    const Vec3d third = (first % up.normalized()).normalized();
    if (third.length2() == 0.0)
        return std::nullopt;
    const Vec3d second = third % first;
    return Matrix(first.x, first.y, first.z, 0.0, second.x, second.y, second.z, 0.0, third.x, third.y,
                  third.z, 0.0, 0.0, 0.0, 0.0, 1.0);
}

} // namespace tvxhost::engine
