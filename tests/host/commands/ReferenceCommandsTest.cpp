// file -reference and its kin, referenceQuery.
#include "projectFixture.h"

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::HasSubstr;

class ReferenceCommandsTest : public ProjectFixture
{
protected:
    ReferenceCommandsTest() { writeChain("rig.ma", "body", "head"); }

    /// Writes a scene of two transforms, one below the other.
    void writeChain(const std::string& file, const std::string& top, const std::string& below) const
    {
        writeScene(file, "createNode transform -n \"" + top + "\";\ncreateNode transform -n \"" + below +
                             "\" -p \"" + top + "\";\n");
    }
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

TEST_F(ReferenceCommandsTest, aFileThatIsNoSceneIsAnErrorAndChangesNothing)
{
    folder.write("empty.ma", "");
    EXPECT_EQ(failure("file -reference \"empty.ma\""),
              "The file \"" + path("empty.ma") + "\" could not be referenced");
    EXPECT_EQ(failure("file -reference \".\""), "File not found: \"" + path(".") + "\"");
    EXPECT_EQ(run("size(`file -q -r`)"), "0");
    EXPECT_EQ(run("objExists emptyRN"), "0");
}

TEST_F(ReferenceCommandsTest, nothingIsTakenBackBehindNodesThatWentAlsoWhenNoneCameInstead)
{
    folder.write("empty.ma", "");
    run("file -reference \"rig.ma\"; createNode transform -n \"own\"");
    run("undoInfo -state on");
    run("connectAttr own.tx rig:body.tx");
    EXPECT_EQ(failure("file -loadReference noneRN"),
              "'noneRN' is not a reference file, reference node, or referenced node.");
    EXPECT_EQ(run("undo; undoInfo -q -redoName"), "connectAttr own.tx rig:body.tx");
    run("redo");
    EXPECT_EQ(failure("file -loadReference rigRN \"empty.ma\""), "The reference 'rigRN' could not be loaded");
    EXPECT_EQ(failure("undo"), "There are no more commands to undo.");
}

TEST_F(ReferenceCommandsTest, charactersThatNamesMayNotHaveBecomeLowLines)
{
    run("file -r -ns \"two words\" \"rig.ma\"; file -r -rpr \"my-own\" \"rig.ma\"");
    EXPECT_EQ(run("objExists \"|two_words:body|two_words:head\""), "1");
    EXPECT_EQ(run("objExists \"|my_own_body|my_own_head\""), "1");
    EXPECT_EQ(run("referenceQuery -namespace \"two_wordsRN\""), ":two_words");
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

TEST_F(ReferenceCommandsTest, aReferenceIsReplacedByAnotherFileWithItsEdits)
{
    writeChain("rig two.ma", "body", "tail");
    run("file -r -ns \"r\" \"rig.ma\"; setAttr \"r:body.v\" 0; setAttr \"r:head.v\" 0");
    EXPECT_EQ(failure("file -loadReference \"rRN\" \"none.ma\""),
              "File not found: \"" + path("none.ma") + "\"");
    EXPECT_EQ(run("objExists \"r:head\""), "1");
    EXPECT_EQ(run("file -loadReference \"rRN\" \"rig two.ma\""), path("rig two.ma"));
    EXPECT_EQ(run("objExists \"r:tail\""), "1");
    EXPECT_EQ(run("objExists \"r:head\""), "0");
    EXPECT_EQ(run("getAttr \"r:body.v\""), "0");
    EXPECT_THAT(strings("referenceQuery -es \"rRN\""), ElementsAre("setAttr |r:body.visibility 0"));
    EXPECT_THAT(strings("referenceQuery -es -fld 1 -scs 0 \"rRN\""),
                ElementsAre("setAttr |r:body|r:head.visibility 0"));
}

class ReferenceEditsTest : public ReferenceCommandsTest
{
protected:
    ReferenceEditsTest()
    {
        run("file -r -ns \"r\" \"rig.ma\"; setAttr \"r:body.v\" 0; createNode transform -n \"own\"; "
            "connectAttr own.tx \"r:head.tx\"; connectAttr \"r:head.ty\" own.ty; "
            "parent -r \"r:head\" own");
    }
};

TEST_F(ReferenceEditsTest, areToldAsStatementsNodesAttributesAndPlugs)
{
    EXPECT_THAT(strings("referenceQuery -editStrings \"rRN\""),
                ElementsAre("parent -s -r |r:body|r:head |own", "setAttr |r:body.visibility 0",
                            "connectAttr |own.translateX |own|r:head.translateX",
                            "connectAttr |own|r:head.translateY |own.translateY"));
    EXPECT_THAT(strings("referenceQuery -es -ec setAttr \"rRN\""),
                ElementsAre("setAttr |r:body.visibility 0"));
    EXPECT_THAT(strings("referenceQuery -es -ec setAttr \"r:head\""), ElementsAre());
    EXPECT_THAT(strings("referenceQuery -editNodes -ec connectAttr \"rRN\""),
                ElementsAre("|own", "|own|r:head", "|own|r:head", "|own"));
    EXPECT_THAT(strings("referenceQuery -editAttrs -ec setAttr \"r:body\""), ElementsAre("visibility"));
    EXPECT_THAT(strings("referenceQuery -editAttrs -editNodes -ec setAttr \"r:body\""),
                ElementsAre("|r:body.visibility"));
    EXPECT_THAT(strings("referenceQuery -es -ec setAttr -showNamespace 0 \"rRN\""),
                ElementsAre("setAttr |body.visibility 0"));
    EXPECT_THAT(strings("referenceQuery -es -ec parent -showDagPath 0 \"rRN\""),
                ElementsAre("parent -s -r r:head own"));
    EXPECT_EQ(failure("referenceQuery -es -ec move \"rRN\""),
              "There are no reference edits of the kind 'move'");
    EXPECT_THAT(failure("referenceQuery -es \"own\""), HasSubstr("'own' is not a reference file"));
}

TEST_F(ReferenceEditsTest, areToldAndRemovedWhileTheirNodesAreNotThere)
{
    run("file -unloadReference \"rRN\"");
    EXPECT_THAT(strings("referenceQuery -es \"rRN\""),
                ElementsAre("parent -s -r |r:body|r:head |own", "setAttr |r:body.visibility 0",
                            "connectAttr |own.translateX |own|r:head.translateX",
                            "connectAttr |own|r:head.translateY |own.translateY"));
    run("referenceEdit -removeEdits -successfulEdits 1 \"r:body.visibility\"");
    EXPECT_THAT(strings("referenceQuery -es -ec setAttr \"rRN\""), ElementsAre());
    run("referenceEdit -removeEdits -successfulEdits 1 -editCommand connectAttr \"rRN\"");
    EXPECT_THAT(strings("referenceQuery -es \"rRN\""), ElementsAre("parent -s -r |r:body|r:head |own"));
    EXPECT_EQ(run("size(`listConnections own`)"), "0") << "nothing is left at the placeholders";
    run("file -loadReference \"rRN\"");
    EXPECT_EQ(run("getAttr \"r:body.v\""), "1");
    EXPECT_EQ(run("objExists \"|own|r:head\""), "1");
}

TEST_F(ReferenceEditsTest, stayWhileTheirNodesAreThere)
{
    run("referenceEdit -removeEdits -successfulEdits 1 -failedEdits 1 \"rRN\"");
    EXPECT_EQ(run("size(`referenceQuery -es \"rRN\"`)"), "4");
    EXPECT_EQ(failure("referenceEdit \"rRN\""), "referenceEdit: nothing was asked for");
    EXPECT_EQ(failure("file -cleanReference \"rRN\""), "The reference 'rRN' is loaded: unload it first");
}

TEST_F(ReferenceEditsTest, areAllRemovedFromAReferenceThatIsCleaned)
{
    run("file -unloadReference \"rRN\"");
    EXPECT_EQ(run("file -cleanReference \"rRN\" -editCommand \"parent\""), path("rig.ma"));
    EXPECT_EQ(run("size(`referenceQuery -es \"rRN\"`)"), "3");
    run("file -cleanReference \"rRN\"");
    EXPECT_EQ(run("size(`referenceQuery -es \"rRN\"`)"), "0");
    run("file -loadReference \"rRN\"");
    EXPECT_EQ(run("getAttr \"r:body.v\""), "1");
    EXPECT_EQ(run("objExists \"|r:body|r:head\""), "1");
}

TEST_F(ReferenceEditsTest, thatFailAreAimedElsewhereAndApplied)
{
    writeChain("rig.ma", "torso", "head");
    run("file -loadReference \"rRN\"");
    EXPECT_THAT(strings("referenceQuery -es -fld 1 -scs 0 -ec setAttr \"rRN\""),
                ElementsAre("setAttr |r:body.visibility 0"));
    run("referenceEdit -changeEditTarget \"|r:body\" \"|r:torso\" \"rRN\"");
    run("referenceEdit -applyFailedEdits \"rRN\"");
    EXPECT_EQ(run("getAttr \"r:torso.v\""), "0");
    EXPECT_THAT(strings("referenceQuery -es -fld 1 -scs 0 -ec setAttr \"rRN\""), ElementsAre());
    run("referenceEdit -removeEdits \"rRN\"");
    EXPECT_THAT(strings("referenceQuery -es -fld 1 -scs 0 \"rRN\""), ElementsAre());
}

TEST_F(ReferenceEditsTest, stayWithTheNodesOfAReferenceThatIsImported)
{
    EXPECT_EQ(run("file -importReference -referenceNode \"rRN\""), path("rig.ma"));
    EXPECT_EQ(run("size(`file -q -r`)"), "0");
    EXPECT_EQ(run("objExists rRN"), "0");
    EXPECT_EQ(run("getAttr \"r:body.v\""), "0");
    EXPECT_EQ(run("connectionInfo -sfd \"r:head.tx\""), "own.translateX");
    EXPECT_EQ(run("rename \"r:body\" \"mine\""), "mine");
}

TEST_F(ReferenceCommandsTest, aReferenceWithinAnotherOneIsUnloadedAndLoadedAlone)
{
    writeScene("pair.ma", "file -r -ns \"one\" -rfn \"oneRN\" \"rig.ma\";\n"
                          "createNode reference -n \"oneRN\";\n");
    run("file -r -ns \"p\" \"pair.ma\"; setAttr \"p:one:body.v\" 0");
    EXPECT_EQ(run("file -unloadReference \"p:oneRN\""), path("rig.ma"));
    EXPECT_EQ(run("objExists \"p:one:body\""), "0");
    EXPECT_EQ(run("referenceQuery -isLoaded \"pRN\""), "1");
    EXPECT_EQ(run("file -loadReference \"p:oneRN\""), path("rig.ma"));
    EXPECT_EQ(run("getAttr \"p:one:body.v\""), "0");
    EXPECT_THAT(failure("file -importReference -rfn \"p:oneRN\""), HasSubstr("import that one first"));
}

TEST_F(ReferenceCommandsTest, aReferenceWithinAnotherOneIsReplacedByAnEditOfThat)
{
    writeScene("pair.ma", "file -rdi 1 -ns \"one\" -rfn \"oneRN\" \"rig.ma\";\n"
                          "file -r -ns \"one\" -dr 1 -rfn \"oneRN\" \"rig.ma\";\n"
                          "createNode reference -n \"oneRN\";\n");
    writeChain("two.ma", "body", "tail");
    run("file -r -ns \"p\" \"pair.ma\"; setAttr \"p:one:body.v\" 0");
    EXPECT_EQ(failure("file -loadReference \"p:oneRN\" \"none.ma\""),
              "File not found: \"" + path("none.ma") + "\"");
    EXPECT_EQ(run("objExists \"p:one:head\""), "1");
    EXPECT_EQ(run("file -loadReference \"p:oneRN\" \"two.ma\""), path("two.ma"));
    EXPECT_EQ(run("objExists \"p:one:head\""), "0");
    EXPECT_EQ(run("objExists \"p:one:tail\""), "1");
    EXPECT_EQ(run("getAttr \"p:one:body.v\""), "0");
    EXPECT_EQ(run("getAttr \"p:oneRN.fileNames[0]\""), path("two.ma"));
    EXPECT_THAT(strings("referenceQuery -es -ec setAttr \"pRN\""),
                ElementsAre("setAttr p:oneRN.fileNames[0] -type \"string\" \"" + path("two.ma") + "\"",
                            "setAttr p:oneRN.fileNames[1] -type \"string\" \"rig.ma\"",
                            "setAttr |p:one:body.visibility 0", "setAttr p:oneRN.fileNames -s 2"));
    EXPECT_THAT(failure("file -loadReference \"p:oneRN\" \"pair.ma\""), HasSubstr("could not be loaded"));
    run("file -unloadReference \"pRN\"; file -cleanReference \"pRN\"; file -loadReference \"pRN\"");
    EXPECT_EQ(run("objExists \"p:one:head\""), "1") << "the edit is gone";
}

/// A scene "shot.ma" that refers to a pair, which refers to the rig.
class ReferenceDepthTest : public ReferenceCommandsTest
{
protected:
    ReferenceDepthTest()
    {
        writeReferrer("pair.ma", "oneRN", "one", "rig.ma");
        writeReferrer("shot.ma", "pRN", "p", "pair.ma");
    }
    void writeReferrer(const std::string& name, const std::string& node, const std::string& space,
                       const std::string& file) const
    {
        const std::string rest = " -ns \"" + space + "\" -dr 1 -rfn \"" + node + "\" \"" + file + "\";\n";
        writeScene(name,
                   "file -rdi 1" + rest + "file -r" + rest + "createNode reference -n \"" + node + "\";\n");
    }
    /// Whether the outer and the inner reference are loaded.
    std::string loaded()
    {
        const auto isLoaded = [&](const std::string& node) {
            return run("objExists \"" + node + "\"") == "1" ? run("referenceQuery -isLoaded \"" + node + "\"")
                                                            : "-";
        };
        return isLoaded("pRN") + isLoaded("p:oneRN");
    }
};

TEST_F(ReferenceDepthTest, saysWhichReferencesOfASceneAreLoaded)
{
    run("file -f -o \"shot.ma\"");
    EXPECT_EQ(loaded(), "0-") << "as it was saved";
    run("file -f -o -loadReferenceDepth \"topOnly\" \"shot.ma\"");
    EXPECT_EQ(loaded(), "10");
    run("file -f -o -lrd \"all\" \"shot.ma\"");
    EXPECT_EQ(loaded(), "11");
    run("file -f -new; file -i -lrd \"all\" \"shot.ma\"");
    EXPECT_EQ(loaded(), "11");
    run("file -f -o -lrd \"none\" \"shot.ma\"");
    EXPECT_EQ(loaded(), "0-");
    EXPECT_EQ(failure("file -f -o -lrd \"asPrefs\" \"shot.ma\""),
              "Invalid value 'asPrefs' of -loadReferenceDepth: all, none or topOnly");
}

TEST_F(ReferenceDepthTest, countsFromTheReferenceThatIsLoaded)
{
    run("file -f -o \"shot.ma\"; file -lrd \"topOnly\" -loadReference \"pRN\"");
    EXPECT_EQ(loaded(), "10");
    run("file -lrd \"topOnly\" -loadReference \"p:oneRN\"");
    EXPECT_EQ(loaded(), "11");
    run("file -lrd \"asPrefs\" -loadReference \"pRN\"");
    EXPECT_EQ(loaded(), "10");
    run("file -lrd \"all\" -loadReference \"pRN\"");
    EXPECT_EQ(loaded(), "11");
    run("file -f -new; file -r -ns \"p\" -lrd \"all\" \"pair.ma\"");
    EXPECT_EQ(loaded(), "11");
    run("file -f -new; file -r -ns \"p\" -lrd \"none\" \"pair.ma\"");
    EXPECT_EQ(loaded(), "0-");
}

TEST_F(ReferenceDepthTest, noneReplacesAFileWithoutLoadingIt)
{
    writeScene("two.ma", "createNode transform -n \"tail\";\n");
    run("file -f -o -lrd \"all\" \"shot.ma\"");
    EXPECT_EQ(run("file -lrd \"none\" -loadReference \"p:oneRN\" \"two.ma\""), path("two.ma"));
    EXPECT_EQ(loaded(), "10");
    run("file -loadReference \"p:oneRN\"");
    EXPECT_EQ(run("objExists \"p:one:tail\""), "1");
    EXPECT_EQ(run("file -lrd \"none\" -loadReference \"pRN\" \"two.ma\""), path("two.ma"));
    EXPECT_EQ(loaded(), "0-");
    EXPECT_EQ(run("file -lrd \"none\" -loadReference \"pRN\""), path("two.ma"));
    EXPECT_EQ(failure("file -lrd \"none\" -loadReference \"pRN\" \"gone.ma\""),
              "File not found: \"" + path("gone.ma") + "\"");
}

} // namespace tvxhost::mel
