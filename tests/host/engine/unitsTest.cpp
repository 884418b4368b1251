// Units: names and sizes.
#include "engine/units.h"

#include <gtest/gtest.h>

namespace tvxhost::engine {

TEST(UnitsTest, LinearUnitsInCentimetres)
{
    EXPECT_EQ(centimetresPer(LinearUnit::inches), 2.54);
    EXPECT_EQ(centimetresPer(LinearUnit::feet), 12 * 2.54);
    EXPECT_EQ(centimetresPer(LinearUnit::yards), 36 * 2.54);
    EXPECT_DOUBLE_EQ(centimetresPer(LinearUnit::miles), 5280 * 12 * 2.54);
    EXPECT_EQ(centimetresPer(LinearUnit::millimetres), 0.1);
    EXPECT_EQ(centimetresPer(LinearUnit::kilometres), 100000.0);
}

TEST(UnitsTest, AngularUnitsInRadians)
{
    EXPECT_EQ(radiansPer(AngularUnit::radians), 1.0);
    EXPECT_DOUBLE_EQ(180.0 * radiansPer(AngularUnit::degrees), 3.14159265358979323846);
    EXPECT_DOUBLE_EQ(60.0 * radiansPer(AngularUnit::minutes), radiansPer(AngularUnit::degrees));
    EXPECT_DOUBLE_EQ(3600.0 * radiansPer(AngularUnit::seconds), radiansPer(AngularUnit::degrees));
}

TEST(UnitsTest, TimeUnitsInSeconds)
{
    EXPECT_EQ(secondsPer(1), 3600.0);
    EXPECT_EQ(secondsPer(6), 1.0 / 24.0);
    EXPECT_EQ(secondsPer(8), 1.0 / 30.0);
    EXPECT_EQ(secondsPer(12), 0.5);
    EXPECT_EQ(secondsPer(42), 1.0 / 6000.0);
    EXPECT_EQ(secondsPer(0), 0.0);
    EXPECT_EQ(secondsPer(43), 0.0);
}

TEST(UnitsTest, UnitsHaveShortAndLongNames)
{
    EXPECT_EQ(nameOf(LinearUnit::centimetres), "cm");
    EXPECT_EQ(nameOf(LinearUnit::centimetres, true), "centimeter");
    EXPECT_EQ(linearUnitNamed("meter"), LinearUnit::metres);
    EXPECT_EQ(linearUnitNamed("ft"), LinearUnit::feet);
    EXPECT_FALSE(linearUnitNamed("parsec"));
    EXPECT_EQ(nameOf(AngularUnit::degrees), "deg");
    EXPECT_EQ(angularUnitNamed("radian"), AngularUnit::radians);
    EXPECT_EQ(timeUnitName(6), "film");
    EXPECT_EQ(timeUnitNamed("ntscf"), 11);
    EXPECT_EQ(timeUnitNamed("120fps"), 26);
    EXPECT_EQ(timeUnitName(26), "120fps");
    EXPECT_FALSE(timeUnitNamed("7fps"));
}

TEST(UnitsTest, UiValuesConvertBothWays)
{
    Units units;
    units.linear = LinearUnit::metres;
    EXPECT_EQ(units.toInternalLinear(1.5), 150.0);
    EXPECT_EQ(units.fromInternalLinear(150.0), 1.5);
    EXPECT_DOUBLE_EQ(units.fromInternalAngle(units.toInternalAngle(30.0)), 30.0);
}

} // namespace tvxhost::engine
