// Nodes found by type, and string attributes set through MEL.
#include "UtilsFixture.h"

namespace tarvox::crowd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Nodes : public UtilsFixture
{
protected:
    Nodes()
    {
        make("transform", "a");
        make("lambert", "b");
        make("transform", "c");
        make("joint", "d");
    }

    MTypeId typeOf(const std::string& name) { return MFnDependencyNode(object(name), nullptr).typeId(); }
    std::vector<std::string> found(const MTypeId& type, MFn::Type filter, MStatus expected)
    {
        std::vector<MObject> nodes;
        EXPECT_EQ(MayaUtils::findNodesByTypeId(nodes, type, filter), expected);
        std::vector<std::string> names;
        for (const MObject& each : nodes)
            names.push_back(MFnDependencyNode(each, nullptr).name().asChar());
        return names;
    }
};

TEST_F(Nodes, OfExactlyOneTypeAreFoundInTheScenesOrder)
{
    const auto transforms = found(typeOf("a"), MFn::kInvalid, MStatus::kSuccess);
    // The default cameras' transforms come first.
    ASSERT_GE(transforms.size(), 2u);
    EXPECT_EQ(transforms[transforms.size() - 2], "a");
    EXPECT_EQ(transforms[transforms.size() - 1], "c");
    EXPECT_THAT(found(typeOf("d"), MFn::kInvalid, MStatus::kSuccess), ElementsAre("d"));
    EXPECT_THAT(found(typeOf("d"), MFn::kTransform, MStatus::kSuccess), ElementsAre("d"));
}

TEST_F(Nodes, OfOtherKindsThanTheFilterAreNotLookedAt)
{
    EXPECT_THAT(found(typeOf("d"), MFn::kLambert, MStatus::kSuccess), IsEmpty());
    EXPECT_THAT(found(MTypeId(0x7ffff), MFn::kInvalid, MStatus::kSuccess), IsEmpty());
}

TEST_F(Nodes, AreAppended)
{
    std::vector<MObject> nodes = {object("b")};
    MayaUtils::findNodesByTypeId(nodes, typeOf("d"), MFn::kInvalid);
    EXPECT_EQ(nodes, (std::vector<MObject>{object("b"), object("d")}));
}

TEST_F(Nodes, TheSearchStopsAtTheFirstFailure)
{
    const MTypeId joint = typeOf("d");
    faults::failCall("MItDependencyNodes::thisNode", 2, failure());
    EXPECT_THAT(found(joint, MFn::kInvalid, failure()), IsEmpty());
    faults::clear();
    make("joint", "e");
    faults::failCall("MFnDependencyNode::MFnDependencyNode", 2, failure());
    EXPECT_THAT(found(joint, MFn::kJoint, failure()), ElementsAre("d"));
    faults::clear();
    faults::failCall("MItDependencyNodes::MItDependencyNodes", 1, failure());
    EXPECT_THAT(found(joint, MFn::kJoint, failure()), IsEmpty());
    EXPECT_THAT(recorder.take(), IsEmpty());
}

class StringAttributeByCommand : public UtilsFixture
{
};

TEST_F(StringAttributeByCommand, IsAddedAndSet)
{
    runner.answer("objExists \"n.a\"", 0);
    MayaUtils::setStringAttributeByCommand("n", "a", "A", "v");
    EXPECT_THAT(runner.commands,
                ElementsAre("|objExists \"n.a\"", "|addAttr -ln \"a\" -nn \"A\" -dt \"string\" n",
                            "|setAttr -type \"string\" \"n.a\" \"v\" "));
}

TEST_F(StringAttributeByCommand, IsOnlySetWhenItIsThere)
{
    runner.answer("objExists \"n.a\"", 1);
    MayaUtils::setStringAttributeByCommand("n", "a", "A", "v w");
    EXPECT_THAT(runner.commands,
                ElementsAre("|objExists \"n.a\"", "|setAttr -type \"string\" \"n.a\" \"v w\" "));
}

TEST_F(StringAttributeByCommand, AnyAnswerButZeroSaysThatItIsThere)
{
    for (const int answer : {2, -1}) {
        runner.commands.clear();
        runner.answer("objExists \"n.a\"", answer);
        MayaUtils::setStringAttributeByCommand("n", "a", "A", "v");
        EXPECT_THAT(runner.commands,
                    ElementsAre("|objExists \"n.a\"", "|setAttr -type \"string\" \"n.a\" \"v\" "));
    }
}

TEST_F(StringAttributeByCommand, ValuesAreNotEscaped)
{
    runner.answer("objExists \"n.a\"", 1);
    MayaUtils::setStringAttributeByCommand("n", "a", "A", "say \"v\"");
    EXPECT_EQ(runner.commands.back(), "|setAttr -type \"string\" \"n.a\" \"say \"v\"\" ");
}

TEST_F(StringAttributeByCommand, FailuresAreIgnored)
{
    runner.failing = {"objExists \"n.a\"", "addAttr -ln \"a\" -nn \"A\" -dt \"string\" n",
                      "setAttr -type \"string\" \"n.a\" \"v\" "};
    MayaUtils::setStringAttributeByCommand("n", "a", "A", "v");
    EXPECT_EQ(runner.commands.size(), 3u);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(StringAttributeByCommand, WithoutAnAnswerItIsTakenForMissing)
{
    runner.answer("objExists \"n.a\"", 1);
    faults::failCall("MCommandResult::getResult", 1, failure());
    MayaUtils::setStringAttributeByCommand("n", "a", "A", "v");
    EXPECT_THAT(runner.commands,
                ElementsAre("|objExists \"n.a\"", "|addAttr -ln \"a\" -nn \"A\" -dt \"string\" n",
                            "|setAttr -type \"string\" \"n.a\" \"v\" "));
}

} // namespace
} // namespace tarvox::crowd::test
