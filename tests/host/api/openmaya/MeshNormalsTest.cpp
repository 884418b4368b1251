// MFnMesh: normals that are set, and locked, instead of computed.
#include "../meshFixture.h"

#include <maya/MDGModifier.h>
#include <maya/MFloatVectorArray.h>
#include <maya/MFnMesh.h>
#include <maya/MItMeshVertex.h>
#include <maya/MVectorArray.h>

namespace tvxhost::api::test {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;

class MeshNormalsTest : public MeshFixture
{
protected:
    /// Two squares side by side that face up, 0-1-2 in front of 3-4-5: the faces 0 1 4 3 and 1 2 5 4.
    void addSquares()
    {
        const engine::Ref<engine::MeshData> mesh = engine::makePlane({2, 1, 2, 1});
        for (engine::MeshData::Edge& edge : mesh->edges)
            edge.smooth = 1;
        addMesh("squares", mesh);
    }

    static std::vector<double> normalAt(const MFnMesh& mesh, int face, int vertex,
                                        MSpace::Space space = MSpace::kObject)
    {
        MVector normal;
        EXPECT_EQ(mesh.getFaceVertexNormal(face, vertex, normal, space), MS::kSuccess);
        return xyz(normal);
    }
    static int lockedCount(const MFnMesh& mesh)
    {
        int count = 0;
        for (int i = 0; i < mesh.numNormals(); ++i)
            count += mesh.isNormalLocked(i) ? 1 : 0;
        return count;
    }

    MVector side{3, 0, 0};
};

TEST_F(MeshNormalsTest, AVertexNormalIsSetForAllItsFaces)
{
    addSquares();
    MFnMesh mesh(path("squaresShape"), nullptr);
    EXPECT_EQ(mesh.numNormals(), 6);
    EXPECT_EQ(lockedCount(mesh), 0);
    EXPECT_EQ(mesh.setVertexNormal(side, 1), MS::kSuccess);
    EXPECT_THAT(normalAt(mesh, 0, 1), ElementsAre(1, 0, 0)) << "of length one";
    EXPECT_THAT(normalAt(mesh, 1, 1), ElementsAre(1, 0, 0));
    EXPECT_THAT(normalAt(mesh, 1, 4), ElementsAre(0, 1, 0));
    EXPECT_EQ(mesh.numNormals(), 6);
    EXPECT_EQ(lockedCount(mesh), 1);
    EXPECT_TRUE(mesh.isNormalLocked(1));
    EXPECT_EQ(mesh.setVertexNormal(side, 6), MS::kInvalidParameter);
    MVector none;
    EXPECT_EQ(mesh.setVertexNormal(none, 1), MS::kInvalidParameter);
    MStatus status;
    EXPECT_FALSE(mesh.isNormalLocked(6, &status));
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MeshNormalsTest, AFaceVertexNormalIsSetForOneFace)
{
    addSquares();
    MFnMesh mesh(path("squaresShape"), nullptr);
    EXPECT_EQ(mesh.setFaceVertexNormal(side, 1, 4), MS::kSuccess);
    EXPECT_THAT(normalAt(mesh, 1, 4), ElementsAre(1, 0, 0));
    EXPECT_THAT(normalAt(mesh, 0, 4), ElementsAre(0, 1, 0));
    EXPECT_EQ(mesh.numNormals(), 7);
    MIntArray counts, ids;
    mesh.getNormalIds(counts, ids);
    EXPECT_THAT(numbers(ids), ElementsAre(0, 1, 2, 3, 1, 4, 5, 6));
    EXPECT_EQ(mesh.setFaceVertexNormal(side, 1, 0), MS::kInvalidParameter) << "no vertex of the face";
    EXPECT_EQ(mesh.setFaceVertexNormal(side, 2, 0), MS::kInvalidParameter);
    MItMeshVertex vertices(path("squaresShape"));
    int previous = 0;
    vertices.setIndex(4, previous);
    MVectorArray normals;
    vertices.getNormals(normals);
    ASSERT_EQ(normals.length(), 2u);
    EXPECT_THAT(xyz(normals[1]), ElementsAre(1, 0, 0));
}

TEST_F(MeshNormalsTest, SeveralNormalsAreSetAtOnceOrNone)
{
    addSquares();
    MFnMesh mesh(path("squaresShape"), nullptr);
    MVectorArray two;
    two.append(MVector(1, 0, 0));
    two.append(MVector(0, 0, 1));
    MIntArray vertices, faces;
    vertices.append(0);
    vertices.append(9);
    EXPECT_EQ(mesh.setVertexNormals(two, vertices), MS::kInvalidParameter);
    EXPECT_EQ(lockedCount(mesh), 0);
    vertices[1] = 2;
    EXPECT_EQ(mesh.setVertexNormals(two, vertices), MS::kSuccess);
    EXPECT_THAT(normalAt(mesh, 0, 0), ElementsAre(1, 0, 0));
    EXPECT_THAT(normalAt(mesh, 1, 2), ElementsAre(0, 0, 1));
    faces.append(0);
    EXPECT_EQ(mesh.setFaceVertexNormals(two, faces, vertices), MS::kInvalidParameter);
    faces.append(1);
    EXPECT_EQ(mesh.setFaceVertexNormals(two, faces, vertices), MS::kSuccess);
    EXPECT_EQ(lockedCount(mesh), 2);
    two.append(MVector(0, 1, 0));
    EXPECT_EQ(mesh.setVertexNormals(two, vertices), MS::kInvalidParameter);
}

TEST_F(MeshNormalsTest, AllNormalsAreSetInTheirOrder)
{
    addSquares();
    MFnMesh mesh(path("squaresShape"), nullptr);
    MFloatVectorArray normals;
    mesh.getNormals(normals);
    ASSERT_EQ(normals.length(), 6u);
    normals[2] = MFloatVector(0, 0, -2);
    EXPECT_EQ(mesh.setNormals(normals), MS::kSuccess);
    EXPECT_EQ(lockedCount(mesh), 6);
    EXPECT_THAT(normalAt(mesh, 0, 4), ElementsAre(0, 0, -1));
    EXPECT_THAT(normalAt(mesh, 1, 4), ElementsAre(0, 0, -1));
    normals.remove(0);
    EXPECT_EQ(mesh.setNormals(normals), MS::kInvalidParameter);
}

TEST_F(MeshNormalsTest, NormalsOfTheWorldAreTurnedToTheObject)
{
    addSquares();
    set("squares.rotate", {0, 0, 1.5707963267948966});
    set("squares.scale", {2, 1, 1});
    MFnMesh mesh(path("squaresShape"), nullptr);
    MVector up(0, 1, 0), slanted(1, 1, 0);
    EXPECT_EQ(mesh.setVertexNormal(up, 1, MSpace::kWorld), MS::kSuccess);
    EXPECT_THAT(normalAt(mesh, 0, 1), ElementsAre(DoubleNear(1, 1e-6), DoubleNear(0, 1e-6), 0));
    EXPECT_EQ(mesh.setVertexNormal(slanted, 2, MSpace::kWorld), MS::kSuccess);
    const double half = 0.70710678118654752;
    EXPECT_THAT(normalAt(mesh, 1, 2, MSpace::kWorld),
                ElementsAre(DoubleNear(half, 1e-6), DoubleNear(half, 1e-6), DoubleNear(0, 1e-6)));
}

TEST_F(MeshNormalsTest, LockedNormalsStayWhenPointsMoveAndUnlockedOnesDoNot)
{
    addSquares();
    MFnMesh mesh(path("squaresShape"), nullptr);
    MIntArray one(1, 0), face(1, 1), vertex(1, 4);
    EXPECT_EQ(mesh.lockVertexNormals(one), MS::kSuccess);
    EXPECT_EQ(mesh.lockFaceVertexNormals(face, vertex), MS::kSuccess);
    EXPECT_EQ(lockedCount(mesh), 2);
    for (int i = 0; i < 6; ++i) {
        MPoint point;
        mesh.getPoint(i, point);
        mesh.setPoint(i, MPoint(point.x, -point.z, 0));
    }
    EXPECT_THAT(normalAt(mesh, 0, 0), ElementsAre(0, 1, 0));
    EXPECT_THAT(normalAt(mesh, 1, 4), ElementsAre(0, 1, 0));
    EXPECT_THAT(normalAt(mesh, 0, 4), ElementsAre(0, 0, 1));
    EXPECT_EQ(mesh.unlockVertexNormals(one), MS::kSuccess);
    EXPECT_THAT(normalAt(mesh, 0, 0), ElementsAre(0, 0, 1));
    EXPECT_EQ(mesh.unlockFaceVertexNormals(face, vertex), MS::kSuccess);
    EXPECT_THAT(normalAt(mesh, 1, 4), ElementsAre(0, 0, 1));
    EXPECT_EQ(lockedCount(mesh), 0);
    MIntArray lost(1, 77);
    EXPECT_EQ(mesh.lockVertexNormals(lost), MS::kInvalidParameter);
    EXPECT_EQ(mesh.unlockVertexNormals(lost), MS::kInvalidParameter);
    EXPECT_EQ(mesh.unlockFaceVertexNormals(face, lost), MS::kInvalidParameter);
}

TEST_F(MeshNormalsTest, AModifierTakesThemBack)
{
    addSquares();
    MFnMesh mesh(path("squaresShape"), nullptr);
    MDGModifier modifier;
    EXPECT_EQ(mesh.setVertexNormal(side, 1, MSpace::kObject, &modifier), MS::kSuccess);
    EXPECT_THAT(normalAt(mesh, 0, 1), ElementsAre(1, 0, 0));
    EXPECT_EQ(modifier.doIt(), MS::kSuccess);
    EXPECT_EQ(modifier.undoIt(), MS::kSuccess);
    EXPECT_THAT(normalAt(mesh, 0, 1), ElementsAre(0, 1, 0));
    EXPECT_EQ(modifier.doIt(), MS::kSuccess);
    EXPECT_THAT(normalAt(mesh, 0, 1), ElementsAre(1, 0, 0));
}

TEST_F(MeshNormalsTest, NormalsOfDataCanBeSetAndThoseOfHistoryCannot)
{
    addSquares();
    make("transform", "copy");
    make("mesh", "copyShape", "copy");
    ASSERT_TRUE(scene.connect(scene.findPlug("squaresShape.o").value, scene.findPlug("copyShape.i").value));
    MFnMesh history(path("copyShape"), nullptr);
    EXPECT_EQ(history.setVertexNormal(side, 1), MS::kFailure);
    MFnMesh mesh(path("squaresShape"), nullptr);
    mesh.setVertexNormal(side, 1);
    EXPECT_THAT(normalAt(history, 0, 1), ElementsAre(1, 0, 0)) << "they flow with the mesh";
}

TEST_F(MeshNormalsTest, RawNormalsAreThoseOfGetNormals)
{
    addMesh("cube", engine::makeCube({}));
    MFnMesh mesh(path("cubeShape"), nullptr);
    MStatus status;
    const float* raw = mesh.getRawNormals(&status);
    EXPECT_EQ(status, MS::kSuccess);
    ASSERT_NE(raw, nullptr);
    MFloatVectorArray normals;
    mesh.getNormals(normals);
    for (unsigned int i = 0; i < normals.length(); ++i)
        EXPECT_THAT((std::vector<float>{raw[3 * i], raw[3 * i + 1], raw[3 * i + 2]}),
                    ElementsAre(normals[i].x, normals[i].y, normals[i].z));
    EXPECT_EQ(MFnMesh().getRawNormals(&status), nullptr);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

} // namespace
} // namespace tvxhost::api::test
