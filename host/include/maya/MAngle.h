// MAngle: an angle with its unit.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

/// An angle as a number and the unit that the number is in.
class OPENMAYA_EXPORT MAngle
{
public:
    enum Unit
    {
        kInvalid = 0,
        kRadians = 1,
        kDegrees = 2,
        kAngMinutes = 3,
        kAngSeconds = 4,
        kLast = 5,
    };

    /// 0 in the internal unit, radians.
    MAngle();
    MAngle(const MAngle& src);
    MAngle(double value, Unit u = kRadians);
    ~MAngle();

    MAngle& operator=(const MAngle& other);

    /// The unit and the number.
    Unit unit() const;
    double value() const;

    /// Changes the label; the number stays.
    MStatus setUnit(Unit newUnit);
    MStatus setValue(double newValue);

    /// The angle as a number of another unit; kInvalidParameter for a unit that does not exist.
    double as(Unit otherUnit, MStatus* ReturnStatus = nullptr) const;
    double asUnits(Unit otherUnit, MStatus* ReturnStatus = nullptr) const;

    double asRadians() const;
    double asDegrees() const;
    double asAngMinutes() const;
    double asAngSeconds() const;

    /// The unit of the user interface: degrees until it is changed.
    static Unit uiUnit();
    static MStatus setUIUnit(Unit newUnit);

    /// The unit in which the interface counts plain numbers: radians.
    static Unit internalUnit();

    /// Between internal units and those of the user interface.
    static double internalToUI(double internalValue);
    static double uiToInternal(double uiValue);

    /// Obsolete; the internal unit is not to be changed.
    static MStatus setInternalUnit(Unit internalUnit);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    double val;
    Unit valUnit;
};
