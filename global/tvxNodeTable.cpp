// The node types that the plug-in registers.
#include "global/tvxNodeTable.h"

#include "rendering/tvxCrowdProxyVRay.h"
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
    locator<CrowdProxyVRay>("CrowdProxyVRay"),
    shader<CrowdSwitchShaderVRay>("CrowdSwitchShaderVRay"),
};

} // namespace

NodeTable nodeTable()
{
    return {kRows, std::size(kRows)};
}

} // namespace tarvox::crowd
