// Meshes that real Maya wrote: their triangles cover their faces, what is nearest is found among them, and
// the normals that were set are read. TVX_SCENES_DIR names the folder of the scenes.
#include "../support/sceneTable.h"

#include "scene/reader.h"

#include "engine/geometry/meshMeasures.h"
#include "engine/geometry/meshNormals.h"
#include "engine/geometry/meshTriangles.h"
#include "engine/geometry/triangleTree.h"
#include "engine/mesh.h"
#include "engine/scene.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>

namespace tvxhost::scene {
namespace {

using engine::DagNode;
using engine::MeshData;
using engine::TrianglePoints;
using engine::Vec3d;

/// Calls `use(mesh, shape)` for each mesh with faces of a scene; a scene that cannot be read has none.
template <class Use>
void forEachMeshOf(const std::string& file, const Use& use)
{
    engine::Scene scene;
    scene.scriptEditor().setStreams(nullptr, nullptr);
    (void)openScene(scene, std::string(TVX_SCENES_DIR) + "/" + file);
    for (engine::Node* node : scene.nodes()) {
        DagNode* shape = node->asDag();
        const MeshData* mesh = shape && shape->type().isA("mesh") ? engine::meshOf(*shape) : nullptr;
        if (mesh && !mesh->faces.empty())
            use(*mesh, *shape);
    }
}

template <class Use>
void forEachMesh(const Use& use)
{
    for (const std::vector<std::string>& row : test::tableRows("contents.tsv"))
        forEachMeshOf(row.at(0), use);
}

TrianglePoints pointsOf(const MeshData& mesh, std::size_t face, std::size_t triangle)
{
    const engine::MeshTriangles& all = mesh.triangles();
    TrianglePoints points;
    const engine::Triangle vertices = engine::triangleVertices(mesh, face, all[all.first(face) + triangle]);
    for (std::size_t i = 0; i < 3; ++i)
        points[i] = Vec3d(mesh.points[static_cast<std::size_t>(vertices[i])]);
    return points;
}

Vec3d areaOf(const TrianglePoints& points)
{
    return (points[1] - points[0]).cross(points[2] - points[0]) / 2.0;
}

TEST(RealSurfaces, TrianglesCoverTheirFaces)
{
    std::size_t faces = 0, valid = 0;
    forEachMesh([&](const MeshData& mesh, DagNode& shape) {
        for (std::size_t face = 0; face < mesh.faces.size(); ++face) {
            const std::size_t count = mesh.triangles().count(face);
            const std::size_t corners = mesh.faces.corners(face).size(), loops = mesh.faces.loopCount(face);
            ASSERT_EQ(count, corners + 2 * (loops - 1) - 2) << shape.name() << ".f[" << face << ']';
            const Vec3d whole = engine::areaVector(mesh, face);
            const bool isValid = engine::hasValidTriangles(mesh, face);
            Vec3d sum(0.0);
            for (std::size_t i = 0; i < count; ++i) {
                const Vec3d area = areaOf(pointsOf(mesh, face, i));
                sum += area;
                if (isValid && engine::isPlanar(mesh, face)) {
                    EXPECT_GT(area.dot(whole), 0) << shape.name() << ".f[" << face << "] triangle " << i;
                }
            }
            EXPECT_NEAR((sum - whole).length(), 0, 1e-6 * (1 + whole.length()))
                << shape.name() << ' ' << face;
            ++faces;
            valid += isValid ? 1 : 0;
        }
    });
    EXPECT_GT(faces, 10000u);
    EXPECT_GT(static_cast<double>(valid), 0.99 * static_cast<double>(faces));
}

TEST(RealSurfaces, NearestPointsAreTheNearestOfAllTriangles)
{
    std::mt19937 random(21);
    std::size_t meshes = 0;
    forEachMesh([&](const MeshData& mesh, DagNode& shape) {
        const Vec3d first(mesh.points.front());
        std::uniform_real_distribution<double> offset(-5, 5);
        const double x = offset(random), y = offset(random);
        const Vec3d point = first + Vec3d(x, y, offset(random));
        double least = std::numeric_limits<double>::infinity();
        for (std::size_t face = 0; face < mesh.faces.size(); ++face)
            for (std::size_t i = 0; i < mesh.triangles().count(face); ++i) {
                const TrianglePoints triangle = pointsOf(mesh, face, i);
                const Vec3d found = engine::weighed(triangle, engine::nearestWeights(triangle, point));
                least = std::min(least, (found - point).length());
            }
        const auto nearest = mesh.tree().nearestTo(point);
        ASSERT_TRUE(nearest) << shape.name();
        EXPECT_DOUBLE_EQ((nearest->point - point).length(), least) << shape.name();
        ++meshes;
    });
    EXPECT_GT(meshes, 100u);
}

TEST(RealSurfaces, NormalsThatWereSetAreRead)
{
    std::size_t locked = 0;
    forEachMeshOf("haggi+OpenMaya/src/mayaToCorona/mayaToCoronaExamples/scenes/normalMap.ma",
                  [&](const MeshData& mesh, DagNode& shape) {
                      const auto list = shape.findPlug("normals");
                      ASSERT_TRUE(list);
                      const engine::NormalTable& table = mesh.normals();
                      for (const int i : engine::existingElements(list.value)) {
                          const auto number = static_cast<std::size_t>(i);
                          const auto kept = engine::readNumbers(list.value.element(i)).value;
                          EXPECT_TRUE(table.locked.at(number));
                          EXPECT_EQ(Vec3d(table.normals.at(number)), Vec3d(kept[0], kept[1], kept[2]));
                          ++locked;
                      }
                      // What was set is not far from what the faces say.
                      const engine::NormalTable computed = engine::computedNormals(mesh);
                      for (std::size_t i = 0; i < mesh.lockedNormals.size() && i < computed.normals.size();
                           ++i)
                          EXPECT_GT(table.normals[i].dot(computed.normals[i]), 0.99F);
                  });
    EXPECT_EQ(locked, 121u);
}

} // namespace
} // namespace tvxhost::scene
