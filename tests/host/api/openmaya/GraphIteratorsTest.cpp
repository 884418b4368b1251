// MItDependencyGraph, MItSelectionList, MIteratorType: following connections and going through lists.
#include "../sceneFixture.h"

#include <maya/MFnDependencyNode.h>
#include <maya/MIntArray.h>
#include <maya/MItDag.h>
#include <maya/MItDependencyGraph.h>
#include <maya/MItDependencyNodes.h>
#include <maya/MItSelectionList.h>
#include <maya/MIteratorType.h>
#include <maya/MObjectArray.h>
#include <maya/MPlugArray.h>
#include <maya/MSelectionList.h>

#include <gmock/gmock.h>

namespace tvxhost::api::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string nameOf(const MObject& node)
{
    return text(MFnDependencyNode(node, nullptr).name());
}

/// A diamond: a feeds b and c, both feed d; d feeds e by another channel.
class GraphIteratorsTest : public SceneFixture
{
protected:
    GraphIteratorsTest()
    {
        for (const char* name : {"a", "b", "c", "d", "e"})
            make("transform", name);
        connect("a.tx", "b.tx");
        connect("a.tx", "c.tx");
        connect("b.ty", "d.tx");
        connect("c.ty", "d.ty");
        connect("d.sx", "e.sx");
    }

    void connect(const std::string& source, const std::string& destination)
    {
        const auto outcome = scene.connect(scene.findPlug(source).value, scene.findPlug(destination).value);
        EXPECT_TRUE(outcome) << outcome.text;
    }

    static Texts namesOf(MItDependencyGraph& graph)
    {
        Texts names;
        for (; !graph.isDone(); graph.next())
            names.push_back(nameOf(graph.thisNode()));
        return names;
    }

    static Texts plugsOf(MItDependencyGraph& graph)
    {
        Texts names;
        for (; !graph.isDone(); graph.next())
            names.push_back(text(graph.previousPlug().name()) + " " + text(graph.thisPlug().name()));
        return names;
    }
};

TEST_F(GraphIteratorsTest, EachNodeIsVisitedOnceDepthOrBreadthFirst)
{
    MObject a = object("a");
    MItDependencyGraph deep(a);
    EXPECT_THAT(namesOf(deep), ElementsAre("a", "b", "d", "e", "c"));
    MItDependencyGraph wide(a, MFn::kInvalid, MItDependencyGraph::kDownstream,
                            MItDependencyGraph::kBreadthFirst);
    EXPECT_THAT(namesOf(wide), ElementsAre("a", "b", "c", "d", "e"));
    MObject d = object("d");
    MItDependencyGraph up(d, MFn::kInvalid, MItDependencyGraph::kUpstream);
    EXPECT_THAT(namesOf(up), ElementsAre("d", "b", "a", "c"));
    EXPECT_TRUE(up.toggleDirection());
    EXPECT_TRUE(up.isDirectionDownStream());
    EXPECT_THAT(namesOf(up), ElementsAre("d", "e"));
}

TEST_F(GraphIteratorsTest, PlugsAreFollowedAsFarAsTheyAffectEachOther)
{
    MPlug root = plug("a.tx");
    MItDependencyGraph graph(root);
    EXPECT_THAT(plugsOf(graph),
                ElementsAre(" a.translateX", "a.translateX b.translateX", "a.translateX c.translateX"))
        << "translateX does not affect translateY";
    MPlug matrix = plug("d.ty");
    MItDependencyGraph up(matrix, MFn::kInvalid, MItDependencyGraph::kUpstream);
    EXPECT_THAT(plugsOf(up), ElementsAre(" d.translateY", "d.translateY c.translateY"));
    MPlug unconnected = plug("a.sz");
    MItDependencyGraph alone(unconnected);
    EXPECT_THAT(plugsOf(alone), ElementsAre(" a.scaleZ"));
}

TEST_F(GraphIteratorsTest, ComputedOutputsAreBehindTheirInputs)
{
    make("multiplyDivide", "md");
    connect("a.tx", "md.i1x");
    connect("md.ox", "e.tx");
    connect("md.oy", "e.ty");
    MPlug root = plug("md.i1x");
    MItDependencyGraph graph(root);
    const Texts plugs = plugsOf(graph);
    EXPECT_THAT(plugs, testing::Contains("md.outputX e.translateX"));
}

TEST_F(GraphIteratorsTest, AFilterIsGoneThroughUnlessItPrunes)
{
    make("multiplyDivide", "md");
    connect("e.tx", "md.i1x");
    make("transform", "f");
    connect("md.ox", "f.tx");
    MObject a = object("a");
    MItDependencyGraph graph(a, MFn::kMultiplyDivide);
    EXPECT_EQ(MFn::kMultiplyDivide, graph.currentFilter());
    EXPECT_THAT(namesOf(graph), ElementsAre("md"));
    EXPECT_TRUE(graph.enablePruningOnFilter());
    EXPECT_TRUE(graph.isPruningOnFilter());
    EXPECT_TRUE(graph.reset());
    EXPECT_THAT(namesOf(graph), IsEmpty()) << "the root does not fit";
    EXPECT_TRUE(graph.resetTo(a, MFn::kTransform));
    EXPECT_THAT(namesOf(graph), ElementsAre("a", "b", "d", "e", "c"));
    EXPECT_TRUE(graph.disablePruningOnFilter());
    EXPECT_TRUE(graph.resetTo(a, MFn::kTransform));
    EXPECT_THAT(namesOf(graph), ElementsAre("a", "b", "d", "e", "f", "c"));
}

TEST_F(GraphIteratorsTest, TheWayAndWhatWasVisitedAreKnown)
{
    MObject a = object("a");
    MItDependencyGraph graph(a);
    graph.next();
    graph.next();
    MObjectArray nodes;
    EXPECT_TRUE(graph.getNodePath(nodes));
    Texts names;
    for (unsigned int i = 0; i < nodes.length(); ++i)
        names.push_back(nameOf(nodes[i]));
    EXPECT_THAT(names, ElementsAre("a", "b", "d"));
    MPlugArray plugs;
    EXPECT_TRUE(graph.getPlugPath(plugs));
    ASSERT_EQ(2u, plugs.length());
    EXPECT_EQ("d.translateX", text(plugs[1].name()));
    EXPECT_EQ("b.translateY", text(graph.previousPlug().name()));
    EXPECT_TRUE(graph.prune());
    graph.next();
    EXPECT_EQ("c", nameOf(graph.currentItem()));
    EXPECT_TRUE(graph.getNodesVisited(nodes));
    EXPECT_EQ(4u, nodes.length());
    graph.next();
    EXPECT_TRUE(graph.isDone());
    EXPECT_FALSE(graph.next());
    MStatus status;
    EXPECT_TRUE(graph.thisNode(&status).isNull());
    EXPECT_FALSE(status);
}

TEST_F(GraphIteratorsTest, ARootThatIsNoneHasNoItems)
{
    MStatus status;
    MObject none;
    MItDependencyGraph graph(none, MFn::kInvalid, MItDependencyGraph::kDownstream,
                             MItDependencyGraph::kDepthFirst, MItDependencyGraph::kNodeLevel, &status);
    EXPECT_EQ(MS::kInvalidParameter, status.statusCode());
    EXPECT_TRUE(graph.isDone());
    EXPECT_TRUE(graph.rootNode(&status).isNull());
    EXPECT_FALSE(graph.reset());
}

TEST_F(GraphIteratorsTest, NodesBelowATransformMayCountAsItsDependents)
{
    make("transform", "below", "e");
    MObject e = object("e");
    MItDependencyGraph graph(e);
    EXPECT_THAT(namesOf(graph), ElementsAre("e"));
    EXPECT_TRUE(graph.setTraversalOverWorldSpaceDependents(true));
    EXPECT_TRUE(graph.isTraversingOverWorldSpaceDependents());
    EXPECT_TRUE(graph.reset());
    EXPECT_THAT(namesOf(graph), ElementsAre("e", "below"));
}

TEST_F(GraphIteratorsTest, AnInformationObjectHasOneTypeOrAList)
{
    MIteratorType info;
    MStatus status;
    info.setFilterType(MFn::kTransform, &status);
    EXPECT_TRUE(status);
    EXPECT_EQ(MFn::kTransform, info.getFilterType());
    MIntArray types;
    EXPECT_FALSE(info.getFilterList(types));
    info.setFilterList(types, &status);
    EXPECT_FALSE(status) << "an empty list";
    EXPECT_FALSE(info.filterListEnabled());
    types.append(MFn::kCamera);
    types.append(MFn::kMultiplyDivide);
    info.setFilterList(types, &status);
    EXPECT_TRUE(info.filterListEnabled());
    EXPECT_EQ(MFn::kInvalid, info.getFilterType(&status));
    EXPECT_FALSE(status);
    info.setObjectType(MIteratorType::kMPlugObject);
    const MIteratorType copy(info);
    MIteratorType another(copy);
    MIntArray given;
    EXPECT_TRUE(another.getFilterList(given));
    EXPECT_EQ(2u, given.length());
    EXPECT_EQ(MIteratorType::kMPlugObject, another.getObjectType());
}

TEST_F(GraphIteratorsTest, IteratorsTakeInformationObjects)
{
    make("multiplyDivide", "md");
    MIteratorType info;
    MIntArray types;
    types.append(MFn::kMultiplyDivide);
    types.append(MFn::kTransform);
    info.setFilterList(types);
    Texts names;
    for (MItDependencyNodes nodes(info); !nodes.isDone(); nodes.next())
        names.push_back(nameOf(nodes.thisNode()));
    EXPECT_THAT(names, testing::IsSupersetOf({"a", "b", "md"}));
    EXPECT_THAT(names, testing::Not(testing::Contains("perspShape")));

    make("transform", "below", "e");
    MItDag dag;
    const MObject e = object("e");
    EXPECT_TRUE(dag.reset(info, &e, nullptr));
    EXPECT_EQ("e", nameOf(dag.currentItem()));
    dag.next();
    EXPECT_EQ("below", nameOf(dag.currentItem()));
    info.setObjectType(MIteratorType::kMDagPathObject);
    EXPECT_EQ(MS::kInvalidParameter, dag.reset(info, &e, nullptr).statusCode());
    const MDagPath place = path("below");
    EXPECT_TRUE(dag.reset(info, nullptr, &place));
    EXPECT_EQ("below", nameOf(dag.currentItem()));

    info.setObjectType(MIteratorType::kMPlugObject);
    MObject none;
    MPlug root = plug("d.sx");
    MItDependencyGraph graph(none, root, info);
    EXPECT_THAT(namesOf(graph), ElementsAre("d", "e"));
}

TEST_F(GraphIteratorsTest, ASelectionListIsGoneThrough)
{
    make("locator", "locShape");
    MSelectionList list;
    for (const char* name : {"a", "d.tx", "locShape", "time1"})
        EXPECT_TRUE(list.add(name));
    MItSelectionList items(list);
    EXPECT_EQ(MItSelectionList::kDagSelectionItem, items.itemType());
    MDagPath place;
    EXPECT_TRUE(items.getDagPath(place));
    EXPECT_EQ("|a", text(place.fullPathName()));
    MPlug held;
    EXPECT_FALSE(items.getPlug(held));
    items.next();
    EXPECT_EQ(MItSelectionList::kPlugSelectionItem, items.itemType());
    EXPECT_TRUE(items.getPlug(held));
    EXPECT_EQ("d.translateX", text(held.name()));
    items.next();
    items.next();
    EXPECT_EQ(MItSelectionList::kDNselectionItem, items.itemType());
    EXPECT_FALSE(items.getDagPath(place));
    MObject node;
    EXPECT_TRUE(items.getDependNode(node));
    EXPECT_EQ("time1", nameOf(node));
    EXPECT_FALSE(items.hasComponents());
    items.next();
    EXPECT_TRUE(items.isDone());
    EXPECT_FALSE(items.next());
    MStatus status;
    EXPECT_EQ(MItSelectionList::kUnknownItem, items.itemType(&status));
    EXPECT_FALSE(status);
    EXPECT_TRUE(items.setFilter(MFn::kLocator));
    MStringArray names;
    EXPECT_TRUE(items.getStrings(names));
    EXPECT_THAT(texts(names), ElementsAre("locShape"));
    items.next();
    EXPECT_TRUE(items.isDone());
}

} // namespace
} // namespace tvxhost::api::test
