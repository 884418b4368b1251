// Connections: made, broken, listed, and what is told when a step fails.
#include "UtilsFixture.h"

#include <maya/MDGModifier.h>
#include <maya/MPlugArray.h>

#include <functional>

namespace tarvox::crowd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kFile[] = "tvxMayaUtilsConnections.cpp";

class Connections : public UtilsFixture
{
protected:
    Connections()
    {
        for (const char* name : {"a", "b", "c"})
            make("transform", name);
        make("plusMinusAverage", "sum");
    }

    void connect(const std::string& source, const std::string& destination)
    {
        const auto outcome = scene.connect(scene.findPlug(source).value, scene.findPlug(destination).value);
        ASSERT_TRUE(outcome) << outcome.text;
    }
    bool areConnected(const std::string& source, const std::string& destination)
    {
        MPlugArray sources;
        plug(destination).connectedTo(sources, true, false);
        return sources.length() == 1 && sources[0] == plug(source);
    }
    MObject attribute(const std::string& nodeName, const std::string& name)
    {
        return MFnDependencyNode(object(nodeName), nullptr).attribute(name.c_str());
    }

    std::vector<MObject> list(const std::vector<std::string>& nodeNames)
    {
        std::vector<MObject> nodes;
        for (const std::string& name : nodeNames)
            nodes.push_back(object(name));
        return nodes;
    }
    static std::vector<std::string> names(const std::vector<MObject>& nodes)
    {
        std::vector<std::string> texts;
        for (const MObject& each : nodes)
            texts.push_back(MFnDependencyNode(each, nullptr).name().asChar());
        return texts;
    }

    /// Makes the n-th call fail and expects the member to fail with the error string of that.
    void expectFailure(const std::string& call, std::size_t n, const std::string& member,
                       const std::function<MStatus()>& run)
    {
        UtilsFixture::expectFailure(kFile, call, n, member + "|" + failureText(), run);
    }
};

TEST_F(Connections, AreMadeAndBrokenByName)
{
    EXPECT_EQ(MayaUtils::connectAttributes(object("a"), "translateX", object("b"), "ty"), MStatus::kSuccess);
    EXPECT_TRUE(areConnected("a.translateX", "b.translateY"));
    EXPECT_EQ(MayaUtils::disconnectAttributes(object("a"), "tx", object("b"), "translateY"),
              MStatus::kSuccess);
    EXPECT_FALSE(plug("b.translateY").isConnected());
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Connections, ReportTheStepThatFails)
{
    const auto make = [&] { return MayaUtils::connectAttributes(object("a"), "tx", object("b"), "ty"); };
    const auto breakIt = [&] {
        return MayaUtils::disconnectAttributes(object("a"), "tx", object("b"), "ty");
    };
    for (const std::size_t n : {1u, 2u}) {
        expectFailure("MFnDependencyNode::MFnDependencyNode", n, "connectAttributes", make);
        expectFailure("MFnDependencyNode::findPlug", n, "connectAttributes", make);
        expectFailure("MFnDependencyNode::MFnDependencyNode", n, "disconnectAttributes", breakIt);
        expectFailure("MFnDependencyNode::findPlug", n, "disconnectAttributes", breakIt);
    }
    EXPECT_FALSE(plug("b.translateY").isConnected());
}

TEST_F(Connections, LookUpBothNodesBeforeAnyPlug)
{
    faults::record(true);
    MayaUtils::connectAttributes(object("a"), "tx", object("b"), "ty");
    std::vector<std::string> lookUps;
    for (const std::string& call : faults::calls())
        if (call.rfind("MFnDependencyNode::", 0) == 0 || call.rfind("MDGModifier::", 0) == 0)
            lookUps.push_back(call);
    EXPECT_THAT(lookUps,
                ElementsAre("MFnDependencyNode::MFnDependencyNode", "MFnDependencyNode::MFnDependencyNode",
                            "MFnDependencyNode::findPlug", "MFnDependencyNode::findPlug",
                            "MDGModifier::connect", "MDGModifier::doIt"));
}

TEST_F(Connections, WhatMayaRefusesIsReturnedUnreported)
{
    faults::failCall("MDGModifier::connect", 1, failure());
    EXPECT_EQ(MayaUtils::connectAttributes(object("a"), "tx", object("b"), "ty"), failure());
    faults::failCall("MDGModifier::disconnect", 1, failure());
    EXPECT_EQ(MayaUtils::disconnectAttributes(object("a"), "tx", object("b"), "ty"), failure());
    faults::failCall("MDGModifier::doIt", 1, failure());
    EXPECT_EQ(MayaUtils::connectAttributes(object("a"), "tx", object("b"), "ty"), failure());
    faults::clear();
    connect("c.tx", "b.ty");
    EXPECT_NE(MayaUtils::connectAttributes(object("a"), "tx", object("b"), "ty"), MStatus::kSuccess);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Connections, SourcesAreTheNodesThatFeedThePlug)
{
    connect("a.tx", "b.ty");
    std::vector<MObject> nodes;
    EXPECT_EQ(MayaUtils::findConnectedNodesOnPlug(object("b"), "translateY", nodes), MStatus::kSuccess);
    EXPECT_THAT(names(nodes), ElementsAre("a"));
    nodes.clear();
    EXPECT_EQ(MayaUtils::findConnectedNodesOnPlug(object("a"), "translateX", nodes), MStatus::kSuccess);
    EXPECT_THAT(nodes, IsEmpty());
}

TEST_F(Connections, DestinationsAreTheNodesThatThePlugFeeds)
{
    connect("a.tx", "b.ty");
    connect("a.tx", "c.tx");
    connect("a.tx", "b.tz");
    std::vector<MObject> nodes;
    EXPECT_EQ(MayaUtils::findConnectedNodesToPlug(object("a"), "translateX", nodes), MStatus::kSuccess);
    EXPECT_THAT(names(nodes), ElementsAre("b", "c", "b"));
    nodes.clear();
    EXPECT_EQ(MayaUtils::findConnectedNodesToPlug(object("b"), "translateY", nodes), MStatus::kSuccess);
    EXPECT_THAT(nodes, IsEmpty());
}

TEST_F(Connections, SourcesOfAnArrayAreListedInTheOrderOfElements)
{
    connect("b.tx", "sum.input1D[2]");
    connect("a.tx", "sum.input1D[0]");
    std::vector<MObject> nodes;
    EXPECT_EQ(MayaUtils::findConnectedNodesOnPlug(object("sum"), "input1D", nodes), MStatus::kSuccess);
    EXPECT_THAT(names(nodes), ElementsAre("a", "b"));
}

TEST_F(Connections, DestinationsOfAnArrayAreListedInTheOrderOfElements)
{
    make("joint", "bone");
    connect("a.worldMatrix[0]", "bone.bindPose");
    std::vector<MObject> nodes;
    EXPECT_EQ(MayaUtils::findConnectedNodesToPlug(object("a"), "worldMatrix", nodes), MStatus::kSuccess);
    EXPECT_THAT(names(nodes), ElementsAre("bone"));
}

TEST_F(Connections, NothingIsClearedAndNothingIsListedOnce)
{
    connect("a.tx", "sum.input1D[0]");
    connect("a.ty", "sum.input1D[1]");
    std::vector<MObject> nodes = list({"c"});
    MStatus status(MStatus::kFailure);
    MayaUtils::collectConnectedSources(object("sum"), attribute("sum", "input1D"), nodes, &status);
    EXPECT_EQ(status, MStatus::kSuccess);
    EXPECT_THAT(names(nodes), ElementsAre("c", "a", "a"));
    MayaUtils::collectConnectedSources(object("sum"), attribute("sum", "input1D"), nodes, nullptr);
    EXPECT_THAT(names(nodes), ElementsAre("c", "a", "a", "a", "a"));

    std::vector<MObject> fed;
    MayaUtils::collectConnectedDestinations(object("a"), attribute("a", "translateX"), fed, &status);
    MayaUtils::collectConnectedDestinations(object("a"), attribute("a", "translateX"), fed, nullptr);
    EXPECT_THAT(names(fed), ElementsAre("sum", "sum"));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Connections, TheCountOfElementsIsReadAgainAfterEach)
{
    connect("a.tx", "sum.input1D[0]");
    connect("b.tx", "sum.input1D[1]");
    const MObject input = attribute("sum", "input1D");
    std::vector<MObject> nodes;
    faults::record(true);
    MayaUtils::collectConnectedSources(object("sum"), input, nodes, nullptr);
    EXPECT_EQ(faults::countOf("MPlug::numElements"), 3u);
}

TEST_F(Connections, CollectorsThatCannotLookUpLeaveTheListAsItWas)
{
    connect("a.tx", "b.ty");
    const MObject translateY = attribute("b", "translateY");
    for (const char* call : {"MFnDependencyNode::MFnDependencyNode", "MFnDependencyNode::findPlug"}) {
        std::vector<MObject> nodes = list({"c"});
        const auto before = nodes;
        MStatus status;
        faults::failCall(call, 1, failure());
        MayaUtils::collectConnectedSources(object("b"), translateY, nodes, &status);
        EXPECT_EQ(status, failure());
        faults::clear();
        faults::failCall(call, 1, failure());
        status = MStatus::kSuccess;
        MayaUtils::collectConnectedDestinations(object("b"), translateY, nodes, &status);
        EXPECT_EQ(status, failure());
        faults::clear();
        EXPECT_EQ(nodes, before);
    }
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Connections, ElementsThatCannotBeListedAreLeftOut)
{
    connect("a.tx", "sum.input1D[0]");
    connect("b.tx", "sum.input1D[1]");
    const MObject input = attribute("sum", "input1D");
    for (const char* call : {"MPlug::connectedTo", "MPlug::elementByPhysicalIndex"}) {
        std::vector<MObject> nodes;
        MStatus status(MStatus::kFailure);
        faults::failCall(call, 1, failure());
        MayaUtils::collectConnectedSources(object("sum"), input, nodes, &status);
        faults::clear();
        EXPECT_THAT(names(nodes), ElementsAre("b")) << call;
        EXPECT_EQ(status, MStatus::kSuccess) << call;
    }
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Connections, FindingByNameReportsTheStepThatFails)
{
    std::vector<MObject> nodes;
    const auto sources = [&] { return MayaUtils::findConnectedNodesOnPlug(object("b"), "ty", nodes); };
    const auto destinations = [&] { return MayaUtils::findConnectedNodesToPlug(object("b"), "ty", nodes); };
    for (const char* call : {"MFnDependencyNode::MFnDependencyNode", "MFnDependencyNode::findPlug"}) {
        expectFailure(call, 1, "findConnectedNodesOnPlug", sources);
        expectFailure(call, 1, "findConnectedNodesToPlug", destinations);
    }
}

TEST_F(Connections, FindingByNameKeepsTheStatusOfTheCollectionToItself)
{
    connect("a.tx", "b.ty");
    std::vector<MObject> nodes;
    for (const char* call : {"MFnDependencyNode::MFnDependencyNode", "MFnDependencyNode::findPlug"}) {
        faults::failCall(call, 2, failure());
        EXPECT_EQ(MayaUtils::findConnectedNodesOnPlug(object("b"), "ty", nodes), MStatus::kSuccess);
        faults::clear();
        faults::failCall(call, 2, failure());
        EXPECT_EQ(MayaUtils::findConnectedNodesToPlug(object("a"), "tx", nodes), MStatus::kSuccess);
        faults::clear();
    }
    EXPECT_THAT(nodes, IsEmpty());
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Connections, OfANodeAreAllRemovedAtOnce)
{
    connect("a.tx", "b.ty");
    connect("b.tx", "c.tx");
    connect("b.tx", "c.ty");
    connect("a.ty", "c.tz");
    EXPECT_EQ(MayaUtils::disconnectAll(object("b")), MStatus::kSuccess);
    for (const char* name : {"b.translateY", "b.translateX", "c.translateX", "c.translateY"})
        EXPECT_FALSE(plug(name).isConnected()) << name;
    EXPECT_TRUE(areConnected("a.ty", "c.tz"));
}

TEST_F(Connections, AreQueuedForRemovalAndNotRemoved)
{
    connect("a.tx", "b.ty");
    MDGModifier modifier;
    EXPECT_EQ(MayaUtils::disconnectAllConnections(object("b"), modifier), MStatus::kSuccess);
    EXPECT_TRUE(areConnected("a.tx", "b.ty"));
    EXPECT_EQ(modifier.doIt(), MStatus::kSuccess);
    EXPECT_FALSE(plug("b.ty").isConnected());
    EXPECT_EQ(modifier.undoIt(), MStatus::kSuccess);
    EXPECT_TRUE(areConnected("a.tx", "b.ty"));
}

TEST_F(Connections, ANodeWithoutAnyHasNothingToRemove)
{
    EXPECT_EQ(MayaUtils::disconnectAll(object("c")), MStatus::kSuccess);
}

TEST_F(Connections, WhatIsNoNodeCannotBeDisconnected)
{
    MDGModifier modifier;
    EXPECT_EQ(MayaUtils::disconnectAllConnections(attribute("a", "tx"), modifier), MStatus::kFailure);
    EXPECT_EQ(MayaUtils::disconnectAll(MObject::kNullObj), MStatus::kFailure);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Connections, ANodeOfNoUseHasNothingToDisconnect)
{
    connect("a.tx", "b.ty");
    const MObject b = object("b");
    MDGModifier modifier;
    faults::failCall("MFnDependencyNode::MFnDependencyNode", 1, failure());
    EXPECT_EQ(MayaUtils::disconnectAllConnections(b, modifier), MStatus::kSuccess);
}

TEST_F(Connections, OneThatCannotBeListedOrQueuedFailsAll)
{
    connect("a.tx", "b.ty");
    connect("a.tx", "b.tx");
    for (const char* call : {"MPlug::connectedTo", "MDGModifier::disconnect"})
        for (const std::size_t n : {1u, 2u}) {
            faults::failCall(call, n, failure());
            EXPECT_EQ(MayaUtils::disconnectAll(object("b")), MStatus::kFailure) << call;
            faults::clear();
        }
    EXPECT_TRUE(areConnected("a.tx", "b.ty"));
    EXPECT_TRUE(areConnected("a.tx", "b.tx"));
    faults::failCall("MDGModifier::doIt", 1, failure());
    EXPECT_EQ(MayaUtils::disconnectAll(object("b")), failure());
}

} // namespace
} // namespace tarvox::crowd::test
