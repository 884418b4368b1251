// MQuaternion: a rotation as four numbers.
#pragma once

#include <maya/MMatrix.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

class MEulerRotation;
class MVector;

#define kQuaternionEpsilon 1.0e-10

/// A rotation as a quaternion: x, y and z are the axis times the sine of half the angle, w is the cosine of
/// half the angle. Made for row vectors, as the matrices are.
class OPENMAYA_EXPORT MQuaternion
{
public:
    /// No rotation: (0, 0, 0, 1).
    MQuaternion();
    MQuaternion(const MQuaternion& src);
    MQuaternion(double xx, double yy, double zz, double ww);
    MQuaternion(const double q[4]);

    /// The rotation from direction `a` to direction `b` the shortest way, or that rotation by a share of its
    /// angle (1 is all of it).
    MQuaternion(const MVector& a, const MVector& b);
    MQuaternion(const MVector& a, const MVector& b, double angleFactor);

    /// A rotation by an angle in radians about an axis.
    MQuaternion(double angle, const MVector& axisb);
    ~MQuaternion();

    MQuaternion& operator=(const MQuaternion& src);
    MQuaternion& operator=(const MMatrix& matrix);
    MQuaternion& operator=(const MEulerRotation& matrix);

    /// The same rotation in another form; Euler angles come in the order xyz.
    MMatrix asMatrix() const;
    MEulerRotation asEulerRotation() const;

    /// Becomes the rotation by `theta` radians about the axis, or gives them; false (and the x axis) for no
    /// rotation.
    MQuaternion& setAxisAngle(const MVector& axis, double theta);
    bool getAxisAngle(MVector& axis, double& theta) const;

    /// Becomes the rotation by `theta` radians about a coordinate axis.
    MQuaternion& setToXAxis(double theta);
    MQuaternion& setToYAxis(double theta);
    MQuaternion& setToZAxis(double theta);

    /// Copies x, y, z and w out.
    MStatus get(double dest[4]) const;

    /// Component 0 to 3 (x, y, z, w), not checked.
    double operator[](unsigned int i) const;
    double& operator[](unsigned int i);

    /// Component by component.
    MQuaternion operator+(const MQuaternion& other) const;

    /// The rotation by this one and then by the other.
    MQuaternion operator*(const MQuaternion& other) const;
    MQuaternion& operator*=(const MQuaternion& rhs);
    MQuaternion operator-(const MQuaternion& other) const;
    MQuaternion operator-() const;

    /// Changes the sign of all components: the same rotation.
    MQuaternion& negateIt();

    /// Exact comparison of all components.
    bool operator==(const MQuaternion& other) const;
    bool operator!=(const MQuaternion& other) const;

    /// Whether no component differs by more than the tolerance.
    bool isEquivalent(const MQuaternion& other, double tolerance = kQuaternionEpsilon) const;

    /// Multiplies all components.
    MQuaternion& scaleIt(double scale);

    /// Brought to length 1.
    MQuaternion normal() const;
    MQuaternion& normalizeIt();

    /// With x, y and z of opposite sign.
    MQuaternion conjugate() const;
    MQuaternion& conjugateIt();

    /// The rotation back.
    MQuaternion inverse() const;
    MQuaternion& invertIt();

    /// The natural logarithm of a unit quaternion, and the exponential of a pure one.
    MQuaternion log() const;
    MQuaternion exp() const;

    operator MMatrix() const;

    static const MQuaternion identity; ///< (0, 0, 0, 1)

    double x;
    double y;
    double z;
    double w;
};

/// Every component times the number.
OPENMAYA_EXPORT MQuaternion operator*(double scale, const MQuaternion& quaternion);

/// Writes "[x, y, z, w]".
OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MQuaternion& quaternion);
