// The locator rulerLocator.
#pragma once

#include <maya/MPxLocatorNode.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>

namespace rulerLocator {

/// A ruler along the x axis: a line with ticks that point up, the first, the last and the middle one longer
/// than the others.
class RulerLocatorNode : public MPxLocatorNode
{
public:
    static const MString typeName;
    static const MTypeId id;

    static MObject length;    ///< a distance
    static MObject tickSize;  ///< of the long ticks, a distance
    static MObject divisions; ///< how many parts the ticks make
    static MObject color;     ///< while nothing is selected, templated or the like

    static void* creator();
    static MStatus initialize();

    void draw(M3dView& view, const MDagPath& path, M3dView::DisplayStyle style,
              M3dView::DisplayStatus status) override;

    bool isBounded() const override;
    MBoundingBox boundingBox() const override;

private:
    double distance(const MObject& attribute) const;
    int partCount() const;
    MColor drawingColor(M3dView::DisplayStatus status);
};

} // namespace rulerLocator
