// Animation curves in files: what is read is written back letter by letter, as Maya breaks and orders it.
#include "SceneFixture.h"

namespace tvxhost::scene {

using CurveTextTest = SceneFixture;

TEST_F(CurveTextTest, KeysStandBeforeWhatIsSaidOfEach)
{
    expectKept("animCurveTA -n \"curve\"", "\tsetAttr \".tan\" 18;\n"
                                           "\tsetAttr \".wgt\" no;\n"
                                           "\tsetAttr -s 5 \".ktv[0:4]\"  1 0 25 90 49 180 73 270 97 360;\n"
                                           "\tsetAttr -s 5 \".kit[0:4]\"  2 18 18 18 2;\n"
                                           "\tsetAttr -s 5 \".kot[0:4]\"  2 18 18 18 2;\n"
                                           "\tsetAttr \".pre\" 4;\n"
                                           "\tsetAttr \".pst\" 4;\n");
}

TEST_F(CurveTextTest, AListThatBeginsLaterTellsTheNumberOfAllKeys)
{
    expectKept("animCurveTL -n \"curve\"", "\tsetAttr \".tan\" 18;\n"
                                           "\tsetAttr \".wgt\" no;\n"
                                           "\tsetAttr -s 3 \".ktv[0:2]\"  2 0 11 -12.482668032265932 72 0;\n"
                                           "\tsetAttr -s 3 \".kit[2]\"  1;\n"
                                           "\tsetAttr -s 3 \".kot[2]\"  1;\n"
                                           "\tsetAttr -s 3 \".kix[2]\"  1;\n"
                                           "\tsetAttr -s 3 \".kiy[2]\"  0;\n"
                                           "\tsetAttr -s 3 \".kox[2]\"  1;\n"
                                           "\tsetAttr -s 3 \".koy[2]\"  0;\n");
}

TEST_F(CurveTextTest, OneKeyNeedsNoNumberOfKeys)
{
    expectKept("animCurveTU -n \"curve\"", "\tsetAttr \".tan\" 18;\n"
                                           "\tsetAttr \".wgt\" no;\n"
                                           "\tsetAttr \".ktv[0]\"  12 1;\n"
                                           "\tsetAttr \".kbd[0]\" yes;\n");
}

TEST_F(CurveTextTest, WeightedCurvesHaveLocksAndLengths)
{
    expectKept("animCurveTL -n \"curve\"",
               "\tsetAttr \".tan\" 1;\n"
               "\tsetAttr -s 5 \".ktv[0:4]\"  1 0 2 0 9 84.263276227087403 16 0 17 0;\n"
               "\tsetAttr -s 5 \".kit[0:4]\"  18 2 1 1 18;\n"
               "\tsetAttr -s 5 \".kot[0:4]\"  18 1 1 2 18;\n"
               "\tsetAttr -s 5 \".ktl[1:4]\" no yes no yes;\n"
               "\tsetAttr -s 5 \".kwl[2:4]\" no yes yes;\n"
               "\tsetAttr -s 5 \".kix[2:4]\"  0.57859820127487183 0.15211538970470428 \n"
               "\t\t0.041666626930236816;\n"
               "\tsetAttr -s 5 \".kiy[2:4]\"  0 -110.1097412109375 0;\n"
               "\tsetAttr -s 5 \".kox[1:4]\"  0.14159902930259705 0.53693151473999023 \n"
               "\t\t0.041666626930236816 0.041666626930236816;\n"
               "\tsetAttr -s 5 \".koy[1:4]\"  111.24176788330078 0 0 0;\n"
               "\tsetAttr \".pre\" 3;\n"
               "\tsetAttr \".pst\" 3;\n");
}

TEST_F(CurveTextTest, PairsWithTimesAreNotTornApart)
{
    expectKept("animCurveTL -n \"curve\"",
               "\tsetAttr \".tan\" 18;\n"
               "\tsetAttr \".wgt\" no;\n"
               "\tsetAttr -s 6 \".ktv[0:5]\"  2 0 13 0.073889406051018708 33 0.73826296479923115\n"
               "\t\t 42 0.63846137146952175 50 0.2536569659127661 72 0;\n");
}

TEST_F(CurveTextTest, NumbersWithoutTimesBreakAnywhere)
{
    expectKept("animCurveUU -n \"curve\"",
               "\tsetAttr \".tan\" 9;\n"
               "\tsetAttr -s 5 \".ktv[0:4]\"  6.7983169555664062 67.983170161193343 47.588218688964844 \n"
               "\t\t67.983170161193343 57.785694122314453 61.184853145074008 67.983169555664062 "
               "67.983170161193343 \n"
               "\t\t81.579803466796875 81.579804193432011;\n"
               "\tsetAttr -s 5 \".kit[1:4]\"  2 9 9 9;\n"
               "\tsetAttr -s 5 \".kot[3:4]\"  2 9;\n"
               "\tsetAttr \".pst\" 1;\n");
}

TEST_F(CurveTextTest, KindsAndFlagsBreakAtTheirOwnPlaces)
{
    std::string keys;
    for (int i = 0; i < 30; ++i)
        keys += "\tsetAttr \".ktv[" + std::to_string(i) + "]\"  " + std::to_string(i) + " 1;\n";
    const std::string kinds = "\tsetAttr -s 30 \".kot[1:29]\"  5 18 18 18 18 18 18 18 \n"
                              "\t\t18 18 18 18 18 18 18 18 18 18 18 18 18 18 18 18 18 \n"
                              "\t\t18 18 18 5;\n";
    const std::string node = std::string("createNode animCurveTU -n \"curve\";\n") + kUid +
                             "\tsetAttr \".tan\" 18;\n" + keys + kinds;
    read(node);
    const std::string saved = savedSection("createNode animCurveTU");
    EXPECT_NE(saved.find(kinds), std::string::npos) << saved;
}

TEST_F(CurveTextTest, KindsOfLaterVersionsAreKept)
{
    expectKept("animCurveTL -n \"curve\"", "\tsetAttr \".tan\" 28;\n"
                                           "\tsetAttr \".ktv[0]\"  0 0;\n"
                                           "\tsetAttr \".kot[0]\"  3;\n");
}

} // namespace tvxhost::scene
