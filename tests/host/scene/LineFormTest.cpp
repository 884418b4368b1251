// The form of lines: what is read is written back letter by letter, broken and spelled as Maya does it.
#include "SceneFixture.h"

namespace tvxhost::scene {

using LineFormTest = SceneFixture;

TEST_F(LineFormTest, listsOfAMeshBreakBehindWholePointsAndEdges)
{
    expectKept("mesh -n \"plane\" -p \"polySurface1\"",
               "\tsetAttr -k off \".v\";\n"
               "\tsetAttr -s 16 \".vt[0:15]\"  -0.5 -1.110223e-16 0.5 -0.16666666 -1.110223e-16 0.5\n"
               "\t\t 0.16666669 -1.110223e-16 0.5 0.5 -1.110223e-16 0.5 -0.5 -3.7007432e-17 0.16666666\n"
               "\t\t -0.16666666 -3.7007432e-17 0.16666666 0.16666669 -3.7007432e-17 0.16666666 0.5 "
               "-3.7007432e-17 0.16666666\n"
               "\t\t -0.5 3.7007432e-17 -0.16666666 -0.16666666 3.7007432e-17 -0.16666666 0.16666669 "
               "3.7007432e-17 -0.16666666\n"
               "\t\t 0.5 3.7007432e-17 -0.16666666 -0.5 1.110223e-16 -0.5 -0.16666666 1.110223e-16 -0.5\n"
               "\t\t 0.16666669 1.110223e-16 -0.5 0.5 1.110223e-16 -0.5;\n"
               "\tsetAttr -s 24 \".ed[0:23]\"  0 1 0 0 4 0 1 2 0 1 5 1 2 3 0 2 6 1 3 7 0\n"
               "\t\t 4 5 1 4 8 0 5 6 1 5 9 1 6 7 1 6 10 1 7 11 0 8 9 1 8 12 0 9 10 1 9 13 1 10 11 1 10 14 1\n"
               "\t\t 11 15 0 12 13 0 13 14 0 14 15 0;\n");
}

TEST_F(LineFormTest, floatsOfAMeshHaveTheDigitsOfTheirFraction)
{
    expectKept(
        "mesh -n \"m\" -p \"polySurface1\"",
        "\tsetAttr -k off \".v\";\n"
        "\tsetAttr -s 3 \".vt[0:2]\"  1.000000119209 2.54605126 -16.086551666 5.044827938 163.79882813 "
        "-4.00001001358\n\t\t 100 0.050000001 1e+20;\n");
}

TEST_F(LineFormTest, coordinatesOfUVsBreakAnywhereAndTellTheirTypeOnce)
{
    std::string first =
        "\tsetAttr \".uvst[0].uvsp[0:249]\" -type \"float2\" 0 0.5 0 0.5 0 0.5 0 0.5 0 0.5\n\t\t";
    std::string again = "\tsetAttr \".uvst[0].uvsp[250:251]\" 1 0.25 1 0.25;\n";
    // Five pairs stand on the first line and fourteen on each of the others.
    int words = 0;
    for (int i = 10; i < 500; ++i) {
        if (words == 28) {
            first += "\n\t\t";
            words = 0;
        }
        first += i % 2 == 0 ? " 0" : " 0.5";
        words += 1;
    }
    expectKept("mesh -n \"m\" -p \"polySurface1\"",
               "\tsetAttr -k off \".v\";\n\tsetAttr -s 252 \".uvst[0].uvsp\";\n" + first + ";\n" + again);
}

TEST_F(LineFormTest, facesInSeveralListsTellTheirTypeAndNumbersOnce)
{
    std::string lists[2];
    for (int i = 0; i < 501; ++i)
        lists[i / 500] += "\n\t\tf 3 0 1 2";
    expectKept("mesh -n \"m\" -p \"polySurface1\"", "\tsetAttr -k off \".v\";\n"
                                                    "\tsetAttr -s 501 -ch 1503 \".fc\";\n"
                                                    "\tsetAttr \".fc[0:499]\" -type \"polyFaces\" " +
                                                        lists[0] + ";\n\tsetAttr \".fc[500]\"" + lists[1] +
                                                        ";\n");
}

TEST_F(LineFormTest, groupsWithGapsStandOneByOneAndWithoutInAList)
{
    expectKept("mesh -n \"m\" -p \"polySurface1\"",
               "\tsetAttr -k off \".v\";\n"
               "\tsetAttr -s 2 \".pt\";\n"
               "\tsetAttr \".pt[40]\" -type \"float3\" 1.6257657 0 0 ;\n"
               "\tsetAttr \".pt[41]\" -type \"float3\" -1.9080945 0 0 ;\n");
    expectKept("mesh -n \"m\" -p \"polySurface1\"",
               "\tsetAttr -k off \".v\";\n"
               "\tsetAttr -s 4 \".pt[0:3]\" -type \"float3\"  10.000008 -17.346029 3.5527137e-15 \n"
               "\t\t10.000008 -17.346029 3.5527137e-15 10.000008 -17.346029 3.5527137e-15 10.000008 "
               "-17.346029 \n"
               "\t\t3.5527137e-15;\n");
}

TEST_F(LineFormTest, longGroupsBreakBetweenTheirNumbers)
{
    expectKept(
        "joint -n \"j\"",
        "\tsetAttr \".t\" -type \"double3\" -20.068062672274571 9.4951217851165577 -5.4916740400279727 ;\n"
        "\tsetAttr \".jo\" -type \"double3\" -7.0167093592610656e-150 -1.1822377704202099e-130 \n"
        "\t\t-179.99999993742566 ;\n");
}

TEST_F(LineFormTest, matricesBreakBehindWholeRows)
{
    const std::string declaration = "\taddAttr -ci true -sn \"txf\" -ln \"place\" -dt \"matrix\";\n";
    for (const char* matrix :
         {" 2 0 0 0 0 2 0 0 0 0 2 0 0 0 0 1",
          " 2.2204460492503131e-16 1 0 0 -1 2.2204460492503131e-16 0 0\n"
          "\t\t 0 0 1 0 0 0 3.1000000000000001 1",
          " 1 0 0 0 0 2.2204460492503131e-16 1 0\n"
          "\t\t 0 -1 2.2204460492503131e-16 0 0 0 0.10000000000000001 1",
          " -0.99941905557048871 -0.00023163844780200473 -0.034080752723814334 0\n"
          "\t\t -0.034081539909344899 0.0067926894114514486 0.9993959715788171 0 0 0.99997690259034988 "
          "-0.5 0\n"
          "\t\t 0 0 0 1"})
        expectKept("transform -n \"a\"",
                   declaration + "\tsetAttr \".txf\" -type \"matrix\"" + matrix + ";\n");
}

TEST_F(LineFormTest, listsThatTellTheirLengthBreakByTheWidthOfTheLine)
{
    expectKept("transform -n \"a\"",
               "\taddAttr -ci true -sn \"mas0\" -ln \"masses\" -dt \"doubleArray\";\n"
               "\tsetAttr \".mas0\" -type \"doubleArray\" 25 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 "
               "1 1 1 1 1\n\t\t 1 1 1 1 ;\n");
    expectKept("transform -n \"a\"", "\taddAttr -ci true -sn \"otfva\" -ln \"filters\" -dt \"Int32Array\";\n"
                                     "\tsetAttr \".otfva\" -type \"Int32Array\" 22 0 1 1 1 1 1\n"
                                     "\t\t 1 1 1 0 0 0 0 0 0 0 0 0\n"
                                     "\t\t 0 0 0 0 ;\n");
}

TEST_F(LineFormTest, longStringsBreakBehindTheirLines)
{
    const std::string line(600, 'x');
    const std::string endless(2500, 'y');
    expectKept("script -n \"s\"", "\tsetAttr \".b\" -type \"string\" (\n\t\t\"" + line + "\\n" + line +
                                      "\\n\"\n\t\t+ \"short\\n\"\n\t\t+ \"" + endless + "\\n\"\n\t\t+ \"" +
                                      line + "\");\n");
    expectKept("script -n \"s\"", "\tsetAttr \".b\" -type \"string\" (\n\t\t\"" + endless + "\");\n");
}

TEST_F(LineFormTest, declarationsBreakBetweenAFlagAndItsValue)
{
    expectKept("transform -n \"a\"",
               "\taddAttr -ci true -sn \"lockCenterJoints\" -ln \"lockCenterJoints\" -dv 1 -min 0 -max \n"
               "\t\t1 -at \"bool\";\n"
               "\taddAttr -ci true -sn \"forceEverything\" -ln \"forceEverything\" -dv 16 -min 0 -max \n"
               "\t\t262144 -at \"long\";\n"
               "\taddAttr -ci true -sn \"myDoubleLinearUsdRiAttr\" -ln \"myDoubleLinearUsdRiAttr\" -at "
               "\"doubleLinear\";\n");
}

TEST_F(LineFormTest, longStatementsBreakBeforeTheirParentAndTheirEnd)
{
    const std::string name = "IKhybridFollowSpine1_MFollow_parentConstraint1";
    expectKept("transform -n \"" + name + "xxxxxxx\" \n\t\t-p \"polySurface1\"", "");
    expectKept("transform -n \"" + name + "xxxxx\" -p\n\t\t \"polySurface1\"", "");
    read("createNode transform -n \"" + name +
         "\";\ncreateNode transform -n \"target\";\n"
         "connectAttr \"" +
         name +
         ".rotatePivotX\" \"target.rotatePivotY\";\n"
         "connectAttr \"" +
         name + ".tx\" \"target.ty\";\n");
    EXPECT_NE(saved().find("connectAttr \"" + name + ".tx\" \"target.ty\";\n"), std::string::npos);
    EXPECT_NE(saved().find("connectAttr \"" + name + ".rpx\" \"target.rpy\";\n"), std::string::npos);
    ASSERT_TRUE(scene.rename(node("target"), "aTargetWithALongName12"));
    EXPECT_NE(saved().find("connectAttr \"" + name + ".rpx\" \"aTargetWithALongName12.rpy\"\n\t\t;\n"),
              std::string::npos);
}

TEST_F(LineFormTest, nodesThatShareANameAreNamedByTheirWholePath)
{
    read("createNode transform -n \"a\";\ncreateNode transform -n \"x\" -p \"a\";\n"
         "createNode transform -n \"b\";\ncreateNode transform -n \"x\" -p \"b\";\n"
         "createNode transform -n \"y\" -p \"|b|x\";\nconnectAttr \"|a|x.tx\" \"|b|x.tx\";\n");
    EXPECT_EQ(savedStatements("createNode transform -n \"y\""),
              "createNode transform -n \"y\" -p \"|b|x\";\n");
    EXPECT_EQ(savedStatements("connectAttr \"|a"), "connectAttr \"|a|x.tx\" \"|b|x.tx\";\n");
}

TEST_F(LineFormTest, sharedNodesAreReferredToAsThoseOfEveryScene)
{
    read("createNode lightLinker -s -n \"lightLinker1\";\ncreateNode network -n \"net\";\n"
         "\taddAttr -ci true -sn \"in\" -ln \"inLinker\" -at \"message\";\n"
         "connectAttr \":lightLinker1.msg\" \"net.in\";\n");
    EXPECT_EQ(savedStatements("connectAttr \":lightLinker1"),
              "connectAttr \":lightLinker1.msg\" \"net.in\";\n");
}

TEST_F(LineFormTest, theNumberOfLinksStandsWithTheLinker)
{
    const std::string linker = "createNode lightLinker -s -n \"lightLinker1\";\n" + std::string(kUid);
    const char* kinds[] = {"link", "shadowLink"};
    std::string links;
    for (const char* kind : kinds)
        for (const char* group : {":initialShadingGroup", ":initialParticleSE"})
            links += std::string("relationship \"") + kind + "\" \":lightLinker1\" \"" + group +
                     ".message\" \":defaultLightSet.message\";\n";
    read(linker + links);
    EXPECT_EQ(savedSection("createNode lightLinker"),
              linker + "\tsetAttr -s 2 \".lnk\";\n\tsetAttr -s 2 \".slnk\";\n");
    EXPECT_EQ(savedStatements("relationship"), links);
}

TEST_F(LineFormTest, weightsStandPointByPoint)
{
    expectKept("skinCluster -n \"skin\"", "\tsetAttr -s 3 \".wl\";\n"
                                          "\tsetAttr \".wl[0:2].w\"\n"
                                          "\t\t1 4 1\n"
                                          "\t\t2 0 0.25 3 0.75\n"
                                          "\t\t1 16 1;\n");
}

TEST_F(LineFormTest, arraysOfNumbersTellTheirConnectedElementsOnceMore)
{
    read("createNode transform -n \"a\";\ncreateNode plusMinusAverage -n \"sum\";\n" + std::string(kUid) +
         "\tsetAttr -s 3 \".i1[2]\"  -0.5;\n"
         "connectAttr \"a.tx\" \"sum.i1[0]\";\nconnectAttr \"a.ty\" \"sum.i1[1]\";\n");
    EXPECT_EQ(savedSection("createNode plusMinusAverage"), "createNode plusMinusAverage -n \"sum\";\n" +
                                                               std::string(kUid) +
                                                               "\tsetAttr -s 3 \".i1[2]\"  -0.5;\n"
                                                               "\tsetAttr -s 2 \".i1\";\n");
}

TEST_F(LineFormTest, valuesThatAFileMarksAsAlteredStayMarked)
{
    const std::string lines = "\tsetAttr -av -k off \".v\";\n"
                              "\tsetAttr -av \".t\" -type \"double3\" 1 2 3 ;\n"
                              "\tsetAttr -av -cb on \".ro\";\n";
    expectKept("transform -n \"t\"", lines);
    ASSERT_TRUE(engine::writeNumbers(scene.findPlug("t.t").value, {4, 5, 6}));
    EXPECT_NE(saved().find("\tsetAttr -av \".t\" -type \"double3\" 4 5 6 ;\n"), std::string::npos)
        << "the mark stays, the value is the present one";
}

TEST_F(LineFormTest, groupsOfAShapesFacesTellTheirNumber)
{
    expectKept("mesh -n \"m\" -p \"polySurface1\"",
               "\tsetAttr -k off \".v\";\n"
               "\tsetAttr -s 2 \".iog[0].og\";\n"
               "\tsetAttr \".iog[0].og[0].gcl\" -type \"componentList\" 1 \"f[0:49]\";\n"
               "\tsetAttr \".iog[0].og[1].gcl\" -type \"componentList\" 1 \"f[50:59]\";\n");
}

TEST_F(LineFormTest, matricesOfPartsTellTheirNumber)
{
    const std::string parts = " -type \"matrix\" \"xform\" 1 1 1 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0\n"
                              "\t\t 0 0 0 0 0 0 0 0 0 0 1 0 0 0 1 1 1 1 yes;\n";
    expectKept("dagPose -n \"pose\"",
               "\tsetAttr -s 2 \".xm\";\n\tsetAttr \".xm[0]\"" + parts + "\tsetAttr \".xm[1]\"" + parts);
}

TEST_F(LineFormTest, instancesAreNamedByTheirPathAndTellTheirNumber)
{
    read("createNode transform -n \"a\";\ncreateNode mesh -n \"shape\" -p \"a\";\n"
         "createNode transform -n \"b\";\ncreateNode polyCube -n \"cube\";\n"
         "parent -s -nc -r -add \"|a|shape\" \"b\" ;\n"
         "connectAttr \"cube.out\" \"|a|shape.i\";\n"
         "connectAttr \"|a|shape.iog\" \":initialShadingGroup.dsm\" -na;\n"
         "connectAttr \"|b|shape.iog\" \":initialShadingGroup.dsm\" -na;\n");
    EXPECT_NE(saved().find("\tsetAttr -s 2 \".iog\";\n"), std::string::npos) << saved();
    EXPECT_EQ(savedStatements("connectAttr"),
              "connectAttr \"cube.out\" \"|a|shape.i\";\n"
              "connectAttr \"|a|shape.iog\" \":initialShadingGroup.dsm\" -na;\n"
              "connectAttr \"|b|shape.iog\" \":initialShadingGroup.dsm\" -na;\n");
}

TEST_F(LineFormTest, listsOfEverySceneAreNamedWhereSomethingIsInThem)
{
    read("createNode file -n \"picture\";\n");
    EXPECT_EQ(saved().find("select -ne :defaultTextureList1;\n"), std::string::npos);
    read("createNode file -n \"picture\";\n"
         "connectAttr \"picture.msg\" \":defaultTextureList1.tx\" -na;\n");
    EXPECT_NE(saved().find("select -ne :defaultTextureList1;\nselect -ne :initialShadingGroup;\n"),
              std::string::npos)
        << saved();
}

TEST_F(LineFormTest, theListOfShadersBeginsWithFour)
{
    read("");
    EXPECT_NE(saved().find("select -ne :defaultShaderList1;\n\tsetAttr -s 4 \".s\";\n"), std::string::npos);
    read("createNode blinn -n \"skin\";\nconnectAttr \"skin.msg\" \":defaultShaderList1.s\" -na;\n");
    EXPECT_NE(saved().find("select -ne :defaultShaderList1;\n\tsetAttr -s 5 \".s\";\n"), std::string::npos);
}

TEST_F(LineFormTest, theRendererIsToldWhenItIsAnotherOne)
{
    const std::string section = "select -ne :defaultRenderGlobals;\n";
    read("");
    EXPECT_EQ(string("defaultRenderGlobals.ren"), "mayaSoftware");
    EXPECT_EQ(saved().find(section), std::string::npos);
    const std::string other = section + "\tsetAttr \".ren\" -type \"string\" \"mayaHardware2\";\n";
    read(other);
    EXPECT_NE(saved().find(other), std::string::npos);
    const std::string shown = section + "\tsetAttr -cb on \".ren\";\n";
    read(shown);
    EXPECT_NE(saved().find(shown), std::string::npos);
}

TEST_F(LineFormTest, sizesOfWhatEverySceneHasStayWhereNothingElseIsKnown)
{
    const std::string solvers = "select -ne :ikSystem;\n\tsetAttr -s 4 \".sol\";\n";
    read(solvers);
    EXPECT_NE(saved().find(solvers), std::string::npos);
    read(solvers +
         "createNode ikRPsolver -n \"a\";\ncreateNode ikSCsolver -n \"b\";\n"
         "connectAttr \"a.msg\" \":ikSystem.sol\" -na;\nconnectAttr \"b.msg\" \":ikSystem.sol\" -na;\n");
    EXPECT_NE(saved().find("select -ne :ikSystem;\n\tsetAttr -s 2 \".sol\";\n"), std::string::npos);
}

TEST_F(LineFormTest, lockedNodesOfUnknownTypesAreLockedWithoutATab)
{
    const std::string lines =
        "createNode strangeThing -n \"s\";\n" + std::string(kUid) + "\tsetAttr \".q\" 3;\n";
    read(lines + "lockNode -l 1 ;\n");
    EXPECT_NE(saved().find(lines + "lockNode -l 1 ;\n"), std::string::npos) << saved();
}

} // namespace tvxhost::scene
