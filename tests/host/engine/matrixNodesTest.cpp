// Utility nodes: what they compute with matrices.
#include "engine/matrixParts.h"
#include "engine/units.h"

#include "fixtures.h"

#include <array>
#include <cmath>

namespace tvxhost::engine {
namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;

class MatrixNodes : public SceneTest
{
protected:
    void setMatrix(const std::string& name, const Matrix& matrix)
    {
        const Outcome outcome = writeData(plug(name), MatrixData(matrix));
        EXPECT_TRUE(outcome) << outcome.text;
    }
    Matrix matrix(const std::string& name)
    {
        const Expected<Ref<Data>> data = readData(plug(name));
        EXPECT_TRUE(data) << data.outcome.text;
        return static_cast<const MatrixData&>(*data.value).value;
    }
    void expectNumbers(const std::string& name, const std::vector<double>& expected)
    {
        const std::vector<double> values = readNumbers(plug(name)).value;
        ASSERT_EQ(values.size(), expected.size());
        for (std::size_t i = 0; i < values.size(); ++i)
            EXPECT_NEAR(values[i], expected[i], 1e-12) << name << ' ' << i;
    }
};

TEST_F(MatrixNodes, MultMatrixMultipliesInTheOrderOfIndices)
{
    make("multMatrix", "mm");
    EXPECT_EQ(matrix("mm.matrixSum"), Matrix());
    setMatrix("mm.matrixIn[4]", translation({1, 0, 0}));
    setMatrix("mm.matrixIn[1]", scaling({2, 2, 2}));
    // Points are scaled first and moved then.
    EXPECT_EQ(Vec3d(3, 1, 0) * matrix("mm.matrixSum"), Vec3d(7, 2, 0));
}

TEST_F(MatrixNodes, DecomposeMatrixTakesATransformApart)
{
    makeTransform("t");
    ASSERT_TRUE(writeNumbers(plug("t.translate"), {5, -6, 7}));
    ASSERT_TRUE(writeNumbers(plug("t.rotate"), {10 * kDegree, -20 * kDegree, 30 * kDegree}));
    ASSERT_TRUE(writeNumbers(plug("t.scale"), {2, 0.5, 3}));
    ASSERT_TRUE(writeNumbers(plug("t.shear"), {0.1, -0.2, 0.3}));
    make("decomposeMatrix", "dm");
    ASSERT_TRUE(connect("t.worldMatrix[0]", "dm.inputMatrix"));
    expectNumbers("dm.outputTranslate", {5, -6, 7});
    expectNumbers("dm.outputRotate", {10 * kDegree, -20 * kDegree, 30 * kDegree});
    expectNumbers("dm.outputScale", {2, 0.5, 3});
    expectNumbers("dm.outputShear", {0.1, -0.2, 0.3});
    set("t.translateX", 8);
    EXPECT_NEAR(number("dm.outputTranslateX"), 8.0, 1e-12);
}

TEST_F(MatrixNodes, DecomposeMatrixKnowsTheOrdersOfRotation)
{
    const Vec3d angles(40 * kDegree, -15 * kDegree, 65 * kDegree);
    make("decomposeMatrix", "dm");
    for (int order = 0; order < 6; ++order) {
        set("dm.inputRotateOrder", order);
        setMatrix("dm.inputMatrix", rotation(angles, order));
        expectNumbers("dm.outputRotate", {angles.x, angles.y, angles.z});
    }
}

TEST_F(MatrixNodes, DecomposeMatrixGivesAQuaternion)
{
    make("decomposeMatrix", "dm");
    setMatrix("dm.inputMatrix", rotation({0, 0, 90 * kDegree}, 0));
    expectNumbers("dm.outputQuat", {0, 0, std::sqrt(0.5), std::sqrt(0.5)});
}

TEST_F(MatrixNodes, AMatrixWithoutVolumeHasNoRotation)
{
    make("decomposeMatrix", "dm");
    setMatrix("dm.inputMatrix", scaling({0, 1, 1}) * translation({1, 2, 3}));
    expectNumbers("dm.outputTranslate", {1, 2, 3});
    expectNumbers("dm.outputRotate", {0, 0, 0});
}

TEST_F(MatrixNodes, DistanceBetweenMeasuresInTheSpaceOfItsMatrices)
{
    make("distanceBetween", "db");
    ASSERT_TRUE(writeNumbers(plug("db.point1"), {1, 2, 3}));
    ASSERT_TRUE(writeNumbers(plug("db.point2"), {4, 6, 3}));
    EXPECT_EQ(number("db.distance"), 5.0);
    makeTransform("t");
    ASSERT_TRUE(connect("t.worldMatrix[0]", "db.inMatrix2"));
    set("t.translateZ", 12);
    EXPECT_EQ(number("db.distance"), 13.0);
}

} // namespace
} // namespace tvxhost::engine
