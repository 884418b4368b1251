// MEulerRotation: a rotation as three angles.
#pragma once

#include <maya/MMatrix.h>
#include <maya/MQuaternion.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>
#include <maya/MVector.h>

#define kEulerRotationEpsilon 1.0e-10

/// A rotation as three angles in radians about x, y and z, applied in the given order.
class OPENMAYA_EXPORT MEulerRotation
{
public:
    /// The axes in the order in which they are applied.
    enum RotationOrder
    {
        kXYZ = 0,
        kYZX = 1,
        kZXY = 2,
        kXZY = 3,
        kYXZ = 4,
        kZYX = 5,
    };

    /// No rotation, order xyz.
    MEulerRotation();
    MEulerRotation(const MEulerRotation& src);
    MEulerRotation(const MVector& v, RotationOrder ord = kXYZ);
    MEulerRotation(double xx, double yy, double zz, RotationOrder ord = kXYZ);
    ~MEulerRotation();

    /// From another form of rotation; this one's order is kept, a vector gives the three angles.
    MEulerRotation& operator=(const MEulerRotation& src);
    MEulerRotation& operator=(const MQuaternion& q);
    MEulerRotation& operator=(const MMatrix& m);
    MEulerRotation& operator=(const MVector& v);

    /// Takes over angles in radians and an order.
    MEulerRotation& setValue(const MVector& v, RotationOrder ord = kXYZ);
    MEulerRotation& setValue(double xx, double yy, double zz, RotationOrder ord = kXYZ);

    /// The same rotation in another form; asVector gives the three angles.
    MQuaternion asQuaternion() const;
    MMatrix asMatrix() const;
    MVector asVector() const;

    /// Angle 0 to 2, not checked.
    double operator[](unsigned int i) const;
    double& operator[](unsigned int i);

    /// Angle by angle; the other is brought to this one's order first.
    MEulerRotation operator+(const MEulerRotation& other) const;
    MEulerRotation& operator+=(const MEulerRotation& other);
    MEulerRotation operator-(const MEulerRotation& other) const;
    MEulerRotation operator-() const;
    MEulerRotation& operator-=(const MEulerRotation& other);

    /// The rotation by this one and then by the other; a number scales the angles.
    MEulerRotation operator*(const MEulerRotation& other) const;
    MEulerRotation operator*(const MQuaternion& other) const;
    MEulerRotation operator*(double other) const;
    MEulerRotation& operator*=(const MEulerRotation& other);
    MEulerRotation& operator*=(const MQuaternion& other);
    MEulerRotation& operator*=(double other);

    /// Exact comparison of angles and order.
    bool operator==(const MEulerRotation& other) const;
    bool operator!=(const MEulerRotation& other) const;

    /// Whether no angle differs by more than the tolerance; orders must be equal.
    bool isEquivalent(const MEulerRotation& other, double tolerance = kEulerRotationEpsilon) const;

    /// Whether all angles are 0 within the tolerance.
    bool isZero(double tolerance = kEulerRotationEpsilon) const;

    /// Turns further about an axis by an angle in radians.
    MEulerRotation& incrementalRotateBy(const MVector& axis, double angle);

    /// The rotation back, in the reverse order.
    MEulerRotation inverse() const;
    MEulerRotation& invertIt();

    /// The same rotation with another order.
    MEulerRotation reorder(RotationOrder ord) const;
    MEulerRotation& reorderIt(RotationOrder ord);

    /// The same rotation with all angles from -pi to pi.
    MEulerRotation bound() const;
    static MEulerRotation bound(const MEulerRotation& src);
    MEulerRotation& boundIt(const MEulerRotation& src);
    MEulerRotation& boundIt();

    /// The other set of angles that makes the same rotation.
    MEulerRotation alternateSolution() const;
    static MEulerRotation alternateSolution(const MEulerRotation& src);
    MEulerRotation& setToAlternateSolution(const MEulerRotation& src);
    MEulerRotation& setToAlternateSolution();

    /// The set of angles for the same rotation that is closest to `dst`.
    MEulerRotation closestSolution(const MEulerRotation& dst) const;
    static MEulerRotation closestSolution(const MEulerRotation& src, const MEulerRotation& dst);
    MEulerRotation& setToClosestSolution(const MEulerRotation& src, const MEulerRotation& dst);
    MEulerRotation& setToClosestSolution(const MEulerRotation& dst);

    /// The angles moved by full turns to be closest to those of `dst`.
    MEulerRotation closestCut(const MEulerRotation& dst) const;
    static MEulerRotation closestCut(const MEulerRotation& src, const MEulerRotation& dst);
    MEulerRotation& setToClosestCut(const MEulerRotation& src, const MEulerRotation& dst);
    MEulerRotation& setToClosestCut(const MEulerRotation& dst);

    /// The rotation that is in the matrix, with the given order.
    static MEulerRotation decompose(const MMatrix& matrix, RotationOrder ord);

    static const MEulerRotation identity; ///< no rotation, order xyz

    double x;
    double y;
    double z;
    RotationOrder order;
};

/// Every angle times the number.
OPENMAYA_EXPORT MEulerRotation operator*(double scale, const MEulerRotation& rotation);

/// Writes "[x, y, z, kXYZ]", the angles in radians.
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MEulerRotation& rotation);
