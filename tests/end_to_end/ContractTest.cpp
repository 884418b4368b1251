// The example that makes one node of each type, sets every attribute and reads it back.
#include "../host/support/temporaryFolder.h"
#include "program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace tvxhost::test;

const char* const kContract = R"(CrowdRenderManagerNode: crowdRenderManagerNodeShape
CrowdProxyVRay: crowdProxyVRayShape
  sceneName (scn, string): "" -> "plaza"
  vrsceneFileDir (vfd, string): "" -> "/shots/plaza/vrscene"
  pythonCallback (pyc, string): "" -> "crowd.onTranslate"
CrowdProxyRendermanStudio: crowdProxyRMSShape
  sceneName (scn, string): "" -> "plaza"
  frame (cfr, long): 0 -> -101
  frameRate (fr, double): 0 -> 23.976
  ribFileDir (rfd, string): "" -> "C:\\shots\\plaza\\rib"
CrowdSwitchShaderVRay: CrowdSwitchShaderVRay1
  output (op, float3): 1 0.45 0
  output (op, float3): 1 0.45 0, set to 0 0 0: refused
  selector (sel, long): 0 -> 3
  startOffset (sto, long): 0 -> -2
  default (def, float3): 1 0.45 0 -> 0.1 0.2 0.3
  shader0 (sh0, float3): 1 0.45 0 -> 0 0.5 1
  shader1 (sh1, float3): 1 0.45 0 -> 0.1 0.5 1
  shader2 (sh2, float3): 1 0.45 0 -> 0.2 0.5 1
  shader3 (sh3, float3): 1 0.45 0 -> 0.3 0.5 1
  shader4 (sh4, float3): 1 0.45 0 -> 0.4 0.5 1
  shader5 (sh5, float3): 1 0.45 0 -> 0.5 0.5 1
  shader6 (sh6, float3): 1 0.45 0 -> 0.6 0.5 1
  shader7 (sh7, float3): 1 0.45 0 -> 0.7 0.5 1
  shader8 (sh8, float3): 1 0.45 0 -> 0.8 0.5 1
  shader9 (sh9, float3): 1 0.45 0 -> 0.9 0.5 1
  shader0G (sh0g, float): 0.5 -> 0.75
  output (op, float3): 0 0.75 1
CrowdHSLShaderVRay: CrowdHSLShaderVRay1
  output (op, float3): 0.5 0.5 0.5
  outputR (opr, float): 0.5, set to 1: refused
  h (h, double): 0 -> 0.5
  h (h, double): 0.5, set to 2: refused
  s (s, double): 0 -> -1
  s (s, double): -1, set to -1.5: refused
  l (l, double): 0 -> 1
  input (in, float3): 0.5 0.5 0.5 -> 0.2 0.4 0.6
  inputB (inb, float): 0.6 -> 0.9
  output (op, float3): 0.2 0.4 0.9
CrowdGetUserDataVRay: CrowdGetUserDataVRay1
  output (op, double): 0, set to 1: refused
  paramType (pt, enum): 0 mtlIndex -> 1 VRay ObjectID
  paramType (pt, enum): 1 VRay ObjectID, set to 2: refused
  default (df, double): 0 -> 12.5
  output (op, double): 0
CrowdSwitchShader3Delight: CrowdSwitchShader3Delight1
  shadingParameters (sp, string): "" -> "float fallback = 0;"
  shadingCode (sc, string): "" -> "float clothes = fallback;\nattribute(\"user:clothes\", clothes);"
CrowdGetUserData3Delight: CrowdGetUserData3Delight1
  shadingParameters (sp, string): "" -> "float fallback = 0;"
  shadingCode (sc, string): "" -> "float clothes = fallback;\nattribute(\"user:clothes\", clothes);"
)";

TEST(ContractExample, SetsAndReadsEveryAttributeOfEveryType)
{
    const ProgramResult result =
        runHost({"--plugin", pluginFile(), "--script", sourceRoot() / "examples/contract.mel"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, runHost({"--plugin", pluginFile()}).output + kContract);
}

/// The names of the attributes that a type adds to those it inherits, children not counted.
std::vector<std::string> attributesOf(const std::string& type)
{
    std::vector<std::string> names;
    bool isInTable = false;
    for (const std::string& line : linesOf(runHost({"--plugin", pluginFile(), "--describe", type}).output)) {
        if (line.empty())
            isInTable = false;
        if (isInTable && line.front() != ' ')
            names.push_back(line.substr(0, line.find(' ')));
        isInTable = isInTable || line.rfind("long name", 0) == 0;
    }
    return names;
}

TEST(ContractExample, LeavesNoAttributeOut)
{
    std::string type;
    std::vector<std::string> told;
    int attributes = 0;
    const auto compare = [&] {
        if (type.empty())
            return;
        for (const std::string& name : attributesOf(type)) {
            EXPECT_THAT(told, testing::Contains(name)) << type;
            ++attributes;
        }
    };
    for (const std::string& line : linesOf(kContract)) {
        if (line.front() == ' ') {
            told.push_back(line.substr(2, line.find(' ', 2) - 2));
            continue;
        }
        compare();
        type = line.substr(0, line.find(':'));
        told.clear();
    }
    compare();
    EXPECT_EQ(attributes, 0 + 3 + 4 + 14 + 5 + 3 + 2 + 2);
}

/// The lines of a saved scene that set attributes of a node.
std::vector<std::string> savedLines(const std::string& scene, const std::string& node)
{
    std::vector<std::string> found;
    bool isIn = false;
    for (const std::string& line : linesOf(scene)) {
        if (line.front() != '\t')
            isIn = line.find("createNode ") == 0 && line.find("\"" + node + "\"") != std::string::npos;
        if (isIn && line.rfind("\tsetAttr", 0) == 0)
            found.push_back(line);
    }
    return found;
}

TEST(ContractExample, IsSavedAsMayaWouldSaveIt)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "again");
    const std::filesystem::path first = folder / "contract.ma";
    const std::filesystem::path second = folder / "again" / "contract.ma";
    const Environment clock{{"SOURCE_DATE_EPOCH", "1457345551"}};
    const ProgramResult made =
        runHost({"--plugin", pluginFile(), "--script", sourceRoot() / "examples/contract.mel", "-e",
                 "connectAttr CrowdGetUserDataVRay1.output CrowdSwitchShaderVRay1.selector;"
                 "connectAttr CrowdSwitchShaderVRay1.output CrowdHSLShaderVRay1.input;"
                 "connectAttr CrowdSwitchShaderVRay1.outputR CrowdSwitchShaderVRay1.shader5G;"
                 "setAttr -lock on CrowdHSLShaderVRay1.h; setAttr -lock on crowdProxyVRayShape.sceneName",
                 "--save", first},
                clock);
    EXPECT_EQ(made.exitCode, 0) << made.errors;
    const std::string saved = contentsOf(first);

    using testing::ElementsAre;
    EXPECT_THAT(savedLines(saved, "crowdProxyVRayShape"),
                ElementsAre("\tsetAttr -k off \".v\";",
                            "\tsetAttr -l on \".scn\" -type \"string\" \"plaza\";",
                            "\tsetAttr \".vfd\" -type \"string\" \"/shots/plaza/vrscene\";",
                            "\tsetAttr \".pyc\" -type \"string\" \"crowd.onTranslate\";"));
    EXPECT_THAT(savedLines(saved, "CrowdHSLShaderVRay1"),
                ElementsAre("\tsetAttr -l on \".h\" 0.5;", "\tsetAttr \".s\" -1;", "\tsetAttr \".l\" 1;"));
    EXPECT_THAT(savedLines(saved, "CrowdGetUserDataVRay1"),
                ElementsAre("\tsetAttr \".pt\" 1;", "\tsetAttr \".df\" 12.5;"));
    EXPECT_THAT(savedLines(saved, "CrowdSwitchShader3Delight1"),
                ElementsAre("\tsetAttr \".sp\" -type \"string\" \"float fallback = 0;\";",
                            "\tsetAttr \".sc\" -type \"string\" \"float clothes = fallback;\\n"
                            "attribute(\\\"user:clothes\\\", clothes);\";"));
    for (const char* line : {"connectAttr \"CrowdGetUserDataVRay1.op\" \"CrowdSwitchShaderVRay1.sel\";",
                             "connectAttr \"CrowdSwitchShaderVRay1.op\" \"CrowdHSLShaderVRay1.in\";",
                             "connectAttr \"CrowdSwitchShaderVRay1.opr\" \"CrowdSwitchShaderVRay1.sh5g\";"})
        EXPECT_THAT(linesOf(saved), testing::Contains(line));

    const ProgramResult again = runHost({first, "--plugin", pluginFile(), "--save", second}, clock);
    EXPECT_EQ(again.exitCode, 0) << again.errors;
    EXPECT_EQ(contentsOf(second), saved);
}

} // namespace
