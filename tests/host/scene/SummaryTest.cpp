// The summary of a scene as text and as JSON.
#include "SceneFixture.h"

#include <gmock/gmock.h>

namespace tvxhost::scene {

using testing::HasSubstr;

class SummaryTest : public SceneFixture
{
protected:
    SceneSummary summary()
    {
        return read("requires maya \"2016\";\nrequires \"fancy\" \"1\";\n"
                    "createNode transform -n \"a\";\n\tsetAttr \".tx\" 1;\n"
                    "createNode transform -n \"b\";\ncreateNode Fancy -n \"f\";\n\tsetAttr \".x\" 1;\n"
                    "connectAttr \"a.tx\" \"b.tx\";\nconnectAttr \"f.x\" \"b.ty\";\n")
            .summary;
    }
};

TEST_F(SummaryTest, countsStatementsNodesAndConnections)
{
    EXPECT_EQ(toText(summary()), "file: /scenes/test.ma\n"
                                 "version: 2016\n"
                                 "statements: 9\n"
                                 "  connectAttr: 2\n"
                                 "  createNode: 3\n"
                                 "  requires: 2\n"
                                 "  setAttr: 2\n"
                                 "nodes: 3\n"
                                 "  Fancy: 1\n"
                                 "  transform: 2\n"
                                 "unknown nodes: 1\n"
                                 "  Fancy: 1\n"
                                 "meshes: 0\n"
                                 "plug-ins: fancy\n"
                                 "connections: 1\n"
                                 "kept statements: 3\n"
                                 "warnings: 2\n"
                                 "errors: 0\n");
}

TEST_F(SummaryTest, isOneJsonObjectOnOneLine)
{
    EXPECT_EQ(toJson(summary()),
              "{\"file\":\"/scenes/test.ma\",\"version\":\"2016\",\"statements\":9,"
              "\"commands\":{\"connectAttr\":2,\"createNode\":3,\"requires\":2,\"setAttr\":2},"
              "\"nodes\":{\"Fancy\":1,\"transform\":2},\"unknownNodes\":{\"Fancy\":1},\"meshes\":[],"
              "\"plugins\":[\"fancy\"],"
              "\"connections\":1,\"keptStatements\":3,\"warnings\":2,\"errors\":0}\n");
}

TEST_F(SummaryTest, tellsTheMemoryWhenItWasAskedFor)
{
    SceneSummary summary;
    summary.peakMemory = 12'345'678;
    EXPECT_THAT(toText(summary), HasSubstr("\npeak memory: 12 MB\nwarnings: 0\n"));
    EXPECT_THAT(toJson(summary), HasSubstr("\"peakMemory\":12345678,\"warnings\":0,"));
    EXPECT_GT(peakMemory(), 1'000'000u);
}

TEST_F(SummaryTest, listsMeshesWithTheirBorderEdges)
{
    SceneSummary summary =
        read("createNode transform -n \"plane\";\n"
             "createNode mesh -n \"planeShape\" -p \"plane\";\n"
             "\tsetAttr -s 4 \".vt[0:3]\"  0 0 0 1 0 0 1 1 0 0 1 0;\n"
             "\tsetAttr -s 5 \".ed[0:4]\"  0 1 0 1 2 0 2 3 0 3 0 0 0 2 0;\n"
             "\tsetAttr -s 2 -ch 6 \".fc[0:1]\" -type \"polyFaces\" \n\t\tf 3 0 1 -5\n\t\tf 3 4 2 3;\n"
             "createNode transform -n \"cube\";\n"
             "createNode mesh -n \"cubeShape\" -p \"cube\";\n"
             "createNode mesh -n \"empty\" -p \"cube\";\n"
             "createNode polyCube -n \"polyCube1\";\n"
             "connectAttr \"polyCube1.out\" \"cubeShape.i\";\n")
            .summary;
    EXPECT_TRUE(summary.meshes.empty());
    summary.meshes = summarizeMeshes(scene);
    EXPECT_THAT(toText(summary), HasSubstr("\nmeshes: 3\n"
                                           "  planeShape: 4 vertices, 5 edges, 2 faces, 4 border edges\n"
                                           "  cubeShape: 8 vertices, 12 edges, 6 faces, 0 border edges\n"
                                           "  empty: 0 vertices, 0 edges, 0 faces, 0 border edges\n"
                                           "plug-ins: \n"));
    EXPECT_THAT(
        toJson(summary),
        HasSubstr(
            "\"meshes\":[{\"name\":\"planeShape\",\"vertices\":4,\"edges\":5,\"faces\":2,\"borderEdges\":4},"
            "{\"name\":\"cubeShape\",\"vertices\":8,\"edges\":12,\"faces\":6,\"borderEdges\":0},"
            "{\"name\":\"empty\",\"vertices\":0,\"edges\":0,\"faces\":0,\"borderEdges\":0}],"));
}

} // namespace tvxhost::scene
