// MPoint: a place in space, double precision.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <cmath>

class MFloatPoint;
class MFloatVector;
class MMatrix;
class MVector;

#define MPoint_kTol 1.0e-10

/// A place in space in homogeneous coordinates: four doubles, w is 1 unless told otherwise.
/// Sums, differences and distances use x, y and z as they are; call cartesianize() first when w is not 1.
class OPENMAYA_EXPORT MPoint
{
public:
    MPoint() : x(0.0), y(0.0), z(0.0), w(1.0) {}
    MPoint(const MPoint& srcpt) : x(srcpt.x), y(srcpt.y), z(srcpt.z), w(srcpt.w) {}
    MPoint(const MFloatPoint& srcpt);
    /// The place that the vector reaches from the origin; w is 1.
    MPoint(const MVector& src);
    MPoint(const MFloatVector& src);
    MPoint(double xx, double yy, double zz = 0.0, double ww = 1.0) : x(xx), y(yy), z(zz), w(ww) {}
    MPoint(const double d[4]) : x(d[0]), y(d[1]), z(d[2]), w(d[3]) {}
    MPoint(const float d[4]) : x(d[0]), y(d[1]), z(d[2]), w(d[3]) {}
    ~MPoint() {}

    MPoint& operator=(const MPoint& src)
    {
        x = src.x;
        y = src.y;
        z = src.z;
        w = src.w;
        return *this;
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
        destination[0] = static_cast<float>(x);
        destination[1] = static_cast<float>(y);
        destination[2] = static_cast<float>(z);
        destination[3] = static_cast<float>(w);
        return MS::kSuccess;
    }

    /// Coordinate 0 to 3. The index is not checked; a larger one gives w.
    double operator()(unsigned int i) const { return i == 0 ? x : i == 1 ? y : i == 2 ? z : w; }
    double operator[](unsigned int i) const { return (*this)(i); }
    double& operator()(unsigned int i) { return i == 0 ? x : i == 1 ? y : i == 2 ? z : w; }
    double& operator[](unsigned int i) { return (*this)(i); }

    /// The vector from the other point to this one.
    MVector operator-(const MPoint& other) const;

    /// The point moved by a vector; w is kept.
    MPoint operator+(const MVector& other) const;
    MPoint operator-(const MVector& other) const;
    MPoint& operator+=(const MVector& vector);
    MPoint& operator-=(const MVector& vector);

    /// x, y and z scaled; w is kept.
    MPoint operator*(const double scale) const { return MPoint(x * scale, y * scale, z * scale, w); }
    MPoint operator/(const double scale) const { return MPoint(x / scale, y / scale, z / scale, w); }

    /// The row vector (x, y, z, w) times the matrix.
    MPoint operator*(const MMatrix& matrix) const;
    MPoint& operator*=(const MMatrix& matrix);

    /// Exact comparison of all four coordinates.
    bool operator==(const MPoint& other) const
    {
        return x == other.x && y == other.y && z == other.z && w == other.w;
    }
    bool operator!=(const MPoint& other) const { return !(*this == other); }

    /// Divides by w, so that w becomes 1: (x/w, y/w, z/w, 1). Nothing happens when w is 0.
    MPoint& cartesianize();
    /// From (x, y, z, w) to the rational form (x/w, y/w, z/w, w).
    MPoint& rationalize();
    /// From the rational form (x, y, z, w) to the homogeneous one (x*w, y*w, z*w, w).
    MPoint& homogenize();

    /// The distance between the two, by x, y and z.
    double distanceTo(const MPoint& other) const
    {
        const double dx = x - other.x;
        const double dy = y - other.y;
        const double dz = z - other.z;
        return std::sqrt(dx * dx + dy * dy + dz * dz);
    }

    /// Whether no coordinate differs by more than the tolerance.
    bool isEquivalent(const MPoint& other, double tolerance = MPoint_kTol) const
    {
        return std::fabs(x - other.x) <= tolerance && std::fabs(y - other.y) <= tolerance &&
               std::fabs(z - other.z) <= tolerance && std::fabs(w - other.w) <= tolerance;
    }

    /// The name of this class.
    static const char* className();

    static const MPoint origin; ///< (0, 0, 0, 1)

    double x;
    double y;
    double z;
    double w;
};

// The other kinds of points and vectors, for the conversions below.
#include <maya/MFloatPoint.h>
#include <maya/MFloatVector.h>
#include <maya/MVector.h>

inline MPoint::MPoint(const MFloatPoint& srcpt) : x(srcpt.x), y(srcpt.y), z(srcpt.z), w(srcpt.w) {}

inline MPoint::MPoint(const MVector& src) : x(src.x), y(src.y), z(src.z), w(1.0) {}

inline MPoint::MPoint(const MFloatVector& src) : x(src.x), y(src.y), z(src.z), w(1.0) {}

inline MVector MPoint::operator-(const MPoint& other) const
{
    return MVector(x - other.x, y - other.y, z - other.z);
}

inline MPoint MPoint::operator+(const MVector& other) const
{
    return MPoint(x + other.x, y + other.y, z + other.z, w);
}

inline MPoint MPoint::operator-(const MVector& other) const
{
    return MPoint(x - other.x, y - other.y, z - other.z, w);
}

inline MPoint& MPoint::operator+=(const MVector& vector)
{
    return *this = *this + vector;
}

inline MPoint& MPoint::operator-=(const MVector& vector)
{
    return *this = *this - vector;
}

inline MPoint operator*(double scale, const MPoint& point)
{
    return point * scale;
}

/// Writes "[x, y, z, w]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MPoint& point);
