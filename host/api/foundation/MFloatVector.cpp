// MFloatVector: a direction and length in space, single precision.
#include <maya/MFloatMatrix.h>
#include <maya/MFloatVector.h>

#include <cmath>
#include <ostream>

const MFloatVector MFloatVector::zero(0.0f, 0.0f, 0.0f);
const MFloatVector MFloatVector::one(1.0f, 1.0f, 1.0f);
const MFloatVector MFloatVector::xAxis(1.0f, 0.0f, 0.0f);
const MFloatVector MFloatVector::yAxis(0.0f, 1.0f, 0.0f);
const MFloatVector MFloatVector::zAxis(0.0f, 0.0f, 1.0f);
const MFloatVector MFloatVector::xNegAxis(-1.0f, 0.0f, 0.0f);
const MFloatVector MFloatVector::yNegAxis(0.0f, -1.0f, 0.0f);
const MFloatVector MFloatVector::zNegAxis(0.0f, 0.0f, -1.0f);

MFloatVector MFloatVector::operator*(const MFloatMatrix& matrix) const
{
    const auto column = [&](int c) {
        const auto& m = matrix.matrix;
        return x * m[0][c] + y * m[1][c] + z * m[2][c];
    };
    return MFloatVector(column(0), column(1), column(2));
}

MFloatVector& MFloatVector::operator*=(const MFloatMatrix& matrix)
{
    return *this = *this * matrix;
}

// The sine and the cosine together are exact for small angles, where the cosine alone is not.
float MFloatVector::angle(const MFloatVector& other) const
{
    return std::atan2((*this ^ other).length(), *this * other);
}

bool MFloatVector::isEquivalent(const MFloatVector& other, float tolerance) const
{
    return std::fabs(x - other.x) <= tolerance && std::fabs(y - other.y) <= tolerance &&
           std::fabs(z - other.z) <= tolerance;
}

bool MFloatVector::isParallel(const MFloatVector& other, float tolerance) const
{
    return std::fabs(std::fabs(normal() * other.normal()) - 1.0f) <= tolerance;
}

MFloatVector MFloatVector::transformAsNormal(const MFloatMatrix& matrix) const
{
    return *this * matrix.inverse().transpose();
}

std::ostream& operator<<(std::ostream& out, const MFloatVector& vector)
{
    return out << '[' << vector.x << ", " << vector.y << ", " << vector.z << ']';
}
