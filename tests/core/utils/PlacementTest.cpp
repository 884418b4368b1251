// Where nodes are: paths, moves, visibility, and what is told when a step fails.
#include "UtilsFixture.h"

#include <maya/MFnTransform.h>

#include <functional>
#include <locale>

namespace tarvox::crowd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kFile[] = "tvxMayaUtilsPlacement.cpp";

class Placement : public UtilsFixture
{
protected:
    Placement()
    {
        make("transform", "outer");
        make("transform", "inner", "outer");
        make("locator", "shape", "inner");
    }

    /// Makes the n-th call fail and expects the member to fail with one report of `text`.
    void expectFailure(const std::string& call, std::size_t n, const std::string& report,
                       const std::function<MStatus()>& member)
    {
        UtilsFixture::expectFailure(kFile, call, n, report, member);
    }

    MVector worldTranslation(const std::string& name) const
    {
        return MFnTransform(const_cast<Placement*>(this)->path(name), nullptr).getTranslation(MSpace::kWorld);
    }
};

TEST_F(Placement, ATransformsPathIsItsOwn)
{
    MDagPath found;
    EXPECT_EQ(MayaUtils::getTransform(object("inner"), found), MStatus::kSuccess);
    EXPECT_STREQ(found.fullPathName().asChar(), "|outer|inner");
    EXPECT_EQ(MayaUtils::getTransform(object("outer"), found), MStatus::kSuccess);
    EXPECT_STREQ(found.fullPathName().asChar(), "|outer");
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Placement, AShapesTransformIsItsParent)
{
    MDagPath found;
    EXPECT_EQ(MayaUtils::getTransform(object("shape"), found), MStatus::kSuccess);
    EXPECT_STREQ(found.fullPathName().asChar(), "|outer|inner");
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Placement, FindingATransformReportsTheStepThatFails)
{
    MDagPath found;
    const auto ofShape = [&] { return MayaUtils::getTransform(object("shape"), found); };
    const auto ofTransform = [&] { return MayaUtils::getTransform(object("inner"), found); };
    expectFailure("MFnDagNode::MFnDagNode", 1, "getTransform|" + failureText(), ofShape);
    expectFailure("MFnDagNode::parent", 1, "getTransform|" + failureText(), ofShape);
    expectFailure("MFnDagNode::MFnDagNode", 2, "getTransform|" + failureText(), ofShape);
    const std::string pathReport = "getTransform|ERROR in utils::getTransform, dagNode.getPath().";
    expectFailure("MFnDagNode::getPath", 1, pathReport, ofShape);
    expectFailure("MFnDagNode::getPath", 1, pathReport, ofTransform);
}

TEST_F(Placement, AShapeRightBelowTheWorldHasNoTransform)
{
    const auto lonely = scene.createNode("locator", "lonely", &scene.world());
    ASSERT_TRUE(lonely) << lonely.outcome.text;
    MDagPath found;
    EXPECT_EQ(MayaUtils::getTransform(object("lonely"), found), MStatus::kFailure);
    EXPECT_THAT(
        takeErrors(kFile),
        ElementsAre("getTransform|ERROR in utils::getTransform, object does not have a transform attached."));
}

TEST_F(Placement, WhatIsNotInTheDagHasNoTransform)
{
    MDagPath found;
    MStatus status;
    make("lambert", "material");
    const MObject material = object("material");
    MFnDagNode wrong(material, &status);
    EXPECT_EQ(MayaUtils::getTransform(material, found), MStatus::kFailure);
    EXPECT_THAT(takeErrors(kFile), ElementsAre("getTransform|" + std::string(status.errorString().asChar())));
}

TEST_F(Placement, TheWorldHasNoTransform)
{
    MDagPath found;
    const MObject world = MFnDagNode(object("outer"), nullptr).parent(0);
    MStatus status;
    MFnDagNode(world, nullptr).parent(0, &status);
    EXPECT_EQ(MayaUtils::getTransform(world, found), MStatus::kFailure);
    EXPECT_THAT(takeErrors(kFile), ElementsAre("getTransform|" + std::string(status.errorString().asChar())));
}

TEST_F(Placement, AMoveIsAddedToWhereTheParentIs)
{
    set("outer.translate", {1, 2, 3});
    set("inner.translate", {10, 0, 0});
    EXPECT_EQ(MayaUtils::setWorldPosition(object("shape"), MVector(0.5, -1, 2)), MStatus::kSuccess);
    EXPECT_EQ(worldTranslation("inner"), MVector(11.5, 1, 5));
    EXPECT_EQ(worldTranslation("outer"), MVector(1, 2, 3));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Placement, AMoveIsAlongTheAxesOfTheWorld)
{
    set("outer.rotate", {0, 0, 1.5707963267948966});
    EXPECT_EQ(MayaUtils::setWorldPosition(object("shape"), MVector(3, 0, 0)), MStatus::kSuccess);
    EXPECT_TRUE(worldTranslation("inner").isEquivalent(MVector(3, 0, 0), 1e-9));
}

TEST_F(Placement, ATransformMovesItsParentAndNotItself)
{
    EXPECT_EQ(MayaUtils::setWorldPosition(object("inner"), MVector(1, 0, 0)), MStatus::kSuccess);
    EXPECT_EQ(worldTranslation("outer"), MVector(1, 0, 0));
    EXPECT_EQ(MFnTransform(object("inner"), nullptr).getTranslation(MSpace::kTransform), MVector(0, 0, 0));
}

TEST_F(Placement, AMoveReportsTheStepThatFailsUnderItsOldName)
{
    const auto move = [&] { return MayaUtils::setWorldPosition(object("shape"), MVector(1, 0, 0)); };
    const std::string text = "setWorldPosition|ERROR in utils::moveNodeByTransform, ";
    expectFailure("MFnDagNode::MFnDagNode", 1, "setWorldPosition|" + failureText(), move);
    expectFailure("MFnDagNode::parent", 1, "setWorldPosition|" + failureText(), move);
    expectFailure("MFnDagNode::MFnDagNode", 2, "setWorldPosition|" + failureText(), move);
    expectFailure("MFnDagNode::getPath", 1, text + "dagNode.getPath().", move);
    expectFailure("MFnTransform::MFnTransform", 1, text + "getting transform node.", move);
    expectFailure("MFnTransform::translateBy", 1, text + "translateBy.", move);
    EXPECT_EQ(worldTranslation("inner"), MVector(0, 0, 0));
}

TEST_F(Placement, TheWorldIsNotMoved)
{
    EXPECT_EQ(MayaUtils::setWorldPosition(object("outer"), MVector(1, 0, 0)), MStatus::kFailure);
    EXPECT_THAT(takeErrors(kFile),
                ElementsAre("setWorldPosition|ERROR in utils::moveNodeByTransform, object does not have a "
                            "transform attached."));
}

TEST_F(Placement, AMoveByCommandPutsTheSelectionBack)
{
    runner.answer("ls -sl", std::vector<std::string>{"a", "b"});
    const MFnDependencyNode node(object("inner"), nullptr);
    EXPECT_EQ(MayaUtils::moveNodeByCommand(node, 1.5, 0, -2), MStatus::kSuccess);
    EXPECT_THAT(runner.commands, ElementsAre("display|ls -sl", "display|select -r inner",
                                             "display|move -r 1.5 0 -2", "display|select -r \"a\" \"b\" "));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Placement, AMoveByCommandWithNothingSelectedEndsWithNothingSelected)
{
    const MFnDependencyNode node(object("inner"), nullptr);
    EXPECT_EQ(MayaUtils::moveNodeByCommand(node, 0, 0, 0), MStatus::kSuccess);
    EXPECT_THAT(runner.commands, ElementsAre("display|ls -sl", "display|select -r inner",
                                             "display|move -r 0 0 0", "display|select -clear"));
}

TEST_F(Placement, OffsetsAreWrittenWithSixDigits)
{
    const MFnDependencyNode node(object("inner"), nullptr);
    MayaUtils::moveNodeByCommand(node, 1.0 / 3.0, 1234567.0, -1e-7);
    ASSERT_GT(runner.commands.size(), 2u);
    EXPECT_EQ(runner.commands[2], "display|move -r 0.333333 1.23457e+06 -1e-07");
}

TEST_F(Placement, OffsetsAreWrittenWithAPointInEveryLocale)
{
    struct Comma : std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Comma));
    MayaUtils::moveNodeByCommand(MFnDependencyNode(object("inner"), nullptr), 1.5, 0, 0);
    std::locale::global(before);
    ASSERT_GT(runner.commands.size(), 2u);
    EXPECT_EQ(runner.commands[2], "display|move -r 1.5 0 0");
}

TEST_F(Placement, AMoveByCommandReportsTheCommandThatFails)
{
    const MFnDependencyNode node(object("inner"), nullptr);
    const auto expectReport = [&](const std::string& command, const std::string& text, std::size_t commands) {
        SCOPED_TRACE(command);
        runner.failing = {command};
        runner.commands.clear();
        EXPECT_EQ(MayaUtils::moveNodeByCommand(node, 1, 2, 3), MStatus::kFailure);
        EXPECT_EQ(runner.commands.size(), commands);
        EXPECT_THAT(takeErrors(kFile),
                    ElementsAre("moveNodeByCommand|ERROR in utils::moveNodeByCommand, execute " + text));
    };
    expectReport("ls -sl", "ls -sl.", 1);
    expectReport("select -r inner", "select -r nodeToMove.", 2);
    expectReport("move -r 1 2 3", "move -r ...", 3);
    expectReport("select -clear", "select -clean.", 4);
    runner.answer("ls -sl", std::vector<std::string>{"outer"});
    expectReport("select -r \"outer\" ", "select -r previousSelection.", 4);
}

TEST_F(Placement, TheLocalAxisOfTheParentIsShown)
{
    EXPECT_EQ(MayaUtils::forceLocalAxisDisplay(object("shape")), MStatus::kSuccess);
    EXPECT_TRUE(plug("inner.displayLocalAxis").asBool());
    EXPECT_FALSE(plug("outer.displayLocalAxis").asBool());
    EXPECT_EQ(MayaUtils::forceLocalAxisDisplay(object("inner")), MStatus::kSuccess);
    EXPECT_TRUE(plug("outer.displayLocalAxis").asBool());
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Placement, ShowingTheLocalAxisReportsTheStepThatFails)
{
    const auto show = [&] { return MayaUtils::forceLocalAxisDisplay(object("shape")); };
    const std::string report = "forceLocalAxisDisplay|" + failureText();
    const std::string noParent =
        "forceLocalAxisDisplay|ERROR in forceLocalAxisDisplay(), no parent transform";
    expectFailure("MFnDagNode::MFnDagNode", 1, report, show);
    expectFailure("MFnDagNode::parentCount", 1, noParent, show);
    expectFailure("MFnDagNode::parent", 1, report, show);
    expectFailure("MFnDagNode::MFnDagNode", 2, report, show);
    expectFailure("MFnDependencyNode::findPlug", 1, report, show);
    expectFailure("MPlug::setValue", 1, report, show);
    EXPECT_FALSE(plug("inner.displayLocalAxis").asBool());
}

TEST_F(Placement, TheWorldHasNoParentToShowTheAxisOf)
{
    const MObject world = MFnDagNode(object("outer"), nullptr).parent(0);
    EXPECT_EQ(MayaUtils::forceLocalAxisDisplay(world), MStatus::kFailure);
    EXPECT_THAT(takeErrors(kFile),
                ElementsAre("forceLocalAxisDisplay|ERROR in forceLocalAxisDisplay(), no parent transform"));
}

class Visibility : public Placement
{
protected:
    bool isVisible(const std::string& name, MStatus* status = nullptr)
    {
        return MayaUtils::isVisible(MFnDagNode(object(name), nullptr), status);
    }
    std::string report(const std::string& error) const { return "isVisible|MayaUtils::isVisible:" + error; }
};

TEST_F(Visibility, ANodeIsVisibleWithAllItsAncestors)
{
    MStatus status(MStatus::kFailure);
    EXPECT_TRUE(isVisible("shape", &status));
    EXPECT_EQ(status, MStatus::kSuccess);
    EXPECT_TRUE(isVisible("outer"));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Visibility, ANodeIsHiddenByItselfAndByEachAncestor)
{
    for (const char* hidden : {"shape.visibility", "inner.visibility", "outer.visibility"}) {
        set(hidden, {0});
        EXPECT_FALSE(isVisible("shape")) << hidden;
        set(hidden, {1});
        EXPECT_TRUE(isVisible("shape")) << hidden;
    }
}

TEST_F(Visibility, AnInstanceIsHiddenWhenOneOfItsPathsIs)
{
    make("transform", "other");
    instance("shape", "other");
    EXPECT_TRUE(isVisible("shape"));
    set("other.visibility", {0});
    EXPECT_FALSE(isVisible("shape"));
    set("other.visibility", {1});
    set("inner.visibility", {0});
    EXPECT_FALSE(isVisible("shape"));
}

TEST_F(Visibility, AnIntermediateObjectIsNotVisible)
{
    set("shape.intermediateObject", {1});
    EXPECT_FALSE(isVisible("shape"));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Visibility, APlainFailureOfTheLookUpIsReported)
{
    faults::failCall("MFnDependencyNode::findPlug", 1, MStatus(MStatus::kFailure));
    MStatus status;
    EXPECT_FALSE(isVisible("shape", &status));
    EXPECT_EQ(status, MStatus::kFailure);
    EXPECT_THAT(takeErrors(kFile), ElementsAre(report(MStatus(MStatus::kFailure).errorString().asChar())));
}

TEST_F(Visibility, AnotherFailureOfTheLookUpGoesOnToTheReading)
{
    faults::failCall("MFnDependencyNode::findPlug", 1, MStatus(MStatus::kInvalidParameter));
    MStatus status;
    EXPECT_FALSE(isVisible("shape", &status));
    bool ignored = false;
    const MStatus ofNullPlug = MPlug().getValue(ignored);
    EXPECT_EQ(status, ofNullPlug);
    EXPECT_THAT(takeErrors(kFile), ElementsAre(report(ofNullPlug.errorString().asChar())));
}

TEST_F(Visibility, APlainFailureOfTheReadingIsReported)
{
    faults::failCall("MPlug::getValue", 1, MStatus(MStatus::kFailure));
    MStatus status;
    EXPECT_FALSE(isVisible("shape", &status));
    EXPECT_EQ(status, MStatus::kFailure);
    EXPECT_THAT(takeErrors(kFile), ElementsAre(report(MStatus(MStatus::kFailure).errorString().asChar())));
}

TEST_F(Visibility, AnotherFailureOfTheReadingIsNot)
{
    faults::failCall("MPlug::getValue", 1, MStatus(MStatus::kInvalidParameter));
    MStatus status;
    EXPECT_FALSE(isVisible("shape", &status));
    EXPECT_EQ(status, MStatus::kInvalidParameter);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Visibility, TheStatusIsThatOfTheLastNodeOnTheWayUp)
{
    for (const std::size_t level : {1u, 2u, 3u}) {
        faults::failCall("MPlug::getValue", level, MStatus(MStatus::kInvalidParameter));
        MStatus status;
        EXPECT_FALSE(isVisible("shape", &status)) << level;
        EXPECT_EQ(status, MStatus::kInvalidParameter) << level;
        faults::clear();
    }
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(Visibility, WithAParentThatCannotBeReachedANodeIsNotVisible)
{
    const MFnDagNode shape(object("shape"), nullptr);
    faults::failCall("MFnDagNode::MFnDagNode", 1, failure());
    MStatus status;
    EXPECT_FALSE(MayaUtils::isVisible(shape, &status));
    EXPECT_EQ(status, MStatus::kNotFound);
    faults::clear();
    faults::failCall("MFnDagNode::parent", 1, failure());
    EXPECT_FALSE(MayaUtils::isVisible(shape, nullptr));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

class Parents : public Placement
{
protected:
    std::string parentOfType(const std::string& name, MFn::Type type)
    {
        const MObject found = MayaUtils::findParentOfType(MFnDagNode(object(name), nullptr), type);
        return found.isNull() ? "none" : MFnDependencyNode(found, nullptr).name().asChar();
    }
};

TEST_F(Parents, TheNearestOfExactlyTheTypeIsFound)
{
    make("joint", "joint", "inner");
    make("transform", "hand", "joint");
    EXPECT_EQ(parentOfType("shape", MFn::kTransform), "inner");
    EXPECT_EQ(parentOfType("hand", MFn::kJoint), "joint");
    EXPECT_EQ(parentOfType("hand", MFn::kTransform), "inner"); // a joint is no plain transform
    EXPECT_EQ(parentOfType("shape", MFn::kJoint), "none");
    EXPECT_EQ(parentOfType("outer", MFn::kTransform), "none");
}

TEST_F(Parents, AreSearchedDepthFirstInTheirOrder)
{
    make("joint", "left");
    make("transform", "leftBelow", "left");
    make("joint", "right");
    make("transform", "shared", "leftBelow");
    instance("shared", "right");
    EXPECT_EQ(parentOfType("shared", MFn::kJoint), "left");
}

TEST_F(Parents, ThatCannotBeReachedAreNone)
{
    const MFnDagNode shape(object("shape"), nullptr);
    for (const char* call : {"MFnDagNode::parent", "MFnDagNode::parentCount"}) {
        faults::failCall(call, 1, failure());
        EXPECT_TRUE(MayaUtils::findParentOfType(shape, MFn::kTransform).isNull()) << call;
        faults::clear();
    }
    EXPECT_THAT(recorder.take(), IsEmpty());
}

class TransformValues : public Placement
{
protected:
    TransformValues()
    {
        set("outer.translate", {1, 2, 3});
        set("inner.translate", {10, 20, 30});
        set("inner.scale", {2, 3, 4});
        set("inner.rotatePivot", {0.5, 0, 0});
    }
};

TEST_F(TransformValues, AreThoseOfTheTransform)
{
    for (const char* name : {"shape", "inner"}) {
        MStatus status(MStatus::kFailure);
        EXPECT_EQ(MayaUtils::getWorldTranslation(object(name), &status), MVector(11, 22, 33));
        EXPECT_EQ(status, MStatus::kSuccess);
        status = MStatus::kFailure;
        EXPECT_EQ(MayaUtils::getWorldRotatePivot(object(name), &status), MVector(12, 22, 33));
        EXPECT_EQ(status, MStatus::kSuccess);
        status = MStatus::kFailure;
        EXPECT_EQ(MayaUtils::getTransformScale(object(name), &status), MVector(2, 3, 4));
        EXPECT_EQ(status, MStatus::kSuccess);
    }
    EXPECT_EQ(MayaUtils::getTransformScale(object("shape"), nullptr), MVector(2, 3, 4));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(TransformValues, AreZeroWhenAStepFails)
{
    using Member = MVector (*)(const MObject&, MStatus*);
    const auto expectZero = [&](Member member, const std::string& call, MStatus expected) {
        SCOPED_TRACE(call);
        MStatus status;
        faults::failCall(call, 1, failure());
        EXPECT_EQ(member(object("shape"), &status), MVector(0, 0, 0));
        faults::clear();
        EXPECT_EQ(status, expected);
    };
    for (const Member member :
         {&MayaUtils::getWorldTranslation, &MayaUtils::getWorldRotatePivot, &MayaUtils::getTransformScale}) {
        expectZero(member, "MFnDagNode::getPath", MStatus::kFailure);
        EXPECT_THAT(takeErrors(kFile),
                    ElementsAre("getTransform|ERROR in utils::getTransform, dagNode.getPath()."));
        expectZero(member, "MFnTransform::MFnTransform", failure());
    }
    expectZero(&MayaUtils::getWorldTranslation, "MFnTransform::getTranslation", failure());
    expectZero(&MayaUtils::getWorldRotatePivot, "MFnTransform::rotatePivot", failure());
    expectZero(&MayaUtils::getTransformScale, "MFnTransform::getScale", failure());
    EXPECT_THAT(recorder.take(), IsEmpty());
}

} // namespace
} // namespace tarvox::crowd::test
