// MFnDagNode: how a node is shown: colours and overrides.
#include <maya/MColor.h>
#include <maya/MFnDagNode.h>

#include "support/dagSet.h"
#include "support/nodeSet.h"
#include "support/notImplemented.h"
#include "support/plugCall.h"

using namespace tvxhost::api;
using tvxhost::engine::DagNode;
using tvxhost::engine::Number;

namespace {

/// The values of `overrideDisplayType`.
enum DisplayType
{
    kNormal = 0,
    kTemplate = 1,
    kReference = 2
};

Number read(DagNode& node, const char* attribute)
{
    const auto plug = node.findPlug(attribute);
    return plug ? tvxhost::engine::readNumber(plug.value).value : Number();
}

MColor readColor(DagNode& node, const char* attribute)
{
    const auto plug = node.findPlug(attribute);
    if (!plug)
        return MColor();
    const auto rgb = tvxhost::engine::readNumbers(plug.value).value;
    return rgb.size() == 3
               ? MColor(static_cast<float>(rgb[0]), static_cast<float>(rgb[1]), static_cast<float>(rgb[2]))
               : MColor();
}

MStatus write(DagNode& node, const char* attribute, int value)
{
    const auto plug = node.findPlug(attribute);
    return plug ? plugStatus(tvxhost::engine::writeNumber(plug.value, Number(value)))
                : toStatus(plug.outcome);
}

int readInt(const MFnDagNode& set, const char* name, const char* attribute, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, 0);
    DagNode* node = dagNodeOf(set);
    return requireAttached(node, returnStatus) ? static_cast<int>(read(*node, attribute).asWhole()) : 0;
}

MStatus writeInt(MFnDagNode& set, const char* name, const char* attribute, int value)
{
    TVX_API_CALL(name);
    DagNode* node = dagNodeOf(set);
    return node ? write(*node, attribute, value) : notAttached();
}

/// Whether the override is on and of a type.
bool isOverriddenAs(const MFnDagNode& set, const char* name, DisplayType type, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, false);
    DagNode* node = dagNodeOf(set);
    return requireAttached(node, returnStatus) && read(*node, "overrideEnabled").asWhole() != 0 &&
           read(*node, "overrideDisplayType").asWhole() == type;
}

} // namespace

bool MFnDagNode::isIntermediateObject(MStatus* ReturnStatus) const
{
    return readInt(*this, "MFnDagNode::isIntermediateObject", "intermediateObject", ReturnStatus) != 0;
}

MStatus MFnDagNode::setIntermediateObject(bool isIntermediate)
{
    return writeInt(*this, "MFnDagNode::setIntermediateObject", "intermediateObject", isIntermediate);
}

// The object's own colour

int MFnDagNode::objectColor(MStatus* ReturnStatus) const
{
    return readInt(*this, "MFnDagNode::objectColor", "objectColor", ReturnStatus);
}

int MFnDagNode::objectColorIndex(MStatus* ReturnStatus) const
{
    return readInt(*this, "MFnDagNode::objectColorIndex", "objectColor", ReturnStatus);
}

MColor MFnDagNode::objectColorRGB(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDagNode::objectColorRGB", ReturnStatus, MColor());
    DagNode* node = dagNodeOf(*this);
    return requireAttached(node, ReturnStatus) ? readColor(*node, "objectColorRGB") : MColor();
}

MStatus MFnDagNode::setObjectColor(int color)
{
    return writeInt(*this, "MFnDagNode::setObjectColor", "objectColor", color);
}

MStatus MFnDagNode::setObjectColor(const MColor& color)
{
    TVX_API_CALL("MFnDagNode::setObjectColor");
    DagNode* node = dagNodeOf(*this);
    if (!node)
        return notAttached();
    const auto plug = node->findPlug("objectColorRGB");
    return plug ? plugStatus(tvxhost::engine::writeNumbers(plug.value, {color.r, color.g, color.b}))
                : toStatus(plug.outcome);
}

bool MFnDagNode::usingObjectColor(MStatus* ReturnStatus) const
{
    return readInt(*this, "MFnDagNode::usingObjectColor", "useObjectColor", ReturnStatus) != kUseDefaultColor;
}

MStatus MFnDagNode::setUseObjectColor(bool useObjectColor)
{
    return writeInt(*this, "MFnDagNode::setUseObjectColor", "useObjectColor",
                    useObjectColor ? kUseIndexColor : kUseDefaultColor);
}

MFnDagNode::MObjectColorType MFnDagNode::objectColorType(MStatus* ReturnStatus) const
{
    return static_cast<MObjectColorType>(
        readInt(*this, "MFnDagNode::objectColorType", "useObjectColor", ReturnStatus));
}

MStatus MFnDagNode::setObjectColorType(MObjectColorType type)
{
    return writeInt(*this, "MFnDagNode::setObjectColorType", "useObjectColor", type);
}

// Overrides

bool MFnDagNode::drawOverrideEnabled(MStatus* ReturnStatus) const
{
    return readInt(*this, "MFnDagNode::drawOverrideEnabled", "overrideEnabled", ReturnStatus) != 0;
}

bool MFnDagNode::drawOverrideIsReference(MStatus* ReturnStatus) const
{
    return isOverriddenAs(*this, "MFnDagNode::drawOverrideIsReference", kReference, ReturnStatus);
}

bool MFnDagNode::drawOverrideIsTemplate(MStatus* ReturnStatus) const
{
    return isOverriddenAs(*this, "MFnDagNode::drawOverrideIsTemplate", kTemplate, ReturnStatus);
}

// Colours by index need the user's palette, which the host does not have.
bool MFnDagNode::drawOverrideColor(MColor& color, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MFnDagNode::drawOverrideColor", ReturnStatus, false);
    DagNode* node = dagNodeOf(*this);
    if (!requireAttached(node, ReturnStatus) || read(*node, "overrideEnabled").asWhole() == 0)
        return false;
    if (read(*node, "overrideRGBColors").asWhole() != 0) {
        color = readColor(*node, "overrideColorRGB");
        return true;
    }
    if (read(*node, "overrideColor").asWhole() != 0)
        notImplemented("MFnDagNode::drawOverrideColor(index)", ReturnStatus);
    return false;
}

// The colours of the viewport's states are the user's as well.

MColor MFnDagNode::hiliteColor(MStatus* ReturnStatus) const
{
    notImplemented("MFnDagNode::hiliteColor", ReturnStatus);
    return MColor();
}

bool MFnDagNode::usingHiliteColor(MStatus* ReturnStatus) const
{
    notImplemented("MFnDagNode::usingHiliteColor", ReturnStatus);
    return false;
}

MColor MFnDagNode::dormantColor(MStatus* ReturnStatus) const
{
    notImplemented("MFnDagNode::dormantColor", ReturnStatus);
    return MColor();
}

MColor MFnDagNode::activeColor(MStatus* ReturnStatus) const
{
    notImplemented("MFnDagNode::activeColor", ReturnStatus);
    return MColor();
}
