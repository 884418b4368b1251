// Transformation: the parts of a transform's matrix, and the arithmetic on them.
#include "transformation.h"

#include <array>
#include <cmath>

namespace tvxhost::api {

namespace {

using Axes = std::array<MVector, 3>;

constexpr double kNoLength = 1.0e-300;

MVector rowOf(const MMatrix& matrix, int row)
{
    return MVector(matrix.matrix[row]);
}

MMatrix fromAxes(const Axes& axes)
{
    MMatrix matrix;
    for (int row = 0; row < 3; ++row)
        axes[static_cast<std::size_t>(row)].get(matrix.matrix[row]);
    return matrix;
}

bool isDirection(const MVector& v)
{
    return v.length() > 0.5;
}

/// Gives axes that have no length the direction that the others leave them.
void complete(Axes& axes)
{
    for (std::size_t i = 0; i < 3; ++i) {
        if (isDirection(axes[i]))
            continue;
        const MVector& next = axes[(i + 1) % 3];
        const MVector& last = axes[(i + 2) % 3];
        if (isDirection(next) && isDirection(last)) {
            axes[i] = next ^ last;
            continue;
        }
        const MVector& known = isDirection(next) ? next : last;
        const MVector helper = std::fabs(known.x) < 0.9 ? MVector(1.0, 0.0, 0.0) : MVector(0.0, 1.0, 0.0);
        axes[i] = isDirection(known) ? (helper ^ known).normal() : helper;
    }
}

/// Length of a vector, which gets length 1 (or none at all).
double takeLength(MVector& v)
{
    const double length = v.length();
    v = length > kNoLength ? v / length : MVector();
    return length > kNoLength ? length : 0.0;
}

double quotient(double a, double b)
{
    return b != 0.0 ? a / b : 0.0;
}

MQuaternion share(const MQuaternion& whole, double part)
{
    return whole.log().scaleIt(part).exp();
}

/// What a pivot's translation must become for the whole to stay when the pivot moves by `step`.
MVector balanced(const MVector& pivotTranslation, const MVector& step, const MMatrix& linear)
{
    return pivotTranslation + step * linear - step;
}

} // namespace

MMatrix translationMatrix(const MVector& offset)
{
    MMatrix matrix;
    offset.get(matrix.matrix[3]);
    return matrix;
}

MMatrix Transformation::scaleMatrix() const
{
    const double m[4][4] = {{scale.x, 0.0, 0.0, 0.0},
                            {scale.y * shear.x, scale.y, 0.0, 0.0},
                            {scale.z * shear.y, scale.z * shear.z, scale.z, 0.0},
                            {0.0, 0.0, 0.0, 1.0}};
    return MMatrix(m);
}

MMatrix Transformation::rotationMatrix() const
{
    return orientation.asMatrix() * rotation.asMatrix();
}

MMatrix Transformation::matrix() const
{
    return translationMatrix(-scalePivot) * scaleMatrix() *
           translationMatrix(scalePivot + scalePivotTranslation - rotatePivot) * rotationMatrix() *
           translationMatrix(rotatePivot + rotatePivotTranslation + translation);
}

Transformation Transformation::partial(double part) const
{
    Transformation result(*this);
    result.scale = MVector(1.0, 1.0, 1.0) + (scale - MVector(1.0, 1.0, 1.0)) * part;
    result.shear *= part;
    result.rotation = share(rotation.asQuaternion(), part);
    result.orientation = share(orientation, part);
    result.translation *= part;
    return result;
}

void Transformation::rotateBy(const MQuaternion& turn, MSpace::Space space)
{
    const MEulerRotation before = rotation;
    const MQuaternion present = rotation.asQuaternion();
    rotation = isBehind(space) ? present * turn : turn * present;
    rotation.setToClosestSolution(before);
}

void Transformation::translateBy(const MVector& offset, MSpace::Space space)
{
    translation += space == MSpace::kObject ? offset * matrix() : offset;
}

void Transformation::setScalePivot(const MVector& pivot, bool balance)
{
    if (balance)
        scalePivotTranslation = balanced(scalePivotTranslation, pivot - scalePivot, scaleMatrix());
    scalePivot = pivot;
}

void Transformation::setRotatePivot(const MVector& pivot, bool balance)
{
    if (balance)
        rotatePivotTranslation = balanced(rotatePivotTranslation, pivot - rotatePivot, rotationMatrix());
    rotatePivot = pivot;
}

// Rows are scale times (shear of the axes before) plus the axis: each axis is what is left of its row when
// the ones before are taken out.
void Transformation::decompose(const MMatrix& matrix)
{
    const MEulerRotation::RotationOrder order = rotation.order;
    *this = Transformation();
    translation = rowOf(matrix, 3);

    Axes axes;
    const MVector rows[] = {rowOf(matrix, 0), rowOf(matrix, 1), rowOf(matrix, 2)};
    axes[0] = rows[0];
    scale.x = takeLength(axes[0]);
    axes[1] = rows[1] - axes[0] * (rows[1] * axes[0]);
    scale.y = takeLength(axes[1]);
    axes[2] = rows[2] - axes[0] * (rows[2] * axes[0]) - axes[1] * (rows[2] * axes[1]);
    scale.z = takeLength(axes[2]);
    shear = MVector(quotient(rows[1] * axes[0], scale.y), quotient(rows[2] * axes[0], scale.z),
                    quotient(rows[2] * axes[1], scale.z));
    complete(axes);

    // A mirrored matrix has no rotation: all three axes are turned round, and the scale with them.
    if ((axes[0] ^ axes[1]) * axes[2] < 0.0) {
        for (MVector& axis : axes)
            axis = -axis;
        scale = -scale;
    }
    rotation = MEulerRotation::decompose(fromAxes(axes), order);
}

} // namespace tvxhost::api
