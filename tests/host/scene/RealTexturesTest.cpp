// Texture coordinates of meshes that real Maya wrote: which faces have them, and that primitives are given
// the same here. TVX_SCENES_DIR names the folder of the scenes.
#include "scene/reader.h"

#include "engine/geometry/primitiveUvs.h"
#include "engine/mesh.h"
#include "engine/scene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tvxhost::scene {
namespace {

using engine::MeshData;
using engine::UvSet;
using testing::ElementsAre;

class RealTextures : public testing::Test
{
protected:
    void open(const std::string& path)
    {
        const auto opened = openScene(scene, std::string(TVX_SCENES_DIR) + "/" + path);
        EXPECT_TRUE(opened.outcome) << opened.outcome.text;
    }
    engine::DagNode& shape(const std::string& name)
    {
        const auto found = scene.findNode(name);
        EXPECT_TRUE(found) << found.outcome.text;
        return *found.value->asDag();
    }
    const MeshData& mesh(const std::string& name) { return *engine::meshOf(shape(name)); }

    /// Compares all coordinates, and what each corner has.
    void expectAsMade(const std::string& name, const MeshData& made)
    {
        const UvSet& real = mesh(name).uvSets.front();
        const UvSet& ours = made.uvSets.front();
        EXPECT_EQ(real.name, ours.name);
        EXPECT_EQ(real.values, ours.values);
        EXPECT_EQ(real.used, ours.used);
    }
    /// How many faces have coordinates, set by set.
    std::vector<std::size_t> mappedFaces(const std::string& name)
    {
        std::vector<std::size_t> counts;
        const MeshData& of = mesh(name);
        for (const UvSet& set : of.uvSets) {
            counts.push_back(0);
            for (std::size_t face = 0; face < of.faces.size(); ++face)
                counts.back() += set.isUsed(of.faces.firstCorner(face), of.faces.corners(face).size());
        }
        return counts;
    }

    engine::Scene scene;
};

TEST_F(RealTextures, PlanesAreAsMayaMapsThem)
{
    open("Autodesk+maya-hydra/test/testSamples/testUVandUDIM/testUVs.ma");
    const engine::PlaneShape thirds{1, 1, 3, 3};
    const auto plane = engine::makePlane(thirds);
    engine::mapPlane(*plane, thirds);
    expectAsMade("pPlaneShape1", *plane);
}

TEST_F(RealTextures, PlanesOfManyFacesAreAsMayaMapsThem)
{
    open("Autodesk+maya-usd/test/lib/usd/translators/UsdExportDisplacementTest/SimpleDisplacement.ma");
    const engine::PlaneShape usual{1, 1, 10, 10};
    const auto plane = engine::makePlane(usual);
    engine::mapPlane(*plane, usual);
    expectAsMade("pPlaneShape10", *plane);
}

TEST_F(RealTextures, CubesAreAsMayaMapsThem)
{
    open("haggi+OpenMaya/src/mayaToCorona/mayaToCoronaExamples/scenes/lightLinking.ma");
    const engine::CubeShape usual;
    const auto cube = engine::makeCube(usual);
    engine::mapCube(*cube, usual);
    for (const char* name : {"pCubeShape2", "pCubeShape3", "pCubeShape4"})
        expectAsMade(name, *cube);
}

TEST_F(RealTextures, SpheresAreAsMayaMapsThem)
{
    open("haggi+OpenMaya/src/mayaToCorona/mayaToCoronaExamples/scenes/bokeh.ma");
    const engine::SphereShape usual;
    const auto sphere = engine::makeSphere(usual);
    engine::mapSphere(*sphere, usual);
    for (const char* name : {"pSphereShape2", "pSphereShape7"})
        expectAsMade(name, *sphere);
}

TEST_F(RealTextures, FacesHaveCoordinatesInTheSetsThatNameThem)
{
    open("Autodesk+maya-usd/test/lib/usd/translators/UsdExportUVSetsFloatTest/UsdExportUVSetsTest_Float.ma");
    EXPECT_THAT(mappedFaces("EmptyDefaultUVSetCubeShape"), ElementsAre(0));
    EXPECT_THAT(mappedFaces("DefaultUVSetCubeShape"), ElementsAre(6));
    EXPECT_THAT(mappedFaces("OneMissingFaceCubeShape"), ElementsAre(5));
    EXPECT_THAT(mappedFaces("OneAssignedFaceCubeShape"), ElementsAre(1));
    EXPECT_THAT(mappedFaces("MultipleUVSetsCubeShape"), ElementsAre(6, 6));
    EXPECT_EQ(engine::currentUvSet(shape("MultipleUVSetsCubeShape")), "foo1");
    EXPECT_THAT(mappedFaces("SharedFacesCubeShape"), ElementsAre(0, 6, 6));
    EXPECT_EQ(engine::currentUvSet(shape("SharedFacesCubeShape")), "map1");
    EXPECT_EQ(mesh("SharedFacesCubeShape").uvSets[2].name, "AllFacesSharedSet");
    EXPECT_EQ(mesh("boxShape").uvSets[0].values.size(), 300u);
}

} // namespace
} // namespace tvxhost::scene
