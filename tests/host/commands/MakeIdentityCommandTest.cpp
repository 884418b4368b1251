// makeIdentity: transforms without effect.
#include "CommandFixture.h"

#include "engine/geometry/curveNode.h"
#include "engine/geometry/meshNormals.h"
#include "engine/mesh.h"

namespace tvxhost::mel {

using testing::DoubleNear;
using testing::Pointwise;

class MakeIdentityCommandTest : public CommandFixture
{
protected:
    /// The place in the world where a node's own origin is.
    void expectPlace(const std::string& node, const Value::Numbers& expected)
    {
        const Value::Numbers matrix = numbers("xform -q -ws -m " + node);
        EXPECT_THAT((Value::Numbers{matrix[12], matrix[13], matrix[14]}),
                    Pointwise(DoubleNear(1e-9), expected))
            << node;
    }
};

const Value::Numbers kIdentity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
/// A line from (1, 0, 0) to (1, 2, 0).
constexpr const char* kLine = "createNode nurbsCurve -n line -p t;"
                              "setAttr line.cc -type \"nurbsCurve\" 1 1 0 no 3 2 0 1 2 1 0 0 1 2 0;";

TEST_F(MakeIdentityCommandTest, transformsAreResetAndTakeTheirShapesWithThem)
{
    run("createNode transform -n a; setAttr a.t 1 2 3; setAttr a.r 10 20 30; setAttr a.s 2 2 2;"
        "setAttr a.sh 1 0 0; makeIdentity -t on a");
    expectNear("getAttr a.t", {0, 0, 0});
    expectNear("getAttr a.r", {10, 20, 30});
    run("makeIdentity a");
    expectNear("xform -q -m a", kIdentity);
}

TEST_F(MakeIdentityCommandTest, frozenMeshesStayWhereTheyAre)
{
    run("polyCube -n inner; group -n outer inner; setAttr outer.t 10 0 0; setAttr outer.s 2 2 2;"
        "setAttr inner.t 1 0 0; setAttr inner.ry 90");
    const std::string box = run("xform -q -ws -bb inner");
    run("makeIdentity -apply true -n 0 -pn true outer");
    EXPECT_EQ(run("xform -q -ws -bb inner"), box);
    expectNear("xform -q -m inner", kIdentity);
    expectNear("xform -q -m outer", kIdentity);
    expectNear("xform -q -ws -rp inner", {12, 0, 0});
    EXPECT_EQ(run("getAttr inner.opposite"), "0");
}

TEST_F(MakeIdentityCommandTest, onlyThePartsThatAreNamedAreFrozen)
{
    run("polyCube -n cube; setAttr cube.t 3 0 0; setAttr cube.s 2 1 1; makeIdentity -apply true -s true "
        "cube");
    expectNear("getAttr cube.t", {3, 0, 0});
    expectNear("getAttr cube.s", {1, 1, 1});
    expectNear("xform -q -ws -bb cube", {2, -0.5, -0.5, 4, 0.5, 0.5});
}

TEST_F(MakeIdentityCommandTest, allShapesOfATransformAreFrozen)
{
    run("polyCube -n one; polyCube -n two; setAttr two.tx 3; makeIdentity -apply true two;"
        "parent -r -s twoShape one; delete two; setAttr one.t 0 5 0; makeIdentity -apply 1 one");
    expectNear("xform -q -m one", kIdentity);
    expectNear("xform -q -ws -bb one", {-0.5, 4.5, -0.5, 3.5, 5.5, 0.5});
}

TEST_F(MakeIdentityCommandTest, normalsThatWereSetTurnWithThePoints)
{
    run("polyPlane -sx 1 -sy 1 -n plane; delete -ch plane; setAttr plane.rz 90; setAttr plane.t 1 2 3");
    engine::DagNode& shape = *scene.findNode("planeShape").value->asDag();
    ASSERT_TRUE(engine::editNormals(shape, [](engine::MeshData& mesh) {
        mesh.lockedNormals.assign(4, engine::Vec3f(engine::kNoNormal));
        mesh.lockedNormals[1] = engine::Vec3f(1, 0, 0);
    }));
    run("makeIdentity -apply true plane");
    const engine::MeshData* mesh = engine::meshOf(shape);
    ASSERT_TRUE(engine::isLocked(*mesh, 1));
    EXPECT_FALSE(engine::isLocked(*mesh, 0));
    EXPECT_NEAR((mesh->lockedNormals[1] - engine::Vec3f(0, 1, 0)).length(), 0, 1e-6);
}

TEST_F(MakeIdentityCommandTest, curvesStayWhereTheyAre)
{
    run(std::string("createNode transform -n t;") + kLine +
        "setAttr t.t 0 0 5; setAttr t.rz 90; setAttr t.s 2 2 2");
    run("makeIdentity -apply true t");
    expectNear("xform -q -m t", kIdentity);
    const auto curve = engine::curveOf(*scene.findNode("line").value);
    ASSERT_TRUE(curve);
    Value::Numbers places;
    for (const auto& point : curve->points)
        places.insert(places.end(), {point.place.x, point.place.y, point.place.z});
    EXPECT_THAT(places, Pointwise(DoubleNear(1e-9), Value::Numbers{0, 2, 5, -4, 2, 5}));
}

TEST_F(MakeIdentityCommandTest, mirroredMeshesGetTheirNormalsReversedWhenAsked)
{
    run("polyCube -n one; setAttr one.sx -1; makeIdentity -apply 1 one");
    EXPECT_EQ(run("getAttr one.opposite"), "0");
    run("setAttr one.sx -1; makeIdentity -apply 1 -pn 1 one");
    EXPECT_EQ(run("getAttr one.opposite"), "1");
}

TEST_F(MakeIdentityCommandTest, jointsKeepTheirPlaceAndTakeRotationIntoTheirOrientation)
{
    run("createNode joint -n hip; createNode joint -n knee -p hip; setAttr hip.t 1 0 0; setAttr hip.rz 90;"
        "setAttr knee.t 2 0 0; setAttr knee.r 0 0 -30");
    expectPlace("knee", {1, 2, 0});
    run("makeIdentity -apply true hip");
    expectNear("getAttr hip.t", {1, 0, 0});
    expectNear("getAttr hip.r", {0, 0, 0});
    expectNear("getAttr hip.jo", {0, 0, 90});
    expectNear("getAttr knee.t", {2, 0, 0});
    expectNear("getAttr knee.jo", {0, 0, -30});
    expectPlace("knee", {1, 2, 0});
}

TEST_F(MakeIdentityCommandTest, jointsTakeTheScaleOfWhatIsAbove)
{
    run("createNode transform -n rig; createNode joint -n hip -p rig; createNode joint -n knee -p hip;"
        "setAttr rig.s 2 2 2; setAttr hip.t 1 0 0; setAttr knee.t 0 3 0; makeIdentity -apply true rig");
    expectNear("getAttr hip.t", {2, 0, 0});
    expectNear("getAttr hip.s", {1, 1, 1});
    expectNear("getAttr knee.t", {0, 6, 0});
    expectPlace("knee", {2, 6, 0});
}

TEST_F(MakeIdentityCommandTest, theAxesOfJointsBecomeThoseOfTheWorld)
{
    run("createNode joint -n hip; createNode joint -n knee -p hip; setAttr hip.jo 0 0 90; setAttr hip.t 1 0 "
        "0;"
        "setAttr knee.t 2 0 0; setAttr knee.jo 0 0 45; makeIdentity -apply true -jointOrient hip");
    expectNear("getAttr hip.jo", {0, 0, 0});
    expectNear("getAttr knee.jo", {0, 0, 0});
    expectNear("getAttr knee.t", {0, 2, 0});
    run("setAttr hip.jo 0 0 20; makeIdentity -jo hip");
    expectNear("getAttr hip.jo", {0, 0, 0});
    expectNear("getAttr hip.t", {1, 0, 0});
}

TEST_F(MakeIdentityCommandTest, whatCannotBeMovedIsNamed)
{
    EXPECT_EQ(failure("spaceLocator -n mark; makeIdentity -apply on mark"),
              "makeIdentity -apply: 'markShape' has no points to move");
    EXPECT_EQ(failure("polyCube -n cube; instance cube; makeIdentity -apply on cube"),
              "makeIdentity -apply: 'cubeShape' is instanced");
    EXPECT_EQ(
        failure(std::string("createNode transform -n t;") + kLine +
                "createNode nurbsCurve -n maker; connectAttr maker.ws[0] line.cr; makeIdentity -a on t"),
        "makeIdentity -apply: 'line' has construction history");
}

} // namespace tvxhost::mel
