// MPxLocatorNode: base class of a plug-in's locators.
#pragma once

#include <maya/M3dView.h>
#include <maya/MBoundingBox.h>
#include <maya/MColor.h>
#include <maya/MPoint.h>
#include <maya/MPxNode.h>
#include <maya/MTypes.h>
#include <maya/MVector.h>

class MDagPath;
class MObject;

/// Base class of a shape that draws itself in the viewport and is never rendered. The static members are the
/// attributes that every locator has.
class OPENMAYAUI_EXPORT MPxLocatorNode : public MPxNode
{
public:
    MPxLocatorNode();
    ~MPxLocatorNode() override;

    MPxNode::Type type() const override;

    /// Draws the locator in its own space, with OpenGL between view.beginGL() and view.endGL(); leaves the GL
    /// state as it was. The default draws a cross.
    virtual void draw(M3dView& view, const MDagPath& path, M3dView::DisplayStyle style,
                      M3dView::DisplayStatus);

    /// Whether boundingBox() is to be asked.
    virtual bool isBounded() const;

    /// A box in the locator's own space around what is drawn.
    virtual MBoundingBox boundingBox() const;

    /// Maya's colour for a display status, as an index or as a colour.
    unsigned int color(M3dView::DisplayStatus displayStatus);
    MColor colorRGB(M3dView::DisplayStatus displayStatus);

    /// Whether the viewport's switch for locators hides it.
    virtual bool excludeAsLocator() const;

    /// Whether it is drawn in the pass for transparent objects, or last in its pass.
    virtual bool isTransparent() const;
    virtual bool drawLast() const;

    /// Whether closestPoint() is asked when the user picks.
    virtual bool useClosestPointForSelection() const;

    /// The point of the locator that is closest to the cursor's ray, both in the locator's own space.
    virtual MPoint closestPoint(MPoint cursorRayPoint, MVector cursorRayDir) const;

    /// The name of this class.
    static const char* className();

    static MObject underWorldObject;
    static MObject localPosition;
    static MObject localPositionX;
    static MObject localPositionY;
    static MObject localPositionZ;
    static MObject worldPosition;
    static MObject worldPositionX;
    static MObject worldPositionY;
    static MObject worldPositionZ;
    static MObject localScale;
    static MObject localScaleX;
    static MObject localScaleY;
    static MObject localScaleZ;
    static MObject nodeBoundingBox;
    static MObject nodeBoundingBoxMin;
    static MObject nodeBoundingBoxMinX;
    static MObject nodeBoundingBoxMinY;
    static MObject nodeBoundingBoxMinZ;
    static MObject nodeBoundingBoxMax;
    static MObject nodeBoundingBoxMaxX;
    static MObject nodeBoundingBoxMaxY;
    static MObject nodeBoundingBoxMaxZ;
    static MObject nodeBoundingBoxSize;
    static MObject nodeBoundingBoxSizeX;
    static MObject nodeBoundingBoxSizeY;
    static MObject nodeBoundingBoxSizeZ;
    static MObject center;
    static MObject boundingBoxCenterX;
    static MObject boundingBoxCenterY;
    static MObject boundingBoxCenterZ;
    static MObject matrix;
    static MObject inverseMatrix;
    static MObject worldMatrix;
    static MObject worldInverseMatrix;
    static MObject parentMatrix;
    static MObject parentInverseMatrix;
    static MObject visibility;
    static MObject intermediateObject;
    static MObject isTemplated;
    static MObject instObjGroups;
    static MObject objectGroups;
    static MObject objectGrpCompList;
    static MObject objectGroupId;
    static MObject objectGroupColor;
    static MObject useObjectColor;
    static MObject objectColor;

private:
    friend class tvxAccess;
};
