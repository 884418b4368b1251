// Colours of meshes: MFnMesh, and the iterators over faces and vertices.
#include "../arrays.h"
#include "../meshFixture.h"

#include <maya/MColorArray.h>
#include <maya/MDGModifier.h>
#include <maya/MFnMesh.h>
#include <maya/MFnMeshData.h>
#include <maya/MItMeshPolygon.h>
#include <maya/MItMeshVertex.h>
#include <maya/MUintArray.h>

namespace tvxhost::api::test {
namespace {

using testing::Each;
using testing::ElementsAre;

using Rgba = std::vector<float>;

Rgba rgba(const MColor& color)
{
    return {color.r, color.g, color.b, color.a};
}

std::vector<Rgba> all(const MColorArray& colors)
{
    std::vector<Rgba> list;
    for (unsigned int i = 0; i < colors.length(); ++i)
        list.push_back(rgba(colors[i]));
    return list;
}

const Rgba kRed{1, 0, 0, 1}, kGreen{0, 1, 0, 1}, kUnset{-1, -1, -1, -1};

class MeshColorsTest : public MeshFixture
{
protected:
    MeshColorsTest()
    {
        addGrid();
        m_mesh.setObject(path("gridShape"));
    }

    Texts setNames()
    {
        MStringArray names;
        EXPECT_EQ(m_mesh.getColorSetNames(names), MS::kSuccess);
        return texts(names);
    }
    /// Of each corner, as many as a face has.
    std::vector<Rgba> cornersOf(int face, const MString* name = nullptr)
    {
        MColorArray colors;
        EXPECT_EQ(m_mesh.getFaceVertexColors(colors, name), MS::kSuccess);
        const std::vector<Rgba> list = all(colors);
        return {list.begin() + face * 4, list.begin() + face * 4 + 4};
    }
    template <class Iterator>
    static void goTo(Iterator& items, int item)
    {
        int previous = 0;
        EXPECT_EQ(items.setIndex(item, previous), MS::kSuccess);
    }

    MFnMesh m_mesh;
    MColor m_red{1, 0, 0}, m_green{0, 1, 0};
};

TEST_F(MeshColorsTest, AMeshBeginsWithoutColours)
{
    MStatus status;
    EXPECT_EQ(m_mesh.numColorSets(), 0);
    EXPECT_EQ(m_mesh.numColors(&status), 0);
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(text(m_mesh.currentColorSetName()), "");
    MColorArray colors;
    EXPECT_EQ(m_mesh.getVertexColors(colors), MS::kSuccess);
    EXPECT_EQ(colors.length(), 12u);
    EXPECT_THAT(all(colors), Each(kUnset));
    EXPECT_EQ(m_mesh.getVertexColors(colors, nullptr, &m_green), MS::kSuccess);
    EXPECT_THAT(all(colors), Each(kGreen));
    EXPECT_EQ(m_mesh.setColor(0, m_red), MS::kInvalidParameter) << "there is no set to change";
}

TEST_F(MeshColorsTest, PaintingMakesASetWhereThereIsNone)
{
    EXPECT_EQ(m_mesh.setFaceColor(m_red, 1), MS::kSuccess);
    EXPECT_THAT(setNames(), ElementsAre("colorSet1"));
    EXPECT_EQ(text(m_mesh.currentColorSetName()), "colorSet1");
    EXPECT_THAT(cornersOf(1), Each(kRed));
    EXPECT_THAT(cornersOf(0), Each(kUnset));
    EXPECT_EQ(m_mesh.numColors(), 1);
    EXPECT_EQ(m_mesh.setFaceColor(m_red, 6), MS::kInvalidParameter);
}

TEST_F(MeshColorsTest, VerticesArePaintedAtAllTheirFaces)
{
    EXPECT_EQ(m_mesh.setVertexColor(m_red, 5), MS::kSuccess);
    EXPECT_THAT(cornersOf(0), ElementsAre(kUnset, kUnset, kRed, kUnset));
    EXPECT_THAT(cornersOf(4), ElementsAre(kRed, kUnset, kUnset, kUnset));
    EXPECT_EQ(m_mesh.setVertexColor(m_green, 5), MS::kSuccess);
    EXPECT_EQ(m_mesh.numColors(), 1) << "the value is changed, as only these corners have it";
    MColorArray colors, two;
    two.append(m_red);
    two.append(m_green);
    MIntArray vertices = ints({0, 11});
    EXPECT_EQ(m_mesh.setVertexColors(two, vertices), MS::kSuccess);
    EXPECT_EQ(m_mesh.getVertexColors(colors), MS::kSuccess);
    EXPECT_EQ(rgba(colors[0]), kRed);
    EXPECT_EQ(rgba(colors[1]), kUnset);
    EXPECT_EQ(rgba(colors[11]), kGreen);
    vertices = ints({0, 12});
    EXPECT_EQ(m_mesh.setVertexColors(two, vertices), MS::kInvalidParameter);
    vertices = ints({0});
    EXPECT_EQ(m_mesh.setVertexColors(two, vertices), MS::kInvalidParameter);
}

TEST_F(MeshColorsTest, SingleCornersArePaintedByVertexOrByPlace)
{
    EXPECT_EQ(m_mesh.setFaceVertexColor(m_red, 4, 5), MS::kSuccess);
    EXPECT_EQ(m_mesh.setFaceVertexColor(4, 1, m_green), MS::kSuccess);
    EXPECT_THAT(cornersOf(4), ElementsAre(kRed, kGreen, kUnset, kUnset));
    EXPECT_EQ(m_mesh.setFaceVertexColor(m_red, 4, 0), MS::kInvalidParameter) << "a vertex elsewhere";
    EXPECT_EQ(m_mesh.setFaceVertexColor(4, 4, m_green), MS::kInvalidParameter);
    MColorArray two;
    two.append(m_green);
    two.append(m_red);
    MIntArray faces = ints({4, 0}), vertices = ints({5, 0});
    EXPECT_EQ(m_mesh.setFaceVertexColors(two, faces, vertices), MS::kSuccess);
    EXPECT_EQ(cornersOf(4)[0], kGreen);
    EXPECT_EQ(cornersOf(0)[0], kRed);
    int place = -1;
    EXPECT_EQ(m_mesh.getFaceVertexColorIndex(4, 1, place), MS::kSuccess);
    EXPECT_EQ(place, 17) << "among all corners";
}

TEST_F(MeshColorsTest, PartsOfAColourAreChangedAlone)
{
    EXPECT_EQ(m_mesh.setFaceColor(m_red, 0), MS::kSuccess);
    MColor half(0.25F, 0.5F, 0.75F, 0.5F);
    EXPECT_EQ(m_mesh.setFaceVertexColor(0, 0, half, nullptr, MFnMesh::kAlpha), MS::kSuccess);
    EXPECT_EQ(m_mesh.setFaceVertexColor(0, 1, half, nullptr, MFnMesh::kRGB), MS::kSuccess);
    EXPECT_EQ(m_mesh.setFaceVertexColor(0, 2, half, nullptr, MFnMesh::kRGBA), MS::kSuccess);
    EXPECT_THAT(cornersOf(0), ElementsAre(Rgba{1, 0, 0, 0.5F}, Rgba{0.25F, 0.5F, 0.75F, 1},
                                          Rgba{0.25F, 0.5F, 0.75F, 0.5F}, kRed));
}

TEST_F(MeshColorsTest, AVertexIsTheMeanOfItsCorners)
{
    EXPECT_EQ(m_mesh.setFaceVertexColor(m_red, 0, 5), MS::kSuccess);
    EXPECT_EQ(m_mesh.setFaceVertexColor(m_green, 1, 5), MS::kSuccess);
    MColorArray colors;
    EXPECT_EQ(m_mesh.getVertexColors(colors), MS::kSuccess);
    EXPECT_EQ(rgba(colors[5]), (Rgba{0.5F, 0.5F, 0, 1}));
}

TEST_F(MeshColorsTest, ColoursAreTakenAway)
{
    MColorArray six(6, m_red);
    MIntArray faces = ints({0, 1, 2, 3, 4, 5});
    EXPECT_EQ(m_mesh.setFaceColors(six, faces), MS::kSuccess);
    faces = ints({1});
    EXPECT_EQ(m_mesh.removeFaceColors(faces), MS::kSuccess);
    EXPECT_THAT(cornersOf(1), Each(kUnset));
    MIntArray vertices = ints({0});
    EXPECT_EQ(m_mesh.removeVertexColors(vertices), MS::kSuccess);
    EXPECT_THAT(cornersOf(0), ElementsAre(kUnset, kRed, kRed, kRed));
    faces = ints({4});
    vertices = ints({5});
    EXPECT_EQ(m_mesh.removeFaceVertexColors(faces, vertices), MS::kSuccess);
    EXPECT_THAT(cornersOf(4), ElementsAre(kUnset, kRed, kRed, kRed));
    vertices = ints({0});
    EXPECT_EQ(m_mesh.removeFaceVertexColors(faces, vertices), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.clearColors(), MS::kSuccess);
    EXPECT_EQ(m_mesh.numColors(), 0);
    EXPECT_THAT(cornersOf(5), Each(kUnset));
}

TEST_F(MeshColorsTest, ValuesAreSetByNumberAndAssigned)
{
    m_mesh.createColorSetWithName("paint");
    EXPECT_EQ(m_mesh.setColor(2, m_red), MS::kSuccess);
    EXPECT_EQ(m_mesh.numColors("paint"), 3);
    MColor color;
    EXPECT_EQ(m_mesh.getColor(0, color), MS::kSuccess);
    EXPECT_EQ(rgba(color), (Rgba{0, 0, 0, 1}));
    EXPECT_EQ(m_mesh.getColor(3, color), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.setColor(2147483647, m_red), MS::kInvalidParameter);
    MColorArray two(2, m_green), read;
    EXPECT_EQ(m_mesh.setSomeColors(ints({0, 3}), two), MS::kSuccess);
    EXPECT_EQ(m_mesh.setColors(two), MS::kInvalidParameter) << "less than there are";
    EXPECT_EQ(m_mesh.getColors(read), MS::kSuccess);
    EXPECT_THAT(all(read), ElementsAre(kGreen, Rgba{0, 0, 0, 1}, kRed, kGreen));
    EXPECT_EQ(m_mesh.setColors(MColorArray(5, m_red)), MS::kSuccess);
    EXPECT_EQ(m_mesh.numColors(), 5);
    int number = 9;
    EXPECT_EQ(m_mesh.getColorIndex(0, 0, number), MS::kSuccess);
    EXPECT_EQ(number, -1);
    EXPECT_EQ(m_mesh.assignColor(0, 0, 4), MS::kSuccess);
    EXPECT_EQ(m_mesh.getColorIndex(0, 0, number), MS::kSuccess);
    EXPECT_EQ(number, 4);
    EXPECT_EQ(m_mesh.assignColor(0, 0, 5), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.assignColors(MIntArray(24, 1)), MS::kSuccess);
    EXPECT_EQ(m_mesh.assignColors(MIntArray(23, 1)), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.assignColors(MIntArray(24, 5)), MS::kInvalidParameter);
    EXPECT_THAT(cornersOf(5), Each(kRed));
}

TEST_F(MeshColorsTest, SetsHaveNamesAndTraits)
{
    MStatus status;
    EXPECT_EQ(text(m_mesh.createColorSetWithName("", nullptr, &status)), "colorSet1");
    EXPECT_EQ(status, MS::kSuccess);
    MString name = "tint";
    EXPECT_EQ(m_mesh.createColorSet(name, nullptr, true, MFnMesh::kRGB), MS::kSuccess);
    EXPECT_EQ(text(m_mesh.createColorSetWithName("tint")), "tint1");
    EXPECT_THAT(setNames(), ElementsAre("colorSet1", "tint", "tint1"));
    EXPECT_TRUE(m_mesh.hasColorChannels("tint"));
    EXPECT_FALSE(m_mesh.hasAlphaChannels("tint"));
    EXPECT_EQ(m_mesh.getColorRepresentation("tint"), MFnMesh::kRGB);
    EXPECT_TRUE(m_mesh.isColorClamped("tint"));
    EXPECT_FALSE(m_mesh.isColorClamped("none", &status));
    EXPECT_EQ(status, MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.setCurrentColorSetName("tint"), MS::kSuccess);
    EXPECT_EQ(text(plug("gridShape.ccls").asString()), "tint");
    MColor bright(2, 0.5F, -1);
    EXPECT_EQ(m_mesh.setFaceColor(bright, 0), MS::kSuccess);
    EXPECT_THAT(cornersOf(0), Each(Rgba{1, 0.5F, 0, 1}));
    EXPECT_EQ(m_mesh.setIsColorClamped("tint", false), MS::kSuccess);
    EXPECT_EQ(m_mesh.setFaceColor(bright, 0), MS::kSuccess);
    EXPECT_THAT(cornersOf(0, &name), Each(Rgba{2, 0.5F, -1, 1}));
    EXPECT_EQ(m_mesh.deleteColorSet("tint"), MS::kSuccess);
    EXPECT_EQ(text(m_mesh.currentColorSetName()), "colorSet1");
    EXPECT_EQ(m_mesh.deleteColorSet("tint"), MS::kInvalidParameter);
    EXPECT_EQ(m_mesh.setCurrentColorSetName("tint"), MS::kInvalidParameter);
    MStringArray names;
    EXPECT_EQ(m_mesh.getColorSetFamilyNames(names), MS::kSuccess);
    EXPECT_THAT(texts(names), ElementsAre("colorSet1", "tint1"));
    EXPECT_EQ(m_mesh.getColorSetsInFamily("tint1", names), MS::kSuccess);
    EXPECT_THAT(texts(names), ElementsAre("tint1"));
    EXPECT_FALSE(m_mesh.isColorSetPerInstance("tint1"));
    MIntArray instances(1, 7);
    EXPECT_EQ(m_mesh.getAssociatedColorSetInstances("tint1", instances), MS::kSuccess);
    EXPECT_EQ(instances.length(), 0u);
    const MUintArray some(1, 0u);
    m_mesh.createColorSetWithName("paint", nullptr, &some, &status);
    EXPECT_EQ(status, MS::kNotImplemented);
}

TEST_F(MeshColorsTest, AModifierTakesColoursBack)
{
    MDGModifier modifier;
    EXPECT_EQ(m_mesh.setVertexColor(m_red, 5, &modifier), MS::kSuccess);
    EXPECT_EQ(modifier.doIt(), MS::kSuccess);
    EXPECT_EQ(m_mesh.numColorSets(), 1);
    EXPECT_EQ(modifier.undoIt(), MS::kSuccess);
    EXPECT_EQ(m_mesh.numColorSets(), 0);
    EXPECT_EQ(modifier.doIt(), MS::kSuccess);
    EXPECT_EQ(cornersOf(0)[2], kRed);
}

TEST_F(MeshColorsTest, WhetherColoursAreShownIsTheShapes)
{
    EXPECT_FALSE(m_mesh.displayColors());
    EXPECT_EQ(m_mesh.setDisplayColors(true), MS::kSuccess);
    EXPECT_TRUE(m_mesh.displayColors());
    EXPECT_TRUE(plug("gridShape.dcol").asBool());
}

TEST_F(MeshColorsTest, MeshDataHasColoursOfItsOwn)
{
    MFnMeshData data;
    MObject owner = data.create();
    MFnMesh mesh;
    mesh.copy(object("gridShape"), owner);
    MStatus status;
    EXPECT_EQ(text(mesh.createColorSetWithNameDataMesh("tint", false, MFnMesh::kAlpha, &status)), "tint");
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_FALSE(mesh.hasColorChannels("tint"));
    EXPECT_EQ(mesh.setFaceColor(m_red, 0), MS::kSuccess);
    EXPECT_EQ(mesh.numColors("tint"), 1);
    EXPECT_FALSE(mesh.displayColors(&status));
    EXPECT_EQ(status, MS::kInvalidParameter);
    MString name = "tint";
    EXPECT_EQ(m_mesh.createColorSetDataMesh(name), MS::kInvalidParameter) << "a shape is no data";
    EXPECT_EQ(m_mesh.numColorSets(), 0);
}

TEST_F(MeshColorsTest, AFaceTellsItsColours)
{
    MItMeshPolygon faces(path("gridShape"));
    MStatus status;
    EXPECT_FALSE(faces.hasColor(&status));
    EXPECT_EQ(status, MS::kSuccess);
    EXPECT_EQ(m_mesh.setFaceVertexColor(0, 1, m_red), MS::kSuccess);
    EXPECT_EQ(m_mesh.setFaceVertexColor(0, 2, m_green), MS::kSuccess);
    faces.reset();
    EXPECT_TRUE(faces.hasColor());
    EXPECT_TRUE(faces.hasColor(1));
    EXPECT_FALSE(faces.hasColor(0));
    EXPECT_FALSE(faces.hasColor(4, &status));
    EXPECT_EQ(status, MS::kInvalidParameter);
    MColor color;
    EXPECT_EQ(faces.getColor(color), MS::kSuccess);
    EXPECT_EQ(rgba(color), (Rgba{0.5F, 0.5F, 0, 1}));
    EXPECT_EQ(faces.getColor(color, 2), MS::kSuccess);
    EXPECT_EQ(rgba(color), kGreen);
    EXPECT_EQ(faces.getColor(color, 0), MS::kFailure);
    MColorArray colors;
    EXPECT_EQ(faces.getColors(colors), MS::kSuccess);
    EXPECT_THAT(all(colors), ElementsAre(Rgba{0, 0, 0, 1}, kRed, kGreen, Rgba{0, 0, 0, 1}));
    int count = 0;
    EXPECT_EQ(faces.numColors(count), MS::kSuccess);
    EXPECT_EQ(count, 2);
    int number = 9;
    EXPECT_EQ(faces.getColorIndex(2, number), MS::kSuccess);
    EXPECT_EQ(number, 1);
    MIntArray numbers;
    EXPECT_EQ(faces.getColorIndices(numbers), MS::kSuccess);
    EXPECT_THAT(elementsOf(numbers), ElementsAre(-1, 0, 1, -1));
    goTo(faces, 1);
    EXPECT_FALSE(faces.hasColor());
    EXPECT_EQ(faces.getColor(color), MS::kFailure);
    EXPECT_EQ(faces.getColors(colors), MS::kSuccess);
    EXPECT_THAT(all(colors), Each(Rgba{-1, -1, -1, 1}));
    const MString none = "none";
    EXPECT_EQ(faces.getColors(colors, &none), MS::kInvalidParameter);
}

TEST_F(MeshColorsTest, AVertexTellsTheColoursOfItsFaces)
{
    EXPECT_EQ(m_mesh.setFaceVertexColor(m_red, 0, 5), MS::kSuccess);
    EXPECT_EQ(m_mesh.setFaceVertexColor(m_green, 3, 5), MS::kSuccess);
    MItMeshVertex vertices(path("gridShape"));
    EXPECT_FALSE(vertices.hasColor());
    goTo(vertices, 5);
    EXPECT_TRUE(vertices.hasColor());
    EXPECT_TRUE(vertices.hasColor(3));
    EXPECT_FALSE(vertices.hasColor(1));
    MStatus status;
    EXPECT_FALSE(vertices.hasColor(2, &status));
    EXPECT_EQ(status, MS::kInvalidParameter) << "a face elsewhere";
    MColor color;
    EXPECT_EQ(vertices.getColor(color, 3), MS::kSuccess);
    EXPECT_EQ(rgba(color), kGreen);
    EXPECT_EQ(vertices.getColor(color), MS::kSuccess);
    EXPECT_EQ(rgba(color), (Rgba{0.5F, 0.5F, 0, 1}));
    MColorArray colors;
    EXPECT_EQ(vertices.getColors(colors), MS::kSuccess);
    EXPECT_THAT(all(colors), ElementsAre(kRed, Rgba{0, 0, 0, 1}, kGreen, Rgba{0, 0, 0, 1}));
    MIntArray numbers;
    EXPECT_EQ(vertices.getColorIndices(numbers), MS::kSuccess);
    EXPECT_THAT(elementsOf(numbers), ElementsAre(0, -1, 1, -1));
}

} // namespace
} // namespace tvxhost::api::test
