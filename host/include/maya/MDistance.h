// MDistance: a length with its unit.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

/// A length as a number and the unit that the number is in.
class OPENMAYA_EXPORT MDistance
{
public:
    enum Unit
    {
        kInvalid = 0,
        kInches = 1,
        kFeet = 2,
        kYards = 3,
        kMiles = 4,
        kMillimeters = 5,
        kCentimeters = 6,
        kKilometers = 7,
        kMeters = 8,
        kLast = 9,
    };

    /// 0 in the internal unit, centimetres.
    MDistance();
    MDistance(double value, Unit unitSystem = kCentimeters);
    MDistance(const MDistance& src);
    ~MDistance();

    MDistance& operator=(const MDistance& src);

    /// The unit and the number.
    Unit unit() const;
    double value() const;

    /// Changes the label; the number stays.
    MStatus setUnit(Unit newUnit);
    MStatus setValue(double newValue);

    /// The length as a number of another unit; kInvalidParameter for a unit that does not exist.
    double as(Unit newUnit, MStatus* ReturnStatus = nullptr) const;
    double asUnits(Unit newUnit, MStatus* ReturnStatus = nullptr) const;

    double asInches() const;
    double asFeet() const;
    double asYards() const;
    double asMiles() const;
    double asMillimeters() const;
    double asCentimeters() const;
    double asKilometers() const;
    double asMeters() const;

    /// The unit of the user interface: centimetres until it is changed.
    static Unit uiUnit();
    static MStatus setUIUnit(Unit newUnit);

    /// The unit in which the interface counts plain numbers: centimetres.
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
