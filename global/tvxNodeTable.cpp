// The node types that the plug-in registers.
#include "global/tvxNodeTable.h"

#include "rendering/tvxCrowdGetUserData3Delight.h"
#include "rendering/tvxCrowdGetUserDataVRay.h"
#include "rendering/tvxCrowdHSLShaderVRay.h"
#include "rendering/tvxCrowdProxyRendermanStudio.h"
#include "rendering/tvxCrowdProxyVRay.h"
#include "rendering/tvxCrowdRenderManagerNode.h"
#include "rendering/tvxCrowdSwitchShader3Delight.h"
#include "rendering/tvxCrowdSwitchShaderVRay.h"

#include <iterator>

namespace tarvox::crowd {

namespace {

template <class Node>
constexpr NodeRow locator(const char* name)
{
    return {name, &Node::id, &Node::creator, &Node::initialize, MPxNode::kLocatorNode, nullptr};
}

template <class Node>
constexpr NodeRow shader(const char* name)
{
    return {name, &Node::id, &Node::creator, &Node::initialize, MPxNode::kDependNode, &Node::classification};
}

constexpr NodeRow kRows[] = {
    locator<CrowdRenderManagerNode>("CrowdRenderManagerNode"),
    locator<CrowdProxyVRay>("CrowdProxyVRay"),
    locator<CrowdProxyRendermanStudio>("CrowdProxyRendermanStudio"),
    shader<CrowdSwitchShaderVRay>("CrowdSwitchShaderVRay"),
    shader<CrowdHSLShaderVRay>("CrowdHSLShaderVRay"),
    shader<CrowdGetUserDataVRay>("CrowdGetUserDataVRay"),
    shader<CrowdSwitchShader3Delight>("CrowdSwitchShader3Delight"),
    shader<CrowdGetUserData3Delight>("CrowdGetUserData3Delight"),
};

} // namespace

NodeTable nodeTable()
{
    return {kRows, std::size(kRows)};
}

} // namespace tarvox::crowd
