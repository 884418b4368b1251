// MDataBlock: the values of a node during one call.
#include <maya/MDataBlock.h>
#include <maya/MPlug.h>

#include "support/arrayHandleState.h"
#include "support/dataBlockState.h"
#include "support/handleState.h"
#include "support/notImplemented.h"
#include "support/plugCall.h"

using namespace tvxhost::api;
using tvxhost::engine::Attribute;
using tvxhost::engine::Expected;
using tvxhost::engine::Plug;
using tvxhost::engine::Slot;

namespace {

MStatus statusOf(const tvxhost::engine::Outcome& outcome)
{
    return outcome.reason == tvxhost::engine::Reason::none
               ? MStatus()
               : failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
}

MStatus notOfThisNode()
{
    return failure(StatusText::itemNotFound);
}

/// The plug of an attribute of the node; null when the handle holds no attribute or the node is gone.
Plug plugOf(const DataBlock& block, const MObject& attribute)
{
    Attribute* a = attributeOf(attribute);
    return a && block.node ? Plug(*block.node, *a) : Plug();
}

/// A plug that is given as one: it must be of the node.
const Plug& plugOf(const DataBlock& block, const MPlug& plug)
{
    static const Plug none;
    const Plug& p = tvxAccess::plug(plug);
    return p.node() == block.node ? p : none;
}

using SlotOf = Expected<Slot> (*)(const Plug&);

MDataHandle value(const Plug& plug, SlotOf slotOf, bool forWriting, MStatus* returnStatus)
{
    if (plug.isNull()) {
        give(returnStatus, notOfThisNode());
        return MDataHandle();
    }
    // An array has no value of its own; its handle only leads on to the elements.
    if (plug.isArray()) {
        const auto state = HandleState::ofArray(plug, forWriting);
        give(returnStatus, state ? MStatus() : notOfThisNode());
        return state ? state->handle() : MDataHandle();
    }
    const Expected<Slot> slot = slotOf(plug);
    const auto state = slot ? HandleState::of(plug, slot.value, forWriting) : std::nullopt;
    if (!state) {
        give(returnStatus, slot ? notOfThisNode() : statusOf(slot.outcome));
        return MDataHandle();
    }
    giveSuccess(returnStatus);
    return state->handle();
}

MArrayDataHandle arrayValue(const Plug& plug, bool forWriting, MStatus* returnStatus)
{
    MStatus status;
    if (plug.isNull() || !plug.isArray())
        status = notOfThisNode();
    else if (!forWriting)
        status = statusOf(tvxhost::engine::evaluate(plug));
    const auto state = status ? HandleState::ofArray(plug, forWriting) : std::nullopt;
    give(returnStatus, status && !state ? notOfThisNode() : status);
    return ArrayHandleState::handleOn(state.value_or(HandleState()));
}

} // namespace

MDataBlock::~MDataBlock() = default;

const char* MDataBlock::className()
{
    return "MDataBlock";
}

#define TVX_VALUE(Key)                                                                                       \
    MDataHandle MDataBlock::inputValue(const Key& key, MStatus* ReturnStatus)                                \
    {                                                                                                        \
        TVX_API_CALL_OR("MDataBlock::inputValue", ReturnStatus, MDataHandle());                              \
        return value(plugOf(*block, key), tvxhost::engine::inputSlot, false, ReturnStatus);                  \
    }                                                                                                        \
    MDataHandle MDataBlock::outputValue(const Key& key, MStatus* ReturnStatus)                               \
    {                                                                                                        \
        TVX_API_CALL_OR("MDataBlock::outputValue", ReturnStatus, MDataHandle());                             \
        return value(plugOf(*block, key), tvxhost::engine::outputSlot, true, ReturnStatus);                  \
    }                                                                                                        \
    MArrayDataHandle MDataBlock::inputArrayValue(const Key& key, MStatus* ReturnStatus)                      \
    {                                                                                                        \
        TVX_API_CALL_OR("MDataBlock::inputArrayValue", ReturnStatus, ArrayHandleState::handleOn({}));        \
        return arrayValue(plugOf(*block, key), false, ReturnStatus);                                         \
    }                                                                                                        \
    MArrayDataHandle MDataBlock::outputArrayValue(const Key& key, MStatus* ReturnStatus)                     \
    {                                                                                                        \
        TVX_API_CALL_OR("MDataBlock::outputArrayValue", ReturnStatus, ArrayHandleState::handleOn({}));       \
        return arrayValue(plugOf(*block, key), true, ReturnStatus);                                          \
    }                                                                                                        \
    MStatus MDataBlock::setClean(const Key& key)                                                             \
    {                                                                                                        \
        TVX_API_CALL("MDataBlock::setClean");                                                                \
        const Plug& plug = plugOf(*block, key);                                                              \
        if (plug.isNull() || !plug.isValid())                                                                \
            return notOfThisNode();                                                                          \
        tvxhost::engine::setClean(plug);                                                                     \
        return MS::kSuccess;                                                                                 \
    }

TVX_VALUE(MPlug)
TVX_VALUE(MObject)

#undef TVX_VALUE

bool MDataBlock::isClean(const MPlug& plug)
{
    const Plug& p = plugOf(*block, plug);
    return !p.isNull() && p.isValid() && !tvxhost::engine::isDirty(p);
}

bool MDataBlock::isClean(const MObject& attribute, MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MDataBlock::isClean", ReturnStatus, false);
    const Plug plug = plugOf(*block, attribute);
    const bool usable = !plug.isNull() && plug.isValid();
    give(ReturnStatus, usable ? MStatus() : notOfThisNode());
    return usable && !tvxhost::engine::isDirty(plug);
}

// Values are only ever those of the current time.
MDGContext MDataBlock::context(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MDataBlock::context", ReturnStatus, MDGContext());
    giveSuccess(ReturnStatus);
    return MDGContext();
}

MStatus MDataBlock::setContext(const MDGContext& ctx)
{
    TVX_API_CALL("MDataBlock::setContext");
    return !tvxAccess::context(ctx) ? MStatus() : notImplemented("MDataBlock::setContext");
}
