// Texture coordinates of primitives: the expected numbers are those of files that Maya wrote.
#include "engine/geometry/primitiveUvs.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace tvxhost::engine {

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::FloatEq;
using testing::FloatNear;
using testing::Gt;

template <class Shape>
UvSet mapped(Ref<MeshData> (*make)(const Shape&), void (*map)(MeshData&, const Shape&), const Shape& shape)
{
    const Ref<MeshData> mesh = make(shape);
    map(*mesh, shape);
    EXPECT_EQ(mesh->uvSets.size(), 1u);
    EXPECT_EQ(mesh->uvSets.front().used.size(), mesh->faces.cornerCount());
    return mesh->uvSets.front();
}

std::vector<std::int32_t> used(const UvSet& set, std::size_t first, std::size_t count)
{
    return {set.used.begin() + static_cast<std::ptrdiff_t>(first),
            set.used.begin() + static_cast<std::ptrdiff_t>(first + count)};
}

/// The areas that quads have in the texture, negative for those that are seen from behind.
std::vector<float> quadAreas(const UvSet& set)
{
    std::vector<float> areas;
    for (std::size_t face = 0; face + 3 < set.used.size(); face += 4) {
        float doubled = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            const Vec2f& from = set.values[static_cast<std::size_t>(set.used[face + i])];
            const Vec2f& to = set.values[static_cast<std::size_t>(set.used[face + (i + 1) % 4])];
            doubled += from.cross(to);
        }
        areas.push_back(doubled / 2);
    }
    return areas;
}

TEST(PrimitiveUvsTest, APlaneFillsTheTexture)
{
    const UvSet set = mapped<PlaneShape>(makePlane, mapPlane, {1, 1, 3, 3});
    const std::vector<float> thirds{0.0F, 0.33333334F, 0.66666669F, 1.0F};
    ASSERT_EQ(set.values.size(), 16u);
    for (std::size_t i = 0; i < 16; ++i)
        EXPECT_EQ(set.values[i], Vec2f(thirds[i % 4], thirds[i / 4])) << i;
    EXPECT_THAT(used(set, 0, 12), ElementsAre(0, 1, 5, 4, 1, 2, 6, 5, 2, 3, 7, 6));
}

TEST(PrimitiveUvsTest, APlaneKeepsItsProportions)
{
    // A plane that Maya made 5.3847 wide and 5.1393 high has these.
    const UvSet set = mapped<PlaneShape>(makePlane, mapPlane, {5.3847, 5.1393, 1, 1});
    EXPECT_EQ(set.values[1], Vec2f(1, 0));
    EXPECT_THAT(set.values[2].y, FloatNear(0.95441937F, 2e-5F));
    const UvSet high = mapped<PlaneShape>(makePlane, mapPlane, {1, 4, 1, 1});
    EXPECT_EQ(high.values[3], Vec2f(0.25F, 1));
}

TEST(PrimitiveUvsTest, ACubeIsACrossOfItsFaces)
{
    const UvSet set = mapped<CubeShape>(makeCube, mapCube, {1, 1, 1, 1, 1, 1});
    EXPECT_THAT(set.values,
                ElementsAre(Vec2f(0.375F, 0), Vec2f(0.625F, 0), Vec2f(0.375F, 0.25F), Vec2f(0.625F, 0.25F),
                            Vec2f(0.375F, 0.5F), Vec2f(0.625F, 0.5F), Vec2f(0.375F, 0.75F),
                            Vec2f(0.625F, 0.75F), Vec2f(0.375F, 1), Vec2f(0.625F, 1), Vec2f(0.875F, 0),
                            Vec2f(0.875F, 0.25F), Vec2f(0.125F, 0), Vec2f(0.125F, 0.25F)));
    EXPECT_THAT(set.used,
                ElementsAre(0, 1, 3, 2, 2, 3, 5, 4, 4, 5, 7, 6, 6, 7, 9, 8, 1, 10, 11, 3, 12, 0, 2, 13));
}

TEST(PrimitiveUvsTest, TheSidesOfACubeAreNumberedFromItsBackToItsFront)
{
    const UvSet set = mapped<CubeShape>(makeCube, mapCube, {1, 1, 1, 3, 3, 3});
    // A belt of 13 rows with 4 columns, and 4 rows of 3 on each side.
    ASSERT_EQ(set.values.size(), 13u * 4 + 2 * 4 * 3);
    const auto expectRow = [&set](std::size_t first, const std::vector<float>& u, float v) {
        for (std::size_t i = 0; i < u.size(); ++i) {
            EXPECT_THAT(set.values[first + i].x, FloatEq(u[i])) << first + i;
            EXPECT_THAT(set.values[first + i].y, FloatEq(v)) << first + i;
        }
    };
    expectRow(0, {0.375F, 0.45833334F, 0.54166669F, 0.625F}, 0);
    expectRow(28, {0.375F, 0.45833334F, 0.54166669F, 0.625F}, 0.58333331F);
    expectRow(48, {0.375F, 0.45833334F, 0.54166669F, 0.625F}, 0.99999988F);
    expectRow(52, {0.875F, 0.79166669F, 0.70833337F}, 0);
    expectRow(55, {0.875F, 0.79166669F, 0.70833337F}, 0.083333336F);
    expectRow(64, {0.125F, 0.20833334F, 0.29166669F}, 0);
    expectRow(67, {0.125F, 0.20833334F, 0.29166669F}, 0.083333336F);
    EXPECT_THAT(quadAreas(set), Each(FloatNear(1.0F / 144, 1e-6F)));
}

TEST(PrimitiveUvsTest, ACubeThatIsHighAndDeepKeepsItsProportions)
{
    // The cross is 1 + 2 * 3 wide and 2 * 2 + 2 * 3 high.
    const UvSet set = mapped<CubeShape>(makeCube, mapCube, {1, 2, 3, 1, 1, 1});
    EXPECT_THAT(set.values[0].x, FloatEq(0.45F));
    EXPECT_THAT(set.values[3].y, FloatEq(0.2F));
    EXPECT_THAT(set.values[5].y, FloatEq(0.5F));
    EXPECT_THAT(set.values[10].x, FloatEq(0.85F));
    EXPECT_THAT(set.values[12].x, FloatEq(0.15F));
    EXPECT_THAT(quadAreas(set), Each(Gt(0)));
}

TEST(PrimitiveUvsTest, ACubeThatIsTooWideStaysWithout)
{
    const CubeShape shape{5, 1, 1, 1, 1, 1};
    const Ref<MeshData> mesh = makeCube(shape);
    mapCube(*mesh, shape);
    EXPECT_TRUE(mesh->uvSets.front().values.empty());
    EXPECT_TRUE(mesh->uvSets.front().used.empty());
}

TEST(PrimitiveUvsTest, ASphereGoesOnceAroundAndHasTeethAtItsPoles)
{
    const UvSet set = mapped<SphereShape>(makeSphere, mapSphere, {1, 20, 20});
    ASSERT_EQ(set.values.size(), 439u);
    EXPECT_EQ(set.values[0], Vec2f(0, 0.050000001F));
    EXPECT_EQ(set.values[20], Vec2f(1.00000012F, 0.050000001F));
    EXPECT_EQ(set.values[21 + 10], Vec2f(0.50000006F, 0.1F));
    EXPECT_EQ(set.values[398], Vec2f(1.00000012F, 0.95000017F));
    const std::vector<float> poles{0.025F,      0.075000003F, 0.125F, 0.175F,      0.22500001F,
                                   0.27500001F, 0.32500002F,  0.375F, 0.42500001F, 0.47499999F,
                                   0.52500004F, 0.57499999F,  0.625F, 0.67500001F, 0.72500002F,
                                   0.77500004F, 0.82499999F,  0.875F, 0.92500001F, 0.97500002F};
    for (std::size_t i = 0; i < poles.size(); ++i) {
        EXPECT_EQ(set.values[399 + i], Vec2f(poles[i], 0)) << i;
        EXPECT_EQ(set.values[419 + i], Vec2f(poles[i], 1)) << i;
    }
    EXPECT_THAT(used(set, 0, 8), ElementsAre(0, 1, 22, 21, 1, 2, 23, 22));
    const std::size_t quads = 18 * 20 * 4;
    EXPECT_THAT(used(set, quads, 6), ElementsAre(1, 0, 399, 2, 1, 400));
    EXPECT_THAT(used(set, quads + 60 + 17 * 3, 3), ElementsAre(395, 396, 436));
}

} // namespace

} // namespace tvxhost::engine
