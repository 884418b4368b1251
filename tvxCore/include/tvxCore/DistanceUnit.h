// Units of length, and the factors that convert between them.
#pragma once

#include <limits>
#include <type_traits>

namespace tarvox::core {

/// The units that lengths are given in. The numbers are part of the interface: they are stored and passed
/// between libraries. The unit with number 0, the centimetre, is that of a length whose unit is not told.
enum class DistanceUnit : int
{
    kCentimeters = 0,
    kMillimeters = 1,
    kMeters = 2,
    kKilometers = 3,
    kInches = 4,
    kFeet = 5,
    kYards = 6,
    kMiles = 7
};

/// The length of one `unit`, in tenths of a millimetre: a length in unit `a` is
/// `length * getScaleFactor<T>(a) / getScaleFactor<T>(b)` in unit `b`. In tenths of a millimetre every unit
/// is a whole number below 2^24, so that no factor is rounded in any floating-point type `T`.
/// The factor of a value that is no enumerator is NaN, and so is every length converted with it.
template <class T>
constexpr T getScaleFactor(DistanceUnit unit)
{
    static_assert(std::is_floating_point_v<T>, "lengths are floating-point numbers");
    switch (unit) {
    case DistanceUnit::kCentimeters:
        return T(100);
    case DistanceUnit::kMillimeters:
        return T(10);
    case DistanceUnit::kMeters:
        return T(10'000);
    case DistanceUnit::kKilometers:
        return T(10'000'000);
    case DistanceUnit::kInches:
        return T(254);
    case DistanceUnit::kFeet:
        return T(3'048);
    case DistanceUnit::kYards:
        return T(9'144);
    case DistanceUnit::kMiles:
        return T(16'093'440);
    }
    return std::numeric_limits<T>::quiet_NaN();
}

} // namespace tarvox::core
