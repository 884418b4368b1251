// The V-Ray proxy node.
#pragma once

#include <maya/MPxLocatorNode.h>
#include <maya/MTypeId.h>

namespace tarvox::crowd {

/// Stands in the scene for a crowd that is rendered with V-Ray. Its attributes are data for the renderer's
/// translation; in the viewport it is a wire cube of side 2.
class CrowdProxyVRay : public MPxLocatorNode
{
public:
    static const MTypeId id;

    static MObject sceneName;
    static MObject vrsceneFileDir;
    static MObject pythonCallback;

    /// @return a new instance, which Maya owns; null when there is no memory for it
    static void* creator();
    /// Declares the attributes.
    /// @return MS::kFailure at the first failure, which is reported
    static MStatus initialize();

    /// Gives the shape its name.
    void postConstructor() override;
    /// Computes nothing: MS::kUnknownParameter for every plug.
    MStatus compute(const MPlug& plug, MDataBlock& dataBlock) override;
    void draw(M3dView& view, const MDagPath& path, M3dView::DisplayStyle style,
              M3dView::DisplayStatus status) override;
};

} // namespace tarvox::crowd
