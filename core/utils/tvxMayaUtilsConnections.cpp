// Connections between nodes.
#include "core/utils/tvxMayaUtils.h"

#include "core/utils/tvxMayaCompat.h"
#include "core/utils/tvxTrace.h"

#include <maya/MPlug.h>
#include <maya/MPlugArray.h>

#include <algorithm>
#include <ostream>

namespace tarvox::crowd {

namespace {

/// Two ends, given by node and name.
struct Ends
{
    const MObject& sourceNode;
    const MString& sourceAttribute;
    const MObject& destinationNode;
    const MString& destinationAttribute;
};

using Change = MStatus (MDGModifier::*)(const MPlug&, const MPlug&);

/// Makes or breaks the connection of two ends.
MStatus change(const char* member, const Ends& ends, Change queue)
{
    MDGModifier modifier;
    MStatus status;
    const MFnDependencyNode source(ends.sourceNode, &status);
    if (!status)
        TVX_FAIL(member, status.errorString());
    const MFnDependencyNode destination(ends.destinationNode, &status);
    if (!status)
        TVX_FAIL(member, status.errorString());
    const MPlug sourcePlug = compat::findPlug(source, ends.sourceAttribute, &status);
    if (!status)
        TVX_FAIL(member, status.errorString());
    const MPlug destinationPlug = compat::findPlug(destination, ends.destinationAttribute, &status);
    if (!status)
        TVX_FAIL(member, status.errorString());
    status = (modifier.*queue)(sourcePlug, destinationPlug);
    return status ? modifier.doIt() : status;
}

/// Which partners of a plug.
enum class Side
{
    sources,
    destinations
};

void collectPartners(const MPlug& plug, Side side, std::vector<MObject>& nodes)
{
    MPlugArray partners;
    plug.connectedTo(partners, side == Side::sources, side == Side::destinations);
    // Room for all at once, and never less than a vector takes by itself.
    const std::size_t needed = nodes.size() + partners.length();
    if (needed > nodes.capacity())
        nodes.reserve(std::max(needed, 2 * nodes.capacity()));
    for (unsigned int i = 0; i < partners.length(); ++i)
        nodes.push_back(partners[i].node());
}

MStatus collect(const MObject& node, const MObject& attribute, Side side, std::vector<MObject>& nodes)
{
    MStatus status;
    const MFnDependencyNode function(node, &status);
    if (!status)
        return status;
    const MPlug plug = compat::findPlug(function, attribute, &status);
    if (!status)
        return status;
    if (!plug.isArray()) {
        collectPartners(plug, side, nodes);
        return status;
    }
    for (unsigned int i = 0; i < plug.numElements(); ++i)
        collectPartners(plug.elementByPhysicalIndex(i), side, nodes);
    return status;
}

/// The same by name, with reports; the status is that of the look-up.
MStatus find(const char* member, const MObject& node, const MString& attributeName, Side side,
             std::vector<MObject>& nodes)
{
    MStatus status;
    const MFnDependencyNode function(node, &status);
    if (!status)
        TVX_FAIL(member, status.errorString());
    const MPlug plug = compat::findPlug(function, attributeName, &status);
    if (!status)
        TVX_FAIL(member, status.errorString());
    collect(node, plug.attribute(), side, nodes);
    return status;
}

void give(MStatus* status, const MStatus& result)
{
    if (status)
        *status = result;
}

/// Queues the removal of all connections of a plug, which is always named first.
bool disconnectPlug(const MPlug& plug, MDGModifier& modifier)
{
    MStatus status;
    MPlugArray partners;
    if (!plug.connectedTo(partners, true, true, &status) || !status)
        return false;
    for (unsigned int i = 0; i < partners.length(); ++i)
        if (!modifier.disconnect(plug, partners[i]))
            return false;
    return true;
}

} // namespace

MStatus MayaUtils::connectAttributes(const MObject& sourceNode, const MString& sourceAttribute,
                                     const MObject& destinationNode, const MString& destinationAttribute)
{
    return change(TVX_UTILS_MEMBER("connectAttributes"),
                  {sourceNode, sourceAttribute, destinationNode, destinationAttribute},
                  &MDGModifier::connect);
}

MStatus MayaUtils::disconnectAttributes(const MObject& sourceNode, const MString& sourceAttribute,
                                        const MObject& destinationNode, const MString& destinationAttribute)
{
    return change(TVX_UTILS_MEMBER("disconnectAttributes"),
                  {sourceNode, sourceAttribute, destinationNode, destinationAttribute},
                  &MDGModifier::disconnect);
}

MStatus MayaUtils::findConnectedNodesOnPlug(const MObject& node, const MString& attributeName,
                                            std::vector<MObject>& nodes)
{
    return find(TVX_UTILS_MEMBER("findConnectedNodesOnPlug"), node, attributeName, Side::sources, nodes);
}

MStatus MayaUtils::findConnectedNodesToPlug(const MObject& node, const MString& attributeName,
                                            std::vector<MObject>& nodes)
{
    return find(TVX_UTILS_MEMBER("findConnectedNodesToPlug"), node, attributeName, Side::destinations, nodes);
}

void MayaUtils::collectConnectedSources(const MObject& node, const MObject& attribute,
                                        std::vector<MObject>& nodes, MStatus* status)
{
    give(status, collect(node, attribute, Side::sources, nodes));
}

void MayaUtils::collectConnectedDestinations(const MObject& node, const MObject& attribute,
                                             std::vector<MObject>& nodes, MStatus* status)
{
    give(status, collect(node, attribute, Side::destinations, nodes));
}

MStatus MayaUtils::disconnectAllConnections(const MObject& node, MDGModifier& modifier)
{
    if (!node.hasFn(MFn::kDependencyNode))
        return MStatus::kFailure;
    MStatus status;
    const MFnDependencyNode function(node, &status);
    // A node that is of no use has nothing to disconnect.
    if (!status)
        return MStatus::kSuccess;
    MPlugArray plugs;
    function.getConnections(plugs);
    for (unsigned int i = 0; i < plugs.length(); ++i)
        if (!disconnectPlug(plugs[i], modifier))
            return MStatus::kFailure;
    return MStatus::kSuccess;
}

MStatus MayaUtils::disconnectAll(const MObject& node)
{
    MDGModifier modifier;
    const MStatus status = disconnectAllConnections(node, modifier);
    return status ? modifier.doIt() : status;
}

} // namespace tarvox::crowd
