// The DAG: parents, instances, paths, matrices, visibility.
#include "fixtures.h"

#include <gmock/gmock.h>

#include <cmath>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;

constexpr double kRight = 1.5707963267948966;

void expectNear(const Vec3d& a, const Vec3d& b)
{
    EXPECT_NEAR(a.x, b.x, 1e-9);
    EXPECT_NEAR(a.y, b.y, 1e-9);
    EXPECT_NEAR(a.z, b.z, 1e-9);
}

} // namespace

class DagTest : public SceneTest
{
protected:
    void setVector(const std::string& name, double x, double y, double z)
    {
        const Outcome outcome = writeNumbers(plug(name), {x, y, z});
        EXPECT_TRUE(outcome) << outcome.text;
    }
    Matrix matrixAt(const std::string& name)
    {
        const Expected<Ref<Data>> data = readData(plug(name));
        EXPECT_TRUE(data) << data.outcome.text;
        return data ? static_cast<const MatrixData&>(*data.value).value : Matrix();
    }
    static std::vector<std::string> fullNames(DagNode& node)
    {
        std::vector<std::string> names;
        for (const DagPath& path : DagPath::allTo(node))
            names.push_back(path.fullName());
        return names;
    }
};

TEST_F(DagTest, TopLevelNodesStandBelowTheWorld)
{
    DagNode& a = makeTransform("a");
    EXPECT_THAT(a.parents(), ElementsAre(&scene.world()));
    EXPECT_TRUE(scene.world().isWorld());
    EXPECT_FALSE(scene.world().isTransform());
    EXPECT_TRUE(scene.world().parents().empty());
    EXPECT_EQ(readNumber(scene.world().findPlug("visibility").value).value.asWhole(), 1);
}

TEST_F(DagTest, ChildrenStandInOrderOfParenting)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b", &a);
    Node& shape = make("locator", "s", &a);
    DagNode& c = makeTransform("c");
    ASSERT_TRUE(scene.reparent(c, nullptr, &a));
    EXPECT_THAT(a.children(), ElementsAre(&b, shape.asDag(), &c));
}

TEST_F(DagTest, ANodeCannotStandBelowItself)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b", &a);
    EXPECT_EQ(scene.reparent(a, nullptr, &b).reason, Reason::cycle);
    EXPECT_EQ(scene.addParent(a, a).reason, Reason::cycle);
    EXPECT_EQ(scene.addParent(scene.world(), a).reason, Reason::wrongKind);
}

TEST_F(DagTest, AShapeNeedsATransformAboveIt)
{
    Node& shape = make("locator", "sShape");
    DagNode& transform = *shape.asDag()->parents().front();
    EXPECT_EQ(scene.reparent(*shape.asDag(), &transform, nullptr).reason, Reason::wrongKind);
    EXPECT_EQ(scene.reparent(makeTransform("t"), nullptr, shape.asDag()).reason, Reason::wrongKind);
}

TEST_F(DagTest, AMovedNodeGetsAFreeNameAmongItsNewSiblings)
{
    DagNode& a = makeTransform("a");
    makeTransform("leaf", &a);
    DagNode& leaf = makeTransform("leaf");
    ASSERT_TRUE(scene.reparent(leaf, nullptr, &a));
    EXPECT_EQ(leaf.name(), "leaf1");
    EXPECT_EQ(scene.findNode("a|leaf1").value, &leaf);
}

TEST_F(DagTest, InstancesHaveOnePathForEachWayDown)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b");
    DagNode& group = makeTransform("group", &a);
    ASSERT_TRUE(scene.addParent(group, b));
    DagNode& shape = *make("locator", "s", &group).asDag();
    DagNode& single = makeTransform("single");
    ASSERT_TRUE(scene.addParent(shape, single));

    EXPECT_THAT(fullNames(shape), ElementsAre("|a|group|s", "|b|group|s", "|single|s"));
    EXPECT_EQ(DagPath::countTo(shape), 3u);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(DagPath::allTo(shape)[static_cast<std::size_t>(i)].instanceNumber(), i);
    EXPECT_EQ(DagPath::allTo(shape)[1].partialName(), "b|group|s");
    EXPECT_EQ(DagPath::allTo(shape)[2].partialName(), "single|s");
}

TEST_F(DagTest, AnInstanceIsTakenAwayButNotTheLast)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b");
    DagNode& shape = *make("locator", "s", &a).asDag();
    ASSERT_TRUE(scene.addParent(shape, b));
    EXPECT_EQ(scene.addParent(shape, b).reason, Reason::nameTaken);
    EXPECT_TRUE(scene.removeParent(shape, a));
    EXPECT_THAT(fullNames(shape), ElementsAre("|b|s"));
    EXPECT_EQ(scene.removeParent(shape, a).reason, Reason::notFound);
    EXPECT_EQ(scene.removeParent(shape, b).reason, Reason::readOnly);
}

TEST_F(DagTest, PathsGrowAndShrinkAlongTheDag)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b", &a);
    DagPath path = DagPath::firstTo(b);
    EXPECT_EQ(path.length(), 2u);
    EXPECT_EQ(path.pop(3).reason, Reason::badIndex);
    EXPECT_TRUE(path.pop());
    EXPECT_EQ(path.node(), &a);
    EXPECT_TRUE(path.push(b));
    EXPECT_EQ(path.push(a).reason, Reason::notFound);
    EXPECT_TRUE(path.pop(2));
    EXPECT_TRUE(path.isValid());
    EXPECT_EQ(path.node(), &scene.world());
    EXPECT_EQ(path.fullName(), "");
    EXPECT_EQ(path.transform(), nullptr);
    EXPECT_FALSE(DagPath().isValid());
}

TEST_F(DagTest, APathThatWasMovedFromIsNoneAnyMore)
{
    DagPath path = DagPath::firstTo(makeTransform("a"));
    EXPECT_TRUE(path.isValid());
    const DagPath taken = std::move(path);
    EXPECT_TRUE(taken.isValid());
    EXPECT_FALSE(path.isValid());
}

TEST_F(DagTest, PathsOfAnyLengthHoldTheirNodes)
{
    std::vector<DagNode*> chain = {&makeTransform("n0")};
    while (chain.size() < 9)
        chain.push_back(&makeTransform("n" + std::to_string(chain.size()), chain.back()));
    DagPath shortened = DagPath::firstTo(*chain.back());
    const DagPath whole = shortened;
    EXPECT_EQ(whole, shortened);
    EXPECT_EQ(whole.fullName(), "|n0|n1|n2|n3|n4|n5|n6|n7|n8");
    EXPECT_TRUE(shortened.pop(7));
    EXPECT_EQ(shortened.fullName(), "|n0|n1");
    EXPECT_TRUE(scene.deleteNode(*chain.front()));
    scene.journal().flush();
    EXPECT_FALSE(whole.isValid());
    ASSERT_EQ(whole.length(), 9u);
    for (std::size_t i = 0; i < 9; ++i)
        EXPECT_FALSE(whole.nodeAt(i)->isAlive()) << i;
}

TEST_F(DagTest, TheShapeBelowIsTheFirstThatIsNotIntermediate)
{
    DagNode& a = makeTransform("a");
    make("mesh", "orig", &a);
    Node& shown = make("mesh", "shown", &a);
    set("orig.io", 1);
    EXPECT_EQ(DagPath::firstTo(a).shapeBelow(), shown.asDag());
    EXPECT_EQ(DagPath::firstTo(*shown.asDag()).transform(), &a);
}

// Matrices: row vectors; the expected numbers are worked out by hand.
// ----------------------------------------------------------

TEST_F(DagTest, ScaleComesBeforeRotationAndRotationBeforeTranslation)
{
    DagNode& a = makeTransform("a");
    setVector("a.s", 2, 1, 1);
    setVector("a.r", 0, 0, kRight);
    setVector("a.t", 10, 0, 0);
    // (1,0,0) is scaled to (2,0,0), turned about z to (0,2,0), moved to (10,2,0).
    expectNear(Vec3d(1, 0, 0) * a.localMatrix(), Vec3d(10, 2, 0));
}

TEST_F(DagTest, TheRotateOrderSaysWhichAxisComesFirst)
{
    DagNode& a = makeTransform("a");
    setVector("a.r", kRight, kRight, 0);
    // xyz: about x, (0,1,0) to (0,0,1); then about y, to (1,0,0).
    expectNear(Vec3d(0, 1, 0) * a.localMatrix(), Vec3d(1, 0, 0));
    set("a.ro", 4); // yxz: about y it stays; then about x, to (0,0,1)
    expectNear(Vec3d(0, 1, 0) * a.localMatrix(), Vec3d(0, 0, 1));
}

TEST_F(DagTest, PivotsStayWhereTheyAreWhenTheNodeTurnsOrGrows)
{
    DagNode& a = makeTransform("a");
    setVector("a.rp", 1, 0, 0);
    setVector("a.r", 0, 0, kRight);
    expectNear(Vec3d(1, 0, 0) * a.localMatrix(), Vec3d(1, 0, 0));
    expectNear(Vec3d(2, 0, 0) * a.localMatrix(), Vec3d(1, 1, 0));

    DagNode& b = makeTransform("b");
    setVector("b.sp", 1, 0, 0);
    setVector("b.s", 3, 1, 1);
    setVector("b.spt", 0, 5, 0);
    expectNear(Vec3d(1, 0, 0) * b.localMatrix(), Vec3d(1, 5, 0));
    expectNear(Vec3d(2, 0, 0) * b.localMatrix(), Vec3d(4, 5, 0));
}

TEST_F(DagTest, ShearPushesAlongXAndY)
{
    DagNode& a = makeTransform("a");
    setVector("a.sh", 0.5, 0.25, 2);
    expectNear(Vec3d(0, 1, 0) * a.localMatrix(), Vec3d(0.5, 1, 0));
    expectNear(Vec3d(0, 0, 1) * a.localMatrix(), Vec3d(0.25, 2, 1));
}

TEST_F(DagTest, TheRotateAxisTurnsBeforeTheRotation)
{
    DagNode& a = makeTransform("a");
    setVector("a.ra", kRight, 0, 0);
    setVector("a.r", 0, kRight, 0);
    // About x, (0,1,0) to (0,0,1); then about y, to (1,0,0).
    expectNear(Vec3d(0, 1, 0) * a.localMatrix(), Vec3d(1, 0, 0));
}

TEST_F(DagTest, WorldMatricesMultiplyUpTheParents)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b", &a);
    setVector("a.t", 1, 2, 3);
    setVector("a.s", 2, 2, 2);
    setVector("b.t", 1, 0, 0);
    const DagPath path = DagPath::firstTo(b);
    expectNear(path.inclusiveMatrix().translation(), Vec3d(3, 2, 3));
    expectNear(path.exclusiveMatrix().translation(), Vec3d(1, 2, 3));
    EXPECT_EQ(matrixAt("b.worldMatrix[0]"), path.inclusiveMatrix());
    EXPECT_EQ(matrixAt("b.parentMatrix[0]"), path.exclusiveMatrix());
    expectNear(matrixAt("b.worldInverseMatrix[0]").translation(), Vec3d(-1.5, -1, -1.5));
    expectNear(matrixAt("b.parentInverseMatrix[0]").translation(), Vec3d(-0.5, -1, -1.5));
    expectNear(matrixAt("b.matrix").translation(), Vec3d(1, 0, 0));
    expectNear(matrixAt("b.inverseMatrix").translation(), Vec3d(-1, 0, 0));
}

TEST_F(DagTest, ANodeThatDoesNotInheritStandsInTheWorld)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b", &a);
    setVector("a.t", 5, 0, 0);
    setVector("b.t", 1, 0, 0);
    set("b.it", 0);
    expectNear(DagPath::firstTo(b).inclusiveMatrix().translation(), Vec3d(1, 0, 0));
    expectNear(matrixAt("b.worldMatrix[0]").translation(), Vec3d(1, 0, 0));
}

TEST_F(DagTest, EveryInstanceHasItsWorldMatrix)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b");
    setVector("a.t", 1, 0, 0);
    setVector("b.t", 0, 2, 0);
    DagNode& shape = *make("locator", "s", &a).asDag();
    ASSERT_TRUE(scene.addParent(shape, b));
    setVector("s.lp", 0, 0, 3);
    const auto worldMatrix = [&](int i) {
        const Plug element = shape.findPlug("worldMatrix[" + std::to_string(i) + "]").value;
        return static_cast<const MatrixData&>(*readData(element).value).value;
    };
    expectNear(worldMatrix(0).translation(), Vec3d(1, 0, 0));
    expectNear(worldMatrix(1).translation(), Vec3d(0, 2, 0));
    const Plug position = shape.findPlug("worldPosition[1]").value;
    EXPECT_THAT(readNumbers(position).value, ElementsAre(0.0, 2.0, 3.0));
}

TEST_F(DagTest, MovingAnAncestorReachesWhatIsConnectedToItsDescendants)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b", &a);
    makeTransform("leaf", &b);
    Node& user = make("transform", "user");
    Ref<Attribute> input(new Attribute(AttributeKind::matrix, "in", "in"));
    ASSERT_TRUE(user.addDynamicAttribute(input));
    ASSERT_TRUE(connect("leaf.worldMatrix[0]", "user.in"));
    expectNear(matrixAt("user.in").translation(), Vec3d(0, 0, 0));
    set("a.tx", 7);
    expectNear(matrixAt("user.in").translation(), Vec3d(7, 0, 0));
    setVector("b.t", 0, 1, 0);
    expectNear(matrixAt("user.in").translation(), Vec3d(7, 1, 0));
    DagNode& other = makeTransform("other");
    setVector("other.t", 0, 0, 9);
    ASSERT_TRUE(scene.reparent(b, &a, &other));
    expectNear(matrixAt("user.in").translation(), Vec3d(0, 1, 9));
}

TEST_F(DagTest, ADrivenTranslationCountsInTheMatrix)
{
    DagNode& a = makeTransform("a");
    makeTransform("driver");
    set("driver.ty", 4);
    ASSERT_TRUE(connect("driver.ty", "a.tx"));
    expectNear(a.localMatrix().translation(), Vec3d(4, 0, 0));
    set("driver.ty", 5);
    expectNear(a.localMatrix().translation(), Vec3d(5, 0, 0));
}

TEST_F(DagTest, ALocatorsBoxIsOneUnitEachWay)
{
    Node& shape = make("locator", "sShape");
    EXPECT_THAT(readNumbers(plug("sShape.boundingBoxMin")).value, ElementsAre(-1.0, -1.0, -1.0));
    EXPECT_THAT(readNumbers(plug("sShape.boundingBoxMax")).value, ElementsAre(1.0, 1.0, 1.0));
    set("sShape.lpx", 3);
    set("s.ty", 10);
    EXPECT_EQ(number("sShape.boundingBoxMaxX"), 4.0);
    EXPECT_THAT(readNumbers(shape.asDag()->parents().front()->findPlug("c").value).value,
                ElementsAre(3.0, 10.0, 0.0));
}

// Visibility
// ---------------------------------------------------------------------------------------------------

TEST_F(DagTest, EverythingOnAPathHasToBeVisible)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b", &a);
    const DagPath path = DagPath::firstTo(b);
    EXPECT_TRUE(path.isVisible());
    const auto hiddenWhile = [&](const char* name, double value, double back) {
        set(name, value);
        const bool hidden = !path.isVisible();
        set(name, back);
        return hidden && path.isVisible();
    };
    EXPECT_TRUE(hiddenWhile("a.v", 0, 1));
    EXPECT_TRUE(hiddenWhile("b.io", 1, 0));
    EXPECT_TRUE(hiddenWhile("a.lodv", 0, 1));
    set("a.ovv", 0);
    EXPECT_TRUE(path.isVisible());
    EXPECT_TRUE(hiddenWhile("a.ove", 1, 0));
}

TEST_F(DagTest, ATemplateAboveMakesAllBelowTemplates)
{
    DagNode& a = makeTransform("a");
    DagNode& b = makeTransform("b", &a);
    EXPECT_FALSE(DagPath::firstTo(b).isTemplated());
    set("a.ovdt", 1);
    EXPECT_FALSE(DagPath::firstTo(b).isTemplated());
    set("a.ove", 1);
    EXPECT_TRUE(DagPath::firstTo(b).isTemplated());
    set("a.ove", 0);
    set("b.tmp", 1);
    EXPECT_TRUE(DagPath::firstTo(b).isTemplated());
}

} // namespace tvxhost::engine
