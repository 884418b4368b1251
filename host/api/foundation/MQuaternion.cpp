// MQuaternion: a rotation as four numbers, for row vectors.
#include <maya/MEulerRotation.h>
#include <maya/MMatrix.h>
#include <maya/MQuaternion.h>
#include <maya/MVector.h>

#include <algorithm>
#include <cmath>
#include <ostream>

namespace {

double squaredLength(const MQuaternion& q)
{
    return q.x * q.x + q.y * q.y + q.z * q.z + q.w * q.w;
}

/// Any direction at a right angle to the given one.
MVector perpendicular(const MVector& direction)
{
    const MVector& helper =
        std::fabs(direction.x) < 0.9 * direction.length() ? MVector::xAxis : MVector::yAxis;
    return (direction ^ helper).normal();
}

} // namespace

const MQuaternion MQuaternion::identity;

MQuaternion::MQuaternion() : x(0.0), y(0.0), z(0.0), w(1.0) {}

MQuaternion::MQuaternion(const MQuaternion& src) : x(src.x), y(src.y), z(src.z), w(src.w) {}

MQuaternion::MQuaternion(double xx, double yy, double zz, double ww) : x(xx), y(yy), z(zz), w(ww) {}

MQuaternion::MQuaternion(const double q[4]) : x(q[0]), y(q[1]), z(q[2]), w(q[3]) {}

MQuaternion::MQuaternion(const MVector& a, const MVector& b) : MQuaternion(a, b, 1.0) {}

MQuaternion::MQuaternion(const MVector& a, const MVector& b, double angleFactor) : MQuaternion()
{
    MVector axis = a ^ b;
    if (axis.length() <= kQuaternionEpsilon * a.length() * b.length())
        axis = perpendicular(a);
    setAxisAngle(axis, a.angle(b) * angleFactor);
}

MQuaternion::MQuaternion(double angle, const MVector& axisb) : MQuaternion()
{
    setAxisAngle(axisb, angle);
}

MQuaternion::~MQuaternion() {}

MQuaternion& MQuaternion::operator=(const MQuaternion& src)
{
    x = src.x;
    y = src.y;
    z = src.z;
    w = src.w;
    return *this;
}

// The largest of the four components is taken from the diagonal, the others from sums beside it, so that
// nothing is divided by a small number.
MQuaternion& MQuaternion::operator=(const MMatrix& matrix)
{
    const auto& m = matrix.matrix;
    const double trace = m[0][0] + m[1][1] + m[2][2];
    if (trace > 0.0) {
        const double s = 2.0 * std::sqrt(trace + 1.0);
        *this =
            MQuaternion((m[1][2] - m[2][1]) / s, (m[2][0] - m[0][2]) / s, (m[0][1] - m[1][0]) / s, s / 4.0);
        return normalizeIt();
    }
    const int i = m[1][1] > m[0][0] ? (m[2][2] > m[1][1] ? 2 : 1) : (m[2][2] > m[0][0] ? 2 : 0);
    const int j = (i + 1) % 3;
    const int k = (j + 1) % 3;
    const double s = 2.0 * std::sqrt(std::max(1.0 + m[i][i] - m[j][j] - m[k][k], 0.0));
    double parts[3] = {};
    parts[i] = s / 4.0;
    parts[j] = (m[i][j] + m[j][i]) / s;
    parts[k] = (m[i][k] + m[k][i]) / s;
    *this = MQuaternion(parts[0], parts[1], parts[2], (m[j][k] - m[k][j]) / s);
    return normalizeIt();
}

MQuaternion& MQuaternion::operator=(const MEulerRotation& rotation)
{
    return *this = rotation.asQuaternion();
}

MMatrix MQuaternion::asMatrix() const
{
    const MQuaternion q = normal();
    const double m[4][4] = {{1.0 - 2.0 * (q.y * q.y + q.z * q.z), 2.0 * (q.x * q.y + q.z * q.w),
                             2.0 * (q.x * q.z - q.y * q.w), 0.0},
                            {2.0 * (q.x * q.y - q.z * q.w), 1.0 - 2.0 * (q.x * q.x + q.z * q.z),
                             2.0 * (q.y * q.z + q.x * q.w), 0.0},
                            {2.0 * (q.x * q.z + q.y * q.w), 2.0 * (q.y * q.z - q.x * q.w),
                             1.0 - 2.0 * (q.x * q.x + q.y * q.y), 0.0},
                            {0.0, 0.0, 0.0, 1.0}};
    return MMatrix(m);
}

MEulerRotation MQuaternion::asEulerRotation() const
{
    return MEulerRotation::decompose(asMatrix(), MEulerRotation::kXYZ);
}

MQuaternion& MQuaternion::setAxisAngle(const MVector& axis, double theta)
{
    const MVector v = axis.normal() * std::sin(theta / 2.0);
    return *this = MQuaternion(v.x, v.y, v.z, std::cos(theta / 2.0));
}

bool MQuaternion::getAxisAngle(MVector& axis, double& theta) const
{
    const MQuaternion q = normal();
    const MVector v(q.x, q.y, q.z);
    const double sine = v.length();
    theta = 2.0 * std::atan2(sine, q.w);
    axis = sine > 0.0 ? v / sine : MVector::xAxis;
    return sine > 0.0;
}

MQuaternion& MQuaternion::setToXAxis(double theta)
{
    return setAxisAngle(MVector::xAxis, theta);
}

MQuaternion& MQuaternion::setToYAxis(double theta)
{
    return setAxisAngle(MVector::yAxis, theta);
}

MQuaternion& MQuaternion::setToZAxis(double theta)
{
    return setAxisAngle(MVector::zAxis, theta);
}

MStatus MQuaternion::get(double dest[4]) const
{
    dest[0] = x;
    dest[1] = y;
    dest[2] = z;
    dest[3] = w;
    return MS::kSuccess;
}

double MQuaternion::operator[](unsigned int i) const
{
    return i == 0 ? x : i == 1 ? y : i == 2 ? z : w;
}

double& MQuaternion::operator[](unsigned int i)
{
    return i == 0 ? x : i == 1 ? y : i == 2 ? z : w;
}

MQuaternion MQuaternion::operator+(const MQuaternion& other) const
{
    return MQuaternion(x + other.x, y + other.y, z + other.z, w + other.w);
}

// Hamilton's product with the sides exchanged: rotations of row vectors compose from left to right, as their
// matrices do.
MQuaternion MQuaternion::operator*(const MQuaternion& other) const
{
    const MQuaternion& p = other;
    return MQuaternion(p.w * x + p.x * w + p.y * z - p.z * y, p.w * y + p.y * w + p.z * x - p.x * z,
                       p.w * z + p.z * w + p.x * y - p.y * x, p.w * w - p.x * x - p.y * y - p.z * z);
}

MQuaternion& MQuaternion::operator*=(const MQuaternion& rhs)
{
    return *this = *this * rhs;
}

MQuaternion MQuaternion::operator-(const MQuaternion& other) const
{
    return MQuaternion(x - other.x, y - other.y, z - other.z, w - other.w);
}

MQuaternion MQuaternion::operator-() const
{
    return MQuaternion(-x, -y, -z, -w);
}

MQuaternion& MQuaternion::negateIt()
{
    return *this = -*this;
}

bool MQuaternion::operator==(const MQuaternion& other) const
{
    return x == other.x && y == other.y && z == other.z && w == other.w;
}

bool MQuaternion::operator!=(const MQuaternion& other) const
{
    return !(*this == other);
}

bool MQuaternion::isEquivalent(const MQuaternion& other, double tolerance) const
{
    return std::fabs(x - other.x) <= tolerance && std::fabs(y - other.y) <= tolerance &&
           std::fabs(z - other.z) <= tolerance && std::fabs(w - other.w) <= tolerance;
}

MQuaternion& MQuaternion::scaleIt(double scale)
{
    return *this = MQuaternion(x * scale, y * scale, z * scale, w * scale);
}

MQuaternion MQuaternion::normal() const
{
    return MQuaternion(*this).normalizeIt();
}

MQuaternion& MQuaternion::normalizeIt()
{
    const double length = std::sqrt(squaredLength(*this));
    return length > 0.0 ? scaleIt(1.0 / length) : *this;
}

MQuaternion MQuaternion::conjugate() const
{
    return MQuaternion(-x, -y, -z, w);
}

MQuaternion& MQuaternion::conjugateIt()
{
    return *this = conjugate();
}

MQuaternion MQuaternion::inverse() const
{
    const double square = squaredLength(*this);
    return square > 0.0 ? conjugate().scaleIt(1.0 / square) : *this;
}

MQuaternion& MQuaternion::invertIt()
{
    return *this = inverse();
}

MQuaternion MQuaternion::log() const
{
    MVector axis;
    double theta = 0.0;
    getAxisAngle(axis, theta);
    const MVector v = axis * (theta / 2.0);
    return MQuaternion(v.x, v.y, v.z, 0.0);
}

MQuaternion MQuaternion::exp() const
{
    const MVector v(x, y, z);
    return MQuaternion(2.0 * v.length(), v);
}

MQuaternion::operator MMatrix() const
{
    return asMatrix();
}

MQuaternion operator*(double scale, const MQuaternion& quaternion)
{
    return MQuaternion(quaternion).scaleIt(scale);
}

std::ostream& operator<<(std::ostream& out, const MQuaternion& q)
{
    return out << '[' << q.x << ", " << q.y << ", " << q.z << ", " << q.w << ']';
}
