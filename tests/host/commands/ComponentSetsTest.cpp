// sets: components as members, and what stands for them in the scene.
#include "undoFixture.h"

#include "scene/reader.h"

#include <algorithm>
#include <sstream>

namespace tvxhost::mel {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The lines of a text that contain one of some words, in order.
std::vector<std::string> linesWith(const std::string& text, const std::vector<std::string>& words)
{
    std::vector<std::string> found;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        if (std::any_of(words.begin(), words.end(),
                        [&](const std::string& word) { return line.find(word) != std::string::npos; }))
            found.push_back(line);
    return found;
}

} // namespace

/// Two planes of four faces in the default shading group, one with history, and two further groups.
class ComponentSetsTest : public UndoFixture
{
protected:
    ComponentSetsTest()
    {
        run("polyPlane -n \"net\" -sx 2 -sy 2 -ch 0; polyPlane -n \"made\" -sx 2 -sy 2;"
            "sets -r true -em -n \"red\"; sets -r true -em -n \"blue\"; sets -em -n \"some\"");
    }

    /// What the file says of groups.
    std::vector<std::string> groupLines()
    {
        return linesWith(text(), {".og", "groupId", "groupParts", ".ic\"", ".irc\"", ".ciog"});
    }
};

TEST_F(ComponentSetsTest, facesAreTakenOutOfTheShadingGroupThatHadTheWhole)
{
    EXPECT_EQ(run("sets -e -forceElement red net.f[0] net.f[1]"), "red");
    EXPECT_THAT(strings("sets -q red"), ElementsAre("net.f[0:1]"));
    EXPECT_THAT(strings("sets -q initialShadingGroup"), ElementsAre("net.f[2:3]", "madeShape"));
    run("sets -e -forceElement blue net.f[1:2]");
    EXPECT_THAT(strings("sets -q red"), ElementsAre("net.f[0]"));
    EXPECT_THAT(strings("sets -q blue"), ElementsAre("net.f[1:2]"));
    EXPECT_THAT(strings("sets -q initialShadingGroup"), ElementsAre("net.f[3]", "madeShape"));
    run("sets -e -forceElement red net.f[2]");
    EXPECT_THAT(strings("sets -q red"), ElementsAre("net.f[0]", "net.f[2]"));
}

TEST_F(ComponentSetsTest, groupsAreToldApartByNumbers)
{
    run("sets -e -forceElement red net.f[0:1]");
    const std::string first = run("getAttr groupId1.groupId");
    EXPECT_NE(first, "0");
    EXPECT_NE(run("getAttr groupId2.groupId"), first);
    EXPECT_EQ(run("getAttr netShape.instObjGroups[0].objectGroups[0].objectGroupId"), first);
    EXPECT_THAT(failure("setAttr groupId1.groupId 7"), testing::HasSubstr("groupId1.groupId"));
}

TEST_F(ComponentSetsTest, aGroupWithoutHistoryKeepsItsComponentsItself)
{
    run("sets -e -forceElement red net.f[0:1]");
    EXPECT_THAT(groupLines(),
                ElementsAre("\tsetAttr -s 2 \".iog[0].og\";",
                            "\tsetAttr \".iog[0].og[0].gcl\" -type \"componentList\" 1 \"f[2:3]\";",
                            "\tsetAttr \".iog[0].og[1].gcl\" -type \"componentList\" 1 \"f[0:1]\";",
                            "createNode groupId -n \"groupId1\";", "createNode groupId -n \"groupId2\";",
                            "connectAttr \"groupId1.id\" \"netShape.iog.og[0].gid\";",
                            "connectAttr \":initialShadingGroup.mwc\" \"netShape.iog.og[0].gco\";",
                            "connectAttr \"groupId2.id\" \"netShape.iog.og[1].gid\";",
                            "connectAttr \"red.mwc\" \"netShape.iog.og[1].gco\";",
                            "connectAttr \"netShape.iog.og[1]\" \"red.dsm\" -na;",
                            "connectAttr \"groupId2.msg\" \"red.gn\" -na;",
                            "connectAttr \"netShape.iog.og[0]\" \":initialShadingGroup.dsm\" -na;",
                            "connectAttr \"groupId1.msg\" \":initialShadingGroup.gn\" -na;"));
}

TEST_F(ComponentSetsTest, historyMarksTheComponentsOfItsGroups)
{
    run("sets -e -forceElement red made.f[0]");
    EXPECT_THAT(groupLines(),
                ElementsAre("\tsetAttr -s 2 \".iog[0].og\";", "createNode groupId -n \"groupId1\";",
                            "createNode groupParts -n \"groupParts1\";",
                            "\tsetAttr \".ic\" -type \"componentList\" 1 \"f[1:3]\";",
                            "\tsetAttr \".irc\" -type \"componentList\" 1 \"f[0]\";",
                            "createNode groupId -n \"groupId2\";", "createNode groupId -n \"groupId3\";",
                            "createNode groupParts -n \"groupParts2\";",
                            "\tsetAttr \".ic\" -type \"componentList\" 1 \"f[0]\";",
                            "connectAttr \"groupId1.id\" \"madeShape.iog.og[0].gid\";",
                            "connectAttr \":initialShadingGroup.mwc\" \"madeShape.iog.og[0].gco\";",
                            "connectAttr \"groupId3.id\" \"madeShape.iog.og[1].gid\";",
                            "connectAttr \"red.mwc\" \"madeShape.iog.og[1].gco\";",
                            "connectAttr \"groupId2.id\" \"madeShape.ciog.cog[0].cgid\";",
                            "connectAttr \"groupParts2.og\" \"madeShape.i\";",
                            "connectAttr \"madeShape.iog.og[1]\" \"red.dsm\" -na;",
                            "connectAttr \"groupId3.msg\" \"red.gn\" -na;",
                            "connectAttr \"polyPlane1.out\" \"groupParts1.ig\";",
                            "connectAttr \"groupId1.id\" \"groupParts1.gi\";",
                            "connectAttr \"groupParts1.og\" \"groupParts2.ig\";",
                            "connectAttr \"groupId3.id\" \"groupParts2.gi\";",
                            "connectAttr \"madeShape.iog.og[0]\" \":initialShadingGroup.dsm\" -na;",
                            "connectAttr \"madeShape.ciog.cog[0]\" \":initialShadingGroup.dsm\" -na;",
                            "connectAttr \"groupId1.msg\" \":initialShadingGroup.gn\" -na;",
                            "connectAttr \"groupId2.msg\" \":initialShadingGroup.gn\" -na;"));
    EXPECT_THAT(strings("sets -q initialShadingGroup"), ElementsAre("netShape", "made.f[1:3]"));
    EXPECT_EQ(run("polyEvaluate -f made"), "4") << "the groups pass the plane on";
}

TEST_F(ComponentSetsTest, aWholeObjectTakesThePlaceOfItsComponents)
{
    for (const std::string name : {"net", "made"}) {
        const std::string before = text();
        run("sets -e -forceElement red " + name + ".f[0:1]; sets -e -forceElement blue " + name + ".f[3]");
        run("sets -e -forceElement initialShadingGroup " + name);
        EXPECT_THAT(groupLines(), IsEmpty());
        EXPECT_EQ(run("sets -isMember initialShadingGroup " + name), "1");
        EXPECT_THAT(strings("sets -q red"), IsEmpty());
        EXPECT_EQ(run("polyEvaluate -f " + name), "4");
        EXPECT_EQ(text().size(), before.size());
    }
}

TEST_F(ComponentSetsTest, deletingHistoryLeavesTheGroups)
{
    run("sets -e -forceElement red made.f[0:1]; delete -ch made");
    EXPECT_THAT(strings("sets -q red"), ElementsAre("made.f[0:1]"));
    EXPECT_THAT(strings("ls -type groupParts"), IsEmpty());
    EXPECT_THAT(strings("ls -type groupId"), ElementsAre("groupId1", "groupId3"));
    EXPECT_THAT(linesWith(text(), {".gcl", "ciog"}),
                ElementsAre("\tsetAttr \".iog[0].og[0].gcl\" -type \"componentList\" 1 \"f[2:3]\";",
                            "\tsetAttr \".iog[0].og[1].gcl\" -type \"componentList\" 1 \"f[0:1]\";"));
}

TEST_F(ComponentSetsTest, verticesEdgesAndPointsOfCurvesAreMembers)
{
    run("createNode transform -n \"bow\"; createNode nurbsCurve -n \"bowShape\" -p bow; setAttr \".cc\" "
        "-type \"nurbsCurve\" 1 3 0 no 3 4 0 1 2 3 4 "
        "0 0 0 1 0 0 2 0 0 3 0 0");
    run("sets -add some net.vtx[0:2] net.e[4] bow.cv[1:2] bow.cv[3] bow.ep[0] made");
    EXPECT_THAT(strings("sets -q some"),
                ElementsAre("net.vtx[0:2]", "net.e[4]", "bow.cv[1:3]", "bow.ep[0]", "made"));
    EXPECT_EQ(run("sets -q -size some"), "9");
    EXPECT_THAT(strings("sets -q -nodesOnly some"), ElementsAre("netShape", "bowShape", "made"));
    EXPECT_EQ(run("sets -isMember initialShadingGroup net"), "1") << "an ordinary set takes nothing from it";
    run("sets -rm some net.vtx[1] bow.cv[*] bow.ep[0]");
    EXPECT_THAT(strings("sets -q some"), ElementsAre("net.vtx[0]", "net.vtx[2]", "net.e[4]", "made"));
    run("sets -clear some");
    EXPECT_THAT(groupLines(), IsEmpty());
}

TEST_F(ComponentSetsTest, membershipIsAskedComponentByComponent)
{
    run("sets -add some net.f[0:2]");
    EXPECT_EQ(run("sets -isMember some net.f[1] net.f[2]"), "1");
    EXPECT_EQ(run("sets -isMember some net.f[2:3]"), "0");
    EXPECT_EQ(run("sets -anyMember some net.f[2:3]"), "1");
    EXPECT_EQ(run("sets -anyMember some net.f[3]"), "0");
    EXPECT_EQ(run("sets -isMember some netShape"), "0");
    EXPECT_EQ(run("sets -isMember initialShadingGroup net.f[3]"), "1") << "a whole object has its faces";
    EXPECT_EQ(failure("sets -remove some net.f[3]"), "'net.f[3]' is not a member of 'some'");
}

TEST_F(ComponentSetsTest, setsAreJoinedCutAndSubtractedInParts)
{
    run("sets -n \"left\" net.f[0:1] made; sets -n \"right\" net.f[1:2] net.vtx[0]");
    EXPECT_THAT(strings("sets -union left right"), ElementsAre("net.f[0:2]", "made", "net.vtx[0]"));
    EXPECT_THAT(strings("sets -intersection left right"), ElementsAre("net.f[1]"));
    EXPECT_THAT(strings("sets -subtract left right"), ElementsAre("net.f[0]", "made"));
    EXPECT_THAT(strings("sets -subtract right net.f[2:3]"), ElementsAre("net.f[1]", "net.vtx[0]"));
    EXPECT_EQ(run("sets -isIntersecting left right"), "1");
    EXPECT_EQ(run("sets -isIntersecting left net.f[2:3]"), "0");
    run("sets -n \"all\" left right; sets -e -flatten all");
    EXPECT_THAT(strings("sets -q all"), ElementsAre("net.f[0:2]", "made", "net.vtx[0]"));
    EXPECT_EQ(run("sets -split all -n \"rest\" net.f[1:2]"), "rest");
    EXPECT_THAT(strings("sets -q all"), ElementsAre("net.f[0]", "made", "net.vtx[0]"));
    EXPECT_THAT(strings("sets -q rest"), ElementsAre("net.f[1:2]"));
}

TEST_F(ComponentSetsTest, whatIsNoPartOfAShapeOrNotForTheSetIsRefused)
{
    EXPECT_EQ(failure("sets -add some net.f[4]"), "No object matches name: net.f[4]");
    EXPECT_EQ(failure("sets -add red net.vtx[0]"), "'net.vtx[0]' cannot be in 'red': it cannot be rendered");
    EXPECT_EQ(failure("sets -add red net.f[0]"),
              "'net.f[0]' is in 'initialShadingGroup' and cannot be in 'red' of the same partition");
    EXPECT_EQ(failure("sets -add some net.map[0]"),
              "'net.map[0]' cannot be in 'some': sets hold vertices, edges and faces of meshes and points of "
              "curves here");
    run("sets -vertices true -em -n \"points\"; sets -add points net.vtx[0]");
    EXPECT_EQ(failure("sets -add points net.f[0]"),
              "'net.f[0]' cannot be in 'points', which holds only vertices");
    EXPECT_THAT(strings("sets -q points"), ElementsAre("net.vtx[0]"));
}

TEST_F(ComponentSetsTest, componentsAreSelectedAndListedInRuns)
{
    run("sets -add some net.f[0] net.f[2:3]; select some");
    EXPECT_THAT(strings("ls -sl"), ElementsAre("net.f[0]", "net.f[2:3]"));
    run("select -add net.f[1]");
    EXPECT_THAT(strings("ls -sl"), ElementsAre("net.f[0:3]"));
    run("select -deselect net.f[1:2]; select -toggle net.f[0] net.f[1]");
    EXPECT_THAT(strings("ls -sl"), ElementsAre("net.f[1]", "net.f[3]"));
    EXPECT_THAT(strings("ls -flatten net.f[0:1] net.vtx[*]").size(), 11u);
    run("select -r net.f[0:1]; sets -n \"chosen\"");
    EXPECT_THAT(strings("sets -q chosen"), ElementsAre("net.f[0:1]"));
}

TEST_F(ComponentSetsTest, aCopyIsInTheGroupsOfTheOriginal)
{
    run("sets -e -forceElement red made.f[0:1]; sets -add some made.vtx[3]; duplicate -n \"twin\" made");
    EXPECT_THAT(strings("sets -q red"), ElementsAre("made.f[0:1]", "twin.f[0:1]"));
    EXPECT_THAT(strings("sets -q some"), ElementsAre("made.vtx[3]", "twin.vtx[3]"));
    EXPECT_THAT(strings("sets -q initialShadingGroup"),
                ElementsAre("netShape", "made.f[2:3]", "twin.f[2:3]"));
}

TEST_F(ComponentSetsTest, everyInstanceHasItsOwnGroups)
{
    run("instance -n \"other\" net; sets -e -forceElement red \"|other|netShape.f[0:1]\"");
    EXPECT_THAT(strings("sets -q red"), ElementsAre("other.f[0:1]"));
    EXPECT_EQ(run("sets -isMember initialShadingGroup \"|net|netShape\""), "1");
    EXPECT_EQ(run("sets -anyMember red \"|net|netShape.f[0]\""), "0");
}

TEST_F(ComponentSetsTest, whatMadeAnObjectAndItsGroupsGoesWithIt)
{
    const std::string history = "ls -type polyPlane -type groupParts -type groupId";
    run("sets -e -forceElement red made.f[0]; delete made");
    EXPECT_THAT(strings(history), IsEmpty());
    run("polyPlane -n \"first\"; polyPlane -n \"second\" -ch 0;"
        "connectAttr -f polyPlane1.output secondShape.inMesh; delete first");
    EXPECT_THAT(strings(history), ElementsAre("polyPlane1")) << "it makes the other one as well";
    run("instance -n \"third\" second; delete second");
    EXPECT_THAT(strings(history), ElementsAre("polyPlane1"));
    expectUndoable("delete third");
    EXPECT_THAT(strings(history), IsEmpty());
}

TEST_F(ComponentSetsTest, componentsOfGeometryThatIsNotThereAreNamedAsTheyWereWritten)
{
    run("createNode transform -n \"bare\"; createNode mesh -n \"bareShape\" -p bare;"
        "setAttr bareShape.iog[0].og[0].gcl -type \"componentList\" 2 \"vtx[*]\" \"vtx[7]\";"
        "connectAttr bareShape.iog[0].og[0] some.dsm -na;"
        "setAttr bareShape.iog[0].og[1].gcl -type \"componentList\" 1 \"vtx[*]\";"
        "connectAttr bareShape.iog[0].og[1] some.dsm -na");
    EXPECT_THAT(strings("sets -q some"), ElementsAre("bare.vtx[7]", "bare.vtx[*]"));
}

TEST_F(ComponentSetsTest, listSetsTellsWhatAnObjectIsIn)
{
    run("sets -e -forceElement red net.f[0:1]; sets -add some net made.vtx[0]");
    EXPECT_THAT(strings("listSets -object net"), ElementsAre("some"));
    EXPECT_THAT(strings("listSets -object net.f[0]"), ElementsAre("red"));
    EXPECT_THAT(strings("listSets -extendToShape -object net"),
                ElementsAre("initialShadingGroup", "red", "some"));
    EXPECT_THAT(strings("listSets -type 1 -ets -object made"), ElementsAre("initialShadingGroup"));
    EXPECT_THAT(strings("listSets made.vtx[0:3]"), ElementsAre("initialShadingGroup", "some"));
    EXPECT_THAT(strings("listSets -type 1"),
                ElementsAre("initialShadingGroup", "initialParticleSE", "red", "blue"));
    EXPECT_THAT(strings("listSets -type 2"), IsEmpty());
    EXPECT_EQ(failure("listSets"), "listSets: say of which object, or -allSets");
    EXPECT_EQ(failure("listSets -type 3"), "listSets: a type is 1 for rendering sets or 2 for deformer sets");
}

TEST_F(ComponentSetsTest, allOfItIsUndone)
{
    expectUndoable("sets -e -forceElement red net.f[0:1]");
    expectUndoable("sets -e -forceElement blue net.f[1:2] made.f[2]");
    expectUndoable("sets -e -forceElement red made.f[0]; sets -add some net.vtx[0:3] net.vtx[5]");
    expectUndoable("sets -rm some net.vtx[2]");
    expectUndoable("sets -e -forceElement red net made");
    expectUndoable("sets -e -forceElement blue made.f[3]; delete -ch made");
    expectUndoable("sets -clear some");
}

TEST_F(ComponentSetsTest, whatIsSavedIsReadAndSavedTheSame)
{
    run("sets -e -forceElement red net.f[0] net.f[2] made.f[3]; sets -e -forceElement blue made.f[0:1];"
        "sets -add some net.vtx[1:3] made.e[2]");
    const std::string saved = text();
    const Value::Strings red = strings("sets -q red");
    EXPECT_TRUE(scene::openSceneText(scene, saved, "undo.ma").isClean());
    EXPECT_EQ(text(), saved);
    EXPECT_EQ(strings("sets -q red"), red);
    EXPECT_THAT(strings("sets -q some"), ElementsAre("net.vtx[1:3]", "made.e[2]"));
}

} // namespace tvxhost::mel
