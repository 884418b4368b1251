// The locator rulerLocator.
#include "rulerLocatorNode.h"

#include <maya/MDistance.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnUnitAttribute.h>
#include <maya/MPlug.h>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#endif
#if defined(__APPLE__)
#include <OpenGL/gl.h>
#else
#include <GL/gl.h>
#endif

namespace rulerLocator {

const MString RulerLocatorNode::typeName("rulerLocator");
// One of the numbers that Maya leaves to plug-ins used within one house.
const MTypeId RulerLocatorNode::id(0x7f011);

MObject RulerLocatorNode::length;
MObject RulerLocatorNode::tickSize;
MObject RulerLocatorNode::divisions;
MObject RulerLocatorNode::color;

namespace {

MStatus addDistance(MObject& attribute, const char* name, const char* brief, double centimetres)
{
    MStatus status;
    MFnUnitAttribute unit;
    attribute = unit.create(name, brief, MDistance(centimetres, MDistance::kCentimeters), &status);
    if (!status)
        return status;
    unit.setMin(0.0);
    unit.setKeyable(true);
    return MPxNode::addAttribute(attribute);
}

MStatus addDivisions(MObject& attribute)
{
    MStatus status;
    MFnNumericAttribute number;
    attribute = number.create("divisions", "dv", MFnNumericData::kInt, 10, &status);
    if (!status)
        return status;
    number.setMin(1);
    number.setMax(1000);
    number.setKeyable(true);
    return MPxNode::addAttribute(attribute);
}

MStatus addColor(MObject& attribute)
{
    MStatus status;
    MFnNumericAttribute number;
    attribute = number.createColor("rulerColor", "rc", &status);
    if (!status)
        return status;
    number.setDefault(0.0f, 0.5f, 1.0f);
    return MPxNode::addAttribute(attribute);
}

bool isLong(int tick, int parts)
{
    return tick == 0 || tick == parts || 2 * tick == parts;
}

void drawLine(double fromX, double fromY, double toX, double toY)
{
    glVertex3d(fromX, fromY, 0.0);
    glVertex3d(toX, toY, 0.0);
}

} // namespace

void* RulerLocatorNode::creator()
{
    return new RulerLocatorNode;
}

MStatus RulerLocatorNode::initialize()
{
    MStatus status = addDistance(length, "length", "ln", 10.0);
    if (status)
        status = addDistance(tickSize, "tickSize", "ts", 1.0);
    if (status)
        status = addDivisions(divisions);
    if (status)
        status = addColor(color);
    return status;
}

double RulerLocatorNode::distance(const MObject& attribute) const
{
    return MPlug(thisMObject(), attribute).asMDistance().asCentimeters();
}

int RulerLocatorNode::partCount() const
{
    // A connection may bring any number.
    const int parts = MPlug(thisMObject(), divisions).asInt();
    return parts < 1 ? 1 : parts;
}

MColor RulerLocatorNode::drawingColor(M3dView::DisplayStatus status)
{
    if (status != M3dView::kDormant)
        return colorRGB(status);
    const MPlug plug(thisMObject(), color);
    return MColor(plug.child(0).asFloat(), plug.child(1).asFloat(), plug.child(2).asFloat());
}

void RulerLocatorNode::draw(M3dView& view, const MDagPath& /*path*/, M3dView::DisplayStyle /*style*/,
                            M3dView::DisplayStatus status)
{
    const double end = distance(length);
    const double tick = distance(tickSize);
    const int parts = partCount();
    const MColor lines = drawingColor(status);

    view.beginGL();
    glPushAttrib(GL_CURRENT_BIT);
    glColor3f(lines.r, lines.g, lines.b);
    glBegin(GL_LINES);
    drawLine(0.0, 0.0, end, 0.0);
    for (int i = 0; i <= parts; ++i) {
        const double x = end * i / parts;
        drawLine(x, 0.0, x, isLong(i, parts) ? tick : 0.5 * tick);
    }
    glEnd();
    glPopAttrib();
    view.endGL();
}

bool RulerLocatorNode::isBounded() const
{
    return true;
}

MBoundingBox RulerLocatorNode::boundingBox() const
{
    return MBoundingBox(MPoint(0.0, 0.0, 0.0), MPoint(distance(length), distance(tickSize), 0.0));
}

} // namespace rulerLocator
