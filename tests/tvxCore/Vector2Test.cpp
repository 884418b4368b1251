// The two-component vector.
#include <tvxCore/Vector2.h>

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

namespace tarvox::core {
namespace {

TEST(Vector2, IsZeroUnlessTold)
{
    const Vector2<float> v;
    EXPECT_EQ(v.x, 0.0f);
    EXPECT_EQ(v.y, 0.0f);
}

TEST(Vector2, HoldsItsComponentsAndNothingElse)
{
    const Vector2<float> v{1.5f, -2.5f};
    EXPECT_EQ(v.x, 1.5f);
    EXPECT_EQ(v.y, -2.5f);
    static_assert(sizeof(Vector2<float>) == 2 * sizeof(float));
    static_assert(std::is_trivially_copyable_v<Vector2<float>>);
}

TEST(Vector2, EqualsWhenBothComponentsAreEqual)
{
    const Vector2<float> v{1, 2};
    EXPECT_TRUE(v == (Vector2<float>{1, 2}));
    EXPECT_FALSE(v != (Vector2<float>{1, 2}));
    EXPECT_TRUE(v != (Vector2<float>{1, 3}));
    EXPECT_TRUE(v != (Vector2<float>{3, 2}));
    EXPECT_FALSE(v == (Vector2<float>{2, 1}));
}

TEST(Vector2, ZerosOfBothSignsAreEqual)
{
    EXPECT_EQ((Vector2<float>{-0.0f, 0.0f}), (Vector2<float>{0.0f, -0.0f}));
}

TEST(Vector2, NotANumberEqualsNothing)
{
    const Vector2<float> v{std::numeric_limits<float>::quiet_NaN(), 0};
    EXPECT_FALSE(v == v);
    EXPECT_TRUE(v != v);
}

} // namespace
} // namespace tarvox::core
