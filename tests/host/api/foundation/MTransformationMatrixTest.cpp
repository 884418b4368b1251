// MTransformationMatrix: a transformation in its parts.
#include <maya/MEulerRotation.h>
#include <maya/MMatrix.h>
#include <maya/MPoint.h>
#include <maya/MQuaternion.h>
#include <maya/MTransformationMatrix.h>
#include <maya/MVector.h>

#include <gtest/gtest.h>

namespace {

MMatrix moved(const MVector& offset)
{
    MMatrix m;
    offset.get(m[3]);
    return m;
}

MMatrix scaled(double x, double y, double z)
{
    MMatrix m;
    m[0][0] = x;
    m[1][1] = y;
    m[2][2] = z;
    return m;
}

/// Shear by the documented rows: (1, 0, 0), (xy, 1, 0), (xz, yz, 1).
MMatrix sheared(double xy, double xz, double yz)
{
    MMatrix m;
    m[1][0] = xy;
    m[2][0] = xz;
    m[2][1] = yz;
    return m;
}

const double kScale[3] = {2, 3, 4};
const double kShear[3] = {0.1, 0.2, 0.3};
const MEulerRotation kRotation(0.3, -0.5, 1.1);
const MEulerRotation kAxis(0.2, 0.1, -0.4);
const MVector kScalePivot(1, 2, 3), kScaleShift(0.5, 0, -1), kRotatePivot(-1, 0, 2), kRotateShift(0, 0.25, 0),
    kTranslation(10, 20, 30);

MTransformationMatrix complete()
{
    MTransformationMatrix t;
    t.setScale(kScale, MSpace::kTransform);
    t.setShear(kShear, MSpace::kTransform);
    t.rotateTo(kRotation);
    t.setRotationOrientation(kAxis.asQuaternion());
    t.setScalePivot(kScalePivot, MSpace::kTransform, false);
    t.setScalePivotTranslation(kScaleShift, MSpace::kTransform);
    t.setRotatePivot(kRotatePivot, MSpace::kTransform, false);
    t.setRotatePivotTranslation(kRotateShift, MSpace::kTransform);
    t.setTranslation(kTranslation, MSpace::kTransform);
    return t;
}

TEST(MTransformationMatrix, IsNothingByDefault)
{
    EXPECT_EQ(MTransformationMatrix().asMatrix(), MMatrix::identity);
    EXPECT_EQ(MTransformationMatrix::identity.rotationOrder(), MTransformationMatrix::kXYZ);
}

TEST(MTransformationMatrix, IsTheProductOfItsPartsInOrder)
{
    const MMatrix expected = moved(-kScalePivot) * scaled(2, 3, 4) * sheared(0.1, 0.2, 0.3) *
                             moved(kScalePivot) * moved(kScaleShift) * moved(-kRotatePivot) *
                             kAxis.asMatrix() * kRotation.asMatrix() * moved(kRotatePivot) *
                             moved(kRotateShift) * moved(kTranslation);
    EXPECT_TRUE(complete().asMatrix().isEquivalent(expected));
    EXPECT_TRUE((complete().asMatrix() * complete().asMatrixInverse()).isEquivalent(MMatrix::identity));
}

TEST(MTransformationMatrix, TakesAMatrixApart)
{
    const MMatrix matrix =
        scaled(2, 3, 4) * sheared(0.1, 0.2, 0.3) * kRotation.asMatrix() * moved(kTranslation);
    const MTransformationMatrix t(matrix);
    double scale[3], shear[3];
    t.getScale(scale, MSpace::kTransform);
    t.getShear(shear, MSpace::kTransform);
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(scale[i], kScale[i], 1.0e-12);
        EXPECT_NEAR(shear[i], kShear[i], 1.0e-12);
    }
    EXPECT_TRUE(t.eulerRotation().isEquivalent(kRotation));
    EXPECT_EQ(t.getTranslation(MSpace::kTransform), kTranslation);
    EXPECT_TRUE(t.asMatrix().isEquivalent(matrix));
}

TEST(MTransformationMatrix, TakesAMirroredAndAFlattenedMatrixApart)
{
    const MMatrix mirrored = scaled(-1, 1, 1) * kRotation.asMatrix();
    EXPECT_TRUE(MTransformationMatrix(mirrored).asMatrix().isEquivalent(mirrored));
    const MMatrix flat = scaled(1, 0, 1) * kRotation.asMatrix();
    EXPECT_TRUE(MTransformationMatrix(flat).asMatrix().isEquivalent(flat));
    const MMatrix nothing = scaled(0, 0, 0);
    EXPECT_TRUE(MTransformationMatrix(nothing).asMatrix().isEquivalent(nothing));
}

TEST(MTransformationMatrix, GoesAShareOfTheWay)
{
    MTransformationMatrix t;
    t.setScale(kScale, MSpace::kTransform);
    t.setTranslation(kTranslation, MSpace::kTransform);
    t.rotateTo(MQuaternion(1.0, MVector::zAxis));
    const MMatrix half = t.asMatrix(0.5);
    const MMatrix expected =
        scaled(1.5, 2, 2.5) * MQuaternion(0.5, MVector::zAxis).asMatrix() * moved(kTranslation * 0.5);
    EXPECT_TRUE(half.isEquivalent(expected));
    EXPECT_TRUE(t.asMatrix(1.0).isEquivalent(t.asMatrix()));
    EXPECT_TRUE(t.asMatrix(0.0).isEquivalent(MMatrix::identity));
}

TEST(MTransformationMatrix, KeepsTheWholeWhenAPivotMovesInBalance)
{
    MTransformationMatrix t = complete();
    const MMatrix before = t.asMatrix();
    t.setScalePivot(MPoint(7, 8, 9), MSpace::kTransform, true);
    EXPECT_TRUE(t.asMatrix().isEquivalent(before));
    t.setRotatePivot(MPoint(-7, 5, 1), MSpace::kTransform, true);
    EXPECT_TRUE(t.asMatrix().isEquivalent(before));
    t.setRotatePivot(MPoint(0, 0, 0), MSpace::kTransform, false);
    EXPECT_FALSE(t.asMatrix().isEquivalent(before));
}

TEST(MTransformationMatrix, ShowsPivotsBehindTheTransformation)
{
    const MTransformationMatrix t = complete();
    EXPECT_EQ(t.rotatePivot(MSpace::kTransform), MPoint(kRotatePivot));
    EXPECT_TRUE(
        t.rotatePivot(MSpace::kPostTransform).isEquivalent(MPoint(kRotatePivot) * t.asMatrix(), 1.0e-9));
}

TEST(MTransformationMatrix, TurnsAboutItsOwnAxesOrTheParents)
{
    const MQuaternion turn(0.25, MVector::xAxis);
    MTransformationMatrix own, parents;
    own.rotateTo(kRotation);
    parents.rotateTo(kRotation);
    own.rotateBy(turn, MSpace::kObject);
    parents.rotateBy(turn, MSpace::kPostTransform);
    EXPECT_TRUE(own.asMatrix().isEquivalent(turn.asMatrix() * kRotation.asMatrix()));
    EXPECT_TRUE(parents.asMatrix().isEquivalent(kRotation.asMatrix() * turn.asMatrix()));
}

TEST(MTransformationMatrix, MultipliesScaleAndAddsShearAndTranslation)
{
    MTransformationMatrix t = complete();
    const double two[3] = {2, 2, 2};
    t.addScale(two, MSpace::kTransform);
    t.addShear(kShear, MSpace::kTransform);
    t.addTranslation(MVector(1, 1, 1), MSpace::kTransform);
    double scale[3], shear[3];
    t.getScale(scale, MSpace::kTransform);
    t.getShear(shear, MSpace::kTransform);
    EXPECT_EQ(scale[2], 8.0);
    EXPECT_DOUBLE_EQ(shear[1], 0.4);
    EXPECT_EQ(t.translation(MSpace::kTransform), MVector(11, 21, 31));
}

TEST(MTransformationMatrix, MovesAlongItsOwnAxesInObjectSpace)
{
    MTransformationMatrix t;
    t.rotateTo(MQuaternion(3.14159265358979323846 / 2.0, MVector::zAxis));
    t.addTranslation(MVector(1, 0, 0), MSpace::kObject);
    EXPECT_TRUE(t.getTranslation(MSpace::kTransform).isEquivalent(MVector(0, 1, 0)));
}

TEST(MTransformationMatrix, ChangesTheOrderAndKeepsTheRotation)
{
    MTransformationMatrix t = complete();
    const MMatrix before = t.asMatrix();
    EXPECT_EQ(t.reorderRotation(MTransformationMatrix::kZYX), MS::kSuccess);
    EXPECT_EQ(t.rotationOrder(), MTransformationMatrix::kZYX);
    EXPECT_TRUE(t.asMatrix().isEquivalent(before));
    EXPECT_EQ(t.reorderRotation(MTransformationMatrix::kInvalid), MS::kInvalidParameter);
    const double angles[3] = {0.1, 0.2, 0.3};
    EXPECT_EQ(t.setRotation(angles, MTransformationMatrix::kLast), MS::kInvalidParameter);
    EXPECT_EQ(t.setRotation(angles, MTransformationMatrix::kYXZ), MS::kSuccess);
    double back[3] = {};
    MTransformationMatrix::RotationOrder order = MTransformationMatrix::kInvalid;
    EXPECT_EQ(t.getRotation(back, order), MS::kSuccess);
    EXPECT_EQ(order, MTransformationMatrix::kYXZ);
    EXPECT_EQ(back[2], 0.3);
}

TEST(MTransformationMatrix, RefusesASpaceThatDoesNotExist)
{
    MTransformationMatrix t;
    MStatus status;
    EXPECT_EQ(t.getTranslation(MSpace::kInvalid, &status), MVector());
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_EQ(t.setTranslation(MVector(1, 2, 3), MSpace::kLast), MS::kInvalidParameter);
    EXPECT_EQ(t.asMatrix(), MMatrix::identity);
}

TEST(MTransformationMatrix, CopiesAreIndependent)
{
    MTransformationMatrix one = complete();
    MTransformationMatrix two(one);
    EXPECT_EQ(one, two);
    two.setTranslation(MVector(), MSpace::kTransform);
    EXPECT_NE(one, two);
    one = two;
    EXPECT_TRUE(one.isEquivalent(two));
}

} // namespace
