// MFnMesh: the shading groups of faces.
#include "../meshFixture.h"

#include "engine/setMembers.h"

#include <maya/MFnMesh.h>
#include <maya/MObjectArray.h>

namespace tvxhost::api::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MeshShadersTest : public MeshFixture
{
protected:
    void put(const std::string& group, const std::string& path, const std::string& components = {})
    {
        engine::SelectionItem item;
        item.node = &node(path.substr(path.rfind('|') + 1));
        item.path = engine::DagPath::allTo(*item.node->asDag()).front();
        item.components = components;
        ASSERT_TRUE(engine::addSetMember(node(group), item));
    }
    struct Shading
    {
        Texts groups;
        std::vector<int> byFace;
        MStatus status;
    };
    Shading shadingOf(const std::string& shape, unsigned int instance = 0)
    {
        MFnMesh mesh(path(shape), nullptr);
        MObjectArray groups;
        MIntArray indices;
        Shading shading;
        shading.status = mesh.getConnectedShaders(instance, groups, indices);
        for (unsigned int i = 0; i < groups.length(); ++i)
            shading.groups.push_back(static_cast<engine::Node*>(tvxAccess::object(groups[i]))->name());
        shading.byFace = numbers(indices);
        return shading;
    }
};

TEST_F(MeshShadersTest, AWholeObjectHasOneShaderForAllFaces)
{
    addGrid();
    make("shadingEngine", "redSG");
    make("objectSet", "someSet");
    put("redSG", "gridShape");
    put("someSet", "gridShape");
    const Shading shading = shadingOf("gridShape");
    EXPECT_EQ(shading.status, MS::kSuccess);
    EXPECT_THAT(shading.groups, ElementsAre("redSG"));
    EXPECT_THAT(shading.byFace, ElementsAre(0, 0, 0, 0, 0, 0));
}

TEST_F(MeshShadersTest, FacesCanBeInSeveralShadingGroupsOrNone)
{
    addGrid();
    make("shadingEngine", "redSG");
    make("shadingEngine", "blueSG");
    make("objectSet", "someSet");
    put("redSG", "gridShape", "f[0:1]");
    put("blueSG", "gridShape", "f[4:5]");
    put("redSG", "gridShape", "f[3]");
    put("someSet", "gridShape", "f[2]");
    put("blueSG", "gridShape", "vtx[0:3]");
    const Shading shading = shadingOf("gridShape");
    EXPECT_THAT(shading.groups, ElementsAre("redSG", "blueSG"));
    EXPECT_THAT(shading.byFace, ElementsAre(0, 0, -1, 0, 1, 1));
}

TEST_F(MeshShadersTest, WithoutShadersThereAreNone)
{
    addGrid();
    const Shading shading = shadingOf("gridShape");
    EXPECT_EQ(shading.status, MS::kSuccess);
    EXPECT_THAT(shading.groups, IsEmpty());
    EXPECT_THAT(shading.byFace, ElementsAre(-1, -1, -1, -1, -1, -1));
}

TEST_F(MeshShadersTest, EachInstanceHasShadersOfItsOwn)
{
    engine::DagNode& shape = addQuad();
    make("transform", "other");
    ASSERT_TRUE(scene.addParent(shape, *node("other").asDag()));
    make("shadingEngine", "redSG");
    put("redSG", "quadShape");
    EXPECT_THAT(shadingOf("quad|quadShape", 0).byFace, ElementsAre(0));
    EXPECT_THAT(shadingOf("quad|quadShape", 1).byFace, ElementsAre(-1));
    EXPECT_EQ(shadingOf("quad|quadShape", 2).status, MS::kInvalidParameter);
}

TEST_F(MeshShadersTest, MeshDataHasNoShaders)
{
    addQuad();
    MObject data;
    plug("quadShape.o").getValue(data);
    MFnMesh mesh(data, nullptr);
    MObjectArray groups;
    MIntArray indices;
    EXPECT_EQ(mesh.getConnectedShaders(0, groups, indices), MS::kInvalidParameter);
}

} // namespace
} // namespace tvxhost::api::test
