// Meshes below a path and the selection: the rule as it is written, and that nothing is looked up twice.
#include "MeshPathRule.h"
#include "UtilsFixture.h"
#include "memberWarning.h"

#include <maya/MDagPathArray.h>

#include <list>
#include <random>

namespace tarvox::crowd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Names = std::vector<std::string>;

Names namesOf(const std::list<MDagPath>& paths)
{
    Names names;
    for (const MDagPath& path : paths)
        names.push_back(path.fullPathName().asChar());
    return names;
}

class MeshPaths : public UtilsFixture
{
protected:
    /// A transform and the mesh below it.
    void makeMesh(const std::string& transform, const std::string& parent = {})
    {
        make("transform", transform, parent);
        make("mesh", transform + "Shape", transform);
    }
    Names collect(const MDagPath& from)
    {
        std::list<MDagPath> meshes;
        MayaUtils::collectMeshPaths(from, meshes);
        return namesOf(meshes);
    }
    Names collect(const std::string& from) { return collect(path(from)); }
    static Names literally(const MDagPath& from)
    {
        std::list<MDagPath> meshes;
        collectLiterally(from, meshes);
        return namesOf(meshes);
    }
    Names selected(bool warnIfNone, std::vector<MObject> meshes = {})
    {
        MayaUtils::getSelectedMeshes(meshes, warnIfNone);
        Names names;
        for (const MObject& each : meshes)
            names.push_back(MFnDependencyNode(each, nullptr).name().asChar());
        return names;
    }
};

TEST(MeshPathRule, CountsWhatTwoNamesShare)
{
    EXPECT_EQ(literalScore("|a|b", "|a"), 3);
    EXPECT_EQ(literalScore("|ab|c", "|a"), 2);
    EXPECT_EQ(literalScore("|b|c", "|a"), 1);
    EXPECT_EQ(literalScore("|a", "|a|b"), 2);
    EXPECT_EQ(literalScore("|a", ""), 1);
    const std::string longName(9999, 'n');
    EXPECT_EQ(literalScore(longName + "|x", longName), 10000);
    EXPECT_EQ(literalScore(longName + "n|x", longName + "n"), 10000);
    EXPECT_EQ(literalScore(longName + "nn|x", longName + "nn"), 10000);
}

TEST_F(MeshPaths, AMeshIsItsOwn)
{
    makeMesh("a");
    EXPECT_THAT(collect("aShape"), ElementsAre("|a|aShape"));
}

TEST_F(MeshPaths, ATransformRightAboveAMeshCountsAsOne)
{
    makeMesh("a");
    EXPECT_THAT(collect("a"), ElementsAre("|a"));
}

TEST_F(MeshPaths, OfAGroupAreListedInTheOrderOfItsChildren)
{
    make("transform", "group");
    makeMesh("b", "group");
    make("transform", "deeper", "group");
    make("locator", "mark", "group");
    makeMesh("a", "group");
    makeMesh("c", "deeper");
    EXPECT_THAT(collect("group"), ElementsAre("|group|b", "|group|deeper|c", "|group|a"));
}

TEST_F(MeshPaths, AreAppended)
{
    makeMesh("a");
    makeMesh("b");
    std::list<MDagPath> meshes;
    MayaUtils::collectMeshPaths(path("b"), meshes);
    MayaUtils::collectMeshPaths(path("a"), meshes);
    EXPECT_THAT(namesOf(meshes), ElementsAre("|b", "|a"));
}

TEST_F(MeshPaths, WhatIsNeitherMeshNorTransformHasNone)
{
    make("transform", "a");
    make("locator", "mark", "a");
    EXPECT_THAT(collect("mark"), IsEmpty());
    EXPECT_THAT(collect(MDagPath()), IsEmpty());
}

TEST_F(MeshPaths, AnInstanceIsFollowedWhereTheWalkCameFrom)
{
    make("transform", "left");
    make("transform", "right");
    make("transform", "shared", "left");
    makeMesh("a", "shared");
    instance("shared", "right");
    EXPECT_THAT(collect("left"), ElementsAre("|left|shared|a"));
    EXPECT_THAT(collect("right"), ElementsAre("|right|shared|a"));
}

TEST_F(MeshPaths, AnInstanceFurtherBelowIsTakenWhenItComesFirst)
{
    make("transform", "outer");
    make("transform", "inner", "outer");
    make("transform", "shared", "inner");
    makeMesh("a", "shared");
    instance("shared", "outer");
    // Both paths go on where the outer one ends, so the earlier of the two is taken each time.
    EXPECT_THAT(collect("outer"), ElementsAre("|outer|inner|shared|a", "|outer|inner|shared|a"));
    EXPECT_EQ(collect("outer"), literally(path("outer")));
}

TEST_F(MeshPaths, ANameThatBeginsAsAnotherIsAnother)
{
    make("transform", "a");
    make("transform", "ab");
    make("transform", "shared", "ab");
    makeMesh("m", "shared");
    instance("shared", "a");
    EXPECT_THAT(collect("a"), ElementsAre("|a|shared|m"));
}

TEST_F(MeshPaths, BelowTheWorldTheFirstPathIsTaken)
{
    make("transform", "a");
    make("transform", "b");
    make("transform", "shared", "a");
    makeMesh("m", "shared");
    instance("shared", "b");
    MDagPath world;
    MFnDagNode(MFnDagNode(object("a"), nullptr).parent(0), nullptr).getPath(world);
    EXPECT_EQ(collect(world), literally(world));
}

// Instanced at random, with names that begin alike.
TEST_F(MeshPaths, OfRandomInstancedGraphsAreThoseOfTheWrittenRule)
{
    const char* const letters[] = {"a", "ab", "b", "abc", "ba", "aa", "bb", "c"};
    std::mt19937 random(1);
    std::size_t meshesSeen = 0;
    std::size_t instancesSeen = 0;
    for (int graph = 0; graph < 600; ++graph) {
        const std::string prefix = "g" + std::to_string(graph);
        Names transforms = {prefix};
        make("transform", prefix);
        const std::size_t count = 3 + random() % 9;
        for (std::size_t i = 0; i < count; ++i) {
            const std::string name = letters[i % 8] + std::string(i / 8, 'x') + prefix;
            const std::string parent = transforms[random() % transforms.size()];
            make("transform", name, parent);
            // Older nodes only, so that there is no cycle.
            for (std::size_t more = random() % 3; more > 0; --more) {
                const std::string another = transforms[random() % transforms.size()];
                if (!MFnDagNode(object(another), nullptr).isParentOf(object(name))) {
                    instance(name, another);
                    ++instancesSeen;
                }
            }
            transforms.push_back(name);
        }
        for (const std::string& name : transforms)
            if (MFnDagNode(object(name), nullptr).childCount() == 0 || random() % 4 == 0)
                make("mesh", name + "Shape", name);
        for (const std::string& name : transforms) {
            MDagPathArray paths;
            MDagPath::getAllPathsTo(object(name), paths);
            for (unsigned int i = 0; i < paths.length(); ++i) {
                const Names expected = literally(paths[i]);
                meshesSeen += expected.size();
                ASSERT_EQ(collect(paths[i]), expected) << paths[i].fullPathName().asChar();
            }
        }
    }
    EXPECT_GT(meshesSeen, 10000u);
    EXPECT_GT(instancesSeen, 1000u);
}

// Names so long that not all of them is compared.
TEST_F(MeshPaths, OfLongNamesAreThoseOfTheWrittenRule)
{
    for (const std::size_t length : {9997u, 9998u, 9999u, 10000u, 10001u, 12000u}) {
        const std::string digits = std::to_string(length);
        // "|" + name is so long; both groups begin alike for 9,990 characters.
        const std::string first = std::string(length - 1 - digits.size(), 'n') + digits;
        const std::string second = std::string(9990, 'n') + "other" + digits;
        make("transform", second);
        make("transform", first);
        make("transform", "shared" + digits, second);
        makeMesh("m" + digits, "shared" + digits);
        instance("shared" + digits, first);
        makeMesh("own" + digits, first);
        for (const std::string& from : {first, second}) {
            const MDagPath path = this->path(from);
            EXPECT_EQ(collect(path), literally(path)) << length;
            EXPECT_FALSE(collect(path).empty());
        }
    }
    // Above the limit the first path is as good as the right one.
    const std::string first = std::string(12000 - 6, 'n') + "12000";
    EXPECT_EQ(collect(first).size(), 2u);
}

// What follows the last character that is compared does not count, not even where the name ends.
TEST_F(MeshPaths, OfNamesThatDifferBehindTheLimitTheFirstIsTaken)
{
    for (const std::size_t length : {9999u, 10000u, 10001u}) {
        const std::string digits = std::to_string(length);
        const std::string name = "n" + digits + std::string(length - 2 - digits.size(), 'n');
        make("transform", name + "more");
        make("transform", name);
        make("transform", "shared" + digits, name + "more");
        makeMesh("m" + digits, "shared" + digits);
        instance("shared" + digits, name);
        const MDagPath from = path(name);
        ASSERT_EQ(from.fullPathName().length(), length);
        const std::string taken = length < 10000 ? name : name + "more";
        EXPECT_THAT(collect(from), ElementsAre("|" + taken + "|shared" + digits + "|m" + digits));
        EXPECT_EQ(collect(from), literally(from));
    }
}

TEST_F(MeshPaths, OfAChildWithOneParentThatIsInstancedTheRightOneIsTakenUpToTheLimit)
{
    for (const std::size_t length : {9999u, 10000u, 10001u}) {
        const std::string digits = std::to_string(length);
        const std::string below = "g" + digits;
        const std::string outer(length - 2 - below.size(), 'n');
        const std::string inner = below + "more";
        make("transform", outer);
        make("transform", inner, outer);
        make("transform", below, inner);
        makeMesh("m" + digits, below);
        instance(below, outer);
        const MDagPath from = path("|" + outer + "|" + below);
        ASSERT_EQ(from.fullPathName().length(), length);
        const std::string way = length < 10000 ? outer : outer + "|" + inner;
        EXPECT_THAT(collect(from), ElementsAre("|" + way + "|" + below + "|m" + digits));
        EXPECT_EQ(collect(from), literally(from));
    }
}

TEST_F(MeshPaths, WithOneParentNoOtherPathIsLookedFor)
{
    make("transform", "group");
    for (int i = 0; i < 20; ++i)
        makeMesh("m" + std::to_string(i), "group");
    make("locator", "mark", "group");
    const MDagPath group = path("group");
    faults::record(true);
    EXPECT_EQ(collect(group).size(), 20u);
    EXPECT_EQ(faults::countOf("MDagPath::getAllPathsTo"), 0u);
}

TEST_F(MeshPaths, ThePathsToAnInstancedNodeAreLookedForOnce)
{
    make("transform", "group");
    make("transform", "shared");
    makeMesh("m", "shared");
    for (int i = 0; i < 50; ++i) {
        const std::string name = "t" + std::to_string(i);
        make("transform", name, "group");
        instance("shared", name);
    }
    const MDagPath group = path("group");
    const Names expected = literally(group);
    EXPECT_EQ(expected.size(), 50u);
    faults::record(true);
    EXPECT_EQ(collect(group), expected);
    EXPECT_EQ(faults::countOf("MDagPath::getAllPathsTo"), 1u);
    EXPECT_LE(faults::countOf("MDagPath::fullPathName"), 5u * 50u); // not 50 times 50
}

TEST_F(MeshPaths, AWalkWithoutItsShortWayFollowsTheRule)
{
    make("transform", "group");
    make("transform", "deeper", "group");
    makeMesh("m", "deeper");
    const MDagPath group = path("group");
    faults::failCall("MDagPath::push", 0, failure());
    EXPECT_THAT(collect(group), ElementsAre("|group|deeper|m"));
    faults::failCall("MDagPath::getAllPathsTo", 0, failure());
    EXPECT_THAT(collect(group), IsEmpty());
}

TEST_F(MeshPaths, APathThatCannotTellWhetherItIsInstancedIsTakenForOne)
{
    make("transform", "outer");
    make("transform", "inner", "outer");
    makeMesh("a", "inner");
    instance("a", "outer");
    const Names expected = literally(path("outer"));
    EXPECT_THAT(expected, ElementsAre("|outer|inner|a", "|outer|inner|a"));
    faults::failCall("MDagPath::isInstanced", 0, failure());
    EXPECT_EQ(collect("outer"), expected);
}

TEST_F(MeshPaths, OfTheSelectionAreInItsOrder)
{
    make("transform", "group");
    makeMesh("a", "group");
    makeMesh("b", "group");
    makeMesh("c");
    make("lambert", "material");
    select({"cShape", "material", "group"});
    EXPECT_THAT(selected(true), ElementsAre("cShape", "a", "b"));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(MeshPaths, OfTheSelectionReplaceWhatTheListHeld)
{
    makeMesh("a");
    make("transform", "other");
    select({"aShape"});
    EXPECT_THAT(selected(false, {object("other")}), ElementsAre("aShape"));
}

TEST_F(MeshPaths, AnEmptySelectionIsToldOnceWhenItIsAsked)
{
    makeMesh("a");
    EXPECT_THAT(selected(false, {object("a")}), IsEmpty());
    EXPECT_THAT(recorder.take(), IsEmpty());
    EXPECT_THAT(selected(true, {object("a")}), IsEmpty());
    EXPECT_THAT(recorder.take(), ElementsAre(memberWarning("tvxMayaUtilsMeshPaths.cpp", "getSelectedMeshes",
                                                           "No mesh selected, please select a mesh first")));
    coreLog().setSeverityFilter(core::kError);
    EXPECT_THAT(selected(true), IsEmpty());
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(MeshPaths, ASelectionThatCannotBeReadIsEmpty)
{
    makeMesh("a");
    makeMesh("b");
    select({"aShape", "bShape"});
    faults::failCall("MGlobal::getActiveSelectionList", 1, failure());
    EXPECT_THAT(selected(false), IsEmpty());
    faults::clear();
    faults::failCall("MSelectionList::getDagPath", 1, failure());
    EXPECT_THAT(selected(false), ElementsAre("bShape"));
}

} // namespace
} // namespace tarvox::crowd::test
