// MBoundingBox: a box along the axes.
#include <maya/MBoundingBox.h>
#include <maya/MEulerRotation.h>
#include <maya/MMatrix.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(MBoundingBox, IsEmptyAtTheOriginByDefault)
{
    const MBoundingBox box;
    EXPECT_EQ(box.min(), MPoint::origin);
    EXPECT_EQ(box.max(), MPoint::origin);
    EXPECT_EQ(box.center(), MPoint::origin);
    EXPECT_EQ(box.width() + box.height() + box.depth(), 0.0);
    EXPECT_FALSE(box.contains(MPoint::origin));
}

TEST(MBoundingBox, TakesAnyTwoOppositeCorners)
{
    const MBoundingBox box(MPoint(4, -1, 2), MPoint(0, 5, 1));
    EXPECT_EQ(box.min(), MPoint(0, -1, 1));
    EXPECT_EQ(box.max(), MPoint(4, 5, 2));
    EXPECT_EQ(box.center(), MPoint(2, 2, 1.5));
    EXPECT_EQ(box.width(), 4.0);
    EXPECT_EQ(box.height(), 6.0);
    EXPECT_EQ(box.depth(), 1.0);
}

TEST(MBoundingBox, GrowsFromEmptyWithoutTheOrigin)
{
    MBoundingBox box;
    box.expand(MPoint(2, 3, 4));
    EXPECT_EQ(box.min(), MPoint(2, 3, 4));
    box.expand(MBoundingBox(MPoint(5, 5, 5), MPoint(6, 6, 6)));
    EXPECT_EQ(box.max(), MPoint(6, 6, 6));
    box.expand(MBoundingBox());
    EXPECT_EQ(box.min(), MPoint(2, 3, 4));
    box.clear();
    EXPECT_EQ(box.max(), MPoint::origin);
}

TEST(MBoundingBox, ContainsItsBorder)
{
    const MBoundingBox box(MPoint(0, 0, 0), MPoint(1, 1, 1));
    EXPECT_TRUE(box.contains(MPoint(1, 0, 0.5)));
    EXPECT_FALSE(box.contains(MPoint(1.001, 0, 0.5)));
}

TEST(MBoundingBox, MeetsABoxThatTouchesIt)
{
    const MBoundingBox box(MPoint(0, 0, 0), MPoint(1, 1, 1));
    EXPECT_TRUE(box.intersects(MBoundingBox(MPoint(1, 1, 1), MPoint(2, 2, 2))));
    const MBoundingBox apart(MPoint(1.5, 0, 0), MPoint(2, 1, 1));
    EXPECT_FALSE(box.intersects(apart));
    EXPECT_TRUE(box.intersects(apart, 0.25));
}

TEST(MBoundingBox, HoldsItsCornersAfterATransformation)
{
    MBoundingBox box(MPoint(-1, -1, -1), MPoint(1, 1, 1));
    box.transformUsing(MEulerRotation(0, 0, 3.14159265358979323846 / 4.0).asMatrix());
    EXPECT_NEAR(box.width(), 2.0 * std::sqrt(2.0), 1.0e-12);
    EXPECT_NEAR(box.depth(), 2.0, 1.0e-12);
    MBoundingBox empty;
    empty.transformUsing(MMatrix::identity);
    EXPECT_EQ(empty.max(), MPoint::origin);
}

} // namespace
