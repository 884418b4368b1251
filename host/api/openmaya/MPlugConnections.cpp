// MPlug: connections.
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>

#include "support/plugCall.h"

using namespace tvxhost::api;
using tvxhost::engine::Plug;

namespace {

/// Whether the plug or anything below it is connected.
bool isConnectedBelow(const Plug& plug)
{
    if (tvxhost::engine::isConnected(plug))
        return true;
    if (plug.isArray()) {
        for (const int i : tvxhost::engine::existingElements(plug))
            if (isConnectedBelow(plug.element(i)))
                return true;
        return false;
    }
    for (std::size_t i = 0; i < plug.childCount(); ++i)
        if (isConnectedBelow(plug.child(i)))
            return true;
    return false;
}

std::vector<Plug> connectedElements(const Plug& plug)
{
    std::vector<Plug> connected;
    if (!plug.isArray())
        return connected;
    for (const int i : tvxhost::engine::existingElements(plug))
        if (Plug element = plug.element(i); isConnectedBelow(element))
            connected.push_back(std::move(element));
    return connected;
}

bool isHeld(const Plug& plug)
{
    return tvxhost::engine::isLocked(plug) || !tvxhost::engine::sourceOf(plug).isNull();
}

bool isHeldAbove(const Plug& plug)
{
    for (Plug above = plug.isElement() ? plug.array() : plug.parent(); !above.isNull();
         above = above.isElement() ? above.array() : above.parent())
        if (isHeld(above))
            return true;
    return false;
}

bool isHeldBelow(const Plug& plug)
{
    for (std::size_t i = 0; i < plug.childCount(); ++i)
        if (const Plug child = plug.child(i); isHeld(child) || isHeldBelow(child))
            return true;
    return false;
}

} // namespace

bool MPlug::isConnected(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::isConnected", ReturnStatus, false);
    const Plug& p = tvxAccess::plug(*this);
    return requirePlug(p, ReturnStatus) && tvxhost::engine::isConnected(p);
}

bool MPlug::isSource(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::isSource", ReturnStatus, false);
    const Plug& p = tvxAccess::plug(*this);
    return requirePlug(p, ReturnStatus) && !tvxhost::engine::destinationsOf(p).empty();
}

bool MPlug::isDestination(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::isDestination", ReturnStatus, false);
    const Plug& p = tvxAccess::plug(*this);
    return requirePlug(p, ReturnStatus) && !tvxhost::engine::sourceOf(p).isNull();
}

// The result does not depend on which of the two sides was asked for.
bool MPlug::connectedTo(MPlugArray& array, bool asDst, bool asSrc, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::connectedTo", ReturnStatus, false);
    array.clear();
    const Plug& p = tvxAccess::plug(*this);
    if (!requirePlug(p, ReturnStatus))
        return false;
    auto& partners = tvxAccess::elements(array);
    if (asDst)
        if (const Plug source = tvxhost::engine::sourceOf(p); !source.isNull())
            partners.push_back(tvxAccess::plug(source));
    if (asSrc)
        for (const Plug& destination : tvxhost::engine::destinationsOf(p))
            partners.push_back(tvxAccess::plug(destination));
    return tvxhost::engine::isConnected(p);
}

unsigned int MPlug::numConnectedElements(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::numConnectedElements", ReturnStatus, 0);
    const Plug& p = tvxAccess::plug(*this);
    if (!requirePlug(p, ReturnStatus))
        return 0;
    if (!p.isArray())
        give(ReturnStatus, failure(StatusText::unexpectedFailure));
    return static_cast<unsigned int>(connectedElements(p).size());
}

unsigned int MPlug::numConnectedChildren(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::numConnectedChildren", ReturnStatus, 0);
    const Plug& p = tvxAccess::plug(*this);
    if (!requirePlug(p, ReturnStatus))
        return 0;
    if (!p.isCompound())
        give(ReturnStatus, failure(StatusText::unexpectedFailure));
    unsigned int count = 0;
    for (std::size_t i = 0; i < p.childCount(); ++i)
        count += isConnectedBelow(p.child(i)) ? 1 : 0;
    return count;
}

MPlug MPlug::connectionByPhysicalIndex(unsigned int physicalIndex, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::connectionByPhysicalIndex", ReturnStatus, MPlug());
    const Plug& p = tvxAccess::plug(*this);
    if (!requirePlug(p, ReturnStatus))
        return MPlug();
    const auto connected = connectedElements(p);
    return plugOr(physicalIndex < connected.size() ? connected[physicalIndex] : Plug(),
                  StatusText::noElementAtIndex, ReturnStatus);
}

MPlug::FreeToChangeState MPlug::isFreeToChange(bool checkParents, bool checkChildren,
                                               MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::isFreeToChange", ReturnStatus, kNotFreeToChange);
    const Plug& p = tvxAccess::plug(*this);
    if (!requirePlug(p, ReturnStatus) || isHeld(p) || (checkParents && isHeldAbove(p)))
        return kNotFreeToChange;
    return checkChildren && isHeldBelow(p) ? kChildrenNotFreeToChange : kFreeToChange;
}
