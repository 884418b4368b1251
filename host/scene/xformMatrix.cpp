// Matrices written as the parts of a transform; see xformMatrix.h.
#include "xformMatrix.h"

#include "engine/matrixParts.h"

#include <Imath/ImathQuat.h>

namespace tvxhost::scene {

using engine::Matrix;
using engine::rotation;
using engine::scaling;
using engine::shearing;
using engine::translation;
using engine::Vec3d;

namespace {

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
