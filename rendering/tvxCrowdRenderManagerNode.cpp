// The render manager node.
#include "rendering/tvxCrowdRenderManagerNode.h"

#include "rendering/tvxShapeName.h"

#include <new>

namespace tarvox::crowd {

const MTypeId CrowdRenderManagerNode::id(0x1168E5);

void* CrowdRenderManagerNode::creator()
{
    return new (std::nothrow) CrowdRenderManagerNode;
}

MStatus CrowdRenderManagerNode::initialize()
{
    return MStatus::kSuccess;
}

void CrowdRenderManagerNode::postConstructor()
{
    nameShape(thisMObject(), "crowdRenderManagerNodeShape");
}

MStatus CrowdRenderManagerNode::compute(const MPlug& /*plug*/, MDataBlock& /*dataBlock*/)
{
    return MStatus::kUnknownParameter;
}

void CrowdRenderManagerNode::draw(M3dView& /*view*/, const MDagPath& /*path*/,
                                  M3dView::DisplayStyle /*style*/, M3dView::DisplayStatus /*status*/)
{
}

} // namespace tarvox::crowd
