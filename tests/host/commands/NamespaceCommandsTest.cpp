// namespace and namespaceInfo.
#include "CommandFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;

class NamespaceCommandsTest : public CommandFixture
{
protected:
    NamespaceCommandsTest()
    {
        run("namespace -add \"crew\"; namespace -set \"crew\"; namespace -add \"red\"; namespace -set \":\";"
            "createNode transform -n \"crew:one\"; createNode transform -n \"crew:red:two\"");
    }
};

TEST_F(NamespaceCommandsTest, theContentOfANamespaceIsListed)
{
    EXPECT_THAT(strings("namespaceInfo -listNamespace crew"), ElementsAre("crew:red", "crew:one"));
    EXPECT_THAT(strings("namespaceInfo -ls -recurse crew"),
                ElementsAre("crew:red", "crew:one", "crew:red:two"));
    EXPECT_THAT(strings("namespaceInfo -listOnlyNamespaces"), ElementsAre("crew"));
    EXPECT_THAT(strings("namespaceInfo -lod -absoluteName \"crew:red\""), ElementsAre(":crew:red:two"));
}

TEST_F(NamespaceCommandsTest, aNamespaceTellsItsNames)
{
    EXPECT_EQ(run("namespaceInfo -fullName \"crew:red\""), "crew:red");
    EXPECT_EQ(run("namespaceInfo -shortName \"crew:red\""), "red");
    EXPECT_EQ(run("namespaceInfo -parent \"crew:red\""), "crew");
    EXPECT_EQ(run("namespaceInfo -parent crew"), ":");
    EXPECT_EQ(run("namespaceInfo -isRootNamespace"), "1");
    run("namespace -set crew");
    EXPECT_EQ(run("namespaceInfo -currentNamespace"), "crew");
    EXPECT_EQ(failure("namespaceInfo -parent nowhere"), "namespaceInfo: there is no namespace 'nowhere'");
}

TEST_F(NamespaceCommandsTest, namesAreShownAsAsked)
{
    EXPECT_THAT(strings("namespaceInfo -lon -baseName crew"), ElementsAre("red"));
    EXPECT_THAT(strings("namespaceInfo -lod -baseName crew"), ElementsAre("one"));
    EXPECT_EQ(run("namespaceInfo -baseName \":\""), ":");
    EXPECT_EQ(run("namespaceInfo -parent -absoluteName \"crew:red\""), ":crew");
    EXPECT_EQ(run("namespace -q -absoluteName \"crew:red\""), ":crew:red");
}

TEST_F(NamespaceCommandsTest, aNamespaceIsAddedWhereItIsAsked)
{
    EXPECT_EQ(run("namespace -add blue"), "blue");
    EXPECT_EQ(run("namespace -addNamespace \"dark:green\" -parent \":crew\""), "crew:dark:green");
    EXPECT_EQ(run("namespace -set crew; namespace -add white"), "crew:white");
    EXPECT_EQ(run("namespace -add \":2nd row \""), "nd_row");
    EXPECT_THAT(
        strings("namespaceInfo -lon -r \":\""),
        ElementsAre("blue", "crew", "crew:dark", "crew:dark:green", "crew:red", "crew:white", "nd_row"));
    EXPECT_EQ(failure("namespace -add white"), "the namespace ':crew:white' exists already");
    EXPECT_EQ(failure("namespace -add \"123\""), "namespace: '123' is not a legal namespace name");
}

TEST_F(NamespaceCommandsTest, whetherANamespaceExistsIsToldFromTheCurrentOneAndTheRoot)
{
    EXPECT_EQ(run("namespace -exists crew"), "1");
    EXPECT_EQ(run("namespace -exists \":crew:red\""), "1");
    EXPECT_EQ(run("namespace -exists red"), "0");
    EXPECT_EQ(run("namespace -exists red -recurse"), "1");
    EXPECT_EQ(run("namespace -set crew; namespace -exists red"), "1");
    EXPECT_EQ(run("namespace -exists crew"), "1");
    EXPECT_EQ(run("namespace -q -isRootNamespace \":\""), "1");
    EXPECT_EQ(run("namespace -q -isRootNamespace \":crew\""), "0");
}

TEST_F(NamespaceCommandsTest, aNameIsMadeValid)
{
    EXPECT_EQ(run("namespace -validateName \"12 a-b!\""), "a_b_");
    EXPECT_EQ(run("namespace -validateName \"123\""), "");
    EXPECT_EQ(run("namespace -validateName \":crew:8ball\""), ":crew:ball");
    EXPECT_EQ(run("namespace -validateName \":nowhere:ball\""), "ball");
}

TEST_F(NamespaceCommandsTest, onlyAnEmptyNamespaceIsTakenAway)
{
    EXPECT_EQ(failure("namespace -removeNamespace \"crew:red\""), "the namespace 'crew:red' is not empty");
    run("delete \"crew:red:two\"; namespace -rm \"crew:red\"");
    EXPECT_THAT(strings("namespaceInfo -lon -r"), ElementsAre("crew"));
    EXPECT_EQ(failure("namespace -rm nowhere"), "namespace: there is no namespace 'nowhere'");
}

TEST_F(NamespaceCommandsTest, whatIsInANamespaceThatGoesIsMergedOrDeleted)
{
    run("createNode transform -n two");
    run("namespace -mergeNamespaceWithParent -removeNamespace \"crew:red\"");
    EXPECT_THAT(strings("ls -type transform \"*:*\""), ElementsAre("crew:one", "crew:two"));
    run("namespace -rm crew -mergeNamespaceWithRoot");
    EXPECT_THAT(strings("ls one \"two*\""), ElementsAre("one", "two1", "two"));
    EXPECT_THAT(strings("namespaceInfo -lon -r"), ElementsAre());
    run("createNode transform -n \"a:b:x\"; createNode transform -n \"a:y\"");
    run("namespace -rm a -deleteNamespaceContent");
    EXPECT_THAT(strings("namespaceInfo -lon -r"), ElementsAre());
    EXPECT_THAT(strings("ls x y"), ElementsAre());
}

TEST_F(NamespaceCommandsTest, whatALockedNodeIsInStays)
{
    run("lockNode \"crew:red:two\"");
    EXPECT_EQ(failure("namespace -rm crew -dnc"), "'crew:red:two' cannot be deleted");
    EXPECT_EQ(failure("namespace -rm crew -mnr"), "'crew:red:two' cannot be renamed");
    EXPECT_THAT(strings("namespaceInfo -lod -r crew"), ElementsAre("crew:one", "crew:red:two"));
    EXPECT_EQ(failure("namespace -rm crew -mnr -mnp"),
              "namespace: only one flag may say what becomes of the content");
}

TEST_F(NamespaceCommandsTest, theContentOfANamespaceIsMovedIntoAnother)
{
    run("createNode transform -n one; namespace -add blue");
    EXPECT_EQ(failure("namespace -moveNamespace crew \":\""), "there is an object named 'one' already");
    run("namespace -mv crew blue");
    EXPECT_THAT(strings("namespaceInfo -ls -r blue"), ElementsAre("blue:red", "blue:one", "blue:red:two"));
    EXPECT_EQ(run("namespace -exists crew"), "1");
    run("namespace -f -mv blue \":\"");
    EXPECT_THAT(strings("ls \"one*\""), ElementsAre("one1", "one"));
    EXPECT_EQ(run("objExists \"red:two\""), "1");
}

TEST_F(NamespaceCommandsTest, aNamespaceIsRenamed)
{
    EXPECT_EQ(run("namespace -rename crew team"), "team");
    EXPECT_EQ(run("objExists \"team:red:two\""), "1");
    EXPECT_EQ(run("namespace -ren \"team:red\" blue -parent \":team\""), "team:blue");
    EXPECT_THAT(strings("namespaceInfo -lon -r"), ElementsAre("team", "team:blue"));
    EXPECT_EQ(failure("namespace -ren \"team:blue\" team"), "the namespace 'team' exists already");
}

TEST_F(NamespaceCommandsTest, emptyNamespacesAroundOneAreTakenAway)
{
    run("namespace -add \"a:b:c\"; namespace -collapseAncestors \"a:b:c\"");
    EXPECT_THAT(strings("namespaceInfo -lon -r a"), ElementsAre("a:b", "a:b:c"));
    run("namespace -rm \"a:b:c\"; namespace -collapseAncestors \"a:b:c\"");
    EXPECT_EQ(run("namespace -exists a"), "0");
}

TEST_F(NamespaceCommandsTest, namesAreLookedUpInTheCurrentNamespaceWhenTheyAreRelative)
{
    run("namespace -set crew");
    EXPECT_EQ(run("objExists one"), "0");
    EXPECT_EQ(run("namespace -q -relativeNames"), "0");
    run("namespace -relativeNames on");
    EXPECT_EQ(run("namespace -q -relativeNames"), "1");
    EXPECT_EQ(run("objExists one"), "1");
    run("setAttr one.tx 3; namespace -rel off; namespace -set \":\"");
    EXPECT_EQ(run("getAttr \"crew:one.tx\""), "3");
}

} // namespace tvxhost::mel
