// The summary of a scene as text and as JSON.
#include "SceneFixture.h"

namespace tvxhost::scene {

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
                                 "plug-ins: fancy\n"
                                 "connections: 1\n"
                                 "kept statements: 3\n"
                                 "warnings: 2\n"
                                 "errors: 0\n");
}

TEST_F(SummaryTest, isOneJsonObjectOnOneLine)
{
    EXPECT_EQ(
        toJson(summary()),
        "{\"file\":\"/scenes/test.ma\",\"version\":\"2016\",\"statements\":9,"
        "\"commands\":{\"connectAttr\":2,\"createNode\":3,\"requires\":2,\"setAttr\":2},"
        "\"nodes\":{\"Fancy\":1,\"transform\":2},\"unknownNodes\":{\"Fancy\":1},\"plugins\":[\"fancy\"],"
        "\"connections\":1,\"keptStatements\":3,\"warnings\":2,\"errors\":0}\n");
}

} // namespace tvxhost::scene
