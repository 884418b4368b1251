// The shading node gradientShader, as its script uses it.
#include "exampleRun.h"

namespace tvxhost::test {
namespace {

using GradientShader = ExampleRun;

TEST_F(GradientShader, ColoursAMaterial)
{
    expectPrinted("gradientShader.mel", "empty 0.5: 0 0 0, alpha 1\n"
                                        "at -1: 1 0.5 0, alpha 1\n"
                                        "at -0.75: 1 0.5 0, alpha 1\n"
                                        "at -0.5: 1 0.5 0, alpha 1\n"
                                        "at -0.25: 1 0.5 0, alpha 1\n"
                                        "at 0: 1 0.5 0, alpha 1\n"
                                        "at 0.25: 0.875 0.375 0.25, alpha 0.75\n"
                                        "at 0.5: 0.75 0.25 0.5, alpha 0.5\n"
                                        "at 0.75: 0.5 0.375 0.75, alpha 0.25\n"
                                        "at 1: 0.25 0.5 1, alpha 0\n"
                                        "at 1.25: 0.25 0.5 1, alpha 0\n"
                                        "at 1.5: 0.25 0.5 1, alpha 0\n"
                                        "at 1.75: 0.25 0.5 1, alpha 0\n"
                                        "at 2: 0.25 0.5 1, alpha 0\n"
                                        "stepped 0.25: 1 0.5 0, alpha 0.75\n");
}

TEST_F(GradientShader, IsSavedWithItsRampsAndReadAgain)
{
    const std::string scene = sceneMadeBy("gradientShader.mel", "sunset.ma");
    EXPECT_THAT(contentsOf(scene),
                testing::HasSubstr("\nrequires -nodeType \"gradientShader\" \"gradientShader\" "
                                   "\"1.0\";\n"));
    EXPECT_EQ(nodeText(contentsOf(scene), "sunset"),
              "createNode gradientShader -n \"sunset\";\n"
              "\tsetAttr -s 3 \".cr\";\n"
              "\tsetAttr \".cr[0].crv\" -type \"float3\" 1 0.5 0 ;\n"
              "\tsetAttr \".cr[0].cri\" 0;\n"
              "\tsetAttr \".cr[1].crp\" 0.5;\n"
              "\tsetAttr \".cr[1].crv\" -type \"float3\" 0.75 0.25 0.5 ;\n"
              "\tsetAttr \".cr[1].cri\" 2;\n"
              "\tsetAttr \".cr[4].crp\" 1;\n"
              "\tsetAttr \".cr[4].crv\" -type \"float3\" 0.25 0.5 1 ;\n"
              "\tsetAttr -s 3 \".ar\";\n"
              "\tsetAttr \".ar[0:1]\"  0 1 1 0.5 0.5 2;\n"
              "\tsetAttr \".ar[4]\" 1 0 1;\n");
    expectReadingAndSavingChangesNothing(scene);

    const ProgramResult read = run({scene, "-e", "getAttr sky.color"});
    EXPECT_EQ(read.output, "1 0.5 0\n");
}

TEST_F(GradientShader, IsDescribedAsAPublicNode)
{
    const ProgramResult result =
        run({"-e", "getClassification gradientShader", "-e",
             "getClassification -satisfies \"utility\" gradientShader", "-e",
             "createNode gradientShader -n r; attributeQuery -node r -listEnum colorRamp_Interp", "-e",
             "attributeQuery -node r -usedAsColor colorRamp_Color", "-e",
             "attributeQuery -node r -multi alphaRamp", "-e", "attributeQuery -node r -writable outAlpha"});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "utility/color:swatch/gradientShaderSwatch\n1\nNone:Linear:Smooth\n1\n1\n0\n");
}

TEST_F(GradientShader, DoesNotLoadWithoutItsAttributes)
{
    expectLoadingFailsWith({"MFnNumericAttribute::create:1", "MFnNumericAttribute::create:2",
                            "MFnNumericAttribute::createColor:1", "MFnNumericAttribute::createColor:2",
                            "MFnEnumAttribute::create:1", "MFnEnumAttribute::create:2",
                            "MFnCompoundAttribute::create:1", "MFnCompoundAttribute::addChild:6",
                            "MPxNode::addAttribute:5", "MPxNode::attributeAffects:10",
                            "MFnPlugin::registerNode:1"});
}

} // namespace
} // namespace tvxhost::test
