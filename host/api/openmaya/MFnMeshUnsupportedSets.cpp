// MFnMesh: texture coordinates and colours, which the host cannot do: kNotImplemented, said once.
#include <maya/MFnMesh.h>

#include "support/apiCall.h"
#include "support/notImplemented.h"

#include <maya/MColor.h>

using tvxhost::api::notImplemented;

int MFnMesh::numColors(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numColors", ReturnStatus, 0);
    notImplemented("MFnMesh::numColors", ReturnStatus);
    return 0;
}

int MFnMesh::numColors(const MString&, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numColors", ReturnStatus, 0);
    notImplemented("MFnMesh::numColors", ReturnStatus);
    return 0;
}

bool MFnMesh::hasColorChannels(const MString&, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::hasColorChannels", ReturnStatus, false);
    notImplemented("MFnMesh::hasColorChannels", ReturnStatus);
    return false;
}

bool MFnMesh::hasAlphaChannels(const MString&, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::hasAlphaChannels", ReturnStatus, false);
    notImplemented("MFnMesh::hasAlphaChannels", ReturnStatus);
    return false;
}

MFnMesh::MColorRepresentation MFnMesh::getColorRepresentation(const MString&, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::getColorRepresentation", ReturnStatus, kAlpha);
    notImplemented("MFnMesh::getColorRepresentation", ReturnStatus);
    return kAlpha;
}

bool MFnMesh::isColorClamped(const MString&, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::isColorClamped", ReturnStatus, false);
    notImplemented("MFnMesh::isColorClamped", ReturnStatus);
    return false;
}

MStatus MFnMesh::setIsColorClamped(const MString&, bool)
{
    TVX_API_CALL("MFnMesh::setIsColorClamped");
    return notImplemented("MFnMesh::setIsColorClamped");
}

MStatus MFnMesh::getAssociatedUVSetTextures(const MString, MObjectArray&) const
{
    TVX_API_CALL("MFnMesh::getAssociatedUVSetTextures");
    return notImplemented("MFnMesh::getAssociatedUVSetTextures");
}

MStatus MFnMesh::getPointAtUV(int, MPoint&, float2&, MSpace::Space, const MString*, float)
{
    TVX_API_CALL("MFnMesh::getPointAtUV");
    return notImplemented("MFnMesh::getPointAtUV");
}

MStatus MFnMesh::getUVAtPoint(MPoint&, float2&, MSpace::Space, const MString*, int*)
{
    TVX_API_CALL("MFnMesh::getUVAtPoint");
    return notImplemented("MFnMesh::getUVAtPoint");
}

MStatus MFnMesh::getAxisAtPoint(MPoint&, MVector&, MVector&, MVector&, MSpace::Space, const MString*, int*)
{
    TVX_API_CALL("MFnMesh::getAxisAtPoint");
    return notImplemented("MFnMesh::getAxisAtPoint");
}

MStatus MFnMesh::getPinUVs(MUintArray&, MDoubleArray&, const MString*) const
{
    TVX_API_CALL("MFnMesh::getPinUVs");
    return notImplemented("MFnMesh::getPinUVs");
}

MStatus MFnMesh::setPinUVs(const MUintArray&, const MDoubleArray&, const MString*)
{
    TVX_API_CALL("MFnMesh::setPinUVs");
    return notImplemented("MFnMesh::setPinUVs");
}

int MFnMesh::numColorSets(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::numColorSets", ReturnStatus, 0);
    notImplemented("MFnMesh::numColorSets", ReturnStatus);
    return 0;
}

MString MFnMesh::createColorSetWithName(const MString&, MDGModifier*, const MUintArray*,
                                        MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::createColorSetWithName", ReturnStatus, MString());
    notImplemented("MFnMesh::createColorSetWithName", ReturnStatus);
    return MString();
}

MStatus MFnMesh::deleteColorSet(const MString&, MDGModifier*, MSelectionList*)
{
    TVX_API_CALL("MFnMesh::deleteColorSet");
    return notImplemented("MFnMesh::deleteColorSet");
}

MStatus MFnMesh::setCurrentColorSetName(const MString&, MDGModifier*, MSelectionList*)
{
    TVX_API_CALL("MFnMesh::setCurrentColorSetName");
    return notImplemented("MFnMesh::setCurrentColorSetName");
}

MString MFnMesh::currentColorSetName(int, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::currentColorSetName", ReturnStatus, MString());
    notImplemented("MFnMesh::currentColorSetName", ReturnStatus);
    return MString();
}

MStatus MFnMesh::getColorSetNames(MStringArray&) const
{
    TVX_API_CALL("MFnMesh::getColorSetNames");
    return notImplemented("MFnMesh::getColorSetNames");
}

MStatus MFnMesh::getColorSetFamilyNames(MStringArray&) const
{
    TVX_API_CALL("MFnMesh::getColorSetFamilyNames");
    return notImplemented("MFnMesh::getColorSetFamilyNames");
}

MStatus MFnMesh::getColorSetsInFamily(const MString&, MStringArray&) const
{
    TVX_API_CALL("MFnMesh::getColorSetsInFamily");
    return notImplemented("MFnMesh::getColorSetsInFamily");
}

bool MFnMesh::isColorSetPerInstance(const MString&, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::isColorSetPerInstance", ReturnStatus, false);
    notImplemented("MFnMesh::isColorSetPerInstance", ReturnStatus);
    return false;
}

MStatus MFnMesh::getAssociatedColorSetInstances(const MString&, MIntArray&) const
{
    TVX_API_CALL("MFnMesh::getAssociatedColorSetInstances");
    return notImplemented("MFnMesh::getAssociatedColorSetInstances");
}

MStatus MFnMesh::setFaceColor(MColor&, int)
{
    TVX_API_CALL("MFnMesh::setFaceColor");
    return notImplemented("MFnMesh::setFaceColor");
}

MStatus MFnMesh::setFaceColor(MColor&, int, MColorRepresentation)
{
    TVX_API_CALL("MFnMesh::setFaceColor");
    return notImplemented("MFnMesh::setFaceColor");
}

MStatus MFnMesh::setVertexColor(MColor&, int, MDGModifier*)
{
    TVX_API_CALL("MFnMesh::setVertexColor");
    return notImplemented("MFnMesh::setVertexColor");
}

MStatus MFnMesh::setVertexColor(MColor&, int, MDGModifier*, MColorRepresentation)
{
    TVX_API_CALL("MFnMesh::setVertexColor");
    return notImplemented("MFnMesh::setVertexColor");
}

MStatus MFnMesh::setFaceVertexColor(MColor&, int, int, MDGModifier*)
{
    TVX_API_CALL("MFnMesh::setFaceVertexColor");
    return notImplemented("MFnMesh::setFaceVertexColor");
}

MStatus MFnMesh::setFaceVertexColor(MColor&, int, int, MDGModifier*, MColorRepresentation)
{
    TVX_API_CALL("MFnMesh::setFaceVertexColor");
    return notImplemented("MFnMesh::setFaceVertexColor");
}

MStatus MFnMesh::setFaceVertexColor(int, int, MColor&, MDGModifier*)
{
    TVX_API_CALL("MFnMesh::setFaceVertexColor");
    return notImplemented("MFnMesh::setFaceVertexColor");
}

MStatus MFnMesh::setFaceVertexColor(int, int, MColor&, MDGModifier*, MColorRepresentation)
{
    TVX_API_CALL("MFnMesh::setFaceVertexColor");
    return notImplemented("MFnMesh::setFaceVertexColor");
}

MStatus MFnMesh::setFaceColors(MColorArray&, MIntArray&)
{
    TVX_API_CALL("MFnMesh::setFaceColors");
    return notImplemented("MFnMesh::setFaceColors");
}

MStatus MFnMesh::setFaceColors(MColorArray&, MIntArray&, MColorRepresentation)
{
    TVX_API_CALL("MFnMesh::setFaceColors");
    return notImplemented("MFnMesh::setFaceColors");
}

MStatus MFnMesh::setVertexColors(MColorArray&, MIntArray&, MDGModifier*)
{
    TVX_API_CALL("MFnMesh::setVertexColors");
    return notImplemented("MFnMesh::setVertexColors");
}

MStatus MFnMesh::setVertexColors(MColorArray&, MIntArray&, MDGModifier*, MColorRepresentation)
{
    TVX_API_CALL("MFnMesh::setVertexColors");
    return notImplemented("MFnMesh::setVertexColors");
}

MStatus MFnMesh::setFaceVertexColors(MColorArray&, MIntArray&, MIntArray&, MDGModifier*)
{
    TVX_API_CALL("MFnMesh::setFaceVertexColors");
    return notImplemented("MFnMesh::setFaceVertexColors");
}

MStatus MFnMesh::setFaceVertexColors(MColorArray&, MIntArray&, MIntArray&, MDGModifier*, MColorRepresentation)
{
    TVX_API_CALL("MFnMesh::setFaceVertexColors");
    return notImplemented("MFnMesh::setFaceVertexColors");
}

MStatus MFnMesh::removeFaceColors(MIntArray&)
{
    TVX_API_CALL("MFnMesh::removeFaceColors");
    return notImplemented("MFnMesh::removeFaceColors");
}

MStatus MFnMesh::removeVertexColors(MIntArray&)
{
    TVX_API_CALL("MFnMesh::removeVertexColors");
    return notImplemented("MFnMesh::removeVertexColors");
}

MStatus MFnMesh::removeFaceVertexColors(MIntArray&, MIntArray&)
{
    TVX_API_CALL("MFnMesh::removeFaceVertexColors");
    return notImplemented("MFnMesh::removeFaceVertexColors");
}

MStatus MFnMesh::getVertexColors(MColorArray&, const MString*, const MColor*)
{
    TVX_API_CALL("MFnMesh::getVertexColors");
    return notImplemented("MFnMesh::getVertexColors");
}

MStatus MFnMesh::getFaceVertexColors(MColorArray&, const MString*, const MColor*)
{
    TVX_API_CALL("MFnMesh::getFaceVertexColors");
    return notImplemented("MFnMesh::getFaceVertexColors");
}

MStatus MFnMesh::getFaceVertexColorIndex(int, int, int&, const MString*)
{
    TVX_API_CALL("MFnMesh::getFaceVertexColorIndex");
    return notImplemented("MFnMesh::getFaceVertexColorIndex");
}

MStatus MFnMesh::setColors(const MColorArray&, const MString*)
{
    TVX_API_CALL("MFnMesh::setColors");
    return notImplemented("MFnMesh::setColors");
}

MStatus MFnMesh::setColors(const MColorArray&, const MString*, MColorRepresentation)
{
    TVX_API_CALL("MFnMesh::setColors");
    return notImplemented("MFnMesh::setColors");
}

MStatus MFnMesh::setSomeColors(const MIntArray&, const MColorArray&, const MString*)
{
    TVX_API_CALL("MFnMesh::setSomeColors");
    return notImplemented("MFnMesh::setSomeColors");
}

MStatus MFnMesh::setSomeColors(const MIntArray&, const MColorArray&, const MString*, MColorRepresentation)
{
    TVX_API_CALL("MFnMesh::setSomeColors");
    return notImplemented("MFnMesh::setSomeColors");
}

MStatus MFnMesh::getColors(MColorArray&, const MString*, const MColor*) const
{
    TVX_API_CALL("MFnMesh::getColors");
    return notImplemented("MFnMesh::getColors");
}

MStatus MFnMesh::getColorIndex(int, int, int&, const MString*)
{
    TVX_API_CALL("MFnMesh::getColorIndex");
    return notImplemented("MFnMesh::getColorIndex");
}

MStatus MFnMesh::setColor(int, const MColor&, const MString*)
{
    TVX_API_CALL("MFnMesh::setColor");
    return notImplemented("MFnMesh::setColor");
}

MStatus MFnMesh::setColor(int, const MColor&, const MString*, MColorRepresentation)
{
    TVX_API_CALL("MFnMesh::setColor");
    return notImplemented("MFnMesh::setColor");
}

MStatus MFnMesh::getColor(int, MColor&, const MString*, const MColor*) const
{
    TVX_API_CALL("MFnMesh::getColor");
    return notImplemented("MFnMesh::getColor");
}

MStatus MFnMesh::assignColor(int, int, int, const MString*)
{
    TVX_API_CALL("MFnMesh::assignColor");
    return notImplemented("MFnMesh::assignColor");
}

MStatus MFnMesh::assignColors(const MIntArray&, const MString*)
{
    TVX_API_CALL("MFnMesh::assignColors");
    return notImplemented("MFnMesh::assignColors");
}

MStatus MFnMesh::clearColors(const MString*)
{
    TVX_API_CALL("MFnMesh::clearColors");
    return notImplemented("MFnMesh::clearColors");
}

bool MFnMesh::displayColors(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::displayColors", ReturnStatus, false);
    notImplemented("MFnMesh::displayColors", ReturnStatus);
    return false;
}

MStatus MFnMesh::setDisplayColors(bool)
{
    TVX_API_CALL("MFnMesh::setDisplayColors");
    return notImplemented("MFnMesh::setDisplayColors");
}

MString MFnMesh::createColorSetWithName(const MString&, MDGModifier*, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::createColorSetWithName", ReturnStatus, MString());
    notImplemented("MFnMesh::createColorSetWithName", ReturnStatus);
    return MString();
}

MString MFnMesh::currentColorSetName(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnMesh::currentColorSetName", ReturnStatus, MString());
    notImplemented("MFnMesh::currentColorSetName", ReturnStatus);
    return MString();
}

MStatus MFnMesh::createColorSet(MString&, MDGModifier*, const MUintArray*)
{
    TVX_API_CALL("MFnMesh::createColorSet");
    return notImplemented("MFnMesh::createColorSet");
}

MStatus MFnMesh::createColorSet(MString&, MDGModifier*, bool, MColorRepresentation, const MUintArray*)
{
    TVX_API_CALL("MFnMesh::createColorSet");
    return notImplemented("MFnMesh::createColorSet");
}

MStatus MFnMesh::getCurrentColorSetName(MString&, int) const
{
    TVX_API_CALL("MFnMesh::getCurrentColorSetName");
    return notImplemented("MFnMesh::getCurrentColorSetName");
}

MStatus MFnMesh::createColorSetDataMesh(MString&, bool, MColorRepresentation)
{
    TVX_API_CALL("MFnMesh::createColorSetDataMesh");
    return notImplemented("MFnMesh::createColorSetDataMesh");
}

MString MFnMesh::createColorSetWithNameDataMesh(const MString&, bool, MColorRepresentation,
                                                MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MFnMesh::createColorSetWithNameDataMesh", ReturnStatus, MString());
    notImplemented("MFnMesh::createColorSetWithNameDataMesh", ReturnStatus);
    return MString();
}

bool MFnMesh::getColorSetIndex(const MString*, int&) const
{
    notImplemented("MFnMesh::getColorSetIndex");
    return false;
}
