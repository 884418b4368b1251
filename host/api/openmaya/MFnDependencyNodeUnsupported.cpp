// MFnDependencyNode: members that the host does not do: flags, icons, metadata, timing.
#include <maya/MCallbackIdArray.h>
#include <maya/MDoubleArray.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MStringArray.h>

#include "support/notImplemented.h"

using tvxhost::api::notImplemented;

unsigned int MFnDependencyNode::allocateFlag(const MString, MStatus* ReturnStatus)
{
    notImplemented("MFnDependencyNode::allocateFlag", ReturnStatus);
    return 0;
}

MStatus MFnDependencyNode::deallocateFlag(const MString, unsigned int)
{
    return notImplemented("MFnDependencyNode::deallocateFlag");
}

MStatus MFnDependencyNode::deallocateAllFlags(const MString)
{
    return notImplemented("MFnDependencyNode::deallocateAllFlags");
}

MStatus MFnDependencyNode::setFlag(unsigned int, bool)
{
    return notImplemented("MFnDependencyNode::setFlag");
}

bool MFnDependencyNode::isFlagSet(unsigned int, MStatus* ReturnStatus) const
{
    notImplemented("MFnDependencyNode::isFlagSet", ReturnStatus);
    return false;
}

MObject MFnDependencyNode::getAliasAttr(bool, MStatus* ReturnStatus)
{
    notImplemented("MFnDependencyNode::getAliasAttr", ReturnStatus);
    return MObject();
}

MStatus MFnDependencyNode::setIcon(const MString&)
{
    return notImplemented("MFnDependencyNode::setIcon");
}

MString MFnDependencyNode::icon(MStatus* ReturnStatus) const
{
    notImplemented("MFnDependencyNode::icon", ReturnStatus);
    return MString();
}

const adsk::Data::Associations* MFnDependencyNode::metadata(MStatus* ReturnStatus) const
{
    notImplemented("MFnDependencyNode::metadata", ReturnStatus);
    return nullptr;
}

MStatus MFnDependencyNode::setMetadata(const adsk::Data::Associations&)
{
    return notImplemented("MFnDependencyNode::setMetadata");
}

MStatus MFnDependencyNode::deleteMetadata()
{
    return notImplemented("MFnDependencyNode::deleteMetadata");
}

MStatus MFnDependencyNode::validateMetadata(MString&) const
{
    return notImplemented("MFnDependencyNode::validateMetadata");
}

void MFnDependencyNode::enableDGTiming(bool)
{
    notImplemented("MFnDependencyNode::enableDGTiming");
}

MStatus MFnDependencyNode::dgTimerOn()
{
    return notImplemented("MFnDependencyNode::dgTimerOn");
}

MStatus MFnDependencyNode::dgTimerOff()
{
    return notImplemented("MFnDependencyNode::dgTimerOff");
}

MFnDependencyNode::MdgTimerState MFnDependencyNode::dgTimerQueryState(MStatus* ReturnStatus)
{
    notImplemented("MFnDependencyNode::dgTimerQueryState", ReturnStatus);
    return kTimerInvalidState;
}

MStatus MFnDependencyNode::dgTimerReset()
{
    return notImplemented("MFnDependencyNode::dgTimerReset");
}

double MFnDependencyNode::dgTimer(const MdgTimerMetric, const MdgTimerType, MStatus* ReturnStatus) const
{
    notImplemented("MFnDependencyNode::dgTimer", ReturnStatus);
    return 0.0;
}

MStatus MFnDependencyNode::dgCallbacks(const MdgTimerType, MStringArray&, MDoubleArray&)
{
    return notImplemented("MFnDependencyNode::dgCallbacks");
}

MStatus MFnDependencyNode::dgCallbackIds(const MdgTimerType, const MString&, MCallbackIdArray&, MDoubleArray&)
{
    return notImplemented("MFnDependencyNode::dgCallbackIds");
}
