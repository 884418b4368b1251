// The numeric functions of the drawing library.
#include "rendering/tvxDrawingNumbers.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarvox::crowd {
namespace {

TEST(Angles, AreInSinglePrecision)
{
    EXPECT_EQ(twoPi(), 6.2831855f);
    EXPECT_EQ(pi(), 3.1415927f);
    EXPECT_EQ(halfPi(), 1.5707964f);
    EXPECT_EQ(quarterPi(), 0.7853982f);
}

TEST(RoundHalfDown, TakesAnExactHalfToTheLowerInteger)
{
    EXPECT_EQ(roundHalfDown(0.5f), 0);
    EXPECT_EQ(roundHalfDown(1.5f), 1);
    EXPECT_EQ(roundHalfDown(2.5f), 2);
    EXPECT_EQ(roundHalfDown(8388607.5f), 8388607);
}

TEST(RoundHalfDown, TakesAnExactHalfBelowZeroToTheLowerInteger)
{
    EXPECT_EQ(roundHalfDown(-0.5f), -1);
    EXPECT_EQ(roundHalfDown(-1.5f), -2);
    EXPECT_EQ(roundHalfDown(-2.5f), -3);
}

TEST(RoundHalfDown, TakesEverythingElseToTheNearest)
{
    EXPECT_EQ(roundHalfDown(0.0f), 0);
    EXPECT_EQ(roundHalfDown(-0.0f), 0);
    EXPECT_EQ(roundHalfDown(7.0f), 7);
    EXPECT_EQ(roundHalfDown(-7.0f), -7);
    EXPECT_EQ(roundHalfDown(2.4f), 2);
    EXPECT_EQ(roundHalfDown(2.6f), 3);
    EXPECT_EQ(roundHalfDown(-2.4f), -2);
    EXPECT_EQ(roundHalfDown(-2.6f), -3);
    EXPECT_EQ(roundHalfDown(16777216.0f), 16777216);
}

TEST(RoundHalfDown, TellsTheNeighboursOfAHalf)
{
    EXPECT_EQ(roundHalfDown(std::nextafter(2.5f, 2.0f)), 2);
    EXPECT_EQ(roundHalfDown(std::nextafter(2.5f, 3.0f)), 3);
    EXPECT_EQ(roundHalfDown(std::nextafter(-2.5f, -3.0f)), -3);
    EXPECT_EQ(roundHalfDown(std::nextafter(-2.5f, -2.0f)), -2);
}

TEST(RoundHalfDown, TakesTheLeastValueBelowZeroToZero)
{
    EXPECT_EQ(roundHalfDown(-1e-10f), 0);
}

TEST(ArithmeticInPlace, WritesItsResultThroughTheSecondArgumentAndReturnsIt)
{
    float b = 3;
    EXPECT_EQ(subtract(10, &b), 7);
    EXPECT_EQ(b, 7);
    EXPECT_EQ(multiply(-2, &b), -14);
    EXPECT_EQ(b, -14);
    EXPECT_EQ(divide(7, &b), -0.5f);
    EXPECT_EQ(b, -0.5f);
    EXPECT_EQ(scale(4.5, &b), -2.25f);
    EXPECT_EQ(b, -2.25f);
}

TEST(ArithmeticInPlace, DividesByZeroAsFloatsDo)
{
    float zero = 0;
    EXPECT_EQ(divide(1, &zero), INFINITY);
    EXPECT_EQ(zero, INFINITY);
}

TEST(ArithmeticInPlace, ScalesByADoubleAndRoundsOnce)
{
    // In single precision the factor would be 1 and leave the value alone.
    float x = 16777215;
    EXPECT_EQ(scale(1 + 5.9e-8, &x), 16777216.0f);
}

} // namespace
} // namespace tarvox::crowd
