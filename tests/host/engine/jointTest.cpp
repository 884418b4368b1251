// Joints: their place among other joints.
#include "fixtures.h"

namespace tvxhost::engine {
namespace {

constexpr double kQuarter = 3.14159265358979323846 / 2.0;

class Joint : public SceneTest
{
protected:
    Joint()
    {
        DagNode& root = *make("joint", "root").asDag();
        make("joint", "tip", &root);
        EXPECT_TRUE(connect("root.scale", "tip.inverseScale"));
        set("root.scaleX", 3);
        set("tip.translateX", 2);
    }
    Vec3d inWorld(const Vec3d& point)
    {
        const Expected<Ref<Data>> data = readData(plug("tip.worldMatrix[0]"));
        EXPECT_TRUE(data) << data.outcome.text;
        return point * static_cast<const MatrixData&>(*data.value).value;
    }
    void expectInWorld(const Vec3d& point, const Vec3d& expected)
    {
        EXPECT_LT((inWorld(point) - expected).length(), 1e-12) << inWorld(point);
    }
};

TEST_F(Joint, DoesNotTakeTheScaleOfTheJointAbove)
{
    expectInWorld({0, 0, 0}, {6, 0, 0});
    expectInWorld({1, 0, 0}, {7, 0, 0});
    set("tip.segmentScaleCompensate", 0);
    expectInWorld({1, 0, 0}, {9, 0, 0});
}

TEST_F(Joint, TurnsBeforeItsOrientationAndAfterItsAxes)
{
    set("root.scaleX", 1);
    set("tip.rotateAxisX", kQuarter);
    set("tip.rotateZ", kQuarter);
    set("tip.jointOrientX", kQuarter);
    // y goes to z about x, stays there about z, and goes to -y about x.
    expectInWorld({0, 1, 0}, {2, -1, 0});
    // x stays about x, goes to y about z, and goes to z about x.
    expectInWorld({1, 0, 0}, {2, 0, 1});
}

TEST_F(Joint, CompensatesAfterItsOrientation)
{
    set("tip.jointOrientZ", kQuarter);
    // x points to y, which the joint above does not scale; y points to -x, where its scale is taken back.
    expectInWorld({1, 0, 0}, {6, 1, 0});
    expectInWorld({0, 1, 0}, {5, 0, 0});
}

} // namespace
} // namespace tvxhost::engine
