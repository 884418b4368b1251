// polyPlane and the other primitives, polyEvaluate.
#include "../support/savedText.h"
#include "CommandFixture.h"

#include "engine/mesh.h"

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

using PolygonCommandsTest = CommandFixture;

TEST_F(PolygonCommandsTest, APrimitiveIsATransformAShapeAndTheNodeThatMakesIt)
{
    EXPECT_THAT(strings("polyPlane"), ElementsAre("pPlane1", "polyPlane1"));
    EXPECT_THAT(strings("listRelatives -shapes pPlane1"), ElementsAre("pPlaneShape1"));
    EXPECT_EQ(run("connectionInfo -sourceFromDestination pPlaneShape1.inMesh"), "polyPlane1.output");
    EXPECT_THAT(strings("ls -selection"), ElementsAre("pPlane1"));
    EXPECT_THAT(strings("polyPlane"), ElementsAre("pPlane2", "polyPlane2"));
}

TEST_F(PolygonCommandsTest, EachHasItsDefaults)
{
    struct Expected
    {
        const char* command;
        const char* transform;
        const char* counts;
    };
    for (const Expected& row : {Expected{"polyPlane", "pPlane1", "vertex=121 edge=220 face=100 triangle=200"},
                                {"polyCube", "pCube1", "vertex=8 edge=12 face=6 triangle=12"},
                                {"polySphere", "pSphere1", "vertex=382 edge=780 face=400 triangle=760"},
                                {"polyCone", "pCone1", "vertex=21 edge=40 face=21 triangle=38"},
                                {"polyCylinder", "pCylinder1", "vertex=42 edge=100 face=60 triangle=80"},
                                {"polyTorus", "pTorus1", "vertex=400 edge=800 face=400 triangle=800"}}) {
        EXPECT_THAT(strings(row.command), ElementsAre(row.transform, std::string(row.command) + "1"));
        EXPECT_EQ(run(std::string("polyEvaluate ") + row.transform), row.counts);
    }
}

TEST_F(PolygonCommandsTest, FlagsAreAttributesOfTheNode)
{
    run("polyCube -w 2 -h 3 -depth 4 -sx 2 -subdivisionsY 3 -sz 4 -cuv 4 -n \"box\"");
    EXPECT_EQ(run("getAttr polyCube1.width"), "2");
    EXPECT_EQ(run("getAttr polyCube1.height"), "3");
    EXPECT_EQ(run("getAttr polyCube1.depth"), "4");
    EXPECT_EQ(run("getAttr polyCube1.subdivisionsDepth"), "4");
    EXPECT_EQ(run("getAttr polyCube1.createUVs"), "4");
    EXPECT_THAT(strings("listRelatives -shapes box"), ElementsAre("boxShape"));
    EXPECT_EQ(run("polyEvaluate -v box"), "54");
    EXPECT_THAT(numbers("getAttr boxShape.boundingBoxMax"), ElementsAre(1, 1.5, 2));
    EXPECT_THAT(strings("polySphere -n \"ball7\""), ElementsAre("ball7", "polySphere1"));
    EXPECT_THAT(strings("listRelatives -shapes ball7"), ElementsAre("ballShape7"));
}

TEST_F(PolygonCommandsTest, TexturesAreLaidOnAsEachCommandDoesUnlessItIsTold)
{
    for (const auto& [command, laidOn] :
         {std::pair("polyPlane", "2"), std::pair("polyCube", "4"), std::pair("polySphere", "2"),
          std::pair("polyCone", "3"), std::pair("polyCylinder", "3"), std::pair("polyTorus", "1")}) {
        run(command);
        EXPECT_EQ(run("getAttr " + std::string(command) + "1.createUVs"), laidOn) << command;
    }
    run("polyPlane -createUVs 0");
    EXPECT_EQ(run("getAttr polyPlane2.createUVs"), "0");
}

TEST_F(PolygonCommandsTest, LengthsAreInTheCurrentUnit)
{
    run("currentUnit -linear m; polyPlane -w 2 -h 1cm -sx 1 -sy 1");
    const engine::MeshData* mesh = engine::meshOf(*scene.findNode("pPlaneShape1").value->asDag());
    ASSERT_NE(mesh, nullptr);
    EXPECT_EQ(mesh->points[0], engine::Vec3f(-100, 0, 0.5F));
    EXPECT_EQ(run("polyPlane -q -w pPlane1"), "2");
}

TEST_F(PolygonCommandsTest, AnAxisTurnsThePrimitive)
{
    run("polyCylinder -ax 1 0 0 -h 6 -sx 4");
    EXPECT_THAT(numbers("polyCylinder -q -ax pCylinder1"), ElementsAre(1, 0, 0));
    EXPECT_NEAR(numbers("getAttr pCylinderShape1.boundingBoxMax")[0], 3, 1e-6);
}

TEST_F(PolygonCommandsTest, PrimitivesCanBeQueriedAndEdited)
{
    run("polySphere -r 2 -sx 8 -sy 4");
    for (const char* object : {"pSphere1", "pSphereShape1", "polySphere1"})
        EXPECT_EQ(run(std::string("polySphere -q -r ") + object), "2");
    EXPECT_EQ(run("polySphere -q -subdivisionsX"), "8") << "of what is selected";
    run("polySphere -e -sx 10 pSphere1");
    EXPECT_EQ(run("polyEvaluate -v pSphere1"), "32");
    EXPECT_EQ(failure("polyCube -q -w pSphere1"), "'pSphere1' has no polyCube in its history");
}

TEST_F(PolygonCommandsTest, AttributesOfTheNodeChangeTheMesh)
{
    run("polyCube; setAttr polyCube1.sw 3");
    EXPECT_EQ(run("polyEvaluate -face pCube1"), "14");
}

TEST_F(PolygonCommandsTest, WithoutHistoryTheMeshIsAllThatThereIs)
{
    EXPECT_THAT(strings("polyCube -ch off"), ElementsAre("pCube1"));
    EXPECT_EQ(run("objExists polyCube1"), "0");
    EXPECT_EQ(run("polyEvaluate -v pCube1"), "8");
}

TEST_F(PolygonCommandsTest, AMeshStaysWhenItsHistoryIsDeleted)
{
    run("polyCube; delete polyCube1");
    EXPECT_EQ(run("polyEvaluate -v -e -f pCube1"), "8 12 6");
    EXPECT_EQ(run("polyEvaluate -f -area -v pCube1"), "6 6 8") << "in the order of the flags";
}

TEST_F(PolygonCommandsTest, NewMeshesAreShaded)
{
    run("polyCube");
    EXPECT_THAT(strings("sets -q initialShadingGroup"), ElementsAre("pCubeShape1"));
}

TEST_F(PolygonCommandsTest, WhatIsSavedIsTheHistoryOrElseTheGeometry)
{
    run("polyPlane -sx 1 -sy 1");
    EXPECT_THAT(test::savedText(scene), HasSubstr("connectAttr \"polyPlane1.out\" \"pPlaneShape1.i\";"));
    EXPECT_THAT(test::savedText(scene), Not(HasSubstr(".vt[")));
    run("delete polyPlane1");
    const std::string text = test::savedText(scene);
    EXPECT_THAT(text, HasSubstr("\tsetAttr -s 4 \".vt[0:3]\"  -0.5 0 0.5 0.5 0 0.5 -0.5 0 -0.5 0.5 0 -0.5;\n"
                                "\tsetAttr -s 4 \".ed[0:3]\"  0 1 0 0 2 0 1 3 0 2 3 0;\n"));
    EXPECT_THAT(text, HasSubstr("\tsetAttr \".uvst[0].uvsn\" -type \"string\" \"map1\";\n"
                                "\tsetAttr -s 4 \".uvst[0].uvsp[0:3]\" -type \"float2\" 0 0 1 0 0 1 1 1;\n"));
    EXPECT_THAT(text, HasSubstr("f 4 0 2 -4 -2\n\t\tmu 0 4 0 1 3 2;"));
    EXPECT_EQ(test::savedText(scene), text);
    EXPECT_EQ(run("polyEvaluate -f pPlane1"), "1");
}

TEST_F(PolygonCommandsTest, PolyEvaluateCountsWhatIsAskedFor)
{
    run("polyCube; polyPlane -sx 2 -sy 1");
    EXPECT_EQ(run("polyEvaluate -e"), "7") << "of what is selected";
    EXPECT_EQ(run("polyEvaluate -vertex -face pCubeShape1 pPlane1"), "8 6 6 2");
    EXPECT_EQ(run("polyEvaluate -v persp"), "Nothing counted : no polygonal object is selected.");
}

TEST_F(PolygonCommandsTest, PolyEvaluateCountsTextureCoordinates)
{
    run("polyCube; polyPlane -sx 2 -sy 1; polyCylinder");
    EXPECT_EQ(run("polyEvaluate -uvcoord -uvShell pCube1"), "14 1");
    EXPECT_EQ(run("polyEvaluate -uv pPlane1 pCylinder1"), "6 0");
    EXPECT_THAT(numbers("polyEvaluate -boundingBox2d pCube1"), ElementsAre(0.125, 0.875, 0, 1));
    EXPECT_THAT(numbers("polyEvaluate -b2 pCylinder1"), ElementsAre(0, 0, 0, 0));
    EXPECT_EQ(run("polyEvaluate -uvSetName \"map1\" -uv pPlane1"), "6");
    EXPECT_EQ(run("polyEvaluate -uvSetName \"map1\" pPlane1"), "vertex=6 edge=7 face=2 triangle=4");
    EXPECT_EQ(failure("polyEvaluate -uvs \"none\" -uv pPlane1"), "'pPlaneShape1' has no UV set 'none'");
}

TEST_F(PolygonCommandsTest, RoundCapsAreNotDoneAndSaySo)
{
    run("polyCylinder -rcp true");
    EXPECT_EQ(engine::meshOf(*scene.findNode("pCylinderShape1").value->asDag()), nullptr);
    bool isTold = false;
    for (const engine::Message& message : scene.scriptEditor().history())
        isTold = isTold || message.text.find("round caps of a polyCylinder") != std::string::npos;
    EXPECT_TRUE(isTold);
}

TEST_F(PolygonCommandsTest, meshesAreMeasured)
{
    run("polyCube -w 1 -h 2 -d 3; setAttr pCube1.s 2 2 2");
    EXPECT_EQ(run("polyEvaluate -area pCube1"), "22");
    EXPECT_EQ(run("polyEvaluate -worldArea pCube1"), "88");
    EXPECT_EQ(run("polyEvaluate -shell pCube1"), "1");
    EXPECT_THAT(numbers("polyEvaluate -boundingBox pCube1"),
                testing::ElementsAre(-0.5, 0.5, -1.0, 1.0, -1.5, 1.5));
    EXPECT_EQ(failure("polyEvaluate -faceArea pCube1"),
              "Flag '-faceArea' of polyEvaluate is refused: components are counted by what is selected of "
              "them: use "
              "ls -flatten");
}

TEST_F(PolygonCommandsTest, theStateOfTheHistoryNodeIsAFlagToo)
{
    run("polyCube -n box -nodeState 2");
    EXPECT_EQ(run("getAttr polyCube1.nodeState"), "2");
    run("polyCube -e -nds 0 -cch on box");
    EXPECT_EQ(run("polyCube -q -nodeState box"), "0");
    EXPECT_EQ(run("polyCube -q -caching box"), "1");
}

} // namespace tvxhost::mel
