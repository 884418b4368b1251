// The plug-in's nodes in scripts: what a user can set, read and connect, and what is refused.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace {

using namespace tvxhost::test;
using testing::ElementsAre;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

struct Said
{
    Lines printed;
    Lines errors;
};

/// What a script says once the plug-in is loaded; the place that an error names is left out.
Said run(const std::string& script)
{
    constexpr std::size_t kLinesOfTheLoad = 2;
    const TemporaryFolder folder;
    const std::string file = folder / "script.mel";
    writeFile(file, script);
    const ProgramResult result = runHost({"--plugin", pluginFile(), "--script", file});
    Said said{linesOf(result.output), {}};
    said.printed.erase(said.printed.begin(),
                       said.printed.begin() +
                           static_cast<std::ptrdiff_t>(std::min(said.printed.size(), kLinesOfTheLoad)));
    const std::string place = "Error: file: " + file + " line 1: ";
    for (const std::string& error : linesOf(result.errors))
        said.errors.push_back(error.rfind(place, 0) == 0 ? error.substr(place.size()) : error);
    return said;
}

/// What it prints; it is to go without an error.
Lines printedBy(const std::string& script)
{
    const Said said = run(script);
    EXPECT_THAT(said.errors, IsEmpty());
    return said.printed;
}

/// Statements that print the value of an attribute: of a colour, a number, a string.
std::string getColor(const std::string& plug)
{
    return "{ float $v[] = `getAttr " + plug +
           "`; print($v[0] + \" \" + $v[1] + \" \" + $v[2] + \"\\n\"); } ";
}
std::string getNumber(const std::string& plug)
{
    return "print(`getAttr " + plug + "` + \"\\n\"); ";
}
std::string getText(const std::string& plug)
{
    return "print(\"[\" + `getAttr " + plug + "` + \"]\\n\"); ";
}
/// Runs a statement that is to fail, and goes on.
std::string failing(const std::string& statement)
{
    return "if (!catch(`" + statement + "`)) error \"no error\"; ";
}

// The shader switch

const std::string kSwitch = "createNode CrowdSwitchShaderVRay -n s; ";
// 0.45 in single precision, as getAttr gives it.
const std::string kOrange = "1 0.4499999881 0";
const std::string kTeal = "setAttr s.shader0 -type double3 0 0.5 0.25; ";

TEST(SwitchShaderVRayInScripts, IsOrangeWhenNew)
{
    EXPECT_THAT(printedBy(kSwitch + getColor("s.output")), ElementsAre(kOrange));
}

TEST(SwitchShaderVRayInScripts, GivesTheFirstShaderWhateverIsSelected)
{
    std::string script = kSwitch + kTeal;
    for (const char* selected : {"-5", "0", "9", "10", "1000"})
        script += std::string("setAttr s.selector ") + selected + "; " + getColor("s.output");
    EXPECT_EQ(printedBy(script), Lines(5, "0 0.5 0.25"));
}

TEST(SwitchShaderVRayInScripts, GivesTheFirstShaderThoughAnotherOneIsConnectedAndSelected)
{
    EXPECT_THAT(printedBy(kSwitch + kTeal +
                          "createNode CrowdSwitchShaderVRay -n t; connectAttr t.output s.shader3; "
                          "setAttr s.selector 3; " +
                          getColor("s.shader3") + getColor("s.output")),
                ElementsAre(kOrange, "0 0.5 0.25"));
}

TEST(SwitchShaderVRayInScripts, ComputesAllComponentsWhenAskedForOne)
{
    EXPECT_THAT(printedBy(kSwitch + kTeal + getNumber("s.outputR") + getColor("s.output")),
                ElementsAre("0", "0 0.5 0.25"));
}

// The HSL shader

const std::string kHsl = "createNode CrowdHSLShaderVRay -n n; ";

TEST(HSLShaderVRayInScripts, GivesItsInputWhateverTheOffsets)
{
    EXPECT_THAT(printedBy(kHsl + getColor("n.output") + "setAttr n.h 0.5; setAttr n.l -1; " +
                          getColor("n.output") + "setAttr n.input -type double3 0 0.5 0.25; setAttr n.s 1; " +
                          getNumber("n.outputG") + getColor("n.output")),
                ElementsAre("0.5 0.5 0.5", "0.5 0.5 0.5", "0.5", "0 0.5 0.25"));
}

TEST(HSLShaderVRayInScripts, AnOffsetBeyondItsLimitsIsAnErrorAndIsNotTaken)
{
    for (const std::string offset : {"h", "s", "l"}) {
        const Said said =
            run(kHsl + "setAttr n." + offset + " 0.25; " + failing("setAttr n." + offset + " 2") +
                failing("setAttr n." + offset + " -1.001") + getNumber("n." + offset));
        EXPECT_THAT(said.printed, ElementsAre("0.25")) << offset;
        EXPECT_THAT(said.errors, ElementsAre("setAttr: Cannot set the attribute 'n." + offset +
                                                 "' past its maximum value of 1.",
                                             "setAttr: Cannot set the attribute 'n." + offset +
                                                 "' past its minimum value of -1."));
    }
}

TEST(HSLShaderVRayInScripts, AnOffsetBeyondItsLimitsIsTakenToTheLimitWhenAsked)
{
    EXPECT_THAT(printedBy(kHsl + "setAttr -clamp n.h 2; setAttr -clamp n.s -7; setAttr -clamp n.l 0.5; " +
                          getNumber("n.h") + getNumber("n.s") + getNumber("n.l")),
                ElementsAre("1", "-1", "0.5"));
}

TEST(HSLShaderVRayInScripts, TellsItsLimits)
{
    std::string script = kHsl;
    for (const std::string offset : {"h", "s", "l"})
        script += "{ float $r[] = `attributeQuery -node n -range " + offset +
                  "`; print($r[0] + \" \" + $r[1] + \"\\n\"); } ";
    EXPECT_EQ(printedBy(script), Lines(3, "-1 1"));
}

// V-Ray's user data

const std::string kUserData = "createNode CrowdGetUserDataVRay -n u; ";

TEST(GetUserDataVRayInScripts, AsksForTheMaterialAndGivesZeroWhenNew)
{
    EXPECT_THAT(printedBy(kUserData + getNumber("u.paramType") + getText("-asString u.paramType") +
                          getNumber("u.default") + getNumber("u.output")),
                ElementsAre("0", "[mtlIndex]", "0", "0"));
}

TEST(GetUserDataVRayInScripts, GivesZeroWhateverItAsksFor)
{
    EXPECT_THAT(printedBy(kUserData + "setAttr u.paramType 1; setAttr u.default 42.5; " +
                          getText("-asString u.paramType") + getNumber("u.default") + getNumber("u.output")),
                ElementsAre("[VRay ObjectID]", "42.5", "0"));
}

TEST(GetUserDataVRayInScripts, HasTwoThingsToAskFor)
{
    EXPECT_THAT(printedBy(kUserData + "print(`attributeQuery -node u -listEnum paramType`)"),
                ElementsAre("mtlIndex:VRay ObjectID"));
    const Said said = run(kUserData + failing("setAttr u.paramType 2") + getNumber("u.paramType"));
    EXPECT_THAT(said.printed, ElementsAre("0"));
    EXPECT_EQ(said.errors.size(), 1u);
}

// Outputs

TEST(OutputsInScripts, CannotBeSet)
{
    const auto refusal = [](const char* type, const char* output, const std::string& value) {
        const Said said = run(std::string("createNode ") + type + " -n n; " +
                              failing("setAttr n." + std::string(output) + " " + value) +
                              getNumber("n." + std::string(output)));
        EXPECT_EQ(said.errors.size(), 1u) << type;
        EXPECT_EQ(linesWith(said.errors.empty() ? "" : said.errors[0], "n.output").size(), 1u) << type;
        return said.printed;
    };
    EXPECT_THAT(refusal("CrowdSwitchShaderVRay", "outputG", "0.875"), ElementsAre("0.4499999881"));
    EXPECT_THAT(refusal("CrowdHSLShaderVRay", "outputG", "0.875"), ElementsAre("0.5"));
    EXPECT_THAT(refusal("CrowdGetUserDataVRay", "output", "0.875"), ElementsAre("0"));
}

TEST(OutputsInScripts, CannotBeConnectedTo)
{
    const Said said = run(kSwitch + kHsl + failing("connectAttr n.output s.output") + getColor("s.output"));
    EXPECT_THAT(said.printed, ElementsAre(kOrange));
    EXPECT_EQ(said.errors.size(), 1u);
}

// 3Delight's nodes

TEST(Nodes3DelightInScripts, HoldStringsThatStartEmpty)
{
    for (const std::string type : {"CrowdSwitchShader3Delight", "CrowdGetUserData3Delight"})
        EXPECT_THAT(printedBy("createNode " + type + " -n d; " + getText("d.shadingParameters") +
                              getText("d.shadingCode") +
                              "setAttr d.shadingCode -type \"string\" \"o = \\\"x\\\";\"; " +
                              getText("d.shadingCode") + getText("d.sp")),
                    ElementsAre("[]", "[]", "[o = \"x\";]", "[]"))
            << type;
}

// The locators

TEST(LocatorsInScripts, NameTheirShapesUniquely)
{
    const auto namesOf = [](const std::string& type) {
        return printedBy("print(`createNode " + type + "` + \"\\n\"); print(`createNode " + type +
                         "` + \"\\n\"); print(`createNode -n own " + type + "` + \"\\n\")");
    };
    EXPECT_THAT(namesOf("CrowdRenderManagerNode"),
                ElementsAre("crowdRenderManagerNodeShape", "crowdRenderManagerNodeShape1", "own"));
    EXPECT_THAT(namesOf("CrowdProxyVRay"), ElementsAre("crowdProxyVRayShape", "crowdProxyVRayShape1", "own"));
    EXPECT_THAT(namesOf("CrowdProxyRendermanStudio"),
                ElementsAre("crowdProxyRMSShape", "crowdProxyRMSShape1", "own"));
}

TEST(LocatorsInScripts, HoldWhatIsSet)
{
    EXPECT_THAT(printedBy("createNode CrowdProxyRendermanStudio -n p; " + getText("p.sceneName") +
                          getNumber("p.frame") + getNumber("p.frameRate") + getText("p.ribFileDir") +
                          "setAttr p.scn -type \"string\" \"arena\"; setAttr p.cfr -12; setAttr p.fr 23.976; "
                          "setAttr p.rfd -type \"string\" \"/ribs\"; " +
                          getText("p.sceneName") + getNumber("p.frame") + getNumber("p.frameRate") +
                          getText("p.ribFileDir")),
                ElementsAre("[]", "0", "0", "[]", "[arena]", "-12", "23.976", "[/ribs]"));
}

} // namespace
