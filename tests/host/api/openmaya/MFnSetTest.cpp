// MFnSet: sets and their members.
#include "../sceneFixture.h"

#include <maya/MFnSet.h>
#include <maya/MObjectArray.h>

#include <gmock/gmock.h>

namespace tvxhost::api::test {
namespace {

class MFnSetTest : public SceneFixture
{
protected:
    MFnSetTest()
    {
        for (const char* name : {"a", "b", "c"})
            make("transform", name);
        make("lambert", "paint");
    }

    MSelectionList list(const Texts& names)
    {
        MSelectionList made;
        for (const std::string& name : names)
            EXPECT_EQ(made.add(MString(name.c_str())), MS::kSuccess);
        return made;
    }
    MObject makeSet(const Texts& members)
    {
        MFnSet set;
        return set.create(list(members), MFnSet::kNone, false);
    }
    static Texts members(const MObject& object, bool flatten = false)
    {
        MSelectionList found;
        EXPECT_EQ(MFnSet(object, nullptr).getMembers(found, flatten), MS::kSuccess);
        return names(found);
    }
};

TEST_F(MFnSetTest, IsMadeWithMembers)
{
    MStatus status;
    MFnSet set;
    const MObject made = set.create(list({"a", "paint"}), MFnSet::kFacetsOnly, false, &status);
    ASSERT_EQ(status, MS::kSuccess);
    EXPECT_EQ(text(set.name()), "set1");
    EXPECT_EQ(members(made), (Texts{"a", "paint"}));
    EXPECT_TRUE(set.hasRestrictions());
    EXPECT_EQ(set.restriction(), MFnSet::kFacetsOnly);
    EXPECT_FALSE(MFnSet(makeSet({}), nullptr).hasRestrictions());
    EXPECT_TRUE(set.create(list({}), static_cast<MFnSet::Restriction>(6), false, &status).isNull());
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnSetTest, MembersComeAndGo)
{
    MFnSet set(makeSet({"a"}), nullptr);
    EXPECT_EQ(set.addMember(object("b")), MS::kSuccess);
    EXPECT_EQ(set.addMember(object("b")), MS::kSuccess) << "it stays one";
    EXPECT_EQ(set.addMember(path("c")), MS::kSuccess);
    EXPECT_EQ(members(set.object()), (Texts{"a", "b", "c"}));
    EXPECT_TRUE(set.isMember(object("c")));
    EXPECT_TRUE(set.isMember(path("a")));
    EXPECT_FALSE(set.isMember(object("paint")));
    EXPECT_EQ(set.removeMember(object("a")), MS::kSuccess);
    EXPECT_EQ(set.removeMember(object("a")), MS::kInvalidParameter);
    EXPECT_EQ(set.removeMembers(list({"b"})), MS::kSuccess);
    EXPECT_EQ(members(set.object()), Texts{"c"});
    EXPECT_EQ(set.addMembers(list({"a", "paint"})), MS::kSuccess);
    EXPECT_EQ(set.clear(), MS::kSuccess);
    EXPECT_EQ(members(set.object()), Texts{});
}

TEST_F(MFnSetTest, SetsAreUnitedAndIntersected)
{
    const MObject first = makeSet({"a", "b"});
    const MObject second = makeSet({"b", "c"});
    const MObject third = makeSet({"b", "paint"});
    MFnSet set(first, nullptr);
    MSelectionList result;
    EXPECT_EQ(set.getUnion(second, result), MS::kSuccess);
    EXPECT_EQ(names(result), (Texts{"a", "b", "c"}));
    MObjectArray others;
    others.append(second);
    others.append(third);
    EXPECT_EQ(set.getUnion(others, result), MS::kSuccess);
    EXPECT_EQ(names(result), (Texts{"a", "b", "c", "paint"}));
    EXPECT_EQ(set.getIntersection(others, result), MS::kSuccess);
    EXPECT_EQ(names(result), Texts{"b"});
    EXPECT_TRUE(set.intersectsWith(second));
    EXPECT_FALSE(set.intersectsWith(makeSet({"paint"})));
    EXPECT_EQ(set.getUnion(object("a"), result), MS::kInvalidParameter);
}

TEST_F(MFnSetTest, NestedSetsAreFlattenedOnce)
{
    const MObject inner = makeSet({"a", "b"});
    const MObject outer = makeSet({"b", "c"});
    ASSERT_EQ(MFnSet(outer, nullptr).addMember(inner), MS::kSuccess);
    ASSERT_EQ(MFnSet(inner, nullptr).addMember(outer), MS::kSuccess);
    EXPECT_THAT(members(outer), testing::UnorderedElementsAre("b", "c", "set1"));
    EXPECT_THAT(members(outer, true), testing::UnorderedElementsAre("a", "b", "c"));
}

TEST_F(MFnSetTest, RefusesComponentsAndPlugsLoudly)
{
    MFnSet set(makeSet({}), nullptr);
    EXPECT_EQ(set.addMember(plug("a.tx")), MS::kNotImplemented);
    EXPECT_EQ(set.addMembers(list({"a.tx"})), MS::kNotImplemented);
    EXPECT_EQ(set.addMember(MObject::kNullObj), MS::kInvalidParameter);
    EXPECT_EQ(members(set.object()), Texts{});
    EXPECT_FALSE(messages(engine::MessageKind::error).empty());
}

TEST_F(MFnSetTest, HasAnAnnotationAndFailsWhenAttachedToNothing)
{
    MFnSet set(makeSet({}), nullptr);
    EXPECT_EQ(set.setAnnotation("lit from behind"), MS::kSuccess);
    EXPECT_EQ(text(set.annotation()), "lit from behind");
    MStatus status;
    MFnSet wrong(object("a"), &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_EQ(wrong.clear(), MS::kFailure);
    EXPECT_EQ(wrong.addMember(object("a")), MS::kFailure);
    EXPECT_FALSE(wrong.isMember(object("a"), &status));
    EXPECT_EQ(status, MS::kFailure);
    faults::failCall("MFnSet::addMember", 1, MS::kFailure);
    EXPECT_EQ(set.addMember(object("a")), MS::kFailure);
    EXPECT_EQ(members(set.object()), Texts{});
}

} // namespace
} // namespace tvxhost::api::test
