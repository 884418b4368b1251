// What a plug-in is told of a session of the program, in order.
#include "program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace tvxhost::test;

/// What the listening plug-in heard and what scripts printed, in order.
std::vector<std::string> heard(const std::vector<std::string>& scripts)
{
    std::vector<std::string> arguments = {"--plugin", TVX_LISTENER_PLUGIN};
    for (const std::string& script : scripts) {
        arguments.push_back("-e");
        arguments.push_back(script);
    }
    const ProgramResult result = runHost(arguments);
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    std::vector<std::string> told;
    for (const std::string& line : linesOf(result.output))
        if (line.rfind("heard: ", 0) == 0)
            told.push_back(line.substr(7));
        else if (line.rfind("now: ", 0) == 0)
            told.push_back(line);
    return told;
}

using Lines = std::vector<std::string>;

TEST(SessionEvents, AreTheStartAndTheEnd)
{
    EXPECT_EQ(heard({"print \"now: scripts\\n\""}), (Lines{"initialized", "now: scripts", "exiting"}));
}

TEST(SessionEvents, TellOfUnitsAlsoWhenUndoRestoresThem)
{
    EXPECT_EQ(heard({"undoInfo -state on", "currentUnit -linear m -angle rad -time pal",
                     "print \"now: undo\\n\"", "undo",
                     "print (\"now: \" + `currentUnit -q -linear` + "
                     "`currentUnit -q -angle` + `currentUnit -q -time` + \"\\n\")",
                     "redo", "currentUnit -linear m"}),
              (Lines{"initialized", "linearUnitChanged", "angularUnitChanged", "timeUnitChanged", "now: undo",
                     "linearUnitChanged", "angularUnitChanged", "timeUnitChanged", "now: cmdegfilm",
                     "linearUnitChanged", "angularUnitChanged", "timeUnitChanged", "exiting"}));
}

TEST(SessionEvents, TellOfThePlayedRangeAlsoWhenUndoRestoresIt)
{
    EXPECT_EQ(
        heard({"undoInfo -state on", "playbackOptions -min 5 -max 20", "print \"now: undo\\n\"", "undo",
               "print (\"now: \" + `playbackOptions -q -min` + \" \" + `playbackOptions -q -max` + \"\\n\")",
               "redo", "playbackOptions -loop once"}),
        (Lines{"initialized", "playbackRangeChanged", "now: undo", "playbackRangeChanged", "now: 1 24",
               "playbackRangeChanged", "exiting"}));
}

} // namespace
