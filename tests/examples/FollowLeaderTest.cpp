// The command followLeader, as its script uses it, and what it refuses.
#include "exampleRun.h"

namespace tvxhost::test {
namespace {

using testing::HasSubstr;

class FollowLeader : public ExampleRun
{
protected:
    /// What a command says after a locator "a" and two groups "b" and "c" were made, the last one locked.
    static ProgramResult with(const std::string& command)
    {
        return run({"-e",
                    "createNode locator -name aShape -parent `group -empty -name a`; group -empty -name b; "
                    "group -empty -name c; setAttr -lock on c.tx; select -clear;",
                    "-e", command});
    }
};

TEST_F(FollowLeader, LinesUpAndTakesItBack)
{
    expectPrinted("followLeader.mel",
                  "apart: (0 0 0) (0 0 0) (0 0 0) (0 7 0)\n"
                  "made: first_translateX second_translateX\n"
                  "following: (10 0 0) (12 0 0) (14 0 0) (0 7 0)\n"
                  "third too: (10 0 0) (12 0 0) (14 0 0) (14.5 0.5 0)\n"
                  "Undo: followLeader -leader \"second\" -axis \"x\" -axis \"y\" -gap 0.5\n"
                  "third alone: (10 0 0) (12 0 0) (14 0 0) (0 7 0)\n"
                  "Redo: followLeader -leader \"second\" -axis \"x\" -axis \"y\" -gap 0.5\n"
                  "third again: (10 0 0) (12 0 0) (14 0 0) (14.5 0.5 0)\n");
}

TEST_F(FollowLeader, IsTakenBackWholeAndDoneAgainWithTheSameNodes)
{
    const std::string told = "print (stringArrayToString(`ls -type plusMinusAverage`, \" \") + \": \" + "
                             "`getAttr b.tx` + \" \" + `getAttr b.ty` + \"\\n\")";
    const ProgramResult result =
        run({"-e",
             "undoInfo -state on; group -empty -name a; group -empty -name b; setAttr b.ty 5; select -clear;",
             "-e",
             "followLeader -axis x -axis y -gap 3 a b",
             "-e",
             told,
             "-e",
             "undo",
             "-e",
             told,
             "-e",
             "redo",
             "-e",
             told,
             "-e",
             "undo",
             "-e",
             "redo",
             "-e",
             told});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(linesWith(result.output, ": "),
              (std::vector<std::string>{
                  "b_translateX b_translateY: 3 3", "Undo: followLeader -axis x -axis y -gap 3 a b", ": 0 5",
                  "Redo: followLeader -axis x -axis y -gap 3 a b", "b_translateX b_translateY: 3 3",
                  "Undo: followLeader -axis x -axis y -gap 3 a b",
                  "Redo: followLeader -axis x -axis y -gap 3 a b", "b_translateX b_translateY: 3 3"}));
}

TEST_F(FollowLeader, IsSavedAsNodesOfMayaAndReadAgain)
{
    const std::string scene = sceneMadeBy("followLeader.mel", "line.ma");
    EXPECT_EQ(nodeText(contentsOf(scene), "second_translateX"),
              "createNode plusMinusAverage -n \"second_translateX\";\n"
              "\tsetAttr -s 2 \".i1[1]\"  4;\n");
    // Whoever reads the scene needs no plug-in.
    EXPECT_THAT(contentsOf(scene), testing::Not(HasSubstr("followLeader")));
    expectReadingAndSavingChangesNothing(scene);
}

TEST_F(FollowLeader, TakesDistancesInTheUsersUnit)
{
    const ProgramResult result =
        with("currentUnit -linear \"m\"; followLeader -g 2 a b; currentUnit -linear \"cm\"; getAttr b.tx");
    EXPECT_EQ(result.errors, "");
    EXPECT_THAT(result.output, HasSubstr("200\n"));
}

TEST_F(FollowLeader, RefusesWhatMakesNoSense)
{
    const struct
    {
        const char* command;
        const char* error;
    } rows[] = {
        {"followLeader -axis \"w\" a b", "followLeader: an axis is x, y or z and not \"w\""},
        {"followLeader -height 3 a b", "followLeader"},
        {"followLeader a", "followLeader: there is nobody to follow"},
        {"followLeader -leader nobody a", "followLeader: there is no transform \"nobody\" to lead"},
        {"followLeader -leader lambert1 a", "followLeader: there is no transform \"lambert1\" to lead"},
        {"followLeader a aShape", "followLeader: only transforms can lead and follow"},
        {"followLeader a c",
         "followLeader: a follower's translation is locked, or follows something already"},
    };
    for (const auto& row : rows) {
        const ProgramResult result = with(row.command);
        EXPECT_EQ(result.exitCode, 1) << row.command;
        EXPECT_THAT(result.errors, HasSubstr(row.error)) << row.command;
        const ProgramResult left = with(std::string("catch(`") + row.command +
                                        "`); print (size(`ls -type plusMinusAverage`) + \" left\\n\")");
        EXPECT_THAT(left.output, HasSubstr("0 left\n")) << row.command;
    }
}

TEST_F(FollowLeader, LeavesNothingBehindWhenAStepFails)
{
    const std::string notMade = "Error: followLeader: the nodes that add the distances cannot be made\n";
    const std::string notDone =
        "Error: followLeader: a follower's translation is locked, or follows something already\n";
    const std::pair<std::string, std::string> rows[] = {
        {"MDGModifier::createNode:2", notMade},        {"MDGModifier::renameNode:2", notMade},
        {"MDGModifier::newPlugValueFloat:2", notMade}, {"MDGModifier::connect:3", notMade},
        {"MDGModifier::connect:4", notMade},           {"MDGModifier::doIt:1", notDone},
    };
    for (const auto& [call, error] : rows) {
        const ProgramResult result =
            run({"--fail", call, "-e", "group -empty -name a; group -empty -name b; select -clear;", "-e",
                 "catch(`followLeader -axis x -axis y a b`)", "-e",
                 "print (size(`ls -type plusMinusAverage`) + \" left, b.tx is fed by \" + "
                 "size(`listConnections b`) + \"\\n\")"});
        EXPECT_THAT(result.errors, testing::StartsWith(error)) << call;
        EXPECT_THAT(result.output, HasSubstr("0 left, b.tx is fed by 0\n")) << call;
    }
}

} // namespace
} // namespace tvxhost::test
