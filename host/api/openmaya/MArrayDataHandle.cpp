// MArrayDataHandle: the elements of an array in a data block.
#include <maya/MArrayDataBuilder.h>
#include <maya/MArrayDataHandle.h>

#include "support/apiCall.h"
#include "support/arrayHandleState.h"
#include "support/builderState.h"
#include "support/functionSet.h"

using namespace tvxhost::api;
using tvxhost::engine::Plug;

namespace {

/// The element that a handle stands on; null when there is none.
Plug currentElement(const MArrayDataHandle& handle)
{
    const ArrayHandleState state = ArrayHandleState::read(handle);
    if (state.array.isNull() || state.index < 0)
        return Plug();
    return state.array.plug().element(state.index);
}

MDataHandle value(const MArrayDataHandle& handle, const char* name, bool forWriting, MStatus* returnStatus)
{
    TVX_API_CALL_OR(name, returnStatus, MDataHandle());
    const Plug element = currentElement(handle);
    give(returnStatus, element.isNull() ? failure(StatusText::noElementAtIndex) : MStatus());
    if (element.isNull())
        return MDataHandle();
    const auto slot = forWriting ? tvxhost::engine::outputSlot(element) : tvxhost::engine::inputSlot(element);
    const auto state = slot ? HandleState::of(element, slot.value, forWriting) : std::nullopt;
    if (!state)
        give(returnStatus, failure(MS::kInvalidParameter, StatusText::unexpectedFailure));
    return state ? state->handle() : MDataHandle();
}

} // namespace

MArrayDataHandle::MArrayDataHandle(const MDataHandle& in, MStatus* ReturnStatus) : storage()
{
    TVX_API_CONSTRUCTION("MArrayDataHandle::MArrayDataHandle", ReturnStatus);
    const HandleState state = HandleState::read(in);
    const bool isArray = !state.isNull() && state.plug().isArray();
    give(ReturnStatus, isArray ? MStatus() : failure(StatusText::objectIsIncompatible));
    *this = ArrayHandleState::handleOn(isArray ? state : HandleState());
}

const char* MArrayDataHandle::className()
{
    return "MArrayDataHandle";
}

MDataHandle MArrayDataHandle::inputValue(MStatus* ReturnStatus)
{
    return value(*this, "MArrayDataHandle::inputValue", false, ReturnStatus);
}

MDataHandle MArrayDataHandle::outputValue(MStatus* ReturnStatus)
{
    return value(*this, "MArrayDataHandle::outputValue", true, ReturnStatus);
}

// An attribute is one array at most; arrays inside an element belong to its children and are reached by
// MDataHandle::child.
MArrayDataHandle MArrayDataHandle::inputArrayValue(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MArrayDataHandle::inputArrayValue", ReturnStatus, ArrayHandleState::handleOn({}));
    give(ReturnStatus, failure(StatusText::objectIsIncompatible));
    return ArrayHandleState::handleOn({});
}

MArrayDataHandle MArrayDataHandle::outputArrayValue(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MArrayDataHandle::outputArrayValue", ReturnStatus, ArrayHandleState::handleOn({}));
    give(ReturnStatus, failure(StatusText::objectIsIncompatible));
    return ArrayHandleState::handleOn({});
}

MStatus MArrayDataHandle::next()
{
    TVX_API_CALL("MArrayDataHandle::next");
    ArrayHandleState state = ArrayHandleState::read(*this);
    if (state.array.isNull() || state.index < 0)
        return failure(StatusText::noElementAtIndex);
    const auto next = elementAfter(state.array.plug(), state.index);
    state.index = next.value_or(ArrayHandleState::kNone);
    state.write(*this);
    return next ? MStatus() : failure(StatusText::noElementAtIndex);
}

unsigned int MArrayDataHandle::elementCount(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MArrayDataHandle::elementCount", ReturnStatus, 0);
    const ArrayHandleState state = ArrayHandleState::read(*this);
    if (!requireAttached(state.array.attribute(), ReturnStatus))
        return 0;
    return static_cast<unsigned int>(tvxhost::api::elementCount(state.array.plug()));
}

unsigned int MArrayDataHandle::elementIndex(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MArrayDataHandle::elementIndex", ReturnStatus, 0);
    const ArrayHandleState state = ArrayHandleState::read(*this);
    give(ReturnStatus, state.index < 0 ? failure(StatusText::noElementAtIndex) : MStatus());
    return state.index < 0 ? 0 : static_cast<unsigned int>(state.index);
}

MStatus MArrayDataHandle::jumpToElement(unsigned int index)
{
    TVX_API_CALL("MArrayDataHandle::jumpToElement");
    ArrayHandleState state = ArrayHandleState::read(*this);
    const auto wanted = static_cast<int>(index);
    if (state.array.isNull() || wanted < 0 || !hasElement(state.array.plug(), wanted))
        return failure(StatusText::noElementAtIndex);
    state.index = wanted;
    state.write(*this);
    return MS::kSuccess;
}

MStatus MArrayDataHandle::jumpToArrayElement(unsigned int position)
{
    TVX_API_CALL("MArrayDataHandle::jumpToArrayElement");
    ArrayHandleState state = ArrayHandleState::read(*this);
    if (state.array.isNull())
        return notAttached();
    const auto existing = tvxhost::engine::existingElements(state.array.plug());
    if (position >= existing.size())
        return failure(StatusText::noElementAtIndex);
    state.index = existing[position];
    state.write(*this);
    return MS::kSuccess;
}

MStatus MArrayDataHandle::setClean()
{
    TVX_API_CALL("MArrayDataHandle::setClean");
    const Plug element = currentElement(*this);
    if (element.isNull())
        return failure(StatusText::noElementAtIndex);
    tvxhost::engine::setClean(element);
    return MS::kSuccess;
}

MStatus MArrayDataHandle::setAllClean()
{
    TVX_API_CALL("MArrayDataHandle::setAllClean");
    const ArrayHandleState state = ArrayHandleState::read(*this);
    if (state.array.isNull())
        return notAttached();
    tvxhost::engine::setClean(state.array.plug());
    return MS::kSuccess;
}

MArrayDataBuilder MArrayDataHandle::builder(MStatus* ReturnStatus)
{
    TVX_API_CALL_OR("MArrayDataHandle::builder", ReturnStatus, makeBuilder({}));
    const ArrayHandleState state = ArrayHandleState::read(*this);
    if (!requireAttached(state.array.attribute(), ReturnStatus))
        return makeBuilder({});
    ArrayBuilding building;
    building.array = state.array.plug();
    for (const int index : tvxhost::engine::existingElements(building.array))
        building.indices.insert(index);
    return makeBuilder(building);
}

MStatus MArrayDataHandle::set(MArrayDataBuilder& builder)
{
    TVX_API_CALL("MArrayDataHandle::set");
    ArrayHandleState state = ArrayHandleState::read(*this);
    const ArrayBuilding* building = buildingOf(builder);
    if (state.array.isNull() || !building)
        return notAttached();
    const Plug array = state.array.plug();
    if (building->array != array)
        return failure(StatusText::objectIsIncompatible);
    for (const int index : tvxhost::engine::existingElements(array))
        if (building->indices.count(index) == 0)
            if (const auto removed = tvxhost::engine::removeElement(array, index); !removed)
                return toStatus(removed);
    state.index = elementAfter(array, ArrayHandleState::kNone).value_or(ArrayHandleState::kNone);
    state.write(*this);
    return MS::kSuccess;
}
