// Sets of texture coordinates and colours of mesh shapes: where they live, and how they are changed.
#include "engine/mesh.h"

#include "engine/geometry/primitives.h"

#include "../support/sceneState.h"
#include "fixtures.h"

#include <gmock/gmock.h>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

} // namespace

class MeshSetsTest : public SceneTest
{
protected:
    MeshSetsTest() : shape(*make("mesh", "m").asDag()) { scene.journal().setOn(true); }

    void setFace(int face, const std::string& words)
    {
        EXPECT_TRUE(writeData(plug("m.fc[" + std::to_string(face) + "]"), KeptData("polyFaces", words)));
    }
    std::string faceWords(int face)
    {
        const Ref<Data> data = readData(plug("m.fc[" + std::to_string(face) + "]")).value;
        return data ? static_cast<const KeptData&>(*data).text : std::string();
    }
    void setUvs(const std::string& array, const std::vector<double>& numbers)
    {
        EXPECT_TRUE(writeElements(plug(array), 0, numbers.data(), numbers.size()));
    }
    /// Two triangles of one square, the second without texture coordinates in `map1`.
    void makeTriangles()
    {
        setUvs("m.vt", {0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0});
        setUvs("m.ed", {0, 1, 0, 1, 2, 0, 2, 0, 0, 2, 3, 0, 3, 0, 0});
        setFace(0, "f 3 0 1 2\n\t\tmu 0 3 2 1 0\n\t\tmu 3 3 0 1 0");
        setFace(1, "f 3 -3 3 4\n\t\tmu 3 3 0 1 9");
        EXPECT_TRUE(writeString(plug("m.uvst[0].uvsn"), "map1"));
        setUvs("m.uvst[0].uvsp", {0, 0, 0.5, 0, 0.5, 0.25});
        EXPECT_TRUE(writeString(plug("m.uvst[3].uvsn"), "other"));
        setUvs("m.uvst[3].uvsp", {1, 0.5, 0.75, 0.125});
    }
    const MeshData& mesh() { return *meshOf(shape); }

    DagNode& shape;
};

TEST_F(MeshSetsTest, AMeshHasASetWithoutValuesFromTheBeginning)
{
    storeMesh(shape, makePlane({}));
    ASSERT_EQ(mesh().uvSets.size(), 1u);
    EXPECT_EQ(mesh().uvSets[0].name, "map1");
    EXPECT_THAT(mesh().uvSets[0].values, IsEmpty());
    EXPECT_THAT(mesh().colorSets, IsEmpty());
    EXPECT_EQ(currentUvSet(shape), "map1");
    EXPECT_EQ(currentColorSet(shape), "");
}

TEST_F(MeshSetsTest, SetsComeFromTheAttributesAndTheirUseFromTheFaces)
{
    makeTriangles();
    ASSERT_EQ(mesh().uvSets.size(), 2u);
    const UvSet& first = mesh().uvSets[0];
    EXPECT_EQ(first.name, "map1");
    EXPECT_THAT(first.values, ElementsAre(Vec2f(0, 0), Vec2f(0.5F, 0), Vec2f(0.5F, 0.25F)));
    EXPECT_THAT(first.used, ElementsAre(2, 1, 0));
    EXPECT_EQ(first.at(5), kUnmapped);
    const UvSet& other = mesh().uvSets[1];
    EXPECT_EQ(other.name, "other");
    EXPECT_EQ(other.slot, 3);
    // There is no value number 9.
    EXPECT_THAT(other.used, ElementsAre(0, 1, 0, 0, 1, kUnmapped));
}

TEST_F(MeshSetsTest, ColoursHaveFourPartsAndTraits)
{
    makeTriangles();
    setFace(1, "f 3 -3 3 4\n\t\tmc 0 3 0 -1 1");
    EXPECT_TRUE(writeString(plug("m.clst[0].clsn"), "tint"));
    set("m.clst[0].clam", 1);
    set("m.clst[0].rprt", 3);
    EXPECT_TRUE(writeNumbers(plug("m.clst[0].clsp[0]"), {1, 0, 0.5, 1}));
    EXPECT_TRUE(writeNumbers(plug("m.clst[0].clsp[1]"), {0.25, 0.25, 0.25, 0.5}));
    ASSERT_EQ(mesh().colorSets.size(), 1u);
    const ColorSet& colors = mesh().colorSets[0];
    EXPECT_EQ(colors.name, "tint");
    EXPECT_TRUE(colors.isClamped);
    EXPECT_EQ(colors.parts, ColorParts::rgb);
    EXPECT_THAT(colors.values, ElementsAre(Color4f(1, 0, 0.5F, 1), Color4f(0.25F, 0.25F, 0.25F, 0.5F)));
    EXPECT_THAT(colors.used, ElementsAre(kUnmapped, kUnmapped, kUnmapped, 0, kUnmapped, 1));
    EXPECT_EQ(currentColorSet(shape), "tint");
}

TEST_F(MeshSetsTest, AnElementFarBehindTheOthersIsNotFilledUpTo)
{
    makeTriangles();
    EXPECT_TRUE(writeNumbers(plug("m.uvst[0].uvsp[2147483647]"), {1, 1}));
    EXPECT_EQ(mesh().uvSets[0].values.size(), 3u);
}

TEST_F(MeshSetsTest, ANewSetGoesBehindTheOthersWhileThereIsRoom)
{
    makeTriangles();
    EXPECT_EQ(freeSlot(mesh().uvSets), 4);
    EXPECT_EQ(freeSlot(mesh().colorSets), 0);
    EXPECT_TRUE(writeString(plug("m.uvst[2147483647].uvsn"), "last"));
    EXPECT_EQ(mesh().uvSets.size(), 3u);
    EXPECT_EQ(freeSlot(mesh().uvSets), 1);
}

TEST_F(MeshSetsTest, TheCurrentSetIsTheNamedOneWhenItIsThere)
{
    makeTriangles();
    EXPECT_EQ(currentUvSet(shape), "map1");
    EXPECT_TRUE(writeString(plug("m.cuvs"), "other"));
    EXPECT_EQ(currentUvSet(shape), "other");
    EXPECT_TRUE(writeString(plug("m.cuvs"), "gone"));
    EXPECT_EQ(currentUvSet(shape), "map1");
}

TEST_F(MeshSetsTest, EditsOfAttributesWriteWhatDiffersAndCanBeTakenBack)
{
    makeTriangles();
    const std::string before = test::SceneState::of(scene);
    {
        const Journal::Command command(scene.journal(), "edit");
        EXPECT_TRUE(editSets(shape, [](MeshData& changed) {
            changed.uvSets[0].values[1] = Vec2f(0.125F, 0.25F);
            changed.uvSets[1].assign(5, 1);
            ColorSet colors;
            colors.name = "tint";
            colors.parts = ColorParts::alpha;
            colors.values = {Color4f(0, 0, 0, 0.5F)};
            colors.assign(3, 0);
            changed.colorSets.push_back(colors);
        }));
    }
    EXPECT_THAT(readNumbers(plug("m.uvst[0].uvsp[1]")).value, ElementsAre(0.125, 0.25));
    EXPECT_EQ(faceWords(0), "f 3 0 1 2\n\t\tmu 0 3 2 1 0\n\t\tmu 3 3 0 1 0");
    EXPECT_EQ(faceWords(1), "f 3 -3 3 4\n\t\tmu 3 3 0 1 1\n\t\tmc 0 3 0 -1 -1");
    EXPECT_EQ(number("m.clst[0].rprt"), 1);
    EXPECT_THAT(readNumbers(plug("m.clst[0].clsp[0]")).value, ElementsAre(0, 0, 0, 0.5));
    EXPECT_EQ(mesh().colorSets.size(), 1u);
    EXPECT_TRUE(scene.journal().undo());
    EXPECT_EQ(test::SceneState::of(scene), before);
    EXPECT_THAT(mesh().colorSets, IsEmpty());
    EXPECT_EQ(mesh().uvSets[0].values[1], Vec2f(0.5F, 0));
}

TEST_F(MeshSetsTest, SetsThatAreTakenAwayLeaveTheAttributes)
{
    makeTriangles();
    EXPECT_TRUE(editSets(shape, [](MeshData& changed) { changed.uvSets.pop_back(); }));
    EXPECT_THAT(existingElements(plug("m.uvst")), ElementsAre(0));
    EXPECT_EQ(faceWords(0), "f 3 0 1 2\n\t\tmu 0 3 2 1 0");
    EXPECT_EQ(faceWords(1), "f 3 -3 3 4");
}

TEST_F(MeshSetsTest, EditsOfAHeldMeshCanBeTakenBack)
{
    storeMesh(shape, makePlane({2, 2, 1, 1}));
    const Ref<Data> held = readData(plug("m.i")).value;
    {
        const Journal::Command command(scene.journal(), "edit");
        EXPECT_TRUE(editSets(shape, [](MeshData& changed) {
            changed.uvSets[0].values = {Vec2f(0, 0), Vec2f(1, 0), Vec2f(1, 1)};
            changed.uvSets[0].used = {0, 1, 2, 2};
        }));
    }
    EXPECT_EQ(mesh().uvSets[0].values.size(), 3u);
    EXPECT_THAT(static_cast<const MeshData&>(*held).uvSets[0].values, IsEmpty());
    EXPECT_TRUE(scene.journal().undo());
    EXPECT_THAT(mesh().uvSets[0].values, IsEmpty());
    EXPECT_TRUE(scene.journal().redo());
    settleMesh(shape);
    EXPECT_EQ(faceWords(0), "f 4 0 2 -4 -2\n\t\tmu 0 4 0 1 2 2");
    EXPECT_EQ(readString(plug("m.uvst[0].uvsn")).value, "map1");
    EXPECT_THAT(readNumbers(plug("m.uvst[0].uvsp[2]")).value, ElementsAre(1, 1));
    EXPECT_THAT(mesh().uvSets[0].used, ElementsAre(0, 1, 2, 2));
}

TEST_F(MeshSetsTest, SettlingWritesNothingOfSetsThatHoldNothing)
{
    storeMesh(shape, makePlane({2, 2, 1, 1}));
    settleMesh(shape);
    EXPECT_EQ(faceWords(0), "f 4 0 2 -4 -2");
    EXPECT_THAT(existingElements(plug("m.uvst")), IsEmpty());
}

TEST_F(MeshSetsTest, WhatHistoryMakesIsNotChanged)
{
    make("polyPlane", "p");
    ASSERT_TRUE(connect("p.out", "m.i"));
    const auto edit = [](MeshData& changed) { changed.uvSets.clear(); };
    EXPECT_EQ(editSets(shape, edit).reason, Reason::notWritable);
    EXPECT_EQ(mesh().uvSets.size(), 1u);
    EXPECT_EQ(editSets(*make("mesh", "empty").asDag(), edit).reason, Reason::noData);
}

TEST_F(MeshSetsTest, PrimitivesAreMappedInTheWayThatIsKnown)
{
    make("polyCube", "c");
    ASSERT_TRUE(connect("c.out", "m.i"));
    EXPECT_THAT(mesh().uvSets[0].values, IsEmpty());
    set("c.cuv", 4);
    EXPECT_EQ(mesh().uvSets[0].values.size(), 14u);
    set("c.sw", 2);
    EXPECT_EQ(mesh().uvSets[0].values.size(), 19u);
    set("c.cuv", 0);
    EXPECT_THAT(mesh().uvSets[0].values, IsEmpty());
}

TEST_F(MeshSetsTest, HistoryMovesTextureCoordinatesAndLosesThemWhereItCuts)
{
    make("polyPlane", "p");
    for (const auto& [name, value] : {std::pair("p.cuv", 2), {"p.sw", 1}, {"p.sh", 1}})
        set(name, value);
    make("polyTweakUV", "tweak");
    ASSERT_TRUE(connect("p.out", "tweak.ip"));
    ASSERT_TRUE(connect("tweak.out", "m.i"));
    EXPECT_TRUE(writeNumbers(plug("tweak.uvtk[3]"), {0.5, -0.25}));
    EXPECT_THAT(mesh().uvSets[0].values,
                ElementsAre(Vec2f(0, 0), Vec2f(1, 0), Vec2f(0, 1), Vec2f(1.5F, 0.75F)));
    EXPECT_TRUE(writeString(plug("tweak.uvs"), "none"));
    EXPECT_EQ(mesh().uvSets[0].values[3], Vec2f(1, 1));
    make("polyMapCut", "cut");
    ASSERT_TRUE(connect("tweak.out", "cut.ip"));
    ASSERT_TRUE(connect("cut.out", "m.i", true));
    EXPECT_EQ(mesh().points.size(), 4u);
    EXPECT_THAT(mesh().uvSets[0].values, IsEmpty());
    EXPECT_THAT(mesh().uvSets[0].used, IsEmpty());
}

} // namespace tvxhost::engine
