// MNamespace: the namespaces of the scene.
#include "../sceneFixture.h"

#include <maya/MFnDependencyNode.h>
#include <maya/MNamespace.h>
#include <maya/MObjectArray.h>

namespace tvxhost::api::test {
namespace {

class MNamespaceTest : public SceneFixture
{
};

TEST_F(MNamespaceTest, BeginsAtTheRoot)
{
    EXPECT_EQ(text(MNamespace::currentNamespace()), ":");
    EXPECT_EQ(text(MNamespace::rootNamespace()), ":");
    EXPECT_TRUE(MNamespace::namespaceExists(":"));
    MStatus status;
    EXPECT_EQ(text(MNamespace::parentNamespace(&status)), "");
    EXPECT_EQ(status, MS::kFailure);
}

TEST_F(MNamespaceTest, IsMadeInTheCurrentOneOrInAnother)
{
    EXPECT_EQ(MNamespace::addNamespace("shot"), MS::kSuccess);
    EXPECT_EQ(MNamespace::addNamespace("shot"), MS::kFailure) << "taken";
    const MString shot(":shot");
    EXPECT_EQ(MNamespace::addNamespace("crowd", &shot), MS::kSuccess);
    EXPECT_EQ(MNamespace::setCurrentNamespace("shot"), MS::kSuccess);
    EXPECT_EQ(MNamespace::addNamespace("props"), MS::kSuccess);
    EXPECT_TRUE(MNamespace::namespaceExists("props"));
    EXPECT_TRUE(MNamespace::namespaceExists(":shot:props"));
    EXPECT_FALSE(MNamespace::namespaceExists(":props"));
    EXPECT_EQ(texts(MNamespace::getNamespaces()), (Texts{"shot:crowd", "shot:props"}));
    EXPECT_EQ(texts(MNamespace::getNamespaces(MString(":"))), (Texts{"shot"}));
    EXPECT_EQ(texts(MNamespace::getNamespaces(MString(":"), true)),
              (Texts{"shot", "shot:crowd", "shot:props"}));
    EXPECT_EQ(text(MNamespace::parentNamespace()), ":");
    EXPECT_EQ(MNamespace::setCurrentNamespace(":nowhere"), MS::kFailure);
}

TEST_F(MNamespaceTest, HoldsNodes)
{
    MNamespace::addNamespace("shot");
    make("transform", "shot:figure");
    make("transform", "outside");
    const MObjectArray inside = MNamespace::getNamespaceObjects(":shot");
    ASSERT_EQ(inside.length(), 1u);
    EXPECT_TRUE(inside[0] == object("shot:figure"));
}

TEST_F(MNamespaceTest, TakesNamesApart)
{
    EXPECT_EQ(text(MNamespace::getNamespaceFromName("a:b:c")), "a:b");
    EXPECT_EQ(text(MNamespace::getNamespaceFromName("c")), "");
    EXPECT_EQ(text(MNamespace::stripNamespaceFromName("a:b:c")), "c");
    EXPECT_EQ(text(MNamespace::validateName("1 figure-a")), "__figure_a");
    MNamespace::addNamespace("shot");
    MNamespace::setCurrentNamespace("shot");
    EXPECT_EQ(text(MNamespace::makeNamepathAbsolute("figure")), ":shot:figure");
    EXPECT_EQ(text(MNamespace::makeNamepathAbsolute(":figure")), ":figure");
}

TEST_F(MNamespaceTest, IsRemovedWhenItIsEmptyOrWithItsContents)
{
    MNamespace::addNamespace("shot:crowd");
    make("transform", "shot:crowd:figure");
    make("transform", "outside");
    EXPECT_EQ(MNamespace::removeNamespace("shot"), MS::kFailure);
    EXPECT_EQ(MNamespace::removeNamespace("nowhere"), MS::kFailure);
    EXPECT_EQ(MNamespace::removeNamespace(":", true), MS::kFailure);
    EXPECT_EQ(MNamespace::removeNamespace("shot", true), MS::kSuccess);
    EXPECT_EQ(texts(MNamespace::getNamespaces(MString(":"), true)), Texts{});
    EXPECT_EQ(MNamespace::getNamespaceObjects(":shot", true).length(), 0u);
    EXPECT_FALSE(object("outside").isNull());
    MNamespace::addNamespace("empty");
    EXPECT_EQ(MNamespace::removeNamespace("empty"), MS::kSuccess);
    EXPECT_FALSE(MNamespace::namespaceExists("empty"));
}

TEST_F(MNamespaceTest, StaysWholeWhenOneOfItsNodesMayNotGo)
{
    make("transform", "shot:first");
    make("transform", "shot:second");
    MFnDependencyNode(object("shot:second"), nullptr).setLocked(true);
    EXPECT_EQ(MNamespace::removeNamespace("shot", true), MS::kFailure);
    EXPECT_EQ(MNamespace::getNamespaceObjects(":shot").length(), 2u);
}

TEST_F(MNamespaceTest, IsRenamedInItsParentOrIntoAnother)
{
    MNamespace::addNamespace("shot:crowd");
    make("transform", "shot:crowd:figure");
    EXPECT_EQ(MNamespace::renameNamespace("shot:crowd", "people"), MS::kSuccess);
    EXPECT_FALSE(object("shot:people:figure").isNull());
    const MString root(":");
    EXPECT_EQ(MNamespace::renameNamespace("shot:people", "people", &root), MS::kSuccess);
    EXPECT_FALSE(object("people:figure").isNull());
    EXPECT_EQ(texts(MNamespace::getNamespaces(root, true)), (Texts{"people", "shot"}));
    EXPECT_EQ(MNamespace::renameNamespace("people", "shot"), MS::kFailure) << "taken";
}

TEST_F(MNamespaceTest, GivesItsContentsToAnother)
{
    make("transform", "a:figure");
    make("transform", "b:figure");
    EXPECT_EQ(MNamespace::moveNamespace("a", "b"), MS::kFailure) << "there is a figure already";
    EXPECT_EQ(MNamespace::moveNamespace("a", "b", true), MS::kSuccess);
    EXPECT_EQ(MNamespace::getNamespaceObjects(":a").length(), 0u);
    EXPECT_EQ(MNamespace::getNamespaceObjects(":b").length(), 2u);
}

TEST_F(MNamespaceTest, NamesAreLookedUpInTheCurrentOneFirstWhenTheyAreRelative)
{
    EXPECT_FALSE(MNamespace::relativeNames());
    EXPECT_EQ(MNamespace::setRelativeNames(true), MS::kSuccess);
    EXPECT_TRUE(MNamespace::relativeNames());
    make("transform", "shot:figure");
    MNamespace::setCurrentNamespace("shot");
    EXPECT_TRUE(object("figure") == object(":shot:figure"));
    EXPECT_EQ(MNamespace::setRelativeNames(false), MS::kSuccess);
    EXPECT_FALSE(MNamespace::relativeNames());
}

} // namespace
} // namespace tvxhost::api::test
