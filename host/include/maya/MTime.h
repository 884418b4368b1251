// MTime: a time with its unit.
#pragma once

#include <maya/MStatus.h>
#include <maya/MTypes.h>

/// A time as a number and the unit that the number is in. Comparison and arithmetic take care of units;
/// results have the unit of the left side.
class OPENMAYA_EXPORT MTime
{
public:
    enum Unit
    {
        kInvalid = 0,
        kHours = 1,
        kMinutes = 2,
        kSeconds = 3,
        kMilliseconds = 4,
        kGames = 5,      ///< 15 frames per second
        kFilm = 6,       ///< 24 frames per second
        kPALFrame = 7,   ///< 25 frames per second
        kNTSCFrame = 8,  ///< 30 frames per second
        kShowScan = 9,   ///< 48 frames per second
        kPALField = 10,  ///< 50 frames per second
        kNTSCField = 11, ///< 60 frames per second
        k2FPS = 12,
        k3FPS = 13,
        k4FPS = 14,
        k5FPS = 15,
        k6FPS = 16,
        k8FPS = 17,
        k10FPS = 18,
        k12FPS = 19,
        k16FPS = 20,
        k20FPS = 21,
        k40FPS = 22,
        k75FPS = 23,
        k80FPS = 24,
        k100FPS = 25,
        k120FPS = 26,
        k125FPS = 27,
        k150FPS = 28,
        k200FPS = 29,
        k240FPS = 30,
        k250FPS = 31,
        k300FPS = 32,
        k375FPS = 33,
        k400FPS = 34,
        k500FPS = 35,
        k600FPS = 36,
        k750FPS = 37,
        k1200FPS = 38,
        k1500FPS = 39,
        k2000FPS = 40,
        k3000FPS = 41,
        k6000FPS = 42,
        kUserDef = 43,
        kLast = 44,
    };

    /// Time 0 in the unit of the user interface.
    MTime();
    MTime(const MTime& other);
    MTime(double time_val, Unit = kFilm);
    ~MTime();

    MTime& operator=(const MTime& rhs);

    /// The unit and the number.
    Unit unit() const;
    double value() const;

    /// Changes the label; the number stays.
    MStatus setUnit(Unit new_unit);
    MStatus setValue(double new_value);

    /// The time as a number of another unit.
    double as(Unit other_unit) const;
    double asUnits(Unit other_unit) const;

    /// The unit of the user interface: film until it is changed.
    static Unit uiUnit();
    static MStatus setUIUnit(Unit new_unit);

    bool operator==(const MTime& rhs) const;
    bool operator!=(const MTime& rhs) const;
    bool operator<=(const MTime& rhs) const;
    bool operator>=(const MTime& rhs) const;
    bool operator<(const MTime& rhs) const;
    bool operator>(const MTime& rhs) const;

    /// A plain number is taken in this time's unit.
    MTime operator+(const MTime& rhs) const;
    MTime operator+(double rhs) const;
    MTime& operator+=(const MTime& rhs);
    MTime& operator+=(double rhs);
    MTime operator-(const MTime& rhs) const;
    MTime operator-(double rhs) const;
    MTime& operator-=(const MTime& rhs);
    MTime& operator-=(double rhs);
    MTime operator*(double rhs) const;
    MTime& operator*=(double rhs);
    MTime operator/(double rhs) const;
    MTime& operator/=(double rhs);

    /// One unit further or back; both forms give the new time.
    MTime& operator++();
    MTime& operator++(int);
    MTime& operator--();
    MTime& operator--(int);

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    double number;
    Unit label;
};
