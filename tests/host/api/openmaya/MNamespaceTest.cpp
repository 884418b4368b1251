// MNamespace: the namespaces of the scene.
#include "../sceneFixture.h"

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

TEST_F(MNamespaceTest, SaysWhatItCannotDo)
{
    EXPECT_EQ(MNamespace::removeNamespace("shot"), MS::kNotImplemented);
    EXPECT_EQ(MNamespace::setRelativeNames(true), MS::kNotImplemented);
    EXPECT_EQ(MNamespace::setRelativeNames(false), MS::kSuccess);
    EXPECT_FALSE(MNamespace::relativeNames());
}

} // namespace
} // namespace tvxhost::api::test
