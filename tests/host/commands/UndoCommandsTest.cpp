// undo, redo, undoInfo, flushUndo: what every command that edits leaves behind when it is taken back.
#include "undoFixture.h"

namespace tvxhost::mel {

namespace {

class UndoCommandsTest : public UndoFixture
{
protected:
    /// What the commands of a script say.
    std::vector<std::string> said(const std::string& script)
    {
        scene.scriptEditor().clearHistory();
        run(script);
        std::vector<std::string> texts;
        for (const engine::Message& message : scene.scriptEditor().history())
            texts.push_back(message.text);
        return texts;
    }
};

/// A command that edits, and what has to be there before.
struct EditRow
{
    const char* setup;
    const char* command;
};

std::ostream& operator<<(std::ostream& out, const EditRow& row)
{
    return out << row.command;
}

class EveryCommandTest : public UndoFixture, public testing::WithParamInterface<EditRow>
{
};

constexpr const char* kTwo = "createNode transform -n a; createNode transform -n b; ";
constexpr const char* kTree =
    "createNode transform -n a; createNode transform -n b -p a; createNode transform -n c -p b; "
    "createNode locator -n cShape -p c; setAttr b.tx 3; setAttr b.ry 20; select -cl; ";
constexpr const char* kCube = "polyCube -n cube; polySphere -n ball; select cube; ";
constexpr const char* kExtra =
    "createNode transform -n a; addAttr -ln extra -at double -k 1 a; setAttr a.extra 3; "
    "createNode transform -n b; connectAttr a.extra b.tx; ";

constexpr const char* kSpaces =
    "createNode transform -n one; createNode transform -n \"crew:one\"; "
    "createNode transform -n \"crew:red:two\" -p \"crew:one\"; namespace -set \":crew:red\"; ";

const EditRow kRows[] = {
    // nodes
    {"", "createNode transform"},
    {"", "createNode -n \"deep:er:name\" locator"},
    {"", "createNode lambert -n shader -ss"},
    {"", "shadingNode -asShader blinn"},
    {"", "spaceLocator -p 1 2 3"},
    {"", "camera"},
    {kTree, "delete a"},
    {kTree, "delete c b"},
    {kExtra, "delete a"},
    {kExtra, "delete b"},
    {kCube, "delete cube"},
    {kCube, "delete -ch cube"},
    {kTree, "rename b other"},
    {kTree, "rename c \"space:other\""},
    {kCube, "rename cube box"},
    {kTwo, "rename -uuid \"01234567-89AB-4CDE-8F01-23456789ABCD\" a"},
    {kTwo, "lockNode -lock on a"},
    {kTree, "select -r b cShape"},
    {kTree, "select -all"},
    {kCube, "hilite cube"},
    {kTwo, "select -r b; select -add a; select -d b"},
    // hierarchy
    {kTree, "parent c a"},
    {kTree, "parent -w c"},
    {kTree, "parent -r b -w"},
    {kTree, "group -n top a"},
    {kTree, "group -em"},
    {kTree, "instance a"},
    {kTree, "instance c; parent -w b"},
    {kTree, "duplicate a"},
    {kTree, "duplicate -rr -n twin b"},
    {kCube, "duplicate cube"},
    {kTree, "parent -add -s cShape a"},
    // namespaces
    {"", "namespace -add \"crew:red\""},
    {kSpaces, "namespace -set crew"},
    {kSpaces, "namespace -rel on"},
    {kSpaces, "namespace -ren \":crew\" \":team\""},
    {kSpaces, "namespace -f -mv crew \":\""},
    {kSpaces, "namespace -rm crew -mnr"},
    {kSpaces, "namespace -rm \"crew:red\" -mnp"},
    {kSpaces, "namespace -rm crew -dnc"},
    {kSpaces, "rename \"crew:one\" \":blue:one\""},
    // values
    {kTwo, "setAttr a.tx 4"},
    {kTwo, "setAttr a.t 1 2 3"},
    {kTwo, "setAttr -l on a.tx; setAttr -k off a.ty; setAttr -k off -cb on a.tz"},
    {"createNode file -n f", "setAttr -type \"string\" f.ftn \"picture.png\""},
    {"createNode mesh -n m", "setAttr m.pt[0:2] 1 2 3 4 5 6 7 8 9"},
    {kTwo, "setAttr a.v 0; setAttr a.v 1"},
    {kTwo, "move 1 2 3 a"},
    {kTree, "move -r 1 0 0 b c"},
    {kTree, "rotate 10 20 30 b"},
    {kTree, "scale 2 2 2 b"},
    {kTree, "xform -ws -t 5 5 5 c"},
    {kTree, "xform -piv 1 1 1 b"},
    {kTree, "makeIdentity -apply 0 b"},
    {kTwo, "select a; move 3 3 3"},
    // attributes
    {kTwo, "addAttr -ln extra -at double -min 0 -max 10 -dv 5 a"},
    {kTwo, "addAttr -ln word -dt \"string\" a; setAttr -type \"string\" a.word \"hello\""},
    {kTwo,
     "addAttr -ln trio -at double3 a; addAttr -ln trioX -at double -p trio a; "
     "addAttr -ln trioY -at double -p trio a; addAttr -ln trioZ -at double -p trio a; setAttr a.trio 1 2 3"},
    {kExtra, "deleteAttr a.extra"},
    {kExtra, "deleteAttr -at extra a"},
    {kExtra, "addAttr -e -min -1 -max 7 a.extra"},
    {kExtra, "aliasAttr other a.extra"},
    {"createNode transform -n a; addAttr -ln extra a; aliasAttr other a.extra", "deleteAttr a.extra"},
    {"createNode transform -n a; addAttr -ln extra a; aliasAttr other a.extra", "renameAttr a.extra more"},
    {"createNode transform -n a; aliasAttr other a.tx", "aliasAttr -rm a.other"},
    // connections
    {kTwo, "connectAttr a.tx b.tx"},
    {kTwo, "setAttr b.tx 7; connectAttr -l on a.tx b.tx"},
    {kTwo, "connectAttr a.tx b.rx"},
    {"createNode transform -n a; createNode transform -n b; createNode transform -n c; connectAttr a.tx b.tx",
     "connectAttr -f c.tx b.tx"},
    {kExtra, "disconnectAttr a.extra b.tx"},
    {kCube, "disconnectAttr polyCube1.out cubeShape.i"},
    // sets
    {kTwo, "sets -n pack a b"},
    {"createNode transform -n a; createNode transform -n b; sets -n pack a", "sets -add pack b"},
    {"createNode transform -n a; createNode transform -n b; sets -n pack a b", "sets -rm pack a"},
    {"createNode transform -n a; createNode transform -n b; sets -n pack a b", "sets -cl pack"},
    {"createNode transform -n a; sets -n pack a", "delete pack"},
    {"polyCube -n cube; sets -r 1 -em -n red", "sets -e -fe red cube"},
    {"polyCube -n cube", "sets -r 1 -n red cube"},
    {kTwo, "sets -em -v 1 -co 3 -t note -n points"},
    {"createNode transform -n a; createNode transform -n b; sets -n in a; sets -n pack in b",
     "sets -fl pack"},
    {"createNode transform -n a; createNode transform -n b; sets -n pack a b", "sets -sp pack -n rest b"},
    // geometry
    {"", "polyPlane -w 2 -h 3 -sx 4 -sy 5"},
    {"", "polyCube -ch 0"},
    {"", "polySphere; polyCone; polyCylinder; polyTorus"},
    {kCube, "setAttr polyCube1.w 5"},
    // the scene
    {"", "camera -e -startupCamera false top"},
    {kTree, "toggle -localAxis -below a"},
    {kTree, "inheritTransform -off -preserve c"},
    {kTwo, "reorder -front b"},
    {kCube, "rotate 10 20 30 cube.f[0]; scale 2 3 4 ball.vtx[0:9]"},
    {kCube, "scaleComponents -ro 10 20 30 2 1 1 cube.vtx[*]"},
    {kCube, "setAttr cube.vtx[0:1] 1 2 3 4 5 6"},
    {"", "currentTime 12"},
    {"", "currentUnit -l m -a rad"},
    {"", "playbackOptions -min 5 -max 50"},
    {"", "namespace -add \"rig\"; namespace -set \"rig\""},
    {"", "fileInfo \"note\" \"text\""},
    {"fileInfo \"note\" \"text\"", "fileInfo -rm \"note\""},
    // animation
    {kTwo, "setKeyframe -at tx -t 1 -v 2 a"},
    {"createNode transform -n a; setKeyframe -at tx -t 1 -v 2 a", "setKeyframe -at tx -t 10 -v 5 a"},
    {"createNode transform -n a; setKeyframe -at tx -t 1 -v 2 a; setKeyframe -at tx -t 10 -v 5 a",
     "cutKey -at tx -t \"10:10\" a"},
    {"createNode transform -n a; createNode transform -n b; setKeyframe -at tx -t 1 -v 2 a; copyKey a",
     "pasteKey -t 5 b"},
};

} // namespace

TEST_P(EveryCommandTest, isTakenBackAndDoneAgain)
{
    run(GetParam().setup);
    expectUndoable(GetParam().command);
}

INSTANTIATE_TEST_SUITE_P(Undo, EveryCommandTest, testing::ValuesIn(kRows));

// The commands themselves

TEST_F(UndoCommandsTest, eachScriptIsOneStep)
{
    run("createNode transform -n a; createNode transform -n b");
    run("for ($i = 0; $i < 3; ++$i) createNode transform -p a");
    run("undo");
    EXPECT_TRUE(exists("a"));
    EXPECT_EQ(run("size(`listRelatives a`)"), "0");
    run("undo");
    EXPECT_FALSE(exists("a"));
    EXPECT_FALSE(exists("b"));
}

TEST_F(UndoCommandsTest, withinAScriptEachCommandIsTakenBackByItself)
{
    run("createNode transform -n a; createNode transform -n b; undo; redo; undo");
    EXPECT_TRUE(exists("a"));
    EXPECT_FALSE(exists("b"));
}

TEST_F(UndoCommandsTest, aProcedureIsOneStepWhateverItCalls)
{
    run("global proc both() { createNode transform -n a; eval \"createNode transform -n b\"; }");
    run("both");
    run("undo");
    EXPECT_FALSE(exists("a"));
    EXPECT_FALSE(exists("b"));
}

TEST_F(UndoCommandsTest, whatAFailingScriptDidIsAStepToo)
{
    EXPECT_EQ(failure("createNode transform -n a; setAttr a.none 1"), "No object matches name: a.none");
    EXPECT_TRUE(exists("a"));
    run("undo");
    EXPECT_FALSE(exists("a"));
}

TEST_F(UndoCommandsTest, withNothingLeftItFails)
{
    run("createNode transform -n a");
    run("undo");
    EXPECT_EQ(failure("undo"), "There are no more commands to undo.");
    run("redo");
    EXPECT_EQ(failure("redo"), "There are no more commands to redo.");
}

TEST_F(UndoCommandsTest, aNewEditEndsWhatCouldBeDoneAgain)
{
    run("createNode transform -n a");
    run("undo");
    run("createNode transform -n b");
    EXPECT_EQ(failure("redo"), "There are no more commands to redo.");
}

TEST_F(UndoCommandsTest, queriesAreNoSteps)
{
    run("createNode transform -n a");
    run("getAttr a.tx; getAttr -t 5 a.tx; ls; listAttr a; xform -q -ws -t a; currentTime -q; objExists b");
    EXPECT_EQ(run("undoInfo -q -un"), "createNode transform -n a");
    EXPECT_EQ(run("undoInfo -q"), "1");
}

TEST_F(UndoCommandsTest, theQueuesSayWhatTheyHold)
{
    EXPECT_EQ(run("undoInfo -q -uqe"), "1");
    EXPECT_EQ(run("undoInfo -q -rqe"), "1");
    EXPECT_EQ(run("undoInfo -q -un"), "");
    run("createNode transform -n \"a\"");
    run("setAttr a.tx 5");
    EXPECT_EQ(run("undoInfo -q -un"), "setAttr a.tx 5");
    EXPECT_EQ(run("undoInfo -q -uqe"), "0");
    run("undo");
    EXPECT_EQ(run("undoInfo -q -un"), "createNode transform -n \"a\"");
    EXPECT_EQ(run("undoInfo -q -rn"), "setAttr a.tx 5");
    EXPECT_EQ(run("undoInfo -q -rqe"), "0");
}

TEST_F(UndoCommandsTest, theStepsArePrinted)
{
    run("createNode transform -n a");
    run("setAttr a.tx 5");
    EXPECT_THAT(said("undoInfo -q -printQueue"),
                testing::ElementsAre("1: createNode transform -n a\n2: setAttr a.tx 5\n"));
}

TEST_F(UndoCommandsTest, aChunkIsOneStepAndHasAName)
{
    run("undoInfo -openChunk -chunkName \"both\"");
    EXPECT_EQ(run("undoInfo -q -cn"), "both");
    run("createNode transform -n a");
    run("undoInfo -openChunk");
    run("createNode transform -n b");
    run("undoInfo -closeChunk");
    EXPECT_EQ(run("undoInfo -q"), "0");
    run("undoInfo -closeChunk");
    EXPECT_EQ(run("undoInfo -q -un"), "both");
    run("undo");
    EXPECT_FALSE(exists("a"));
    EXPECT_FALSE(exists("b"));
}

TEST_F(UndoCommandsTest, switchingOffForgetsUnlessAskedNotTo)
{
    run("createNode transform -n a");
    run("undoInfo -swf off");
    EXPECT_EQ(run("undoInfo -q -st"), "0");
    run("createNode transform -n b");
    run("undoInfo -swf on");
    EXPECT_EQ(run("undoInfo -q"), "1");
    run("undo");
    EXPECT_FALSE(exists("a"));
    EXPECT_TRUE(exists("b"));
    run("createNode transform -n c");
    run("undoInfo -state off; undoInfo -state on");
    EXPECT_EQ(run("undoInfo -q"), "0");
}

TEST_F(UndoCommandsTest, onlyTheLastStepsAreKept)
{
    run("undoInfo -infinity off -length 2");
    EXPECT_EQ(run("undoInfo -q -l"), "2");
    EXPECT_EQ(run("undoInfo -q -in"), "0");
    for (const char* name : {"a", "b", "c"})
        run("createNode transform -n " + std::string(name));
    run("undo");
    run("undo");
    EXPECT_EQ(failure("undo"), "There are no more commands to undo.");
    EXPECT_TRUE(exists("a"));
    EXPECT_EQ(failure("undoInfo -length -1"), "undoInfo: the length is less than 0");
}

TEST_F(UndoCommandsTest, flushingForgetsAllSteps)
{
    run("createNode transform -n a");
    run("createNode transform -n b");
    run("undo");
    run("flushUndo");
    EXPECT_EQ(run("undoInfo -q"), "0");
    EXPECT_EQ(failure("redo"), "There are no more commands to redo.");
    EXPECT_TRUE(exists("a"));
}

TEST_F(UndoCommandsTest, aNewSceneForgetsAllSteps)
{
    run("createNode transform -n a");
    run("file -f -new");
    EXPECT_EQ(run("undoInfo -q"), "0");
}

TEST_F(UndoCommandsTest, undoIsSaid)
{
    run("createNode transform -n a");
    EXPECT_THAT(said("undo; redo"),
                testing::ElementsAre("Undo: createNode transform -n a", "Redo: createNode transform -n a"));
}

TEST_F(UndoCommandsTest, inBatchModeItIsOffUntilItIsSwitchedOn)
{
    engine::Scene batch(true);
    EXPECT_FALSE(batch.journal().isOn());
    EXPECT_EQ(batch.journal().length(), 50u);
}

} // namespace tvxhost::mel
