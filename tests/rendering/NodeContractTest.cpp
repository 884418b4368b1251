// Every node type's contract, whole: what the loaded plug-in declares is this and nothing else.
#include "NodeContract.h"
#include "PluginSession.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvox::crowd {
namespace {

using test::Lines;

struct Contract
{
    const char* type;
    Lines lines;
};

// What names a test's parameter in its messages.
void PrintTo(const Contract& contract, std::ostream* text)
{
    *text << contract.type;
}

const Contract kContracts[] = {
    {"CrowdRenderManagerNode", {"0x1168E5 locator ''"}},
    {"CrowdProxyVRay",
     {"0x1168DE locator ''", //
      "sceneName scn string none -RW--IS", "vrsceneFileDir vfd string none -RW--IS",
      "pythonCallback pyc string none -RW--IS"}},
    {"CrowdProxyRendermanStudio",
     {"0x1168E0 locator ''", //
      "sceneName scn string none -RW--IS", "frame cfr long 0 -RW--IS", "frameRate fr double 0 -RW--IS",
      "ribFileDir rfd string none -RW--IS"}},
    {"CrowdSwitchShaderVRay",
     {"0x1168E1 node 'utility/general:swatch/VRayMtlSwatchGen'",
      "output op float3 (outputR/opr 1 outputG/opg 0.45 outputB/opb 0) -R---I- colour",
      "selector sel long 0 KRW--IS", //
      "startOffset sto long 0 KRW--IS",
      "default def float3 (defaultR/defr 1 defaultG/defg 0.45 defaultB/defb 0) KRW--IS colour",
      "shader0 sh0 float3 (shader0R/sh0r 1 shader0G/sh0g 0.45 shader0B/sh0b 0) KRW--IS colour",
      "shader1 sh1 float3 (shader1R/sh1r 1 shader1G/sh1g 0.45 shader1B/sh1b 0) KRW--IS colour",
      "shader2 sh2 float3 (shader2R/sh2r 1 shader2G/sh2g 0.45 shader2B/sh2b 0) KRW--IS colour",
      "shader3 sh3 float3 (shader3R/sh3r 1 shader3G/sh3g 0.45 shader3B/sh3b 0) KRW--IS colour",
      "shader4 sh4 float3 (shader4R/sh4r 1 shader4G/sh4g 0.45 shader4B/sh4b 0) KRW--IS colour",
      "shader5 sh5 float3 (shader5R/sh5r 1 shader5G/sh5g 0.45 shader5B/sh5b 0) KRW--IS colour",
      "shader6 sh6 float3 (shader6R/sh6r 1 shader6G/sh6g 0.45 shader6B/sh6b 0) KRW--IS colour",
      "shader7 sh7 float3 (shader7R/sh7r 1 shader7G/sh7g 0.45 shader7B/sh7b 0) KRW--IS colour",
      "shader8 sh8 float3 (shader8R/sh8r 1 shader8G/sh8g 0.45 shader8B/sh8b 0) KRW--IS colour",
      "shader9 sh9 float3 (shader9R/sh9r 1 shader9G/sh9g 0.45 shader9B/sh9b 0) KRW--IS colour",
      "selector -> output",
      "startOffset -> output",
      "default -> output",
      "shader0 -> output",
      "shader1 -> output",
      "shader2 -> output",
      "shader3 -> output",
      "shader4 -> output",
      "shader5 -> output",
      "shader6 -> output",
      "shader7 -> output",
      "shader8 -> output",
      "shader9 -> output"}},
    {"CrowdHSLShaderVRay",
     {"0x1168E2 node 'utility/general:swatch/VRayMtlSwatchGen'",
      "output op float3 (outputR/opr 1 outputG/opg 0.45 outputB/opb 0) -R---I- colour",
      "h h double 0 min=-1 max=1 -RW--IS", "s s double 0 min=-1 max=1 -RW--IS",
      "l l double 0 min=-1 max=1 -RW--IS",
      "input in float3 (inputR/inr 0.5 inputG/ing 0.5 inputB/inb 0.5) KRW--IS colour", "input -> output",
      "h -> output", "s -> output", "l -> output"}},
    {"CrowdGetUserDataVRay",
     {"0x1168E3 node 'utility/general'", "output op double 0 -R---I-",
      "paramType pt enum 0 {mtlIndex=0, VRay ObjectID=1} -RW--IS", "default df double 0 -RW--IS",
      "paramType -> output", "default -> output"}},
    {"CrowdSwitchShader3Delight",
     {"0x1168E9 node 'utility/general'", "shadingParameters sp string none -RW--IS",
      "shadingCode sc string none -RW--IS"}},
    {"CrowdGetUserData3Delight",
     {"0x1168E8 node 'utility/general'", "shadingParameters sp string none -RW--IS",
      "shadingCode sc string none -RW--IS"}},
};

class NodeContract : public testing::TestWithParam<Contract>
{
};

TEST_P(NodeContract, IsDeclaredWhole)
{
    test::PluginSession session;
    ASSERT_TRUE(session.load());
    const tvxhost::engine::NodeType* type = session.scene.types().find(std::string(GetParam().type));
    ASSERT_NE(type, nullptr);
    EXPECT_EQ(test::contractOf(*type), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(OfEachType, NodeContract, testing::ValuesIn(kContracts),
                         [](const auto& instance) { return instance.param.type; });

} // namespace
} // namespace tarvox::crowd
