// Faults: chosen calls fail, and the calls of a run are listed.
#include "../nodeFixture.h"

#include <maya/MPlug.h>

#include <thread>

using namespace tvxhost::api;
using namespace tvxhost::api::test;

namespace {

class Faults : public NodeFixture
{
protected:
    MStatus readName()
    {
        MStatus status;
        MFnDependencyNode(node, nullptr).name(&status);
        return status;
    }

    MObject node = make("transform", "thing");
};

} // namespace

TEST_F(Faults, OnlyTheChosenCallFailsAndGivesTheChosenStatus)
{
    faults::failCall("MFnDependencyNode::name", 2, MStatus(MS::kLicenseFailure));
    EXPECT_EQ(MS::kSuccess, readName().statusCode());
    EXPECT_EQ(MS::kLicenseFailure, readName().statusCode());
    EXPECT_EQ(MS::kSuccess, readName().statusCode());
}

TEST_F(Faults, ZeroMeansEveryCall)
{
    faults::failCall("MFnDependencyNode::name", 0, MStatus(MS::kFailure));
    EXPECT_EQ(MS::kFailure, readName().statusCode());
    EXPECT_EQ(MS::kFailure, readName().statusCode());
}

TEST_F(Faults, CountingBeginsWhenTheFailureIsArmed)
{
    readName();
    readName();
    faults::failCall("MFnDependencyNode::name", 1, MStatus(MS::kFailure));
    EXPECT_EQ(MS::kFailure, readName().statusCode());
}

TEST_F(Faults, AFailingCallGivesANeutralValueAndDoesNothing)
{
    faults::failCall("MFnDependencyNode::setName", 1, MStatus(MS::kFailure));
    MFnDependencyNode set(node, nullptr);
    EXPECT_EQ("", text(set.setName("other")));
    EXPECT_EQ("thing", text(set.name()));
}

TEST_F(Faults, OverloadsShareOneName)
{
    MPlug plug = MFnDependencyNode(node, nullptr).findPlug("visibility", true);
    faults::failCall("MPlug::setValue", 2, MStatus(MS::kFailure));
    EXPECT_EQ(MS::kSuccess, plug.setValue(1).statusCode());
    EXPECT_EQ(MS::kFailure, plug.setValue(true).statusCode());
}

TEST_F(Faults, ConstructorsFailAndLeaveTheSetUnattached)
{
    faults::failCall("MFnDependencyNode::MFnDependencyNode", 1, MStatus(MS::kFailure));
    MStatus status;
    const MFnDependencyNode set(node, &status);
    EXPECT_EQ(MS::kFailure, status.statusCode());
    EXPECT_TRUE(set.object().isNull());
}

TEST_F(Faults, ARecordedRunListsItsCallsInOrder)
{
    faults::record(true);
    MFnDependencyNode set(node, nullptr);
    set.name();
    set.typeName();
    set.name();
    faults::record(false);
    set.name();
    const std::vector<std::string> expected = {"MFnDependencyNode::MFnDependencyNode",
                                               "MFnDependencyNode::name", "MFnDependencyNode::typeName",
                                               "MFnDependencyNode::name"};
    EXPECT_EQ(expected, faults::calls());
    EXPECT_EQ(2u, faults::countOf("MFnDependencyNode::name"));
}

TEST_F(Faults, ClearDisarmsAndForgets)
{
    faults::record(true);
    faults::failCall("MFnDependencyNode::name", 0, MStatus(MS::kFailure));
    readName();
    faults::clear();
    EXPECT_EQ(MS::kSuccess, readName().statusCode());
    EXPECT_TRUE(faults::calls().empty());
}

TEST_F(Faults, CallsFromManyThreadsAreAllCounted)
{
    faults::record(true);
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([] {
            for (int call = 0; call < 100; ++call)
                (void)faults::onCall("Some::call");
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(800u, faults::countOf("Some::call"));
}
