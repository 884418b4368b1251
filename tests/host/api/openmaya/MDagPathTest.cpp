// MDagPath: one place of a node in the hierarchy.
#include "../sceneFixture.h"

#include <maya/MDagPathArray.h>
#include <maya/MMatrix.h>

namespace tvxhost::api::test {
namespace {

class MDagPathTest : public SceneFixture
{
};

TEST_F(MDagPathTest, IsNotValidByDefaultAndItsCallsFail)
{
    const MDagPath none;
    MStatus status;
    EXPECT_FALSE(none.isValid(&status));
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(text(none.fullPathName(&status)), "");
    EXPECT_EQ(text(status), "(kFailure): Object does not exist");
    EXPECT_EQ(none.apiType(&status), MFn::kInvalid);
    EXPECT_EQ(status, MS::kFailure);
    EXPECT_TRUE(none.node().isNull());
    EXPECT_EQ(none.length(), 0u);
    EXPECT_EQ(none.inclusiveMatrix(), MMatrix::identity);
    MDagPath path;
    EXPECT_EQ(path.pop(), MS::kFailure);
    EXPECT_EQ(path.extendToShape(), MS::kFailure);
    EXPECT_TRUE(path == none);
}

TEST_F(MDagPathTest, NamesItsNodesFromTheRootAndAsShortAsIsUnique)
{
    make("transform", "a");
    make("transform", "b");
    make("transform", "leaf", "a");
    make("transform", "leaf", "b");
    EXPECT_EQ(text(path("|a|leaf").fullPathName()), "|a|leaf");
    EXPECT_EQ(text(path("|b|leaf").partialPathName()), "b|leaf");
    EXPECT_EQ(text(path("|a").partialPathName()), "a");
    EXPECT_EQ(path("|a|leaf").length(), 2u);
}

TEST_F(MDagPathTest, GoesDownAndUp)
{
    make("transform", "a");
    make("transform", "b", "a");
    MDagPath way = path("|a");
    EXPECT_EQ(way.childCount(), 1u);
    EXPECT_TRUE(way.child(0) == object("b"));
    EXPECT_EQ(way.push(object("b")), MS::kSuccess);
    EXPECT_EQ(text(way.fullPathName()), "|a|b");
    EXPECT_EQ(way.push(object("a")), MS::kInvalidParameter);
    EXPECT_EQ(way.push(MObject()), MS::kInvalidParameter);
    EXPECT_EQ(text(way.fullPathName()), "|a|b") << "refused without a change";
    EXPECT_EQ(way.pop(3), MS::kFailure);
    EXPECT_EQ(text(way.fullPathName()), "|a|b");
    EXPECT_EQ(way.pop(2), MS::kSuccess);
    EXPECT_EQ(way.length(), 0u);
    EXPECT_EQ(way.apiType(), MFn::kWorld);
    MStatus status;
    EXPECT_TRUE(path("|a").child(7, &status).isNull());
    EXPECT_EQ(text(status), "(kInvalidParameter): No element at given index");
}

TEST_F(MDagPathTest, TheWorldHasNoTransform)
{
    MDagPath world;
    make("transform", "a");
    world = path("|a");
    world.pop();
    MStatus status;
    EXPECT_TRUE(world.transform(&status).isNull());
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_TRUE(path("|a").transform() == object("a"));
}

TEST_F(MDagPathTest, AnswersForTheShapeBelowToo)
{
    make("transform", "figure");
    make("mesh", "figureShape", "figure");
    const MDagPath way = path("|figure");
    EXPECT_TRUE(way.hasFn(MFn::kTransform));
    EXPECT_TRUE(way.hasFn(MFn::kMesh));
    EXPECT_FALSE(way.hasFn(MFn::kCamera));
    EXPECT_EQ(way.apiType(), MFn::kTransform);
    EXPECT_FALSE(object("figure").hasFn(MFn::kMesh)) << "an object does not";
}

TEST_F(MDagPathTest, ExtendsToTheShapeAndStaysThere)
{
    make("transform", "figure");
    make("mesh", "original", "figure");
    make("mesh", "visible", "figure");
    set("original.intermediateObject", {1});
    MDagPath way = path("|figure");
    EXPECT_EQ(way.extendToShape(), MS::kSuccess);
    EXPECT_EQ(text(way.fullPathName()), "|figure|visible");
    EXPECT_EQ(way.extendToShape(), MS::kSuccess);
    EXPECT_EQ(text(way.fullPathName()), "|figure|visible");
    make("transform", "group");
    MDagPath group = path("|group");
    EXPECT_EQ(group.extendToShape(), MS::kFailure);
    EXPECT_EQ(text(group.fullPathName()), "|group");
}

TEST_F(MDagPathTest, CountsTheShapesDirectlyBelow)
{
    make("transform", "figure");
    make("mesh", "one", "figure");
    make("transform", "between", "figure");
    make("mesh", "two", "figure");
    unsigned int count = 0;
    EXPECT_EQ(path("|figure").numberOfShapesDirectlyBelow(count), MS::kSuccess);
    EXPECT_EQ(count, 2u);
    MDagPath way = path("|figure");
    EXPECT_EQ(way.extendToShapeDirectlyBelow(2), MS::kInvalidParameter);
    EXPECT_EQ(way.extendToShapeDirectlyBelow(1), MS::kSuccess);
    EXPECT_EQ(text(way.fullPathName()), "|figure|two");
}

TEST_F(MDagPathTest, ThereIsOnePathPerInstance)
{
    make("transform", "a");
    make("transform", "b");
    make("transform", "leaf", "a");
    instance("leaf", "b");
    MDagPathArray all;
    EXPECT_EQ(MDagPath::getAllPathsTo(object("leaf"), all), MS::kSuccess);
    ASSERT_EQ(all.length(), 2u);
    EXPECT_EQ(text(all[0].fullPathName()), "|a|leaf");
    EXPECT_EQ(text(all[1].fullPathName()), "|b|leaf");
    EXPECT_EQ(all[1].instanceNumber(), 1u);
    EXPECT_TRUE(all[0].isInstanced());
    EXPECT_FALSE(path("|a").isInstanced());
    make("transform", "below", "leaf");
    EXPECT_TRUE(path("|b|leaf|below").isInstanced());
    EXPECT_FALSE(all[0] == all[1]);
    MDagPath first;
    EXPECT_EQ(MDagPath::getAPathTo(object("leaf"), first), MS::kSuccess);
    EXPECT_TRUE(first == all[0]);
    MStatus status;
    EXPECT_FALSE(MDagPath::getAPathTo(object("time1"), &status).isValid());
    EXPECT_EQ(text(status), "(kInvalidParameter): Object is incompatible with this method");
    EXPECT_EQ(text(MDagPath::getAPathTo(MObject(), first)),
              "(kInvalidParameter): Argument is a NULL pointer");
}

TEST_F(MDagPathTest, HasTheMatricesOfTheWay)
{
    make("transform", "a");
    make("transform", "b", "a");
    set("a.translate", {1, 2, 3});
    set("b.translate", {10, 20, 30});
    const MMatrix inclusive = path("|a|b").inclusiveMatrix();
    EXPECT_EQ(inclusive(3, 0), 11.0);
    EXPECT_EQ(inclusive(3, 1), 22.0);
    EXPECT_EQ(inclusive(3, 2), 33.0);
    EXPECT_EQ(path("|a|b").exclusiveMatrix()(3, 2), 3.0);
    EXPECT_EQ(path("|a|b").inclusiveMatrixInverse()(3, 1), -22.0);
    EXPECT_EQ(path("|a|b").exclusiveMatrixInverse()(3, 0), -1.0);
}

TEST_F(MDagPathTest, IsVisibleWhenTheWholeWayIs)
{
    make("transform", "a");
    make("transform", "b", "a");
    EXPECT_TRUE(path("|a|b").isVisible());
    set("a.visibility", {0});
    EXPECT_FALSE(path("|a|b").isVisible());
    EXPECT_FALSE(path("|a|b").isTemplated());
    set("a.template", {1});
    EXPECT_TRUE(path("|a|b").isTemplated());
}

TEST_F(MDagPathTest, DiesWithItsNode)
{
    make("transform", "a");
    const MDagPath way = path("|a");
    ASSERT_TRUE(scene.deleteNode(node("a")));
    EXPECT_FALSE(way.isValid());
    MStatus status;
    EXPECT_EQ(text(way.fullPathName(&status)), "");
    EXPECT_EQ(status, MS::kFailure);
}

TEST_F(MDagPathTest, FailsWhenItIsToldTo)
{
    make("transform", "a");
    MDagPath way = path("|a");
    faults::failCall("MDagPath::fullPathName", 2, MS::kInsufficientMemory);
    MStatus status;
    EXPECT_EQ(text(way.fullPathName(&status)), "|a");
    EXPECT_EQ(text(way.fullPathName(&status)), "");
    EXPECT_EQ(status, MS::kInsufficientMemory);
    EXPECT_EQ(text(way.fullPathName(&status)), "|a");
}

} // namespace
} // namespace tvxhost::api::test
