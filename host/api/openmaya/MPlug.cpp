// MPlug: identity, names and structure. Values are in MPlugValues.cpp, connections in MPlugConnections.cpp.
#include <maya/MIntArray.h>
#include <maya/MPlug.h>
#include <maya/MStringArray.h>

#include "support/notImplemented.h"
#include "support/plugCall.h"

#include "engine/cell.h"
#include "engine/dataBlock.h"

#include <limits>

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::Cell;
using tvxhost::engine::Node;
using tvxhost::engine::Plug;
using tvxhost::engine::PlugNameStyle;
using tvxhost::engine::PlugState;

namespace {

/// A query that every usable plug answers.
bool ask(const MPlug& plug, const char* name, bool (Plug::*query)() const, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, false);
    const Plug& p = tvxAccess::plug(plug);
    return requirePlug(p, returnStatus) && (p.*query)();
}

/// What one plug says of itself, or what its attribute says.
bool stateOr(const MPlug& plug, const char* name, std::optional<bool> PlugState::*state,
             bool tvxhost::engine::AttributeFlags::*flag, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, false);
    const Plug& p = tvxAccess::plug(plug);
    if (!requirePlug(p, returnStatus))
        return false;
    return (tvxhost::engine::stateOf(p).*state).value_or(p.attribute()->flags.*flag);
}

template <class Value>
MStatus setStateOf(MPlug& plug, const char* name, Value PlugState::*member, bool value)
{
    TVX_API_CALL(name);
    const Plug& p = tvxAccess::plug(plug);
    MStatus status;
    if (!requirePlug(p, &status))
        return status;
    PlugState state = tvxhost::engine::stateOf(p);
    state.*member = value;
    tvxhost::engine::setState(p, state);
    return status;
}

/// The element, or a null plug for what is no array or an index out of range.
Plug elementOf(const Plug& plug, unsigned int index)
{
    const bool fits = index <= static_cast<unsigned int>(std::numeric_limits<int>::max());
    return plug.isArray() && fits ? plug.element(static_cast<int>(index)) : Plug();
}

unsigned int elementCount(const Plug& array)
{
    const Cell* cell = array.node()->cells().find(array);
    return cell ? static_cast<unsigned int>(cell->elementCount()) : 0;
}

/// True for a usable array; else what is wrong is written.
bool requireArray(const Plug& plug, MStatus* returnStatus)
{
    if (!requirePlug(plug, returnStatus))
        return false;
    if (!plug.isArray())
        give(returnStatus, failure(StatusText::unexpectedFailure));
    return plug.isArray();
}

/// What `find` finds for a usable plug; a null plug and the failure `otherwise` when that is nothing.
template <class Find>
MPlug relative(const MPlug& plug, const char* name, StatusText otherwise, MStatus* returnStatus, Find find)
{
    TVX_API_CALL_OR(name, returnStatus, MPlug());
    const Plug& p = tvxAccess::plug(plug);
    return requirePlug(p, returnStatus) ? plugOr(find(p), otherwise, returnStatus) : MPlug();
}

/// The nearest array at or above an attribute.
const Attribute* arrayAbove(const Attribute* attribute)
{
    while (attribute && !attribute->isArray())
        attribute = attribute->parent;
    return attribute;
}

} // namespace

MPlug::MPlug() : plug(nullptr), reserved(nullptr) {}

MPlug::MPlug(const MPlug& in) : plug(in.plug ? new Plug(*in.plug) : nullptr), reserved(nullptr) {}

MPlug::MPlug(const MObject& node, const MObject& attribute) : plug(nullptr), reserved(nullptr)
{
    Node* n = nodeOf(node);
    Attribute* a = attributeOf(attribute);
    if (n && a)
        plug = new Plug(*n, *a);
}

MPlug::~MPlug()
{
    delete plug;
}

MPlug& MPlug::operator=(const MPlug& other)
{
    if (this != &other)
        tvxAccess::setPlug(*this, tvxAccess::plug(other));
    return *this;
}

const char* MPlug::className()
{
    return "MPlug";
}

// Identity

MStatus MPlug::setAttribute(MObject& attribute)
{
    TVX_API_CALL("MPlug::setAttribute");
    Attribute* a = attributeOf(attribute);
    if (!a)
        return failure(attribute.isNull() ? StatusText::nullArgument : StatusText::objectIsIncompatible);
    Node* n = tvxAccess::plug(*this).node();
    if (!n)
        return failure(StatusText::objectDoesNotExist);
    tvxAccess::setPlug(*this, Plug(*n, *a));
    return MS::kSuccess;
}

MObject MPlug::attribute(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::attribute", ReturnStatus, MObject());
    const Attribute* a = tvxAccess::plug(*this).attribute();
    give(ReturnStatus, a ? MStatus() : failure(StatusText::objectDoesNotExist));
    return tvxAccess::handle(a);
}

MObject MPlug::node(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::node", ReturnStatus, MObject());
    const Node* n = tvxAccess::plug(*this).node();
    const bool lives = n && n->isAlive();
    give(ReturnStatus, lives ? MStatus() : failure(StatusText::objectDoesNotExist));
    return lives ? tvxAccess::handle(n) : MObject();
}

bool MPlug::isNull(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::isNull", ReturnStatus, true);
    giveSuccess(ReturnStatus);
    return tvxAccess::plug(*this).isNull();
}

bool MPlug::operator!() const
{
    return tvxAccess::plug(*this).isNull();
}

bool MPlug::operator==(const MPlug& other) const
{
    return tvxAccess::plug(*this) == tvxAccess::plug(other);
}

bool MPlug::operator!=(const MPlug& other) const
{
    return !(*this == other);
}

bool MPlug::operator==(const MObject& other) const
{
    return tvxAccess::plug(*this).attribute() == tvxAccess::object(other);
}

bool MPlug::operator!=(const MObject& other) const
{
    return !(*this == other);
}

MPlug::operator MObject() const
{
    return tvxAccess::handle(tvxAccess::plug(*this).attribute());
}

// Names

MString MPlug::name(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::name", ReturnStatus, MString());
    const Plug& p = tvxAccess::plug(*this);
    return requirePlug(p, ReturnStatus) ? tvxAccess::string(p.name()) : MString();
}

MString MPlug::partialName(bool includeNodeName, bool, bool, bool useAlias, bool useFullAttributePath,
                           bool useLongNames, MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::partialName", ReturnStatus, MString());
    const Plug& p = tvxAccess::plug(*this);
    if (!requirePlug(p, ReturnStatus))
        return MString();
    PlugNameStyle style;
    style.withNode = includeNodeName;
    style.longNames = useLongNames;
    style.fullPath = useFullAttributePath;
    style.useAlias = useAlias;
    return tvxAccess::string(p.name(style));
}

MString MPlug::info(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::info", ReturnStatus, MString());
    const Plug& p = tvxAccess::plug(*this);
    if (!requirePlug(p, ReturnStatus))
        return MString();
    PlugNameStyle style;
    style.fullPath = true;
    return tvxAccess::string(p.name(style));
}

MStatus MPlug::getSetAttrCmds(MStringArray&, MValueSelector, bool)
{
    return notImplemented("MPlug::getSetAttrCmds");
}

// Structure

bool MPlug::isArray(MStatus* ReturnStatus) const
{
    return ask(*this, "MPlug::isArray", &Plug::isArray, ReturnStatus);
}

bool MPlug::isElement(MStatus* ReturnStatus) const
{
    return ask(*this, "MPlug::isElement", &Plug::isElement, ReturnStatus);
}

bool MPlug::isCompound(MStatus* ReturnStatus) const
{
    return ask(*this, "MPlug::isCompound", &Plug::isCompound, ReturnStatus);
}

bool MPlug::isChild(MStatus* ReturnStatus) const
{
    return ask(*this, "MPlug::isChild", &Plug::isChild, ReturnStatus);
}

bool MPlug::isDynamic(MStatus* ReturnStatus) const
{
    return ask(*this, "MPlug::isDynamic", &Plug::isDynamic, ReturnStatus);
}

// Nothing here makes connections on its own account.
bool MPlug::isProcedural(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::isProcedural", ReturnStatus, false);
    requirePlug(tvxAccess::plug(*this), ReturnStatus);
    return false;
}

bool MPlug::isNetworked(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::isNetworked", ReturnStatus, false);
    const Plug& p = tvxAccess::plug(*this);
    return requirePlug(p, ReturnStatus) &&
           (tvxhost::engine::isConnected(p) || tvxhost::engine::stateOf(p).locked);
}

bool MPlug::isFromReferencedFile(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::isFromReferencedFile", ReturnStatus, false);
    const Plug& p = tvxAccess::plug(*this);
    return requirePlug(p, ReturnStatus) && p.node()->isReferenced;
}

bool MPlug::isIgnoredWhenRendering(MStatus* ReturnStatus) const
{
    notImplemented("MPlug::isIgnoredWhenRendering", ReturnStatus);
    return false;
}

unsigned int MPlug::logicalIndex(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::logicalIndex", ReturnStatus, 0);
    const Plug& p = tvxAccess::plug(*this);
    if (!requirePlug(p, ReturnStatus))
        return 0;
    if (!p.isElement()) {
        give(ReturnStatus, failure(StatusText::unexpectedFailure));
        return 0;
    }
    return static_cast<unsigned int>(p.logicalIndex());
}

MStatus MPlug::selectAncestorLogicalIndex(unsigned int index, const MObject& attribute)
{
    TVX_API_CALL("MPlug::selectAncestorLogicalIndex");
    Plug p = tvxAccess::plug(*this);
    MStatus status;
    if (!requirePlug(p, &status))
        return status;
    const Attribute* array = attribute.isNull() ? arrayAbove(p.attribute()) : attributeOf(attribute);
    if (!array || !array->isArray() || !p.attribute()->isAtOrBelow(*array))
        return failure(StatusText::objectIsIncompatible);
    p.selectIndex(*array, static_cast<int>(index));
    tvxAccess::setPlug(*this, p);
    return status;
}

unsigned int MPlug::getExistingArrayAttributeIndices(MIntArray& indices, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MPlug::getExistingArrayAttributeIndices", ReturnStatus, 0);
    const Plug& p = tvxAccess::plug(*this);
    if (!requireArray(p, ReturnStatus))
        return 0;
    auto& elements = tvxAccess::elements(indices);
    elements = tvxhost::engine::existingElements(p);
    return static_cast<unsigned int>(elements.size());
}

unsigned int MPlug::numElements(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::numElements", ReturnStatus, 0);
    const Plug& p = tvxAccess::plug(*this);
    return requireArray(p, ReturnStatus) ? elementCount(p) : 0;
}

unsigned int MPlug::evaluateNumElements(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MPlug::evaluateNumElements", ReturnStatus, 0);
    const Plug& p = tvxAccess::plug(*this);
    if (!requireArray(p, ReturnStatus))
        return 0;
    if (const auto evaluated = tvxhost::engine::evaluate(p); !evaluated) {
        give(ReturnStatus, plugStatus(evaluated));
        return 0;
    }
    return elementCount(p);
}

MStatus MPlug::setNumElements(unsigned int elements)
{
    TVX_API_CALL("MPlug::setNumElements");
    const Plug& p = tvxAccess::plug(*this);
    MStatus status;
    if (!requirePlug(p, &status))
        return status;
    if (!p.isArray())
        return failure(StatusText::unexpectedFailure);
    for (unsigned int i = 0; i < elements; ++i)
        if (const auto slot = tvxhost::engine::outputSlot(p.element(static_cast<int>(i))); !slot)
            return plugStatus(slot.outcome);
    return status;
}

unsigned int MPlug::numChildren(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::numChildren", ReturnStatus, 0);
    const Plug& p = tvxAccess::plug(*this);
    if (!requirePlug(p, ReturnStatus))
        return 0;
    if (!p.isCompound())
        give(ReturnStatus, failure(StatusText::unexpectedFailure));
    return static_cast<unsigned int>(p.childCount());
}

MPlug MPlug::child(unsigned int index, MStatus* ReturnStatus) const
{
    return relative(*this, "MPlug::child", StatusText::noElementAtIndex, ReturnStatus,
                    [&](const Plug& p) { return index < p.childCount() ? p.child(index) : Plug(); });
}

MPlug MPlug::child(MObject& attr, MStatus* ReturnStatus) const
{
    return relative(*this, "MPlug::child", StatusText::itemNotFound, ReturnStatus, [&](const Plug& p) {
        const Attribute* a = attributeOf(attr);
        return a ? p.child(*a) : Plug();
    });
}

MPlug MPlug::parent(MStatus* ReturnStatus) const
{
    return relative(*this, "MPlug::parent", StatusText::unexpectedFailure, ReturnStatus,
                    [](const Plug& p) { return p.isChild() ? p.parent() : Plug(); });
}

MPlug MPlug::array(MStatus* ReturnStatus) const
{
    return relative(*this, "MPlug::array", StatusText::unexpectedFailure, ReturnStatus,
                    [](const Plug& p) { return p.isElement() ? p.array() : Plug(); });
}

MPlug MPlug::elementByLogicalIndex(unsigned int logicalIndex, MStatus* ReturnStatus) const
{
    return relative(*this, "MPlug::elementByLogicalIndex", StatusText::unexpectedFailure, ReturnStatus,
                    [&](const Plug& p) { return elementOf(p, logicalIndex); });
}

MPlug MPlug::elementByPhysicalIndex(unsigned int physicalIndex, MStatus* ReturnStatus) const
{
    return relative(*this, "MPlug::elementByPhysicalIndex", StatusText::noElementAtIndex, ReturnStatus,
                    [&](const Plug& p) {
                        if (!p.isArray() || physicalIndex >= elementCount(p))
                            return Plug();
                        return p.element(p.node()->cells().find(p)->elementIndex(physicalIndex));
                    });
}

MPlug MPlug::operator[](unsigned int physicalIndex) const
{
    return elementByPhysicalIndex(physicalIndex);
}

MPlug MPlug::operator[](MObject& attr) const
{
    return child(attr);
}

// State

bool MPlug::isKeyable(MStatus* ReturnStatus) const
{
    return stateOr(*this, "MPlug::isKeyable", &PlugState::keyable, &tvxhost::engine::AttributeFlags::keyable,
                   ReturnStatus);
}

bool MPlug::isChannelBoxFlagSet(MStatus* ReturnStatus) const
{
    return stateOr(*this, "MPlug::isChannelBoxFlagSet", &PlugState::channelBox,
                   &tvxhost::engine::AttributeFlags::channelBox, ReturnStatus);
}

bool MPlug::isCachingFlagSet(MStatus* ReturnStatus) const
{
    return stateOr(*this, "MPlug::isCachingFlagSet", &PlugState::caching,
                   &tvxhost::engine::AttributeFlags::cached, ReturnStatus);
}

bool MPlug::isLocked(MStatus* ReturnStatus) const
{
    TVX_API_CALL_OR("MPlug::isLocked", ReturnStatus, false);
    const Plug& p = tvxAccess::plug(*this);
    return requirePlug(p, ReturnStatus) && tvxhost::engine::isLocked(p);
}

MStatus MPlug::setKeyable(bool keyable)
{
    return setStateOf(*this, "MPlug::setKeyable", &PlugState::keyable, keyable);
}

MStatus MPlug::setChannelBox(bool channelBox)
{
    return setStateOf(*this, "MPlug::setChannelBox", &PlugState::channelBox, channelBox);
}

MStatus MPlug::setCaching(bool caching)
{
    return setStateOf(*this, "MPlug::setCaching", &PlugState::caching, caching);
}

MStatus MPlug::setLocked(bool locked)
{
    return setStateOf(*this, "MPlug::setLocked", &PlugState::locked, locked);
}
