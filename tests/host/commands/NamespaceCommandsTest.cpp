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

TEST_F(NamespaceCommandsTest, whatCannotBeDoneIsSaid)
{
    EXPECT_EQ(
        failure("namespace -removeNamespace crew"),
        "Flag '-removeNamespace' of namespace is refused: a namespace stays as long as the scene; rename its "
        "nodes");
    EXPECT_EQ(run("namespace -exists crew"), "1");
    EXPECT_EQ(run("namespace -exists nowhere"), "0");
}

} // namespace tvxhost::mel
