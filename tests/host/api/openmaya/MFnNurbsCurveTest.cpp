// MFnNurbsCurve: NURBS curves.
#include "../arrays.h"
#include "../sceneFixture.h"

#include <maya/MFnNurbsCurve.h>

namespace tvxhost::api::test {
namespace {

class MFnNurbsCurveTest : public SceneFixture
{
protected:
    /// A Bézier curve from the origin to (1, 0, 0) below the transform "rig".
    MObject makeArch(MFnNurbsCurve& set)
    {
        make("transform", "rig");
        MObject parent = object("rig");
        MStatus status;
        const MObject made =
            set.create(points({{0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0}}), doubles({0, 0, 0, 1, 1, 1}), 3,
                       MFnNurbsCurve::kOpen, false, false, parent, &status);
        EXPECT_EQ(status, MS::kSuccess) << text(status);
        return made;
    }
};

TEST_F(MFnNurbsCurveTest, IsMadeOfPointsAndKnots)
{
    MFnNurbsCurve curve;
    const MObject made = makeArch(curve);
    EXPECT_EQ(made, curve.object());
    EXPECT_EQ(curve.degree(), 3);
    EXPECT_EQ(curve.form(), MFnNurbsCurve::kOpen);
    EXPECT_EQ(curve.numCVs(), 4);
    EXPECT_EQ(curve.numSpans(), 1);
    EXPECT_EQ(curve.numKnots(), 6);
    EXPECT_EQ(curve.knot(3), 1.0);
    EXPECT_FALSE(curve.hasHistoryOnCreate());
    MStatus status;
    EXPECT_TRUE(MFnNurbsCurve()
                    .create(points({{0, 0, 0}}), doubles({0, 1}), 3, MFnNurbsCurve::kOpen, false, false,
                            MObject::kNullObj, &status)
                    .isNull());
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnNurbsCurveTest, PointsOnItAreToldInAnySpace)
{
    MFnNurbsCurve maker;
    makeArch(maker);
    set("rig.t", {10.0, 0.0, 0.0});
    const MFnNurbsCurve curve(path("rig"), nullptr);
    MPoint point;
    EXPECT_EQ(curve.getPointAtParam(0.5, point), MS::kSuccess);
    EXPECT_TRUE(point.isEquivalent(MPoint(0.5, 0.75, 0.0), 1e-12));
    EXPECT_EQ(curve.getPointAtParam(0.5, point, MSpace::kWorld), MS::kSuccess);
    EXPECT_TRUE(point.isEquivalent(MPoint(10.5, 0.75, 0.0), 1e-12));
    EXPECT_EQ(curve.getPointAtParam(1.5, point), MS::kInvalidParameter);
    EXPECT_TRUE(curve.isParamOnCurve(1.0));
    EXPECT_FALSE(curve.isParamOnCurve(1.1));
    EXPECT_TRUE(curve.tangent(0.5).isEquivalent(MVector(1.0, 0.0, 0.0), 1e-12));
    MVector velocity;
    MVector acceleration;
    EXPECT_EQ(curve.getDerivativesAtParm(0.0, point, velocity, MSpace::kObject, &acceleration), MS::kSuccess);
    EXPECT_TRUE(velocity.isEquivalent(MVector(0.0, 3.0, 0.0), 1e-12));
    EXPECT_TRUE(acceleration.isEquivalent(MVector(6.0, -6.0, 0.0), 1e-12));
    // The arch is symmetric: half of its length ends in its middle. The whole is 2.
    EXPECT_NEAR(curve.length(), 2.0, 1e-9);
    EXPECT_NEAR(curve.findParamFromLength(1.0), 0.5, 1e-9);
}

TEST_F(MFnNurbsCurveTest, ControlPointsAndKnotsAreChanged)
{
    MFnNurbsCurve curve;
    makeArch(curve);
    EXPECT_EQ(curve.setCV(1, MPoint(0, 2, 0)), MS::kSuccess);
    MPoint point;
    EXPECT_EQ(curve.getCV(1, point), MS::kSuccess);
    EXPECT_EQ(point, MPoint(0, 2, 0));
    MPointArray all;
    EXPECT_EQ(curve.getCVs(all), MS::kSuccess);
    EXPECT_EQ(all.length(), 4u);
    for (unsigned int i = 0; i < all.length(); ++i)
        all[i] = all[i] + MVector(1, 0, 0);
    EXPECT_EQ(curve.setCVs(all), MS::kSuccess);
    EXPECT_EQ(curve.getCV(3, point), MS::kSuccess);
    EXPECT_EQ(point, MPoint(2, 0, 0));
    all.append(MPoint());
    EXPECT_EQ(curve.setCVs(all), MS::kInvalidParameter);
    EXPECT_EQ(curve.setCV(4, point), MS::kInvalidParameter);
    EXPECT_EQ(curve.setKnots(doubles({2, 2, 2}), 3, 5), MS::kSuccess);
    double start = 9.0;
    double end = 9.0;
    EXPECT_EQ(curve.getKnotDomain(start, end), MS::kSuccess);
    EXPECT_EQ(start, 0.0);
    EXPECT_EQ(end, 2.0);
    EXPECT_EQ(curve.setKnot(0, 5.0), MS::kInvalidParameter) << "knots do not descend";
    MDoubleArray values;
    EXPECT_EQ(curve.getKnots(values), MS::kSuccess);
    EXPECT_EQ(values.length(), 6u);
    EXPECT_EQ(values[0], 0.0);
    EXPECT_EQ(curve.updateCurve(), MS::kSuccess);
}

TEST_F(MFnNurbsCurveTest, ReadsWhatFilesHold)
{
    make("transform", "rig");
    engine::Node& shape = make("nurbsCurve", "ring", "rig");
    const engine::KeptData words(
        "nurbsCurve", "\n\t\t1 2 0 no 3\n\t\t3 0 1 2\n\t\t3\n\t\t0 0 0\n\t\t3 4 0\n\t\t3 4 12\n\t\t");
    ASSERT_TRUE(engine::writeData(engine::Plug(shape, *shape.findAttribute("cc")), words));
    const MFnNurbsCurve curve(object("ring"), nullptr);
    EXPECT_EQ(curve.numSpans(), 2);
    EXPECT_NEAR(curve.length(), 17.0, 1e-9);
}

TEST_F(MFnNurbsCurveTest, RefusesWhatIsNotThere)
{
    make("transform", "rig");
    make("nurbsCurve", "bare", "rig");
    MStatus status;
    const MFnNurbsCurve bare(object("bare"), &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(bare.numCVs(&status), 0);
    EXPECT_EQ(status, MS::kInvalidParameter) << "it has no geometry";
    EXPECT_EQ(bare.form(&status), MFnNurbsCurve::kInvalid);
    MFnNurbsCurve nothing;
    EXPECT_EQ(nothing.updateCurve(), MS::kFailure);
    MFnNurbsCurve arch;
    make("transform", "other");
    MObject parent = object("other");
    arch.create(points({{0, 0, 0}, {1, 0, 0}}), doubles({0, 1}), 1, MFnNurbsCurve::kOpen, false, false,
                parent);
    EXPECT_EQ(arch.reverse(), MS::kNotImplemented);
    arch.closestPoint(MPoint(), nullptr, 0.1, MSpace::kObject, &status);
    EXPECT_EQ(status, MS::kNotImplemented);
    faults::failCall("MFnNurbsCurve::degree", 1, MS::kFailure);
    EXPECT_EQ(arch.degree(&status), 0);
    EXPECT_EQ(status, MS::kFailure);
}

} // namespace
} // namespace tvxhost::api::test
