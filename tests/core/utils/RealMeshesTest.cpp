// Borders and footprints of the meshes in scenes that real Maya wrote. They are not part of this repository:
// TVX_SCENES_DIR names a folder of scenes beside a table meshes.tsv (columns: file, mesh, parent, kind,
// vertices, edges, faces, border edges, components of the border, …).
#include "../../host/api/sceneFixture.h"
#include "../../host/support/sceneTable.h"
#include "../../tvxCore/ExactHull.h"
#include "core/utils/tvxMayaUtils.h"

#include "scene/reader.h"

#include <maya/MItMeshEdge.h>
#include <maya/MItMeshVertex.h>

#include <map>

namespace tarvox::crowd::test {
namespace {

using Points = std::vector<core::Vector2<float>>;

struct MeshRow
{
    std::string file, mesh, parent, kind;
    int borderEdges = 0;
    int borderComponents = 0;
};

std::map<std::string, std::vector<MeshRow>> readTable()
{
    std::map<std::string, std::vector<MeshRow>> rows;
    for (const std::vector<std::string>& fields : tvxhost::test::tableRows("meshes.tsv"))
        rows[fields.at(0)].push_back({fields.at(0), fields.at(1), fields.at(2), fields.at(3),
                                      std::stoi(fields.at(7)), std::stoi(fields.at(8))});
    return rows;
}

/// Whether no vertex ends more than two border edges.
bool bordersMeetNowhere(const MDagPath& mesh)
{
    std::map<int, int> edgesAt;
    for (MItMeshEdge edge(mesh); !edge.isDone(); edge.next())
        if (edge.onBoundary())
            for (const int end : {0, 1})
                if (++edgesAt[edge.index(end)] > 2)
                    return false;
    return true;
}

Points groundPoints(const MDagPath& mesh)
{
    Points points;
    for (MItMeshVertex vertex(mesh); !vertex.isDone(); vertex.next()) {
        const MPoint position = vertex.position(MSpace::kWorld);
        points.push_back({static_cast<float>(-position.x), static_cast<float>(position.z)});
    }
    return points;
}

class RealMeshes : public testing::Test
{
protected:
    RealMeshes() : m_scenes(readTable()) {}

    /// Does something with each mesh of the table.
    template <class Check>
    void forEach(Check check)
    {
        ASSERT_FALSE(m_scenes.empty()) << "no meshes.tsv in " << m_folder;
        for (const auto& [file, rows] : m_scenes) {
            tvxhost::engine::Scene scene;
            tvxhost::engine::Scene::makeCurrent(&scene);
            ASSERT_TRUE(tvxhost::scene::openScene(scene, m_folder + "/" + file).outcome) << file;
            for (const MeshRow& row : rows) {
                SCOPED_TRACE(file + " " + row.parent + "|" + row.mesh);
                const auto item = scene.findItem(row.parent + "|" + row.mesh);
                ASSERT_TRUE(item) << item.outcome.text;
                check(row, tvxAccess::dagPath(item.value.path));
            }
            tvxhost::engine::Scene::makeCurrent(nullptr);
        }
    }

private:
    const std::string m_folder = TVX_SCENES_DIR;
    const std::map<std::string, std::vector<MeshRow>> m_scenes;
};

TEST_F(RealMeshes, HaveABorderWhenTheyAreOpen)
{
    int closed = 0;
    int simple = 0;
    forEach([&](const MeshRow& row, const MDagPath& mesh) {
        Points outline;
        const MStatus status = MayaUtils::getMeshBoundary(mesh, outline);
        if (row.kind == "closed") {
            ++closed;
            EXPECT_EQ(status, MStatus::kFailure);
            EXPECT_TRUE(outline.empty());
        } else if (row.kind == "open") {
            EXPECT_EQ(status, MStatus::kSuccess);
            EXPECT_LE(outline.size(), static_cast<std::size_t>(row.borderEdges));
            if (row.borderComponents == 1 && bordersMeetNowhere(mesh)) {
                ++simple;
                EXPECT_EQ(outline.size(), static_cast<std::size_t>(row.borderEdges));
            }
        }
    });
    EXPECT_GT(closed, 0);
    EXPECT_GT(simple, 0);
}

TEST_F(RealMeshes, HaveTheExactHullAsFootprint)
{
    std::size_t corners = 0;
    forEach([&](const MeshRow&, const MDagPath& mesh) {
        Points hull;
        EXPECT_EQ(MayaUtils::getMeshConvexHull(mesh, hull), MStatus::kSuccess);
        EXPECT_EQ(hull, core::exactHull(groundPoints(mesh)));
        corners += hull.size();
    });
    EXPECT_GT(corners, 0u);
}

} // namespace
} // namespace tarvox::crowd::test
