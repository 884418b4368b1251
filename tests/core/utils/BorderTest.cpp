// The outline of a mesh's open border: the walk as it is written, and borders of any length.
#include "../../host/api/meshFixture.h"
#include "core/utils/tvxMayaUtils.h"

#include "engine/geometry/meshBuilder.h"

#include <maya/MItMeshEdge.h>

#include <pthread.h>

#include <map>
#include <random>

namespace tarvox::crowd::test {
namespace {

namespace engine = tvxhost::engine;
namespace faults = tvxhost::api::faults;

using core::Vector2;
using testing::ElementsAre;
using testing::IsEmpty;

using Points = std::vector<Vector2<float>>;

/// One level of the walk, which calls itself for the next edge.
void walkLiterally(MStatus& status, MItMeshEdge& edge, Points& outline, std::map<int, bool>& visited,
                   int start)
{
    status = MStatus::kSuccess;
    if (!edge.onBoundary())
        return;
    const int current = edge.index();
    MPoint p = edge.point(0, MSpace::kTransform);
    Vector2<float> ground{static_cast<float>(-p.x), static_cast<float>(p.z)};
    if (!outline.empty() && ground.x == outline.back().x && ground.y == outline.back().y) {
        p = edge.point(1, MSpace::kTransform);
        ground = {static_cast<float>(-p.x), static_cast<float>(p.z)};
    }
    outline.push_back(ground);
    MIntArray connected;
    edge.getConnectedEdges(connected);
    bool stop = false;
    for (unsigned int i = 0; !stop && i < connected.length(); ++i) {
        if (visited.count(connected[i]) > 0)
            continue;
        int previous = 0;
        edge.setIndex(connected[i], previous);
        if (edge.index() == start) {
            stop = true;
        } else if (edge.onBoundary()) {
            visited[current] = true;
            walkLiterally(status, edge, outline, visited, start);
            stop = true;
        }
    }
}

MStatus boundaryLiterally(const MDagPath& mesh, Points& outline)
{
    outline.clear();
    MStatus status = MStatus::kSuccess;
    MItMeshEdge edge(mesh);
    while (!edge.isDone() && !edge.onBoundary())
        edge.next();
    if (edge.isDone())
        return MStatus::kFailure;
    const int start = edge.index();
    std::map<int, bool> visited = {{start, true}};
    walkLiterally(status, edge, outline, visited, start);
    return status;
}

class Border : public tvxhost::api::test::MeshFixture
{
protected:
    Points outline(const std::string& name, const MStatus& expected = MStatus::kSuccess)
    {
        Points points = {{7, 7}};
        EXPECT_EQ(MayaUtils::getMeshBoundary(path(name), points), expected);
        return points;
    }
    /// Quads of a grid of so many columns and rows, those that `isThere` names.
    template <class IsThere>
    engine::Ref<engine::MeshData> quads(int columns, int rows, IsThere isThere)
    {
        std::vector<engine::Vec3f> points;
        for (int row = 0; row <= rows; ++row)
            for (int column = 0; column <= columns; ++column)
                points.push_back({static_cast<float>(column), 0, static_cast<float>(row)});
        std::vector<int> counts, vertices;
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < columns; ++column)
                if (isThere(column, row)) {
                    const int first = row * (columns + 1) + column;
                    counts.push_back(4);
                    for (const int corner : {first, first + 1, first + columns + 2, first + columns + 1})
                        vertices.push_back(corner);
                }
        const auto built = engine::buildMesh(points, counts, vertices, true);
        EXPECT_TRUE(built) << built.outcome.text;
        return built.value;
    }
};

TEST_F(Border, OfAQuadHasOnePointForEachEdge)
{
    addQuad(); // vertices (-1, 1) (1, 1) (-1, -1) (1, -1) in x and z
    EXPECT_THAT(outline("quadShape"), ElementsAre(Vector2<float>{1, 1}, Vector2<float>{1, -1},
                                                  Vector2<float>{-1, -1}, Vector2<float>{-1, 1}));
}

TEST_F(Border, IsInTheMeshsOwnSpace)
{
    addQuad();
    const Points before = outline("quadShape");
    set("quad.translate", {10, 20, 30});
    set("quad.scale", {2, 2, 2});
    EXPECT_EQ(outline("quadShape"), before);
}

TEST_F(Border, OfAClosedMeshIsNone)
{
    addMesh("box", engine::makeCube({1, 1, 1, 1, 1, 1}));
    EXPECT_THAT(outline("boxShape", MStatus::kFailure), IsEmpty());
}

TEST_F(Border, OfWhatIsNoMeshIsNone)
{
    make("transform", "empty");
    EXPECT_THAT(outline("empty", MStatus::kFailure), IsEmpty());
}

TEST_F(Border, OfALargerGridGoesAroundIt)
{
    addGrid(); // three by two quads
    const Points points = outline("gridShape");
    EXPECT_EQ(points.size(), 10u);
    EXPECT_THAT(points, testing::Not(testing::Contains(Vector2<float>{-0.5f, 0})));
}

TEST_F(Border, IsOneOfSeveralOnly)
{
    addMesh("frame", quads(5, 5, [](int column, int row) { return column != 2 || row != 2; }));
    EXPECT_EQ(outline("frameShape").size(), 20u);
}

TEST_F(Border, OfRandomMeshesIsThatOfTheWrittenWalk)
{
    std::mt19937 random(7);
    std::size_t pointsSeen = 0;
    for (int mesh = 0; mesh < 300; ++mesh) {
        const int columns = 1 + static_cast<int>(random() % 7);
        const int rows = 1 + static_cast<int>(random() % 7);
        const auto density = 20 + random() % 80;
        const std::string name = "mesh" + std::to_string(mesh);
        addMesh(name, quads(columns, rows, [&](int, int) { return random() % 100 < density; }));
        const MDagPath shape = path(name + "Shape");
        Points expected;
        const MStatus status = boundaryLiterally(shape, expected);
        Points actual;
        EXPECT_EQ(MayaUtils::getMeshBoundary(shape, actual), status) << name;
        ASSERT_EQ(actual, expected) << name;
        pointsSeen += actual.size();
    }
    EXPECT_GT(pointsSeen, 2000u);
}

TEST_F(Border, EndsWithTheStatusOfACallThatFails)
{
    addQuad();
    const MDagPath quad = path("quadShape");
    const MStatus failing(MStatus::kNotFound);
    const struct
    {
        const char* call;
        std::size_t n;
        std::size_t points;
    } rows[] = {
        {"MItMeshEdge::point", 1, 0},
        {"MItMeshEdge::point", 2, 1},
        {"MItMeshEdge::getConnectedEdges", 1, 1},
        {"MItMeshEdge::getConnectedEdges", 3, 3},
        {"MItMeshEdge::setIndex", 1, 1},
        {"MItMeshEdge::setIndex", 2, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.call) + " " + std::to_string(row.n));
        Points points;
        faults::failCall(row.call, row.n, failing);
        EXPECT_EQ(MayaUtils::getMeshBoundary(quad, points), failing);
        faults::clear();
        EXPECT_EQ(points.size(), row.points);
    }
    Points points = {{7, 7}};
    faults::failCall("MItMeshEdge::MItMeshEdge", 1, failing);
    EXPECT_EQ(MayaUtils::getMeshBoundary(quad, points), MStatus::kFailure);
    EXPECT_THAT(points, IsEmpty());
}

/// Runs something on a thread whose stack is so small.
void runOnSmallStack(std::size_t stackSize, void* (*function)(void*), void* argument)
{
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, stackSize), 0);
    pthread_t thread{};
    ASSERT_EQ(pthread_create(&thread, &attributes, function, argument), 0);
    ASSERT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
}

TEST_F(Border, OfTenMillionEdgesNeedsNoStack)
{
    constexpr int count = 10'000'000;
    {
        // One polygon: each of its edges is on the border.
        std::vector<engine::Vec3f> points;
        std::vector<int> vertices;
        points.reserve(count);
        vertices.reserve(count);
        for (int i = 0; i < count; ++i) {
            points.push_back({static_cast<float>(i % 4096), 0, static_cast<float>(i / 4096)});
            vertices.push_back(i);
        }
        auto built = engine::buildMesh(std::move(points), {count}, vertices, false);
        ASSERT_TRUE(built) << built.outcome.text;
        addMesh("vast", built.value);
    }
    struct Walk
    {
        MDagPath mesh;
        Points outline;
        MStatus status{MStatus::kFailure};
    } walk{path("vastShape"), {}, {}};
    runOnSmallStack(
        256 * 1024,
        [](void* argument) -> void* {
            Walk& each = *static_cast<Walk*>(argument);
            each.status = MayaUtils::getMeshBoundary(each.mesh, each.outline);
            return nullptr;
        },
        &walk);
    EXPECT_EQ(walk.status, MStatus::kSuccess);
    ASSERT_EQ(walk.outline.size(), static_cast<std::size_t>(count));
    // Against the direction of the polygon, since the first vertex of an edge comes first.
    EXPECT_EQ(walk.outline[0], (Vector2<float>{0, 0}));
    EXPECT_EQ(walk.outline[1], (Vector2<float>{-((count - 1) % 4096), (count - 1) / 4096}));
    EXPECT_EQ(walk.outline[count - 1], (Vector2<float>{-1, 0}));
}

} // namespace
} // namespace tarvox::crowd::test
