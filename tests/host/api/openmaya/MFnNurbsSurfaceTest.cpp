// MFnNurbsSurface, MTesselationParams, MTrimBoundaryArray: NURBS surfaces.
#include "../arrays.h"
#include "../sceneFixture.h"

#include <maya/MFnNurbsSurface.h>
#include <maya/MObjectArray.h>
#include <maya/MTesselationParams.h>
#include <maya/MTrimBoundaryArray.h>

#include <cmath>

namespace tvxhost::api::test {
namespace {

class MFnNurbsSurfaceTest : public SceneFixture
{
protected:
    static std::vector<double> numbers(const MPoint& point) { return {point.x, point.y, point.z}; }
    static std::vector<double> numbers(const MVector& vector) { return {vector.x, vector.y, vector.z}; }

    /// x = u, y = u², z = -v for u from 0 to 2 in two spans, below the transform "rig".
    MObject makeGutter(MFnNurbsSurface& set)
    {
        make("transform", "rig");
        MPointArray points;
        for (const auto& [x, y] : {std::pair(0.0, 0.0), {0.5, 0.0}, {1.5, 2.0}, {2.0, 4.0}}) {
            points.append(MPoint(x, y, 0));
            points.append(MPoint(x, y, -1));
        }
        MStatus status;
        const MObject made =
            set.create(points, doubles({0, 0, 1, 2, 2}), doubles({0, 1}), 2, 1, MFnNurbsSurface::kOpen,
                       MFnNurbsSurface::kClosed, false, object("rig"), &status);
        EXPECT_EQ(status, MS::kSuccess) << text(status);
        return made;
    }
};

TEST_F(MFnNurbsSurfaceTest, IsMadeOfPointsAndKnots)
{
    MFnNurbsSurface surface;
    const MObject made = makeGutter(surface);
    EXPECT_EQ(made, surface.object());
    EXPECT_EQ(MFnNurbsSurface(surface.object(), nullptr).type(), MFn::kNurbsSurface);
    EXPECT_EQ(surface.degreeU(), 2);
    EXPECT_EQ(surface.degreeV(), 1);
    EXPECT_EQ(surface.formInU(), MFnNurbsSurface::kOpen);
    EXPECT_EQ(surface.formInV(), MFnNurbsSurface::kClosed);
    EXPECT_EQ(surface.numCVsInU(), 4);
    EXPECT_EQ(surface.numCVsInV(), 2);
    EXPECT_EQ(surface.numSpansInU(), 2);
    EXPECT_EQ(surface.numSpansInV(), 1);
    EXPECT_EQ(surface.numKnotsInU(), 5);
    EXPECT_EQ(surface.numKnotsInV(), 2);
    EXPECT_EQ(surface.numPatches(), 2u);
    EXPECT_EQ(surface.numPatchesInU(), 2u);
    EXPECT_FALSE(surface.hasHistoryOnCreate());
    EXPECT_FALSE(surface.isTrimmedSurface());
    EXPECT_FALSE(surface.isBezier());
    EXPECT_TRUE(surface.isUniform());
    EXPECT_FALSE(surface.getDataObject().isNull());
}

TEST_F(MFnNurbsSurfaceTest, NumbersThatDoNotFitAreRefused)
{
    MFnNurbsSurface surface;
    MPointArray three;
    three.setLength(3);
    MStatus status;
    EXPECT_TRUE(surface
                    .create(three, doubles({0, 1}), doubles({0, 1}), 1, 1, MFnNurbsSurface::kOpen,
                            MFnNurbsSurface::kOpen, false, MObject::kNullObj, &status)
                    .isNull());
    EXPECT_EQ(status, MS::kInvalidParameter);
    three.setLength(4);
    EXPECT_TRUE(surface
                    .create(three, doubles({1, 0}), doubles({0, 1}), 1, 1, MFnNurbsSurface::kOpen,
                            MFnNurbsSurface::kOpen, false, MObject::kNullObj, &status)
                    .isNull());
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_EQ(surface.degreeU(&status), 0);
    EXPECT_EQ(text(status), "(kFailure): Object does not exist");
}

TEST_F(MFnNurbsSurfaceTest, ControlPointsAreReadAndSetInBothSpaces)
{
    MFnNurbsSurface surface;
    makeGutter(surface);
    set("rig.translate", {10, 0, 0});
    MPoint point;
    EXPECT_EQ(surface.getCV(2, 1, point), MS::kSuccess);
    EXPECT_EQ(numbers(point), (std::vector<double>{1.5, 2, -1}));
    EXPECT_EQ(surface.getCV(2, 1, point, MSpace::kWorld), MS::kSuccess);
    EXPECT_EQ(numbers(point), (std::vector<double>{11.5, 2, -1}));
    point = MPoint(12, 3, -1);
    EXPECT_EQ(surface.setCV(2, 1, point, MSpace::kWorld), MS::kSuccess);
    EXPECT_EQ(surface.getCV(2, 1, point), MS::kSuccess);
    EXPECT_EQ(numbers(point), (std::vector<double>{2, 3, -1}));
    EXPECT_EQ(surface.getCV(4, 0, point), MS::kInvalidParameter);
    EXPECT_EQ(surface.getCV(0, 2, point), MS::kInvalidParameter);
    MPointArray all;
    EXPECT_EQ(surface.getCVs(all), MS::kSuccess);
    ASSERT_EQ(all.length(), 8u);
    EXPECT_EQ(numbers(all[5]), (std::vector<double>{2, 3, -1}));
    all[5] = MPoint(1.5, 2, -1);
    EXPECT_EQ(surface.setCVs(all), MS::kSuccess);
    all.remove(0);
    EXPECT_EQ(surface.setCVs(all), MS::kInvalidParameter);
    EXPECT_EQ(surface.updateSurface(), MS::kSuccess);
}

TEST_F(MFnNurbsSurfaceTest, KnotsAreReadAndSet)
{
    MFnNurbsSurface surface;
    makeGutter(surface);
    MDoubleArray array;
    EXPECT_EQ(surface.getKnotsInU(array), MS::kSuccess);
    EXPECT_EQ(elementsOf(array), (std::vector<double>{0, 0, 1, 2, 2}));
    EXPECT_EQ(surface.getKnotsInV(array), MS::kSuccess);
    EXPECT_EQ(elementsOf(array), (std::vector<double>{0, 1}));
    EXPECT_EQ(surface.setKnotInU(2, 0.5), MS::kSuccess);
    EXPECT_EQ(surface.knotInU(2), 0.5);
    EXPECT_FALSE(surface.isUniform());
    EXPECT_TRUE(surface.isKnotU(0.5));
    EXPECT_FALSE(surface.isKnotU(0.6));
    EXPECT_TRUE(surface.isKnotV(1.0));
    EXPECT_EQ(surface.setKnotInU(2, 3.0), MS::kInvalidParameter) << "they would descend";
    EXPECT_EQ(surface.setKnotsInV(doubles({2, 4}), 0, 1), MS::kSuccess);
    EXPECT_EQ(surface.knotInV(1), 4.0);
    EXPECT_EQ(surface.setKnotsInV(doubles({2}), 0, 1), MS::kInvalidParameter);
    MStatus status;
    surface.knotInV(2, &status);
    EXPECT_EQ(text(status), "(kInvalidParameter): No element at given index");
    double startU = 0, endU = 0, startV = 0, endV = 0;
    EXPECT_EQ(surface.getKnotDomain(startU, endU, startV, endV), MS::kSuccess);
    EXPECT_EQ((std::vector<double>{startU, endU, startV, endV}), (std::vector<double>{0, 2, 2, 4}));
    EXPECT_TRUE(surface.isParamOnSurface(2, 2));
    EXPECT_FALSE(surface.isParamOnSurface(2, 1));
}

TEST_F(MFnNurbsSurfaceTest, PlacesAndDirectionsAreThoseOfTheFormula)
{
    MFnNurbsSurface surface;
    makeGutter(surface);
    set("rig.translate", {10, 0, 0});
    MPoint place;
    EXPECT_EQ(surface.getPointAtParam(1.5, 0.5, place), MS::kSuccess);
    EXPECT_TRUE(place.isEquivalent(MPoint(1.5, 2.25, -0.5), 1e-12));
    EXPECT_EQ(surface.getPointAtParam(1.5, 0.5, place, MSpace::kWorld), MS::kSuccess);
    EXPECT_TRUE(place.isEquivalent(MPoint(11.5, 2.25, -0.5), 1e-12));
    EXPECT_EQ(surface.getPointAtParam(2.5, 0.5, place), MS::kInvalidParameter);
    MVector u, v, uu, vv, uv;
    EXPECT_EQ(surface.getDerivativesAtParm(0.5, 0.5, place, u, v, MSpace::kObject, &uu, &vv, &uv),
              MS::kSuccess);
    EXPECT_TRUE(u.isEquivalent(MVector(1, 1, 0), 1e-12));
    EXPECT_TRUE(v.isEquivalent(MVector(0, 0, -1), 1e-12));
    EXPECT_TRUE(uu.isEquivalent(MVector(0, 2, 0), 1e-12));
    EXPECT_TRUE(vv.isEquivalent(MVector(0, 0, 0), 1e-12));
    EXPECT_TRUE(uv.isEquivalent(MVector(0, 0, 0), 1e-12));
    const double half = std::sqrt(0.5);
    EXPECT_EQ(surface.getTangents(0.5, 0.5, u, v), MS::kSuccess);
    EXPECT_TRUE(u.isEquivalent(MVector(half, half, 0), 1e-12));
    EXPECT_TRUE(surface.normal(0.5, 0.5).isEquivalent(MVector(-half, half, 0), 1e-12));
}

TEST_F(MFnNurbsSurfaceTest, WhatIsNearestIsFoundInBothSpaces)
{
    MFnNurbsSurface surface;
    makeGutter(surface);
    set("rig.translate", {10, 0, 0});
    double u = 0, v = 0;
    MStatus status;
    // Down the normal at u = 0.5, which is (-1, 1, 0).
    const MPoint place = surface.closestPoint(MPoint(10.25, 0.5, -0.25), &u, &v, false, kMFnNurbsEpsilon,
                                              MSpace::kWorld, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_TRUE(place.isEquivalent(MPoint(10.5, 0.25, -0.25), 1e-6));
    EXPECT_NEAR(u, 0.5, 1e-6);
    EXPECT_NEAR(v, 0.25, 1e-6);
    EXPECT_NEAR(surface.distanceToPoint(MPoint(0.25, 0.5, -0.25)), 0.25 * std::sqrt(2.0), 1e-9);
    EXPECT_TRUE(surface.isPointOnSurface(MPoint(1, 1, -0.5)));
    EXPECT_FALSE(surface.isPointOnSurface(MPoint(1, 1.1, -0.5)));
    EXPECT_EQ(surface.getParamAtPoint(MPoint(1, 1, -0.5), u, v), MS::kSuccess);
    EXPECT_NEAR(u, 1.0, 1e-6);
    EXPECT_EQ(surface.getParamAtPoint(MPoint(1, 1.1, -0.5), u, v), MS::kInvalidParameter);
    EXPECT_EQ(surface.getParamAtPoint(MPoint(1, 1.1, -0.5), u, v, false, MSpace::kObject, 0.2), MS::kSuccess);
}

TEST_F(MFnNurbsSurfaceTest, AreasGrowWithTheTransform)
{
    MFnNurbsSurface surface;
    MPointArray points;
    for (const double x : {0.0, 3.0}) {
        points.append(MPoint(x, 0, 0));
        points.append(MPoint(x, 0, -2));
    }
    make("transform", "rig");
    surface.create(points, doubles({0, 1}), doubles({0, 1}), 1, 1, MFnNurbsSurface::kOpen,
                   MFnNurbsSurface::kOpen, false, object("rig"));
    EXPECT_TRUE(surface.isBezier());
    EXPECT_NEAR(surface.area(), 6.0, 1e-9);
    set("rig.scale", {2, 2, 2});
    EXPECT_NEAR(surface.area(), 6.0, 1e-9);
    EXPECT_NEAR(surface.area(MSpace::kWorld), 24.0, 1e-9);
}

TEST_F(MFnNurbsSurfaceTest, ACopyIsItsOwnSurface)
{
    MFnNurbsSurface surface;
    makeGutter(surface);
    MFnNurbsSurface copy;
    MStatus status;
    const MObject made = copy.copy(surface.object(), MObject::kNullObj, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_TRUE(made.hasFn(MFn::kTransform)) << "without a parent it has a transform of its own";
    MPoint moved(5, 5, 5);
    EXPECT_EQ(copy.setCV(0, 0, moved), MS::kSuccess);
    MPoint point;
    EXPECT_EQ(surface.getCV(0, 0, point), MS::kSuccess);
    EXPECT_EQ(numbers(point), (std::vector<double>{0, 0, 0}));
    EXPECT_EQ(copy.getCV(0, 0, point), MS::kSuccess);
    EXPECT_EQ(numbers(point), (std::vector<double>{5, 5, 5}));
    copy.copy(object("rig"), MObject::kNullObj, &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnNurbsSurfaceTest, WhatIsNotDoneSaysSoOnce)
{
    MFnNurbsSurface surface;
    makeGutter(surface);
    MStatus status;
    EXPECT_TRUE(surface.tesselate(MTesselationParams::fsDefaultTesselationParams, &status).isNull());
    EXPECT_EQ(status, MS::kNotImplemented);
    EXPECT_TRUE(surface.tesselate().isNull());
    EXPECT_EQ(messages(engine::MessageKind::error), (Texts{"Not implemented: MFnNurbsSurface::tesselate"}));
}

TEST_F(MFnNurbsSurfaceTest, BoundariesAreAList)
{
    make("transform", "a");
    MObjectArray one(1, object("a"));
    MTrimBoundaryArray array;
    EXPECT_EQ(array.append(MObjectArray()), MS::kSuccess);
    EXPECT_EQ(array.insert(one, 0), MS::kSuccess);
    EXPECT_EQ(array.insert(one, 3), MS::kInvalidParameter);
    EXPECT_EQ(array.length(), 2u);
    EXPECT_EQ(array[0].length(), 1u);
    EXPECT_EQ(array.get(1).length(), 0u);
    MTrimBoundaryArray copy(array);
    EXPECT_EQ(array.set(MObjectArray(), 0), MS::kSuccess);
    EXPECT_EQ(array[0].length(), 0u);
    EXPECT_EQ(copy[0].length(), 1u);
    EXPECT_EQ(array.remove(2), MS::kInvalidParameter);
    EXPECT_EQ(array.remove(0), MS::kSuccess);
    EXPECT_EQ(array.size(), 1u);
    EXPECT_EQ(array.clear(), MS::kSuccess);
    EXPECT_EQ(array.length(), 0u);
    EXPECT_EQ(copy.length(), 2u);
}

} // namespace
} // namespace tvxhost::api::test
