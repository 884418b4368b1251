// MVector: a direction and length in space, double precision.
#include <maya/MEulerRotation.h>
#include <maya/MMatrix.h>
#include <maya/MQuaternion.h>
#include <maya/MVector.h>

#include "support/rotationOrder.h"

#include <cmath>
#include <ostream>

const MVector MVector::zero(0.0, 0.0, 0.0);
const MVector MVector::one(1.0, 1.0, 1.0);
const MVector MVector::xAxis(1.0, 0.0, 0.0);
const MVector MVector::yAxis(0.0, 1.0, 0.0);
const MVector MVector::zAxis(0.0, 0.0, 1.0);
const MVector MVector::xNegAxis(-1.0, 0.0, 0.0);
const MVector MVector::yNegAxis(0.0, -1.0, 0.0);
const MVector MVector::zNegAxis(0.0, 0.0, -1.0);

MVector MVector::operator*(const MMatrix& matrix) const
{
    const auto column = [&](int c) {
        const auto& m = matrix.matrix;
        return x * m[0][c] + y * m[1][c] + z * m[2][c];
    };
    return MVector(column(0), column(1), column(2));
}

MVector& MVector::operator*=(const MMatrix& matrix)
{
    return *this = *this * matrix;
}

MVector MVector::rotateBy(double qx, double qy, double qz, double qw) const
{
    return rotateBy(MQuaternion(qx, qy, qz, qw));
}

MVector MVector::rotateBy(const double rotXYZ[3], MTransformationMatrix::RotationOrder order) const
{
    return rotateBy(MEulerRotation(rotXYZ[0], rotXYZ[1], rotXYZ[2], tvxhost::api::eulerOrder(order)));
}

MVector MVector::rotateBy(Axis axis, const double angle) const
{
    const MVector axes[] = {xAxis, yAxis, zAxis};
    return axis == kWaxis ? *this : rotateBy(MQuaternion(angle, axes[axis]));
}

MVector MVector::rotateBy(const MQuaternion& rotation) const
{
    return *this * rotation.asMatrix();
}

MVector MVector::rotateBy(const MEulerRotation& rotation) const
{
    return *this * rotation.asMatrix();
}

MQuaternion MVector::rotateTo(const MVector& other) const
{
    return MQuaternion(*this, other);
}

// The sine and the cosine together are exact for small angles, where the cosine alone is not.
double MVector::angle(const MVector& other) const
{
    return std::atan2((*this ^ other).length(), *this * other);
}

bool MVector::isParallel(const MVector& other, double tolerance) const
{
    return std::fabs(std::fabs(normal() * other.normal()) - 1.0) <= tolerance;
}

MVector MVector::transformAsNormal(const MMatrix& matrix) const
{
    return *this * matrix.inverse().transpose();
}

std::ostream& operator<<(std::ostream& out, const MVector& vector)
{
    return out << '[' << vector.x << ", " << vector.y << ", " << vector.z << ']';
}
