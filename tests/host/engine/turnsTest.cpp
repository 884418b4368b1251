// Rotations as quaternions.
#include "engine/turns.h"
#include "engine/matrixParts.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tvxhost::engine {
namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;

Turn aboutZ(double degrees)
{
    return turnOf(Vec3d(0, 0, degrees * kDegree), 0);
}

double degreesAboutZ(const Turn& turn)
{
    return anglesOf(turn.toMatrix44(), 0).z / kDegree;
}

TEST(Turns, AnglesMakeTheSameTurnAsTheirMatrix)
{
    const Vec3d angles(40 * kDegree, -15 * kDegree, 65 * kDegree);
    for (int order = 0; order < 6; ++order) {
        const Matrix matrix = rotation(angles, order);
        EXPECT_TRUE(turnOf(angles, order).toMatrix44().equalWithAbsError(matrix, 1e-12)) << order;
        EXPECT_TRUE(turnOf(scaling({2, 3, 4}) * matrix * translation({1, 2, 3}))
                        .toMatrix44()
                        .equalWithAbsError(matrix, 1e-12))
            << order;
    }
}

TEST(Turns, OneAfterAnotherIsTheProductOfMatrices)
{
    const Vec3d first(0.3, 0.1, -0.7), second(-1.2, 0.4, 0.2);
    EXPECT_TRUE(then(turnOf(first, 0), turnOf(second, 3))
                    .toMatrix44()
                    .equalWithAbsError(rotation(first, 0) * rotation(second, 3), 1e-12));
}

TEST(Turns, GoOnBeyondAFullTurn)
{
    EXPECT_NEAR(aboutZ(360).r, -1.0, 1e-12);
    EXPECT_NEAR(aboutZ(720).r, 1.0, 1e-12);
}

TEST(Turns, TheMeanLiesInTheMiddleWhateverTheWay)
{
    for (const TurnPath path : {TurnPath::continuous, TurnPath::average, TurnPath::shortest})
        EXPECT_NEAR(degreesAboutZ(meanOf({{aboutZ(20), 1}, {aboutZ(80), 1}}, path)), 50.0, 1e-9);
}

TEST(Turns, WeightsPullTheMean)
{
    EXPECT_NEAR(degreesAboutZ(meanOf({{aboutZ(20), 1}, {aboutZ(80), 3}}, TurnPath::shortest)), 65.0, 1e-9);
    EXPECT_NEAR(degreesAboutZ(meanOf({{aboutZ(0), 1}, {aboutZ(30), 1}, {aboutZ(90), 2}}, TurnPath::shortest)),
                52.5, 1e-9)
        << "halfway from 0 to 30, and halfway from there to 90";
}

TEST(Turns, BeyondHalfATurnTheWaysPart)
{
    const std::vector<WeightedTurn> turns = {{aboutZ(0), 1}, {aboutZ(200), 1}};
    EXPECT_NEAR(degreesAboutZ(meanOf(turns, TurnPath::continuous)), 100.0, 1e-9);
    EXPECT_NEAR(degreesAboutZ(meanOf(turns, TurnPath::average)), -80.0, 1e-9);
    EXPECT_NEAR(degreesAboutZ(meanOf(turns, TurnPath::shortest)), -80.0, 1e-9);
    EXPECT_NEAR(degreesAboutZ(meanOf(turns, TurnPath::longest)), 100.0, 1e-9);
}

TEST(Turns, TheLongWayGoesRoundTheOtherSide)
{
    const double middle = degreesAboutZ(meanOf({{aboutZ(20), 1}, {aboutZ(80), 1}}, TurnPath::longest));
    EXPECT_NEAR(middle, 50.0 - 180.0, 1e-9);
}

TEST(Turns, EqualTurnsAreTheirMean)
{
    for (const TurnPath path :
         {TurnPath::continuous, TurnPath::average, TurnPath::shortest, TurnPath::longest})
        EXPECT_NEAR(degreesAboutZ(meanOf({{aboutZ(33), 1}, {aboutZ(33), 5}}, path)), 33.0, 1e-9);
}

TEST(Turns, WhereTurnsCancelEachOtherOutTheFirstOneCounts)
{
    EXPECT_NEAR(degreesAboutZ(meanOf({{aboutZ(10), 1}, {-aboutZ(10), 1}}, TurnPath::continuous)), 10.0, 1e-9);
}

TEST(Turns, BlendingGoesTheShortWay)
{
    EXPECT_NEAR(degreesAboutZ(blended(aboutZ(10), aboutZ(50), 0.25)), 20.0, 1e-9);
    EXPECT_NEAR(degreesAboutZ(blended(aboutZ(170), aboutZ(-170), 0.25)), 175.0, 1e-9);
    EXPECT_NEAR(degreesAboutZ(blended(aboutZ(10), aboutZ(50), 1)), 50.0, 1e-9);
}

} // namespace
} // namespace tvxhost::engine
