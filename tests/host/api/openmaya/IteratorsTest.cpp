// MItDependencyNodes and MItDag: going through a scene.
#include "../sceneFixture.h"

#include <maya/MDagPathArray.h>
#include <maya/MItDag.h>
#include <maya/MItDependencyNodes.h>

namespace tvxhost::api::test {
namespace {

class IteratorsTest : public SceneFixture
{
protected:
    std::string nameOf(const MObject& handle)
    {
        return static_cast<engine::Node*>(tvxAccess::object(handle))->name();
    }
    Texts rest(MItDependencyNodes& iterator)
    {
        Texts all;
        for (; !iterator.isDone(); iterator.next())
            all.push_back(nameOf(iterator.thisNode()));
        return all;
    }
    Texts rest(MItDag& iterator)
    {
        Texts all;
        for (; !iterator.isDone(); iterator.next())
            all.push_back(text(iterator.fullPathName()));
        return all;
    }
    void makeTree()
    {
        make("transform", "a");
        make("transform", "b", "a");
        make("mesh", "bShape", "b");
        make("transform", "c", "a");
        make("transform", "d");
    }
};

TEST_F(IteratorsTest, NodesComeInTheOrderOfTheirCreation)
{
    make("lambert", "one");
    make("transform", "between");
    make("lambert", "two");
    MItDependencyNodes iterator(MFn::kLambert);
    const Texts found = rest(iterator);
    ASSERT_GE(found.size(), 2u);
    EXPECT_EQ(found[found.size() - 2], "one");
    EXPECT_EQ(found.back(), "two");
}

TEST_F(IteratorsTest, WithoutAFilterEveryNodeComesOnce)
{
    MItDependencyNodes all;
    EXPECT_EQ(rest(all).size(), scene.nodeCount());
    MItDependencyNodes time(MFn::kTime);
    EXPECT_EQ(rest(time), (Texts{"time1"})) << "default nodes too";
}

TEST_F(IteratorsTest, AFilterTakesDerivedKinds)
{
    make("mesh", "shape");
    MItDependencyNodes iterator(MFn::kDagNode);
    const Texts found = rest(iterator);
    EXPECT_NE(std::find(found.begin(), found.end(), "shape"), found.end());
}

TEST_F(IteratorsTest, AtTheEndThereIsNoNode)
{
    MItDependencyNodes iterator(MFn::kTime);
    EXPECT_EQ(iterator.next(), MS::kSuccess);
    MStatus status;
    EXPECT_TRUE(iterator.isDone(&status));
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_TRUE(iterator.thisNode(&status).isNull());
    EXPECT_EQ(status, MS::kFailure);
    EXPECT_TRUE(iterator.item().isNull());
    EXPECT_EQ(iterator.next(), MS::kFailure);
    EXPECT_EQ(iterator.reset(MFn::kTime), MS::kSuccess);
    EXPECT_EQ(rest(iterator), (Texts{"time1"}));
}

TEST_F(IteratorsTest, ANodeThatIsDeletedMeanwhileIsLeftOut)
{
    make("lambert", "one");
    make("lambert", "two");
    MItDependencyNodes iterator(MFn::kLambert);
    ASSERT_TRUE(scene.deleteNode(node("two")));
    for (const std::string& name : rest(iterator))
        EXPECT_NE(name, "two");
}

TEST_F(IteratorsTest, TheDagIsGoneThroughDepthFirst)
{
    makeTree();
    MItDag iterator;
    EXPECT_TRUE(iterator.currentItem() == tvxAccess::handle(&scene.world()));
    EXPECT_EQ(iterator.reset(path("a")), MS::kSuccess);
    EXPECT_EQ(rest(iterator), (Texts{"|a", "|a|b", "|a|b|bShape", "|a|c"}));
}

TEST_F(IteratorsTest, OrBreadthFirst)
{
    makeTree();
    MItDag iterator;
    EXPECT_EQ(iterator.reset(object("a"), MItDag::kBreadthFirst), MS::kSuccess);
    EXPECT_EQ(iterator.getType(), MItDag::kBreadthFirst);
    EXPECT_EQ(rest(iterator), (Texts{"|a", "|a|b", "|a|c", "|a|b|bShape"}));
    EXPECT_EQ(iterator.reset(object("a"), MItDag::kInvalidType), MS::kInvalidParameter);
}

TEST_F(IteratorsTest, AFilterLeavesOutAndGoesOnBelow)
{
    makeTree();
    MItDag iterator(MItDag::kDepthFirst, MFn::kMesh);
    EXPECT_EQ(rest(iterator), (Texts{"|a|b|bShape"}));
}

TEST_F(IteratorsTest, PruningLeavesOutWhatIsBelow)
{
    makeTree();
    MItDag iterator;
    iterator.reset(path("a"));
    iterator.next();
    EXPECT_EQ(text(iterator.partialPathName()), "b");
    EXPECT_EQ(iterator.depth(), 1u);
    EXPECT_EQ(iterator.prune(), MS::kSuccess);
    iterator.next();
    EXPECT_EQ(rest(iterator), (Texts{"|a|c"}));
    EXPECT_EQ(iterator.prune(), MS::kFailure);
    MStatus status;
    EXPECT_TRUE(iterator.currentItem(&status).isNull());
    EXPECT_EQ(status, MS::kFailure);
}

TEST_F(IteratorsTest, EachInstanceComesOnItsOwnPath)
{
    makeTree();
    instance("b", "d");
    MItDag iterator(MItDag::kDepthFirst, MFn::kMesh);
    EXPECT_EQ(iterator.instanceCount(true), 2u);
    EXPECT_EQ(iterator.instanceCount(false), 1u);
    EXPECT_TRUE(iterator.isInstanced());
    EXPECT_FALSE(iterator.isInstanced(false));
    MDagPathArray paths;
    EXPECT_EQ(iterator.getAllPaths(paths), MS::kSuccess);
    EXPECT_EQ(paths.length(), 2u);
    EXPECT_EQ(rest(iterator), (Texts{"|a|b|bShape", "|d|b|bShape"}));
}

} // namespace
} // namespace tvxhost::api::test
