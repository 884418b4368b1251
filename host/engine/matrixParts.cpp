// Parts of transforms: see matrixParts.h.
#include "matrixParts.h"

#include <Imath/ImathEuler.h>
#include <Imath/ImathMatrixAlgo.h>

#include <cmath>

namespace tvxhost::engine {

namespace {

using AxisOrder = std::array<int, 3>;

constexpr std::array<AxisOrder, 6> kOrders = {
    {{0, 1, 2}, {1, 2, 0}, {2, 0, 1}, {0, 2, 1}, {1, 0, 2}, {2, 1, 0}}};

constexpr std::array<Imath::Eulerd::Order, kOrders.size()> kEulerOrders = {
    Imath::Eulerd::XYZ, Imath::Eulerd::YZX, Imath::Eulerd::ZXY,
    Imath::Eulerd::XZY, Imath::Eulerd::YXZ, Imath::Eulerd::ZYX};

std::size_t placeOf(int order)
{
    const bool exists = order >= 0 && order < static_cast<int>(kOrders.size());
    return exists ? static_cast<std::size_t>(order) : 0;
}

Matrix rotationAbout(int axis, double angle)
{
    const int j = (axis + 1) % 3;
    const int k = (axis + 2) % 3;
    Matrix m;
    m[j][j] = m[k][k] = std::cos(angle);
    m[j][k] = std::sin(angle);
    m[k][j] = -m[j][k];
    return m;
}

} // namespace

Matrix translation(const Vec3d& by)
{
    Matrix m;
    m.setTranslation(by);
    return m;
}

Matrix scaling(const Vec3d& by)
{
    Matrix m;
    m.setScale(by);
    return m;
}

Matrix shearing(const Vec3d& shear)
{
    Matrix m;
    m[1][0] = shear.x;
    m[2][0] = shear.y;
    m[2][1] = shear.z;
    return m;
}

const AxisOrder& axesOf(int order)
{
    return kOrders[placeOf(order)];
}

Matrix rotation(const Vec3d& angles, int order)
{
    Matrix m;
    for (const int axis : axesOf(order))
        m *= rotationAbout(axis, angles[axis]);
    return m;
}

MatrixPieces takeApart(const Matrix& matrix)
{
    MatrixPieces pieces;
    pieces.translation = matrix.translation();
    pieces.rotation = matrix;
    if (!Imath::extractAndRemoveScalingAndShear(pieces.rotation, pieces.scale, pieces.shear, false))
        pieces.rotation.makeIdentity();
    return pieces;
}

Vec3d anglesOf(const Matrix& rotation, int order)
{
    Imath::Eulerd angles(kEulerOrders[placeOf(order)]);
    angles.extract(rotation);
    return angles.toXYZVector();
}

} // namespace tvxhost::engine
