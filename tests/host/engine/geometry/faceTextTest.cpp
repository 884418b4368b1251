// Faces as words and as loops.
#include "engine/geometry/faceText.h"

#include <gmock/gmock.h>

namespace tvxhost::engine {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FaceTextTest, HolesAreReadAndTexturesSkipped)
{
    MeshFace face;
    ASSERT_TRUE(readFace("f 3 0 1 2 mu 1 3 0 1 2 h 3 -5 -6 -7\n\tmc 0 3 4 5 6", face));
    EXPECT_THAT(face.edges, ElementsAre(0, 1, 2));
    ASSERT_EQ(face.holes.size(), 1u);
    EXPECT_THAT(face.holes[0], ElementsAre(-5, -6, -7));
}

TEST(FaceTextTest, FacesByVerticesAndColoursAreSkipped)
{
    MeshFace face;
    ASSERT_TRUE(readFace("f 3 0 1 2 mf 3 9 8 7 mh 3 6 5 4 fc 3 3 2 1", face));
    EXPECT_THAT(face.edges, ElementsAre(0, 1, 2));
    EXPECT_THAT(face.holes, IsEmpty());
}

TEST(FaceTextTest, WhatCornersHaveInSetsBelongsToTheLoopBeforeIt)
{
    MeshFace face;
    FaceMaps maps;
    ASSERT_TRUE(readFace(
        "f 4 0 1 2 3 mu 0 4 9 8 7 6 mu 2 4 0 1 2 3 mc 1 4 -1 5 -1 6 h 3 -5 -6 -7 mu 0 3 5 4 3", face, &maps));
    ASSERT_EQ(maps.uvs.size(), 3u);
    EXPECT_EQ(maps.uvs[0].firstCorner, 0u);
    EXPECT_EQ(maps.uvs[0].slot, 0);
    EXPECT_THAT(maps.uvs[0].used, ElementsAre(9, 8, 7, 6));
    EXPECT_EQ(maps.uvs[1].slot, 2);
    EXPECT_EQ(maps.uvs[2].firstCorner, 4u);
    EXPECT_THAT(maps.uvs[2].used, ElementsAre(5, 4, 3));
    ASSERT_EQ(maps.colors.size(), 1u);
    EXPECT_EQ(maps.colors[0].slot, 1);
    EXPECT_THAT(maps.colors[0].used, ElementsAre(-1, 5, -1, 6));
}

TEST(FaceTextTest, EachLoopIsWrittenBeforeWhatItHasInSets)
{
    FaceTable faces;
    faces.add({{1, 2, 3}, {{-5, -6, -7}}});
    const FaceMaps maps{{{0, 0, {4, 5, 6}}, {0, 1, {0, 1, 2}}, {3, 0, {7, 8, 9}}}, {{0, 0, {-1, 1, 2}}}};
    EXPECT_EQ(faceText(faces, 0, maps), "f 3 1 2 3\n\t\tmu 0 3 4 5 6\n\t\tmu 1 3 0 1 2\n\t\tmc 0 3 -1 1 "
                                        "2\n\t\th 3 -5 -6 -7\n\t\tmu 0 3 7 8 9");
}

TEST(FaceTextTest, OtherWordsAreNoFace)
{
    for (const char* words :
         {"", "g 3 0 1 2", "f", "f x", "f 3 0 1", "f -1", "f 3 0 1 2 zz 1 2", "f 3 0 1 2 mu"}) {
        MeshFace face;
        EXPECT_FALSE(readFace(words, face)) << words;
    }
}

TEST(FaceTextTest, WhatIsWrittenIsWhatFilesHave)
{
    FaceTable faces;
    faces.add({{0, 17, -3, -17}, {}});
    faces.add({{1, 2, 3}, {{-5, -6, -7}, {8, 9, 10, 11}}});
    faces.addFace();
    EXPECT_EQ(faceText(faces, 0), "f 4 0 17 -3 -17");
    EXPECT_EQ(faceText(faces, 1), "f 3 1 2 3\n\t\th 3 -5 -6 -7\n\t\th 4 8 9 10 11");
    EXPECT_EQ(faceText(faces, 2), "f 0");
}

TEST(FaceTableTest, LoopsAndCornersStandSideBySide)
{
    FaceTable faces;
    faces.add({{0, 1, 2}, {{3, 4, 5}}});
    faces.add({{}, {}});
    faces.add({{6, 7, 8, 9}, {}});
    ASSERT_EQ(faces.size(), 3u);
    EXPECT_EQ(faces.loopCount(0), 2u);
    EXPECT_THAT(faces.loop(0, 1), ElementsAre(3, 4, 5));
    EXPECT_THAT(faces.corners(0), ElementsAre(0, 1, 2, 3, 4, 5));
    EXPECT_THAT(faces.outline(1), IsEmpty());
    EXPECT_EQ(faces.firstCorner(2), 6u);
    EXPECT_THAT(faces.outline(2), ElementsAre(6, 7, 8, 9));
    EXPECT_EQ(faces.cornerCount(), 10u);
}

} // namespace

} // namespace tvxhost::engine
