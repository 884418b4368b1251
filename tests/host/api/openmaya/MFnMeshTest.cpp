// MFnMesh: meshes as a whole, and making them.
#include "../arrays.h"
#include "../meshFixture.h"

#include <maya/MFloatPointArray.h>
#include <maya/MFloatVectorArray.h>
#include <maya/MFnMesh.h>
#include <maya/MFnMeshData.h>
#include <maya/MItMeshEdge.h>
#include <maya/MPointArray.h>

#include <ctime>

namespace tvxhost::api::test {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;

class MFnMeshTest : public MeshFixture
{
protected:
    /// Two triangles that share an edge.
    static MPointArray fourPoints()
    {
        MPointArray points;
        for (const auto& [x, z] : {std::pair(0.0, 0.0), {1.0, 0.0}, {1.0, 1.0}, {0.0, 1.0}})
            points.append(MPoint(x, 0, z));
        return points;
    }
    MObject makeTriangles(MFnMesh& set, const MObject& parent = MObject::kNullObj, MStatus* status = nullptr)
    {
        return set.create(4, 2, fourPoints(), ints({3, 3}), ints({0, 2, 1, 0, 3, 2}), parent, status);
    }
};

TEST_F(MFnMeshTest, CountsAreThoseOfTheMesh)
{
    addGrid();
    MFnMesh mesh(path("gridShape"), nullptr);
    EXPECT_EQ(mesh.numVertices(), 12);
    EXPECT_EQ(mesh.numEdges(), 17);
    EXPECT_EQ(mesh.numPolygons(), 6);
    EXPECT_EQ(mesh.numFaceVertices(), 24);
    EXPECT_EQ(mesh.polygonVertexCount(5), 4);
    MStatus status;
    EXPECT_EQ(mesh.polygonVertexCount(6, &status), 0);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnMeshTest, ItAttachesToShapesDataAndTransformsAbove)
{
    addQuad();
    make("transform", "t");
    MStatus status;
    MFnMesh onTransform(path("quad"), &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(onTransform.numVertices(), 4);
    MObject shape = object("quadShape");
    MFnMesh onShape(shape, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(text(onShape.name()), "quadShape");
    MObject data;
    ASSERT_EQ(plug("quadShape.o").getValue(data), MS::kSuccess);
    EXPECT_TRUE(data.hasFn(MFn::kMeshData));
    EXPECT_TRUE(data.hasFn(MFn::kMesh));
    MFnMesh onData(data, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(onData.numPolygons(), 1);
    MObject transform = object("t");
    MFnMesh nothing(transform, &status);
    EXPECT_EQ(text(status), "(kInvalidParameter): Object is incompatible with this method");
    EXPECT_EQ(nothing.numVertices(&status), 0);
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_EQ(MFnMesh().numEdges(&status), 0);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnMeshTest, PointsAreReadInTheSpaceOfThePath)
{
    addQuad();
    set("quad.translate", {0, 3, 0});
    MFnMesh mesh(path("quadShape"), nullptr);
    MPointArray points;
    EXPECT_EQ(mesh.getPoints(points), MS::kSuccess);
    ASSERT_EQ(points.length(), 4u);
    EXPECT_THAT(xyz(points[0]), ElementsAre(-1, 0, 1));
    MFloatPointArray floats;
    EXPECT_EQ(mesh.getPoints(floats, MSpace::kWorld), MS::kSuccess);
    EXPECT_EQ(floats[3].y, 3.0F);
    MPoint point;
    EXPECT_EQ(mesh.getPoint(2, point, MSpace::kWorld), MS::kSuccess);
    EXPECT_THAT(xyz(point), ElementsAre(-1, 3, -1));
    EXPECT_EQ(mesh.getPoint(4, point), MS::kInvalidParameter);
    MStatus status;
    const float* raw = mesh.getRawPoints(&status);
    ASSERT_NE(raw, nullptr);
    EXPECT_EQ(raw[3], 1.0F);
    MObject shape = object("quadShape");
    MFnMesh nowhere(shape, nullptr);
    EXPECT_EQ(nowhere.getPoints(points, MSpace::kWorld), MS::kFailure);
}

TEST_F(MFnMeshTest, PointsCanBeSetAllOrOne)
{
    addQuad();
    set("quad.translate", {0, 3, 0});
    MFnMesh mesh(path("quadShape"), nullptr);
    MPointArray points;
    mesh.getPoints(points, MSpace::kWorld);
    for (unsigned int i = 0; i < points.length(); ++i)
        points[i].y += 1;
    EXPECT_EQ(mesh.setPoints(points, MSpace::kWorld), MS::kSuccess);
    MPoint point;
    mesh.getPoint(0, point);
    EXPECT_THAT(xyz(point), ElementsAre(-1, 1, 1));
    EXPECT_EQ(mesh.setPoint(0, MPoint(9, 9, 9)), MS::kSuccess);
    mesh.getPoint(0, point);
    EXPECT_THAT(xyz(point), ElementsAre(9, 9, 9));
    EXPECT_EQ(mesh.setPoint(4, MPoint()), MS::kInvalidParameter);
    MPointArray tooFew(3, MPoint());
    EXPECT_EQ(mesh.setPoints(tooFew), MS::kInvalidParameter);
}

TEST_F(MFnMeshTest, PointsOfHistoryAreMovedByTweaks)
{
    make("transform", "cube");
    make("mesh", "cubeShape", "cube");
    make("polyCube", "polyCube1");
    ASSERT_TRUE(scene.connect(scene.findPlug("polyCube1.out").value, scene.findPlug("cubeShape.i").value));
    MFnMesh mesh(path("cubeShape"), nullptr);
    EXPECT_EQ(mesh.setPoint(0, MPoint(-0.5, -0.5, 2.5)), MS::kSuccess);
    EXPECT_EQ(plug("cubeShape.pnts[0].pntz").asFloat(), 2.0F);
    MPoint point;
    mesh.getPoint(0, point);
    EXPECT_THAT(xyz(point), ElementsAre(-0.5, -0.5, 2.5));
}

TEST_F(MFnMeshTest, FacesAndEdgesAreToldByTheirVertices)
{
    addGrid();
    MFnMesh mesh(path("gridShape"), nullptr);
    MIntArray found, counts;
    EXPECT_EQ(mesh.getPolygonVertices(5, found), MS::kSuccess);
    EXPECT_THAT(numbers(found), ElementsAre(6, 7, 11, 10));
    EXPECT_EQ(mesh.getPolygonVertices(6, found), MS::kInvalidParameter);
    EXPECT_EQ(mesh.getVertices(counts, found), MS::kSuccess);
    EXPECT_THAT(numbers(counts), ElementsAre(4, 4, 4, 4, 4, 4));
    ASSERT_EQ(found.length(), 24u);
    EXPECT_EQ(found[23], 10);
    int2 ends = {-1, -1};
    EXPECT_EQ(mesh.getEdgeVertices(3, ends), MS::kSuccess);
    EXPECT_EQ(ends[0], 1);
    EXPECT_EQ(ends[1], 5);
    EXPECT_EQ(mesh.getEdgeVertices(17, ends), MS::kInvalidParameter);
    EXPECT_TRUE(mesh.isEdgeSmooth(3));
    EXPECT_EQ(mesh.setEdgeSmoothing(3, false), MS::kSuccess);
    EXPECT_FALSE(mesh.isEdgeSmooth(3));
    EXPECT_TRUE(mesh.onBoundary(0));
    EXPECT_TRUE(mesh.isPolygonConvex(0));
}

TEST_F(MFnMeshTest, HolesAreToldWithTheirFaces)
{
    const engine::Ref<engine::MeshData> holed(new engine::MeshData);
    holed->points.resize(7);
    holed->edges = {{0, 1, 0}, {1, 2, 0}, {2, 0, 0}, {3, 4, 0}, {4, 5, 0}, {5, 3, 0}};
    holed->faces.add({{0, 1, 2}, {}});
    holed->faces.add({{0, 1, 2}, {{-6, -5, -4}}});
    addMesh("holed", holed);
    MFnMesh mesh(path("holedShape"), nullptr);
    MIntArray info, vertices;
    EXPECT_EQ(mesh.getHoles(info, vertices), 1);
    EXPECT_THAT(numbers(info), ElementsAre(1, 3, 0));
    EXPECT_THAT(numbers(vertices), ElementsAre(3, 5, 4));
}

TEST_F(MFnMeshTest, SmoothEdgesShareNormalsAndHardOnesDoNot)
{
    addMesh("cube", engine::makeCube({}));
    addMesh("ball", engine::makeSphere({}));
    MFnMesh cube(path("cubeShape"), nullptr);
    EXPECT_EQ(cube.numNormals(), 24);
    MFnMesh ball(path("ballShape"), nullptr);
    EXPECT_EQ(ball.numNormals(), 382);
    MFloatVectorArray normals;
    EXPECT_EQ(cube.getNormals(normals), MS::kSuccess);
    ASSERT_EQ(normals.length(), 24u);
    EXPECT_EQ(normals[0].z, 1.0F);
    MIntArray counts, ids;
    EXPECT_EQ(cube.getNormalIds(counts, ids), MS::kSuccess);
    EXPECT_EQ(counts.length(), 6u);
    EXPECT_EQ(ids[23], 23);
    EXPECT_EQ(cube.getFaceNormalIds(1, ids), MS::kSuccess);
    EXPECT_THAT(numbers(ids), ElementsAre(4, 5, 6, 7));
    MVector normal;
    EXPECT_EQ(cube.getFaceVertexNormal(4, 3, normal), MS::kSuccess);
    EXPECT_THAT(xyz(normal), ElementsAre(1, 0, 0));
    EXPECT_EQ(cube.getFaceVertexNormal(4, 0, normal), MS::kInvalidParameter);
    EXPECT_EQ(cube.getFaceVertexNormals(1, normals), MS::kSuccess);
    EXPECT_EQ(normals.length(), 4u);
    EXPECT_FALSE(cube.isNormalLocked(0));
}

TEST_F(MFnMeshTest, MovedPointsChangeTheNormals)
{
    addQuad();
    MFnMesh mesh(path("quadShape"), nullptr);
    MFloatVectorArray normals;
    mesh.getNormals(normals);
    EXPECT_EQ(normals[0].y, 1.0F);
    MPointArray upright;
    for (const auto& [x, y] : {std::pair(-1.0, 1.0), {1.0, 1.0}, {-1.0, -1.0}, {1.0, -1.0}})
        upright.append(MPoint(x, y, 0));
    EXPECT_EQ(mesh.setPoints(upright), MS::kSuccess);
    mesh.getNormals(normals);
    EXPECT_EQ(normals[0].z, -1.0F);
    EXPECT_EQ(normals[0].y, 0.0F);
}

TEST_F(MFnMeshTest, VertexNormalsAreMeansOfTheFaces)
{
    addMesh("cube", engine::makeCube({}));
    MFnMesh mesh(path("cubeShape"), nullptr);
    const double diagonal = 0.57735026918962573;
    MVector normal;
    EXPECT_EQ(mesh.getVertexNormal(3, normal), MS::kSuccess);
    EXPECT_THAT(xyz(normal), ElementsAre(DoubleNear(diagonal, 1e-6), DoubleNear(diagonal, 1e-6),
                                         DoubleNear(diagonal, 1e-6)));
    MFloatVectorArray normals;
    for (const bool angleWeighted : {false, true}) {
        EXPECT_EQ(mesh.getVertexNormals(angleWeighted, normals), MS::kSuccess);
        ASSERT_EQ(normals.length(), 8u);
        EXPECT_NEAR(normals[3].x, diagonal, 1e-6);
    }
    EXPECT_EQ(mesh.getVertexNormal(8, true, normal), MS::kInvalidParameter);
    EXPECT_EQ(mesh.getPolygonNormal(4, normal), MS::kSuccess);
    EXPECT_THAT(xyz(normal), ElementsAre(1, 0, 0));
}

TEST_F(MFnMeshTest, AnglesWeighNormals)
{
    // At vertex 0 a face that looks up with a right angle, and one that looks to +x with half of it.
    MPointArray points;
    for (const MPoint& point : {MPoint(0, 0, 0), MPoint(0, 0, 1), MPoint(-1, 0, 0), MPoint(0, 1, 1)})
        points.append(point);
    MFnMesh mesh;
    mesh.create(4, 2, points, ints({3, 3}), ints({0, 2, 1, 0, 3, 1}));
    MVector alike, weighted;
    EXPECT_EQ(mesh.getVertexNormal(0, false, alike), MS::kSuccess);
    EXPECT_EQ(mesh.getVertexNormal(0, true, weighted), MS::kSuccess);
    EXPECT_NEAR(std::abs(alike.x), std::abs(alike.y), 1e-6);
    EXPECT_NEAR(std::abs(weighted.y), 2 * std::abs(weighted.x), 1e-6);
}

TEST_F(MFnMeshTest, AMeshIsMadeBelowATransformOfItsOwn)
{
    MFnMesh set;
    MStatus status;
    const MObject made = makeTriangles(set, MObject::kNullObj, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_TRUE(made.hasFn(MFn::kTransform));
    EXPECT_EQ(static_cast<engine::Node*>(tvxAccess::object(made))->name(), "polySurface1");
    EXPECT_EQ(text(set.name()), "polySurfaceShape1");
    EXPECT_EQ(set.numVertices(), 4);
    EXPECT_EQ(set.numEdges(), 5);
    EXPECT_EQ(set.numPolygons(), 2);
    int2 ends = {-1, -1};
    set.getEdgeVertices(0, ends);
    EXPECT_EQ(ends[0], 0) << "edges run as faces first use them";
    EXPECT_EQ(ends[1], 2);
    MIntArray vertices;
    set.getPolygonVertices(1, vertices);
    EXPECT_THAT(numbers(vertices), ElementsAre(0, 3, 2));
    EXPECT_TRUE(set.isEdgeSmooth(0));
}

TEST_F(MFnMeshTest, AMeshIsMadeBelowATransformThatIsThere)
{
    make("transform", "parent");
    MFnMesh set;
    MStatus status;
    const MObject made = makeTriangles(set, object("parent"), &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_TRUE(made.hasFn(MFn::kMesh));
    EXPECT_EQ(node("parent").asDag()->children().size(), 1u);
    make("lambert", "shader");
    makeTriangles(set, object("shader"), &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnMeshTest, MeshDataIsFilled)
{
    MFnMeshData data;
    MStatus status;
    const MObject object = data.create(&status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(object.apiType(), MFn::kMeshData);
    MFnMesh set;
    EXPECT_EQ(makeTriangles(set, object, &status), object);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(set.numPolygons(), 2);
    MObject handle = object;
    MItMeshEdge edges(handle, &status);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(edges.count(), 5);
    EXPECT_EQ(set.setPoint(0, MPoint(0, 7, 0)), MS::kSuccess);
    EXPECT_EQ(edges.setSmoothing(false), MS::kSuccess);
    EXPECT_THAT(xyz(edges.point(0)), ElementsAre(0, 7, 0));
    EXPECT_FALSE(set.isEdgeSmooth(0));
}

TEST_F(MFnMeshTest, NumbersThatDoNotFitAreRefused)
{
    MFnMesh set;
    MStatus status;
    const auto refuse = [&](int vertices, int polygons, const std::vector<int>& counts,
                            const std::vector<int>& connects) {
        set.create(vertices, polygons, fourPoints(), ints(counts), ints(connects), MObject::kNullObj,
                   &status);
        return status == MS::kInvalidParameter;
    };
    EXPECT_TRUE(refuse(5, 1, {3}, {0, 1, 2})) << "fewer points";
    EXPECT_TRUE(refuse(-1, 1, {3}, {0, 1, 2}));
    EXPECT_TRUE(refuse(4, 2, {3}, {0, 1, 2})) << "fewer polygons";
    EXPECT_TRUE(refuse(4, 1, {4}, {0, 1, 2})) << "fewer corners";
    EXPECT_TRUE(refuse(4, 1, {2}, {0, 1})) << "no polygon";
    EXPECT_TRUE(refuse(4, 1, {3}, {0, 1, 4})) << "a vertex that is not there";
    EXPECT_TRUE(refuse(4, 1, {3}, {0, 1, 1})) << "a vertex twice in a row";
    EXPECT_TRUE(refuse(4, 1, {4}, {0, 1, 2, 0})) << "around the end, too";
    set.setCheckSamePointTwice(false);
    EXPECT_FALSE(refuse(4, 1, {3}, {0, 1, 1}));
    set.setCheckSamePointTwice(true);
    EXPECT_TRUE(set.getCheckSamePointTwice());
}

TEST_F(MFnMeshTest, AMeshCanBeReplacedAndCopied)
{
    addQuad();
    addGrid();
    MFnMesh mesh(path("quadShape"), nullptr);
    EXPECT_EQ(mesh.copyInPlace(object("gridShape")), MS::kSuccess);
    EXPECT_EQ(mesh.numPolygons(), 6);
    MFloatPointArray points;
    for (const float x : {0.0F, 1.0F, 2.0F})
        points.append(MFloatPoint(x, 0, x * x));
    EXPECT_EQ(mesh.createInPlace(3, 1, points, ints({3}), ints({0, 1, 2})), MS::kSuccess);
    EXPECT_EQ(mesh.numEdges(), 3);
    MFnMesh copy;
    MStatus status;
    EXPECT_FALSE(copy.copy(object("gridShape"), MObject::kNullObj, &status).isNull());
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(copy.setPoint(0, MPoint(9, 9, 9)), MS::kSuccess);
    MPoint point;
    MFnMesh(path("gridShape"), nullptr).getPoint(0, point);
    EXPECT_THAT(xyz(point), ElementsAre(-1.5, 0, 1));
    copy.copy(object("quad"), MObject::kNullObj, &status);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnMeshTest, KindsOfComponentHaveNames)
{
    MStatus status;
    EXPECT_EQ(text(MFnMesh::componentTypeName(MFn::kMeshEdgeComponent, status)), "edge");
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(MFnMesh::componentTypeFromName("face"), MFn::kMeshPolygonComponent);
    EXPECT_EQ(MFnMesh::componentTypeFromName("cv"), MFn::kInvalid);
    MFnMesh::componentTypeName(MFn::kMesh, status);
    EXPECT_EQ(status, MS::kInvalidParameter);
}

TEST_F(MFnMeshTest, TenMillionBorderEdgesAreMadeAndWalkedInSeconds)
{
    constexpr int kCount = 10'000'000;
    // Of the processor: what else the machine does is not the point.
    const std::clock_t start = std::clock();
    MFnMesh set;
    {
        MFloatPointArray points(kCount);
        MIntArray connects(kCount);
        for (unsigned int i = 0; i < kCount; ++i) {
            points[i] = MFloatPoint(static_cast<float>(i % 4096), 0.0F, static_cast<float>(i / 4096));
            connects[i] = static_cast<int>(i);
        }
        MStatus status;
        set.create(kCount, 1, points, MIntArray(1, kCount), connects, MObject::kNullObj, &status);
        ASSERT_EQ(status, MS::kSuccess);
    }
    EXPECT_EQ(set.numEdges(), kCount);
    // Along the border, each time to the neighbour that was not left last.
    MItMeshEdge edges(path("polySurfaceShape1"));
    int walked = 0, last = -1, previous = 0;
    MIntArray neighbours;
    do {
        ASSERT_TRUE(edges.onBoundary());
        ASSERT_EQ(edges.getConnectedEdges(neighbours), 2);
        const int here = edges.index();
        const int next = neighbours[0] == last ? neighbours[1] : neighbours[0];
        last = here;
        ASSERT_EQ(edges.setIndex(next, previous), MS::kSuccess);
        ++walked;
    } while (edges.index() != 0);
    EXPECT_EQ(walked, kCount);
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    EXPECT_LT(seconds, 60) << "a few are enough, without a sanitizer";
}

} // namespace
} // namespace tvxhost::api::test
