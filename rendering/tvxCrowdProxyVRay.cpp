// The V-Ray proxy node.
#include "rendering/tvxCrowdProxyVRay.h"

#include "rendering/tvxDrawing.h"
#include "rendering/tvxLocatorDrawing.h"
#include "rendering/tvxNodeAttributes.h"
#include "rendering/tvxShapeName.h"

#include <new>

namespace tarvox::crowd {

const MTypeId CrowdProxyVRay::id(0x1168DE);

MObject CrowdProxyVRay::sceneName;
MObject CrowdProxyVRay::vrsceneFileDir;
MObject CrowdProxyVRay::pythonCallback;

void* CrowdProxyVRay::creator()
{
    return new (std::nothrow) CrowdProxyVRay;
}

MStatus CrowdProxyVRay::initialize()
{
    const NodeAttributes make("tarvox::crowd::CrowdProxyVRay::initialize");
    TVX_REQUIRE(make.string(sceneName, "sceneName", "scn", kInput));
    TVX_REQUIRE(make.string(vrsceneFileDir, "vrsceneFileDir", "vfd", kInput));
    TVX_REQUIRE(make.string(pythonCallback, "pythonCallback", "pyc", kInput));
    return MStatus::kSuccess;
}

void CrowdProxyVRay::postConstructor()
{
    nameShape(thisMObject(), "crowdProxyVRayShape");
}

MStatus CrowdProxyVRay::compute(const MPlug& /*plug*/, MDataBlock& /*dataBlock*/)
{
    return MStatus::kUnknownParameter;
}

void CrowdProxyVRay::draw(M3dView& view, const MDagPath& /*path*/, M3dView::DisplayStyle /*style*/,
                          M3dView::DisplayStatus status)
{
    const LocatorDrawing drawing(view);
    setProxyColor(status);
    drawWireBox(2, 2, 2);
}

} // namespace tarvox::crowd
