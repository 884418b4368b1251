// MPxLocatorNode: base class of a plug-in's locators.
#include <maya/MDagPath.h>
#include <maya/MPxLocatorNode.h>

#include "support/builtInAttributes.h"
#include "support/notImplemented.h"
#include "uiColors.h"

#include <GL/gl.h>

using tvxhost::api::BuiltInAttributes;

#define TVX_LOCATOR_ATTRIBUTES(X)                                                                            \
    X(underWorldObject, "underWorldObject")                                                                  \
    X(localPosition, "localPosition")                                                                        \
    X(localPositionX, "localPositionX")                                                                      \
    X(localPositionY, "localPositionY")                                                                      \
    X(localPositionZ, "localPositionZ")                                                                      \
    X(worldPosition, "worldPosition")                                                                        \
    X(worldPositionX, "worldPositionX")                                                                      \
    X(worldPositionY, "worldPositionY")                                                                      \
    X(worldPositionZ, "worldPositionZ")                                                                      \
    X(localScale, "localScale")                                                                              \
    X(localScaleX, "localScaleX")                                                                            \
    X(localScaleY, "localScaleY")                                                                            \
    X(localScaleZ, "localScaleZ")                                                                            \
    X(nodeBoundingBox, "boundingBox")                                                                        \
    X(nodeBoundingBoxMin, "boundingBoxMin")                                                                  \
    X(nodeBoundingBoxMinX, "boundingBoxMinX")                                                                \
    X(nodeBoundingBoxMinY, "boundingBoxMinY")                                                                \
    X(nodeBoundingBoxMinZ, "boundingBoxMinZ")                                                                \
    X(nodeBoundingBoxMax, "boundingBoxMax")                                                                  \
    X(nodeBoundingBoxMaxX, "boundingBoxMaxX")                                                                \
    X(nodeBoundingBoxMaxY, "boundingBoxMaxY")                                                                \
    X(nodeBoundingBoxMaxZ, "boundingBoxMaxZ")                                                                \
    X(nodeBoundingBoxSize, "boundingBoxSize")                                                                \
    X(nodeBoundingBoxSizeX, "boundingBoxSizeX")                                                              \
    X(nodeBoundingBoxSizeY, "boundingBoxSizeY")                                                              \
    X(nodeBoundingBoxSizeZ, "boundingBoxSizeZ")                                                              \
    X(center, "center")                                                                                      \
    X(boundingBoxCenterX, "boundingBoxCenterX")                                                              \
    X(boundingBoxCenterY, "boundingBoxCenterY")                                                              \
    X(boundingBoxCenterZ, "boundingBoxCenterZ")                                                              \
    X(matrix, "matrix")                                                                                      \
    X(inverseMatrix, "inverseMatrix")                                                                        \
    X(worldMatrix, "worldMatrix")                                                                            \
    X(worldInverseMatrix, "worldInverseMatrix")                                                              \
    X(parentMatrix, "parentMatrix")                                                                          \
    X(parentInverseMatrix, "parentInverseMatrix")                                                            \
    X(visibility, "visibility")                                                                              \
    X(intermediateObject, "intermediateObject")                                                              \
    X(isTemplated, "template")                                                                               \
    X(instObjGroups, "instObjGroups")                                                                        \
    X(objectGroups, "objectGroups")                                                                          \
    X(objectGrpCompList, "objectGrpCompList")                                                                \
    X(objectGroupId, "objectGroupId")                                                                        \
    X(objectGroupColor, "objectGrpColor")                                                                    \
    X(useObjectColor, "useObjectColor")                                                                      \
    X(objectColor, "objectColor")

#define TVX_DEFINE(member, attribute) MObject MPxLocatorNode::member;
TVX_LOCATOR_ATTRIBUTES(TVX_DEFINE)
#undef TVX_DEFINE

namespace {

#define TVX_ROW(member, attribute) {&MPxLocatorNode::member, attribute},
const BuiltInAttributes builtIn("locator", {TVX_LOCATOR_ATTRIBUTES(TVX_ROW)});
#undef TVX_ROW

} // namespace

MPxLocatorNode::MPxLocatorNode() = default;

MPxLocatorNode::~MPxLocatorNode() = default;

const char* MPxLocatorNode::className()
{
    return "MPxLocatorNode";
}

MPxNode::Type MPxLocatorNode::type() const
{
    return kLocatorNode;
}

// A cross of three lines of length two.
void MPxLocatorNode::draw(M3dView& view, const MDagPath&, M3dView::DisplayStyle,
                          M3dView::DisplayStatus displayStatus)
{
    const MColor lineColor = colorRGB(displayStatus);
    view.beginGL();
    glPushAttrib(GL_CURRENT_BIT);
    glColor4f(lineColor.r, lineColor.g, lineColor.b, lineColor.a);
    glBegin(GL_LINES);
    for (int axis = 0; axis < 3; ++axis) {
        for (const float end : {-1.0f, 1.0f}) {
            float point[3] = {};
            point[axis] = end;
            glVertex3fv(point);
        }
    }
    glEnd();
    glPopAttrib();
    view.endGL();
}

MColor MPxLocatorNode::colorRGB(M3dView::DisplayStatus displayStatus)
{
    return tvxhost::api::colors::of(displayStatus);
}

// Colours by index need the user's palette, which the host does not have.
unsigned int MPxLocatorNode::color(M3dView::DisplayStatus)
{
    tvxhost::api::notImplemented("MPxLocatorNode::color");
    return 0;
}

bool MPxLocatorNode::isBounded() const
{
    return false;
}

MBoundingBox MPxLocatorNode::boundingBox() const
{
    return MBoundingBox();
}

bool MPxLocatorNode::excludeAsLocator() const
{
    return true;
}

bool MPxLocatorNode::isTransparent() const
{
    return false;
}

bool MPxLocatorNode::drawLast() const
{
    return false;
}

bool MPxLocatorNode::useClosestPointForSelection() const
{
    return false;
}

MPoint MPxLocatorNode::closestPoint(MPoint, MVector) const
{
    return MPoint();
}
