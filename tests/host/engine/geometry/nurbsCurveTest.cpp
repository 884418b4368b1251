// NURBS curves: files' words, points, derivatives and lengths.
#include "engine/geometry/nurbsCurve.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tvxhost::engine {
namespace {

constexpr double kPi = 3.14159265358979323846;

const char* const kBezier =
    "\n\t\t3 1 0 no 3\n\t\t6 0 0 0 1 1 1\n\t\t4\n\t\t0 0 0\n\t\t0 1 0\n\t\t1 1 0\n\t\t1 0 0\n\t\t";

NurbsCurve curveOf(const char* words)
{
    const auto curve = parseNurbsCurve(words);
    EXPECT_TRUE(curve) << words;
    return curve.value_or(NurbsCurve());
}

void expectAt(const Imath::V3d& actual, double x, double y, double z)
{
    EXPECT_NEAR(actual.x, x, 1e-12);
    EXPECT_NEAR(actual.y, y, 1e-12);
    EXPECT_NEAR(actual.z, z, 1e-12);
}

TEST(NurbsCurveTest, WordsAreReadAndWritten)
{
    const NurbsCurve curve = curveOf(kBezier);
    EXPECT_EQ(curve.degree, 3);
    EXPECT_EQ(curve.form, NurbsCurve::Form::open);
    EXPECT_EQ(curve.spanCount(), 1);
    EXPECT_EQ(curve.points.size(), 4u);
    EXPECT_EQ(curve.begin(), 0.0);
    EXPECT_EQ(curve.end(), 1.0);
    EXPECT_EQ(nurbsCurveWords(curve), kBezier);
}

TEST(NurbsCurveTest, WordsThatAreNoCurveAreRefused)
{
    for (const char* words : {"", "3 1 0 no 3 6 0 0 0 1 1", "3 1 0 no 3 6 0 0 0 1 1 1 4 0 0 0",
                              "3 1 7 no 3 6 0 0 0 1 1 1 4 0 0 0 0 1 0 1 1 0 1 0 0",
                              "3 1 0 no 3 6 0 0 2 1 1 1 4 0 0 0 0 1 0 1 1 0 1 0 0", "3 1 0 no 3 99999999999"})
        EXPECT_FALSE(parseNurbsCurve(words)) << words;
}

TEST(NurbsCurveTest, ASpanWithRepeatedKnotsIsABezierCurve)
{
    const NurbsCurve curve = curveOf(kBezier);
    expectAt(curve.at(0.0), 0.0, 0.0, 0.0);
    expectAt(curve.at(1.0), 1.0, 0.0, 0.0);
    // Bernstein's polynomials at one half: 1/8, 3/8, 3/8, 1/8.
    expectAt(curve.at(0.5), 0.5, 0.75, 0.0);
    expectAt(curve.at(7.0), 1.0, 0.0, 0.0);
    expectAt(curve.velocityAt(0.0), 0.0, 3.0, 0.0);
    expectAt(curve.velocityAt(0.5), 1.5, 0.0, 0.0);
    // Six times the second differences: (1, -1, 0) at the beginning.
    expectAt(curve.accelerationAt(0.0), 6.0, -6.0, 0.0);
}

TEST(NurbsCurveTest, UniformKnotsBlendAsBSplines)
{
    // The blend of four points at an inner knot is 1/6, 4/6, 1/6.
    const NurbsCurve curve = curveOf("3 2 0 no 3 7 -2 -1 0 1 2 3 4 5 0 0 0 6 6 0 0 6 6 6 6 12 0 0 0");
    expectAt(curve.at(0.0), (0.0 + 4.0 * 6.0 + 0.0) / 6.0, (4.0 * 6.0 + 6.0) / 6.0, 1.0);
    EXPECT_EQ(curve.begin(), 0.0);
    EXPECT_EQ(curve.end(), 2.0);
}

TEST(NurbsCurveTest, LinesHaveTheirLength)
{
    const NurbsCurve line = curveOf("1 2 0 no 3 3 0 1 2 3 0 0 0 3 4 0 3 4 12");
    expectAt(line.at(0.5), 1.5, 2.0, 0.0);
    EXPECT_NEAR(line.lengthTo(1.0), 5.0, 1e-12);
    EXPECT_NEAR(line.lengthTo(2.0), 17.0, 1e-12);
    EXPECT_NEAR(line.lengthTo(0.5), 2.5, 1e-12);
}

TEST(NurbsCurveTest, WeightsMakeAnExactQuarterOfACircle)
{
    const NurbsCurve quarter = curveOf("2 1 0 yes 3 4 0 0 1 1 3 1 0 0 1 1 1 0 0.70710678118654757 0 1 0 1");
    for (const double u : {0.1, 0.5, 0.9}) {
        EXPECT_NEAR(quarter.at(u).length(), 1.0, 1e-12);
        EXPECT_NEAR(quarter.at(u).dot(quarter.velocityAt(u)), 0.0, 1e-12) << "a tangent";
    }
    EXPECT_NEAR(quarter.lengthTo(1.0), kPi / 2.0, 1e-12);
}

} // namespace
} // namespace tvxhost::engine
