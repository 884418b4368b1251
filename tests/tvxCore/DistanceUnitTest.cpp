// Units of length and their factors.
#include <tvxCore/DistanceUnit.h>

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <type_traits>

namespace tarvox::core {
namespace {

template <class T>
T convert(T length, DistanceUnit from, DistanceUnit to)
{
    return length * getScaleFactor<T>(from) / getScaleFactor<T>(to);
}

struct Named
{
    std::string name;
    DistanceUnit unit;
    int number;
    double metres; ///< the unit's length by its legal definition
};

const Named kUnits[] = {
    {"centimetre", DistanceUnit::kCentimeters, 0, 0.01},
    {"millimetre", DistanceUnit::kMillimeters, 1, 0.001},
    {"metre", DistanceUnit::kMeters, 2, 1.0},
    {"kilometre", DistanceUnit::kKilometers, 3, 1000.0},
    {"inch", DistanceUnit::kInches, 4, 0.0254},
    {"foot", DistanceUnit::kFeet, 5, 0.3048},
    {"yard", DistanceUnit::kYards, 6, 0.9144},
    {"mile", DistanceUnit::kMiles, 7, 1609.344},
};

TEST(DistanceUnit, NumbersAreFixed)
{
    for (const Named& row : kUnits)
        EXPECT_EQ(static_cast<int>(row.unit), row.number) << row.name;
}

TEST(DistanceUnit, FactorIsTheUnitInTenthsOfAMillimetre)
{
    for (const Named& row : kUnits)
        EXPECT_DOUBLE_EQ(getScaleFactor<double>(row.unit), row.metres * 10'000) << row.name;
}

TEST(DistanceUnit, FactorsAreTheSameWholeNumbersInEveryType)
{
    for (const Named& row : kUnits) {
        const double factor = getScaleFactor<double>(row.unit);
        EXPECT_EQ(factor, std::floor(factor)) << row.name;
        EXPECT_EQ(double{getScaleFactor<float>(row.unit)}, factor) << row.name;
        EXPECT_EQ(static_cast<double>(getScaleFactor<long double>(row.unit)), factor) << row.name;
    }
}

TEST(DistanceUnit, QuotientsOfFactorsConvert)
{
    EXPECT_EQ(convert(1.0f, DistanceUnit::kInches, DistanceUnit::kCentimeters), 2.54f);
    EXPECT_EQ(convert(1.0f, DistanceUnit::kMiles, DistanceUnit::kKilometers), 1.609344f);
    EXPECT_EQ(convert(3.0f, DistanceUnit::kFeet, DistanceUnit::kYards), 1.0f);
    EXPECT_EQ(convert(1.0f, DistanceUnit::kYards, DistanceUnit::kInches), 36.0f);
    EXPECT_EQ(convert(2.5f, DistanceUnit::kMeters, DistanceUnit::kMillimeters), 2500.0f);
    EXPECT_EQ(convert(1760.0, DistanceUnit::kYards, DistanceUnit::kMiles), 1.0);
}

TEST(DistanceUnit, UnitZeroIsTheCentimetre)
{
    EXPECT_EQ(convert(180.0f, DistanceUnit{}, DistanceUnit::kMeters), 1.8f);
}

TEST(DistanceUnit, FactorIsKnownWhenCompiling)
{
    static_assert(getScaleFactor<float>(DistanceUnit::kFeet) ==
                  12 * getScaleFactor<float>(DistanceUnit::kInches));
    static_assert(std::is_same_v<decltype(getScaleFactor<float>(DistanceUnit::kFeet)), float>);
}

TEST(DistanceUnit, FactorOfAnUnknownUnitIsNotANumber)
{
    EXPECT_TRUE(std::isnan(getScaleFactor<float>(static_cast<DistanceUnit>(8))));
    EXPECT_TRUE(std::isnan(getScaleFactor<double>(static_cast<DistanceUnit>(-1))));
}

} // namespace
} // namespace tarvox::core
