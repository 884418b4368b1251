// NURBS surfaces: what files say of them, places on them, and what is nearest.
#include "engine/geometry/nurbsSurface.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace tvxhost::engine;

namespace {

/// The plane from (0, 0, 0) to (4, 0, -2), of degree 1 along U and V.
NurbsSurface plane()
{
    NurbsSurface surface;
    surface.u = {1, NurbsCurve::Form::open, {0.0, 1.0}};
    surface.v = {1, NurbsCurve::Form::open, {0.0, 1.0}};
    surface.points = {{{0, 0, 0}}, {{0, 0, -2}}, {{4, 0, 0}}, {{4, 0, -2}}};
    return surface;
}

/// x = u, z = -v, y = u², which Bézier points of degree 2 give exactly.
NurbsSurface gutter()
{
    NurbsSurface surface;
    surface.u = {2, NurbsCurve::Form::open, {0.0, 0.0, 1.0, 1.0}};
    surface.v = {1, NurbsCurve::Form::open, {0.0, 1.0}};
    surface.points = {{{0, 0, 0}}, {{0, 0, -1}}, {{0.5, 0, 0}}, {{0.5, 0, -1}}, {{1, 1, 0}}, {{1, 1, -1}}};
    return surface;
}

/// A quarter of a cylinder of radius 2 and height 3, around the Y axis.
NurbsSurface quarterCylinder()
{
    const double weight = std::sqrt(0.5);
    NurbsSurface surface;
    surface.u = {2, NurbsCurve::Form::open, {0.0, 0.0, 1.0, 1.0}};
    surface.v = {1, NurbsCurve::Form::open, {0.0, 1.0}};
    surface.isRational = true;
    surface.points = {{{2, 0, 0}},         {{2, 3, 0}}, {{2, 0, 2}, weight},
                      {{2, 3, 2}, weight}, {{0, 0, 2}}, {{0, 3, 2}}};
    return surface;
}

constexpr const char* kWords =
    " \n\t\t3 1 0 0 no \n\t\t6 0 0 0 1 1 1\n\t\t2 0 1\n\t\t\n\t\t8\n\t\t0 0 0\n\t\t0 0 -1"
    "\n\t\t1 0.5 0\n\t\t1 0.5 -1\n\t\t2 0.5 0\n\t\t2 0.5 -1\n\t\t3 0 0\n\t\t3 0 -1\n\t\t";

} // namespace

TEST(NurbsSurfaceWords, AreReadAndWrittenAlike)
{
    const auto surface = parseNurbsSurface(kWords);
    ASSERT_TRUE(surface);
    EXPECT_EQ(3, surface->u.degree);
    EXPECT_EQ(1, surface->v.degree);
    EXPECT_EQ(4, surface->u.pointCount());
    EXPECT_EQ(2, surface->v.pointCount());
    EXPECT_EQ(1, surface->u.spanCount());
    EXPECT_EQ(Imath::V3d(1, 0.5, -1), surface->points[surface->indexOf(1, 1)].place);
    EXPECT_EQ(kWords, nurbsSurfaceWords(*surface));
}

TEST(NurbsSurfaceWords, KeepWeights)
{
    const NurbsSurface written = quarterCylinder();
    const auto surface = parseNurbsSurface(nurbsSurfaceWords(written));
    ASSERT_TRUE(surface);
    EXPECT_TRUE(surface->isRational);
    EXPECT_EQ(written.points[2].weight, surface->points[2].weight);
    EXPECT_EQ(1.0, surface->points[5].weight);
}

TEST(NurbsSurfaceWords, ThatAreNoSurfaceGiveNone)
{
    EXPECT_FALSE(parseNurbsSurface(""));
    EXPECT_FALSE(parseNurbsSurface("1 1 0 0 no 2 0 1 2 0 1 3 0 0 0 1 0 0 1 1 0")) << "a point is missing";
    EXPECT_FALSE(parseNurbsSurface("1 1 0 7 no 2 0 1 2 0 1 4 0 0 0 0 0 1 1 0 0 1 0 1")) << "no such form";
    EXPECT_FALSE(parseNurbsSurface("1 1 0 0 no 2 1 0 2 0 1 4 0 0 0 0 0 1 1 0 0 1 0 1")) << "knots descend";
    EXPECT_FALSE(parseNurbsSurface("1 1 0 0 no 2 0 1 2 0 1 TRIM 4 0 0 0 0 0 1 1 0 0 1 0 1")) << "trimmed";
    EXPECT_FALSE(parseNurbsSurface("1 1 0 0 no 99999999999 0 1")) << "more than there can be";
}

TEST(NurbsSurface, PlacesAndDerivativesAreThoseOfTheFormula)
{
    const NurbsSurface::Jet jet = gutter().jetAt({0.25, 0.5});
    EXPECT_TRUE(jet.place.equalWithAbsError({0.25, 0.0625, -0.5}, 1e-12));
    EXPECT_TRUE(jet.du.equalWithAbsError({1, 0.5, 0}, 1e-12));
    EXPECT_TRUE(jet.dv.equalWithAbsError({0, 0, -1}, 1e-12));
    EXPECT_TRUE(jet.duu.equalWithAbsError({0, 2, 0}, 1e-12));
    EXPECT_TRUE(jet.dvv.equalWithAbsError({0, 0, 0}, 1e-12));
    EXPECT_TRUE(jet.duv.equalWithAbsError({0, 0, 0}, 1e-12));
    EXPECT_TRUE(gutter().at({2.0, -1.0}).equalWithAbsError({1, 1, 0}, 1e-12)) << "brought into the range";
}

TEST(NurbsSurface, MixedDerivativesAreThoseOfASaddle)
{
    NurbsSurface saddle = plane();
    saddle.points = {{{0, 0, 0}}, {{0, 0, 1}}, {{1, 0, 0}}, {{1, 1, 1}}}; // y = u v
    const NurbsSurface::Jet jet = saddle.jetAt({0.5, 0.25});
    EXPECT_TRUE(jet.place.equalWithAbsError({0.5, 0.125, 0.25}, 1e-12));
    EXPECT_TRUE(jet.duv.equalWithAbsError({0, 1, 0}, 1e-12));
}

TEST(NurbsSurface, WeightsMakeACircle)
{
    const NurbsSurface surface = quarterCylinder();
    for (const double u : {0.0, 0.2, 0.5, 0.9, 1.0}) {
        const NurbsSurface::Jet jet = surface.jetAt({u, 0.5});
        EXPECT_NEAR(2.0, std::hypot(jet.place.x, jet.place.z), 1e-12);
        EXPECT_NEAR(1.5, jet.place.y, 1e-12);
        EXPECT_NEAR(0.0, jet.place.x * jet.du.x + jet.place.z * jet.du.z, 1e-12) << "along the circle";
        // Derived twice: u' is at right angles to the place, so place . u'' = -u' . u'.
        EXPECT_NEAR(-jet.du.length2(), jet.place.x * jet.duu.x + jet.place.z * jet.duu.z, 1e-10);
    }
}

TEST(NurbsSurface, AreasAreThoseOfTheShapes)
{
    EXPECT_NEAR(8.0, plane().area(), 1e-9);
    EXPECT_NEAR(2.0 * std::acos(-1.0) * 2.0 * 3.0 / 4.0, quarterCylinder().area(), 1e-9);
}

TEST(NurbsSurface, TheNearestPlaceIsBelowThePointOrAtTheBorder)
{
    const auto inside = plane().nearestTo({1, 5, -1.5});
    EXPECT_NEAR(0.25, inside.u, 1e-7);
    EXPECT_NEAR(0.75, inside.v, 1e-7);
    const auto outside = plane().nearestTo({9, 1, -1});
    EXPECT_EQ(1.0, outside.u);
    EXPECT_NEAR(0.5, outside.v, 1e-7);
    // From beside the cylinder straight to its axis.
    const auto beside = quarterCylinder().nearestTo({5, 1, 5});
    EXPECT_NEAR(0.5, beside.u, 1e-7);
    EXPECT_NEAR(1.0 / 3.0, beside.v, 1e-7);
}
