// angleBetween and vectorProduct.
#include "fixtures.h"

#include <gmock/gmock.h>

namespace tvxhost::engine {
namespace {

using testing::DoubleNear;
using testing::Pointwise;

constexpr double kDegree = 3.14159265358979323846 / 180.0;

class VectorNodes : public SceneTest
{
protected:
    void expectGroup(const std::string& name, const std::vector<double>& expected)
    {
        EXPECT_THAT(group(name), Pointwise(DoubleNear(1e-6), expected)) << name;
    }
};

TEST_F(VectorNodes, AngleBetweenTurnsTheShortWay)
{
    make("angleBetween", "angle");
    expectGroup("angle.euler", {0, 0, 0});
    expectGroup("angle.axis", {0, 0, 1});
    setGroup("angle.vector1", {2, 0, 0});
    setGroup("angle.vector2", {0, 0, 3});
    expectGroup("angle.euler", {0, -90 * kDegree, 0});
    expectGroup("angle.axis", {0, -1, 0});
    EXPECT_NEAR(number("angle.angle"), 90 * kDegree, 1e-9);
}

TEST_F(VectorNodes, AngleBetweenAgreesWithTheExampleOfTheReference)
{
    make("angleBetween", "angle");
    setGroup("angle.vector1", {0, 1, 2});
    setGroup("angle.vector2", {1, 2, 0});
    expectGroup("angle.euler", {-63.434949 * kDegree, 16.60155 * kDegree, -26.565051 * kDegree});
}

TEST_F(VectorNodes, AngleBetweenOpposedVectorsIsHalfATurn)
{
    make("angleBetween", "angle");
    setGroup("angle.vector2", {-1, 0, 0});
    EXPECT_NEAR(number("angle.angle"), 180 * kDegree, 1e-9);
    EXPECT_NEAR(number("angle.axisX"), 0.0, 1e-9);
    setGroup("angle.vector2", {0, 0, 0});
    EXPECT_EQ(number("angle.angle"), 0.0);
}

TEST_F(VectorNodes, VectorProductDoesWhatItsOperationSays)
{
    make("vectorProduct", "product");
    setGroup("product.input1", {3, 0, 4});
    setGroup("product.input2", {0, 2, 2});
    expectGroup("product.output", {8, 8, 8});
    set("product.operation", 2);
    expectGroup("product.output", {-8, -6, 6});
    set("product.operation", 0);
    expectGroup("product.output", {3, 0, 4});
    set("product.normalizeOutput", 1);
    expectGroup("product.output", {0.6, 0, 0.8});
    // 8 / (5 * sqrt 8)
    set("product.operation", 1);
    expectGroup("product.output", {0.5656854, 0.5656854, 0.5656854});
}

TEST_F(VectorNodes, VectorProductTakesVectorsAndPointsThroughAMatrix)
{
    makeTransform("frame");
    make("vectorProduct", "product");
    EXPECT_TRUE(connect("frame.matrix", "product.matrix"));
    setGroup("frame.translate", {10, 20, 30});
    setGroup("frame.rotate", {0, 0, 90 * kDegree});
    setGroup("product.input1", {1, 2, 3});
    set("product.operation", 3);
    expectGroup("product.output", {-2, 1, 3});
    set("product.operation", 4);
    expectGroup("product.output", {8, 21, 33});
}

} // namespace
} // namespace tvxhost::engine
