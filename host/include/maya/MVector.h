// MVector: a direction and length in space, double precision.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTransformationMatrix.h>
#include <maya/MTypes.h>

#include <cmath>

class MEulerRotation;
class MFloatPoint;
class MFloatVector;
class MMatrix;
class MPoint;
class MQuaternion;

#define MVector_kTol 1.0e-10

/// A direction with a length: three doubles. Unlike a point it is not moved by a translation.
class OPENMAYA_EXPORT MVector
{
public:
    enum Axis
    {
        kXaxis = 0,
        kYaxis = 1,
        kZaxis = 2,
        kWaxis = 3,
    };

    MVector() : x(0.0), y(0.0), z(0.0) {}
    MVector(const MVector& other) : x(other.x), y(other.y), z(other.z) {}
    MVector(const MFloatVector& other);
    /// From the origin to the point; w is dropped.
    MVector(const MPoint& point);
    MVector(const MFloatPoint& point);
    MVector(double xx, double yy, double zz = 0.0) : x(xx), y(yy), z(zz) {}
    MVector(const double d[3]) : x(d[0]), y(d[1]), z(d[2]) {}
    MVector(const float f[3]) : x(f[0]), y(f[1]), z(f[2]) {}
    ~MVector() {}

    MVector& operator=(const MVector& src)
    {
        x = src.x;
        y = src.y;
        z = src.z;
        return *this;
    }

    /// Component 0, 1 or 2. The index is not checked; a larger one gives the last component.
    double operator()(unsigned int i) const { return i == 0 ? x : i == 1 ? y : z; }
    double operator[](unsigned int i) const { return (*this)(i); }
    double& operator()(unsigned int i) { return i == 0 ? x : i == 1 ? y : z; }
    double& operator[](unsigned int i) { return (*this)(i); }

    /// The cross product.
    MVector operator^(const MVector& right) const
    {
        return MVector(y * right.z - z * right.y, z * right.x - x * right.z, x * right.y - y * right.x);
    }

    /// The dot product.
    double operator*(const MVector& right) const { return x * right.x + y * right.y + z * right.z; }

    MVector& operator*=(double scalar)
    {
        x *= scalar;
        y *= scalar;
        z *= scalar;
        return *this;
    }

    MVector& operator/=(double scalar)
    {
        x /= scalar;
        y /= scalar;
        z /= scalar;
        return *this;
    }

    MVector& operator+=(const MVector& other)
    {
        x += other.x;
        y += other.y;
        z += other.z;
        return *this;
    }

    MVector& operator-=(const MVector& other)
    {
        x -= other.x;
        y -= other.y;
        z -= other.z;
        return *this;
    }

    MVector operator*(double scalar) const { return MVector(x * scalar, y * scalar, z * scalar); }
    MVector operator/(double scalar) const { return MVector(x / scalar, y / scalar, z / scalar); }
    MVector operator+(const MVector& other) const { return MVector(x + other.x, y + other.y, z + other.z); }
    MVector operator-(const MVector& other) const { return MVector(x - other.x, y - other.y, z - other.z); }
    MVector operator-() const { return MVector(-x, -y, -z); }

    /// The row vector times the matrix, without its translation.
    MVector operator*(const MMatrix& matrix) const;
    MVector& operator*=(const MMatrix& matrix);

    /// Exact comparison of all components.
    bool operator==(const MVector& other) const { return x == other.x && y == other.y && z == other.z; }
    bool operator!=(const MVector& other) const { return !(*this == other); }

    /// The vector turned by a quaternion (its four parts), by three angles in radians in the given order, or
    /// about an axis by an angle in radians.
    MVector rotateBy(double qx, double qy, double qz, double qw) const;
    MVector rotateBy(const double rotXYZ[3], MTransformationMatrix::RotationOrder order) const;
    MVector rotateBy(Axis axis, const double angle) const;
    MVector rotateBy(const MQuaternion& rotation) const;
    MVector rotateBy(const MEulerRotation& rotation) const;

    /// The rotation that brings this direction to the other one the shortest way.
    MQuaternion rotateTo(const MVector& other) const;

    /// Copies the components out.
    MStatus get(double destination[3]) const
    {
        destination[0] = x;
        destination[1] = y;
        destination[2] = z;
        return MS::kSuccess;
    }

    double length() const { return std::sqrt(x * x + y * y + z * z); }

    /// The same direction with length 1. A vector without length stays as it is.
    MVector normal() const
    {
        MVector unit(*this);
        unit.normalize();
        return unit;
    }

    /// Gives the vector the length 1; leaves it as it is when it has no length.
    MStatus normalize()
    {
        const double size = length();
        if (size > 0.0)
            *this /= size;
        return MS::kSuccess;
    }

    /// The angle between the two, in radians, 0 to pi.
    double angle(const MVector& other) const;

    /// Whether no component differs by more than the tolerance.
    bool isEquivalent(const MVector& other, double tolerance = MVector_kTol) const
    {
        return std::fabs(x - other.x) <= tolerance && std::fabs(y - other.y) <= tolerance &&
               std::fabs(z - other.z) <= tolerance;
    }

    /// Whether the two, brought to length 1, have the same or the opposite direction.
    bool isParallel(const MVector& other, double tolerance = MVector_kTol) const;

    /// The vector as a surface normal: through the inverse's transpose of the matrix.
    MVector transformAsNormal(const MMatrix& matrix) const;

    static const MVector zero; ///< (0, 0, 0)
    static const MVector one;  ///< (1, 1, 1)
    static const MVector xAxis;
    static const MVector yAxis;
    static const MVector zAxis;
    static const MVector xNegAxis;
    static const MVector yNegAxis;
    static const MVector zNegAxis;

    double x;
    double y;
    double z;
};

// The other kinds of points and vectors, for the conversions below.
#include <maya/MFloatPoint.h>
#include <maya/MFloatVector.h>
#include <maya/MPoint.h>

inline MVector::MVector(const MFloatVector& other) : x(other.x), y(other.y), z(other.z) {}

inline MVector::MVector(const MPoint& point) : x(point.x), y(point.y), z(point.z) {}

inline MVector::MVector(const MFloatPoint& point) : x(point.x), y(point.y), z(point.z) {}

inline MVector operator*(double scalar, const MVector& vector)
{
    return vector * scalar;
}

inline MVector operator*(float scalar, const MVector& vector)
{
    return vector * scalar;
}

inline MVector operator*(int scalar, const MVector& vector)
{
    return vector * scalar;
}

inline MVector operator*(unsigned int scalar, const MVector& vector)
{
    return vector * scalar;
}

inline MVector operator*(short scalar, const MVector& vector)
{
    return vector * scalar;
}

inline MVector operator*(unsigned short scalar, const MVector& vector)
{
    return vector * scalar;
}

/// Writes "[x, y, z]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MVector& vector);
