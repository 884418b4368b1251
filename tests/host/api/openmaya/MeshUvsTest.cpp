// Texture coordinates of meshes: MFnMesh, and the iterators over faces and vertices.
#include "../arrays.h"
#include "../meshFixture.h"

#include "engine/geometry/primitiveUvs.h"

#include <maya/MDGModifier.h>
#include <maya/MFnMesh.h>
#include <maya/MFnMeshData.h>
#include <maya/MItMeshPolygon.h>
#include <maya/MItMeshVertex.h>
#include <maya/MUintArray.h>

#include <limits>

namespace tvxhost::api::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MeshUvsTest : public MeshFixture
{
protected:
    MeshUvsTest()
    {
        const engine::PlaneShape shape{3, 2, 3, 2};
        const auto mesh = engine::makePlane(shape);
        engine::mapPlane(*mesh, shape);
        addMesh("grid", mesh);
        m_mesh.setObject(path("gridShape"));
    }

    static std::vector<float> uv(MFnMesh& set, int number, const MString* name = nullptr)
    {
        float u = -9, v = -9;
        EXPECT_EQ(set.getUV(number, u, v, name), MS::kSuccess);
        return {u, v};
    }
    Texts setNames()
    {
        MStringArray names;
        EXPECT_EQ(m_mesh.getUVSetNames(names), MS::kSuccess);
        return texts(names);
    }
    template <class Iterator>
    static void goTo(Iterator& items, int item)
    {
        int previous = 0;
        EXPECT_EQ(items.setIndex(item, previous), MS::kSuccess);
    }

    MFnMesh m_mesh;
};

TEST_F(MeshUvsTest, CoordinatesAreReadByNumber)
{
    EXPECT_EQ(m_mesh.numUVs(), 12);
    EXPECT_EQ(m_mesh.numUVs("map1"), 12);
    MStatus status;
    EXPECT_EQ(m_mesh.numUVs("none", &status), 0);
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_THAT(uv(m_mesh, 7), ElementsAre(1, testing::FloatEq(1.0F / 3)));
    float u = 0, v = 0;
    EXPECT_EQ(m_mesh.getUV(12, u, v), MS::kInvalidParameter);
    MFloatArray us, vs;
    EXPECT_EQ(m_mesh.getUVs(us, vs), MS::kSuccess);
    EXPECT_EQ(us.length(), 12u);
    EXPECT_EQ(us[3], 1.0F);
    EXPECT_EQ(vs[3], 0.0F);
}

TEST_F(MeshUvsTest, FacesHaveOneForEachCorner)
{
    int number = -1;
    EXPECT_EQ(m_mesh.getPolygonUVid(5, 2, number), MS::kSuccess);
    EXPECT_EQ(number, 11);
    EXPECT_EQ(m_mesh.getPolygonUVid(5, 4, number), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.getPolygonUVid(6, 0, number), MS::kInvalidParameter);
    float u = 0, v = 0;
    EXPECT_EQ(m_mesh.getPolygonUV(5, 1, u, v), MS::kSuccess);
    EXPECT_EQ(u, 1.0F);
    MIntArray counts, ids;
    EXPECT_EQ(m_mesh.getAssignedUVs(counts, ids), MS::kSuccess);
    EXPECT_THAT(elementsOf(counts), ElementsAre(4, 4, 4, 4, 4, 4));
    EXPECT_EQ(ids.length(), 24u);
    EXPECT_EQ(ids[23], 10);
}

TEST_F(MeshUvsTest, ListsAreSetAndGrow)
{
    EXPECT_EQ(m_mesh.setUV(0, 0.25F, 0.5F), MS::kSuccess);
    EXPECT_THAT(uv(m_mesh, 0), ElementsAre(0.25F, 0.5F));
    EXPECT_EQ(m_mesh.setUV(14, 1, 1), MS::kSuccess);
    EXPECT_EQ(m_mesh.numUVs(), 15);
    EXPECT_THAT(uv(m_mesh, 13), ElementsAre(0, 0));
    EXPECT_EQ(m_mesh.setUV(-1, 1, 1), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.setUV(2147483647, 1, 1), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.setSomeUVs(ints({3, 4}), floats({1, 2}), floats({3, 4})), MS::kSuccess);
    EXPECT_THAT(uv(m_mesh, 4), ElementsAre(2, 4));
    EXPECT_EQ(m_mesh.setSomeUVs(ints({3}), floats({1, 2}), floats({3, 4})), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.setUVs(floats({1}), floats({1})), MS::kInvalidParameter) << "less than there are";
    EXPECT_EQ(m_mesh.setUVs(MFloatArray(20, 0.5F), MFloatArray(19, 0.5F)), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.setUVs(MFloatArray(20, 0.5F), MFloatArray(20, 0.25F)), MS::kSuccess);
    EXPECT_THAT(uv(m_mesh, 19), ElementsAre(0.5F, 0.25F));
}

TEST_F(MeshUvsTest, FacesAreAssignedOneByOneOrAllAtOnce)
{
    EXPECT_EQ(m_mesh.clearUVs(), MS::kSuccess);
    EXPECT_EQ(m_mesh.numUVs(), 0);
    int number = 0;
    EXPECT_EQ(m_mesh.getPolygonUVid(0, 0, number), MS::kFailure) << "nothing is mapped";
    EXPECT_EQ(m_mesh.setUVs(floats({0, 1, 1, 0}), floats({0, 0, 1, 1})), MS::kSuccess);
    EXPECT_EQ(m_mesh.assignUVs(ints({4, 0, 0, 0, 0, 4}), ints({0, 1, 2, 3, 3, 2, 1, 0})), MS::kSuccess);
    MIntArray counts, ids;
    EXPECT_EQ(m_mesh.getAssignedUVs(counts, ids), MS::kSuccess);
    EXPECT_THAT(elementsOf(counts), ElementsAre(4, 0, 0, 0, 0, 4));
    EXPECT_THAT(elementsOf(ids), ElementsAre(0, 1, 2, 3, 3, 2, 1, 0));
    EXPECT_EQ(m_mesh.assignUV(0, 0, 2), MS::kSuccess);
    EXPECT_EQ(m_mesh.getPolygonUVid(0, 0, number), MS::kSuccess);
    EXPECT_EQ(number, 2);
    EXPECT_EQ(m_mesh.assignUV(0, 0, 4), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.assignUV(0, 4, 0), MS::kInvalidParameter);
    const auto refused = [this](const MIntArray& some, const MIntArray& numbers) {
        return m_mesh.assignUVs(some, numbers) == MS::kInvalidParameter;
    };
    EXPECT_TRUE(refused(ints({4, 0, 0, 0, 0}), ints({0, 1, 2, 3}))) << "a count is missing";
    EXPECT_TRUE(refused(ints({3, 0, 0, 0, 0, 0}), ints({0, 1, 2}))) << "a face has four corners";
    EXPECT_TRUE(refused(ints({4, 0, 0, 0, 0, 0}), ints({0, 1, 2}))) << "a number is missing";
    EXPECT_TRUE(refused(ints({4, 0, 0, 0, 0, 0}), ints({0, 1, 2, 4}))) << "one is not there";
}

TEST_F(MeshUvsTest, ShellsAreNumberedByTheirFirstCoordinates)
{
    MIntArray shells;
    unsigned int count = 0;
    EXPECT_EQ(m_mesh.getUvShellsIds(shells, count), MS::kSuccess);
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(m_mesh.assignUVs(ints({4, 0, 4, 0, 0, 0}), ints({0, 1, 5, 4, 2, 3, 7, 6})), MS::kSuccess);
    EXPECT_EQ(m_mesh.getUvShellsIds(shells, count), MS::kSuccess);
    EXPECT_EQ(count, 6u) << "four are not used";
    EXPECT_THAT(elementsOf(shells), ElementsAre(0, 0, 1, 1, 0, 0, 1, 1, 2, 3, 4, 5));
}

TEST_F(MeshUvsTest, SetsComeAndGoByName)
{
    EXPECT_EQ(m_mesh.numUVSets(), 1);
    EXPECT_THAT(setNames(), ElementsAre("map1"));
    MStatus status;
    EXPECT_EQ(text(m_mesh.createUVSetWithName("paint", nullptr, &status)), "paint");
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(text(m_mesh.createUVSetWithName("paint")), "paint1");
    MString name = "map1";
    EXPECT_EQ(m_mesh.createUVSet(name), MS::kSuccess);
    EXPECT_EQ(text(name), "map2");
    EXPECT_EQ(text(m_mesh.createUVSetWithName("")), "uvSet1");
    EXPECT_EQ(m_mesh.numUVs("paint"), 0);
    EXPECT_EQ(m_mesh.renameUVSet("paint1", "dirt"), MS::kSuccess);
    EXPECT_EQ(m_mesh.renameUVSet("paint1", "dust"), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.renameUVSet("paint", "dirt"), MS::kFailure) << "the name is taken";
    EXPECT_EQ(m_mesh.deleteUVSet("map2"), MS::kSuccess);
    EXPECT_EQ(m_mesh.deleteUVSet("map2"), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.deleteUVSet("map1"), MS::kFailure) << "the first one stays";
    EXPECT_THAT(setNames(), ElementsAre("map1", "paint", "dirt", "uvSet1"));
    MStringArray families;
    EXPECT_EQ(m_mesh.getUVSetFamilyNames(families), MS::kSuccess);
    EXPECT_EQ(texts(families), setNames());
    EXPECT_EQ(m_mesh.clearUVs(&name), MS::kInvalidParameter) << "map2 has gone";
}

TEST_F(MeshUvsTest, WhatIsMeantWithoutANameIsTheCurrentSet)
{
    EXPECT_EQ(text(m_mesh.currentUVSetName()), "map1");
    m_mesh.createUVSetWithName("paint");
    EXPECT_EQ(text(m_mesh.currentUVSetName()), "map1");
    EXPECT_EQ(m_mesh.setCurrentUVSetName("none"), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.setCurrentUVSetName("paint"), MS::kSuccess);
    EXPECT_EQ(m_mesh.numUVs(), 0);
    EXPECT_EQ(text(plug("gridShape.cuvs").asString()), "paint");
    EXPECT_EQ(m_mesh.renameUVSet("paint", "dirt"), MS::kSuccess);
    MString name;
    EXPECT_EQ(m_mesh.getCurrentUVSetName(name), MS::kSuccess);
    EXPECT_EQ(text(name), "dirt");
    EXPECT_EQ(m_mesh.deleteUVSet("dirt"), MS::kSuccess);
    EXPECT_EQ(text(m_mesh.currentUVSetName()), "map1");
    EXPECT_EQ(text(plug("gridShape.cuvs").asString()), "map1");
}

TEST_F(MeshUvsTest, SetsAreCopiedIntoOthersOrIntoNewOnes)
{
    MString copy = "copy";
    EXPECT_EQ(m_mesh.copyUVSet("map1", copy), MS::kSuccess);
    EXPECT_EQ(m_mesh.setUV(0, 5, 6), MS::kSuccess);
    EXPECT_THAT(uv(m_mesh, 0, &copy), ElementsAre(0, 0));
    MStatus status;
    EXPECT_EQ(text(m_mesh.copyUVSetWithName("map1", "copy", nullptr, &status)), "copy");
    EXPECT_THAT(uv(m_mesh, 0, &copy), ElementsAre(5, 6));
    EXPECT_EQ(text(m_mesh.copyUVSetWithName("none", "copy", nullptr, &status)), "");
    EXPECT_EQ(status, MS::kInvalidParameter);
    MStringArray names;
    EXPECT_EQ(m_mesh.getFaceUVSetNames(2, names), MS::kSuccess);
    EXPECT_THAT(texts(names), ElementsAre("map1", "copy"));
    EXPECT_EQ(m_mesh.getFaceUVSetNames(6, names), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.getUVSetsInFamily("copy", names), MS::kSuccess);
    EXPECT_THAT(texts(names), ElementsAre("copy"));
    EXPECT_FALSE(m_mesh.isUVSetPerInstance("copy", &status));
    EXPECT_EQ(status, MS::kSuccess);
    MIntArray instances(1, 7);
    EXPECT_EQ(m_mesh.getAssociatedUVSetInstances("copy", instances), MS::kSuccess);
    EXPECT_EQ(instances.length(), 0u);
}

TEST_F(MeshUvsTest, AModifierTakesSetsBack)
{
    MDGModifier modifier;
    m_mesh.createUVSetWithName("paint", &modifier);
    EXPECT_EQ(m_mesh.setCurrentUVSetName("paint", &modifier), MS::kSuccess);
    EXPECT_EQ(m_mesh.renameUVSet("paint", "dirt", &modifier), MS::kSuccess);
    EXPECT_EQ(modifier.doIt(), MS::kSuccess);
    EXPECT_THAT(setNames(), ElementsAre("map1", "dirt"));
    EXPECT_EQ(modifier.undoIt(), MS::kSuccess);
    EXPECT_THAT(setNames(), ElementsAre("map1"));
    EXPECT_EQ(text(m_mesh.currentUVSetName()), "map1");
    EXPECT_EQ(modifier.doIt(), MS::kSuccess);
    EXPECT_EQ(text(m_mesh.currentUVSetName()), "dirt");
}

TEST_F(MeshUvsTest, WhatHistoryMakesIsReadAndNotChanged)
{
    make("polyCube", "polyCube1");
    make("transform", "box");
    make("mesh", "boxShape", "box");
    ASSERT_TRUE(
        scene.connect(scene.findPlug("polyCube1.out").value, scene.findPlug("boxShape.i").value, false));
    set("polyCube1.cuv", {4});
    MFnMesh box(path("boxShape"));
    EXPECT_EQ(box.numUVs(), 14);
    EXPECT_EQ(box.setUV(0, 0, 0), MS::kFailure);
    EXPECT_EQ(box.numUVSets(), 1);
    MStatus status;
    EXPECT_EQ(text(box.createUVSetWithName("paint", nullptr, &status)), "");
    EXPECT_EQ(status, MS::kFailure);
}

TEST_F(MeshUvsTest, SetsOfSingleInstancesAreNotDone)
{
    const MUintArray instances(1, 0u);
    MStatus status;
    m_mesh.createUVSetWithName("paint", nullptr, &status, &instances);
    EXPECT_EQ(status, MS::kNotImplemented);
    EXPECT_EQ(m_mesh.numUVSets(), 1);
}

TEST_F(MeshUvsTest, WhatIsNotDoneSaysSoOnce)
{
    MUintArray pins;
    MDoubleArray weights;
    for (int round = 0; round < 2; ++round)
        EXPECT_EQ(m_mesh.getPinUVs(pins, weights), MS::kNotImplemented);
    EXPECT_EQ(messages(engine::MessageKind::error).size(), 1u);
}

TEST_F(MeshUvsTest, MeshDataHasSetsOfItsOwn)
{
    MFnMeshData data;
    MObject owner = data.create();
    MFnMesh mesh;
    MStatus status;
    mesh.create(4, 1, points({MPoint(0, 0, 0), MPoint(1, 0, 0), MPoint(1, 1, 0), MPoint(0, 1, 0)}), ints({4}),
                ints({0, 1, 2, 3}), floats({0, 1, 1, 0}), floats({0, 0, 1, 1}), owner, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(mesh.numUVs(), 4);
    EXPECT_EQ(mesh.assignUVs(ints({4}), ints({0, 1, 2, 3})), MS::kSuccess);
    EXPECT_EQ(text(mesh.createUVSetDataMeshWithName("paint", &status)), "paint");
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(mesh.setCurrentUVSetName("paint"), MS::kSuccess);
    EXPECT_EQ(mesh.numUVs(), 0);
    EXPECT_EQ(mesh.numUVs("map1"), 4);
    EXPECT_EQ(mesh.deleteUVSet("paint"), MS::kSuccess);
    EXPECT_EQ(text(mesh.currentUVSetName()), "map1");
    MString name = "paint";
    EXPECT_EQ(m_mesh.createUVSetDataMesh(name), MS::kInvalidParameter) << "a shape is no data";
}

TEST_F(MeshUvsTest, MeshesAreMadeWithTextureCoordinates)
{
    MFnMesh mesh;
    MStatus status;
    const MPointArray corners = points({MPoint(0, 0, 0), MPoint(1, 0, 0), MPoint(1, 1, 0)});
    mesh.create(3, 1, corners, ints({3}), ints({0, 1, 2}), floats({0, 1, 1}), floats({0, 0, 1}),
                MObject::kNullObj, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_THAT(uv(mesh, 2), ElementsAre(1, 1));
    MIntArray counts, ids;
    EXPECT_EQ(mesh.getAssignedUVs(counts, ids), MS::kSuccess);
    EXPECT_THAT(elementsOf(counts), ElementsAre(0)) << "assigned by who makes it";
    mesh.create(3, 1, corners, ints({3}), ints({0, 1, 2}), floats({0, 1, 1}), floats({0, 0}),
                MObject::kNullObj, &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MeshUvsTest, PointsAndCoordinatesLeadToEachOther)
{
    // The plane is 3 by 2 around the origin, its texture 1 by 2/3 from the lower left, where z is greatest.
    set("grid.translate", {0, 0, 10});
    float2 uv = {0, 0};
    int face = -1;
    MPoint point(1, 5, -0.5);
    EXPECT_EQ(m_mesh.getUVAtPoint(point, uv, MSpace::kObject, nullptr, &face), MS::kSuccess);
    EXPECT_FLOAT_EQ(uv[0], 2.5F / 3);
    EXPECT_FLOAT_EQ(uv[1], 1.5F / 3);
    EXPECT_EQ(face, 5);
    MPoint found;
    EXPECT_EQ(m_mesh.getPointAtUV(5, found, uv), MS::kSuccess);
    EXPECT_NEAR(found.x, 1, 1e-6);
    EXPECT_NEAR(found.z, -0.5, 1e-6);
    MFnMesh placed(path("gridShape"));
    EXPECT_EQ(placed.getPointAtUV(5, found, uv, MSpace::kWorld), MS::kSuccess);
    EXPECT_NEAR(found.z, 9.5, 1e-6);
    EXPECT_EQ(m_mesh.getPointAtUV(0, found, uv), MS::kFailure) << "a face elsewhere";
    EXPECT_EQ(m_mesh.getPointAtUV(4, found, uv, MSpace::kObject, nullptr, 0.2F), MS::kSuccess)
        << "no further away than that";
    EXPECT_NEAR(found.x, 0.5, 1e-6);
    EXPECT_EQ(m_mesh.getPointAtUV(6, found, uv), MS::kInvalidParameter);
    MItMeshPolygon faces(path("gridShape"));
    EXPECT_EQ(faces.getUVAtPoint(point, uv), MS::kSuccess) << "the place of face 0 nearest to it";
    EXPECT_FLOAT_EQ(uv[0], 1.0F / 3);
    EXPECT_FLOAT_EQ(uv[1], 1.0F / 3);
    EXPECT_EQ(faces.getPointAtUV(found, uv), MS::kSuccess);
    EXPECT_NEAR(found.x, -0.5, 1e-6);
    EXPECT_NEAR(found.z, 0, 1e-6);
    EXPECT_EQ(m_mesh.clearUVs(), MS::kSuccess);
    EXPECT_EQ(m_mesh.getUVAtPoint(point, uv), MS::kFailure);
    const float anywhere = std::numeric_limits<float>::infinity();
    EXPECT_EQ(m_mesh.getPointAtUV(4, found, uv, MSpace::kObject, nullptr, anywhere), MS::kFailure)
        << "a face without any has no place near to it";
}

// Faces one after the other

TEST_F(MeshUvsTest, AFaceTellsItsCoordinates)
{
    MItMeshPolygon faces(path("gridShape"));
    EXPECT_TRUE(faces.hasUVs());
    EXPECT_TRUE(faces.hasUVs("map1"));
    goTo(faces, 1);
    float2 point = {0, 0};
    EXPECT_EQ(faces.getUV(1, point), MS::kSuccess);
    EXPECT_FLOAT_EQ(point[0], 2.0F / 3);
    EXPECT_EQ(faces.getUV(4, point), MS::kInvalidParameter);
    int number = 0;
    EXPECT_EQ(faces.getUVIndex(2, number), MS::kSuccess);
    EXPECT_EQ(number, 6);
    float u = 0, v = 0;
    EXPECT_EQ(faces.getUVIndex(3, number, u, v), MS::kSuccess);
    EXPECT_EQ(number, 5);
    EXPECT_FLOAT_EQ(u, 1.0F / 3);
    EXPECT_FLOAT_EQ(v, 1.0F / 3);
    MFloatArray us, vs;
    EXPECT_EQ(faces.getUVs(us, vs), MS::kSuccess);
    EXPECT_EQ(us.length(), 4u);
    EXPECT_FLOAT_EQ(us[1], 2.0F / 3);
    MStringArray names;
    EXPECT_EQ(faces.getUVSetNames(names), MS::kSuccess);
    EXPECT_THAT(texts(names), ElementsAre("map1"));
    double area = 0;
    EXPECT_EQ(faces.getUVArea(area), MS::kSuccess);
    EXPECT_NEAR(area, 1.0 / 9, 1e-7);
    EXPECT_FALSE(faces.zeroUVArea());
}

TEST_F(MeshUvsTest, AFaceIsChangedAndTheIteratorSeesIt)
{
    MItMeshPolygon faces(path("gridShape"));
    float2 point = {0.5F, 0.25F};
    EXPECT_EQ(faces.setUV(0, point), MS::kSuccess);
    float2 read = {0, 0};
    EXPECT_EQ(faces.getUV(0, read), MS::kSuccess);
    EXPECT_THAT(read, ElementsAre(0.5F, 0.25F));
    MFloatArray us = floats({1, 1, 1, 1}), vs = floats({2, 2, 2, 2});
    EXPECT_EQ(faces.setUVs(us, vs), MS::kSuccess);
    EXPECT_TRUE(faces.zeroUVArea());
    EXPECT_TRUE(faces.zeroUVArea("map1"));
    us.append(1);
    EXPECT_EQ(faces.setUVs(us, vs), MS::kInvalidParameter);
    EXPECT_EQ(faces.setUV(4, point), MS::kInvalidParameter);
    EXPECT_THAT(uv(m_mesh, 5), ElementsAre(1, 2));
}

TEST_F(MeshUvsTest, AFaceThatIsNotMappedHasNone)
{
    EXPECT_EQ(m_mesh.assignUVs(ints({4, 0, 0, 0, 0, 0}), ints({0, 1, 5, 4})), MS::kSuccess);
    MItMeshPolygon faces(path("gridShape"));
    EXPECT_TRUE(faces.hasUVs());
    goTo(faces, 1);
    MStatus status;
    EXPECT_FALSE(faces.hasUVs(&status));
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_FALSE(faces.hasUVs("none", &status));
    EXPECT_EQ(status, MS::kInvalidParameter);
    float2 point = {0, 0};
    EXPECT_EQ(faces.getUV(0, point), MS::kFailure);
    EXPECT_EQ(faces.setUV(0, point), MS::kFailure);
    MStringArray names;
    EXPECT_EQ(faces.getUVSetNames(names), MS::kSuccess);
    EXPECT_EQ(names.length(), 0u);
}

TEST_F(MeshUvsTest, AnIteratorOverAMeshThatWasReplacedReadsTheOldOneAndThenEnds)
{
    MItMeshPolygon faces(path("gridShape"));
    MItMeshVertex vertices(path("gridShape"));
    goTo(faces, 5);
    goTo(vertices, 11);
    addQuad();
    EXPECT_EQ(m_mesh.copyInPlace(object("quadShape")), MS::kSuccess);
    MFloatArray us, vs;
    EXPECT_EQ(faces.getUVs(us, vs), MS::kSuccess);
    EXPECT_EQ(us.length(), 4u);
    float2 point = {0, 0};
    EXPECT_EQ(vertices.getUV(point), MS::kSuccess);
    EXPECT_EQ(point[0], 1.0F);
    EXPECT_EQ(faces.setUV(0, point), MS::kSuccess) << "of nothing that is there now";
    EXPECT_TRUE(faces.isDone());
    EXPECT_EQ(faces.getUVs(us, vs), MS::kFailure);
    EXPECT_EQ(m_mesh.numUVs(), 0);
}

// Vertices one after the other

TEST_F(MeshUvsTest, AVertexTellsTheCoordinatesOfItsFaces)
{
    // Vertex 5 is a corner of the faces 0, 1, 3 and 4; the last one gets a coordinate of its own.
    EXPECT_EQ(m_mesh.setUV(12, 0.75F, 0.5F), MS::kSuccess);
    EXPECT_EQ(m_mesh.assignUV(4, 0, 12), MS::kSuccess);
    MItMeshVertex vertices(path("gridShape"));
    goTo(vertices, 5);
    int count = 0;
    EXPECT_EQ(vertices.numUVs(count), MS::kSuccess);
    EXPECT_EQ(count, 2);
    MIntArray numbers;
    EXPECT_EQ(vertices.getUVIndices(numbers), MS::kSuccess);
    EXPECT_THAT(elementsOf(numbers), ElementsAre(5, 5, 5, 12));
    float2 point = {0, 0};
    EXPECT_EQ(vertices.getUV(point), MS::kSuccess);
    EXPECT_FLOAT_EQ(point[0], 1.0F / 3);
    EXPECT_EQ(vertices.getUV(4, point), MS::kSuccess);
    EXPECT_THAT(point, ElementsAre(0.75F, 0.5F));
    EXPECT_EQ(vertices.getUV(5, point), MS::kInvalidParameter) << "a face elsewhere";
    MFloatArray us, vs;
    MIntArray faces;
    EXPECT_EQ(vertices.getUVs(us, vs, faces), MS::kSuccess);
    EXPECT_THAT(elementsOf(faces), ElementsAre(0, 1, 3, 4));
    EXPECT_EQ(us[3], 0.75F);
    EXPECT_EQ(vs[3], 0.5F);
}

TEST_F(MeshUvsTest, AVertexIsChangedForOneFaceOrForAll)
{
    EXPECT_EQ(m_mesh.setUV(12, 0.75F, 0.5F), MS::kSuccess);
    EXPECT_EQ(m_mesh.assignUV(4, 0, 12), MS::kSuccess);
    MItMeshVertex vertices(path("gridShape"));
    goTo(vertices, 5);
    float2 one = {2, 3}, read = {0, 0};
    EXPECT_EQ(vertices.setUV(4, one), MS::kSuccess);
    EXPECT_THAT(uv(m_mesh, 12), ElementsAre(2, 3));
    EXPECT_EQ(vertices.setUV(5, one), MS::kInvalidParameter);
    float2 all = {7, 8};
    EXPECT_EQ(vertices.setUV(all), MS::kSuccess);
    for (const int face : {0, 4}) {
        EXPECT_EQ(vertices.getUV(face, read), MS::kSuccess);
        EXPECT_THAT(read, ElementsAre(7, 8)) << face;
    }
    MFloatArray us = floats({1, 2}), vs = floats({3, 4});
    MIntArray faces = ints({4, 0});
    EXPECT_EQ(vertices.setUVs(us, vs, faces), MS::kSuccess);
    EXPECT_THAT(uv(m_mesh, 12), ElementsAre(1, 3));
    EXPECT_THAT(uv(m_mesh, 5), ElementsAre(2, 4));
    faces = ints({4});
    EXPECT_EQ(vertices.setUVs(us, vs, faces), MS::kInvalidParameter);
}

TEST_F(MeshUvsTest, AVertexWithoutAnyHasNone)
{
    EXPECT_EQ(m_mesh.clearUVs(), MS::kSuccess);
    MItMeshVertex vertices(path("gridShape"));
    int count = 9;
    EXPECT_EQ(vertices.numUVs(count), MS::kSuccess);
    EXPECT_EQ(count, 0);
    MIntArray numbers(1, 3);
    EXPECT_EQ(vertices.getUVIndices(numbers), MS::kSuccess);
    EXPECT_THAT(elementsOf(numbers), IsEmpty());
    float2 point = {0, 0};
    EXPECT_EQ(vertices.getUV(point), MS::kFailure);
    EXPECT_EQ(vertices.setUV(point), MS::kFailure);
    MFloatArray us, vs;
    EXPECT_EQ(vertices.getUVs(us, vs, numbers), MS::kFailure);
}

} // namespace
} // namespace tvxhost::api::test
