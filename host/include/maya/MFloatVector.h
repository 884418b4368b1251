// MFloatVector: a direction and length in space, single precision.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <cmath>

class MFloatMatrix;
class MFloatPoint;
class MPoint;
class MVector;

#define MFloatVector_kTol 1.0e-5f

/// A direction with a length: three floats. Unlike a point it is not moved by a translation.
class OPENMAYA_EXPORT MFloatVector
{
public:
    MFloatVector() : x(0.0f), y(0.0f), z(0.0f) {}
    MFloatVector(const MFloatVector& other) : x(other.x), y(other.y), z(other.z) {}
    MFloatVector(const MVector& other);
    /// From the origin to the point; w is dropped.
    MFloatVector(const MFloatPoint& point);
    MFloatVector(const MPoint& point);
    MFloatVector(float xx, float yy, float zz = 0.0f) : x(xx), y(yy), z(zz) {}
    MFloatVector(const float f[3]) : x(f[0]), y(f[1]), z(f[2]) {}
    MFloatVector(const double d[3])
        : x(static_cast<float>(d[0])), y(static_cast<float>(d[1])), z(static_cast<float>(d[2]))
    {
    }
    ~MFloatVector() {}

    MFloatVector& operator=(const MFloatVector& src)
    {
        x = src.x;
        y = src.y;
        z = src.z;
        return *this;
    }

    /// Component 0, 1 or 2. The index is not checked; a larger one gives the last component.
    float operator()(unsigned int i) const { return i == 0 ? x : i == 1 ? y : z; }
    float operator[](unsigned int i) const { return (*this)(i); }
    float& operator()(unsigned int i) { return i == 0 ? x : i == 1 ? y : z; }
    float& operator[](unsigned int i) { return (*this)(i); }

    /// The cross product.
    MFloatVector operator^(const MFloatVector& right) const
    {
        return MFloatVector(y * right.z - z * right.y, z * right.x - x * right.z, x * right.y - y * right.x);
    }

    /// The dot product.
    float operator*(const MFloatVector& right) const { return x * right.x + y * right.y + z * right.z; }

    MFloatVector& operator*=(float scalar)
    {
        x *= scalar;
        y *= scalar;
        z *= scalar;
        return *this;
    }

    MFloatVector& operator/=(float scalar)
    {
        x /= scalar;
        y /= scalar;
        z /= scalar;
        return *this;
    }

    MFloatVector& operator+=(const MFloatVector& other)
    {
        x += other.x;
        y += other.y;
        z += other.z;
        return *this;
    }

    MFloatVector& operator-=(const MFloatVector& other)
    {
        x -= other.x;
        y -= other.y;
        z -= other.z;
        return *this;
    }

    MFloatVector operator*(float scalar) const { return MFloatVector(x * scalar, y * scalar, z * scalar); }
    MFloatVector operator/(float scalar) const { return MFloatVector(x / scalar, y / scalar, z / scalar); }
    MFloatVector operator+(const MFloatVector& other) const
    {
        return MFloatVector(x + other.x, y + other.y, z + other.z);
    }
    MFloatVector operator-(const MFloatVector& other) const
    {
        return MFloatVector(x - other.x, y - other.y, z - other.z);
    }
    MFloatVector operator-() const { return MFloatVector(-x, -y, -z); }

    /// The row vector times the matrix, without its translation.
    MFloatVector operator*(const MFloatMatrix& matrix) const;
    MFloatVector& operator*=(const MFloatMatrix& matrix);

    /// Exact comparison of all components.
    bool operator==(const MFloatVector& other) const { return x == other.x && y == other.y && z == other.z; }
    bool operator!=(const MFloatVector& other) const { return !(*this == other); }

    /// Copies the components out.
    MStatus get(float destination[3]) const
    {
        destination[0] = x;
        destination[1] = y;
        destination[2] = z;
        return MS::kSuccess;
    }

    float length() const { return std::sqrt(x * x + y * y + z * z); }

    /// The same direction with length 1. A vector without length stays as it is.
    MFloatVector normal() const
    {
        MFloatVector unit(*this);
        unit.normalize();
        return unit;
    }

    /// Gives the vector the length 1; leaves it as it is when it has no length.
    MStatus normalize()
    {
        const float size = length();
        if (size > 0.0f)
            *this /= size;
        return MS::kSuccess;
    }

    /// The angle between the two, in radians, 0 to pi.
    float angle(const MFloatVector& other) const;

    /// Whether no component differs by more than the tolerance.
    bool isEquivalent(const MFloatVector& other, float tolerance = MFloatVector_kTol) const;

    /// Whether the two, brought to length 1, have the same or the opposite direction.
    bool isParallel(const MFloatVector& other, float tolerance = MFloatVector_kTol) const;

    /// The vector as a surface normal: through the inverse's transpose of the matrix.
    MFloatVector transformAsNormal(const MFloatMatrix& matrix) const;

    static const MFloatVector zero; ///< (0, 0, 0)
    static const MFloatVector one;  ///< (1, 1, 1)
    static const MFloatVector xAxis;
    static const MFloatVector yAxis;
    static const MFloatVector zAxis;
    static const MFloatVector xNegAxis;
    static const MFloatVector yNegAxis;
    static const MFloatVector zNegAxis;

    float x;
    float y;
    float z;
};

// The other kinds of points and vectors, for the conversions below.
#include <maya/MFloatPoint.h>
#include <maya/MPoint.h>
#include <maya/MVector.h>

inline MFloatVector::MFloatVector(const MVector& other)
    : x(static_cast<float>(other.x)), y(static_cast<float>(other.y)), z(static_cast<float>(other.z))
{
}

inline MFloatVector::MFloatVector(const MFloatPoint& point) : x(point.x), y(point.y), z(point.z) {}

inline MFloatVector::MFloatVector(const MPoint& point)
    : x(static_cast<float>(point.x)), y(static_cast<float>(point.y)), z(static_cast<float>(point.z))
{
}

inline MFloatVector operator*(double scalar, const MFloatVector& vector)
{
    return vector * static_cast<float>(scalar);
}

inline MFloatVector operator*(float scalar, const MFloatVector& vector)
{
    return vector * scalar;
}

inline MFloatVector operator*(int scalar, const MFloatVector& vector)
{
    return vector * static_cast<float>(scalar);
}

inline MFloatVector operator*(unsigned int scalar, const MFloatVector& vector)
{
    return vector * static_cast<float>(scalar);
}

inline MFloatVector operator*(short scalar, const MFloatVector& vector)
{
    return vector * static_cast<float>(scalar);
}

inline MFloatVector operator*(unsigned short scalar, const MFloatVector& vector)
{
    return vector * static_cast<float>(scalar);
}

/// Writes "[x, y, z]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MFloatVector& vector);
