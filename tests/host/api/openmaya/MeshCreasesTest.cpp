// MFnMesh: creases of edges and vertices, and faces that are not seen.
#include "../meshFixture.h"

#include <maya/MDoubleArray.h>
#include <maya/MFnMesh.h>
#include <maya/MUintArray.h>

namespace tvxhost::api::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

MUintArray ids(const std::vector<unsigned int>& values)
{
    MUintArray array;
    for (const unsigned int value : values)
        array.append(value);
    return array;
}

MDoubleArray doubles(const std::vector<double>& values)
{
    MDoubleArray array;
    for (const double value : values)
        array.append(value);
    return array;
}

template <class Value, class Array>
std::vector<Value> all(const Array& array)
{
    std::vector<Value> values;
    for (unsigned int i = 0; i < array.length(); ++i)
        values.push_back(array[i]);
    return values;
}

class MeshCreasesTest : public MeshFixture
{
protected:
    MeshCreasesTest() { addGrid(); }

    void keep(const std::string& attribute, const std::string& text)
    {
        EXPECT_TRUE(engine::writeData(scene.findPlug("gridShape." + attribute).value,
                                      engine::KeptData("dataPolyComponent", text)));
    }
    std::string kept(const std::string& attribute)
    {
        const auto data = engine::readData(scene.findPlug("gridShape." + attribute).value).value;
        return data ? static_cast<const engine::KeptData&>(*data).text : std::string();
    }
};

TEST_F(MeshCreasesTest, CreasesAreReadAsFilesHaveThem)
{
    keep("cd", " Index_Data Edge 3 \n\t\t0 5 \n\t\t11 2.5 \n\t\t4 0 ");
    keep("cvd", " Index_Data Vertex 1 \n\t\t7 10 ");
    keep("hfd", " Index_Data Face 2 \n\t\t3 \n\t\t5 ");
    MFnMesh mesh(path("gridShape"), nullptr);
    MUintArray found;
    MDoubleArray creases;
    EXPECT_EQ(mesh.getCreaseEdges(found, creases), MS::kSuccess);
    EXPECT_THAT(all<unsigned int>(found), ElementsAre(0u, 4u, 11u));
    EXPECT_THAT(all<double>(creases), ElementsAre(5, 0, 2.5));
    EXPECT_EQ(mesh.getCreaseVertices(found, creases), MS::kSuccess);
    EXPECT_THAT(all<unsigned int>(found), ElementsAre(7u));
    EXPECT_THAT(all<double>(creases), ElementsAre(10));
    EXPECT_THAT(all<unsigned int>(mesh.getInvisibleFaces()), ElementsAre(3u, 5u));
}

TEST_F(MeshCreasesTest, WithoutCreasesTheListsAreEmpty)
{
    keep("cvd", " Index_Data Vertex 0 ");
    keep("cd", " Index_Data Vertex 1 \n\t\t7 10 ");
    MFnMesh mesh(path("gridShape"), nullptr);
    MUintArray found = ids({1, 2});
    MDoubleArray creases = doubles({3});
    EXPECT_EQ(mesh.getCreaseVertices(found, creases), MS::kSuccess);
    EXPECT_THAT(all<unsigned int>(found), IsEmpty());
    EXPECT_THAT(all<double>(creases), IsEmpty());
    EXPECT_EQ(mesh.getCreaseEdges(found, creases), MS::kSuccess);
    EXPECT_THAT(all<unsigned int>(found), IsEmpty()) << "a list of vertices is none of edges";
    MStatus status;
    EXPECT_EQ(mesh.getInvisibleFaces(&status).length(), 0u);
    EXPECT_EQ(status, MS::kSuccess);
}

TEST_F(MeshCreasesTest, SetCreasesAreKeptAsFilesHaveThem)
{
    MFnMesh mesh(path("gridShape"), nullptr);
    EXPECT_EQ(mesh.setCreaseEdges(ids({4, 0}), doubles({2.5, 5})), MS::kSuccess);
    EXPECT_EQ(mesh.setCreaseEdges(ids({16, 4}), doubles({1, 0.1})), MS::kSuccess);
    EXPECT_EQ(kept("cd"), " Index_Data Edge 3 \n\t\t0 5 \n\t\t4 0.1 \n\t\t16 1 ");
    EXPECT_EQ(mesh.setCreaseVertices(ids({11}), doubles({3})), MS::kSuccess);
    EXPECT_EQ(kept("cvd"), " Index_Data Vertex 1 \n\t\t11 3 ");
    EXPECT_EQ(mesh.setInvisibleFaces(ids({5, 1, 2})), MS::kSuccess);
    EXPECT_EQ(mesh.setInvisibleFaces(ids({1, 0}), true), MS::kSuccess);
    EXPECT_EQ(kept("hfd"), " Index_Data Face 2 \n\t\t2 \n\t\t5 ");
    EXPECT_EQ(mesh.setInvisibleFaces(ids({2, 5}), true), MS::kSuccess);
    EXPECT_EQ(kept("hfd"), " Index_Data Face 0 ");
}

TEST_F(MeshCreasesTest, OnlyComponentsThatThereAreCanBeCreasedOrHidden)
{
    MFnMesh mesh(path("gridShape"), nullptr);
    EXPECT_EQ(mesh.setCreaseEdges(ids({0, 17}), doubles({1, 1})), MS::kInvalidParameter);
    EXPECT_EQ(mesh.setCreaseVertices(ids({12}), doubles({1})), MS::kInvalidParameter);
    EXPECT_EQ(mesh.setInvisibleFaces(ids({6})), MS::kInvalidParameter);
    EXPECT_EQ(mesh.setCreaseEdges(ids({0, 1}), doubles({1})), MS::kInvalidParameter)
        << "lists of two lengths";
    MUintArray found;
    MDoubleArray creases;
    mesh.getCreaseEdges(found, creases);
    EXPECT_EQ(found.length(), 0u);
    EXPECT_EQ(MFnMesh().setCreaseEdges(ids({0}), doubles({1})), MS::kInvalidParameter);
}

TEST_F(MeshCreasesTest, MeshDataHasNoCreases)
{
    MObject data;
    plug("gridShape.o").getValue(data);
    MFnMesh mesh(data, nullptr);
    MUintArray found;
    MDoubleArray creases;
    EXPECT_EQ(mesh.getCreaseEdges(found, creases), MS::kInvalidParameter);
    EXPECT_EQ(mesh.setCreaseEdges(ids({0}), doubles({1})), MS::kInvalidParameter);
}

} // namespace
} // namespace tvxhost::api::test
