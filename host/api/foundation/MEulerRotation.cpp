// MEulerRotation: a rotation as three angles.
#include <maya/MEulerRotation.h>
#include <maya/MMatrix.h>
#include <maya/MQuaternion.h>
#include <maya/MVector.h>

#include "support/rotationOrder.h"

#include <cmath>
#include <ostream>

using namespace tvxhost::api;

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kFullTurn = 2.0 * kPi;
/// Below this cosine of the middle angle the outer two turn about the same axis.
constexpr double kGimbalCosine = 1.0e-12;

constexpr const char* kOrderNames[] = {"kXYZ", "kYZX", "kZXY", "kXZY", "kYXZ", "kZYX"};

MEulerRotation::RotationOrder reversed(MEulerRotation::RotationOrder order)
{
    static constexpr MEulerRotation::RotationOrder kReversed[] = {MEulerRotation::kZYX, MEulerRotation::kXZY,
                                                                  MEulerRotation::kYXZ, MEulerRotation::kYZX,
                                                                  MEulerRotation::kZXY, MEulerRotation::kXYZ};
    return kReversed[order];
}

/// Moves an angle by full turns to where it is nearest to another.
double nearest(double angle, double to)
{
    return angle + kFullTurn * std::round((to - angle) / kFullTurn);
}

double distance(const MEulerRotation& a, const MEulerRotation& b)
{
    return std::fabs(a.x - b.x) + std::fabs(a.y - b.y) + std::fabs(a.z - b.z);
}

/// The axes of the matrix with length 1; a mirrored matrix is turned right-handed first.
MMatrix rotationPart(const MMatrix& matrix)
{
    MMatrix result = matrix.homogenize();
    if (result.det3x3() < 0.0)
        for (int row = 0; row < 3; ++row)
            for (int column = 0; column < 3; ++column)
                result.matrix[row][column] = -result.matrix[row][column];
    return result;
}

} // namespace

const MEulerRotation MEulerRotation::identity;

MEulerRotation::MEulerRotation() : x(0.0), y(0.0), z(0.0), order(kXYZ) {}

MEulerRotation::MEulerRotation(const MEulerRotation& src) : x(src.x), y(src.y), z(src.z), order(src.order) {}

MEulerRotation::MEulerRotation(const MVector& v, RotationOrder ord) : x(v.x), y(v.y), z(v.z), order(ord) {}

MEulerRotation::MEulerRotation(double xx, double yy, double zz, RotationOrder ord)
    : x(xx), y(yy), z(zz), order(ord)
{
}

MEulerRotation::~MEulerRotation() {}

MEulerRotation& MEulerRotation::operator=(const MEulerRotation& src)
{
    x = src.x;
    y = src.y;
    z = src.z;
    order = src.order;
    return *this;
}

MEulerRotation& MEulerRotation::operator=(const MQuaternion& q)
{
    return *this = q.asMatrix();
}

MEulerRotation& MEulerRotation::operator=(const MMatrix& m)
{
    return *this = decompose(m, order);
}

MEulerRotation& MEulerRotation::operator=(const MVector& v)
{
    return setValue(v, order);
}

MEulerRotation& MEulerRotation::setValue(const MVector& v, RotationOrder ord)
{
    return *this = MEulerRotation(v, ord);
}

MEulerRotation& MEulerRotation::setValue(double xx, double yy, double zz, RotationOrder ord)
{
    return *this = MEulerRotation(xx, yy, zz, ord);
}

MQuaternion MEulerRotation::asQuaternion() const
{
    const MQuaternion turns[] = {MQuaternion().setToXAxis(x), MQuaternion().setToYAxis(y),
                                 MQuaternion().setToZAxis(z)};
    const AxisOrder axes = axesOf(order);
    return turns[axes.first] * turns[axes.second] * turns[axes.third];
}

MMatrix MEulerRotation::asMatrix() const
{
    return asQuaternion().asMatrix();
}

MVector MEulerRotation::asVector() const
{
    return MVector(x, y, z);
}

double MEulerRotation::operator[](unsigned int i) const
{
    return i == 0 ? x : i == 1 ? y : z;
}

double& MEulerRotation::operator[](unsigned int i)
{
    return i == 0 ? x : i == 1 ? y : z;
}

MEulerRotation MEulerRotation::operator+(const MEulerRotation& other) const
{
    const MEulerRotation same = other.reorder(order);
    return MEulerRotation(x + same.x, y + same.y, z + same.z, order);
}

MEulerRotation& MEulerRotation::operator+=(const MEulerRotation& other)
{
    return *this = *this + other;
}

MEulerRotation MEulerRotation::operator-(const MEulerRotation& other) const
{
    return *this + -other.reorder(order);
}

MEulerRotation& MEulerRotation::operator-=(const MEulerRotation& other)
{
    return *this = *this - other;
}

MEulerRotation MEulerRotation::operator-() const
{
    return MEulerRotation(-x, -y, -z, order);
}

MEulerRotation MEulerRotation::operator*(const MEulerRotation& other) const
{
    return *this * other.asQuaternion();
}

MEulerRotation MEulerRotation::operator*(const MQuaternion& other) const
{
    MEulerRotation product(*this);
    return product = asQuaternion() * other;
}

MEulerRotation MEulerRotation::operator*(double other) const
{
    return MEulerRotation(x * other, y * other, z * other, order);
}

MEulerRotation& MEulerRotation::operator*=(const MEulerRotation& other)
{
    return *this = *this * other;
}

MEulerRotation& MEulerRotation::operator*=(const MQuaternion& other)
{
    return *this = *this * other;
}

MEulerRotation& MEulerRotation::operator*=(double other)
{
    return *this = *this * other;
}

bool MEulerRotation::operator==(const MEulerRotation& other) const
{
    return x == other.x && y == other.y && z == other.z && order == other.order;
}

bool MEulerRotation::operator!=(const MEulerRotation& other) const
{
    return !(*this == other);
}

bool MEulerRotation::isEquivalent(const MEulerRotation& other, double tolerance) const
{
    return order == other.order && asVector().isEquivalent(other.asVector(), tolerance);
}

bool MEulerRotation::isZero(double tolerance) const
{
    return asVector().isEquivalent(MVector::zero, tolerance);
}

MEulerRotation& MEulerRotation::incrementalRotateBy(const MVector& axis, double angle)
{
    const MEulerRotation before(*this);
    *this *= MQuaternion(angle, axis);
    return setToClosestSolution(before);
}

MEulerRotation MEulerRotation::inverse() const
{
    return MEulerRotation(-x, -y, -z, reversed(order));
}

MEulerRotation& MEulerRotation::invertIt()
{
    return *this = inverse();
}

MEulerRotation MEulerRotation::reorder(RotationOrder ord) const
{
    return ord == order ? *this : decompose(asMatrix(), ord);
}

MEulerRotation& MEulerRotation::reorderIt(RotationOrder ord)
{
    return *this = reorder(ord);
}

MEulerRotation MEulerRotation::bound() const
{
    return bound(*this);
}

MEulerRotation MEulerRotation::bound(const MEulerRotation& src)
{
    return closestCut(src, MEulerRotation(0.0, 0.0, 0.0, src.order));
}

MEulerRotation& MEulerRotation::boundIt(const MEulerRotation& src)
{
    return *this = bound(src);
}

MEulerRotation& MEulerRotation::boundIt()
{
    return boundIt(*this);
}

MEulerRotation MEulerRotation::alternateSolution() const
{
    return alternateSolution(*this);
}

// Half a turn about the first and the third axis, and the supplement of the middle angle, end at the same
// place.
MEulerRotation MEulerRotation::alternateSolution(const MEulerRotation& src)
{
    const auto middle = static_cast<unsigned int>(axesOf(src.order).second);
    MEulerRotation other(src.x + kPi, src.y + kPi, src.z + kPi, src.order);
    other[middle] = kPi - src[middle];
    return bound(other);
}

MEulerRotation& MEulerRotation::setToAlternateSolution(const MEulerRotation& src)
{
    return *this = alternateSolution(src);
}

MEulerRotation& MEulerRotation::setToAlternateSolution()
{
    return setToAlternateSolution(*this);
}

MEulerRotation MEulerRotation::closestSolution(const MEulerRotation& dst) const
{
    return closestSolution(*this, dst);
}

MEulerRotation MEulerRotation::closestSolution(const MEulerRotation& src, const MEulerRotation& dst)
{
    const MEulerRotation one = closestCut(src, dst);
    const MEulerRotation other = closestCut(alternateSolution(src), dst);
    return distance(one, dst) <= distance(other, dst) ? one : other;
}

MEulerRotation& MEulerRotation::setToClosestSolution(const MEulerRotation& src, const MEulerRotation& dst)
{
    return *this = closestSolution(src, dst);
}

MEulerRotation& MEulerRotation::setToClosestSolution(const MEulerRotation& dst)
{
    return setToClosestSolution(*this, dst);
}

MEulerRotation MEulerRotation::closestCut(const MEulerRotation& dst) const
{
    return closestCut(*this, dst);
}

MEulerRotation MEulerRotation::closestCut(const MEulerRotation& src, const MEulerRotation& dst)
{
    return MEulerRotation(nearest(src.x, dst.x), nearest(src.y, dst.y), nearest(src.z, dst.z), src.order);
}

MEulerRotation& MEulerRotation::setToClosestCut(const MEulerRotation& src, const MEulerRotation& dst)
{
    return *this = closestCut(src, dst);
}

MEulerRotation& MEulerRotation::setToClosestCut(const MEulerRotation& dst)
{
    return setToClosestCut(*this, dst);
}

// With the middle angle at a right angle only the sum of the outer ones is determined: the third is 0 then.
MEulerRotation MEulerRotation::decompose(const MMatrix& matrix, RotationOrder ord)
{
    const MMatrix rotation = rotationPart(matrix);
    const auto& m = rotation.matrix;
    const auto [i, j, k, sign] = axesOf(ord);
    const double cosine = std::hypot(m[i][i], m[i][j]);
    double angles[3] = {};
    angles[j] = std::atan2(-sign * m[i][k], cosine);
    if (cosine > kGimbalCosine) {
        angles[i] = std::atan2(sign * m[j][k], m[k][k]);
        angles[k] = std::atan2(sign * m[i][j], m[i][i]);
    } else {
        angles[i] = std::atan2(-sign * m[k][j], m[j][j]);
    }
    return MEulerRotation(angles[0], angles[1], angles[2], ord);
}

MEulerRotation operator*(double scale, const MEulerRotation& rotation)
{
    return rotation * scale;
}

std::ostream& operator<<(std::ostream& out, const MEulerRotation& rotation)
{
    return out << '[' << rotation.x << ", " << rotation.y << ", " << rotation.z << ", "
               << kOrderNames[rotation.order] << ']';
}
