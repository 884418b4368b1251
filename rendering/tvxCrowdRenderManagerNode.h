// The render manager node.
#pragma once

#include <maya/MPxLocatorNode.h>
#include <maya/MTypeId.h>

namespace tarvox::crowd {

/// Stands in the scene for the set-up of the crowd's rendering. It has no attributes of its own and is
/// invisible in the viewport.
class CrowdRenderManagerNode : public MPxLocatorNode
{
public:
    static const MTypeId id;

    /// @return a new instance, which Maya owns; null when there is no memory for it
    static void* creator();
    /// Declares nothing and cannot fail.
    static MStatus initialize();

    /// Gives the shape its name.
    void postConstructor() override;
    /// Computes nothing: MS::kUnknownParameter for every plug.
    MStatus compute(const MPlug& plug, MDataBlock& dataBlock) override;
    /// Draws nothing.
    void draw(M3dView& view, const MDagPath& path, M3dView::DisplayStyle style,
              M3dView::DisplayStatus status) override;
};

} // namespace tarvox::crowd
