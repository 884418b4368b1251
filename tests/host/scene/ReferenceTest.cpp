// References: other files' nodes in a scene, changed by its edits, and saved as edits only.
#include "SceneFixture.h"

#include "scene/references.h"

#include "../support/temporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace tvxhost::scene {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using engine::Outcome;

class ReferenceTest : public SceneFixture
{
protected:
    static constexpr const char* kRig =
        "//Maya ASCII 2016 scene\n"
        "currentUnit -l meter -a degree -t film;\n"
        "createNode transform -s -n \"persp\";\n\tsetAttr \".t\" -type \"double3\" 9 9 9 ;\n"
        "createNode transform -n \"body\";\n\tsetAttr \".t\" -type \"double3\" 1 2 3 ;\n"
        "createNode transform -n \"head\" -p \"body\";\n"
        "createNode mesh -n \"headShape\" -p \"head\";\n"
        "createNode reverse -n \"flip\";\n"
        "select -ne :time1;\n\tsetAttr \".o\" 77;\n"
        "connectAttr \"flip.ox\" \"|body|head.sy\";\n"
        "connectAttr \"headShape.iog\" \":initialShadingGroup.dsm\" -na;\n";

    void SetUp() override { file("rig.ma", kRig); }

    std::string file(const std::string& name, const std::string& content)
    {
        m_folder.write(name, content);
        return m_folder.path(name);
    }
    ReadResult open(const std::string& body)
    {
        scene.scriptEditor().clearHistory();
        return openScene(scene, file("shot.ma", kHeader + body));
    }
    /// Saves, opens what was saved and saves again: the same text, which is given.
    std::string savedTwice()
    {
        const std::string first = saved();
        file("saved.ma", first);
        EXPECT_TRUE(openScene(scene, m_folder / "saved.ma").isClean());
        EXPECT_EQ(saved(), first);
        return first;
    }

    test::TemporaryFolder m_folder;
};

TEST_F(ReferenceTest, bringsTheNodesOfItsFileInANamespace)
{
    EXPECT_TRUE(open("file -r -ns \"r\" -rfn \"rRN\" -typ \"mayaAscii\" \"rig.ma\";\n").isClean());
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(engine::DagPath::firstTo(*node("r:head").asDag()).fullName(), "|r:body|r:head");
    EXPECT_THAT(numbers("r:body.t"), ElementsAre(100, 200, 300)) << "metres, in centimetres";
    EXPECT_EQ(source("r:head.sy"), "r:flip.outputX");
    EXPECT_TRUE(node("r:head").isReferenced);
    EXPECT_FALSE(scene.findNode("r:persp"));
    EXPECT_EQ(scene.units().linear, engine::Units().linear);
    EXPECT_EQ(scene.currentNamespace(), ":");
}

TEST_F(ReferenceTest, leavesWhatEverySceneHasAsItIs)
{
    const auto before = numbers("persp.t");
    open("file -r -ns \"r\" \"rig.ma\";\n");
    EXPECT_EQ(numbers("persp.t"), before);
    EXPECT_THAT(numbers(":time1.o"), Not(ElementsAre(77 / 24.0)));
}

TEST_F(ReferenceTest, bringsThemWithAPrefix)
{
    EXPECT_TRUE(open("file -r -rpr \"solar\" \"rig.ma\";\n").isClean());
    EXPECT_EQ(engine::DagPath::firstTo(*node("solar_head").asDag()).fullName(), "|solar_body|solar_head");
    EXPECT_THAT(savedTwice(), HasSubstr("file -r -rpr \"solar\" -dr 1 \"rig.ma\";\n"));
}

TEST_F(ReferenceTest, isFoundThroughVariablesAndInTheProject)
{
    ::setenv("TVX_TEST_RIGS", m_folder.path().c_str(), 1);
    EXPECT_TRUE(open("file -r -ns \"r\" \"$TVX_TEST_RIGS/rig.ma\";\n").isClean());
    EXPECT_TRUE(scene.findNode("r:body"));
    EXPECT_TRUE(open("file -r -ns \"r\" \"${TVX_TEST_RIGS}/rig.ma\";\n").isClean());
    EXPECT_TRUE(scene.findNode("r:body"));

    const test::TemporaryFolder elsewhere;
    elsewhere.write("shot.ma", std::string(kHeader) + "file -r -ns \"r\" \"C:/projects//rig.ma\";\n");
    ReadOptions options;
    options.projectFolders = {m_folder.path()};
    EXPECT_TRUE(openScene(scene, elsewhere / "shot.ma", options).isClean());
    EXPECT_TRUE(scene.findNode("r:body"));
}

TEST_F(ReferenceTest, staysWithItsEditsWhenItsFileIsMissing)
{
    const std::string body = "file -rdi 1 -ns \"r\" -rfn \"rRN\" -typ \"mayaAscii\" \"none.ma\";\n"
                             "file -r -ns \"r\" -dr 1 -rfn \"rRN\" -typ \"mayaAscii\" \"none.ma\";\n"
                             "createNode animCurveTL -n \"curve\";\n"
                             "createNode reference -n \"rRN\";\n"
                             "\tsetAttr \".phl[1]\" 0;\n"
                             "\tsetAttr \".ed\" -type \"dataReferenceEdits\" \n\t\t\"rRN\"\n\t\t\"rRN\" 1\n"
                             "\t\t5 4 \"rRN\" \"|r:body.translateX\" \"rRN.placeHolderList[1]\" \"\";\n"
                             "connectAttr \"curve.o\" \"rRN.phl[1]\";\n";
    const ReadResult result = open(body);
    EXPECT_EQ(result.summary.warnings, 1u);
    EXPECT_EQ(result.summary.errors, 0u);
    EXPECT_THAT(messages(), ElementsAre(HasSubstr("line 3: Reference file not found: \"none.ma\"\n")));
    const std::string text = saved();
    EXPECT_THAT(text, HasSubstr("file -r -ns \"r\" -dr 1 -rfn \"rRN\" -typ \"mayaAscii\" \"none.ma\";\n"));
    EXPECT_THAT(text, HasSubstr("\t\t5 4 \"rRN\" \"|r:body.translateX\" \"rRN.placeHolderList[1]\" \"\";\n"));
    EXPECT_THAT(text, HasSubstr("connectAttr \"curve.o\" \"rRN.phl[1]\";\n"));
}

TEST_F(ReferenceTest, isNotLoadedWhenItIsDeferred)
{
    EXPECT_TRUE(open("file -rdi 1 -ns \"r\" -dr 1 -rfn \"rRN\" \"rig.ma\";\n"
                     "file -r -ns \"r\" -dr 1 -rfn \"rRN\" \"rig.ma\";\n")
                    .isClean());
    EXPECT_FALSE(scene.findNode("r:body"));
    EXPECT_THAT(savedTwice(), HasSubstr("file -rdi 1 -ns \"r\" -dr 1 -rfn \"rRN\" \"rig.ma\";\n"));
}

constexpr const char* kEdited =
    "file -rdi 1 -ns \"r\" -rfn \"rRN\" -typ \"mayaAscii\" \"rig.ma\";\n"
    "file -r -ns \"r\" -dr 1 -rfn \"rRN\" -typ \"mayaAscii\" \"rig.ma\";\n"
    "createNode transform -n \"group\";\n"
    "createNode fosterParent -n \"rRNfosterParent1\";\n"
    "createNode transform -n \"hat\" -p \"rRNfosterParent1\";\n"
    "createNode transform -n \"follower\";\n"
    "createNode animCurveTL -n \"curve\";\n"
    "createNode reference -n \"rRN\";\n"
    "\tsetAttr -s 4 \".phl\";\n\tsetAttr \".phl[1]\" 0;\n\tsetAttr \".phl[2]\" 0;\n\tsetAttr \".phl[3]\" 0;\n"
    "\tsetAttr \".phl[4]\" 0;\n"
    "\tsetAttr \".ed\" -type \"dataReferenceEdits\" \n\t\t\"rRN\"\n\t\t\"rRN\" 0\n\t\t\"rRN\" 9\n"
    "\t\t0 \"|r:body\" \"|group\" \"-s -r \"\n"
    "\t\t0 \"|rRNfosterParent1|hat\" \"|group|r:body|r:head\" \"-s -r \"\n"
    "\t\t1 |group|r:body \"blend\" \"bl\" \" -ci 1 -k 1 -dv 1 -at \\\"double\\\"\"\n"
    "\t\t2 \"|group|r:body\" \"translate\" \" -type \\\"double3\\\" 4 5 6\"\n"
    "\t\t2 \"|group|r:body\" \"visibility\" \" -k 0 1\"\n"
    "\t\t3 \"r:flip.outputX\" \"|group|r:body|r:head.scaleY\" \"\"\n"
    "\t\t5 3 \"rRN\" \"|group|r:body.translateY\" \"rRN.placeHolderList[1]\" \"\"\n"
    "\t\t5 4 \"rRN\" \"|group|r:body.rotateX\" \"rRN.placeHolderList[2]\" \"\"\n"
    "\t\t5 0 \"rRN\" \"|group|r:body.scaleX\" \"|group|r:body|r:head.scaleX\" \n"
    "\t\t\"rRN.placeHolderList[3]\" \"rRN.placeHolderList[4]\" \"\";\n"
    "lockNode -l 1 ;\n"
    "connectAttr \"rRN.phl[1]\" \"follower.ty\";\nconnectAttr \"curve.o\" \"rRN.phl[2]\";\n"
    "connectAttr \"rRN.phl[3]\" \"rRN.phl[4]\";\n";

TEST_F(ReferenceTest, takesTheEditsOfItsNode)
{
    EXPECT_TRUE(open(kEdited).isClean());
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(engine::DagPath::firstTo(*node("r:head").asDag()).fullName(), "|group|r:body|r:head");
    EXPECT_EQ(engine::DagPath::firstTo(*node("hat").asDag()).fullName(), "|group|r:body|r:head|hat");
    EXPECT_FALSE(scene.findNode("rRNfosterParent1"));
    EXPECT_THAT(numbers("r:body.t"), ElementsAre(4, 5, 6));
    EXPECT_THAT(numbers("r:body.blend"), ElementsAre(1));
    EXPECT_FALSE(engine::stateOf(scene.findPlug("r:body.v").value).keyable.value());
    EXPECT_EQ(source("r:head.sy"), "");
    EXPECT_EQ(source("follower.ty"), "r:body.translateY");
    EXPECT_NE(source("r:body.rx"), "");
    EXPECT_EQ(source("r:head.sx"), "r:body.scaleX");
}

TEST_F(ReferenceTest, isSavedAsItsEditsOnly)
{
    open(kEdited);
    const std::string text = savedTwice();
    EXPECT_THAT(text, Not(HasSubstr("createNode transform -n \"r:body\"")));
    EXPECT_THAT(text, HasSubstr("createNode transform -n \"hat\" -p \"rRNfosterParent1\";\n"));
    EXPECT_THAT(text, HasSubstr("\n\t\t0 \"|r:body\" \"|group\" \"-s -r \"\n"));
    EXPECT_THAT(text,
                HasSubstr("\n\t\t2 \"|group|r:body\" \"translate\" \" -type \\\"double3\\\" 4 5 6\"\n"));
    EXPECT_THAT(text, HasSubstr("\n\t\t3 \"r:flip.outputX\" \"|group|r:body|r:head.scaleY\" \"\"\n"));
    EXPECT_THAT(text, HasSubstr("connectAttr \"rRN.phl[3]\" \"rRN.phl[4]\";\n"));
}

TEST_F(ReferenceTest, savesWhatIsChangedLater)
{
    open("file -r -ns \"r\" -rfn \"rRN\" \"rig.ma\";\ncreateNode reference -n \"rRN\";\n");
    ASSERT_TRUE(engine::writeNumbers(scene.findPlug("r:body.t").value, {0, 0, 0}));
    ASSERT_TRUE(engine::writeNumber(scene.findPlug("r:flip.ix").value, 0.25));
    const std::string text = savedTwice();
    EXPECT_THAT(text, HasSubstr("\n\t\t\"rRN\"\n\t\t\"rRN\" 0\n\t\t\"rRN\" 2\n"
                                "\t\t2 \"|r:body\" \"translate\" \" -type \\\"double3\\\" 0 0 0\"\n"
                                "\t\t2 \"r:flip\" \"input\" \" -type \\\"float3\\\" 0.25 0 0\";\n"));
}

TEST_F(ReferenceTest, keepsEditsOfNodesThatAreNotThere)
{
    open("file -r -ns \"r\" -rfn \"rRN\" \"rig.ma\";\ncreateNode reference -n \"rRN\";\n"
         "\tsetAttr \".ed\" -type \"dataReferenceEdits\" \"rRN\" \"rRN\" 1\n"
         "\t\t2 \"|r:tail\" \"visibility\" \" 0\";\n");
    EXPECT_THAT(savedTwice(), HasSubstr("\t\t2 \"|r:tail\" \"visibility\" \" 0\";\n"));
}

TEST_F(ReferenceTest, mayReferToOthersAndThoseToIt)
{
    file("pair.ma", std::string(kHeader) +
                        "file -r -ns \"one\" -rfn \"oneRN\" \"rig.ma\";\n"
                        "createNode reference -n \"oneRN\";\ncreateNode transform -n \"top\";\n"
                        "parent -r \"one:body\" \"top\";\n");
    EXPECT_TRUE(open("file -r -ns \"p\" -rfn \"pRN\" \"pair.ma\";\ncreateNode reference -n \"pRN\";\n"
                     "\tsetAttr \".ed\" -type \"dataReferenceEdits\" \"pRN\" \"pRN\" 0 \"p:oneRN\" 1\n"
                     "\t\t2 \"p:one:flip\" \"inputX\" \" 0.5\";\n")
                    .isClean());
    EXPECT_THAT(numbers("p:one:flip.ix"), ElementsAre(0.5));
    EXPECT_THAT(savedTwice(), HasSubstr("file -rdi 2 -ns \"one\" -rfn \"p:oneRN\" \"rig.ma\";\n"));

    file("self.ma", std::string(kHeader) + "file -r -ns \"again\" \"self.ma\";\n");
    EXPECT_EQ(open("file -r -ns \"s\" \"self.ma\";\n").summary.warnings, 1u);
    EXPECT_THAT(messages().front(), HasSubstr("refers to itself"));
}

TEST_F(ReferenceTest, keepsThePlaceholdersOfEditsThatFailApartFromOthers)
{
    open("file -r -ns \"r\" -rfn \"rRN\" \"rig.ma\";\ncreateNode transform -n \"follower\";\n"
         "createNode reference -n \"rRN\";\n\tsetAttr \".phl[1]\" 0;\n"
         "\tsetAttr \".ed\" -type \"dataReferenceEdits\" \"rRN\" \"rRN\" 0 \"rRN\" 1\n"
         "\t\t5 3 \"rRN\" \"|r:tail.translateX\" \"rRN.placeHolderList[1]\" \"\";\n"
         "connectAttr \"rRN.phl[1]\" \"follower.tx\";\n");
    ASSERT_TRUE(scene.connect(scene.findPlug("r:body.ty").value, scene.findPlug("follower.ty").value, false));
    const std::string text = savedTwice();
    EXPECT_THAT(text, HasSubstr("\t\t\"rRN\" 1\n"
                                "\t\t5 3 \"rRN\" \"|r:tail.translateX\" \"rRN.placeHolderList[1]\" \"\"\n"
                                "\t\t\"rRN\" 1\n"
                                "\t\t5 3 \"rRN\" \"|r:body.translateY\" \"rRN.placeHolderList[2]\" \"\";\n"));
    EXPECT_THAT(text, HasSubstr("connectAttr \"rRN.phl[1]\" \"follower.tx\";\n"));
    EXPECT_THAT(text, HasSubstr("connectAttr \"rRN.phl[2]\" \"follower.ty\";\n"));
}

/// A shot that refers to a pair, which refers to the rig; each changes something about the rig.
class NestedReferenceTest : public ReferenceTest
{
protected:
    void SetUp() override
    {
        ReferenceTest::SetUp();
        file("pair.ma",
             std::string(kHeader) +
                 "file -rdi 1 -ns \"one\" -rfn \"oneRN\" \"rig.ma\";\n"
                 "file -r -ns \"one\" -dr 1 -rfn \"oneRN\" \"rig.ma\";\n"
                 "createNode transform -n \"hub\";\ncreateNode reference -n \"oneRN\";\n"
                 "\tsetAttr \".ed\" -type \"dataReferenceEdits\" \"oneRN\" \"oneRN\" 0 \"oneRN\" 2\n"
                 "\t\t2 \"one:flip\" \"inputX\" \" 0.25\"\n"
                 "\t\t5 3 \"oneRN\" \"|one:body.translateZ\" \"oneRN.placeHolderList[1]\" \"\";\n"
                 "lockNode -l 1 ;\nconnectAttr \"oneRN.phl[1]\" \"hub.tz\";\n");
        open("file -r -ns \"p\" -rfn \"pRN\" \"pair.ma\";\ncreateNode transform -n \"follower\";\n"
             "createNode reference -n \"pRN\";\n\tsetAttr \".phl[1]\" 0;\n"
             "\tsetAttr \".ed\" -type \"dataReferenceEdits\" \"pRN\" \"pRN\" 0 \"p:oneRN\" 0\n"
             "\t\t\"pRN\" 1\n\t\t2 \"|p:hub\" \"visibility\" \" 0\"\n"
             "\t\t\"p:oneRN\" 2\n\t\t2 \"|p:one:body\" \"visibility\" \" 0\"\n"
             "\t\t5 3 \"pRN\" \"|p:one:body.rotateX\" \"pRN.placeHolderList[1]\" \"\";\n"
             "connectAttr \"pRN.phl[1]\" \"follower.rx\";\n");
    }

    Outcome setLoaded(const std::string& name, bool isLoaded)
    {
        return setNestedLoaded(scene, *findReference(scene, name), isLoaded, {}, m_summary);
    }
    Outcome replace(const std::string& name, const std::string& path)
    {
        return replaceNested(scene, *findReference(scene, name), path, true, {}, m_summary);
    }
    void expectAllEdits()
    {
        EXPECT_THAT(numbers("p:hub.v"), ElementsAre(0));
        EXPECT_THAT(numbers("p:one:body.v"), ElementsAre(0));
        EXPECT_THAT(numbers("p:one:flip.ix"), ElementsAre(0.25));
        EXPECT_EQ(source("p:hub.tz"), "p:one:body.translateZ");
        EXPECT_EQ(source("follower.rx"), "p:one:body.rotateX");
    }

    SceneSummary m_summary;
};

TEST_F(NestedReferenceTest, hasTheEditsOfBothFiles)
{
    EXPECT_THAT(messages(), IsEmpty());
    expectAllEdits();
    EXPECT_THAT(saved(), HasSubstr("\t\t\"pRN\" 0\n\t\t\"p:oneRN\" 0\n\t\t\"pRN\" 1\n"
                                   "\t\t2 \"|p:hub\" \"visibility\" \" 0\"\n"
                                   "\t\t\"p:oneRN\" 2\n\t\t2 \"|p:one:body\" \"visibility\" \" 0\"\n"));
}

TEST_F(NestedReferenceTest, goesAndComesBackAlone)
{
    const std::string before = savedTwice();
    ASSERT_TRUE(setLoaded("p:oneRN", false));
    EXPECT_FALSE(scene.findNode("p:one:body"));
    EXPECT_THAT(numbers("p:hub.v"), ElementsAre(0));
    EXPECT_EQ(source("p:hub.tz"), "p:oneRN.placeHolderList[1]");
    EXPECT_EQ(source("follower.rx"), "pRN.placeHolderList[1]");
    const std::string without = savedTwice();
    EXPECT_THAT(without, HasSubstr("file -rdi 2 -ns \"one\" -dr 1 -rfn \"p:oneRN\" \"rig.ma\";\n"));
    EXPECT_THAT(without, HasSubstr("2 \"|p:one:body\" \"visibility\" \" 0\""));
    EXPECT_FALSE(scene.findNode("p:one:body"));
    ASSERT_TRUE(setLoaded("p:oneRN", true));
    expectAllEdits();
    EXPECT_EQ(saved(), before);
}

TEST_F(NestedReferenceTest, isReadFromAnotherFileWithTheEditsOfBothFiles)
{
    const std::string second =
        file("second.ma", "//Maya ASCII 2016 scene\ncreateNode transform -n \"body\";\n"
                          "createNode transform -n \"tail\" -p \"body\";\n"
                          "createNode reverse -n \"flip\";\n");
    ASSERT_TRUE(replace("p:oneRN", second));
    EXPECT_TRUE(scene.findNode("p:one:tail"));
    EXPECT_FALSE(scene.findNode("p:one:head"));
    expectAllEdits();
    const std::string text = savedTwice();
    EXPECT_THAT(text, HasSubstr("file -rdi 2 -ns \"one\" -rfn \"p:oneRN\" \"" + second + "\";\n"));
    EXPECT_TRUE(scene.findNode("p:one:tail")) << "what was saved says so";
    expectAllEdits();
    ASSERT_TRUE(setLoaded("p:oneRN", false));
    ASSERT_TRUE(setLoaded("p:oneRN", true));
    EXPECT_EQ(saved(), text);
}

TEST_F(NestedReferenceTest, isReadFromTheFileThatTheFileAroundItNamesByNowUnlessItWasReplaced)
{
    file("second.ma", "//Maya ASCII 2016 scene\ncreateNode transform -n \"later\";\n");
    file("pair.ma", std::string(kHeader) + "file -r -ns \"one\" -dr 1 -rfn \"oneRN\" \"second.ma\";\n"
                                           "file -rdi 1 -ns \"one\" -rfn \"oneRN\" \"second.ma\";\n"
                                           "createNode reference -n \"oneRN\";\n");
    const std::string before = saved();
    openScene(scene, file("saved.ma", before));
    EXPECT_TRUE(scene.findNode("p:one:later"));
    EXPECT_FALSE(scene.findNode("p:one:body"));
}

TEST_F(NestedReferenceTest, thatIsReplacedStaysSoWhenTheOneAroundItIsImported)
{
    const std::string second =
        file("second.ma", "//Maya ASCII 2016 scene\ncreateNode transform -n \"later\";\n");
    ASSERT_TRUE(replace("p:oneRN", second));
    ASSERT_TRUE(importReference(scene, *findReference(scene, "pRN"), {}, m_summary));
    EXPECT_TRUE(scene.findNode("p:one:later"));
    EXPECT_THAT(savedTwice(),
                HasSubstr("file -r -ns \"p:one\" -dr 1 -rfn \"p:oneRN\" \"" + second + "\";\n"));
    EXPECT_TRUE(scene.findNode("p:one:later"));
}

TEST_F(NestedReferenceTest, threeDeepIsReplacedByTheSceneRatherThanByTheFileBetween)
{
    const std::string second =
        file("second.ma", "//Maya ASCII 2016 scene\ncreateNode transform -n \"later\";\n");
    const std::string third =
        file("third.ma", "//Maya ASCII 2016 scene\ncreateNode transform -n \"last\";\n");
    file("set.ma", std::string(kHeader) +
                       "file -r -ns \"q\" -dr 1 -rfn \"qRN\" \"pair.ma\";\n"
                       "file -rdi 1 -ns \"q\" -rfn \"qRN\" \"pair.ma\";\n"
                       "createNode reference -n \"qRN\";\n"
                       "\tsetAttr \".ed\" -type \"dataReferenceEdits\" \"qRN\" \"qRN\" 0 \"qRN\" 1\n"
                       "\t\t2 \"q:oneRN\" \"fileNames[0]\" \" -type \\\"string\\\" \\\"" +
                       second + "\\\"\";\n");
    open("file -r -ns \"s\" -rfn \"sRN\" \"set.ma\";\ncreateNode reference -n \"sRN\";\n");
    EXPECT_TRUE(scene.findNode("s:q:one:later")) << "the file between replaces it";
    ASSERT_TRUE(replace("s:q:oneRN", third));
    EXPECT_TRUE(scene.findNode("s:q:one:last"));
    EXPECT_FALSE(scene.findNode("s:q:one:later"));
    savedTwice();
    EXPECT_TRUE(scene.findNode("s:q:one:last"));
}

TEST_F(NestedReferenceTest, isNotRemovedFromTheOneAroundIt)
{
    const Outcome removed = removeReference(scene, *findReference(scene, "p:oneRN"));
    EXPECT_EQ(removed.text,
              "The reference 'p:oneRN' belongs to the reference 'pRN': only that one can be changed");
    EXPECT_TRUE(scene.findNode("p:one:body"));
}

TEST_F(NestedReferenceTest, becomesTheScenesOwnWhenTheOneAroundItIsImported)
{
    ASSERT_TRUE(importReference(scene, *findReference(scene, "pRN"), {}, m_summary));
    EXPECT_FALSE(scene.findNode("pRN"));
    EXPECT_FALSE(node("p:hub").isReferenced);
    EXPECT_TRUE(node("p:one:body").isReferenced);
    expectAllEdits();
    const std::string text = savedTwice();
    EXPECT_THAT(text, HasSubstr("file -r -ns \"p:one\" -dr 1 -rfn \"p:oneRN\" \"" + m_folder.path("rig.ma") +
                                "\";\n"));
    EXPECT_THAT(text, HasSubstr("createNode transform -n \"p:hub\";\n"));
    EXPECT_THAT(text, HasSubstr("2 \"p:one:flip\" \"input\" \" -type \\\"float3\\\" 0.25 0 0\""));
    expectAllEdits();
}

TEST_F(NestedReferenceTest, thatIsNotLoadedTakesItsEditsAlongWhenTheOneAroundItIsImported)
{
    ASSERT_TRUE(setLoaded("p:oneRN", false));
    ASSERT_TRUE(importReference(scene, *findReference(scene, "pRN"), {}, m_summary));
    EXPECT_FALSE(scene.findNode("p:one:body"));
    EXPECT_EQ(source("follower.rx"), "p:oneRN.placeHolderList[2]");
    ReferenceStates states;
    loadReference(scene, *findReference(scene, "p:oneRN"), {}, states, m_summary);
    expectAllEdits();
}

TEST_F(ReferenceTest, becomesTheScenesOwn)
{
    open(kEdited);
    const engine::Ref<engine::Node> body(&node("r:body"));
    SceneSummary summary;
    ASSERT_TRUE(importReference(scene, *findReference(scene, "rRN"), {}, summary));
    EXPECT_EQ(&node("r:body"), body.get()) << "the node is the same object";
    EXPECT_THAT(scene.references, IsEmpty());
    EXPECT_TRUE(scene.rename(node("r:body"), "mine"));
    const std::string text = savedTwice();
    EXPECT_THAT(text, Not(HasSubstr("file -r")));
    EXPECT_THAT(text, Not(HasSubstr("rRN")));
    EXPECT_THAT(text, HasSubstr("createNode transform -n \"mine\" -p \"group\";\n"));
}

TEST_F(ReferenceTest, protectsItsNodes)
{
    open("file -r -ns \"r\" \"rig.ma\";\n");
    EXPECT_FALSE(scene.deleteNode(node("r:body")));
    EXPECT_FALSE(scene.rename(node("r:body"), "mine"));
    EXPECT_TRUE(scene.findNode("r:body"));
}

TEST_F(ReferenceTest, goesAndComesBackWithItsEdits)
{
    open(kEdited);
    const std::string before = saved();
    engine::Reference* reference = findReference(scene, "rRN");
    ASSERT_TRUE(reference);
    ASSERT_TRUE(unloadReference(scene, *reference));
    EXPECT_FALSE(scene.findNode("r:body"));
    EXPECT_TRUE(scene.findNode("hat"));
    EXPECT_EQ(source("follower.ty"), "rRN.placeHolderList[1]");
    ReferenceStates states;
    SceneSummary summary;
    loadReference(scene, *reference, {}, states, summary);
    EXPECT_THAT(numbers("r:body.t"), ElementsAre(4, 5, 6));
    EXPECT_EQ(source("follower.ty"), "r:body.translateY");
    EXPECT_EQ(saved(), before);
    ASSERT_TRUE(removeReference(scene, *reference));
    EXPECT_FALSE(scene.findNode("r:body"));
    EXPECT_FALSE(scene.findNode("rRN"));
    EXPECT_THAT(saved(), Not(HasSubstr("file -r")));
}

TEST_F(ReferenceTest, whoseFileIsDamagedIsAnErrorThere)
{
    file("rig.ma", std::string(kHeader) + "createNode transform -n \"body\";\n\tsetAttr \".tx\" 1");
    EXPECT_EQ(open("file -r -ns \"r\" \"rig.ma\";\n").summary.errors, 1u);
    EXPECT_THAT(messages().front(),
                HasSubstr(m_folder.path("rig.ma") + " line 3: The file ends within this statement"));
}

TEST_F(ReferenceTest, keepsItsLightLinksBesideTheEditsThatItApplies)
{
    const std::string links =
        "\t\t7 \"shadowLink\" \":lightLinker1\" 2 \"r:body.message\" \":defaultLightSet.message\" 0\n"
        "\t\t7 \"link\" \":lightLinker1\" 2 \"|r:body|r:head|r:headShape.message\" "
        "\":defaultLightSet.message\" \n\t\t0";
    ASSERT_TRUE(open("file -r -ns \"r\" -rfn \"rRN\" \"rig.ma\";\ncreateNode reference -n \"rRN\";\n"
                     "\tsetAttr \".ed\" -type \"dataReferenceEdits\" \n\t\t\"rRN\"\n\t\t\"rRN\" 3\n"
                     "\t\t2 \"|r:body\" \"translate\" \" -type \\\"double3\\\" 4 5 6\"\n" +
                     links + ";\n")
                    .isClean());
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_THAT(numbers("r:body.t"), ElementsAre(4, 5, 6));
    EXPECT_THAT(savedTwice(), HasSubstr(" 4 5 6\"\n" + links + ";\n"));
    engine::Reference& reference = *scene.references.front();
    ASSERT_TRUE(unloadReference(scene, reference));
    EXPECT_THAT(saved(), HasSubstr(links + ";\n"));
}

class ReferenceLinkTest : public ReferenceTest
{
protected:
    static constexpr const char* kLinker =
        "createNode lightLinker -s -n \"lightLinker1\";\ncreateNode transform -n \"lamp\";\n"
        "createNode pointLight -n \"lampShape\" -p \"lamp\";\n";
    static constexpr const char* kLinks =
        "\t\t7 \"shadowLink\" \":lightLinker1\" 2 \"|r:body.message\" \":defaultLightSet.message\" \n"
        "\t\t0\n"
        "\t\t7 \"ignore\" \":lightLinker1\" 2 \"|r:body|r:head|r:headShape.message\" "
        "\"|lamp|lampShape.message\" \n"
        "\t\t0";

    void openWithLinks(const std::string& links = kLinks)
    {
        EXPECT_TRUE(open("file -r -ns \"r\" -rfn \"rRN\" \"rig.ma\";\n" + std::string(kLinker) +
                         "createNode reference -n \"rRN\";\n"
                         "\tsetAttr \".ed\" -type \"dataReferenceEdits\" \n\t\t\"rRN\"\n\t\t\"rRN\" 2\n" +
                         links + ";\n")
                        .isClean());
        EXPECT_THAT(messages(), IsEmpty());
    }
    void expectLinked()
    {
        EXPECT_EQ(source("lightLinker1.ignore[0].lightIgnored"), "lampShape.message");
        EXPECT_EQ(source("lightLinker1.ignore[0].objectIgnored"), "r:headShape.message");
        EXPECT_EQ(source("lightLinker1.shadowLink[0].shadowLight"), "defaultLightSet.message");
        EXPECT_EQ(source("lightLinker1.shadowLink[0].shadowObject"), "r:body.message");
    }
};

TEST_F(ReferenceLinkTest, connectsLightsWithNodesOfTheReference)
{
    openWithLinks();
    expectLinked();
    const std::string text = savedTwice();
    expectLinked();
    EXPECT_THAT(text, HasSubstr(std::string(kLinks) + ";\n"));
    EXPECT_THAT(text, Not(HasSubstr("relationship")));
    EXPECT_THAT(text, Not(HasSubstr("phl")));
}

TEST_F(ReferenceLinkTest, goesAndComesBackWithTheReference)
{
    openWithLinks();
    const std::string before = saved();
    engine::Reference& reference = *scene.references.front();
    ASSERT_TRUE(unloadReference(scene, reference));
    EXPECT_THAT(engine::existingElements(scene.findPlug("lightLinker1.ignore").value), IsEmpty());
    EXPECT_THAT(engine::existingElements(scene.findPlug("lightLinker1.shadowLink").value), IsEmpty());
    EXPECT_THAT(saved(), HasSubstr(std::string(kLinks) + ";\n"));
    ReferenceStates states;
    SceneSummary summary;
    loadReference(scene, reference, {}, states, summary);
    expectLinked();
    EXPECT_EQ(saved(), before);
}

TEST_F(ReferenceLinkTest, isTheScenesOwnOnceTheReferenceIsImported)
{
    openWithLinks();
    SceneSummary summary;
    ASSERT_TRUE(importReference(scene, *findReference(scene, "rRN"), {}, summary));
    EXPECT_THAT(
        savedTwice(),
        HasSubstr("relationship \"ignore\" \":lightLinker1\" \"r:headShape.message\" \"lampShape.message\";\n"
                  "relationship \"shadowLink\" \":lightLinker1\" \"r:body.message\" "
                  "\":defaultLightSet.message\";\n"));
    expectLinked();
}

TEST_F(ReferenceLinkTest, ofTheReferencesOwnFileIsThereAndNotSaved)
{
    file("rig.ma", std::string(kRig) + "createNode lightLinker -s -n \"lightLinker1\";\n"
                                       "relationship \"link\" \":lightLinker1\" \"head.message\" "
                                       "\":defaultLightSet.message\";\n");
    EXPECT_TRUE(open("createNode lightLinker -s -n \"lightLinker1\";\n"
                     "file -rdi 1 -ns \"r\" -rfn \"rRN\" \"rig.ma\";\n"
                     "file -r -ns \"r\" -dr 1 -rfn \"rRN\" \"rig.ma\";\ncreateNode reference -n \"rRN\";\n")
                    .isClean());
    EXPECT_EQ(source("lightLinker1.link[0].object"), "r:head.message");
    const std::string text = savedTwice();
    EXPECT_THAT(text, Not(HasSubstr("relationship")));
    EXPECT_THAT(text, Not(HasSubstr("\t\t7 ")));
}

TEST_F(ReferenceLinkTest, waitsForNodesThatAreNotThere)
{
    const std::string links =
        "\t\t7 \"link\" \":lightLinker1\" 2 \"|r:tail.message\" \":defaultLightSet.message\" 0\n"
        "\t\t7 \"somethingElse\" \":lightLinker1\" 2 \"|r:body.message\" \":time1.message\" 0";
    openWithLinks(links);
    EXPECT_THAT(savedTwice(), HasSubstr(links + ";\n"));
}

} // namespace tvxhost::scene
