// file -reference and its kin, referenceQuery.
#include "CommandFixture.h"

#include "../support/temporaryFolder.h"

#include <fstream>

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::HasSubstr;

class ReferenceCommandsTest : public CommandFixture
{
protected:
    void SetUp() override
    {
        session.workspace.open(m_folder.path());
        std::ofstream(m_folder / "rig.ma") << "//Maya ASCII 2016 scene\ncreateNode transform -n \"body\";\n"
                                              "createNode transform -n \"head\" -p \"body\";\n";
    }

    std::string path(const std::string& name) const { return (m_folder / name).string(); }

    test::TemporaryFolder m_folder;
};

TEST_F(ReferenceCommandsTest, aFileIsReferencedUnderItsNameOrANamespace)
{
    EXPECT_EQ(run("file -reference \"rig.ma\""), path("rig.ma"));
    EXPECT_EQ(run("objExists \"rig:head\""), "1");
    EXPECT_EQ(run("file -r -namespace \"two\" \"rig.ma\""), path("rig.ma") + "{1}");
    EXPECT_EQ(run("objExists \"|two:body|two:head\""), "1");
    EXPECT_EQ(run("nodeType twoRN"), "reference");
    EXPECT_EQ(run("file -r -rpr \"my\" \"rig.ma\""), path("rig.ma") + "{2}");
    EXPECT_EQ(run("objExists \"|my_body|my_head\""), "1");
    EXPECT_THAT(strings("file -q -reference"),
                ElementsAre(path("rig.ma"), path("rig.ma") + "{1}", path("rig.ma") + "{2}"));
    EXPECT_EQ(run("file -q -referenceNode \"" + path("rig.ma") + "{1}\""), "twoRN");
}

TEST_F(ReferenceCommandsTest, aMissingFileIsAnErrorAndChangesNothing)
{
    EXPECT_EQ(failure("file -reference \"none.ma\""), "File not found: \"" + path("none.ma") + "\"");
    EXPECT_EQ(run("size(`file -q -r`)"), "0");
    EXPECT_EQ(run("objExists noneRN"), "0");
}

TEST_F(ReferenceCommandsTest, nodesOfAReferenceCannotBeDeletedOrRenamed)
{
    run("file -r -ns \"r\" \"rig.ma\"");
    failure("delete \"r:body\"");
    failure("rename \"r:body\" \"mine\"");
    EXPECT_EQ(run("objExists \"r:body\""), "1");
}

TEST_F(ReferenceCommandsTest, itIsUnloadedLoadedAndRemoved)
{
    run("file -r -ns \"r\" \"rig.ma\"; setAttr \"r:body.tx\" 3");
    EXPECT_EQ(run("file -unloadReference \"rRN\""), path("rig.ma"));
    EXPECT_EQ(run("objExists \"r:body\""), "0");
    EXPECT_EQ(run("referenceQuery -isLoaded \"rRN\""), "0");
    EXPECT_EQ(run("file -q -deferReference \"rRN\""), "1");
    EXPECT_EQ(run("file -loadReference \"rRN\""), path("rig.ma"));
    EXPECT_EQ(run("getAttr \"r:body.tx\""), "3");
    EXPECT_EQ(run("file -removeReference -referenceNode \"rRN\""), path("rig.ma"));
    EXPECT_EQ(run("objExists \"r:body\""), "0");
    EXPECT_EQ(run("objExists rRN"), "0");
    EXPECT_EQ(run("size(`file -q -r`)"), "0");
}

TEST_F(ReferenceCommandsTest, itIsSavedAndComesBack)
{
    run("file -r -ns \"r\" \"rig.ma\"; setAttr \"r:head.ty\" 5; file -rename \"shot.ma\"; file -save");
    run("file -f -new; file -o \"shot.ma\"");
    EXPECT_EQ(run("getAttr \"r:head.ty\""), "5");
    EXPECT_EQ(run("referenceQuery -isNodeReferenced \"r:head\""), "1");
}

TEST_F(ReferenceCommandsTest, referenceQueryTellsAboutNodesFilesAndReferenceNodes)
{
    run("file -r -ns \"r\" \"rig.ma\"; createNode transform -n \"own\"");
    for (const std::string& name : {std::string("rRN"), path("rig.ma"), std::string("r:head")}) {
        EXPECT_EQ(run("referenceQuery -filename \"" + name + "\""), path("rig.ma"));
        EXPECT_EQ(run("referenceQuery -f -shortName \"" + name + "\""), "rig.ma");
        EXPECT_EQ(run("referenceQuery -referenceNode \"" + name + "\""), "rRN");
        EXPECT_EQ(run("referenceQuery -namespace \"" + name + "\""), ":r");
        EXPECT_THAT(strings("referenceQuery -nodes \"" + name + "\""), ElementsAre("r:body", "r:head"));
    }
    EXPECT_EQ(run("referenceQuery -isNodeReferenced \"own\""), "0");
    EXPECT_THAT(failure("referenceQuery -filename \"own\""),
                HasSubstr("'own' is not a reference file, reference node, or referenced node."));
}

} // namespace tvxhost::mel
