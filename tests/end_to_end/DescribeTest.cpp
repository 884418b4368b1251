// tvxhost --describe: a node type and its attributes.
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace tvxhost::test;
using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

/// The report alone: what loading the plug-in prints is taken away.
ProgramResult describe(const std::string& type, const std::string& option = "--describe")
{
    static const std::string loading = runHost({"--plugin", pluginFile()}).output;
    ProgramResult result = runHost({"--plugin", pluginFile(), option, type});
    EXPECT_THAT(result.output, StartsWith(loading));
    result.output.erase(0, loading.size());
    return result;
}

const char* const kLegend = "flags: K keyable, R readable, W writable, H hidden, A array, I indexMatters, "
                            "S storable, C usedAsColor\n";

TEST(DescribeReport, IsATableOfAPluginsShadingNode)
{
    const ProgramResult result = describe("CrowdHSLShaderVRay");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.output,
              std::string("CrowdHSLShaderVRay\n"
                          "  plug-in: tvxCrowdRender\n"
                          "  id: 0x001168E2\n"
                          "  inherits: THdependNode node\n"
                          "  classification: utility/general:swatch/VRayMtlSwatchGen\n"
                          "  inherited attributes: 6\n"
                          "  own attributes: 5\n"
                          "\n"
                          "long name  short name  type    default      limits   flags     affects\n"
                          "output     op          float3  1 0.45 0              -R---I-C\n"
                          "  outputR    opr       float   1                     -R---I--\n"
                          "  outputG    opg       float   0.45                  -R---I--\n"
                          "  outputB    opb       float   0                     -R---I--\n"
                          "h          h           double  0            -1 .. 1  -RW--IS-  output\n"
                          "s          s           double  0            -1 .. 1  -RW--IS-  output\n"
                          "l          l           double  0            -1 .. 1  -RW--IS-  output\n"
                          "input      in          float3  0.5 0.5 0.5           KRW--ISC  output\n"
                          "  inputR     inr       float   0.5                   KRW--IS-\n"
                          "  inputG     ing       float   0.5                   KRW--IS-\n"
                          "  inputB     inb       float   0.5                   KRW--IS-\n"
                          "\n") +
                  kLegend);
}

TEST(DescribeReport, IsATableOfAPluginsLocator)
{
    const ProgramResult result = describe("CrowdProxyRendermanStudio");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, StartsWith("CrowdProxyRendermanStudio\n"
                                          "  plug-in: tvxCrowdRender\n"
                                          "  id: 0x001168E0\n"
                                          "  inherits: THlocatorShape locator geometryShape shape dagNode "));
    EXPECT_THAT(result.output, HasSubstr("long name   short name  type    default  flags\n"
                                         "sceneName   scn         string  none     -RW--IS-\n"
                                         "frame       cfr         long    0        -RW--IS-\n"
                                         "frameRate   fr          double  0        -RW--IS-\n"
                                         "ribFileDir  rfd         string  none     -RW--IS-\n"
                                         "\n"));
}

TEST(DescribeReport, ShowsTheFieldsOfAnEnum)
{
    EXPECT_THAT(
        describe("CrowdGetUserDataVRay").output,
        HasSubstr("paramType  pt          enum    0        0 mtlIndex, 1 VRay ObjectID  -RW--IS-  output\n"));
}

TEST(DescribeReport, SaysThatATypeHasNoAttributesOfItsOwn)
{
    EXPECT_THAT(linesOf(describe("CrowdRenderManagerNode").output).back(), "  own attributes: 0");
}

TEST(DescribeReport, KnowsTheTypesOfTheHostToo)
{
    const ProgramResult result = runHost({"--describe", "locator"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("localScale "));
    EXPECT_THAT(result.output, HasSubstr("  localScaleX"));
}

TEST(DescribeReport, IsOneJsonObject)
{
    const ProgramResult result = describe("CrowdSwitchShaderVRay", "--describe=json");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(linesOf(result.output).size(), 1u);
    const json type = json::parse(result.output);
    EXPECT_EQ(type["name"], "CrowdSwitchShaderVRay");
    EXPECT_EQ(type["id"], 0x1168E1);
    ASSERT_EQ(type["attributes"].size(), 14u);
    EXPECT_EQ(type["attributes"][0]["flags"]["writable"], false);
    EXPECT_EQ(type["attributes"][13]["longName"], "shader9");
    EXPECT_EQ(type["attributes"][13]["shortName"], "sh9");
    EXPECT_EQ(type["attributes"][13]["default"], (json{1.0, 0.45, 0.0}));
    EXPECT_EQ(type["attributes"][13]["affects"], (json{"output"}));
}

TEST(DescribeReport, OfATypeThatNobodyKnowsIsOneError)
{
    const ProgramResult result = runHost({"--describe", "CrowdHSLShaderVRay"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "Error: Unknown object type: CrowdHSLShaderVRay (the types of a plug-in are there "
              "once it is loaded)\n");
}

} // namespace
