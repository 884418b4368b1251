// Matrices written as the parts of a transform; see xformMatrix.h.
#include "xformMatrix.h"

#include <Imath/ImathEuler.h>
#include <Imath/ImathQuat.h>

#include <array>

namespace tvxhost::scene {

using engine::Matrix;
using engine::Vec3d;

namespace {

constexpr std::array kOrders = {Imath::Eulerd::XYZ, Imath::Eulerd::YZX, Imath::Eulerd::ZXY,
                                Imath::Eulerd::XZY, Imath::Eulerd::YXZ, Imath::Eulerd::ZYX};

Vec3d takeVector(Words& words)
{
    Vec3d vector;
    for (int i = 0; i < 3; ++i)
        vector[i] = words.number();
    return vector;
}

Matrix takeQuaternion(Words& words)
{
    const Vec3d axis = takeVector(words);
    const double w = words.number();
    return Imath::Quatd(w, axis).normalized().toMatrix44();
}

Matrix translation(const Vec3d& by)
{
    Matrix matrix;
    matrix.translate(by);
    return matrix;
}

Matrix scaling(const Vec3d& by)
{
    Matrix matrix;
    matrix.scale(by);
    return matrix;
}

Matrix rotation(const Vec3d& angles, int order)
{
    const std::size_t place = order >= 0 && order < static_cast<int>(kOrders.size())
                                  ? static_cast<std::size_t>(order)
                                  : std::size_t{0};
    Imath::Eulerd euler(angles, kOrders[place], Imath::Eulerd::XYZLayout);
    return euler.toMatrix44();
}

Matrix shearing(const Vec3d& shear)
{
    Matrix matrix;
    matrix[1][0] = shear.x;
    matrix[2][0] = shear.y;
    matrix[2][1] = shear.z;
    return matrix;
}

} // namespace

Matrix parseXformMatrix(Words& words)
{
    const Vec3d scale = takeVector(words);
    const Vec3d angles = takeVector(words);
    const int order = words.integer();
    const Vec3d translate = takeVector(words);
    const Vec3d shear = takeVector(words);
    const Vec3d scalePivot = takeVector(words);
    const Vec3d scaleTranslation = takeVector(words);
    const Vec3d rotatePivot = takeVector(words);
    const Vec3d rotateTranslation = takeVector(words);
    const Matrix rotateOrient = takeQuaternion(words);
    const Matrix jointOrient = takeQuaternion(words);
    const Vec3d inverseParentScale = takeVector(words);
    const bool compensates = words.number() != 0.0;
    Matrix matrix = translation(-scalePivot) * scaling(scale) * shearing(shear) *
                    translation(scalePivot + scaleTranslation - rotatePivot) * rotateOrient *
                    rotation(angles, order) * jointOrient;
    if (compensates)
        matrix = matrix * scaling(inverseParentScale);
    return matrix * translation(rotatePivot + rotateTranslation + translate);
}

} // namespace tvxhost::scene
