// MFloatPoint: a place in space, single precision.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <cmath>

class MFloatMatrix;
class MFloatVector;
class MPoint;
class MVector;

#define MFloatPoint_kTol 1.0e-10f

/// A place in space in homogeneous coordinates: four floats, w is 1 unless told otherwise.
/// Sums, differences and distances use x, y and z as they are; call cartesianize() first when w is not 1.
class OPENMAYA_EXPORT MFloatPoint
{
public:
    MFloatPoint() : x(0.0f), y(0.0f), z(0.0f), w(1.0f) {}
    MFloatPoint(const MFloatPoint& srcpt) : x(srcpt.x), y(srcpt.y), z(srcpt.z), w(srcpt.w) {}
    MFloatPoint(const MPoint& srcpt);
    /// The place that the vector reaches from the origin; w is 1.
    MFloatPoint(const MFloatVector& src);
    MFloatPoint(const MVector& src);
    MFloatPoint(float xx, float yy, float zz = 0.0f, float ww = 1.0f) : x(xx), y(yy), z(zz), w(ww) {}
    MFloatPoint(const float f[4]) : x(f[0]), y(f[1]), z(f[2]), w(f[3]) {}
    MFloatPoint(const double d[4])
        : x(static_cast<float>(d[0])), y(static_cast<float>(d[1])), z(static_cast<float>(d[2])),
          w(static_cast<float>(d[3]))
    {
    }
    ~MFloatPoint() {}

    MFloatPoint& operator=(const MFloatPoint& src)
    {
        x = src.x;
        y = src.y;
        z = src.z;
        w = src.w;
        return *this;
    }

    /// Takes over the values, rounded to single precision. w is 1 for a vector.
    MStatus setCast(const MPoint& srcpt);
    MStatus setCast(const MVector& src);
    MStatus setCast(const double d[4])
    {
        *this = MFloatPoint(d);
        return MS::kSuccess;
    }

    /// Copies all four coordinates out.
    MStatus get(double destination[4]) const
    {
        destination[0] = x;
        destination[1] = y;
        destination[2] = z;
        destination[3] = w;
        return MS::kSuccess;
    }
    MStatus get(float destination[4]) const
    {
        destination[0] = x;
        destination[1] = y;
        destination[2] = z;
        destination[3] = w;
        return MS::kSuccess;
    }

    /// Coordinate 0 to 3. The index is not checked; a larger one gives w.
    float operator()(unsigned int i) const { return i == 0 ? x : i == 1 ? y : i == 2 ? z : w; }
    float operator[](unsigned int i) const { return (*this)(i); }
    float& operator()(unsigned int i) { return i == 0 ? x : i == 1 ? y : i == 2 ? z : w; }
    float& operator[](unsigned int i) { return (*this)(i); }

    /// The vector from the other point to this one.
    MFloatVector operator-(const MFloatPoint& other) const;

    /// The point moved by a vector; w is kept.
    MFloatPoint operator+(const MFloatVector& other) const;
    MFloatPoint operator-(const MFloatVector& other) const;
    MFloatPoint& operator+=(const MFloatVector& vector);
    MFloatPoint& operator-=(const MFloatVector& vector);

    /// x, y and z scaled; w is kept.
    MFloatPoint operator*(const float scale) const { return MFloatPoint(x * scale, y * scale, z * scale, w); }
    MFloatPoint operator/(const float scale) const { return MFloatPoint(x / scale, y / scale, z / scale, w); }

    /// The row vector (x, y, z, w) times the matrix.
    MFloatPoint operator*(const MFloatMatrix& matrix) const;
    MFloatPoint& operator*=(const MFloatMatrix& matrix);

    /// Exact comparison of all four coordinates.
    bool operator==(const MFloatPoint& other) const
    {
        return x == other.x && y == other.y && z == other.z && w == other.w;
    }
    bool operator!=(const MFloatPoint& other) const { return !(*this == other); }

    /// Divides by w, so that w becomes 1: (x/w, y/w, z/w, 1). Nothing happens when w is 0.
    MFloatPoint& cartesianize();
    /// From (x, y, z, w) to the rational form (x/w, y/w, z/w, w).
    MFloatPoint& rationalize();
    /// From the rational form (x, y, z, w) to the homogeneous one (x*w, y*w, z*w, w).
    MFloatPoint& homogenize();

    /// The distance between the two, by x, y and z.
    float distanceTo(const MFloatPoint& other) const
    {
        const float dx = x - other.x;
        const float dy = y - other.y;
        const float dz = z - other.z;
        return std::sqrt(dx * dx + dy * dy + dz * dz);
    }

    /// Whether no coordinate differs by more than the tolerance.
    bool isEquivalent(const MFloatPoint& other, float tolerance = MFloatPoint_kTol) const
    {
        return std::fabs(x - other.x) <= tolerance && std::fabs(y - other.y) <= tolerance &&
               std::fabs(z - other.z) <= tolerance && std::fabs(w - other.w) <= tolerance;
    }

    /// The name of this class.
    static const char* className();

    static const MFloatPoint origin; ///< (0, 0, 0, 1)

    float x;
    float y;
    float z;
    float w;
};

// The other kinds of points and vectors, for the conversions below.
#include <maya/MFloatVector.h>
#include <maya/MPoint.h>
#include <maya/MVector.h>

inline MFloatPoint::MFloatPoint(const MPoint& srcpt)
    : x(static_cast<float>(srcpt.x)), y(static_cast<float>(srcpt.y)), z(static_cast<float>(srcpt.z)),
      w(static_cast<float>(srcpt.w))
{
}

inline MFloatPoint::MFloatPoint(const MFloatVector& src) : x(src.x), y(src.y), z(src.z), w(1.0f) {}

inline MFloatPoint::MFloatPoint(const MVector& src)
    : x(static_cast<float>(src.x)), y(static_cast<float>(src.y)), z(static_cast<float>(src.z)), w(1.0f)
{
}

inline MStatus MFloatPoint::setCast(const MPoint& srcpt)
{
    *this = MFloatPoint(srcpt);
    return MS::kSuccess;
}

inline MStatus MFloatPoint::setCast(const MVector& src)
{
    *this = MFloatPoint(src);
    return MS::kSuccess;
}

inline MFloatVector MFloatPoint::operator-(const MFloatPoint& other) const
{
    return MFloatVector(x - other.x, y - other.y, z - other.z);
}

inline MFloatPoint MFloatPoint::operator+(const MFloatVector& other) const
{
    return MFloatPoint(x + other.x, y + other.y, z + other.z, w);
}

inline MFloatPoint MFloatPoint::operator-(const MFloatVector& other) const
{
    return MFloatPoint(x - other.x, y - other.y, z - other.z, w);
}

inline MFloatPoint& MFloatPoint::operator+=(const MFloatVector& vector)
{
    return *this = *this + vector;
}

inline MFloatPoint& MFloatPoint::operator-=(const MFloatVector& vector)
{
    return *this = *this - vector;
}

inline MFloatPoint operator*(float scale, const MFloatPoint& point)
{
    return point * scale;
}

/// Writes "[x, y, z, w]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MFloatPoint& point);
