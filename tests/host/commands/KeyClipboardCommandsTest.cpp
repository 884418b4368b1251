// copyKey, cutKey and pasteKey: pieces of animation from one place to another.
#include "undoFixture.h"

namespace tvxhost::mel {
namespace {

class KeyClipboardCommandsTest : public UndoFixture
{
protected:
    KeyClipboardCommandsTest()
    {
        run("createNode transform -n ball; createNode transform -n other; select -cl");
        // Keys at 10, 15, 20, 25 and 30 with the values 1 to 5, straight between them.
        for (int i = 0; i < 5; ++i)
            key("ball.tx", 10 + 5 * i, i + 1);
    }

    void key(const std::string& plug, int frame, int value)
    {
        run("setKeyframe -itt linear -ott linear -t " + std::to_string(frame) + " -v " +
            std::to_string(value) + " " + plug);
    }
    void expectKeys(const std::string& plug, const Value::Numbers& times, const Value::Numbers& values)
    {
        expectNear("keyframe -q " + plug, times);
        expectNear("keyframe -q -vc " + plug, values);
    }
};

// Copying

TEST_F(KeyClipboardCommandsTest, KeysAreCopiedWithTheirTimes)
{
    EXPECT_EQ(run("copyKey -t \"12:22\" ball.tx"), "1");
    EXPECT_EQ(run("pasteKey other.tx"), "1");
    expectKeys("other.tx", {15, 20}, {2, 3});
    EXPECT_EQ(strings("keyTangent -q -itt -t 15 other.tx"), Value::Strings{"linear"});
    expectKeys("ball.tx", {10, 15, 20, 25, 30}, {1, 2, 3, 4, 5});
}

TEST_F(KeyClipboardCommandsTest, TheShapeUpToTheEndsOfTheRangeIsCopied)
{
    EXPECT_EQ(run("copyKey -t \"12:22\" -option curve ball"), "1");
    run("pasteKey other");
    expectKeys("other.tx", {12, 15, 20, 22}, {1.4, 2, 3, 3.4});
    run("copyKey -t \":12\" -o curve ball; cutKey -cl other; pasteKey other");
    expectKeys("other.tx", {10, 12}, {1, 1.4});
}

TEST_F(KeyClipboardCommandsTest, NamesakesAreObjectsOfTheirOwn)
{
    run("createNode transform -n eye -p ball; createNode transform -n eye -p other");
    key("ball|eye.tx", 1, 7);
    key("other|eye.tx", 2, 8);
    EXPECT_EQ(run("copyKey \"ball|eye.tx\" \"other|eye.tx\""), "2");
    run("createNode transform -n left; createNode transform -n right; pasteKey left right");
    expectKeys("left.tx", {1}, {7});
    expectKeys("right.tx", {2}, {8});
}

TEST_F(KeyClipboardCommandsTest, WhatHasNoKeysLeavesTheClipboardAsItIs)
{
    EXPECT_EQ(failure("pasteKey other"), "pasteKey: there is nothing on the clipboard");
    run("copyKey -t 10 ball");
    EXPECT_EQ(run("copyKey other"), "0");
    EXPECT_EQ(run("copyKey -t \"11:14\" ball"), "0");
    EXPECT_EQ(run("pasteKey other"), "1");
    expectKeys("other.tx", {10}, {1});
    EXPECT_EQ(failure("copyKey -clipboard api ball"),
              "copyKey: there is no clipboard 'api' here, only 'anim'");
    EXPECT_EQ(failure("copyKey -option all ball"), "copyKey: -option is keys or curve, not 'all'");
}

TEST_F(KeyClipboardCommandsTest, NothingIsSharedWithWhatWasCopied)
{
    run("copyKey -t \"10:15\" ball; keyframe -e -t 10 -vc 100 ball; pasteKey other");
    expectKeys("other.tx", {10, 15}, {1, 2});
}

// Cutting

TEST_F(KeyClipboardCommandsTest, WhatIsCutCanBePasted)
{
    EXPECT_EQ(run("cutKey -t \"12:22\" -option keys ball"), "1");
    expectKeys("ball.tx", {10, 25, 30}, {1, 4, 5});
    run("pasteKey other");
    expectKeys("other.tx", {15, 20}, {2, 3});
}

TEST_F(KeyClipboardCommandsTest, WhatIsClearedCannot)
{
    run("copyKey -t 30 ball; cutKey -clear -t \"12:22\" ball; pasteKey other");
    expectKeys("other.tx", {30}, {5});
}

TEST_F(KeyClipboardCommandsTest, ACutLeavesTheCurveAsItsOptionSays)
{
    const struct
    {
        const char* option;
        Value::Numbers times;
        Value::Numbers values;
        Value::Numbers cut; ///< the times on the clipboard
    } rows[] = {
        {"keys", {10, 25, 30}, {1, 4, 5}, {15, 20}},
        {"keysCollapse", {10, 20, 25}, {1, 4, 5}, {15, 20}},
        {"curve", {10, 12, 22, 25, 30}, {1, 1.4, 3.4, 4, 5}, {12, 15, 20, 22}},
        {"curveConnect", {10, 12, 15, 20}, {1, 3.4, 4, 5}, {12, 15, 20, 22}},
        {"areaCollapse", {10, 15, 20}, {1, 4, 5}, {12, 15, 20, 22}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.option);
        run(std::string("cutKey -cl other; cutKey -t \"12:22\" -option ") + row.option +
            " ball; pasteKey other");
        expectKeys("ball.tx", row.times, row.values);
        expectNear("keyframe -q other.tx", row.cut);
        run("undo");
    }
    EXPECT_EQ(failure("cutKey -option curveCollapse ball"),
              "cutKey: -option is keys, keysCollapse, curve, curveConnect or areaCollapse here, not "
              "'curveCollapse'");
}

// Room

TEST_F(KeyClipboardCommandsTest, APastedPieceMakesRoomAsItsOptionSays)
{
    // On the clipboard: 20 frames, from 1 to 5. The target has keys at 0, 5, 7 and 40.
    const struct
    {
        const char* flags;
        Value::Numbers times;
        Value::Numbers values;
    } rows[] = {
        {"-t 5 -option insert", {0, 5, 10, 15, 20, 25, 27, 60}, {0, 1, 2, 3, 4, 5, 70, 400}},
        {"-t 5", {0, 5, 10, 15, 20, 25, 27, 60}, {0, 1, 2, 3, 4, 5, 70, 400}},
        {"-t \"5:25\" -option replace", {0, 5, 10, 15, 20, 25, 40}, {0, 1, 2, 3, 4, 5, 400}},
        {"-t \"4:40\" -option replace", {0, 4, 9, 14, 19, 24}, {0, 1, 2, 3, 4, 5}},
        {"-t \"4:40\" -iub false -option replace", {0, 4, 9, 14, 19, 24, 40}, {0, 1, 2, 3, 4, 5, 400}},
        {"-option replaceCompletely", {10, 15, 20, 25, 30}, {1, 2, 3, 4, 5}},
        {"-t 5 -option merge", {0, 5, 7, 10, 15, 20, 25, 40}, {0, 1, 70, 2, 3, 4, 5, 400}},
        {"-t \"2:10\" -option scaleInsert", {0, 2, 4, 6, 8, 10, 13, 15, 48}, {0, 1, 2, 3, 4, 5, 50, 70, 400}},
        {"-t \"2:10\" -option scaleReplace", {0, 2, 4, 6, 8, 10, 40}, {0, 1, 2, 3, 4, 5, 400}},
        {"-t \"3:7\" -option scaleMerge", {0, 3, 4, 5, 6, 7, 40}, {0, 1, 2, 3, 4, 5, 400}},
        {"-t \"3:10\" -option fitInsert", {0, 3, 8, 10, 12, 14, 47}, {0, 1, 2, 2.4, 50, 70, 400}},
        {"-t \"3:10\" -option fitReplace", {0, 3, 8, 10, 40}, {0, 1, 2, 2.4, 400}},
        {"-t \"3:10\" -option fitMerge", {0, 3, 5, 7, 8, 10, 40}, {0, 1, 50, 70, 2, 2.4, 400}},
        {"-t \"50:100\" -option fitMerge",
         {0, 5, 7, 40, 50, 55, 60, 65, 70},
         {0, 50, 70, 400, 1, 2, 3, 4, 5}},
    };
    run("copyKey ball");
    for (const int frame : {0, 5, 7, 40})
        key("other.tx", frame, 10 * frame);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.flags);
        EXPECT_EQ(run(std::string("pasteKey ") + row.flags + " other"), "1");
        expectKeys("other.tx", row.times, row.values);
        run("undo");
    }
    EXPECT_EQ(failure("pasteKey -option over other"), "pasteKey: 'over' is no value of -option");
    EXPECT_EQ(failure("pasteKey -t 5 -option scaleMerge other"),
              "pasteKey: -option scaleMerge needs a range of times, as -time \"3:10\"");
}

TEST_F(KeyClipboardCommandsTest, APasteThatIsRefusedMakesNoCurve)
{
    run("copyKey ball");
    failure("pasteKey -t 5 -option fitInsert other");
    EXPECT_FALSE(exists("other_translateX"));
}

TEST_F(KeyClipboardCommandsTest, CopiesFollowEachOther)
{
    run("copyKey -t \"10:20\" ball");
    run("pasteKey -t 1 -copies 2 other");
    // The last key of the first is the first key of the second.
    expectKeys("other.tx", {1, 6, 11, 16, 21}, {1, 2, 1, 2, 3});
    run("undo");
    run("pasteKey -t 1 -copies 2 -connect true other");
    // What had the value 0 goes up by 2 twice.
    expectKeys("other.tx", {1, 6, 11, 16, 21}, {0, 1, 2, 3, 4});
    EXPECT_EQ(failure("pasteKey -t \"1:5\" -copies 2 -option fitMerge other"),
              "pasteKey: -copies of 'fitMerge' is not implemented: there is one range");
    EXPECT_EQ(failure("pasteKey -copies 0 other"), "pasteKey: -copies must be 1 or more");
}

TEST_F(KeyClipboardCommandsTest, TimesAndValuesAreOffset)
{
    run("copyKey -t \"10:15\" ball; pasteKey -timeOffset 3 -valueOffset 0.5 other");
    expectKeys("other.tx", {13, 18}, {1.5, 2.5});
    run("cutKey -cl other; pasteKey -t 1 -timeOffset \"1sec\" other");
    expectKeys("other.tx", {25, 30}, {1, 2});
}

// What goes where

TEST_F(KeyClipboardCommandsTest, OneAttributeGoesOntoEveryAttributeThatIsNamed)
{
    run("copyKey -t \"10:15\" ball.tx");
    EXPECT_EQ(run("pasteKey other.ty other.rz"), "2");
    expectKeys("other.ty", {10, 15}, {1, 2});
    // The numbers that are seen stay: degrees instead of centimetres.
    expectKeys("other.rz", {10, 15}, {1, 2});
    EXPECT_EQ(run("nodeType other_rotateZ"), "animCurveTA");
    EXPECT_EQ(run("pasteKey -at sx -at sy other"), "2");
    expectKeys("other.sy", {10, 15}, {1, 2});
    EXPECT_EQ(run("createNode animCurveTL -n free; pasteKey free"), "1");
    expectKeys("free", {10, 15}, {1, 2});
}

TEST_F(KeyClipboardCommandsTest, SeveralAttributesGoOntoThoseOfTheSameName)
{
    key("ball.ry", 10, 90);
    EXPECT_EQ(run("copyKey -at tx -at ry -t 10 ball"), "2");
    EXPECT_EQ(run("pasteKey other"), "2");
    expectKeys("other.tx", {10}, {1});
    expectKeys("other.ry", {10}, {90});
    EXPECT_EQ(run("pasteKey -at translate other"), "1");
    EXPECT_EQ(run("createNode lambert -n red; pasteKey red"), "0") << "nothing of that name";
}

TEST_F(KeyClipboardCommandsTest, OneObjectGoesOntoAllAndSeveralInTheirOrder)
{
    key("other.tx", 1, 7);
    run("createNode transform -n one; createNode transform -n two; createNode transform -n three");
    EXPECT_EQ(run("copyKey -t 10 ball; pasteKey one two three"), "3");
    expectKeys("three.tx", {10}, {1});
    run("copyKey -t 1 -t 10 ball other");
    EXPECT_EQ(run("select one two three; pasteKey -option replaceCompletely"), "2");
    expectKeys("one.tx", {10}, {1});
    expectKeys("two.tx", {1}, {7});
    EXPECT_EQ(run("pasteKey -matchByName true -t 50 other three"), "1");
    expectKeys("other.tx", {1, 50}, {7, 7});
}

TEST_F(KeyClipboardCommandsTest, HierarchiesGoOntoHierarchies)
{
    run("createNode transform -n arm -p ball; createNode transform -n hand -p arm;"
        "createNode transform -n leg -p other; createNode transform -n foot -p leg");
    key("arm.rx", 1, 30);
    key("hand.ty", 2, 8);
    EXPECT_EQ(run("copyKey -hierarchy below ball"), "3");
    EXPECT_EQ(run("pasteKey other"), "3");
    expectKeys("leg.rx", {1}, {30});
    expectKeys("foot.ty", {2}, {8});
    EXPECT_EQ(run("copyKey -hierarchy both arm"), "3");
    EXPECT_EQ(run("pasteKey -t 100 leg"), "3");
    expectNear("keyframe -q foot.ty", {2, 100});
    EXPECT_EQ(run("pasteKey foot"), "2") << "nothing is below";
}

TEST_F(KeyClipboardCommandsTest, ShapesBelongToTheirObject)
{
    run("createNode locator -n ballMark -p ball; createNode locator -n otherMark -p other");
    key("ballMark.lpx", 3, 4);
    EXPECT_EQ(run("copyKey ball; pasteKey other"), "2");
    expectKeys("otherMark.lpx", {3}, {4});
    EXPECT_EQ(run("copyKey -shape false ball"), "1");
}

TEST_F(KeyClipboardCommandsTest, WhatCannotTakeKeysIsLeftOut)
{
    run("setAttr -l on other.tx; copyKey ball");
    EXPECT_EQ(run("pasteKey other"), "0");
    run("setAttr -l off other.tx; connectAttr ball.ty other.tx");
    EXPECT_EQ(run("pasteKey other"), "0");
}

TEST_F(KeyClipboardCommandsTest, DrivenCurvesKeepTheirNumbers)
{
    run("createNode animCurveUL -n driven; connectAttr driven.o ball.ty; setKeyframe -f 0 -v 1 ball.ty;"
        "setKeyframe -f 2 -v 3 ball.ty");
    EXPECT_EQ(run("copyKey ball.ty; pasteKey -float 10 -floatOffset 1 other.ty"), "1");
    expectNear("keyframe -q -fc other.ty", {11, 13});
    EXPECT_EQ(run("nodeType other_translateY"), "animCurveUL");
    EXPECT_EQ(run("pasteKey ball_translateX"), "0") << "a curve over time";
}

// Undo

TEST_F(KeyClipboardCommandsTest, PastingAndCuttingAreUndone)
{
    run("copyKey ball");
    expectUndoable("pasteKey -t 5 other");
    expectUndoable("pasteKey -t 5 -option scaleReplace -t 9 other");
    expectUndoable("cutKey other");
}

TEST_F(KeyClipboardCommandsTest, TheClipboardIsWhatItWasAfterUndo)
{
    run("copyKey -t 10 ball");
    run("copyKey -t 30 ball");
    run("undo");
    run("pasteKey other");
    expectKeys("other.tx", {10}, {1});
}

} // namespace
} // namespace tvxhost::mel
